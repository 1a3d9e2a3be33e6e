#include <orvfc/geometry/planentity.h>

#include <climits>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include <orvfc/geometry/Truncate.h>

#include "printing.h"

namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double pi = 3.14159265358979323846;

TEST(Position, TurningKeepsThePointItself) {
    const CPosition p(12, 20), c(10, 20);
    const CPosition up = p.Rotate(c, pi / 2);
    EXPECT_DOUBLE_EQ(up.x, 10);
    EXPECT_DOUBLE_EQ(up.y, 18); // a positive angle moves towards smaller y
    EXPECT_EQ(Xy(p), Xy(12, 20));
    EXPECT_DOUBLE_EQ(up.GetAngle(c), pi / 2); // from the centre to the point
    EXPECT_DOUBLE_EQ(c.GetAngle(up), 3 * pi / 2);
    EXPECT_EQ(Xy(p.Mirror(CPosition(0, 0), CPosition(1, 1))), Xy(20, 12));
    EXPECT_EQ(Xy(p.Offset(1, -1)), Xy(13, 19));
    EXPECT_EQ(Xy(p.Offset(c)), Xy(22, 40));
    EXPECT_EQ(Xy(p.GetMidPos(c)), Xy(11, 20));
}

TEST(Position, ZoomMovesAlongTheRayFromTheCentre) {
    const CPosition c(10, 20), p(13, 24);
    const struct {
        double scale, x, y;
    } rows[] = {{2, 16, 28}, {0.5, 11.5, 22}, {0, 10, 20}, {-1, 7, 16}, {1, 13, 24}};
    for (const auto& r : rows) {
        const CPosition z = p.Zoom(c, r.scale);
        EXPECT_NEAR(z.x, r.x, 1e-12) << r.scale;
        EXPECT_NEAR(z.y, r.y, 1e-12) << r.scale;
    }
    EXPECT_EQ(Xy(c.Zoom(c, 5)), Xy(c));
}

TEST(Position, TolerancesAreStrict) {
    const CPosition p(0, 3);
    EXPECT_FALSE(p.IsSame(CPosition(0, 0), 3));
    EXPECT_TRUE(p.IsSame(CPosition(0, 0), 3.001));
    EXPECT_FALSE(p.IsOnLine(-5, 0, 5, 0, 3));
    EXPECT_TRUE(p.IsOnLine(-5, 0, 5, 0, 3.001));
    EXPECT_FALSE(p.IsOnLine(5, 0, 9, 0, 3.001)); // the segment, not its line
}

TEST(Position, InAndOnABox) {
    const DOURECT box{0, 0, 10, 20};
    const struct {
        double x, y;
        DOURECT box;
        double tol;
        bool inside, onBorder;
    } rows[] = {
        {5, 5, box, 0, true, false},
        {0, 5, box, 0, false, false}, // the border is outside and a tolerance of 0 meets nothing
        {10, 5, box, 0, false, false},
        {5, 0, box, 0, false, false},
        {5, 20, box, 0, false, false},
        {0, 5, box, 0.1, true, true},
        {10, 5, box, 0.1, true, true},
        {5, 0, box, 0.1, true, true},
        {5, 20, box, 0.1, true, true},
        {-0.1, 5, box, 0.1, false, false}, // exactly the tolerance away
        {-0.05, 5, box, 0.1, true, true},
        {10.05, 20.05, box, 0.1, true, true},
        {10.09, 20.09, box, 0.1, true, false}, // off the corner: farther than the tolerance
        {5, 5, box, -6, false, false},
        {5, 5, {10, 0, 0, 20}, 0, false, false}, // sides exchanged
        {5, 5, {0, 20, 10, 0}, 0, false, false},
        {5, 0.05, {0, 20, 10, 0}, 0.1, false, true}, // its edges are still edges
        {nan, 5, box, 0.1, false, false},
    };
    for (const auto& r : rows) {
        EXPECT_EQ(CPosition(r.x, r.y).IsInBox(r.box, r.tol), r.inside)
            << r.x << "," << r.y << " tol " << r.tol;
        EXPECT_EQ(CPosition(r.x, r.y).IsOnBox(r.box, r.tol), r.onBorder)
            << r.x << "," << r.y << " tol " << r.tol;
        EXPECT_EQ(CDouRect(r.box).PtInRect(CPosition(r.x, r.y), r.tol), r.inside);
    }
}

TEST(Position, OnAnArc) {
    const CPosition centre(10, 20), right(15, 20), above(10, 15), farAbove(10, -100);
    const struct {
        double x, y, tol;
        bool upper, rest; // on the quarter right to above; on the other three
    } rows[] = {
        {13, 16, 0.01, true, false},                               // up on the right
        {13, 24, 0.01, false, true},                               // down on the right
        {5, 20, 0.01, false, true},    {15, 20, 0.01, true, true}, // the ends belong to both
        {10, 15, 0.01, true, true},    {16, 20, 1, true, true}, // exactly the tolerance off the circle passes
        {16, 20, 0.999, false, false}, {14, 20, 1, true, true},    {10, 20, 0.01, false, false}, // the centre
    };
    for (const auto& r : rows) {
        const CPosition p(r.x, r.y);
        EXPECT_EQ(p.IsOnArc(centre, right, above, r.tol), r.upper) << r.x << "," << r.y << " tol " << r.tol;
        EXPECT_EQ(p.IsOnArc(centre, above, right, r.tol), r.rest) << r.x << "," << r.y << " tol " << r.tol;
        // Only the direction of the end counts.
        EXPECT_EQ(p.IsOnArc(centre, right, farAbove, r.tol), r.upper)
            << r.x << "," << r.y << " tol " << r.tol;
    }
    EXPECT_TRUE(
        CPosition(5, 20).IsOnArc(centre, right, right, 0.01)); // start and end the same: the whole circle
}

TEST(Position, WholeNumbersAreCutTowardZeroAndBounded) {
    const struct {
        double value;
        int result;
    } rows[] = {
        {2.9, 2},
        {-2.9, -2},
        {-0.5, 0},
        {2147483646.9, INT_MAX - 1},
        {2147483647, INT_MAX},
        {1e300, INT_MAX},
        {inf, INT_MAX},
        {-2147483647.5, INT_MIN + 1},
        {-2147483649.0, INT_MIN},
        {-inf, INT_MIN},
        {nan, 0},
    };
    for (const auto& r : rows) {
        EXPECT_EQ(orv::truncToInt(r.value), r.result) << r.value;
        EXPECT_TRUE(CPosition(r.value, 1.9).ConvertInt() == CPoint(r.result, 1)) << r.value;
        EXPECT_TRUE(CDouSize(1.9, r.value).ConvertInt() == CSize(1, r.result)) << r.value;
        EXPECT_TRUE(CDouRect(r.value, 1, 2.9, r.value).ConvertInt() == CRect(r.result, 1, 2, r.result))
            << r.value;
    }
}

} // namespace
