#include <orvfc/geometry/Extend.h>

#include <climits>

#include <gtest/gtest.h>

namespace {

struct Precision {
    explicit Precision(int decimals) : before(CExtend::GetPreBit()) { CExtend::SetPreBit(decimals); }
    ~Precision() { CExtend::SetPreBit(before); }
    int before;
};

TEST(Extend, ANewPrecisionWaitsForTheNextAssignment) {
    CExtend kept(1.234567), reset(1.234567), assigned;
    {
        Precision two(2);
        reset.ResetValue();
        assigned = 1.234567;
        EXPECT_EQ(double(kept), 1.23457);
        EXPECT_EQ(double(reset), 1.23);
        EXPECT_EQ(double(assigned), 1.23);
    }
    Precision hundreds(-2);
    EXPECT_EQ(double(CExtend(1250)), 1300);
    for (const int extreme : {INT_MIN, INT_MAX, -309, 309}) {
        Precision p(extreme);
        EXPECT_EQ(double(CExtend(1.25)), extreme < 0 ? 0 : 1.25) << extreme;
    }
}

TEST(Extend, TheReferenceWritesUnrounded) {
    CExtend e(1);
    double& value = e;
    value = 1.23456789;
    EXPECT_EQ(double(e), 1.23456789);
    const CExtend copy = e; // a copy is not rounded either
    EXPECT_EQ(double(copy), 1.23456789);
    e.ResetValue();
    EXPECT_EQ(double(e), 1.23457);    // five decimals unless told otherwise
    EXPECT_EQ(e + copy * 0, 1.23457); // reads as a number, const or not
    e = -0.0000051;
    EXPECT_EQ(double(e), -0.00001);
}

} // namespace
