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

TEST(VersionText, Numbers) {
    struct {
        DWORD type;
        std::vector<const char*> bySubtype;
    } const types[] = {
        {0, {"Unknown type"}},
        {1, {"Application"}},
        {2, {"Dynamic link library"}},
        {3,
         {"Unknown driver", "Printer driver", "Keyboard driver", "Language driver", "Display driver",
          "Mouse driver", "Network driver", "System driver", "Installable driver", "Sound driver", NULL}},
        {4, {"Unknown font", "Raster font", "Vector font", "Truetype font", NULL}},
        {5, {"Virtual device"}},
        {6, {NULL}},
        {7, {"Static link library"}},
        {8, {NULL}},
        {0xFFFFFFFF, {NULL}}};
    for (const auto& row : types)
        for (DWORD subtype = 0; subtype < row.bySubtype.size(); ++subtype)
            EXPECT_STREQ(row.bySubtype[subtype], fileTypeText(row.type, subtype)) << row.type;
    EXPECT_EQ(NULL, fileTypeText(3, 0xFFFFFFFF));
    struct {
        DWORD value;
        const char* text;
    } const systems[] = {{0x00000, "Unknown OS"},
                         {0x10000, "MS-DOS"},
                         {0x10001, "16-bit windows running on MS-DOS"},
                         {0x10004, "Win32 API running on MS-DOS"},
                         {0x20000, "16-bit OS/2"},
                         {0x20002, "16-bit Presentation manager running on 16-bit OS/2"},
                         {0x30000, "32-bit OS/2"},
                         {0x40000, "Windows NT"},
                         {0x40004, "Win32 API on Windows NT"},
                         {0x10002, NULL},
                         {0x50000, NULL}};
    for (const auto& row : systems)
        EXPECT_STREQ(row.text, targetSystemText(row.value)) << row.value;
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
