// Where everything of the outlook bar lies.

#include "orvfc/controls/OutBarLayout.h"

#include <gtest/gtest.h>

#include <climits>
#include <ostream>
#include <random>
#include <vector>

using orv::OutBarHit;
using orv::OutBarLayout;
using orv::OutBarParts;
using orv::OutBarRow;
using orv::OutBarScene;

static std::ostream& operator<<(std::ostream& out, const RECT& r) {
    return out << r.left << ", " << r.top << ", " << r.right << ", " << r.bottom;
}
static bool operator==(const RECT& a, const RECT& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

namespace {

constexpr OutBarParts large = {{32, 32}, {40, 12}}; // 55 pixels high, 63 from one to the next
constexpr OutBarParts small = {{16, 16}, {40, 12}}; // 16 and 26

// 100 by 300: four folders, the second one open.
OutBarScene scene(bool smallIcons, int items) {
    OutBarScene scene;
    scene.client = {0, 0, 100, 300};
    scene.smallIcons = smallIcons;
    scene.folders = 4;
    scene.open = 1;
    scene.items = items;
    return scene;
}

OutBarLayout layout(const OutBarScene& scene) {
    return OutBarLayout(scene, [&](int) { return scene.smallIcons ? small : large; });
}

TEST(OutBarLayout, HeadersStackFromBothEnds) {
    const auto bar = layout(scene(false, 0));
    const struct {
        int folder;
        bool there;
        RECT rect;
    } rows[] = {{0, true, {0, -1, 100, 21}},   {1, true, {0, 21, 100, 43}}, {2, true, {0, 256, 100, 278}},
                {3, true, {0, 278, 100, 300}}, {-1, false, {0, 0, 0, 0}},   {4, false, {0, 0, 0, 0}},
                {INT_MAX, false, {0, 0, 0, 0}}};
    for (const auto& row : rows) {
        RECT rect;
        EXPECT_EQ(row.there, bar.folderRect(row.folder, rect)) << row.folder;
        EXPECT_EQ(row.rect, rect) << row.folder;
    }
    // Flush with the open header above and the next one below.
    EXPECT_EQ((RECT{0, 43, 100, 256}), bar.insideRect());
    OutBarScene empty = scene(false, 0);
    empty.folders = 0;
    empty.open = -1;
    EXPECT_EQ(empty.client, layout(empty).insideRect());
}

TEST(OutBarLayout, PartsOfAnItem) {
    struct Row {
        bool smallIcons;
        int firstItem, item;
        OutBarParts parts;
        RECT whole, icon, label;
    };
    const Row rows[] = {
        {false, 0, 0, large, {0, 43, 100, 98}, {34, 40, 66, 73}, {30, 78, 70, 90}},
        {false, 0, 2, large, {0, 169, 100, 224}, {34, 166, 66, 199}, {30, 204, 70, 216}},
        {false, 3, 2, large, {0, -20, 100, 35}, {34, -23, 66, 10}, {30, 15, 70, 27}},
        {true, 0, 0, small, {0, 43, 100, 59}, {7, 48, 23, 64}, {27, 50, 67, 62}},
        {true, 0, 2, small, {0, 95, 100, 111}, {7, 100, 23, 116}, {27, 102, 67, 114}},
        {true, 9, 9, small, {0, 43, 100, 59}, {7, 48, 23, 64}, {27, 50, 67, 62}},
        // Without an icon, and with a label wider than the bar.
        {false, 0, 0, {{0, 0}, {140, 24}}, {0, 43, 100, 78}, {50, 40, 50, 41}, {0, 46, 100, 70}},
        {true, 0, 0, {{0, 0}, {140, 12}}, {0, 43, 100, 55}, {7, 48, 7, 48}, {7, 48, 100, 60}},
    };
    for (const Row& row : rows) {
        OutBarScene what = scene(row.smallIcons, 10);
        what.firstItem = row.firstItem;
        const OutBarLayout bar(what, [&](int) { return row.parts; });
        const OutBarRow there = bar.row(row.item);
        EXPECT_EQ(row.whole, bar.itemRect(there)) << row.smallIcons << row.item;
        EXPECT_EQ(row.icon.left, bar.iconRect(there).left);
        if (row.parts.icon.cx > 0) {
            EXPECT_EQ(row.icon, bar.iconRect(there)) << row.smallIcons << row.item;
        }
        EXPECT_EQ(row.label, bar.labelRect(there)) << row.smallIcons << row.item;
    }
}

TEST(OutBarLayout, WhatIsInView) {
    const struct {
        bool smallIcons;
        int items, firstItem, last, whole;
        bool below;
        int furthest;
    } rows[] = {{false, 0, 0, 0, 0, false, 0},
                {false, 3, 0, 2, 3, false, 0},
                {false, 4, 0, 3, 3, true, 1},
                {false, 4, 1, 3, 3, false, 1},
                {false, 10000, 5000, 5003, 3, true, 9997},
                {true, 8, 0, 7, 8, false, 0},
                {true, 9, 0, 8, 8, true, 1},
                {true, 9, 8, 8, 1, false, 1}};
    for (const auto& row : rows) {
        OutBarScene what = scene(row.smallIcons, row.items);
        what.firstItem = row.firstItem;
        const auto bar = layout(what);
        EXPECT_EQ(row.last, bar.lastVisible()) << row.items;
        EXPECT_EQ(row.whole, bar.wholeItems()) << row.items;
        EXPECT_EQ(row.below, bar.itemsBelow()) << row.items;
        EXPECT_EQ(row.furthest, bar.furthestFirst()) << row.items;
    }
    // Eight that fit to the pixel.
    OutBarScene exact = scene(true, 9);
    exact.client.bottom = 285;
    EXPECT_EQ(8, layout(exact).wholeItems());
    EXPECT_EQ(1, layout(exact).furthestFirst());
    exact.client.bottom = 284;
    EXPECT_EQ(7, layout(exact).wholeItems());
    EXPECT_EQ(2, layout(exact).furthestFirst());
    // Items higher than the view: there is nothing below the last one.
    for (int firstItem : {8, 9}) {
        OutBarScene what = scene(false, 10);
        what.firstItem = firstItem;
        const OutBarLayout bar(what, [](int) { return OutBarParts{{0, 0}, {40, 2000}}; });
        EXPECT_EQ(firstItem == 8, bar.itemsBelow());
    }
}

TEST(OutBarLayout, HitsInTheirOrder) {
    struct Row {
        bool smallIcons;
        POINT point;
        OutBarHit hit;
        int index;
    };
    const Row rows[] = {
        {false, {50, 0}, OutBarHit::folder, 0},
        {false, {0, 20}, OutBarHit::folder, 0},
        {false, {99, 21}, OutBarHit::folder, 1},
        {false, {100, 21}, OutBarHit::none, -1},
        {false, {50, 42}, OutBarHit::folder, 1}, // the icon's moved-up edge lies under the header
        {false, {50, 43}, OutBarHit::item, 0},
        {false, {33, 50}, OutBarHit::none, -1},
        {false, {34, 50}, OutBarHit::item, 0},
        {false, {50, 75}, OutBarHit::none, -1}, // between icon and label
        {false, {31, 80}, OutBarHit::item, 0},
        {false, {50, 95}, OutBarHit::none, -1},
        {false, {50, 255}, OutBarHit::item, 3},
        {false, {50, 256}, OutBarHit::folder, 2},
        {false, {50, 299}, OutBarHit::folder, 3},
        {false, {50, 300}, OutBarHit::none, -1},
        {false, {-1, 50}, OutBarHit::none, -1},
        {true, {0, 43}, OutBarHit::item, 0},
        {true, {99, 58}, OutBarHit::item, 0},
        {true, {50, 59}, OutBarHit::none, -1},
        {true, {50, 69}, OutBarHit::item, 1},
    };
    for (const Row& row : rows) {
        int index = -7;
        EXPECT_EQ(row.hit, layout(scene(row.smallIcons, 10)).hit(row.point, index))
            << row.point.x << ", " << row.point.y;
        EXPECT_EQ(row.index, index) << row.point.x << ", " << row.point.y;
    }
    int index;
    EXPECT_EQ(OutBarHit::none, layout(OutBarScene{}).hit({50, 50}, index));
}

TEST(OutBarLayout, PlacesToDrop) {
    const struct {
        bool smallIcons;
        int items;
        LONG y;
        int index;
        RECT mark;
    } rows[] = {{false, 3, 44, 0, {0, 43, 100, 50}},     {false, 3, 69, 0, {0, 43, 100, 50}},
                {false, 3, 70, 1, {0, 95, 100, 102}},    {false, 3, 200, 3, {0, 221, 100, 228}},
                {false, 10, 250, 3, {0, 221, 100, 228}}, {true, 3, 50, 0, {0, 43, 100, 50}},
                {true, 3, 51, 1, {0, 66, 100, 73}},      {true, 3, 200, 3, {0, 118, 100, 125}},
                {true, 0, 200, 0, {0, 43, 100, 50}}};
    for (const auto& row : rows) {
        const OutBarScene what = scene(row.smallIcons, row.items);
        EXPECT_EQ(row.index, layout(what).dropIndex(row.y)) << row.y;
        EXPECT_EQ(row.mark, layout(what).dropRect(row.index)) << row.y;
    }
}

TEST(OutBarLayout, ArrowsNeedRoomForBoth) {
    const auto bar = layout(scene(false, 10));
    EXPECT_EQ((RECT{79, 47, 96, 64}), bar.upArrow({17, 17}));
    EXPECT_EQ((RECT{79, 235, 96, 252}), bar.downArrow({17, 17}));
    OutBarScene low = scene(false, 10);
    low.client.bottom = 128; // 41 inside
    EXPECT_EQ((RECT{}), layout(low).upArrow({17, 17}));
    low.client.bottom = 129;
    EXPECT_EQ((RECT{79, 47, 96, 64}), layout(low).upArrow({17, 17}));
    EXPECT_EQ((RECT{79, 64, 96, 81}), layout(low).downArrow({17, 17}));
}

bool holds(const RECT& rect, POINT point) {
    return point.x >= rect.left && point.x < rect.right && point.y >= rect.top && point.y < rect.bottom;
}

// Whatever a host puts into the fields: the answers stay in range and every walk ends.
TEST(OutBarLayout, AnySizesGiveAnswers) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const int sizes[] = {INT_MIN, -32767, -5, 0, 1, 7, 22, 300, 32767, INT_MAX};
    const auto any = [&] { return sizes[random() % std::size(sizes)]; };
    const auto some = [&] { return static_cast<int>(random() % 40); };
    for (int round = 0; round < 3000; ++round) {
        const bool wild = round % 2;
        OutBarScene what;
        what.client = {0, 0, wild ? any() : some() * 10, wild ? any() % 32768 : some() * 10};
        what.metrics = {any(), any(), any(), any(), any(), any(), any()};
        if (!wild)
            what.metrics = {some(), some(), some(), some(), some(), some(), some()};
        what.smallIcons = random() % 2;
        what.folders = some();
        what.open = what.folders > 0 ? static_cast<int>(random() % static_cast<unsigned>(what.folders)) : -1;
        what.items = some();
        what.firstItem = wild ? any() : 0;
        const OutBarLayout bar(what, [&](int item) {
            return wild ? OutBarParts{{item % 3 ? 32 : INT_MAX, item % 5 ? 32 : INT_MAX}, {INT_MAX, INT_MAX}}
                        : OutBarParts{{item % 3 * 16, 16}, {30, 12}};
        });
        EXPECT_LE(bar.lastVisible(), std::max(0, what.items - 1));
        EXPECT_LE(bar.wholeItems(), what.items);
        EXPECT_GE(bar.firstToShow(some()), 0);
        const POINT point = {some() * 10, some() * 10};
        EXPECT_LE(bar.dropIndex(point.y), what.items);
        bar.dropRect(any());
        int index;
        const OutBarHit hit = bar.hit(point, index);
        RECT rect;
        // The first header that holds the point is the one hit; a hit item is where it says.
        int header = -1;
        for (int i = what.folders - 1; i >= 0; --i)
            if (bar.folderRect(i, rect) && holds(rect, point))
                header = i;
        EXPECT_EQ(header >= 0, hit == OutBarHit::folder);
        EXPECT_TRUE(header < 0 || header == index);
        if (hit == OutBarHit::item) {
            const OutBarRow row = bar.row(index);
            EXPECT_TRUE(what.smallIcons
                            ? holds(bar.itemRect(row), point)
                            : holds(bar.iconRect(row), point) || holds(bar.labelRect(row), point));
        }
    }
}

// However many items there are, only those in view are asked for their sizes, be it that a host's spacing
// pulls them together.
TEST(OutBarLayout, AsksForWhatIsInView) {
    for (int spacing : {10, -50}) {
        for (int items : {100, 1000000}) {
            OutBarScene what = scene(true, items);
            what.metrics.smallSpacing = spacing;
            what.firstItem = items / 2;
            int asked = 0;
            const OutBarLayout bar(what, [&](int) {
                ++asked;
                return small;
            });
            int index;
            bar.hit({50, 190}, index); // a gap: nothing ends the walk early
            bar.lastVisible();
            bar.itemsBelow();
            bar.furthestFirst();
            bar.dropIndex(200);
            EXPECT_LT(asked, spacing < 0 ? 1100 : 60) << items;
        }
    }
}

} // namespace
