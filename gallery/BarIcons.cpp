#include "BarIcons.h"

#include <initializer_list>

namespace gallery {
namespace {

constexpr COLORREF nothing = RGB(255, 0, 255);

// Both stand on a sheet of paper, in 32nds of its side.
void drawPaper(CDC& dc, int x, int size) {
    CRect paper(x + size * 3 / 32, size * 3 / 32, x + size * 29 / 32, size * 29 / 32);
    dc.FillSolidRect(paper, RGB(255, 255, 255));
    dc.Draw3dRect(paper, RGB(120, 130, 150), RGB(60, 70, 90));
}

void drawCurve(CDC& dc, int x, int size) {
    CPen pen(PS_SOLID, size / 16, RGB(20, 60, 160));
    CPen* old = dc.SelectObject(&pen);
    const auto at = [&](int px, int py) { return POINT{x + size * px / 32, size * py / 32}; };
    const POINT curve[] = {at(7, 24), at(11, 2), at(19, 30), at(25, 8)};
    dc.PolyBezier(curve, 4);
    dc.SelectObject(old);
}

void drawCombo(CDC& dc, int x, int size) {
    const auto bar = [&](int left, int top, int right, int bottom, COLORREF color) {
        dc.FillSolidRect(
            CRect(x + size * left / 32, size * top / 32, x + size * right / 32, size * bottom / 32), color);
    };
    bar(7, 8, 25, 14, RGB(190, 200, 215));
    bar(20, 8, 25, 14, RGB(20, 60, 160));
    for (int top : {16, 20, 24}) {
        bar(7, top, 22, top + 2, RGB(120, 130, 150));
    }
}

} // namespace

void makeBarIcons(CImageList& list, int size) {
    CWindowDC screen(NULL);
    CDC dc;
    CBitmap bitmap;
    dc.CreateCompatibleDC(&screen);
    bitmap.CreateCompatibleBitmap(&screen, barIcons * size, size);
    CBitmap* old = dc.SelectObject(&bitmap);
    dc.FillSolidRect(0, 0, barIcons * size, size, nothing);
    for (int i = 0; i < barIcons; ++i) {
        drawPaper(dc, i * size, size);
    }
    drawCurve(dc, 0, size);
    drawCombo(dc, size, size);
    dc.SelectObject(old);
    list.Create(size, size, ILC_COLOR24 | ILC_MASK, barIcons, 1);
    list.Add(&bitmap, nothing);
}

} // namespace gallery
