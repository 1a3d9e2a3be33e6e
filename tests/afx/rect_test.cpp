#include "afx_test.h"

#include <afxcoll.h>

#include <random>

namespace {

std::string shown(const CRect& r) {
    CString text;
    text.Format("%d,%d,%d,%d", r.left, r.top, r.right, r.bottom);
    return orv::test::bytesOf(text);
}

} // namespace

TEST(Rect, OperationsOnOneRectangle) {
    const struct {
        const char* what;
        std::function<void(CRect&)> change;
        const char* expected;
    } rows[] = {
        {"inflate", [](CRect& r) { r.InflateRect(1, 2); }, "9,18,31,42"},
        {"inflate four sides", [](CRect& r) { r.InflateRect(1, 2, 3, 4); }, "9,18,33,44"},
        {"deflate by a size", [](CRect& r) { r.DeflateRect(CSize(1, 2)); }, "11,22,29,38"},
        {"deflate by a rectangle", [](CRect& r) { r -= CRect(1, 2, 3, 4); }, "11,22,27,36"},
        {"offset", [](CRect& r) { r += CPoint(-1, 5); }, "9,25,29,45"},
        {"offset back", [](CRect& r) { r -= CSize(1, 5); }, "9,15,29,35"},
        {"move", [](CRect& r) { r.MoveToXY(0, 0); }, "0,0,20,20"},
        {"move down", [](CRect& r) { r.MoveToY(0); }, "10,0,30,20"},
        {"normalize",
         [](CRect& r) {
             r = CRect(5, 9, 1, 2);
             r.NormalizeRect();
         },
         "1,2,5,9"},
        {"corners are views",
         [](CRect& r) {
             r.TopLeft().x = 1;
             r.BottomRight() += CSize(5, 5);
         },
         "1,20,35,45"},
        {"scaled", [](CRect& r) { r = r.MulDiv(3, 4); }, "8,15,23,30"},
        {"point and size", [](CRect& r) { r = CRect(CPoint(1, 2), CSize(3, 4)); }, "1,2,4,6"},
        {"wraps like the system", [](CRect& r) { r.OffsetRect(INT_MAX, 0); },
         "-2147483639,20,-2147483619,40"},
    };
    for (const auto& row : rows) {
        CRect r(10, 20, 30, 40);
        row.change(r);
        EXPECT_EQ(row.expected, shown(r)) << row.what;
    }
}

TEST(Rect, EdgesAndMiddle) {
    const CRect r(10, 20, 30, 40);
    EXPECT_TRUE(r.PtInRect(CPoint(10, 20)) && r.PtInRect(CPoint(29, 39)));
    EXPECT_FALSE(r.PtInRect(CPoint(30, 39)) || r.PtInRect(CPoint(29, 40)));
    EXPECT_TRUE(CRect(5, 5, 5, 9).IsRectEmpty() && CRect(5, 5, 4, 9).IsRectEmpty() && !r.IsRectEmpty());
    EXPECT_FALSE(CRect(5, 5, 5, 5).IsRectNull());
    EXPECT_TRUE(CRect(-3, -3, 0, 0).CenterPoint() == CPoint(-2, -2)); // rounded down, not toward zero
    EXPECT_TRUE(CRect(INT_MAX - 1, 0, INT_MAX, 2).CenterPoint() == CPoint(INT_MAX - 1, 1));
}

TEST(Rect, PointsAndSizes) {
    EXPECT_TRUE(CPoint(5, 6) - CPoint(1, 2) == CSize(4, 4));
    EXPECT_TRUE(CPoint(5, 6) + CSize(1, 2) == CPoint(6, 8) && -CSize(1, -2) == CSize(-1, 2));
    EXPECT_TRUE(CPoint((LPARAM)0xFFFE0003) == CPoint(3, -2)); // a mouse message left of and above its window
    EXPECT_TRUE(CSize(1, 2) + CPoint(5, 6) == CPoint(6, 8) && CSize(1, 2) - CPoint(5, 6) == CPoint(-4, -4));
}

#if defined(_WIN32)
TEST(Rect, AgreesWithTheSystem) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    auto coordinate = [&random] { return (int)(random() % 9) - 4; };
    for (int i = 0; i < 20000; i++) {
        const CRect a(coordinate(), coordinate(), coordinate(), coordinate());
        const CRect b(coordinate(), coordinate(), coordinate(), coordinate());
        SCOPED_TRACE(shown(a) + " / " + shown(b));
        CRect ours, theirs;
        ASSERT_EQ(::IntersectRect(&theirs, &a, &b), ours.IntersectRect(a, b));
        ASSERT_TRUE(theirs == ours && theirs == (a & b));
        ASSERT_EQ(::UnionRect(&theirs, &a, &b), ours.UnionRect(a, b));
        ASSERT_TRUE(theirs == ours && theirs == (a | b));
        ASSERT_EQ(::SubtractRect(&theirs, &a, &b), ours.SubtractRect(a, b));
        ASSERT_TRUE(theirs == ours);
        ASSERT_EQ(::PtInRect(&a, b.TopLeft()), a.PtInRect(b.TopLeft()));
        const int n = (int)random(), m = (int)random(), d = coordinate();
        ASSERT_EQ(::MulDiv(n, m, d), CRect(n, 0, 0, 0).MulDiv(m, d).left) << n << " * " << m << " / " << d;
    }
}
#endif
