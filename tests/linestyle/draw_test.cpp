// Paths of real device contexts, drawn by the managers.

#include <afxwin.h>

#include <orvfc/linestyle/LineProperBar.h>
#include <orvfc/linestyle/LineTypeSet.h>

#include <gtest/gtest.h>

#include "sheet.h"
#include "afx/afx_test.h"
#include "support/gdi_count.h"
#include "support/paper.h"

#include <functional>
#include <math.h>

using namespace orv::test;

namespace {

// A device context that records what is drawn.
class Record {
public:
    Record() { dc.Attach(sheet_.dc()); }
    ~Record() { dc.Detach(); }
    Seen take() { return sheet_.take(); }

    CDC dc;

private:
    Sheet sheet_;
};

void polylinePath(CDC& dc, std::initializer_list<POINT> points) {
    dc.BeginPath();
    dc.MoveTo(*points.begin());
    for (const POINT& point : points)
        if (&point != points.begin())
            dc.LineTo(point);
    dc.EndPath();
}

// One character per pixel of a row: '.' for white.
std::string rowOf(const Paper& paper, int y) {
    std::string text;
    for (int x = 0; x < paper.width; ++x)
        text += paper.at(x, y) == kWhite ? '.' : '#';
    return text;
}

const struct {
    const char* name;
    int type, width;
    COLORREF color;
    int main, single; // results of the two managers
    const char* seen; // by the main manager, of a line from (0, 50) to (30, 50) and up to (30, 30)
} drawRows[] = {
    {"dash", 1, 3, 0x0000FF, 1, 1,
     "0,50 18,50 w3 0000FF; 23,50 30,50 w3 0000FF; 30,50 30,39 w3 0000FF; 30,34 30,30 w3 0000FF; "},
    {"dash-dot", 3, 1, 0x00FF00, 1, 1,
     "0,50 17,50 w1 00FF00; 22,50 27,50 w1 00FF00; 30,48 30,31 w1 00FF00; "},
    {"below width 1: defaults", 1, 0, 0x0000FF, 1, 1,
     "0,50 18,50 w1 000000; 23,50 30,50 w1 000000; 30,50 30,39 w1 000000; 30,34 30,30 w1 000000; "},
    {"one tent for the whole path", 101, 2, 0xFF0000, 1, 1, "0,50 1,47 3,50 w2 FF0000; "},
    {"solid is no pattern", 0, 4, 0x0000FF, 0, 1, ""},
    {"no line", 5, 1, 0, 0, 0, ""},
    {"unknown", 77, 1, 0, 0, 0, ""},
};

std::string inOneLine(const Seen& strokes) {
    std::string all;
    for (const std::string& stroke : strokes)
        all += stroke + "; ";
    return all;
}

TEST(Draw, ByTypeWidthAndColour) {
    for (const auto& row : drawRows) {
        SCOPED_TRACE(row.name);
        Record main, single;
        for (CDC* dc : {&main.dc, &single.dc})
            polylinePath(*dc, {{0, 50}, {30, 50}, {30, 30}});
        COrvMainDrawManage manager("");
        EXPECT_EQ(row.main, manager.Draw(&main.dc, row.type, row.width, row.color));
        EXPECT_EQ(3, main.dc.GetPath(NULL, NULL, 0)) << "the path stays";
        if (COrvDrawBasicDash* dash = manager.GetLineType(row.type)) {
            EXPECT_EQ(row.width, dash->m_nWidth);
            EXPECT_EQ(row.color, dash->m_crColor);
        }
        EXPECT_EQ(row.seen, inOneLine(main.take()));

        COrvDrawManage set;
        set.InitToGerApp();
        EXPECT_EQ(row.single, set.Draw(&single.dc, row.type, row.width, row.color));
        EXPECT_EQ(row.type == 0 ? "path w4 0000FF; " : row.seen, inOneLine(single.take()));
    }
}

TEST(Draw, RailwayWithoutAManager) {
    Record paper;
    polylinePath(paper.dc, {{100, 100}, {130, 100}});
    EXPECT_EQ(0, DrawSpeciaPath(&paper.dc, 1, 10));
    EXPECT_EQ(1, DrawSpeciaPath(&paper.dc, 101, 10));
    EXPECT_EQ((Seen{"100,95 120,95 w1 000000", "99,105 119,105 w1 000000", "100,95 99,105 w1 000000",
                    "block 120,95 119,105 129,105 130,95 120,95 w1 000000 fill 000000"}),
              paper.take());
}

TEST(Draw, CurvesAreFlattenedFirst) {
    Record paper;
    paper.dc.BeginPath();
    paper.dc.Ellipse(0, 0, 400, 400);
    paper.dc.EndPath();
    COrvMainDrawManage manager("");
    EXPECT_EQ(1, manager.Draw(&paper.dc, 2, 1, 0));
    double length = 0;
    for (const std::string& stroke : paper.take()) {
        int x1, y1, x2, y2;
        ASSERT_EQ(4, sscanf(stroke.c_str(), "%d,%d %d,%d", &x1, &y1, &x2, &y2));
        // Chords of the flattened curve lie inside the circle, and points are truncated.
        EXPECT_NEAR(200, hypot(x1 - 200, y1 - 200), 3.5) << stroke;
        length += hypot(x2 - x1, y2 - y1);
    }
    EXPECT_NEAR(3.14159 * 400 / 2, length, 60) << "half of the circle is dots";
}

TEST(Draw, WithoutAPath) {
    Record paper;
    COrvMainDrawManage manager("");
    EXPECT_EQ(1, manager.Draw(&paper.dc, 1, 1, 0));
    COrvDrawManage set;
    EXPECT_EQ(1, set.Draw(&paper.dc, 0, 1, 0));
    COrvGPathData path;
    EXPECT_GT(1, path.GetPathData(&paper.dc));
    EXPECT_EQ(NULL, path.m_pPoints);
    for (const std::string& seen : paper.take())
        EXPECT_EQ("path", seen.substr(0, 4));
}

TEST(Draw, ThePathIsCopiedAnew) {
    Record paper;
    COrvGPathData path;
    polylinePath(paper.dc, {{1, 2}, {3, 4}, {5, 6}});
    EXPECT_EQ(3, path.GetPathData(&paper.dc));
    polylinePath(paper.dc, {{7, 8}, {9, 10}});
    EXPECT_EQ(2, path.GetPathData(&paper.dc));
    EXPECT_EQ(2, path.m_nCount);
    EXPECT_EQ(9, path.m_pPoints[1].x);
    EXPECT_EQ(PT_LINETO, path.m_pTypes[1]);
}

TEST(Draw, PixelsOfDashesAndGaps) {
    Paper picture(50, 9);
    polylinePath(picture.dc, {{0, 4}, {48, 4}});
    COrvMainDrawManage manager("");
    manager.Draw(&picture.dc, 1, 1, 0);
    EXPECT_EQ("##################.....##################.....##..", rowOf(picture, 4));
    polylinePath(picture.dc, {{0, 4}, {48, 4}});
    manager.Draw(&picture.dc, 1, 3, 0);
    for (int y = 0; y < 9; ++y) {
        SCOPED_TRACE(y);
        const bool covered = y >= 3 && y <= 5;
        // Flat caps: the gaps keep their width.
        EXPECT_EQ(covered ? std::string(18, '#') + "....." : std::string(23, '.'),
                  rowOf(picture, y).substr(0, 23));
    }
}

TEST(Draw, LeavesTheDeviceContextAndTheSystemAsTheyWere) {
    Paper picture(400, 400);
    CPen pen(PS_SOLID, 7, RGB(1, 2, 3));
    CBrush brush(RGB(4, 5, 6));
    CPen* oldPen = picture.dc.SelectObject(&pen);
    CBrush* oldBrush = picture.dc.SelectObject(&brush);
    const auto drawAll = [&] {
        for (int type : {0, 1, 2, 3, 4, 5, 101, 77}) {
            COrvDrawManage set;
            set.InitToGerApp();
            polylinePath(picture.dc, {{0, 0}, {399, 399}, {399, 0}});
            set.Draw(&picture.dc, type, 3, 0x0000FF);
            EXPECT_EQ(pen.m_hObject, ::GetCurrentObject(picture.dc, OBJ_PEN)) << type;
        }
        polylinePath(picture.dc, {{0, 0}, {399, 399}, {399, 0}});
        DrawSpeciaPath(&picture.dc, 101, 12);
        EXPECT_EQ(pen.m_hObject, ::GetCurrentObject(picture.dc, OBJ_PEN));
        EXPECT_EQ(brush.m_hObject, ::GetCurrentObject(picture.dc, OBJ_BRUSH));
    };
    drawAll();
    const int handles = liveGdiHandles();
    for (int i = 0; i < 5; ++i)
        drawAll();
    EXPECT_EQ(handles, liveGdiHandles());
    picture.dc.SelectObject(oldPen);
    picture.dc.SelectObject(oldBrush);
}

TEST(Draw, CallersBugsAreAssertedAndHarmless) {
    COrvMainDrawManage manager("");
    COrvDrawManage drawing;
    COrvGPathData path;
    COrvDrawDashDash dash;
    COrvDrawCurve bare, curve(&dash);
    CLineTypeSet set;
    const std::function<bool()> bugs[] = {
        [&] { return manager.Draw(NULL, 1, 1, 0) != 0; },
        [&] { return drawing.Draw(NULL, 0, 1, 0) != 0; },
        [&] { return DrawSpeciaPath(NULL, 101, 1) != 0; },
        [&] { return path.GetPathData(NULL) != 0; },
        [&] { return bare.MoveTo(1, 1) != 0; },
        [&] { return bare.LineTo(1, 1) != 0; },
        [&] { return bare.PolyDraw(NULL, NULL, 0) != 0; },
        [&] { return curve.PolyDraw(NULL, NULL, 2) != 0; },
        [&] { return set.GetElement(7) != NULL; },
        [&] { return LineTypeStruct(static_cast<const LineTypeStruct*>(NULL)).strName != ""; },
    };
    for (const auto& bug : bugs) {
        DebugEvents events;
        EXPECT_FALSE(bug()) << &bug - bugs;
        EXPECT_EQ(1, events.assertions()) << &bug - bugs;
    }
}

TEST(Traces, OfTheCatalogueAndTheArray) {
    DebugEvents events;
    CLineTypeSet set;
    EXPECT_STREQ("自定义线型 7 ", set.GetLineName(7));
    CDynamicPtrArray<LineTypeStruct>().Add(NULL);
    EXPECT_EQ((Seen{"在动态数组中没有nLineType的值 ",
                    "CDynamicPtrArray::Add(T*pElement) is failed. The pElement is NULL\n"}),
              events.traces());
}

TEST(Dump, TellsWhatAnObjectHolds) {
    COrvDrawDashDash dash;
    dash.m_nLen1 = 4711;
    EXPECT_NE(std::string::npos, dumped(dash).find("4711"));
    COrvDrawManage set;
    set.InitToGerApp();
    EXPECT_NE(std::string::npos, dumped(set).find("5 patterns"));
}

} // namespace
