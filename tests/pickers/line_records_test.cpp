// The rows of the line property pickers, drawn.

#include "pickers_test.h"

#include <gtest/gtest.h>

#include "support/metafile_strokes.h"

#include <limits>
#include <math.h>

using namespace orv::test;

namespace {

const CRect kRow(0, 0, 160, 18);
constexpr COLORREF kFrame = 0xFF8000;

COLORREF sysColor(int index) {
    return ::GetSysColor(index);
}

TEST(LineRecords, ColorRow) {
    for (const int state : {0, int(ODS_SELECTED), int(ODS_DISABLED)}) {
        Picture picture(180, 18);
        CCmbColorData(RGB(200, 10, 20), "颜色名").DrawItem(&picture.dc, kRow, state);
        const COLORREF back = sysColor(state & ODS_DISABLED ? COLOR_BTNFACE : COLOR_WINDOW);
        for (const CPoint corner : {CPoint(0, 0), CPoint(159, 17), CPoint(0, 17), CPoint(159, 0)})
            EXPECT_EQ(state & ODS_SELECTED ? kFrame : back, picture.at(corner.x, corner.y)) << state;
        EXPECT_EQ(RGB(1, 2, 3), picture.at(160, 9)) << "beside the row";
        EXPECT_EQ(back, picture.at(1, 1));
        EXPECT_EQ(RGB(0, 0, 0), picture.at(2, 2)) << "the pen's frame";
        EXPECT_EQ(RGB(0, 0, 0), picture.at(15, 15));
        EXPECT_EQ(RGB(200, 10, 20), picture.at(3, 3));
        EXPECT_EQ(RGB(200, 10, 20), picture.at(14, 14));
        EXPECT_EQ(back, picture.at(16, 16));
        for (int x = 0; state & ODS_SELECTED && x < 160; ++x)
            EXPECT_EQ(kFrame, picture.at(x, 0)) << "the name leaves the frame alone, at " << x;
        const CRect name = inked(picture, back, 17, 158);
        EXPECT_GE(name.left, 17 + (state & ODS_SELECTED ? 0 : 4));
        EXPECT_GT(name.right, 40);
    }
}

TEST(LineRecords, TheDeviceContextIsGivenBack) {
    Picture picture(180, 18);
    COrvMainDrawManage manage("");
    CPen pen(PS_SOLID, 3, RGB(0, 0, 255));
    CPen* old = picture.dc.SelectObject(&pen);
    picture.dc.SetTextColor(RGB(7, 7, 7));
    CCmbColorData(0, "a").DrawItem(&picture.dc, kRow, TRUE);
    CCmbLineStyleData(1, "a").DrawItem(&picture.dc, kRow, TRUE, &manage);
    CCmbLineStyleData(2, "a").DrawItem(&picture.dc, kRow, TRUE);
    CCmbLineWidthData(2, "a").DrawItem(&picture.dc, kRow, TRUE);
    CCmbBrushFigureData(2, "a", 1).DrawItem(&picture.dc, kRow, TRUE);
    CCmbFillTypeData(2).DrawItem(&picture.dc, kRow, TRUE);
    EXPECT_EQ(pen.m_hObject, ::GetCurrentObject(picture.dc.m_hDC, OBJ_PEN));
    EXPECT_EQ(RGB(7, 7, 7), picture.dc.GetTextColor());
    EXPECT_EQ(-1, picture.dc.GetPath(NULL, NULL, 0)) << "no path is left open or behind";
    picture.dc.SelectObject(old);
}

std::vector<std::string> strokesOf(int style, COrvMainDrawManage* manage) {
    CMetaFileDC dc;
    dc.CreateEnhanced(NULL, NULL, NULL, NULL);
    CCmbLineStyleData(style, "").DrawItem(&dc, CRect(10, 20, 200, 38), 0, manage);
    const HENHMETAFILE file = dc.CloseEnhanced();
    auto strokes = visibleStrokes(file);
    ::DeleteEnhMetaFile(file);
    std::erase_if(strokes, [](const std::string& line) { return line.rfind("text ", 0) == 0; });
    return strokes;
}

TEST(LineRecords, LineSamplesAreDrawnByThePatternsOrAPen) {
    COrvMainDrawManage manage(""), emptied("");
    emptied.EmptyAll();
    const std::vector<std::string> pen = {"path w1 000000"};
    for (const int style : {0, 1, 2, 3, 4, 77, -1, INT_MIN, 7}) {
        EXPECT_EQ(pen, strokesOf(style, NULL)) << style;
        EXPECT_EQ(pen, strokesOf(style, &emptied)) << style;
    }
    EXPECT_EQ(pen, strokesOf(0, &manage)) << "no pattern is solid";
    // The same as the manager draws on its own, at the middle of the row, 80 long.
    for (const int style : {1, 2, 3, 4, 101}) {
        CMetaFileDC dc;
        dc.CreateEnhanced(NULL, NULL, NULL, NULL);
        dc.BeginPath();
        dc.MoveTo(10, 29);
        dc.LineTo(90, 29);
        dc.EndPath();
        EXPECT_EQ(1, manage.Draw(&dc, style, -1, 0));
        const HENHMETAFILE file = dc.CloseEnhanced();
        EXPECT_EQ(visibleStrokes(file), strokesOf(style, &manage)) << style;
        ::DeleteEnhMetaFile(file);
    }
    EXPECT_GT(strokesOf(101, NULL).size(), 3u) << "a railway needs no manager";
}

TEST(LineRecords, LineStyleRowIsFramedInTheSystemsColor) {
    Picture picture(180, 18);
    CCmbLineStyleData(0, "实线").DrawItem(&picture.dc, kRow, TRUE);
    EXPECT_EQ(sysColor(COLOR_HIGHLIGHT), picture.at(100, 0));
    EXPECT_EQ(RGB(0, 0, 0), picture.at(40, 9));
    CCmbLineStyleData(5, "").DrawItem(&picture.dc, kRow, FALSE);
    EXPECT_EQ(sysColor(COLOR_WINDOW), picture.at(40, 9)) << "no line";
}

TEST(LineRecords, Brushes) {
    const struct {
        int type;
        UINT style;
        ULONG_PTR hatch;
        bool good;
    } rows[] = {{0, BS_SOLID, 0, true},
                {1, BS_HATCHED, HS_BDIAGONAL, true},
                {2, BS_HATCHED, HS_CROSS, true},
                {3, BS_HATCHED, HS_DIAGCROSS, true},
                {4, BS_HATCHED, HS_FDIAGONAL, true},
                {5, BS_HATCHED, HS_HORIZONTAL, true},
                {6, BS_HATCHED, HS_VERTICAL, true},
                {7, BS_SOLID, 0, false},
                {-2, BS_SOLID, 0, false},
                {INT_MAX, BS_SOLID, 0, false}};
    for (const auto& row : rows) {
        LOGBRUSH fill, figure;
        CCmbBrushFigureData data(row.type, "x", 5);
        data.SetColor(0x112233);
        EXPECT_EQ(row.good, CCmbFillTypeData(row.type).CreateLogBr(fill) == 1) << row.type;
        EXPECT_EQ(row.good, data.CreateBrushByType(figure) == 1) << row.type;
        EXPECT_EQ(0u, fill.lbColor);
        EXPECT_EQ(0x112233u, figure.lbColor);
        for (const LOGBRUSH& brush : {fill, figure}) {
            EXPECT_EQ(row.style, brush.lbStyle) << row.type;
            EXPECT_TRUE(row.style == BS_SOLID || row.hatch == brush.lbHatch) << row.type;
        }
    }
    LOGBRUSH brush;
    EXPECT_EQ(1, CCmbFillTypeData(-1).CreateLogBr(brush));
    EXPECT_EQ(UINT(BS_NULL), brush.lbStyle);
    EXPECT_EQ(0, CCmbBrushFigureData(-1, "", 3).CreateBrushByType(brush));
    EXPECT_EQ(UINT(BS_SOLID), brush.lbStyle) << "no filling is no figure";
}

TEST(LineRecords, WidthBars) {
    const struct {
        double width;
        int height;
    } rows[] = {{0, 1},   {0.5, 1},    {1, 1},  {1.5, 2}, {3, 3},         {12, 12},      {14, 14},
                {15, 14}, {1e300, 14}, {-7, 1}, {NAN, 1}, {INFINITY, 14}, {-INFINITY, 1}};
    for (const auto& row : rows) {
        Picture picture(180, 18);
        CCmbLineWidthData(row.width, "").DrawItem(&picture.dc, kRow, 0);
        const CRect bar = inked(picture, sysColor(COLOR_WINDOW), 0, 160);
        EXPECT_EQ(row.height, bar.Height()) << row.width;
        EXPECT_EQ(2, bar.left);
        EXPECT_EQ(80, bar.right);
    }
}

TEST(LineRecords, SwatchesShowTheirFilling) {
    Picture picture(180, 18);
    CCmbBrushFigureData(0, "", RGB(9, 99, 199)).DrawItem(&picture.dc, kRow, 0);
    EXPECT_EQ(RGB(9, 99, 199), picture.at(8, 8));
    CCmbFillTypeData(-1).DrawItem(&picture.dc, kRow, 0);
    EXPECT_EQ(sysColor(COLOR_WINDOW), picture.at(8, 8));
    EXPECT_EQ(RGB(0, 0, 0), picture.at(79, 8)) << "the frame of the sample";
    CCmbFillTypeData(0).DrawItem(&picture.dc, kRow, 0);
    EXPECT_EQ(RGB(0, 0, 0), picture.at(40, 8));
}

TEST(LineRecords, LongNamesStayInTheirRow) {
    Picture picture(180, 18);
    CCmbColorData(0, CString('W', 10000)).DrawItem(&picture.dc, kRow, 0);
    EXPECT_EQ(RGB(1, 2, 3), picture.at(165, 9));
    CString text("啊");
    while (text.GetLength() < 10000)
        text += text;
    CCmbLineStyleData(0, text).DrawItem(&picture.dc, kRow, 0);
    EXPECT_EQ(RGB(1, 2, 3), picture.at(165, 9));
}

} // namespace
