#include <orvmathfunc/orvmathfunc.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

// Laws that hold for all figures, tried on random ones at several sizes and distances from the origin.

namespace {

constexpr double pi = 3.14159265358979323846;

struct Point {
    double x, y;
};

class Laws : public testing::Test {
protected:
    static constexpr int rounds = 20000;
    const unsigned seed = std::random_device{}();
    std::mt19937_64 engine{seed};
    Point origin{};
    double unit = 1;

    void SetUp() override { RecordProperty("seed", std::to_string(seed)); }

    void TearDown() override {
        if (HasFailure())
            printf("seed %u\n", seed);
    }

    double number(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(engine);
    }

    void newFrame() {
        unit = std::pow(10, number(-3, 4));
        origin = {number(-1e6, 1e6) * unit, number(-1e6, 1e6) * unit};
    }

    Point point() { return {origin.x + number(-1, 1) * unit, origin.y + number(-1, 1) * unit}; }

    // Too close to call: which side of a touch rounding puts such a figure is not what these laws are about.
    bool isClose(double clearance) const { return clearance < 1e-5 * unit; }

    // What the coordinates themselves are worth here.
    double grain() const { return 1e-14 * (std::fabs(origin.x) + std::fabs(origin.y) + unit); }
};

double distance(Point a, Point b) {
    return GetDistance(a.x, a.y, b.x, b.y);
}

double toSegment(Point p, Point a, Point b) {
    return GetDistFromPointToLineSegment(p.x, p.y, a.x, a.y, b.x, b.y);
}

TEST_F(Laws, RotatingAddsToTheDirectionAndKeepsTheDistance) {
    for (int i = 0; i < rounds; ++i) {
        newFrame();
        const Point c = point(), p = point();
        const double angle = number(-10, 10), before = GetAngleToXAxis(c.x, c.y, p.x, p.y);
        Point q{};
        PointRotateDou(p.x, p.y, c.x, c.y, angle, &q.x, &q.y);
        const double after = GetAngleToXAxis(c.x, c.y, q.x, q.y);
        const double error = std::remainder(after - before - angle, 2 * pi);
        ASSERT_LE(std::fabs(error) * distance(c, p), 4 * grain()) << "round " << i;
        ASSERT_NEAR(distance(c, p), distance(c, q), 4 * grain()) << "round " << i;
        ASSERT_TRUE(before >= 0 && before < 2 * pi && after >= 0 && after < 2 * pi);
    }
}

TEST_F(Laws, AMirrorImageIsAsFarFromTheAxisAndComesBack) {
    for (int i = 0; i < rounds; ++i) {
        newFrame();
        const Point a = point(), b = point(), p = point();
        if (distance(a, b) < unit / 10)
            continue;
        Point q{}, back{};
        PointMirrorDou(p.x, p.y, a.x, a.y, b.x, b.y, &q.x, &q.y);
        PointMirrorDou(q.x, q.y, a.x, a.y, b.x, b.y, &back.x, &back.y);
        ASSERT_LE(distance(p, back), 100 * grain()) << "round " << i;
        ASSERT_NEAR(distance(p, q), 2 * GetDistFromPointToLinePer(p.x, p.y, a.x, a.y, b.x, b.y),
                    100 * grain())
            << "round " << i;
        ASSERT_NEAR(distance(p, a), distance(q, a), 100 * grain()) << "round " << i;
    }
}

double side(Point a, Point b, Point p) {
    return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
}

TEST_F(Laws, SegmentsCrossWhenEachSeparatesTheOthersEnds) {
    int crossed = 0;
    for (int i = 0; i < rounds; ++i) {
        newFrame();
        const Point a = point(), b = point(), c = point(), d = point();
        if (isClose(toSegment(a, c, d)) || isClose(toSegment(b, c, d)) || isClose(toSegment(c, a, b)) ||
            isClose(toSegment(d, a, b)))
            continue;
        const bool expected = side(a, b, c) * side(a, b, d) < 0 && side(c, d, a) * side(c, d, b) < 0;
        Point p{};
        const int answer =
            GetCrossPointBetweenLineAndLineInBounds(a.x, a.y, b.x, b.y, c.x, c.y, d.x, d.y, &p.x, &p.y);
        ASSERT_EQ(answer == 1, expected) << "round " << i;
        if (!expected)
            continue;
        ++crossed;
        ASSERT_LE(toSegment(p, a, b), grain()) << "round " << i;
        const double slant =
            std::fabs(std::sin(GetAngleToXAxis(a.x, a.y, b.x, b.y) - GetAngleToXAxis(c.x, c.y, d.x, d.y)));
        ASSERT_LE(toSegment(p, c, d) * slant, 4 * grain()) << "round " << i;
    }
    EXPECT_GT(crossed, rounds / 10);
}

TEST_F(Laws, ATouchIsFoundHoweverItIsRounded) {
    for (int i = 0; i < rounds; ++i) {
        newFrame();
        const Point a = point(), b = point(), far = point();
        if (distance(a, b) < unit / 10)
            continue;
        const double t = number(0, 1);
        const Point p{a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)};
        if (GetDistFromPointToLinePer(far.x, far.y, a.x, a.y, b.x, b.y) < 1e-3 * unit)
            continue;
        Point q{};
        ASSERT_EQ(
            GetCrossPointBetweenLineAndLineInBounds(far.x, far.y, p.x, p.y, a.x, a.y, b.x, b.y, &q.x, &q.y),
            1)
            << "round " << i;
        ASSERT_LE(distance(p, q), 1e4 * grain()) << "round " << i;
    }
}

TEST_F(Laws, BoxCrossingsLieOnBothAndCountTheEndsOutside) {
    for (int i = 0; i < rounds; ++i) {
        newFrame();
        const Point a = point(), b = point(), lt = point(), rb = point();
        const Point corners[] = {lt, {rb.x, lt.y}, rb, {lt.x, rb.y}, lt};
        bool close = false;
        for (int k = 0; k < 4; ++k)
            close = close || isClose(toSegment(corners[k], a, b)) ||
                    isClose(toSegment(a, corners[k], corners[k + 1])) ||
                    isClose(toSegment(b, corners[k], corners[k + 1]));
        if (close)
            continue;
        Point out[2]{};
        const int count = GetCrossPointBetweenLineAndBox(a.x, a.y, b.x, b.y, lt.x, lt.y, rb.x, rb.y,
                                                         &out[0].x, &out[0].y, &out[1].x, &out[1].y);
        const auto inside = [&](Point p) {
            return BetweenDistance(p.x, lt.x, rb.x, 0) && BetweenDistance(p.y, lt.y, rb.y, 0);
        };
        const int endsInside = inside(a) + inside(b);
        ASSERT_EQ(count % 2, endsInside % 2) << "round " << i;
        ASSERT_TRUE(endsInside < 2 || count == 0) << "round " << i;
        for (int k = 0; k < count; ++k) {
            ASSERT_LE(toSegment(out[k], a, b), 4 * grain()) << "round " << i;
            double nearest = unit;
            for (int side = 0; side < 4; ++side)
                nearest = std::fmin(nearest, toSegment(out[k], corners[side], corners[side + 1]));
            ASSERT_EQ(nearest, 0) << "round " << i;
        }
        ASSERT_TRUE(count < 2 || distance(a, out[0]) <= distance(a, out[1])) << "round " << i;
    }
}

TEST_F(Laws, ArcCrossingsLieOnBothAndTheTwoArcsShareTheCircle) {
    int found = 0;
    for (int i = 0; i < rounds; ++i) {
        newFrame();
        const Point a = point(), b = point(), c = point();
        const double radius = number(0.01, 1) * unit, start = number(0, 2 * pi), end = number(0, 2 * pi);
        const double height = GetDistFromPointToLinePer(c.x, c.y, a.x, a.y, b.x, b.y);
        const Point ends[] = {{c.x + radius * std::cos(start), c.y - radius * std::sin(start)},
                              {c.x + radius * std::cos(end), c.y - radius * std::sin(end)}};
        if (isClose(std::fabs(height - radius)) || isClose(std::fabs(distance(a, c) - radius)) ||
            isClose(std::fabs(distance(b, c) - radius)) || isClose(toSegment(ends[0], a, b)) ||
            isClose(toSegment(ends[1], a, b)) || isClose(distance(ends[0], ends[1])))
            continue;
        const auto cross = [&](double from, double to, Point(&out)[2]) {
            return GetCrossPointBetweenLineAndArcInBounds(a.x, a.y, b.x, b.y, c.x, c.y, radius, from, to,
                                                          &out[0].x, &out[0].y, &out[1].x, &out[1].y);
        };
        Point whole[2]{}, one[2]{}, other[2]{};
        const int all = cross(start, start, whole), here = cross(start, end, one),
                  there = cross(end, start, other);
        ASSERT_EQ(all, here + there) << "round " << i;
        const bool aInside = distance(a, c) < radius, bInside = distance(b, c) < radius;
        ASSERT_EQ(all % 2, aInside != bInside) << "round " << i;
        for (int k = 0; k < here; ++k) {
            ASSERT_LE(toSegment(one[k], a, b), 10 * grain()) << "round " << i;
            ASSERT_NEAR(distance(one[k], c), radius, 10 * grain()) << "round " << i;
            ASSERT_TRUE(IsArcAngleInBounds(GetAngleToXAxis(c.x, c.y, one[k].x, one[k].y), start, end,
                                           1e-6 + 10 * grain() / radius))
                << "round " << i;
        }
        found += all;
    }
    EXPECT_GT(found, rounds / 10);
}

} // namespace
