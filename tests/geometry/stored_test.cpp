#include <orvfc/geometry/Extend.h>
#include <orvfc/geometry/FourPointRect.h>
#include <orvfc/geometry/planentity.h>

#include <gtest/gtest.h>

#include "afx/afx_test.h"

using namespace orv::test;

namespace {

std::string doubles(std::initializer_list<double> values) {
    return {reinterpret_cast<const char*>(values.begin()), values.size() * sizeof(double)};
}

// Bytes as laid down, back again, and untouched when the stream ends early.
template <class T>
void roundTrip(T value, const std::string& expected) {
    EXPECT_EQ(toHex(expected), toHex(serialized(value)));
    T read;
    EXPECT_EQ(CArchiveException::none, deserialized(read, expected));
    EXPECT_EQ(toHex(expected), toHex(serialized(read)));
    for (size_t length = 0; length < expected.size(); ++length) {
        EXPECT_EQ(CArchiveException::endOfFile, deserialized(value, std::string(length, '\x3F'))) << length;
        EXPECT_EQ(toHex(expected), toHex(serialized(value))) << length;
    }
}

TEST(Stored, InTheOrderOfTheFields) {
    roundTrip(CPosition(1.5, -2), doubles({1.5, -2}));
    roundTrip(CDouSize(3.25, 4), doubles({3.25, 4}));
    roundTrip(CDouRect(1, 2, 3, 4), doubles({1, 2, 3, 4}));
    roundTrip(CFPDRect(1, 2, 3, 4, 0.5), doubles({1, 2, 3, 4, 0.5}));
    roundTrip(CFPRect(1, -2, 3, 260, 0.5), fromHex("01000000 FEFFFFFF 03000000 04010000") + doubles({0.5}));
}

TEST(Stored, DumpsTellEveryDigit) {
    EXPECT_EQ(dumped(CPosition(0.1, 1e7 + 0.25)), "CPosition (0.10000000000000001, 10000000.25)");
    EXPECT_EQ(dumped(CDouSize(1, -2)), "CDouSize (1, -2)");
    EXPECT_EQ(dumped(CDouRect(1, 2, 3, 4)), "CDouRect (1, 2, 3, 4)");
    EXPECT_EQ(dumped(CFPDRect(1, 2, 3, 4, 0.1)), "CFPDRect (1, 2, 3, 4) turned by 0.10000000000000001");
    EXPECT_EQ(dumped(CFPRect(1, 2, 3, -4, 0.5)), "CFPRect (1, 2, 3, -4) turned by 0.5");
    EXPECT_EQ(dumped(CExtend(2.5)), "CExtend 2.5, class-wide decimals 5");
}

} // namespace
