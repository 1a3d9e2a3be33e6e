#include <orvfc/geometry/planentity.h>

#include <gtest/gtest.h>

#include "printing.h"

namespace {

struct Combined {
    DOURECT a, b;
    int answer;
    Ltrb stored; // by the form with two operands; the one-operand form keeps a when the answer is FALSE
};

using TwoOperands = int (CDouRect::*)(const DOURECT*, const DOURECT*);
using OneOperand = int (CDouRect::*)(const DOURECT*);

void check(TwoOperands two, OneOperand one, const Combined& row) {
    CDouRect stored(-1, -2, -3, -4);
    EXPECT_EQ((stored.*two)(&row.a, &row.b), row.answer) << Ltrb(row.a) << Ltrb(row.b);
    EXPECT_EQ(Ltrb(stored), row.stored) << Ltrb(row.a) << Ltrb(row.b);
    CDouRect own(row.a);
    EXPECT_EQ((own.*one)(&row.b), row.answer) << Ltrb(row.a) << Ltrb(row.b);
    EXPECT_EQ(Ltrb(own), row.answer ? row.stored : Ltrb(row.a)) << Ltrb(row.a) << Ltrb(row.b);
}

TEST(Relations, Combining) {
    const DOURECT a{0, 0, 10, 10}, corner{5, 6, 15, 16}, away{20, 20, 30, 30}, half{-1, -1, 4, 11};
    const DOURECT all{-1, -1, 11, 11}, none{9, 9, 2, 2}, point{7, 7, 7, 7};
    for (const auto& row : {Combined{a, corner, TRUE, {5, 6, 10, 10}}, {a, away, FALSE, {0, 0, 0, 0}}})
        check(&CDouRect::IntersectRect, &CDouRect::IntersetcRect, row);
    for (const auto& row : {Combined{a, away, TRUE, {0, 0, 30, 30}}, {point, none, FALSE, {0, 0, 0, 0}}})
        check(&CDouRect::UnionRect, &CDouRect::UnionRect, row);
    for (const auto& row : {Combined{a, half, TRUE, {4, 0, 10, 10}}, {a, all, FALSE, {0, 0, 0, 0}}})
        check(&CDouRect::SubtractRect, &CDouRect::SubtractRect, row);
    EXPECT_EQ(Ltrb(CDouRect(a) & corner), Ltrb(5, 6, 10, 10));
    EXPECT_EQ(Ltrb(CDouRect(a) & away), Ltrb(0, 0, 0, 0));
    EXPECT_EQ(Ltrb(CDouRect(a) | away), Ltrb(0, 0, 30, 30));
    CDouRect self(a);
    EXPECT_TRUE(self.IntersectRect(&self, &corner)); // an operand may be the result
    EXPECT_EQ(Ltrb(self), Ltrb(5, 6, 10, 10));
}

TEST(Relations, TwoBoxes) {
    const DOURECT a{0, 0, 10, 10};
    const struct {
        DOURECT a, b;
        double tol;
        int relation;
        bool allIn, partIn;
    } rows[] = {
        {a, {20, 20, 30, 30}, 0.1, -1, false, false},
        {{2, 2, 8, 8}, a, 0.1, 1, true, true},
        {a, {2, 2, 8, 8}, 0.1, 2, false, false},
        {a, {5, 5, 15, 15}, 0.1, 3, false, true},
        {{5, 5, 15, 15}, a, 0.1, 3, false, true},
        {a, a, 0.1, 1, true, true},                            // asked before "the same"
        {a, a, 0, -1, false, false},                           // no corner is strictly inside
        {{0, 4, 10, 6}, {4, 0, 6, 10}, 0.1, -1, false, false}, // a plus sign is apart
        {{-5, 5, 5, 15}, a, 0.1, -1, false, true},             // overlapping, but by other corners
        {{0, 0, 10.05, 10.05}, {0.05, 0.05, 10, 10}, 0.1, 1, true, true},
        {{5, 5, 5, 15}, {5, 5, 15, 5}, 0.1, 3, false, true},
        {{5, -5, 15, 5}, a, 0.1, -1, false, true},
        {{-5, -5, 5, 5}, a, 0.1, 3, false, true},
        {{0, 0, -1.5, 10}, {0, 0, -0.8, 10}, 1, 0, false, true}, // only exchanged sides get as far as "the
                                                                 // same"
        {{8, 8, 2, 2}, a, 0.1, 1, true, true},                   // taken as it stands
    };
    for (const auto& r : rows) {
        EXPECT_EQ(CDouRect(r.a).GetRalationBox(r.b, r.tol), r.relation) << Ltrb(r.a) << Ltrb(r.b) << r.tol;
        EXPECT_EQ(CDouRect(r.a).IsAllInRect(r.b, r.tol), r.allIn) << Ltrb(r.a) << Ltrb(r.b) << r.tol;
        EXPECT_EQ(CDouRect(r.a).IsPartInRect(r.b, r.tol), r.partIn) << Ltrb(r.a) << Ltrb(r.b) << r.tol;
    }
}

TEST(Relations, SegmentAndRectangle) {
    const CDouRect r(0, 0, 10, 20);
    const struct {
        double x1, y1, x2, y2;
        int crossed; // IntersectLine
        double x, y;
        int related; // IsLineRelationBox with tolerance 0
    } rows[] = {
        {5, -5, 5, 5, 1, 5, 0, 1},                                 // the top edge
        {5, 5, 15, 5, 1, 10, 5, 1},                                // the right edge
        {-5, 5, 5, 5, 0, 0, 0, 1},                                 // the left edge is not looked at
        {5, 15, 5, 25, 0, 0, 0, 1},                                // nor is the bottom one
        {-5, 25, 5, 15, 0, 0, 0, 1},  {5, -5, 15, 5, 1, 10, 0, 1}, // the corner of both
        {4, -2, 13, 7, 1, 6, 0, 1},                                // both edges: the top one is told
        {2, 2, 8, 8, 0, 0, 0, 1},                                  // inside
        {-5, -5, -5, 30, 0, 0, 0, 0},                              // past
        {5, 0, 5, 0, 0, 0, 0, 0},                                  // no length
        {5, 5, 5, 5, 0, 0, 0, 1},     {5, -1, 5, -1 + 0.9e-6, 0, 0, 0, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.x1 << "," << row.y1 << " " << row.x2 << "," << row.y2);
        CPosition out(-77, -77);
        const CPosition p1(row.x1, row.y1), p2(row.x2, row.y2);
        ASSERT_EQ(r.IntersectLine(p1, p2, &out), row.crossed);
        EXPECT_EQ(Xy(out), row.crossed ? Xy(row.x, row.y) : Xy(-77, -77));
        EXPECT_EQ(r.IsLineRelationBox(p1, p2, 0), row.related);
        EXPECT_EQ(r.IsLineRelationBox(p2, p1, 0), row.related);
    }
    CPosition out;
    EXPECT_EQ(CDouRect(10, 20, 0, 0).IntersectLine(CPosition(5, -5), CPosition(5, 50), &out), 0); // empty
    EXPECT_EQ(r.IsLineRelationBox(CPosition(12, 5), CPosition(10.05, 5), 0.1), 1);
    EXPECT_EQ(r.IsLineRelationBox(CPosition(10.05, 5), CPosition(12, 5), 0.1),
              1); // an end within the tolerance
}

TEST(Relations, ArcAndRectangle) {
    const CDouRect r(0, 0, 10, 10);
    const struct {
        double cx, cy, sx, sy, ex, ey;
        int related;
    } rows[] = {
        {0, 5, 3, 5, 0, 2, 1},    // from right to above about the left edge: ends on it
        {0, 5, 0, 2, 0, 8, 1},    // the left half touches the edge with both ends
        {5, 12, 8, 12, 2, 12, 1}, // over the bottom edge
        {5, 12, 2, 12, 8, 12, 0}, // the lower half of that circle
        {5, -2, 2, -2, 8, -2, 1}, // over the top edge
        {12, 5, 12, 2, 12, 8, 1}, // over the right edge
        {5, 5, 7, 5, 5, 3, 0},    // within
        {5, 5, 25, 5, 5, -15, 0}, // around
        {5, 5, 7, 5, 7, 5, 0},    // a whole circle within
        {5, 5, 11, 5, 11, 5, 1},  // and one that leaves it
        {5, 5, 5, 5, 5, 5, 0},    // no radius
    };
    for (const auto& row : rows)
        EXPECT_EQ(r.IsArcRelationBox(CPosition(row.cx, row.cy), CPosition(row.sx, row.sy),
                                     CPosition(row.ex, row.ey), 0),
                  row.related)
            << row.cx << "," << row.cy << " " << row.sx << "," << row.sy;
}

} // namespace
