// The six patterns: what is seen, what is kept from piece to piece, what a line property reaches.

#include <afx.h>

#include <orvfc/linestyle/LineProperBar.h>

#include <gtest/gtest.h>

#include "sheet.h"

#include <limits>

using orv::test::Seen;
using orv::test::Sheet;

namespace {

TEST(Pattern, OnAndOffAlongALine) {
    struct {
        int type, to;
        std::vector<int> ends; // of the visible strokes
    } const rows[] = {
        {1, 97, {0, 18, 23, 41, 46, 64, 69, 87, 92, 97}},
        {2, 37, {0, 5, 10, 15, 20, 25, 30, 35}},
        {3, 97, {0, 17, 22, 27, 32, 49, 54, 59, 64, 81, 86, 91, 96, 97}},
        {4, 97, {0, 17, 23, 28, 34, 39, 45, 62, 68, 73, 79, 84, 90, 97}},
        {1, 23, {0, 18, 23, 23}}, // ends with a piece: the next one is there without length
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.type);
        Sheet sheet;
        COrvDrawManage set;
        set.InitToGerApp();
        COrvDrawBasicDash* dash = set.GetDashFromType(row.type);
        dash->m_hDC = sheet.dc();
        EXPECT_EQ(row.type, dash->GetDashType());
        EXPECT_EQ(1, dash->GetDrawType());
        COrvDrawCurve curve(dash);
        EXPECT_EQ(1, curve.MoveTo(0, 7));
        EXPECT_EQ(1, curve.LineTo(row.to, 7));
        Seen expected;
        for (size_t i = 0; i < row.ends.size(); i += 2)
            expected.push_back(std::to_string(row.ends[i]) + ",7 " + std::to_string(row.ends[i + 1]) +
                               ",7 w1 000000");
        EXPECT_EQ(expected, sheet.take());
    }
}

TEST(Pattern, LessThanAHundredthCountsAsDone) {
    COrvDrawDashDash dash;
    dash.DrawDash(0, 0, 17.989, 0, 0);
    EXPECT_NEAR(0.011, dash.m_dRemain, 1e-9);
    dash.DrawDash(0, 0, 0.002, 0, 0);
    EXPECT_EQ(5, dash.m_dRemain);
}

TEST(Pattern, NegativePieceNumbers) {
    Sheet sheet;
    COrvDrawDashDotDot dashDot(sheet.dc());
    EXPECT_EQ(1, dashDot.DrawDash(0, 0, 30, 0, -2));
    EXPECT_EQ(-2, dashDot.m_nPhase);
    EXPECT_EQ(-13, dashDot.m_dRemain);
    COrvDrawDashDash dash(sheet.dc());
    dash.DrawDash(0, 0, 6, 0, -2); // two phases alternate all the same
    EXPECT_EQ(0, dash.m_nPhase);
    dash.DrawDash(6, 0, 9, 0, -1);
    EXPECT_EQ(1, dash.m_nPhase);
    EXPECT_EQ(Seen{"0,0 6,0 w1 000000"}, sheet.take());
}

template <class Dash>
std::string linePropertyOf(const Dash& dash) {
    int first, second;
    if constexpr (requires { dash.m_nGauge; }) {
        first = second = dash.m_nGauge;
    } else {
        first = dash.m_nWidth0;
        second = dash.m_nWidth1;
    }
    char text[100];
    snprintf(text, sizeof(text), "%d,%d %06X,%06X", first, second, unsigned(dash.m_crColor0),
             unsigned(dash.m_crColor1));
    return text;
}

template <class Dash>
void expectLineProperty(const char* set, const char* restored) {
    Dash dash;
    EXPECT_EQ(restored, linePropertyOf(dash));
    EXPECT_EQ(1, dash.SetLineProperty(4, 0x102030));
    EXPECT_EQ(set, linePropertyOf(dash));
    EXPECT_EQ(4, dash.m_nWidth);
    EXPECT_EQ(0x102030u, dash.m_crColor);
    dash.DrawDash(0, 0, 3, 0, 4);
    dash.m_nDrawType = 0;
    EXPECT_EQ(1, dash.FinishDraw());
    EXPECT_EQ(restored, linePropertyOf(dash));
    EXPECT_EQ(1, dash.m_nDrawType);
    EXPECT_EQ(1, dash.m_bMoveToNew);
    EXPECT_EQ(1, dash.m_nPhase);
    EXPECT_EQ(dash.m_nLen0, dash.m_dRemain);
    EXPECT_EQ(4, dash.m_nWidth) << "the base keeps its own";
    dash.SetLineProperty(4, 0x102030);
    EXPECT_EQ(1, dash.SetLinePropertyDefault());
    EXPECT_EQ(restored, linePropertyOf(dash));
}

TEST(Pattern, LinePropertiesLastForOneDrawing) {
    expectLineProperty<COrvDrawDashDash>("4,4 102030,EFDFCF", "1,1 000000,FFFFFF");
    expectLineProperty<COrvDrawDashDot>("4,4 102030,102030", "1,1 000000,FFFFFF");
    expectLineProperty<COrvDrawDashDotDot>("4,4 102030,FFFFFF", "1,1 000000,FFFFFF");
    expectLineProperty<COrvDrawDashDotDotTwice>("4,4 102030,EFDFCF", "1,1 000000,FFFFFF");
    expectLineProperty<COrvDrawDashRailway>("4,4 000000,FFFFFF", "10,10 000000,FFFFFF");
    COrvDrawDashDotDot three;
    three.SetLineProperty(4, 0x102030);
    EXPECT_EQ(4, three.m_nWidth2);
    EXPECT_EQ(0x102030u, three.m_crColor2);

    COrvDrawDashWeaver weaver;
    weaver.SetLineProperty(4, 0x102030);
    weaver.m_nAmp1 = 9;
    EXPECT_EQ(1, weaver.FinishDraw());
    EXPECT_EQ(4, weaver.m_nWidth);
    EXPECT_EQ(9, weaver.m_nAmp1) << "the zig-zag restores nothing";
}

TEST(Pattern, OnlyTheDashClearsItsPointsWhenFinished) {
    using TwoKinds = COrvDrawOnOffDash<OrvTwoKinds>;
    COrvDrawDashDash dash;
    COrvDrawDashDot dot;
    for (TwoKinds* pattern : {static_cast<TwoKinds*>(&dash), static_cast<TwoKinds*>(&dot)}) {
        pattern->DrawDash(0, 0, 3, 4, 0);
        pattern->m_ptLastC = {5, 6};
        pattern->FinishDraw();
    }
    EXPECT_EQ(0, dash.m_ptLastA.x + dash.m_ptLastB.y + dash.m_ptLastC.x);
    EXPECT_EQ(3 + 4 + 5, dot.m_ptLastA.x + dot.m_ptLastB.y + dot.m_ptLastC.x);
}

TEST(Pattern, ANewFigureAfterADashStrokesToTheZeroPoint) {
    struct {
        int type, pieces; // drawn before the new figure
        Seen expected;
    } const rows[] = {
        {1, 0, {}}, {1, 1, {"9,8 0,0 w3 0000FF"}}, {1, 2, {}}, {3, 1, {"9,8 0,0 w3 0000FF"}}, {3, 3, {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.type << " after " << row.pieces);
        Sheet sheet;
        COrvDrawManage set;
        set.InitToGerApp();
        COrvDrawBasicDash* dash = set.GetDashFromType(row.type, 3, 0x0000FF);
        for (int i = 0; i < row.pieces; ++i)
            dash->DrawDash(0, 0, 9, 8, i);
        dash->m_hDC = sheet.dc();
        dash->SetMoveToNew(0);
        dash->SetMoveToNew(1);
        EXPECT_EQ(1, dash->IsMoveToNew());
        EXPECT_EQ(row.expected, sheet.take());
    }
}

TEST(Pattern, TheClosingStrokeCanBeDrawnAgain) {
    Sheet sheet;
    COrvDrawDashDotDot dash;
    EXPECT_EQ(0, dash.ResetDrawEnvir()) << "nowhere to draw";
    dash.m_hDC = sheet.dc();
    dash.m_ptLastB = {1, 2};
    dash.m_ptLastC = {3, 4};
    EXPECT_EQ(1, dash.ResetDrawEnvir()) << "whatever the phase";
    COrvDrawDashRailway railway(sheet.dc());
    railway.m_ptLastL = {5, 6};
    railway.m_ptLastR = {7, 8};
    EXPECT_EQ(1, railway.ResetDrawEnvir());
    COrvDrawDashWeaver weaver(sheet.dc());
    EXPECT_EQ(0, weaver.ResetDrawEnvir());
    COrvDrawBasicDash base(sheet.dc());
    EXPECT_EQ(0, base.ResetDrawEnvir());
    EXPECT_EQ((Seen{"1,2 3,4 w1 000000", "5,6 7,8 w1 000000"}), sheet.take());
}

// The quarter turn of the track is a little short, which truncation shows: right corners lie one unit back.
TEST(Railway, HollowAndFilledSections) {
    Sheet sheet;
    COrvDrawDashRailway railway(sheet.dc());
    COrvDrawCurve curve(&railway);
    curve.MoveTo(100, 100);
    EXPECT_EQ(1, curve.LineTo(150, 100));
    curve.MoveTo(300, 300); // closes the hollow section in hand
    EXPECT_EQ((Seen{"100,95 120,95 w1 000000", "99,105 119,105 w1 000000", "100,95 99,105 w1 000000",
                    "block 120,95 119,105 139,105 140,95 120,95 w1 000000 fill 000000",
                    "140,95 150,95 w1 000000", "139,105 149,105 w1 000000", "150,95 149,105 w1 000000"}),
              sheet.take());
}

TEST(Railway, TheNextSectionStartsFromTheLastCorners) {
    struct {
        const char* name;
        POINT from, by, to;
        const char* expected;
    } const rows[] = {
        {"left turn", {100, 100}, {120, 100}, {120, 80}, "block 120,95 119,105 125,80 115,79 120,95"},
        {"back", {100, 100}, {120, 100}, {100, 100}, "block 120,95 119,105 99,105 100,95 120,95"},
        {"no length", {100, 100}, {100, 80}, {100, 80}, "block 95,79 105,80 105,80 95,79 95,79"},
    };
    for (const auto& row : rows) {
        Sheet sheet;
        COrvDrawDashRailway railway;
        railway.DrawDash(row.from.x, row.from.y, row.by.x, row.by.y, 0);
        EXPECT_EQ(20, railway.m_dRemain);
        railway.m_hDC = sheet.dc();
        railway.DrawDash(row.by.x, row.by.y, row.to.x, row.to.y, 1);
        EXPECT_EQ(Seen{row.expected + std::string(" w1 000000 fill 000000")}, sheet.take()) << row.name;
    }
}

TEST(Railway, SectionLengths) {
    COrvDrawDashRailway railway;
    railway.m_nLen0 = 7;
    railway.m_nLen1 = 9;
    railway.DrawDash(0, 0, 20, 0, 0);
    EXPECT_EQ(9, railway.GetLength(1)) << "filled";
    railway.DrawDash(20, 0, 29, 0, 1);
    EXPECT_EQ(7, railway.GetLength(2)) << "hollow";
}

TEST(Railway, WaitsForADirectionBeforeItStarts) {
    Sheet sheet;
    COrvDrawDashRailway railway(sheet.dc());
    EXPECT_EQ(1, railway.DrawDash(100, 100, 100, 100, 0));
    EXPECT_EQ(1, railway.IsMoveToNew());
    railway.DrawDash(100, 100, 100, 90, 0); // upwards: left is west
    EXPECT_EQ((Seen{"95,99 95,89 w1 000000", "105,100 105,90 w1 000000", "95,99 105,100 w1 000000"}),
              sheet.take());
}

TEST(Weaver, TentsByTurnsOnEitherSide) {
    Sheet sheet;
    COrvDrawDashWeaver weaver(sheet.dc());
    weaver.SetLineProperty(2, 0x00FF00);
    weaver.m_nAmp1 = 4;
    weaver.m_nAmp2 = 2;
    EXPECT_EQ(2, weaver.GetLength(0));
    EXPECT_EQ(4, weaver.GetLength(1));
    EXPECT_EQ(0, weaver.DrawDash(0, 0, 10, 0, 0));
    EXPECT_EQ(0, weaver.DrawDash(0, 0, 10, 0, 1));
    EXPECT_EQ(5, weaver.m_dRemain);
    EXPECT_EQ((Seen{"0,0 5,-4 10,0 w2 00FF00", "0,0 5,2 10,0 w2 00FF00"}), sheet.take());
}

TEST(Weaver, OneTentPerSegment) {
    Sheet sheet;
    COrvDrawDashWeaver weaver(sheet.dc());
    COrvDrawCurve curve(&weaver);
    curve.MoveTo(0, 0);
    EXPECT_EQ(0, curve.LineTo(30, 0));
    EXPECT_EQ(0, curve.LineTo(30, 0));
    EXPECT_EQ(0, curve.m_nIndex);
    EXPECT_EQ((Seen{"0,0 1,-3 3,0 w1 000000", "3,0 4,-3 6,0 w1 000000"}), sheet.take());
}

TEST(Pattern, HarmlessWithAnyNumbers) {
    const double tooLong = 2147483648.0; // a walk of minutes
    const double numbers[] = {0,
                              -1e300,
                              1e300,
                              tooLong,
                              std::numeric_limits<double>::quiet_NaN(),
                              std::numeric_limits<double>::infinity()};
    COrvDrawDashDash dash;
    COrvDrawDashDotDotTwice twice;
    COrvDrawDashRailway railway;
    COrvDrawDashWeaver weaver;
    railway.m_nGauge = INT_MIN;
    for (COrvDrawBasicDash* pattern : {(COrvDrawBasicDash*)&dash, (COrvDrawBasicDash*)&twice,
                                       (COrvDrawBasicDash*)&railway, (COrvDrawBasicDash*)&weaver}) {
        for (double a : numbers) {
            for (double b : numbers) {
                pattern->DrawDash(a, b, b, a, 0);
                pattern->DrawDash(b, b, a, a, INT_MIN);
                COrvDrawCurve curve(pattern);
                curve.MoveTo(0, 0);
                if (a != tooLong && b != tooLong)
                    curve.LineTo(a, b);
                pattern->FinishDraw();
            }
        }
    }
}

TEST(Pattern, TheBaseDrawsNoLine) {
    COrvDrawBasicDash base;
    EXPECT_STREQ("空类型", base.GetType());
    EXPECT_EQ(5, base.GetDashType());
    EXPECT_EQ(10.0, base.GetLength(3));
    EXPECT_EQ(0, base.FinishDraw());
    COrvDrawCurve curve(&base);
    EXPECT_EQ(1, curve.LineTo(9.9, 0));
    EXPECT_EQ(0, curve.m_dCurX) << "the rest of a piece is not walked";
    EXPECT_EQ(0, curve.LineTo(10, 0));
    base.SetLineProperty(7, 0x123456);
    EXPECT_EQ(1, base.SetLinePropertyDefault());
    EXPECT_EQ(1, base.m_nWidth);
    EXPECT_EQ(0u, base.m_crColor);
    EXPECT_STREQ("空类型", COrvDrawDashWeaver().GetType());
}

} // namespace
