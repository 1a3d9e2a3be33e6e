#include "math_test.h"

#include <climits>

TEST(Turns, DirectionOnTheScreen) {
    const struct {
        double x1, y1, x2, y2, angle;
    } rows[] = {
        {0, 0, 1, 0, 0},
        {0, 0, 1, -1, pi / 4},
        {0, 0, 0, -1, pi / 2},
        {0, 0, -1, -1, 3 * pi / 4},
        {0, 0, -1, 0, pi},
        {0, 0, -1, 1, 5 * pi / 4},
        {0, 0, 0, 1, 3 * pi / 2},
        {0, 0, 1, 1, 7 * pi / 4},
        {5e8, -7e8, 5e8, -7e8 - 3, pi / 2}, // far from the origin
        {3, 4, 3, 4, 0},                    // no length
        {0, -0.0, -0.0, 0, 0},              // no length, whatever the signs of zero
        {0, 0, 1, 1e-300, 0},               // a hair below the axis is not a whole turn
    };
    for (const auto& r : rows)
        EXPECT_DOUBLE_EQ(GetAngleToXAxis(r.x1, r.y1, r.x2, r.y2), r.angle)
            << r.x1 << "," << r.y1 << " " << r.x2 << "," << r.y2;
    EXPECT_EQ(GetAngleToXAxis(0, -0.0, -1, 0), pi);
    EXPECT_TRUE(std::isnan(GetAngleToXAxis(0, 0, NAN, 1)));
}

TEST(Turns, ArcBounds) {
    const double tol = 1e-6;
    const struct {
        double angle, start, end, tolerance;
        bool inside;
    } rows[] = {
        {1, 0, 2, 0, true},
        {0, 0, 2, 0, true}, // the bounds belong to the arc
        {2, 0, 2, 0, true},
        {2.1, 0, 2, 0, false},
        {-0.1, 0, 2, 0, false},
        {6.2, 6, 1, 0, true}, // through 0
        {0.5, 6, 1, 0, true},
        {3, 6, 1, 0, false},
        {3, 1, 6, 0, true}, // the other way round
        {0.5, 1, 6, 0, false},
        {2 + 0.9e-6, 0, 2, tol, true},
        {2 + 1.1e-6, 0, 2, tol, false},
        {2 * pi - 0.9e-6, 0, 2, tol, true}, // the tolerance wraps too
        {2 * pi - 1.1e-6, 0, 2, tol, false},
        {1 + 2 * pi, 0, 2, 0, true}, // whole turns
        {1 - 8 * pi, 0, 2, 0, true},
        {1, -2 * pi, 2 - 4 * pi, 0, true},
        {3, 2 * pi, 2 + 6 * pi, 0, false},
        {4, 1, 1, 0, true}, // the same bound twice: the whole circle
        {4, 1, 1 + 2 * pi, 0, true},
        {4, 1, 1 - 1e-13, 0, true},
        {4, 1, 1 + 1e-13, 0, true},
        {4, 1, 1.001, 0, false},  // a short arc is not
        {0.1, 0, 2, -0.2, false}, // narrowed
        {0.3, 0, 2, -0.2, true},
        {1, 0, 2, -1.5, false},
        {5, 0, 2, 4, true}, // widened beyond the circle
        {NAN, 0, 2, tol, false},
        {1, NAN, 2, tol, false},
        {1, 0, NAN, tol, false},
        {1, 0, 2, NAN, false},
        {inf, 1, 1, tol, false},
        {3, 0, 1, inf, true},
    };
    for (const auto& r : rows)
        EXPECT_EQ(IsArcAngleInBounds(r.angle, r.start, r.end, r.tolerance) != 0, r.inside)
            << r.angle << " on " << r.start << ".." << r.end << " +" << r.tolerance;
}

TEST(Turns, RotatesCounterClockwiseOnTheScreen) {
    for (const double at : {0.0, 1e9}) { // near and far from the origin
        double x = at + 12, y = at + 20;
        PointRotateDou(x, y, at + 10, at + 20, pi / 2, &x, &y);
        EXPECT_DOUBLE_EQ(x, at + 10);
        EXPECT_DOUBLE_EQ(y, at + 18); // from the right of the centre to above it
        PointRotateDou(x, y, at + 10, at + 20, -pi / 6, &x, &y);
        EXPECT_DOUBLE_EQ(x, at + 11);
        EXPECT_DOUBLE_EQ(y, at + 20 - std::sqrt(3.0));
    }
}

TEST(Turns, RotatesWholeNumbersToTheNearest) {
    const struct {
        int x, y, cx, cy;
        double angle;
        int rx, ry;
    } rows[] = {
        {12, 20, 10, 20, pi / 2, 10, 18},
        {12, 20, 10, 20, pi, 8, 20},
        {10, 0, 0, 0, pi / 4, 7, -7}, // 7.07
        {11, 0, 0, 0, pi / 4, 8, -8}, // 7.78: not cut off
        {-11, 0, 0, 0, pi / 4, -8, 8},
        {INT_MAX, 0, INT_MIN, 0, pi, INT_MIN, 0}, // stops at the ends of the range
        {INT_MIN, INT_MIN, INT_MAX, INT_MAX, pi, INT_MAX, INT_MAX},
        {3, 4, 0, 0, inf, 0, 0},
        {3, 4, 0, 0, NAN, 0, 0},
    };
    for (const auto& r : rows) {
        int x = 77, y = 77;
        PointRotateInt(r.x, r.y, r.cx, r.cy, r.angle, &x, &y);
        EXPECT_EQ(x, r.rx) << r.x << "," << r.y << " by " << r.angle;
        EXPECT_EQ(y, r.ry) << r.x << "," << r.y << " by " << r.angle;
    }
}

TEST(Turns, Mirrors) {
    const struct {
        double x, y, ax, ay, bx, by, rx, ry;
    } rows[] = {
        {3, 5, 0, 2, 1, 2, 3, -1},                                        // a level axis
        {3, 5, 2, 0, 2, 9, 1, 5},                                         // an upright one
        {3, 5, 0, 0, 1, 1, 5, 3},                                         // a slanting one
        {7, 7, 0, 0, 1, 1, 7, 7},                                         // a point on the axis
        {3, 5, 4, 4, 4, 4, 3, 5},                                         // no axis
        {3, 5, 1, 1, 0, 0, 5, 3},                                         // the axis has no direction
        {1, 0, 0, 0, 2, 1, 0.6, 0.8},                                     // whole numbers are rounded
        {1e9 + 3, 1e9 + 5, 1e9, 1e9, 1e9 + 1, 1e9 + 1, 1e9 + 5, 1e9 + 3}, // far from the origin
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(testing::Message()
                     << r.x << "," << r.y << " in " << r.ax << "," << r.ay << " " << r.bx << "," << r.by);
        double x = -1, y = -1;
        PointMirrorDou(r.x, r.y, r.ax, r.ay, r.bx, r.by, &x, &y);
        EXPECT_DOUBLE_EQ(x, r.rx);
        EXPECT_DOUBLE_EQ(y, r.ry);
        int ix = -1, iy = -1;
        PointMirrorInt(int(r.x), int(r.y), int(r.ax), int(r.ay), int(r.bx), int(r.by), &ix, &iy);
        EXPECT_EQ(ix, std::lround(r.rx));
        EXPECT_EQ(iy, std::lround(r.ry));
    }
}
