#include <orvfc/geometry/planentity.h>

#include <type_traits>

#include <gtest/gtest.h>

#include "printing.h"

// What a host writes must compile and mean one thing, with whole numbers, doubles, points and literals.

static_assert(sizeof(DOUPOINT) == 16 && sizeof(DOUSIZE) == 16 && sizeof(DOURECT) == 32);
static_assert(std::is_trivial_v<DOUPOINT> && std::is_trivial_v<DOUSIZE> && std::is_trivial_v<DOURECT>);
static_assert(std::has_virtual_destructor_v<CPosition>);
static_assert(!std::is_polymorphic_v<CDouSize> && !std::is_polymorphic_v<CDouRect>);
static_assert(sizeof(CDouSize) == 16 && sizeof(CDouRect) == 32);

TEST(Overloads, AnIndexIsNeverPointerArithmetic) {
    CPosition p(3, 4);
    const CPosition& fixed = p;
    EXPECT_EQ(p[0], 3);
    EXPECT_EQ(p[-1], 3);
    EXPECT_EQ(p[2u], 3);
    EXPECT_EQ(p[short(1)], 4);
    EXPECT_EQ(p[INT_PTR(1)], 4);
    EXPECT_EQ(p[size_t(7)], 3);
    EXPECT_EQ(fixed[1], 4);
    p[7] = 5;
    p[1] = 6;
    EXPECT_EQ(Xy(p), Xy(5, 6));
}

TEST(Overloads, APointHandsItselfOutAsTwoDoubles) {
    CPosition p(3, 4);
    const CPosition fixed(5, 6);
    double* written = p;
    const double* read = fixed;
    written[0] += read[0];
    written[1] += read[1];
    EXPECT_EQ(Xy(p), Xy(8, 10));
}

TEST(Overloads, PointsFromWhateverAHostHas) {
    const double two[] = {1, 2};
    CPosition p(two);
    EXPECT_EQ(Xy(p), Xy(1, 2));
    p = CPoint(-3, 4);
    EXPECT_EQ(Xy(p), Xy(-3, 4));
    p = POINT{5, 6};
    EXPECT_EQ(Xy(p), Xy(5, 6));
    EXPECT_EQ(Xy(CPosition(CPoint(7, 8))), Xy(7, 8));
    EXPECT_EQ(Xy(CPosition(1, 2.5)), Xy(1, 2.5));
    p.Set(9, 10);
    EXPECT_EQ(Xy(p), Xy(9, 10));
    p.Set(two);
    EXPECT_EQ(Xy(p), Xy(1, 2));
}

TEST(Overloads, ArithmeticOfPoints) {
    CPosition p(3, 4), q(1, 1);
    EXPECT_EQ(Xy(p + q), Xy(4, 5));
    EXPECT_EQ(Xy(p - q), Xy(2, 3));
    EXPECT_EQ(Xy(p * 2), Xy(6, 8));
    EXPECT_EQ(Xy(2 * p), Xy(6, 8));
    EXPECT_EQ(Xy(p * 0.5), Xy(1.5, 2));
    p += q;
    p -= CPosition(2, 2);
    p *= 3;
    EXPECT_EQ(Xy(p), Xy(6, 9));
    p *= p.x; // the factor may be the point's own coordinate
    EXPECT_EQ(Xy(p), Xy(36, 54));
    EXPECT_TRUE(p == CPosition(36, 54 + 0.9e-6));
    EXPECT_TRUE(p != CPosition(36, 54 + 1.1e-6));
}

TEST(Overloads, Sizes) {
    const CPosition p(10, 20);
    const DOUPOINT dp{1, 2};
    const DOUSIZE ds{3, 4};
    const DOURECT r{0, 0, 5, 5};
    CDouSize s(1, 2);
    EXPECT_EQ(Xy(CDouSize(dp)), Xy(1, 2));
    EXPECT_EQ(Xy(CDouSize(ds)), Xy(3, 4));
    EXPECT_EQ(Xy(CDouSize(CSize(5, 6))), Xy(5, 6));
    EXPECT_EQ(Xy(CDouSize(p)), Xy(10, 20));
    EXPECT_EQ(Xy(s + s), Xy(2, 4));
    EXPECT_EQ(Xy(s + ds), Xy(4, 6));
    EXPECT_EQ(Xy(s - ds), Xy(-2, -2));
    EXPECT_EQ(Xy(-s), Xy(-1, -2));
    EXPECT_EQ(Xy(s + dp), Xy(2, 4));
    EXPECT_EQ(Xy(s - p), Xy(-9, -18));
    EXPECT_EQ(Ltrb(s + &r), Ltrb(1, 2, 6, 7));
    EXPECT_EQ(Ltrb(s - &r), Ltrb(-1, -2, 4, 3)); // the rectangle shifted back, not the size less it
    s += ds;
    s -= CDouSize(1, 1);
    s *= 2;
    EXPECT_EQ(Xy(s), Xy(6, 10));
    EXPECT_EQ(Xy(s.Offset(1, -1)), Xy(7, 9));
    EXPECT_EQ(Xy(s.Offset(p)), Xy(16, 30));
    EXPECT_TRUE(s.IsSame(CDouSize(6.5, 9.5), 0.6));
    EXPECT_FALSE(s.IsSame(CDouSize(6, 10.5), 0.5));
}

TEST(Overloads, RectanglesFromWhateverAHostHas) {
    const CPosition a(1, 2), b(3, 5);
    const DOURECT plain{1, 2, 3, 5};
    CDouRect assigned, fromWhole, byPoints, bySides, copied;
    assigned = plain;
    fromWhole = CRect(1, 2, 3, 5);
    byPoints.SetRect(a, b);
    bySides.SetRect(1, 2, 3, 5);
    copied.CopyRect(&plain);
    const CDouRect all[] = {CDouRect(1, 2, 3, 5),
                            CDouRect(plain),
                            CDouRect(&plain),
                            CDouRect(a, b),
                            CDouRect(a, CDouSize(2, 3)),
                            CDouRect(DOUPOINT{1, 2}, DOUSIZE{2, 3}),
                            CDouRect(CRect(1, 2, 3, 5)),
                            assigned,
                            fromWhole,
                            byPoints,
                            bySides,
                            copied};
    for (const CDouRect& r : all)
        EXPECT_EQ(Ltrb(r), Ltrb(1, 2, 3, 5)) << "form " << &r - all;
}

TEST(Overloads, InflateInAllForms) {
    const CDouRect start(10, 20, 30, 40);
    const DOURECT by{1, 2, 3, 4};
    const struct {
        const char* form;
        CDouRect (*act)(CDouRect r, const DOURECT& by);
        Ltrb result;
    } rows[] = {
        {"0", [](CDouRect r, const DOURECT&) { return r.InflateRect(0), r; }, {10, 20, 30, 40}},
        {"whole", [](CDouRect r, const DOURECT&) { return r.InflateRect(2), r; }, {8, 18, 32, 42}},
        {"unsigned", [](CDouRect r, const DOURECT&) { return r.InflateRect(2u), r; }, {8, 18, 32, 42}},
        {"double", [](CDouRect r, const DOURECT&) { return r.InflateRect(0.5), r; }, {9.5, 19.5, 30.5, 40.5}},
        {"float", [](CDouRect r, const DOURECT&) { return r.InflateRect(0.5f), r; }, {9.5, 19.5, 30.5, 40.5}},
        {"two", [](CDouRect r, const DOURECT&) { return r.InflateRect(0, 2.5), r; }, {10, 17.5, 30, 42.5}},
        {"size",
         [](CDouRect r, const DOURECT&) { return r.InflateRect(CDouSize(1, 2)), r; },
         {9, 18, 31, 42}},
        {"four", [](CDouRect r, const DOURECT&) { return r.InflateRect(1, 2, 3, 4), r; }, {9, 18, 33, 44}},
        {"rect", [](CDouRect r, const DOURECT& d) { return r.InflateRect(&d), r; }, {9, 18, 33, 44}},
        {"+=", [](CDouRect r, const DOURECT& d) { return r += &d; }, {9, 18, 33, 44}},
        {"+", [](CDouRect r, const DOURECT& d) { return r + &d; }, {9, 18, 33, 44}},
        {"+= itself", [](CDouRect r, const DOURECT&) { return r += &r; }, {0, 0, 60, 80}},
        {"-0", [](CDouRect r, const DOURECT&) { return r.DeflateRect(0), r; }, {10, 20, 30, 40}},
        {"-one", [](CDouRect r, const DOURECT&) { return r.DeflateRect(2), r; }, {12, 22, 28, 38}},
        {"-two", [](CDouRect r, const DOURECT&) { return r.DeflateRect(1, 2), r; }, {11, 22, 29, 38}},
        {"-size",
         [](CDouRect r, const DOURECT&) {
             return r.DeflateRect(DOUSIZE{1, 2}), r;
         },
         {11, 22, 29, 38}},
        {"-four", [](CDouRect r, const DOURECT&) { return r.DeflateRect(1, 2, 3, 4), r; }, {11, 22, 27, 36}},
        {"-rect", [](CDouRect r, const DOURECT& d) { return r.DeflateRect(&d), r; }, {11, 22, 27, 36}},
        {"-=", [](CDouRect r, const DOURECT& d) { return r -= &d; }, {11, 22, 27, 36}},
        {"-", [](CDouRect r, const DOURECT& d) { return r - &d; }, {11, 22, 27, 36}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Ltrb(row.act(start, by)), row.result) << row.form;
}

TEST(Overloads, MoveInAllForms) {
    const CDouRect start(10, 20, 30, 40);
    const CPosition p(1, 2);
    const DOUPOINT dp{1, 2};
    const CDouSize s(1, 2);
    CDouRect byNumbers(start), bySize(start), byPoint(start), plusSize(start), plusPoint(start);
    byNumbers.OffsetRect(1, 2);
    bySize.OffsetRect(s);
    byPoint.OffsetRect(p);
    plusSize += s;
    plusPoint += dp;
    for (const CDouRect& r : {start.Offset(1, 2), start.Offset(s), start.Offset(dp), start + p, start + s,
                              byNumbers, bySize, byPoint, plusSize, plusPoint})
        EXPECT_EQ(Ltrb(r), Ltrb(11, 22, 31, 42));
    CDouRect lessSize(start), lessPoint(start);
    lessSize -= s;
    lessPoint -= dp;
    for (const CDouRect& r : {start - dp, start - s, lessSize, lessPoint})
        EXPECT_EQ(Ltrb(r), Ltrb(9, 18, 29, 38));
}
