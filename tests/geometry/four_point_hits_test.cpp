#include <gtest/gtest.h>

#include "four_point.h"

using namespace orv::test;

// A frame 20 wide and 10 high, seen in its own directions: the same answers at every angle.
const struct Hit {
    double along, down, tol;
    bool in, on;
    bool inWhole; // by the integer class, where the border belongs to the frame
} hits[] = {
    {10, 5, 1, true, false, true},    {10, 5, 6, true, true, true},    {10, 1, 1, true, false, true},
    {10, 0, 0, false, false, true},   {10, 0, 1, true, true, true},    {10, -2, 2, false, false, false},
    {10, -2, 3, true, true, true},    {22, 5, 2, false, false, false}, {22, 5, 3, true, true, true},
    {22, 12, 2.5, true, false, true}, {22, 12, 3, true, true, true},   {10, 12, 2, false, false, false},
    {-2, 5, 2, false, false, false},  {-2, 5, 3, true, true, true},    {1, 5, -2, false, false, false},
    {2, 5, -1, true, false, true},
};

TEST(FourPointHits, PointsInAndOnTheTurnedFrame) {
    for (double angle : {0.0, pi / 2, pi, -pi / 2})
        for (const Hit& hit : hits)
            for (bool crossed : {false, true}) { // the same shape with negative sizes
                const CPosition p(100 + hit.along * cos(angle) + hit.down * sin(angle),
                                  50 - hit.along * sin(angle) + hit.down * cos(angle));
                CFPDRect r(100, 50, 120, 60, angle);
                if (crossed) {
                    r.SetSlopeLeftTop(r.GetSlopeRightBottom());
                    r.SetWidth(-20);
                    r.SetHeight(-10);
                }
                // Off the right angles' rounding: no row but those that lie exactly at a limit is nearer than
                // this.
                const double nudge = angle == 0 ? 0 : hit.in ? 1e-9 : -1e-9;
                EXPECT_EQ(r.PtInRect(p, hit.tol + nudge), hit.in)
                    << hit.along << " " << hit.down << " in " << r;
                EXPECT_EQ(r.PtOnRect(p, hit.tol + (hit.on ? 1e-9 : -1e-9)), hit.on)
                    << hit.along << " " << hit.down << " on " << r;
                if (hit.tol != floor(hit.tol))
                    continue;
                CFPRect whole(100, 50, 120, 60, angle);
                EXPECT_EQ(whole.PtInRect(CPoint(lround(p.x), lround(p.y)), static_cast<LONG>(hit.tol)),
                          hit.inWhole)
                    << hit.along << " " << hit.down << " in " << whole;
            }
}

TEST(FourPointHits, ADisplayedCornerIsFoundByItsBorder) {
    for (double angle : angles)
        for (const auto& h : handles<CFPRect>) {
            const CFPRect r(100, 50, 171, 113, angle);
            const bool onBorder = h.x != 1 || h.y != 1;
            EXPECT_EQ(r.PtOnRect((r.*h.slope)(), 2), onBorder) << h.name << " of " << r;
            EXPECT_TRUE(r.PtInRect((r.*h.slope)(), 2)) << h.name << " of " << r;
        }
    EXPECT_TRUE(CFPRect(20, 10, 0, 0, 0).PtInRect(CPoint(22, -2), 3)); // negative sizes
    EXPECT_FALSE(CFPRect(20, 10, 0, 0, 0).PtInRect(CPoint(23, 0), 3));
    EXPECT_FALSE(CFPRect(5, 5, 6, 9, 0).PtInRect(CPoint(5, 7), -1)); // thinner than the tolerance
}

TEST(FourPointHits, APointOnTheBorderIsSnappedToIt) {
    for (double angle : angles) {
        const CFPDRect r(100, 50, 120, 60, angle);
        const struct {
            double along, down, tol;
            bool found;
            double toAlong, toDown;
        } rows[] = {{5, 1, 2, true, 5, 0},      {5, -1, 2, true, 5, 0},  {23, 14, 6, true, 20, 10},
                    {23, 14, 4.9, false, 0, 0}, {19, 4, 2, true, 20, 4}, {1, 4, 2, true, 0, 4},
                    {9, 9, 2, true, 9, 10},     {10, 5, 4, false, 0, 0}};
        for (const auto& row : rows) {
            const CPosition given = expectedAt(r, row.along / 10, row.down / 5);
            CPosition p(given);
            EXPECT_EQ(r.IsPtOnRect(p, row.tol), row.found) << row.along << " " << row.down << " on " << r;
            const CPosition target = row.found ? expectedAt(r, row.toAlong / 10, row.toDown / 5) : given;
            EXPECT_LT(apart(p, target), 1e-9) << row.along << " " << row.down << " on " << r;
        }
    }
}

TEST(FourPointHits, CaughtByAWindow) {
    const CFPDRect flat(0, 0, 20, 10, 0), crossed(20, 10, 0, 0, 0),
        diamond(0, 10, 10, 20, pi / 4); // corners (0, 10), (7.07, 2.93), ...
    const struct {
        const CFPDRect& r;
        CDouRect window;
        double tol;
        bool wholly, partly;
    } rows[] = {
        {flat, {-1, -1, 21, 11}, 0, true, true},
        {flat, {21, 11, -1, -1}, 0, true, true}, // pulled up from the other corner
        {flat, {0, 0, 20, 10}, 0, false, true},
        {flat, {0, 0, 20, 10}, 0.1, true, true},
        {flat, {20, 0, 30, 10}, 0, false, false}, // touching
        {flat, {20, 0, 30, 10}, 0.1, false, true},
        {flat, {5, 4, 6, 5}, 0, false, true},   // the window inside the frame
        {flat, {5, -5, 6, 15}, 0, false, true}, // crossing like a plus sign
        {diamond, {0, 3, 14.2, 18}, 0, false, true},
        {diamond, {-1, 2, 15, 18}, 0, true, true},
        {diamond, {0, 0, 2, 4}, 0, false, false}, // in the box, beside the slope
        {diamond, {0, 0, 2, 4}, 3.1, false, true},
        {diamond, {0, 0, 3, 8}, 0, false, true},
        {diamond, {15, -20, 40, 40}, 0, false, false}, // beside the box
        {crossed, {5, 4, 6, 5}, 0, false, true},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.r.RectInRect(row.window, row.tol, 0), row.wholly)
            << row.r << " in " << Ltrb(row.window);
        EXPECT_EQ(row.r.RectInRect(row.window, row.tol, 1), row.partly)
            << row.r << " in " << Ltrb(row.window);
    }
    EXPECT_TRUE(CFPRect(0, 0, 20, 10, 0).RectInRect(CDouRect(0, 0, 20, 10), 1, 0));
    EXPECT_FALSE(CFPRect(0, 10, 10, 20, pi / 4).RectInRect(CDouRect(0, 0, 2, 4), 0, 1));
}

TEST(FourPointHits, MeasuresAndBox) {
    const CFPDRect r(0, 0, -3, 4, 30 * degree);
    EXPECT_EQ(r.GetDiagonalLength(), 5);
    EXPECT_EQ(r.GetArea(), 12);
    EXPECT_EQ(r.GetPerimeter(), 14);
    EXPECT_EQ(CFPRect(0, 0, 100000, 100000, 0).GetArea(), 1e10);
    CDouRect box;
    CFPDRect(0, 0, 20, 10, 30 * degree).GetBox(box);
    EXPECT_NEAR(box.left, 0, 1e-9);
    EXPECT_NEAR(box.top, -10, 1e-9);
    EXPECT_NEAR(box.right, 20 * cos(pi / 6) + 5, 1e-9);
    EXPECT_NEAR(box.bottom, 10 * cos(pi / 6), 1e-9);
    CRect whole;
    CFPRect(0, 0, 20, 10, 200 * degree).GetBox(whole);
    EXPECT_EQ(Ltrb(whole.left, whole.top, whole.right, whole.bottom), Ltrb(-22, -9, 0, 7));
}

TEST(FourPointHits, OnlyTheValuesDecideOnEmpty) {
    EXPECT_TRUE(CFPDRect().IsRectEmpty());
    EXPECT_TRUE(CFPDRect(-5, -5, -1, -1, 0).IsRectEmpty());
    EXPECT_TRUE(CFPDRect(0, 0, 9e-7, 0, -2).IsRectEmpty());
    const double limit = 1e-6;
    for (int field = 0; field < 5; ++field)
        EXPECT_FALSE(CFPDRect(field == 0 ? limit : 0, field == 1 ? limit : 0, field == 2 ? limit : 0,
                              field == 3 ? limit : 0, field == 4 ? limit : 0)
                         .IsRectEmpty());
}
