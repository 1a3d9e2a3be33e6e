// Pixels in rows, run-length rows, turned pictures.

#include <orvfc/bitmap/DibTurn.h>

#include <gtest/gtest.h>

#include "samples.h"

#include <cmath>
#include <limits>
#include <random>

using namespace orv;
using namespace orv::test;

namespace {

const double pi = std::acos(-1.0);

struct PackRow {
    int bitCount, x;
    DWORD value;
    Bytes row; // of 0xA5 before
};

const PackRow packRows[] = {
    {1, 0, 0, {0x25, 0xA5, 0xA5, 0xA5}},           {1, 1, 3, {0xE5, 0xA5, 0xA5, 0xA5}},
    {1, 9, 1, {0xA5, 0xE5, 0xA5, 0xA5}},           {4, 0, 0x17, {0x75, 0xA5, 0xA5, 0xA5}},
    {4, 3, 0xC, {0xA5, 0xAC, 0xA5, 0xA5}},         {8, 2, 0x1FE, {0xA5, 0xA5, 0xFE, 0xA5}},
    {16, 1, 0xFF1234, {0xA5, 0xA5, 0x34, 0x12}},   {24, 0, 0xFF112233, {0x33, 0x22, 0x11, 0xA5}},
    {32, 0, 0x44332211, {0x11, 0x22, 0x33, 0x44}},
};

TEST(BitmapPixels, Packing) {
    for (const PackRow& row : packRows) {
        Bytes bytes(4, 0xA5);
        setPixel(bytes.data(), row.x, row.bitCount, row.value);
        EXPECT_EQ(row.row, bytes) << row.bitCount << " bits, pixel " << row.x;
        const DWORD kept = row.bitCount == 32 ? row.value : row.value & ((1u << row.bitCount) - 1);
        EXPECT_EQ(kept, getPixel(bytes.data(), row.x, row.bitCount));
    }
}

struct RunsRow {
    const char* name;
    int bitCount;
    Bytes runs;
    const char* pixels; // 6 x 2, the bottom row first
};

const RunsRow runsRows[] = {
    {"runs", 8, {2, 7, 4, 1, 0, 0, 6, 2, 0, 1}, "771111 222222"},
    {"two pixels take turns", 4, {5, 0x12, 0, 0, 6, 0x90, 0, 1}, "121210 909090"},
    {"as they are, filled up", 8, {0, 3, 1, 2, 3, 0xFF, 0, 1}, "123000 000000"},
    {"as they are, 4 bits", 4, {0, 5, 0x12, 0x34, 0x50, 0xFF, 1, 0x60, 0, 1}, "123456 000000"},
    {"a move", 8, {1, 1, 0, 2, 2, 1, 1, 3, 0, 1}, "100000 000300"},
    {"no end mark", 8, {0, 0, 6, 4}, "000000 444444"},
    {"last filling byte left out", 8, {0, 3, 1, 2, 3}, "123000 000000"},
    {"nothing after the end", 8, {0, 1, 99, 99}, "000000 000000"},
    {"a run over the filling bytes", 8, {7, 1, 1, 2, 0, 0, 6, 3, 0, 1}, "111111 333333"},
    {"a line end behind the last row", 8, {6, 1, 0, 0, 6, 1, 0, 0, 0, 1}, "111111 111111"},
};

TEST(BitmapPixels, Runs) {
    for (const RunsRow& row : runsRows) {
        BITMAPINFOHEADER header = {40,
                                   6,
                                   2,
                                   1,
                                   WORD(row.bitCount),
                                   row.bitCount == 4 ? DWORD(BI_RLE4) : DWORD(BI_RLE8),
                                   DWORD(row.runs.size()),
                                   0,
                                   0,
                                   0,
                                   0};
        DibLayout layout;
        ASSERT_EQ(DibFault::none, readDibHeader(&header, ~0ULL, layout)) << row.name;
        Bytes rows(layout.rowsBytes);
        ASSERT_TRUE(expandRuns(layout, row.runs.data(), rows.data())) << row.name;
        std::string pixels;
        for (int y = 0; y < 2; ++y) {
            for (int x = 0; x < 6; ++x)
                pixels += char('0' + getPixel(&rows[layout.stride * y], x, row.bitCount));
            pixels += y == 0 ? " " : "";
        }
        EXPECT_EQ(row.pixels, pixels) << row.name;
    }
}

// A picture of 8 bits whose rows are written from the top down, turned into its box; '.' where nothing is.
std::string turnedText(const std::vector<std::string>& picture, double angle, bool topDown) {
    const int width = int(picture[0].size()), height = int(picture.size());
    const size_t stride = strideOf(width, 8);
    Bytes bits(stride * height);
    for (int y = 0; y < height; ++y)
        memcpy(&bits[stride * (topDown ? y : height - 1 - y)], picture[y].data(), width);
    DibBox box;
    if (!turnedBox(width, height, angle, box))
        return "none";
    const DibTurn turn(box.corner, turned({double(width), 0}, angle), turned({0, double(height)}, angle),
                       width, height);
    std::string text;
    for (int y = 0; y < box.height; ++y) {
        std::string row(box.width, '.');
        int first, last;
        if (turn.span(y, 0, box.width, first, last))
            turn.copy({bits.data(), DWORD(stride), width, height, 8, topDown}, y, first, last,
                      reinterpret_cast<BYTE*>(row.data()), 0);
        text += (y > 0 ? " " : "") + row;
    }
    return text;
}

struct TurnRow {
    double angle;
    const char* text;
};

const TurnRow turnRows[] = {
    {0, "abc def"},
    {pi / 2, "cf be ad"},
    {1.5707963, "cf be ad"}, // the library's own right angle
    {pi, "fed cba"},
    {-pi / 2, "da eb fc"},
    {2 * pi, "abc def"},
    {1e6 * pi, "abc def"},
    {std::numeric_limits<double>::quiet_NaN(), "none"},
    {std::numeric_limits<double>::infinity(), "none"},
};

TEST(BitmapTurn, QuarterTurnsLoseNothing) {
    for (const TurnRow& row : turnRows) {
        for (bool topDown : {false, true})
            EXPECT_EQ(row.text, turnedText({"abc", "def"}, row.angle, topDown)) << row.angle;
    }
}

// Each target pixel against the definition: its centre, turned back, lies in the source or does not.
TEST(BitmapTurn, SpansAreWhatTheDefinitionSays) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> angles(-7, 7), places(-20, 60), sizes(-40, 40);
    for (int round = 0; round < 300; ++round) {
        const double angle = angles(random), wide = sizes(random), high = sizes(random);
        const DibVector corner = {places(random), places(random)};
        const int width = 1 + int(random() % 9), height = 1 + int(random() % 9);
        const DibTurn turn(corner, turned({wide, 0}, angle), turned({0, high}, angle), width, height);
        ASSERT_TRUE(turn.isDrawable());
        for (int y = 0; y < 40; ++y) {
            int first = 0, last = 0;
            if (!turn.span(y, 0, 40, first, last))
                first = last = 0;
            for (int x = 0; x < 40; ++x) {
                const DibVector back = turned({x + 0.5 - corner.x, y + 0.5 - corner.y}, -angle);
                const double sx = back.x / wide, sy = back.y / high, hair = 1e-9;
                if (std::min({std::fabs(sx), std::fabs(sx - 1), std::fabs(sy), std::fabs(sy - 1)}) < hair)
                    continue;
                const bool inside = sx > 0 && sx < 1 && sy > 0 && sy < 1;
                ASSERT_EQ(inside, x >= first && x < last) << x << ", " << y << " round " << round;
            }
        }
    }
}

TEST(BitmapTurn, WithoutAreaThereIsNothingToDraw) {
    const double huge = 1e308;
    EXPECT_FALSE(DibTurn({0, 0}, {0, 0}, {0, 5}, 3, 3).isDrawable());
    EXPECT_FALSE(DibTurn({0, 0}, {5, 5}, {5, 5}, 3, 3).isDrawable());
    EXPECT_FALSE(DibTurn({0, 0}, {huge, 0}, {0, huge}, 3, 3).isDrawable());
    DibBox box;
    EXPECT_FALSE(turnedBox(0x7FFFFFFF, 0x7FFFFFFF, 0.7, box));
}

} // namespace
