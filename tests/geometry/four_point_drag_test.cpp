#include <algorithm>
#include <climits>
#include <limits>
#include <utility>

#include <gtest/gtest.h>

#include "four_point.h"

using namespace orv::test;

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

struct Drag {
    const char* name;
    int x, y; // as in Handle
    int (CFPDRect::*zoom)(const CPosition&);
    int (CFPDRect::*zoom2)(const CPosition&);
};

#define DRAG(x, y, name)                                                                                     \
    { #name, x, y, &CFPDRect::ZoomRect##name, &CFPDRect::Zoom2Rect##name }
const Drag drags[] = {DRAG(0, 0, LeftTop),    DRAG(1, 0, TopMid),      DRAG(2, 0, RightTop),
                      DRAG(2, 1, RightMid),   DRAG(2, 2, RightBottom), DRAG(1, 2, BottomMid),
                      DRAG(0, 2, LeftBottom), DRAG(0, 1, LeftMid)};

// Where the mouse goes, from the handle, along and down the frame; the last one crosses the opposite corner.
const CPosition ways[] = {{3, 2}, {-4, 5}, {-90, -80}, {200, 150}};

void expectDragged(const Drag& drag, const CFPDRect& before, const CPosition& way, bool bothEnds) {
    const double c = cos(before.angle), s = sin(before.angle);
    const CPosition handle = expectedAt(before, drag.x, drag.y);
    const CPosition mouse(handle.x + way.x * c + way.y * s, handle.y - way.x * s + way.y * c);
    // A middle moves across its side only.
    const CPosition own(drag.x == 1 ? 0 : way.x, drag.y == 1 ? 0 : way.y);
    const CPosition target(handle.x + own.x * c + own.y * s, handle.y - own.x * s + own.y * c);
    const CPosition opposite = expectedAt(before, 2 - drag.x, 2 - drag.y);
    CFPDRect r(before);
    EXPECT_TRUE((r.*(bothEnds ? drag.zoom2 : drag.zoom))(mouse));
    EXPECT_LT(apart(expectedAt(r, drag.x, drag.y), target), 1e-9) << drag.name << " of " << before;
    const CPosition stays = bothEnds ? expectedAt(before, 1, 1) : opposite;
    EXPECT_LT(apart(bothEnds ? expectedAt(r, 1, 1) : expectedAt(r, 2 - drag.x, 2 - drag.y), stays), 1e-9)
        << drag.name << " of " << before;
    EXPECT_EQ(r.angle, before.angle);
    EXPECT_TRUE(drag.x != 1 || fabs(r.GetWidth() - before.GetWidth()) < 1e-9) << drag.name;
    EXPECT_TRUE(drag.y != 1 || fabs(r.GetHeight() - before.GetHeight()) < 1e-9) << drag.name;
}

TEST(FourPointDrag, TheHandleFollowsTheMouseAndTheOtherEndStays) {
    for (double angle : angles)
        for (const CFPDRect& r : {CFPDRect(100, 50, 180, 110, angle), CFPDRect(7, 7, 7, 7, angle)})
            for (const Drag& drag : drags)
                for (const CPosition& way : ways) {
                    expectDragged(drag, r, way, false);
                    expectDragged(drag, r, way, true);
                }
}

template <class Frame>
class FourPointMoves : public testing::Test {};
using Frames = testing::Types<CFPDRect, CFPRect>;
TYPED_TEST_SUITE(FourPointMoves, Frames, );

// Every corner of the shape must have gone where the plane went; which name it bears there is told apart.
template <class Frame, class Map>
void expectMapped(const Frame& before, const Frame& after, Map map) {
    const int corners[][2] = {{0, 0}, {0, 2}, {2, 2}, {2, 0}};
    for (const auto& from : corners) {
        double nearest = 1e9;
        for (const auto& to : corners)
            nearest = std::min(
                nearest, apart(map(expectedAt(before, from[0], from[1])), expectedAt(after, to[0], to[1])));
        EXPECT_LT(nearest, 1.5 * Types<Frame>::rounding) << before << " became " << after;
    }
    EXPECT_NEAR(after.GetWidth(), before.GetWidth(), 1e-9);
    EXPECT_NEAR(after.GetHeight(), before.GetHeight(), 1e-9);
}

TYPED_TEST(FourPointMoves, TurnedAboutAPoint) {
    using Point = typename Types<TypeParam>::Point;
    for (double angle : angles)
        for (double turn : {0.3, -pi / 2, 7.0}) {
            const TypeParam before(100, 50, 180, 110, angle);
            TypeParam r(before);
            r.Rotate(Point(30, 40), turn);
            expectMapped(before, r, [&](const CPosition& p) { return p.Rotate(CPosition(30, 40), turn); });
            EXPECT_DOUBLE_EQ(r.GetAngle(), angle + turn); // not brought back into a turn
            EXPECT_LT(apart(r.GetSlopeLeftTop(), CPosition(100, 50).Rotate(CPosition(30, 40), turn)),
                      Types<TypeParam>::rounding);
        }
}

TYPED_TEST(FourPointMoves, MirroredInALine) {
    using Point = typename Types<TypeParam>::Point;
    for (double angle : angles)
        for (const Point& a : {Point(0, 0), Point(300, -20)})
            for (const Point& way : {Point(0, 9), Point(7, 0), Point(10, 10), Point(-3, 8), Point(-5, -4)}) {
                const Point b(a.x + way.x, a.y + way.y);
                const TypeParam before(100, 50, 180, 110, angle);
                TypeParam r(before);
                r.Mirror(a, b);
                expectMapped(before, r,
                             [&](const CPosition& p) { return p.Mirror(CPosition(a), CPosition(b)); });
                EXPECT_LE(fabs(r.GetAngle() - angle), pi / 2 + 1e-5);
                r.Mirror(a, b);
                EXPECT_LT(apart(r.GetSlopeLeftTop(), before.GetSlopeLeftTop()),
                          1.5 * Types<TypeParam>::rounding)
                    << before;
                EXPECT_NEAR(r.GetAngle(), angle, 1e-9);
            }
    TypeParam r(0, 0, 20, 10, 0);
    r.Mirror(Point(50, 0), Point(50, 1));
    EXPECT_EQ(sides(r), Ltrb(80, 0, 100, 10));
    EXPECT_EQ(r.GetAngle(), 0);
    r.Mirror(Point(0, 30), Point(5, 30));
    EXPECT_EQ(sides(r), Ltrb(80, 50, 100, 60));
    EXPECT_EQ(r.GetAngle(), 0);
    r.Mirror(Point(3, 3), Point(3, 3));
    EXPECT_EQ(sides(r), Ltrb(80, 50, 100, 60));
}

TYPED_TEST(FourPointMoves, MovedAndScaled) {
    using Point = typename Types<TypeParam>::Point;
    TypeParam r(10, 20, 30, 60, 1);
    r.Move(Point(5, 5), Point(2, 9));
    EXPECT_EQ(sides(r), Ltrb(7, 24, 27, 64));
    for (double angle : angles)
        for (double scale : {2.0, 0.5, 1.0, -1.5, 0.0}) {
            const TypeParam before(101, 50, 181, 110, angle);
            TypeParam zoomed(before);
            zoomed.Zoom(scale);
            EXPECT_LT(apart(zoomed.GetSlopeCentre(), before.GetSlopeCentre()), 1e-9) << before;
            EXPECT_NEAR(zoomed.GetWidth(), 80 * scale, 1e-9);
            EXPECT_NEAR(zoomed.GetHeight(), 60 * scale, 1e-9);
            EXPECT_EQ(zoomed.GetAngle(), angle);
        }
    CFPRect cut(-20, 0, -11, -9, 0);
    cut.Zoom(0.5);
    EXPECT_EQ(cut.GetWidth(), 4);
    EXPECT_EQ(cut.GetHeight(), -4);
}

TEST(FourPointDrag, ScaledAboutAPoint) {
    CFPDRect r(10, 20, 30, 60, 1);
    r.Zoom(CPosition(10, 0), 3);
    EXPECT_EQ(sides(r), Ltrb(10, 60, 70, 180));
    r.SetRect(-10, -5, 10, 5, 0);
    EXPECT_TRUE(r.ZoomCentre(CPosition(0, 7), CPosition(14, 0)));
    EXPECT_EQ(sides(r), Ltrb(-20, -10, 20, 10));
    for (const auto& [from, to] :
         {std::pair(CPosition(0, 0), CPosition(5, 5)), {CPosition(5, 5), CPosition(0, 0)}}) {
        EXPECT_FALSE(r.ZoomCentre(from, to));
        EXPECT_EQ(sides(r), Ltrb(-20, -10, 20, 10));
    }
}

TEST(FourPointDrag, ParallelFrames) {
    const struct {
        CPosition p1, p2, side;
        int answer;
        double left, top, width, height; // the upright frame is turned by a quarter about (0, 0)
    } rows[] = {
        {{0, 0}, {0, 2}, {50, 50}, TRUE, -2, 2, 24, 14}, // around: the anchor goes left and down
        {{9, 9}, {9, 7}, {5, -10}, TRUE, 2, -2, 16, 6},  // within
        {{0, 0}, {3, 4}, {5, -10}, FALSE, 0, 0, 20, 10}, // no height left
        {{0, 0}, {0, 0}, {5, -10}, FALSE, 0, 0, 20, 10}, // no distance
        {{0, 0}, {0, 2}, {10, -5}, FALSE, 0, 0, 20, 10}, // on the border
        {{0, 0}, {0, 2}, {nan, -5}, FALSE, 0, 0, 20, 10},
    };
    for (const auto& row : rows) {
        CFPDRect r(0, 0, 20, 10, pi / 2);
        EXPECT_EQ(r.Offset(row.p1, row.p2, row.side), row.answer);
        EXPECT_LT(apart(r.GetLeftTop(), CPosition(row.left, row.top)), 1e-9) << r;
        EXPECT_NEAR(r.GetWidth(), row.width, 1e-9);
        EXPECT_NEAR(r.GetHeight(), row.height, 1e-9);
    }
    CFPDRect inside(20, 10, 0, 0, 0); // negative sizes grow outwards too
    EXPECT_TRUE(inside.Offset(CPosition(0, 0), CPosition(1, 0), CPosition(99, 99)));
    EXPECT_EQ(sides(inside), Ltrb(21, 11, -1, -1));
}

// Nothing may be undefined (the native build traps it), and no drag may spoil the frame.
TEST(FourPointDrag, NumbersThatAreNone) {
    for (double bad : {nan, infinity}) {
        CFPDRect r(0, 0, 20, 10, 0.5);
        for (const Drag& drag : drags)
            EXPECT_FALSE((r.*drag.zoom)(CPosition(bad, 1)) || (r.*drag.zoom2)(CPosition(1, bad)));
        r.Rotate(CPosition(1, 1), bad);
        r.Rotate(CPosition(bad, 1), 1);
        r.Mirror(CPosition(bad, 1), CPosition(1, 1));
        r.Move(CPosition(1, 1), CPosition(1, bad));
        r.Zoom(bad);
        r.Zoom(CPosition(bad, 1), 2);
        EXPECT_FALSE(r.ZoomCentre(CPosition(1, 1), CPosition(bad, 1)));
        EXPECT_EQ(sides(r), Ltrb(0, 0, 20, 10));
        EXPECT_EQ(r.angle, 0.5);
        r.SetAngle(bad); // stands upright
        EXPECT_EQ(Xy(r.GetSlopeRightBottom()), Xy(20, 10));
        EXPECT_TRUE(r.ZoomRectRightBottom(CPosition(30, 40)));
        r.Rotate(CPosition(0, 0), 0.25);
        EXPECT_EQ(r.GetAngle(), 0.25);
        CFPDRect spoilt(0, 0, bad, 10, 0);
        EXPECT_FALSE(spoilt.ZoomRectLeftTop(CPosition(1, 1)));
        EXPECT_FALSE(r.PtOnRect(CPosition(bad, 1), infinity));
        EXPECT_FALSE(spoilt.RectInRect(CDouRect(-99, -99, 99, 99), 0, 0));
    }
}

TEST(FourPointDrag, WholeUnitsStopAtTheEndsOfTheirRange) {
    const LONG ends[] = {INT_MIN, INT_MIN + 1, -1, 0, 1, INT_MAX};
    for (LONG l : ends)
        for (LONG r : ends)
            for (double angle : {0.0, 1.0, 4.0, nan, infinity, 1e300})
                for (const auto& h : handles<CFPRect>) {
                    CFPRect frame(l, r, r, l, angle);
                    (frame.*h.setSlope)((frame.*h.slope)());
                    (frame.*h.setSlope)(CPoint(r, l));
                    frame.Rotate(CPoint(l, l), angle);
                    frame.Mirror(CPoint(l, r), CPoint(r, r));
                    frame.Zoom(1e300);
                    frame.Move(CPoint(l, r), CPoint(r, l));
                    frame.SetLeftTop(l, r);
                    frame.SetLeftMid(l, r);
                    frame.SetCentreWidth(l);
                    CRect box;
                    frame.GetBox(box);
                    EXPECT_TRUE(box.left <= box.right && box.top <= box.bottom);
                    frame.PtInRect(CPoint(l, r), l);
                    frame.PtOnRect(CPoint(l, r), r);
                }
    CFPRect wide(-2000000000, 0, 2000000000, 0, 0);
    EXPECT_EQ(wide.GetWidth(), INT_MAX);
    EXPECT_EQ(wide.GetPerimeter(), 8e9);
    wide.Move(CPoint(0, 0), CPoint(1, 0));
    EXPECT_EQ(sides(wide), Ltrb(-1999999999, 0, 2000000001, 0));
    wide.SetWidth(INT_MAX);
    EXPECT_EQ(wide.right, 147483648);
    CFPRect full(0, 0, INT_MAX, INT_MAX, 0);
    full.Zoom(-4);
    EXPECT_EQ(full.GetWidth(), INT_MIN);
}

} // namespace
