#include <orvfc/geometry/planentity.h>

#include <gtest/gtest.h>

#include "printing.h"

constexpr double pi = 3.14159265358979323846;

TEST(Rect, PointsOnIt) {
    const CDouRect r(10, 20, 30, 50);
    EXPECT_EQ(Xy(r.Size()), Xy(20, 30));
    EXPECT_EQ(Xy(r.TopLeft()), Xy(10, 20));
    EXPECT_EQ(Xy(r.TopRight()), Xy(30, 20));
    EXPECT_EQ(Xy(r.BottomRight()), Xy(30, 50));
    EXPECT_EQ(Xy(r.BottomLeft()), Xy(10, 50));
    EXPECT_EQ(Xy(r.TopMid()), Xy(20, 20));
    EXPECT_EQ(Xy(r.RightMid()), Xy(30, 35));
    EXPECT_EQ(Xy(r.BottomMid()), Xy(20, 50));
    EXPECT_EQ(Xy(r.LeftMid()), Xy(10, 35));
    EXPECT_EQ(Xy(r.CenterPoint()), Xy(20, 35));
    const CDouRect turned(30, 50, 10, 20);
    EXPECT_EQ(Xy(turned.Size()), Xy(-20, -30)); // nothing is normalised
    EXPECT_EQ(Xy(turned.CenterPoint()), Xy(20, 35));
}

TEST(Rect, EmptyAndNull) {
    const struct {
        DOURECT r;
        bool empty, null;
    } rows[] = {
        {{0, 0, 0, 0}, true, true},
        {{5, 5, 5, 5}, true, false},
        {{0, 0, 0, 10}, false, false}, // a line is not empty
        {{0, 0, 10, 0}, false, false},
        {{5, 5, 0, 0}, true, false}, // negative extents are
        {{5, 5, 0, 10}, false, false},
        {{0, 0, 0.9e-6, 0.9e-6}, true, true},
        {{0, 0, 1.1e-6, 0.9e-6}, false, false},
        {{-0.9e-6, 0, 0, 0}, true, true},
        {{-1.1e-6, 0, 0, 0}, false, false},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(CDouRect(row.r).IsRectEmpty(), row.empty) << Ltrb(row.r);
        EXPECT_EQ(CDouRect(row.r).IsRectNull(), row.null) << Ltrb(row.r);
    }
}

TEST(Rect, Normalising) {
    const struct {
        DOURECT r;
        Ltrb down, up;
    } rows[] = {
        {{0, 0, 10, 10}, {0, 0, 10, 10}, {0, 10, 10, 0}},
        {{10, 9, 1, 2}, {1, 2, 10, 9}, {1, 9, 10, 2}},
        {{1, 5, 1, 5}, {1, 5, 1, 5}, {1, 5, 1, 5}},
    };
    for (const auto& row : rows) {
        CDouRect down(row.r), up(row.r);
        down.NormalizeRect();
        up.NormalizeRectNotY();
        EXPECT_EQ(Ltrb(down), row.down) << Ltrb(row.r);
        EXPECT_EQ(Ltrb(up), row.up) << Ltrb(row.r);
    }
    CDouRect r(1, 2, 3, 4);
    r.SwapLeftRight();
    EXPECT_EQ(Ltrb(r), Ltrb(3, 2, 1, 4));
    CDouRect::SwapLeftRight(&r);
    EXPECT_EQ(Ltrb(r), Ltrb(1, 2, 3, 4));
}

TEST(Rect, MovedAndScaledAboutTheCentre) {
    CDouRect r(10, 20, 30, 50);
    EXPECT_EQ(r.SetCentrePoint(CPosition(0, 0)), TRUE);
    EXPECT_EQ(Ltrb(r), Ltrb(-10, -15, 10, 15));
    r = CDouRect(10, 20, 30, 50);
    r *= 2;
    EXPECT_EQ(Ltrb(r), Ltrb(0, 5, 40, 65));
    r *= -0.5;
    EXPECT_EQ(Ltrb(r), Ltrb(30, 50, 10, 20));
}

TEST(Rect, TurningMovesTwoCornersOnly) {
    CPosition origin(0, 0), diagonal(1, 1);
    const CDouRect r(10, 20, 30, 50);
    const CDouRect turned = r.Rotate(origin, pi / 2);
    EXPECT_NEAR(turned.left, 20, 1e-12);
    EXPECT_NEAR(turned.top, -10, 1e-12);
    EXPECT_NEAR(turned.right, 50, 1e-12);
    EXPECT_NEAR(turned.bottom, -30, 1e-12); // neither normalised nor the box around
    EXPECT_EQ(Ltrb(r.Mirror(origin, diagonal)), Ltrb(20, 10, 50, 30));
    EXPECT_EQ(Ltrb(r), Ltrb(10, 20, 30, 50));
}

TEST(Rect, Sameness) {
    const CDouRect r(1, 2, 3, 4);
    const DOURECT within{1.4, 1.6, 3.4, 3.6};
    EXPECT_TRUE(r.IsSame(&within, 0.5));
    for (int side = 0; side < 4; ++side) {
        double v[] = {1, 2, 3, 4};
        v[side] += 0.5; // exactly the tolerance
        const DOURECT off{v[0], v[1], v[2], v[3]};
        EXPECT_FALSE(r.IsSame(&off, 0.5)) << side;
        EXPECT_TRUE(r.IsSame(&off, 0.51)) << side;
    }
}
