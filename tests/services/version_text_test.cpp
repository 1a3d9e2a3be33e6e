// Comparison of versions, the texts of numbers, and blocks that the system must not be asked about.

#include <orvfc/services/VersionBlock.h>
#include <orvfc/services/VersionText.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <string>

#include "version_block.h"

using namespace orv;

TEST(VersionText, Compare) {
    struct {
        const char *a, *b;
        int result;
    } const rows[] = {
        {"", "", 0},
        {"1", "", 1},
        {"1.2.10", "1.2.9", 1},
        {"1,2", "1.2", 0},
        {"1, 2, 3, 4", "1.2.3.4", 0},
        {"1.2", "1.2.0", -1},
        {"1.2.", "1.2", 0},
        {"01", "1", -1},
        {"1.0", "1.00", -1},
        {"16777217", "16777216", 1}, // one number in single precision: the texts decide
        {"16777216", "16777217", -1},
        {"16777218", "16777217", 1},
        {"9.16777217.1", "9.16777216.2", 1},
        {"1.5,2", "1.25,3", 1}, // a comma anywhere: full stops are decimal points
        {"1,2.5", "1.2", 1},
        {"beta", "alpha", 1},
        {"B", "b", -1},
        {"1 0", "10", 0},
        {"1e400", "1e300", 1}, // both infinite: "400" is later than "300" as text
        {"-1e400", "1e400", -1},
        {"-1", "1", -1},
        {"1\t", "1", 1},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.result, compareVersions(row.a, row.b)) << row.a << " | " << row.b;
        EXPECT_EQ(-row.result, compareVersions(row.b, row.a)) << row.b << " | " << row.a;
    }
    // The runtimes differ in what they take for no number; the order is one all the same.
    EXPECT_NE(0, compareVersions("nan", "1"));
    EXPECT_EQ(-compareVersions("1", "nan"), compareVersions("nan", "1"));
}

// No part is searched for again and again.
TEST(VersionText, LongVersionsTakeLinearTime) {
    std::string text;
    for (int i = 0; i < 500000; ++i)
        text += "1.";
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(0, compareVersions(text, text));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

// Where the lists end, and a name of each.
TEST(VersionText, Numbers) {
    const struct {
        DWORD type, subtype;
        const char* text;
    } types[] = {{0, 0, "Unknown type"}, {3, 0, "Unknown driver"},
                 {3, 9, "Sound driver"}, {3, 10, NULL},
                 {3, 0xFFFFFFFF, NULL},  {4, 3, "Truetype font"},
                 {4, 4, NULL},           {5, 7, "Virtual device"},
                 {6, 0, NULL},           {7, 0, "Static link library"},
                 {8, 0, NULL},           {0xFFFFFFFF, 0, NULL}};
    for (const auto& row : types)
        EXPECT_STREQ(row.text, fileTypeText(row.type, row.subtype)) << row.type << " " << row.subtype;
    EXPECT_STREQ("Unknown OS", targetSystemText(0));
    EXPECT_STREQ("32-bit OS/2", targetSystemText(0x30000));
    EXPECT_STREQ("Win32 API on Windows NT", targetSystemText(0x40004));
    for (const DWORD none : {0x10002, 0x50000})
        EXPECT_STREQ(NULL, targetSystemText(none));
}

namespace {

using test::VersionNode;

VersionNode sampleBlock() {
    return test::versionBlock(0x0804, 936, {{"FileVersion", "1.2"}, {"Comments", "so so"}});
}

} // namespace

TEST(VersionBlock, SoundOnes) {
    const std::vector<BYTE> block = sampleBlock().bytes();
    EXPECT_TRUE(isSoundVersionBlock(block));
    // The 16-bit form: no word for the kind, keys in bytes.
    const char old[] = "\x10\0\0\0VERSION\0\0\0\0";
    EXPECT_TRUE(isSoundVersionBlock({reinterpret_cast<const BYTE*>(old), 16}));
    std::vector<BYTE> padded = block;
    padded.resize(block.size() * 2 + 4);
    EXPECT_TRUE(isSoundVersionBlock(padded));
    EXPECT_GE(versionBlockRoom(padded), 2 * block.size() + 4 + 52);
}

TEST(VersionBlock, CutAnywhere) {
    const std::vector<BYTE> block = sampleBlock().bytes();
    for (size_t n = 0; n < block.size(); ++n)
        EXPECT_FALSE(isSoundVersionBlock(std::span(block).first(n))) << n;
}

TEST(VersionBlock, LengthsThatLeaveTheBlock) {
    const std::vector<BYTE> good = sampleBlock().bytes();
    const size_t child = 40 + 52; // the first one, behind the fixed numbers
    const struct {
        size_t at;
        BYTE low, high;
    } rows[] = {{0, 0xFF, 0xFF}, {0, 0, 0}, {child, 0xFF, 0xFF}, {child, 5, 0}}; // no room for its own head
    for (const auto& row : rows) {
        std::vector<BYTE> block = good;
        block[row.at] = row.low;
        block[row.at + 1] = row.high;
        EXPECT_FALSE(isSoundVersionBlock(block)) << row.at << " " << int(row.low);
    }
    // A key without its zero: nothing but characters up to the end.
    std::vector<BYTE> block(64, 'A');
    std::fill_n(block.begin(), 6, 0);
    block[0] = 64;
    EXPECT_FALSE(isSoundVersionBlock(block));
}
