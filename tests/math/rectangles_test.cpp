#include "math_test.h"

namespace {

struct R {
    double left, top, right, bottom;
    bool operator==(const R&) const = default;
};

std::ostream& operator<<(std::ostream& out, const R& r) {
    return out << "(" << r.left << " " << r.top << " " << r.right << " " << r.bottom << ")";
}

struct Row {
    R a, b, result;
};

using Operation = decltype(&douIntersectRect);

// An empty result is four zeros and the answer 0. A result may be written over its own first operand.
void check(Operation operation, const Row& row) {
    R r = row.a;
    const R& b = row.b;
    const int answer = operation(&r.left, &r.top, &r.right, &r.bottom, r.left, r.top, r.right, r.bottom,
                                 b.left, b.top, b.right, b.bottom);
    EXPECT_EQ(r, row.result) << row.a << " with " << row.b;
    EXPECT_EQ(answer != 0, row.result != R{}) << row.a << " with " << row.b;
}

TEST(Rectangles, Intersect) {
    const Row rows[] = {
        {{0, 0, 10, 10}, {5, 6, 15, 16}, {5, 6, 10, 10}},
        {{5, 6, 15, 16}, {0, 0, 10, 10}, {5, 6, 10, 10}},
        {{0, 0, 10, 10}, {2, 3, 4, 5}, {2, 3, 4, 5}},
        {{0, 4, 10, 6}, {4, 0, 6, 10}, {4, 4, 6, 6}}, // a plus sign
        {{0, 0, 10, 10}, {20, 0, 30, 10}, {}},        // apart
        {{0, 0, 10, 10}, {0, 20, 10, 30}, {}},
        {{0, 0, 10, 10}, {10, 0, 20, 10}, {}},  // a common side
        {{0, 0, 10, 10}, {10, 10, 20, 20}, {}}, // a common corner
        {{0, 0, 10, 10}, {5, 0, 5, 10}, {}},    // without width
        {{0, 0, 10, 10}, {8, 2, 2, 8}, {}},     // sides exchanged: empty as it stands
        {{0, 10, 10, 0}, {2, 2, 8, 8}, {}},
        {{-inf, -inf, inf, inf}, {2, 2, 8, 8}, {2, 2, 8, 8}},
        {{NAN, 0, 10, 10}, {2, 2, 8, 8}, {}},
        {{0, 0, 10, 10}, {2, 2, 8, NAN}, {}},
    };
    for (const auto& row : rows)
        check(douIntersectRect, row);
}

TEST(Rectangles, Unite) {
    const Row rows[] = {
        {{0, 0, 10, 10}, {5, 6, 15, 16}, {0, 0, 15, 16}},
        {{5, 6, 15, 16}, {0, 0, 10, 10}, {0, 0, 15, 16}},
        {{0, 0, 10, 10}, {20, -30, 30, -20}, {0, -30, 30, 10}},
        {{0, 0, 10, 10}, {2, 3, 4, 5}, {0, 0, 10, 10}},
        {{0, 0, 0, 0}, {2, 3, 4, 5}, {2, 3, 4, 5}}, // an empty one does not pull in its place
        {{2, 3, 4, 5}, {0, 0, 0, 10}, {2, 3, 4, 5}},
        {{2, 3, 4, 5}, {9, 9, 8, 8}, {2, 3, 4, 5}},
        {{2, 3, 4, 5}, {0, NAN, 8, 8}, {2, 3, 4, 5}},
        {{0, 0, 0, 10}, {7, 7, 7, 7}, {}},
    };
    for (const auto& row : rows)
        check(douUnionRect, row);
}

TEST(Rectangles, Subtract) {
    const R a{0, 0, 10, 20};
    const Row rows[] = {
        {a, {-5, -5, 4, 25}, {4, 0, 10, 20}},  // the left side
        {a, {6, 0, 30, 20}, {0, 0, 6, 20}},    // the right side, exactly as high
        {a, {0, -5, 10, 5}, {0, 5, 10, 20}},   // the top
        {a, {-1, 15, 11, 99}, {0, 0, 10, 15}}, // the bottom
        {a, {-1, -1, 11, 21}, {}},             // all
        {a, a, {}},
        {a, {-5, -5, 4, 10}, a}, // a corner
        {a, {2, 2, 8, 8}, a},    // a hole
        {a, {3, -5, 6, 25}, a},  // a band
        {a, {-5, 8, 15, 9}, a},
        {a, {-5, 5, 5, 15}, a},  // a bite out of a side
        {a, {30, 0, 40, 20}, a}, // apart
        {a, {10, 0, 40, 20}, a}, // only touching
        {a, {8, 25, -1, -1}, a}, // nothing to take away
        {a, {NAN, 0, 10, 20}, a},
        {{4, 4, 4, 9}, {0, 0, 1, 1}, {}}, // nothing to take from
    };
    for (const auto& row : rows)
        check(douSubtractRect, row);
}

TEST(Rectangles, OutputsMayBeLeftOut) {
    double right = -1;
    for (Operation operation : {douIntersectRect, douUnionRect, douSubtractRect})
        EXPECT_EQ(operation(nullptr, nullptr, &right, nullptr, 0, 0, 2, 2, 1, 0, 9, 2), 1);
    EXPECT_EQ(right, 1);
}

} // namespace
