#include <afxwin.h>

#include <gtest/gtest.h>

#include "support/gdi_count.h"

namespace {

// A memory context over a 32-bit picture, white at first.
class Canvas : public CDC {
public:
    Canvas(int width = 100, int height = 80) {
        CreateCompatibleDC(NULL);
        CClientDC screen(NULL);
        bitmap_.CreateCompatibleBitmap(&screen, width, height);
        old_ = SelectObject(&bitmap_);
        FillSolidRect(0, 0, width, height, RGB(255, 255, 255));
    }
    ~Canvas() override { SelectObject(old_); }

private:
    CBitmap bitmap_;
    CBitmap* old_;
};

TEST(DeviceContext, SelectingGivesTheFormerObjectBack) {
    Canvas dc;
    CPen first(PS_SOLID, 1, RGB(0, 0, 0)), second(PS_SOLID, 2, RGB(0, 0, 0));
    CPen* stock = dc.SelectObject(&first);
    EXPECT_EQ(::GetStockObject(BLACK_PEN), stock->m_hObject);
    EXPECT_EQ(&first, dc.SelectObject(&second));
    EXPECT_EQ(&second, dc.GetCurrentPen());
    EXPECT_EQ(&second, dc.SelectStockObject(NULL_PEN));
    EXPECT_EQ(::GetStockObject(NULL_PEN), dc.SelectObject(stock)->m_hObject);

    CFont font;
    font.CreatePointFont(90, "宋体");
    CFont* oldFont = dc.SelectObject(&font);
    EXPECT_EQ(&font, dc.GetCurrentFont());
    dc.SelectObject(oldFont);
    CRgn clip;
    clip.CreateRectRgn(0, 0, 5, 5);
    EXPECT_EQ(SIMPLEREGION, dc.SelectObject(&clip));
}

TEST(DeviceContext, AttributesAnswerTheirFormerValue) {
    Canvas dc;
    struct Row {
        const char* name;
        LONGLONG former, now;
        LONGLONG (*set)(CDC&);
        LONGLONG (*get)(CDC&);
    } const rows[] = {
        {"BkColor", RGB(255, 255, 255), RGB(1, 2, 3),
         [](CDC& d) -> LONGLONG { return d.SetBkColor(RGB(1, 2, 3)); },
         [](CDC& d) -> LONGLONG { return d.GetBkColor(); }},
        {"BkMode", OPAQUE, TRANSPARENT, [](CDC& d) -> LONGLONG { return d.SetBkMode(TRANSPARENT); },
         [](CDC& d) -> LONGLONG { return d.GetBkMode(); }},
        {"TextColor", 0, RGB(4, 5, 6), [](CDC& d) -> LONGLONG { return d.SetTextColor(RGB(4, 5, 6)); },
         [](CDC& d) -> LONGLONG { return d.GetTextColor(); }},
        {"TextAlign", TA_LEFT, TA_RIGHT, [](CDC& d) -> LONGLONG { return d.SetTextAlign(TA_RIGHT); },
         [](CDC& d) -> LONGLONG { return d.GetTextAlign(); }},
        {"CharacterExtra", 0, 3, [](CDC& d) -> LONGLONG { return d.SetTextCharacterExtra(3); },
         [](CDC& d) -> LONGLONG { return d.GetTextCharacterExtra(); }},
        {"ROP2", R2_COPYPEN, R2_XORPEN, [](CDC& d) -> LONGLONG { return d.SetROP2(R2_XORPEN); },
         [](CDC& d) -> LONGLONG { return d.GetROP2(); }},
        {"PolyFillMode", ALTERNATE, WINDING, [](CDC& d) -> LONGLONG { return d.SetPolyFillMode(WINDING); },
         [](CDC& d) -> LONGLONG { return d.GetPolyFillMode(); }},
        {"StretchBltMode", BLACKONWHITE, COLORONCOLOR,
         [](CDC& d) -> LONGLONG { return d.SetStretchBltMode(COLORONCOLOR); },
         [](CDC& d) -> LONGLONG { return d.GetStretchBltMode(); }},
        {"MapMode", MM_TEXT, MM_ANISOTROPIC, [](CDC& d) -> LONGLONG { return d.SetMapMode(MM_ANISOTROPIC); },
         [](CDC& d) -> LONGLONG { return d.GetMapMode(); }},
    };
    const int saved = dc.SaveDC();
    for (const Row& row : rows) {
        EXPECT_EQ(row.former, row.set(dc)) << row.name;
        EXPECT_EQ(row.now, row.get(dc)) << row.name;
    }
    ASSERT_TRUE(dc.RestoreDC(saved));
    for (const Row& row : rows)
        EXPECT_EQ(row.former, row.get(dc)) << row.name;
}

TEST(DeviceContext, MappingConvertsPointsRectanglesAndSizes) {
    Canvas dc;
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(100, 100);
    dc.SetViewportExt(200, -300);
    dc.SetWindowOrg(10, 10);
    EXPECT_EQ(CPoint(0, 0), dc.SetViewportOrg(50, 60));
    EXPECT_EQ(CPoint(50, 60), dc.GetViewportOrg());
    EXPECT_EQ(CSize(200, -300), dc.GetViewportExt());

    CPoint point(20, 20);
    dc.LPtoDP(&point);
    EXPECT_EQ(CPoint(70, 30), point);
    dc.DPtoLP(&point);
    EXPECT_EQ(CPoint(20, 20), point);
    CRect rect(10, 10, 20, 20);
    dc.LPtoDP(&rect);
    EXPECT_EQ(CRect(50, 60, 70, 30), rect);
    CSize size(10, 10);
    dc.LPtoDP(&size);
    EXPECT_EQ(CSize(20, 30), size);
    dc.DPtoLP(&size);
    EXPECT_EQ(CSize(10, 10), size);
}

TEST(DeviceContext, DrawsWhatItIsTold) {
    Canvas dc;
    dc.FillSolidRect(10, 10, 20, 20, RGB(255, 0, 0));
    dc.Draw3dRect(CRect(40, 10, 50, 20), RGB(0, 255, 0), RGB(0, 0, 255));
    CPen pen(PS_SOLID, 1, RGB(0, 0, 255));
    CPen* old = dc.SelectObject(&pen);
    dc.MoveTo(60, 10);
    EXPECT_TRUE(dc.LineTo(70, 10));
    EXPECT_EQ(CPoint(70, 10), dc.GetCurrentPosition());
    dc.SelectObject(old);
    {
        Canvas source(10, 10);
        source.FillSolidRect(0, 0, 10, 10, RGB(1, 1, 1));
        EXPECT_TRUE(dc.BitBlt(60, 40, 10, 10, &source, 0, 0, SRCCOPY));
        EXPECT_TRUE(dc.StretchBlt(80, 40, 5, 5, &source, 0, 0, 10, 10, SRCCOPY));
    }
    const struct {
        int x, y;
        COLORREF colour;
    } pixels[] = {
        {9, 10, RGB(255, 255, 255)},  {10, 10, RGB(255, 0, 0)}, {29, 29, RGB(255, 0, 0)},
        {30, 29, RGB(255, 255, 255)}, {40, 15, RGB(0, 255, 0)}, {49, 15, RGB(0, 0, 255)},
        {45, 15, RGB(255, 255, 255)}, {65, 10, RGB(0, 0, 255)}, {70, 10, RGB(255, 255, 255)},
        {65, 45, RGB(1, 1, 1)},       {84, 44, RGB(1, 1, 1)},   {85, 44, RGB(255, 255, 255)},
    };
    for (const auto& pixel : pixels)
        EXPECT_EQ(pixel.colour, dc.GetPixel(pixel.x, pixel.y)) << pixel.x << "," << pixel.y;
    EXPECT_EQ(RGB(255, 255, 255), dc.GetBkColor()); // filling leaves it alone
}

TEST(DeviceContext, PathsAreCountedFlattenedAndUsedUp) {
    Canvas dc;
    EXPECT_EQ(-1, dc.GetPath(NULL, NULL, 0));
    const POINT curve[4] = {{0, 0}, {30, 0}, {30, 60}, {60, 60}};
    dc.BeginPath();
    dc.PolyBezier(curve, 4);
    dc.EndPath();
    EXPECT_EQ(4, dc.GetPath(NULL, NULL, 0));
    ASSERT_TRUE(dc.FlattenPath());
    POINT points[200];
    BYTE types[200];
    const int count = dc.GetPath(points, types, 200);
    ASSERT_GT(count, 4);
    for (int i = 1; i < count; ++i)
        EXPECT_EQ(PT_LINETO, types[i]);
    EXPECT_TRUE(dc.StrokePath());
    EXPECT_EQ(-1, dc.GetPath(NULL, NULL, 0));
}

TEST(DeviceContext, MeasuresAndDrawsChineseText) {
    Canvas dc(300, 60);
    CFont font;
    font.CreateFont(-24, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, GB2312_CHARSET, OUT_DEFAULT_PRECIS,
                    CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, "宋体");
    CFont* old = dc.SelectObject(&font);
    const CString text("线型");
    ASSERT_EQ(4, text.GetLength()); // two characters of two bytes
    const CSize one = dc.GetTextExtent(text, 2), two = dc.GetTextExtent(text);
    EXPECT_GT(one.cx, 0);
    EXPECT_EQ(2 * one.cx, two.cx);
    int fit = 0, widths[4] = {};
    CSize size;
    ASSERT_TRUE(dc.GetTextExtentExPointA(text, 4, one.cx, &fit, widths, &size));
    EXPECT_TRUE(dc.TextOut(0, 0, text));
    CRect box(100, 0, 300, 60);
    EXPECT_GT(dc.DrawText(text, &box, DT_SINGLELINE | DT_VCENTER), 0);
    EXPECT_TRUE(dc.ExtTextOut(200, 0, 0, NULL, text, NULL));
    int dark = 0;
    for (int x = 0; x < two.cx; ++x)
        for (int y = 0; y < two.cy; ++y)
            dark += dc.GetPixel(x, y) == 0;
    EXPECT_GT(dark, 20);
    TEXTMETRIC metrics;
    ASSERT_TRUE(dc.GetTextMetrics(&metrics));
    EXPECT_EQ(24, metrics.tmHeight - metrics.tmInternalLeading);
    CString face;
    EXPECT_GT(dc.GetTextFace(face), 0);
    dc.SelectObject(old);
}

TEST(DeviceContext, ScreenAndMetafileForms) {
    CClientDC screen(NULL);
    CWindowDC window(NULL);
    EXPECT_GT(screen.GetDeviceCaps(HORZRES), 0);
    EXPECT_EQ(screen.GetDeviceCaps(LOGPIXELSY), window.GetDeviceCaps(LOGPIXELSY));

    CMetaFileDC recorder;
    ASSERT_TRUE(recorder.CreateEnhanced(&screen, NULL, NULL, NULL));
    recorder.MoveTo(1, 2);
    recorder.LineTo(30, 40);
    HENHMETAFILE file = recorder.CloseEnhanced();
    ASSERT_TRUE(file);
    EXPECT_EQ(NULL, recorder.GetSafeHdc());
    ENHMETAHEADER header;
    ASSERT_TRUE(::GetEnhMetaFileHeader(file, sizeof header, &header));
    EXPECT_EQ(CRect(1, 2, 30, 40), CRect(header.rclBounds.left, header.rclBounds.top, header.rclBounds.right,
                                         header.rclBounds.bottom));
    Canvas dc;
    CRect bounds(0, 0, 50, 50);
    EXPECT_TRUE(dc.PlayMetaFile(file, &bounds));
    ::DeleteEnhMetaFile(file);
}

TEST(DeviceContext, BalancedUseLeavesNoHandleBehind) {
    auto round = [] {
        for (int i = 0; i < 20; ++i) {
            Canvas dc(16, 16);
            CPen pen(PS_SOLID, i, RGB(i, 0, 0));
            CBrush brush(RGB(0, i, 0));
            CPen* oldPen = dc.SelectObject(&pen);
            CBrush* oldBrush = dc.SelectObject(&brush);
            dc.Rectangle(0, 0, 8, 8);
            dc.SelectObject(oldBrush);
            dc.SelectObject(oldPen);
            CClientDC screen(NULL);
            CMetaFileDC abandoned;
            abandoned.CreateEnhanced(&screen, NULL, NULL, NULL);
        }
        AfxLockTempMaps();
        AfxUnlockTempMaps();
    };
    round();
    const int before = orv::test::liveGdiHandles();
    ASSERT_GT(before, 0);
    round();
    EXPECT_EQ(before, orv::test::liveGdiHandles());
}

} // namespace
