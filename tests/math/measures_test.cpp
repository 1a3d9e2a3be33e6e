#include "math_test.h"

#include <climits>

extern "C" double distanceFromC();

namespace {

TEST(Measures, DistancesFromAPoint) {
    const double far = 4e8; // far from the origin the answers are those near it
    const struct {
        double px, py, x1, y1, x2, y2, toSegment, toLine;
    } rows[] = {
        {2, 3, 0, 0, 4, 0, 3, 3},                                    // above the middle
        {-3, 4, 0, 0, 4, 0, 5, 4},                                   // before the start
        {7, -4, 0, 0, 4, 0, 5, 4},                                   // past the end
        {2, 0, 0, 0, 4, 0, 0, 0},                                    // on the segment
        {9, 0, 0, 0, 4, 0, 5, 0},                                    // on the line only
        {3, 4, 0, 0, 0, 0, 5, 5},                                    // no length
        {0, 5, 0, 0, 3, 4, 3, 3},                                    // slanting
        {far + 2, far + 3, far, far, far + 4, far, 3, 3},            // far away
        {far + 0, far + 5, far, far, far + 3, far + 4, 3, 3},        // far away, slanting
        {1e-9 * 2, 1e-9 * 3, 0, 0, 1e-9 * 4, 0, 1e-9 * 3, 1e-9 * 3}, // small
        {2e100, 3e100, 0, 0, 4e100, 0, 3e100, 3e100},                // large
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(testing::Message()
                     << r.px << "," << r.py << " " << r.x1 << "," << r.y1 << " " << r.x2 << "," << r.y2);
        EXPECT_DOUBLE_EQ(GetDistFromPointToLineSegment(r.px, r.py, r.x1, r.y1, r.x2, r.y2), r.toSegment);
        EXPECT_DOUBLE_EQ(GetDistFromPointToLineSegment(r.px, r.py, r.x2, r.y2, r.x1, r.y1), r.toSegment);
        EXPECT_DOUBLE_EQ(GetDistFromPointToLinePer(r.px, r.py, r.x1, r.y1, r.x2, r.y2), r.toLine);
    }
    EXPECT_TRUE(std::isnan(GetDistance(0, 0, NAN, 0)));
    EXPECT_TRUE(std::isnan(GetDistFromPointToLineSegment(0, NAN, 0, 0, 1, 0)));
    EXPECT_TRUE(std::isnan(GetDistFromPointToLinePer(0, NAN, 0, 0, 1, 0)));
    EXPECT_EQ(GetDistance(0, 0, -inf, 0), inf);
    EXPECT_EQ(distanceFromC(), 5);
}

TEST(Measures, PerpendicularFoot) {
    double x = -1, y = -1;
    GetPerpendicularPoint(0, 5, 0, 0, 3, 4, &x, &y);
    EXPECT_DOUBLE_EQ(x, 2.4);
    EXPECT_DOUBLE_EQ(y, 3.2);
    GetPerpendicularPoint(9, 3, 0, 0, 4, 0, &x, &y); // outside the two points
    EXPECT_EQ(x, 9);
    EXPECT_EQ(y, 0);
    GetPerpendicularPoint(9, 3, 7, 8, 7, 8, &x, &y); // equal points
    EXPECT_EQ(x, 7);
    EXPECT_EQ(y, 8);
    x = 9, y = 3;
    GetPerpendicularPoint(x, y, 0, 0, 0, 4, &x, &y); // over its own inputs
    EXPECT_EQ(x, 0);
    EXPECT_EQ(y, 3);
}

TEST(Measures, MiddleNeverOverflows) {
    double x = -1, y = -1;
    GetLineMid(1e308, -4, 1.5e308, 8, &x, &y);
    EXPECT_DOUBLE_EQ(x, 1.25e308);
    EXPECT_EQ(y, 2);
    GetLineMid(1, 2, 3, 4, nullptr, &y);
    EXPECT_EQ(y, 3);
}

TEST(Measures, CrossStrokesStandOnTheMiddle) {
    const struct {
        double x1, y1, x2, y2, d1, d2, xa, ya, xb, yb;
    } rows[] = {
        {0, 0, 10, 0, 3, 4, 5, -3, 5, 4},                // rightwards: the first one is above on the screen
        {10, 0, 0, 0, 3, 4, 5, 3, 5, -4},                // leftwards: below
        {0, 0, 0, 10, 3, 4, 3, 5, -4, 5},                // downwards: to the right
        {0, 0, 6, 8, 5, 10, 3 + 4, 4 - 3, 3 - 8, 4 + 6}, // slanting
        {0, 0, 10, 0, -3, 0, 5, 3, 5, 0},                // negative changes the side
        {7, 8, 7, 8, 3, 4, 7, 8, 7, 8},                  // no length
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(testing::Message() << r.x2 << "," << r.y2 << " " << r.d1 << " " << r.d2);
        double xa = -1, ya = -1, xb = -1, yb = -1;
        GetPerHalveLineFromLineDist(r.x1, r.y1, r.x2, r.y2, r.d1, r.d2, &xa, &ya, &xb, &yb);
        EXPECT_DOUBLE_EQ(xa, r.xa);
        EXPECT_DOUBLE_EQ(ya, r.ya);
        EXPECT_DOUBLE_EQ(xb, r.xb);
        EXPECT_DOUBLE_EQ(yb, r.yb);
    }
    GetPerHalveLineFromLineDist(0, 0, 1, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
}

TEST(Measures, Between) {
    const struct {
        double value, bound1, bound2, tolerance;
        bool inside;
    } rows[] = {
        {5, 0, 10, 0, true},   {5, 10, 0, 0, true},  {0, 0, 10, 0, true},   {10, 0, 10, 0, true},
        {11, 0, 10, 1, true},  {-1, 10, 0, 1, true}, {-1, 0, 10, 0, false}, {12, 0, 10, 1, false},
        {1, 0, 10, -2, false}, {2, 0, 10, -2, true}, {5, 5, 5, 0, true},    {5, 5, 5, -1, false},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(testing::Message()
                     << r.value << " in " << r.bound1 << ".." << r.bound2 << " +" << r.tolerance);
        EXPECT_EQ(BetweenDistance(r.value, r.bound1, r.bound2, r.tolerance) != 0, r.inside);
        EXPECT_EQ(BetweenDistanceInt(int(r.value), int(r.bound1), int(r.bound2), int(r.tolerance)) != 0,
                  r.inside);
    }
    EXPECT_TRUE(BetweenDistance(5, -inf, inf, 0));
    for (int place = 0; place < 4; ++place) {
        double v[] = {5, 0, 10, 0};
        v[place] = NAN;
        EXPECT_FALSE(BetweenDistance(v[0], v[1], v[2], v[3])) << place;
    }
    // No wrap-around in the widened bounds.
    EXPECT_TRUE(BetweenDistanceInt(INT_MIN, INT_MAX, INT_MIN, INT_MAX));
    EXPECT_FALSE(BetweenDistanceInt(INT_MIN, INT_MAX, INT_MAX, 1));
}

TEST(Measures, NearestValue) {
    const double whole = 4503599627370497.0;         // 2^52 + 1: no fraction is left there
    const double underHalf = std::nextafter(0.5, 0); // twice 1e308, below, is beyond the range
    const struct {
        double value;
        int power;
        double result;
    } rows[] = {
        {1.23456, -4, 1.2346}, {-1.2346, -3, -1.235},
        {1.23456, 0, 1},       {0.1 + 0.2, -5, 0.3},
        {14, 1, 10},           {15, 1, 20},
        {-15, 1, -20},         {-25, 1, -30},
        {2.5, 0, 3},           {-2.5, 0, -3},
        {0.125, -2, 0.13},     {underHalf, 0, 0},
        {123456, 3, 123000},   {4, 1, 0},
        {1e300, -5, 1e300},    {1.5, -308, 1.5},
        {1.5, -309, 1.5},      {1.5, INT_MIN, 1.5},
        {1e308, 309, 0},       {4e-200, -200, 4e-200},
        {6e199, 200, 1e200},   {1e308, INT_MAX, 0},
        {6e307, 308, 1e308},   {1.7e308, 308, 1.7e308},
        {whole, 0, whole},     {inf, -5, inf},
        {-inf, 400, -inf},
    };
    for (const auto& r : rows)
        EXPECT_EQ(GetNearestValue(r.value, r.power), r.result) << r.value << " to 10^" << r.power;
    EXPECT_TRUE(std::isnan(GetNearestValue(NAN, -5)));
    EXPECT_TRUE(std::isnan(GetNearestValue(NAN, 400)));
    EXPECT_FALSE(std::signbit(GetNearestValue(-0.3, 0))); // stored values do not show "-0"
}

TEST(Measures, RadiansToDegrees) {
    EXPECT_EQ(ConvertFromRadianToAngle(pi), 180);
    EXPECT_EQ(ConvertFromRadianToAngle(-pi / 2), -90);
    EXPECT_EQ(ConvertFromRadianToAngle(4 * pi), 720); // not wrapped
}

} // namespace
