#include "math_test.h"

#include <random>

// Laws of touching and of boxes, tried on random figures at several sizes and distances from the origin.

namespace {

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

TEST_F(Laws, ATouchIsFoundHoweverItIsRounded) {
    for (int i = 0; i < rounds; ++i) {
        newFrame();
        const Point a = point(), b = point(), far = point();
        if (distance(a, b) < unit / 10)
            continue;
        const double t = number(0, 1);
        const Point p{a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)};
        if (toLine(far, a, b) < 1e-3 * unit)
            continue;
        const Crossings found = crossSegments(far, p, a, b);
        ASSERT_EQ(found.count, 1) << i;
        ASSERT_LE(distance(p, found.at[0]), 1e4 * grain()) << i;
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
        const auto [count, out] = crossBox(a, b, lt, rb);
        const auto inside = [&](Point p) {
            return BetweenDistance(p.x, lt.x, rb.x, 0) && BetweenDistance(p.y, lt.y, rb.y, 0);
        };
        const int endsInside = inside(a) + inside(b);
        ASSERT_EQ(count % 2, endsInside % 2) << i;
        ASSERT_TRUE(endsInside < 2 || count == 0) << i;
        for (int k = 0; k < count; ++k) {
            ASSERT_LE(toSegment(out[k], a, b), 4 * grain()) << i;
            double nearest = unit;
            for (int side = 0; side < 4; ++side)
                nearest = std::fmin(nearest, toSegment(out[k], corners[side], corners[side + 1]));
            ASSERT_EQ(nearest, 0) << i;
        }
        ASSERT_TRUE(count < 2 || distance(a, out[0]) <= distance(a, out[1])) << i;
    }
}

} // namespace
