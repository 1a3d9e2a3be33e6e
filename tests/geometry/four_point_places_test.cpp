#include <gtest/gtest.h>

#include "four_point.h"

using namespace orv::test;

namespace {

template <class Frame>
class FourPointPlaces : public testing::Test {};
using Frames = testing::Types<CFPDRect, CFPRect>;
TYPED_TEST_SUITE(FourPointPlaces, Frames, );

TYPED_TEST(FourPointPlaces, SlopePointsAreTheUprightOnesTurnedAboutTheAnchor) {
    for (double angle : angles)
        for (const TypeParam& r : {TypeParam(10, 20, 31, 60, angle), TypeParam(10, 20, -31, 7, angle)})
            for (const auto& h : handles<TypeParam>) {
                const TypeParam flat(r.left, r.top, r.right, r.bottom, 0);
                EXPECT_LT(apart((r.*h.upright)(), expectedAt(flat, h.x, h.y)), Types<TypeParam>::rounding)
                    << h.name;
                EXPECT_LT(apart((r.*h.slope)(), expectedAt(r, h.x, h.y)), Types<TypeParam>::rounding)
                    << h.name << " of " << r;
            }
    const TypeParam up(0, 0, 20, 10, pi / 2);
    EXPECT_LT(apart(up.GetSlopeRightTop(), CPosition(0, -20)), 1e-9);
}

TYPED_TEST(FourPointPlaces, ASlopePointIsPutWhereItShallLie) {
    using Point = typename Types<TypeParam>::Point;
    for (double angle : angles)
        for (int w = -7; w <= 7; ++w)
            for (const auto& h : handles<TypeParam>)
                for (const Point& p : {Point(40, -30), Point(-3, 2), Point(0, 0), Point(-1, -1)}) {
                    TypeParam r(10, 20, 10 + w, 23, angle);
                    (r.*h.setSlope)(p);
                    // Whole units have gaps where a frame reaches across an axis.
                    const double gap = p.x == 40 ? 1e-9 : Types<TypeParam>::rounding;
                    EXPECT_LT(apart((r.*h.slope)(), p), gap) << h.name << " of " << r;
                    EXPECT_NEAR(r.GetWidth(), w, 1e-9);
                    EXPECT_NEAR(r.GetHeight(), 3, 1e-9);
                    EXPECT_EQ(r.GetAngle(), angle);
                }
}

template <class Frame>
struct Moved {
    const char* name;
    void (Frame::*move)(const typename Types<Frame>::Point&);
    typename Types<Frame>::Point (Frame::*read)() const;
};

template <class Frame>
void expectMoved(const Moved<Frame>& row) {
    const typename Types<Frame>::Point p(-33, 12);
    Frame r(10, 20, 15, 23, 30 * degree);
    (r.*row.move)(p);
    EXPECT_LT(apart((r.*row.read)(), p), 1e-9) << row.name;
    EXPECT_NEAR(r.GetWidth(), 5, 1e-9) << row.name;
    EXPECT_NEAR(r.GetHeight(), 3, 1e-9) << row.name;
}

#define MOVED(name)                                                                                          \
    {#name, &Frame::Position##name, &Frame::Get##name}, {                                                    \
        "Slope" #name, &Frame::PositionSlope##name, &Frame::GetSlope##name                                   \
    }

TYPED_TEST(FourPointPlaces, PositioningMovesWithoutChangingTheSize) {
    using Frame = TypeParam;
    const Moved<Frame> rows[] = {MOVED(LeftMid), MOVED(TopMid), MOVED(RightMid), MOVED(BottomMid)};
    for (const auto& row : rows)
        expectMoved(row);
    Frame r(10, 20, 16, 24, 1);
    r.PositionTopMid(typename Types<Frame>::Point(50, 60));
    EXPECT_EQ(sides(r), Ltrb(47, 60, 53, 64));
}

TEST(FourPointDouPlaces, PositioningCornersAndCentre) {
    using Frame = CFPDRect;
    const Moved<Frame> rows[] = {MOVED(LeftTop), MOVED(LeftBottom), MOVED(RightTop), MOVED(RightBottom),
                                 MOVED(Centre)};
    for (const auto& row : rows)
        expectMoved(row);
}

TYPED_TEST(FourPointPlaces, SettersOfTwoCoordinates) {
    using Number = typename Types<TypeParam>::Number;
    const struct {
        const char* name;
        void (TypeParam::*set)(Number, Number);
        Ltrb expected;
    } rows[] = {
        {"SetRectLeftTop", &TypeParam::SetRectLeftTop, {1, 2, 30, 60}},
        {"SetRectRightBottom", &TypeParam::SetRectRightBottom, {10, 20, 1, 2}},
        {"SetLeftTop", &TypeParam::SetLeftTop, {1, 2, 21, 100}}, // moves sideways, grows downwards
        {"SetLeftBottom", &TypeParam::SetLeftBottom, {1, 20, 30, 2}},
        {"SetRightTop", &TypeParam::SetRightTop, {10, 2, 1, 60}},
        {"SetRightBottom", &TypeParam::SetRightBottom, {10, 20, 1, 2}},
        {"SetLeftMid", &TypeParam::SetLeftMid, {1, 20, 30, -16}},
        {"SetRightMid", &TypeParam::SetRightMid, {10, 20, 1, -16}},
        {"SetTopMid", &TypeParam::SetTopMid, {10, 2, -8, 60}},
        {"SetBottomMid", &TypeParam::SetBottomMid, {10, 20, -8, 2}},
        {"SetCentre", &TypeParam::SetCentre, {-9, -18, 11, 22}},
    };
    for (const auto& row : rows) {
        TypeParam r(10, 20, 30, 60, 0.5);
        (r.*row.set)(1, 2);
        EXPECT_EQ(sides(r), row.expected) << row.name;
        EXPECT_EQ(r.GetAngle(), 0.5) << row.name;
    }
}

TYPED_TEST(FourPointPlaces, SettersOfOneValue) {
    using Number = typename Types<TypeParam>::Number;
    const struct {
        const char* name;
        void (TypeParam::*set)(Number);
        Number value;
        Ltrb expected;
    } rows[] = {
        {"SetLeft", &TypeParam::SetLeft, 1, {1, 20, 30, 60}},
        {"SetTop", &TypeParam::SetTop, 1, {10, 1, 30, 60}},
        {"SetRight", &TypeParam::SetRight, 1, {10, 20, 1, 60}},
        {"SetBottom", &TypeParam::SetBottom, 1, {10, 20, 30, 1}},
        {"SetWidth", &TypeParam::SetWidth, -4, {10, 20, 6, 60}},
        {"SetHeight", &TypeParam::SetHeight, 4, {10, 20, 30, 24}},
        {"SetCentreWidth", &TypeParam::SetCentreWidth, 4, {18, 20, 22, 60}},
        {"SetCentreHeight", &TypeParam::SetCentreHeight, 4, {10, 38, 30, 42}},
    };
    for (const auto& row : rows) {
        TypeParam r(10, 20, 30, 60, 0.5);
        (r.*row.set)(row.value);
        EXPECT_EQ(sides(r), row.expected) << row.name;
    }
}

TEST(FourPointIntPlaces, HalvesAreCutTowardZero) {
    CFPRect r(-4, -7, 1, 2, 0);
    EXPECT_EQ(Xy(r.GetCentre()), Xy(-1, -2));
    r.SetRect(2, 20, 8, 30, 0);
    r.SetCentreWidth(7); // 5 - 3, 5 + 3
    r.SetCentreHeight(1);
    EXPECT_EQ(sides(r), Ltrb(2, 25, 8, 25));
}

TYPED_TEST(FourPointPlaces, FromPoints) {
    const TypeParam flat(0, 0, 0, 10, 20, 10, 20, 0);
    EXPECT_EQ(sides(flat), Ltrb(0, 0, 20, 10));
    EXPECT_EQ(flat.GetAngle(), 0);
    using Point = typename Types<TypeParam>::Point;
    const TypeParam up(Point(5, 5), Point(9, 5), Point(99, 99), Point(5, -2)); // the third is not looked at
    EXPECT_EQ(sides(up), Ltrb(5, 5, 12, 9));
    EXPECT_DOUBLE_EQ(up.GetAngle(), pi / 2);
    TypeParam r;
    EXPECT_EQ(sides(r), Ltrb(0, 0, 0, 0));
    r.SetRectTwoPoint(1, 2, 1, -50, 30, 7);
    EXPECT_EQ(sides(r), Ltrb(1, 2, 31, 9));
    EXPECT_DOUBLE_EQ(r.GetAngle(), pi / 2);
    Point lt, lb, rb, rt;
    r.GetRectFourPoint(lt, lb, rb, rt);
    EXPECT_EQ(Xy(lb), Xy(1, 9));
    EXPECT_EQ(Xy(rt), Xy(31, 2));
    r = TypeParam(lt, lb, rb, rt);
    EXPECT_EQ(r.GetAngle(), 0);
    r.Init();
    EXPECT_EQ(sides(r), Ltrb(0, 0, 0, 0));
}

TEST(FourPointIntPlaces, LengthsOfPointsAreCut) {
    CFPRect r(0, 0, 4, 3, 30 * degree);
    const CFPRect again(r.GetSlopeLeftTop(), r.GetSlopeLeftBottom(), r.GetSlopeRightBottom(),
                        r.GetSlopeRightTop());
    EXPECT_EQ(sides(again), Ltrb(0, 0, 3, 3)); // right-top at (3, -2): sqrt(13) long
    EXPECT_DOUBLE_EQ(again.GetAngle(), atan2(2, 3));
}

TEST(FourPointDouPlaces, FromRectangles) {
    CFPDRect r(1, 2, 3, 4, 5);
    r = CDouRect(10, 0, 0, 5);
    EXPECT_EQ(sides(r), Ltrb(10, 0, 0, 5));
    EXPECT_EQ(r.GetAngle(), 0);
    r.SetRectRectangle(CDouRect(10, 0, 0, 5));
    EXPECT_EQ(sides(r), Ltrb(10, 0, 20, 5));
    EXPECT_DOUBLE_EQ(r.GetAngle(), pi);
    r = CRect(1, 2, 3, 4);
    EXPECT_EQ(sides(r), Ltrb(1, 2, 3, 4));
    EXPECT_EQ(r.GetAngle(), 0);
    r.SetAngle(1);
    r.SetRectTwoPos(CPosition(4, 3), CPosition(2, 1));
    EXPECT_EQ(sides(r), Ltrb(4, 3, 2, 1));
    EXPECT_EQ(r.GetAngle(), 0);
    const DOURECT by{1, 2, 3, 4};
    r.SetRect(0, 0, 10, 10, 1);
    r.InflateRect(0); // neither a null pointer nor a double
    r.InflateRect(&by);
    EXPECT_EQ(sides(r), Ltrb(-1, -2, 13, 14));
    r.DeflateRect(1, 2, 3, 4);
    r.InflateRect(DOUSIZE{1, 2});
    EXPECT_EQ(sides(r), Ltrb(-1, -2, 11, 12));
    r.DeflateRect(1, 2);
    r.InflateRect(0.5);
    EXPECT_EQ(sides(r), Ltrb(-0.5, -0.5, 10.5, 10.5));
}

} // namespace
