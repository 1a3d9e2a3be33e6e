// Walking whole paths.

#include <afx.h>

#include <orvfc/linestyle/OrvGraphic.h>

#include <gtest/gtest.h>

#include "sheet.h"

using orv::test::Seen;
using orv::test::Sheet;

constexpr BYTE kMove = PT_MOVETO;
constexpr BYTE kLine = PT_LINETO;
constexpr BYTE kClose = BYTE(PT_LINETO) | BYTE(PT_CLOSEFIGURE);

const struct {
    const char* name;
    std::vector<POINT> points;
    std::vector<BYTE> types;
    Seen seen; // dashes of 18 with gaps of 5
} pathRows[] = {
    {"one line", {{5, 5}, {15, 5}}, {kMove, kLine}, {"5,5 15,5 w1 000000"}},
    {"closed at the last point",
     {{10, 10}, {16, 10}, {16, 14}},
     {kMove, kLine, kClose},
     {"10,10 16,10 w1 000000", "16,10 16,14 w1 000000", "16,14 10,10 w1 000000"}},
    {"closed without ever moving: back to the zero point",
     {{6, 0}},
     {kClose},
     {"0,0 6,0 w1 000000", "6,0 0,0 w1 000000"}},
    {"a later figure starts where the one before ended",
     {{0, 0}, {5, 0}, {50, 50}, {55, 50}},
     {kMove, kLine, kMove, kLine},
     {"0,0 5,0 w1 000000", "5,0 55,50 w1 000000"}},
    {"unflattened curves are skipped",
     {{0, 0}, {1, 9}, {2, 9}, {3, 0}, {4, 0}},
     {kMove, PT_BEZIERTO, PT_BEZIERTO, PT_BEZIERTO, kLine},
     {"0,0 4,0 w1 000000"}},
    {"a lone move", {{5, 5}}, {kMove}, {}},
    {"nothing", {}, {}, {}},
};

TEST(Curve, WalksPaths) {
    for (const auto& row : pathRows) {
        SCOPED_TRACE(row.name);
        Sheet sheet;
        COrvDrawDashDash dash(sheet.dc());
        COrvDrawCurve curve(&dash);
        dash.m_nPhase = 0;
        EXPECT_EQ(1, curve.PolyDraw(row.points.data(), row.types.data(), int(row.points.size())));
        EXPECT_EQ(row.seen, sheet.take());
        EXPECT_EQ(1, dash.m_nPhase) << "finished";
    }
}

TEST(Curve, FinishStartsOverAndAFailedWalkDoesNotFinish) {
    const POINT points[] = {{1, 1}, {40, 1}};
    const BYTE types[] = {kMove, kLine};
    COrvDrawDashDash dash;
    COrvDrawCurve curve(&dash);
    curve.SetDrawName("name");
    dash.m_nLen1 = -1;
    EXPECT_EQ(0, curve.PolyDraw(points, types, 2));
    EXPECT_STREQ("name", curve.GetDrawName());
    EXPECT_EQ(1, curve.m_nIndex);
    EXPECT_EQ(19, curve.m_dCurX);
    EXPECT_EQ(1, curve.FinishDraw());
    EXPECT_STREQ("", curve.GetDrawName());
    EXPECT_EQ(0, curve.m_nIndex + curve.m_dCurX + curve.m_dCurY);
    EXPECT_EQ(5, dash.m_nLen1);
    EXPECT_EQ(&dash, curve.m_pDash);
    EXPECT_EQ(1, COrvDrawCurve().FinishDraw()) << "needs no pattern";
}

TEST(PathData, CopiesAreDeep) {
    COrvGPathData path;
    EXPECT_EQ(0, path.m_nCount);
    path.m_nCount = 2;
    path.m_pPoints = new POINT[2]{{1, 2}, {3, 4}};
    path.m_pTypes = new BYTE[2]{kMove, kLine};
    COrvGPathData copy(path);
    path.m_pPoints[1].x = 9;
    EXPECT_EQ(3, copy.m_pPoints[1].x);
    EXPECT_EQ(kLine, copy.m_pTypes[1]);
    copy = path;
    EXPECT_EQ(9, copy.m_pPoints[1].x);
    copy = *&copy;
    EXPECT_EQ(9, copy.m_pPoints[1].x);
    copy = COrvGPathData();
    EXPECT_EQ(NULL, copy.m_pPoints);
    EXPECT_EQ(0, copy.m_nCount);
}
