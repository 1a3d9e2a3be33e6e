#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>

#include "support/gdi_count.h"
#include "support/paper.h"

using namespace orv::test;

namespace {

class DeviceContext : public testing::Test {
protected:
    Paper paper{300, 80};
    CDC& dc = paper.dc;
};

TEST_F(DeviceContext, SelectingGivesTheFormerObjectBack) {
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

struct Attribute {
    const char* name;
    LONGLONG former, now;
    std::function<LONGLONG(CDC&)> set, get;
};

template <auto Set, auto Get, class Value>
Attribute attribute(const char* name, Value former, Value now) {
    return {name, former, now, [now](CDC& d) -> LONGLONG { return (d.*Set)(now); },
            [](CDC& d) -> LONGLONG { return (d.*Get)(); }};
}

TEST_F(DeviceContext, AttributesAnswerTheirFormerValue) {
    const Attribute rows[] = {
        attribute<&CDC::SetBkColor, &CDC::GetBkColor>("BkColor", kWhite, RGB(1, 2, 3)),
        attribute<&CDC::SetBkMode, &CDC::GetBkMode>("BkMode", OPAQUE, TRANSPARENT),
        attribute<&CDC::SetTextColor, &CDC::GetTextColor>("TextColor", RGB(0, 0, 0), RGB(4, 5, 6)),
        attribute<&CDC::SetTextAlign, &CDC::GetTextAlign>("TextAlign", UINT(TA_LEFT), UINT(TA_RIGHT)),
        attribute<&CDC::SetTextCharacterExtra, &CDC::GetTextCharacterExtra>("CharacterExtra", 0, 3),
        attribute<&CDC::SetROP2, &CDC::GetROP2>("ROP2", R2_COPYPEN, R2_XORPEN),
        attribute<&CDC::SetPolyFillMode, &CDC::GetPolyFillMode>("PolyFillMode", ALTERNATE, WINDING),
        attribute<&CDC::SetStretchBltMode, &CDC::GetStretchBltMode>("Stretch", BLACKONWHITE, COLORONCOLOR),
        attribute<&CDC::SetMapMode, &CDC::GetMapMode>("MapMode", MM_TEXT, MM_ANISOTROPIC),
    };
    const int saved = dc.SaveDC();
    for (const Attribute& row : rows) {
        EXPECT_EQ(row.former, row.set(dc)) << row.name;
        EXPECT_EQ(row.now, row.get(dc)) << row.name;
    }
    ASSERT_TRUE(dc.RestoreDC(saved));
    for (const Attribute& row : rows)
        EXPECT_EQ(row.former, row.get(dc)) << row.name;
}

TEST_F(DeviceContext, MappingConvertsPointsRectanglesAndSizes) {
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

TEST_F(DeviceContext, DrawsWhatItIsTold) {
    dc.FillSolidRect(10, 10, 20, 20, RGB(255, 0, 0));
    dc.Draw3dRect(CRect(40, 10, 50, 20), RGB(0, 255, 0), RGB(0, 0, 255));
    CPen pen(PS_SOLID, 1, RGB(0, 0, 255));
    CPen* old = dc.SelectObject(&pen);
    dc.MoveTo(60, 10);
    EXPECT_TRUE(dc.LineTo(70, 10));
    EXPECT_EQ(CPoint(70, 10), dc.GetCurrentPosition());
    dc.SelectObject(old);
    {
        Paper source(10, 10);
        source.dc.FillSolidRect(0, 0, 10, 10, RGB(1, 1, 1));
        EXPECT_TRUE(dc.BitBlt(60, 40, 10, 10, &source.dc, 0, 0, SRCCOPY));
        EXPECT_TRUE(dc.StretchBlt(80, 40, 5, 5, &source.dc, 0, 0, 10, 10, SRCCOPY));
    }
    const struct {
        int x, y;
        COLORREF colour;
    } pixels[] = {
        {9, 10, kWhite},        {10, 10, RGB(255, 0, 0)}, {29, 29, RGB(255, 0, 0)},
        {30, 29, kWhite},       {40, 15, RGB(0, 255, 0)}, {49, 15, RGB(0, 0, 255)},
        {45, 15, kWhite},       {65, 10, RGB(0, 0, 255)}, {70, 10, kWhite},
        {65, 45, RGB(1, 1, 1)}, {84, 44, RGB(1, 1, 1)},   {85, 44, kWhite},
    };
    for (const auto& pixel : pixels)
        EXPECT_EQ(pixel.colour, dc.GetPixel(pixel.x, pixel.y)) << pixel.x << "," << pixel.y;
    EXPECT_EQ(kWhite, dc.GetBkColor()); // filling leaves it alone
}

TEST_F(DeviceContext, PathsAreCountedFlattenedAndUsedUp) {
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

TEST_F(DeviceContext, MeasuresAndDrawsChineseText) {
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

TEST_F(DeviceContext, ScreenAndMetafileForms) {
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
    CRect bounds(0, 0, 50, 50);
    EXPECT_TRUE(dc.PlayMetaFile(file, &bounds));
    ::DeleteEnhMetaFile(file);
}

TEST_F(DeviceContext, AnAbandonedMetafileIsDeleted) {
    const auto round = [&] {
        for (int i = 0; i < 20; ++i) {
            CMetaFileDC abandoned;
            abandoned.CreateEnhanced(&dc, NULL, NULL, NULL);
        }
    };
    round();
    const int before = liveGdiHandles();
    round();
    EXPECT_EQ(before, liveGdiHandles());
}

} // namespace
