#include <afxwin.h>

#include <orvfc/geometry/planentity.h>

#include <gtest/gtest.h>

#include "printing.h"
#include "support/debug_events.h"

// A null pointer is the caller's fault: asserted in debug builds, harmless when passed over.

TEST(Nulls, ReadAsZerosOrDoNothing) {
    const DOURECT* none = NULL;
    const DOURECT some{1, 2, 3, 4};
    const Ltrb zeros(0, 0, 0, 0), kept(1, 2, 3, 4);
    CDouRect r(some);
    CPosition p(5, 6);
    orv::test::DebugEvents events;
    EXPECT_EQ(Ltrb(CDouRect(none)), zeros);
    EXPECT_EQ(Xy(CPosition(static_cast<const double*>(NULL))), Xy(0, 0));
    p.Set(NULL);
    EXPECT_EQ(Xy(p), Xy(0, 0));
    EXPECT_FALSE(r.IsSame(none, 1));
    EXPECT_FALSE(r.IntersectRect(&some, none));
    EXPECT_FALSE(r.UnionRect(none, &some));
    EXPECT_FALSE(r.SubtractRect(none));
    EXPECT_FALSE(r.IntersetcRect(none));
    EXPECT_FALSE(r.IntersectLine(CPosition(2, 0), CPosition(2, 9), NULL));
    r += none;
    r.DeflateRect(none);
    CDouRect::SwapLeftRight(NULL);
    EXPECT_EQ(Ltrb(r), kept);
    EXPECT_EQ(Ltrb(CDouSize(1, 2) + none), Ltrb(1, 2, 1, 2));
    r.CopyRect(none);
    EXPECT_EQ(Ltrb(r), zeros);
#if defined(_DEBUG)
    EXPECT_EQ(events.assertions(), 14);
#endif
}
