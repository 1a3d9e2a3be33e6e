// The cells of the palette window.

#include <orvfc/pickers/PaletteGrid.h>

#include <gtest/gtest.h>

using orv::GridStep;
using orv::PaletteGrid;

namespace {

const CSize kRoom(1280, 1024);

TEST(PaletteGrid, EveryCellIsHitAndInside) {
    const struct {
        int squares;
        bool wide;
        CSize room;
        int cells; // that have room
    } rows[] = {
        {19, true, kRoom, 20},         {0, true, kRoom, 1},
        {0, false, kRoom, 0},          {1, false, kRoom, 1},
        {16, true, kRoom, 17},         {17, false, kRoom, 17},
        {5000, true, kRoom, 5001},     {-3, false, kRoom, 0},
        {500, true, {100, 1024}, 501}, {5000, true, {200, 150}, 38 * 23 + 1},
        {9, true, {1, 1}, 2},          {9, false, {-50, -50}, 1},
    };
    for (const auto& row : rows) {
        const PaletteGrid grid(row.squares, row.wide, row.room);
        EXPECT_EQ(row.cells, grid.count()) << row.squares << " in " << row.room.cx;
        const CRect all(CPoint(0, 0), grid.size());
        for (int i = 0; i < grid.count(); ++i) {
            const CRect cell = grid.cell(i);
            ASSERT_FALSE(cell.IsRectEmpty()) << i;
            CRect both;
            both.UnionRect(&all, &cell);
            ASSERT_EQ(all, both) << i;
            ASSERT_EQ(i, grid.hit(cell.TopLeft()));
            ASSERT_EQ(i, grid.hit(cell.BottomRight() - CSize(1, 1)));
            ASSERT_NE(i, grid.hit(cell.BottomRight()));
        }
        EXPECT_EQ(-1, grid.hit(CPoint(0, 0)));
        EXPECT_EQ(-1, grid.hit(CPoint(-5, 10)));
        EXPECT_EQ(-1, grid.hit(CPoint(grid.size().cx, grid.size().cy)));
        EXPECT_TRUE(grid.cell(grid.count()).IsRectEmpty());
    }
    EXPECT_EQ(-1, PaletteGrid(19, true, kRoom).hit(CPoint(4 + 7 * 20, 4 + 2 * 20)))
        << "the gap in the last row";
}

TEST(PaletteGrid, KeysLead) {
    const PaletteGrid grid(19, true, kRoom); // 8, 8, 3 and the wide one
    const struct {
        int from;
        GridStep way;
        int to;
    } rows[] = {
        {-1, GridStep::down, 0},   {-1, GridStep::last, 19}, {0, GridStep::left, 0},
        {0, GridStep::up, 0},      {7, GridStep::right, 8},  {3, GridStep::down, 11},
        {11, GridStep::down, 19},  {16, GridStep::down, 19}, {19, GridStep::down, 19},
        {19, GridStep::right, 19}, {19, GridStep::up, 18},   {18, GridStep::up, 10},
        {19, GridStep::left, 18},  {5, GridStep::first, 0},  {5, GridStep::last, 19},
        {99, GridStep::left, 0},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.to, grid.step(row.from, row.way)) << row.from << " by " << int(row.way);
    EXPECT_EQ(10, PaletteGrid(18, false, kRoom).step(10, GridStep::down));
    EXPECT_EQ(-1, PaletteGrid(0, false, kRoom).step(-1, GridStep::first));
}

TEST(PaletteGrid, OpensWhereThereIsRoom) {
    const CRect area(0, 0, 1000, 800);
    const struct {
        CRect anchor;
        CPoint at;
    } rows[] = {
        {{100, 100, 150, 120}, {100, 120}}, {{100, 700, 150, 720}, {100, 400}},
        {{950, 100, 990, 120}, {800, 120}}, {{-40, 100, 10, 120}, {0, 120}},
        {{100, 380, 150, 520}, {100, 80}},  {{100, -50, 150, 790}, {100, 500}},
        {{100, 250, 150, 560}, {100, 0}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.at, orv::placeAt(row.anchor, CSize(200, 300), area)) << row.anchor.top;
}

} // namespace
