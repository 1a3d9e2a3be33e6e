#include "math_test.h"

#include <vector>

namespace {

using Points = std::vector<Point>;

// What was found lies where it should, and nothing was written where nothing is found: a single point stands
// in both pairs when there are two.
void expectCrossings(const Crossings& found, const Points& expected, Point origin, int outputs) {
    ASSERT_EQ(found.count, static_cast<int>(expected.size()));
    for (int i = 0; i < outputs; ++i) {
        const Point p = found.at[i];
        if (expected.empty())
            EXPECT_EQ(p, untouched);
        else
            EXPECT_LE(distance(p - origin, expected[i < found.count ? i : 0]), 1e-7) << p << i;
    }
}

// Every figure is also tried far from the origin, where a unit is worth few digits.
const Point places[] = {{0, 0}, {1e7, -3e7}};

TEST(Crossings, TwoSegments) {
    const struct {
        Point a, b, c, d;
        Points crossing;
    } rows[] = {
        {{0, 0}, {10, 10}, {0, 10}, {10, 0}, {{5, 5}}},
        {{0, 0}, {10, 0}, {3, -1}, {3, 1}, {{3, 0}}},
        {{0, 0}, {10, 0}, {3, 0}, {3, 5}, {{3, 0}}}, // a T
        {{3, 5}, {3, 0}, {0, 0}, {10, 0}, {{3, 0}}},
        {{0, 0}, {10, 0}, {10, 0}, {12, 7}, {{10, 0}}}, // end to end
        {{0, 0}, {3, 1}, {3, 1}, {6, 2.5}, {{3, 1}}},
        {{0, 0}, {10, 0}, {3, 5}, {3, 1}, {}}, // short of it
        {{0, 0}, {10, 0}, {11, -1}, {11, 1}, {}},
        {{0, 0}, {10, 0}, {3, 0.0001}, {3, 5}, {}},
        {{0, 0}, {10, 0}, {0, 1}, {10, 1}, {}},  // parallel
        {{0, 0}, {10, 0}, {5, 0}, {15, 0}, {}},  // overlapping
        {{0, 0}, {10, 0}, {10, 0}, {20, 0}, {}}, // one line, end to end
        {{0, 0}, {10, 30}, {5, 15}, {15, 45}, {}},
        {{0, 0}, {10, 0}, {0, 0}, {10, 0}, {}}, // the same
        {{5, 0}, {5, 0}, {0, 0}, {10, 0}, {}},  // no length
        {{5, 5}, {5, 5}, {5, 5}, {5, 5}, {}},
        {{0, 0}, {1, 0.0625}, {0, 0.0625}, {1, 0}, {{0.5, 0.03125}}},
    };
    for (const auto& at : places)
        for (const auto& r : rows) {
            SCOPED_TRACE(testing::Message() << "row " << &r - rows << " at " << at.x);
            expectCrossings(crossSegments(r.a + at, r.b + at, r.c + at, r.d + at), r.crossing, at, 1);
        }
}

TEST(Crossings, AGapMadeByRoundingIsClosed) {
    // 0.1 + 0.2 is not 0.3: the upright segment ends a rounding error below the level one.
    const Crossings upright = crossSegments({0, 0.3}, {1, 0.3}, {0.5, 0.1 + 0.2}, {0.5, 1});
    EXPECT_EQ(upright.count, 1);
    EXPECT_EQ(upright.at[0].x, 0.5);
    // An upright one whose end is a rounding error away from a point on a shallow slope.
    for (const Point p : {Point{1e7 / 3, 1e7 / 7}, {1e7 / 3, 0.1}, {0.1, 1e7 / 7}, {-1e7 / 3, -1e7 / 7}}) {
        SCOPED_TRACE(testing::Message() << p.x << ", " << p.y);
        const Point from = p - Point{70, 0.7}, to = p + Point{30, 0.3};
        const Crossings slope = crossSegments(from, to, p, p + Point{0, 5});
        EXPECT_EQ(slope.count, 1);
        EXPECT_NEAR(slope.at[0].x, p.x, 1e-6);
        EXPECT_EQ(crossSegments(from, to, p + Point{0, 1e-5}, p + Point{0, 5}).count, 0);
        EXPECT_EQ(crossSegments(p, p + Point{0, -5}, to, from).count, 1);
    }
}

TEST(Crossings, NothingCrossesAtNoNumber) {
    for (double bad : {double(NAN), inf, -inf})
        for (int place = 0; place < 8; ++place) {
            SCOPED_TRACE(testing::Message() << bad << " at " << place);
            double v[] = {-2, 1, 4, 1, 0, 0, 2, 2}; // crosses the box and, read as a segment, the diagonal
            v[place] = bad;
            const Point a = {v[0], v[1]}, b = {v[2], v[3]}, c = {v[4], v[5]}, d = {v[6], v[7]};
            // As an arc: centre, radius 2, from 2 to the bad angle or the like.
            for (const Crossings& found :
                 {crossSegments(a, b, c, d), crossBox(a, b, c, d), crossArc(a, b, c, v[6], v[7], v[7])}) {
                EXPECT_EQ(found.count, 0);
                EXPECT_EQ(found.at[0], untouched);
            }
        }
}

TEST(Crossings, SegmentAndBox) {
    const struct {
        Point a, b;
        Point leftTop, rightBottom;
        Points crossings;
    } rows[] = {
        {{-5, 5}, {15, 5}, {0, 0}, {10, 10}, {{0, 5}, {10, 5}}}, // in the order of the segment
        {{15, 5}, {-5, 5}, {0, 0}, {10, 10}, {{10, 5}, {0, 5}}},
        {{5, 15}, {5, -5}, {0, 0}, {10, 10}, {{5, 10}, {5, 0}}},
        {{-2, 2}, {6, 10}, {0, 0}, {10, 10}, {{0, 4}, {6, 10}}},
        {{5, 5}, {15, 5}, {0, 0}, {10, 10}, {{10, 5}}},             // from the inside
        {{2, 2}, {8, 7}, {0, 0}, {10, 10}, {}},                     // within
        {{-5, 11}, {15, 11}, {0, 0}, {10, 10}, {}},                 // past
        {{-5, 5}, {-1, 5}, {0, 0}, {10, 10}, {}},                   // short of it
        {{-5, 4}, {4, -5.5}, {0, 0}, {10, 10}, {}},                 // past a corner
        {{-5, -5}, {15, 15}, {0, 0}, {10, 10}, {{0, 0}, {10, 10}}}, // corner to corner
        {{-5, 5}, {5, -5}, {0, 0}, {10, 10}, {{0, 0}}},             // by a corner
        {{5, 15}, {15, 5}, {0, 0}, {10, 10}, {{10, 10}}},
        {{5, 5}, {10, 5}, {0, 0}, {10, 10}, {{10, 5}}}, // an end on the border
        {{0, 5}, {5, 5}, {0, 0}, {10, 10}, {{0, 5}}},
        {{-5, 0}, {15, 0}, {0, 0}, {10, 10}, {{0, 0}, {10, 0}}}, // along a side
        {{-5, 0}, {0, 0}, {0, 0}, {10, 10}, {{0, 0}}},
        {{-5, 5}, {15, 5}, {10, 0}, {0, 10}, {{0, 5}, {10, 5}}}, // sides exchanged
        {{-5, 5}, {15, 5}, {0, 10}, {10, 0}, {{0, 5}, {10, 5}}},
        {{-5, 5}, {15, 5}, {4, 0}, {4, 10}, {{4, 5}}}, // no width
        {{4, -5}, {4, 5}, {4, 0}, {4, 10}, {{4, 0}, {4, 5}}},
        {{0, 0}, {8, 8}, {4, 4}, {4, 4}, {{4, 4}}}, // a point
        {{0, 0}, {8, 9}, {4, 4}, {4, 4}, {}},
        {{0, 5}, {0, 5}, {0, 0}, {10, 10}, {}}, // a segment of no length
    };
    for (const auto& at : places)
        for (const auto& r : rows) {
            SCOPED_TRACE(testing::Message() << "row " << &r - rows << " at " << at.x);
            expectCrossings(crossBox(r.a + at, r.b + at, r.leftTop + at, r.rightBottom + at), r.crossings, at,
                            2);
        }
    EXPECT_EQ(GetCrossPointBetweenLineAndBox(-5, 5, 15, 5, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr),
              2);
}

TEST(Crossings, TouchingABoxSurvivesRounding) {
    const double third = 1.0 / 3, over = std::nextafter(third, 1);
    const auto count = [&](Point a, Point b) { return crossBox(a, b, {0, 0}, {third, third}).count; };
    EXPECT_EQ(count({1, 0.1}, {over, 0.1}), 1); // ends a rounding error before the side
    EXPECT_EQ(crossBox({1, 0.1}, {over, 0.1}, {0, 0}, {third, third}).at[0].x, third);
    EXPECT_EQ(count({over, -1}, {over, 1}), 2);                                // runs along it
    EXPECT_EQ(count({over + 0.1, third - 0.1}, {third - 0.1, over + 0.1}), 1); // past the corner
    EXPECT_EQ(count({third + 0.1 - 1e-16, third - 0.1}, {third - 0.1 - 1e-16, third + 0.1}),
              1); // over the corner
    EXPECT_EQ(count({third - 1, third + 0.001 - 4e-16}, {third + 1, third - 0.001 - 4e-16}), 1); // at a slant
    EXPECT_EQ(count({third + 0.1 - 1e-9, third - 0.1}, {third - 0.1 - 1e-9, third + 0.1}), 2);   // a real cut
    const double under = std::nextafter(third, 0);
    for (const Point p : {Point{1e-16, 0.1}, {under, 0.1}, {0.1, 1e-16}, {0.1, under}})
        EXPECT_EQ(count(p, {0.2, 0.2}), 1) << "starts a rounding error inside, at " << p.x << "," << p.y;
}

TEST(Crossings, SegmentAndArc) {
    const double h = std::sqrt(0.5) * 5;
    const struct {
        Point a, b, centre;
        double radius, start, end;
        Points crossings;
    } rows[] = {
        {{-9, 0}, {9, 0}, {0, 0}, 5, 0, 2 * pi, {{-5, 0}, {5, 0}}}, // the whole circle
        {{9, 0}, {-9, 0}, {0, 0}, 5, 1, 1, {{5, 0}, {-5, 0}}},
        {{-9, -3}, {9, -3}, {0, 0}, 5, 0, pi, {{-4, -3}, {4, -3}}}, // the upper half is above on the screen
        {{-9, 3}, {9, 3}, {0, 0}, 5, 0, pi, {}},
        {{-9, 3}, {9, 3}, {0, 0}, 5, pi, 0, {{-4, 3}, {4, 3}}},
        {{-9, -3}, {9, -3}, {0, 0}, 5, 0, pi / 2, {{4, -3}}},
        {{-5, -4}, {4, 5}, {0, 0}, 5, 1, 1, {{-4, -3}, {3, 4}}}, // slanting
        {{-9, 0}, {9, 0}, {0, 0}, 5, 6, 1, {{5, 0}}},            // through 0
        {{0, 0}, {9, 0}, {0, 0}, 5, 0, 2 * pi, {{5, 0}}},        // from the centre
        {{-1, 0}, {1, 0}, {0, 0}, 5, 0, 2 * pi, {}},             // within
        {{6, 0}, {9, 0}, {0, 0}, 5, 0, 2 * pi, {}},              // short of it
        {{-9, 6}, {9, 6}, {0, 0}, 5, 0, 2 * pi, {}},             // past
        {{-9, -5}, {9, -5}, {0, 0}, 5, 0, pi, {{0, -5}}},        // touching
        {{1, -5}, {9, -5}, {0, 0}, 5, 0, pi, {}},
        {{0, 0}, {5, 0}, {0, 0}, 5, 0, pi, {{5, 0}}}, // ends of segment and arc meet
        {{0, 0}, {h, -h}, {0, 0}, 5, pi / 4, pi, {{h, -h}}},
        {{0, 0}, {h, -h}, {0, 0}, 5, pi / 4 + 1e-5, pi, {}},
        {{0, 0}, {0.8, -0.6}, {0, 0}, 0.001, std::atan2(3, 4), pi, {{0.0008, -0.0006}}}, // a small arc
        {{0, 0}, {0.8, -0.6}, {0, 0}, 0.001, 0, std::atan2(3, 4), {{0.0008, -0.0006}}},
        {{1, 1}, {9, 1}, {2, 1}, 3, 0, 1, {{5, 1}}}, // centre elsewhere
        {{-9, 0}, {9, 0}, {0, 0}, 0, 0, 2 * pi, {}}, // no radius
        {{-9, 0}, {9, 0}, {0, 0}, -5, 0, 2 * pi, {}},
        {{5, 0}, {5, 0}, {0, 0}, 5, 0, 2 * pi, {}}, // no length
    };
    for (const auto& at : places)
        for (const auto& r : rows) {
            SCOPED_TRACE(testing::Message() << "row " << &r - rows << " at " << at.x);
            expectCrossings(crossArc(r.a + at, r.b + at, r.centre + at, r.radius, r.start, r.end),
                            r.crossings, at, 2);
        }
    EXPECT_EQ(GetCrossPointBetweenLineAndArcInBounds(-9, 0, 9, 0, 0, 0, 5, 0, 1, nullptr, nullptr, nullptr,
                                                     nullptr),
              1);
}

TEST(Crossings, TouchingAnArcSurvivesRounding) {
    const double third = 1.0 / 3;
    const auto count = [&](Point a, Point b, double start, double end) {
        return crossArc(a, b, {3, 4}, third, start, end).count;
    };
    // A touching line, a rounding error inside or outside the circle; then a real cut.
    EXPECT_EQ(count({2, std::nextafter(4 - third, 0)}, {5, std::nextafter(4 - third, 0)}, 0, 0), 1);
    EXPECT_EQ(count({2, std::nextafter(4 - third, 9)}, {5, std::nextafter(4 - third, 9)}, 0, 0), 1);
    EXPECT_EQ(count({2, 4 - third + 1e-9}, {5, 4 - third + 1e-9}, 0, 0), 2);
    for (int i = 0; i < 360; ++i) {
        const double a = i * pi / 180;
        const Point end{3 + third * std::cos(a), 4 - third * std::sin(a)}; // of both the spoke and the arc
        const Point past{3 + std::cos(a), 4 - std::sin(a)};
        for (const auto& spoke :
             {std::pair{Point{3, 4}, end}, std::pair{end, past}, std::pair{Point{3, 4}, past}}) {
            EXPECT_EQ(count(spoke.first, spoke.second, a, a + 1), 1) << i;
            EXPECT_EQ(count(spoke.first, spoke.second, a - 1, a), 1) << i;
        }
        EXPECT_EQ(count({3, 4}, past, a + 1e-9, a - 1e-9), 0) << i;
    }
}

} // namespace
