// The share arithmetic: what each child gets of a change of size.

#include "orvfc/controls/ResizeShares.h"

#include <gtest/gtest.h>

#include <climits>
#include <random>
#include <vector>

using namespace orv;

namespace {

TEST(ResizeShares, Registration) {
    const struct {
        ResizeFour shares;
        int parts;
        bool fit;
    } rows[] = {
        {{0, 0, 0, 0}, 100, true},
        {{50, 0, 50, 100}, 100, true},
        {{100, 100, 0, 0}, 100, true},
        {{0, 0, 3, 1}, 3, true},
        {{51, 0, 50, 0}, 100, false},
        {{0, 51, 0, 50}, 100, false},
        {{101, 0, 0, 0}, 100, false},
        {{0, 101, 0, 0}, 100, false},
        {{0, 0, 101, 0}, 100, false},
        {{0, 0, 0, 101}, 100, false},
        {{-1, 0, 50, 0}, 100, false},
        {{0, -1, 0, 0}, 100, false},
        {{50, 0, -1, 0}, 100, false},
        {{0, 50, 0, INT_MIN}, 100, false},
        {{INT_MAX, 0, 0, INT_MAX}, INT_MAX, true},
        {{INT_MAX, 0, INT_MAX, 0}, INT_MAX, false},
        {{0, INT_MAX, 0, 1}, INT_MAX, false},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.fit, areShares(row.shares, row.parts))
            << row.shares.left << " " << row.shares.top << " " << row.shares.width << " " << row.shares.height
            << " of " << row.parts;
    }
}

TEST(ResizeShares, OneChange) {
    const struct {
        int delta, share, parts, remainder, value;
        bool isSize, changed;
        int remainderAfter, valueAfter;
    } rows[] = {
        {3, 50, 100, 0, 10, true, true, 50, 11},
        {3, 50, 100, 50, 11, true, true, 0, 13},
        {3, 0, 100, 70, 10, true, false, 70, 10}, // without a share even the remainder stays
        {3, -1, 100, 70, 10, true, false, 70, 10},
        {0, 50, 100, 0, 10, false, false, 0, 10},
        {1, 50, 100, -50, 10, false, false, 0, 10}, // the remainder is used up
        {1, 50, 100, 0, 10, false, true, 50, 10},   // a change that is no whole pixel yet
        {-3, 50, 100, 0, 10, false, true, -50, 9},  // towards zero, not down
        {-3, 50, 100, 0, 0, false, true, -50, -1},  // places become negative,
        {-3, 50, 100, 0, 0, true, true, -150, 0},   // sizes do not
        {-20, 100, 100, 0, 5, true, true, -1500, 0},
        {20, 100, 100, -1500, 0, true, true, 0, 5}, // and the way back
        {10, 100, 100, -1500, 0, true, true, -500, 0},
        {INT_MAX, INT_MAX, INT_MAX, 0, 0, false, true, 0, INT_MAX},
        {INT_MAX, INT_MAX, INT_MAX, 0, INT_MAX, false, true, 0, INT_MAX},
        {INT_MIN, INT_MAX, INT_MAX, INT_MIN, INT_MIN, true, true, INT_MIN, 0},
        {INT_MIN, 1, 1, 0, INT_MIN, false, true, 0, INT_MIN},
    };
    for (const auto& row : rows) {
        int remainder = row.remainder;
        int value = row.value;
        const bool changed = calcValue(row.delta, row.share, row.parts, remainder, value, row.isSize);
        EXPECT_TRUE(changed == row.changed && remainder == row.remainderAfter && value == row.valueAfter)
            << row.delta << " x " << row.share << " / " << row.parts << " + " << row.remainder << " on "
            << row.value << ": " << changed << " " << remainder << " " << value;
    }
}

struct Child {
    ResizeFour shares;
    ResizeFour remainders = {};
    ResizeFour box;
};

std::vector<Child> someChildren(int count, int parts, unsigned seed) {
    std::mt19937 random(seed);
    auto upTo = [&](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    std::vector<Child> children;
    for (int i = 0; i < count; ++i) {
        const int left = upTo(parts), top = upTo(parts);
        children.push_back({.shares = {left, top, upTo(parts - left), upTo(parts - top)},
                            .box = {upTo(3000) - 500, upTo(3000) - 500, upTo(2000), upTo(2000)}});
    }
    return children;
}

void step(std::vector<Child>& children, int dx, int dy, int parts) {
    for (Child& child : children)
        moveByShares(dx, dy, child.shares, parts, child.remainders, child.box);
}

void expectSameLayout(const std::vector<Child>& one, const std::vector<Child>& other) {
    int different = 0;
    for (size_t i = 0; i < one.size(); ++i) {
        const ResizeFour &a = one[i].box, &b = other[i].box;
        different += a.left != b.left || a.top != b.top || a.width != b.width || a.height != b.height;
    }
    EXPECT_EQ(0, different);
}

TEST(ResizeShares, ManySmallStepsMakeOneLargeOne) {
    for (int parts : {3, 100}) {
        for (int direction : {1, -1}) { // down far enough that most sizes come to nothing
            SCOPED_TRACE(testing::Message() << parts << " parts, direction " << direction);
            const unsigned seed = static_cast<unsigned>(parts);
            std::vector<Child> small = someChildren(1000, parts, seed), large = small;
            for (int i = 0; i < 10000; ++i)
                step(small, direction, direction, parts);
            step(large, 10000 * direction, 10000 * direction, parts);
            expectSameLayout(small, large);
        }
    }
}

TEST(ResizeShares, ThereAndBackPixelByPixel) {
    // To nothing and far beyond the first size: what shrank away is paid back, and nothing sticks.
    std::vector<Child> children = someChildren(1000, 100, 7), before = children;
    for (int i = 0; i < 3000; ++i)
        step(children, -1, -1, 100);
    for (const Child& child : children)
        ASSERT_TRUE(child.box.width >= 0 && child.box.height >= 0);
    for (int i = 0; i < 3000; ++i)
        step(children, 1, 1, 100);
    expectSameLayout(before, children);
}

} // namespace
