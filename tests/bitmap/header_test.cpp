// Headers: what is taken, what is refused, and the sums that follow.

#include <orvfc/bitmap/DibPixels.h>

#include <gtest/gtest.h>

#include "samples.h"

using namespace orv;
using namespace orv::test;

namespace {

// As a reader of whole files does.
DibFault readBytes(const Bytes& bytes, DibLayout& layout) {
    BITMAPFILEHEADER file;
    if (bytes.size() < sizeof(file))
        return DibFault::cutShort;
    memcpy(&file, bytes.data(), sizeof(file));
    // An exact copy, so that a byte too far is seen.
    const Bytes behind(bytes.begin() + sizeof(file), bytes.end());
    const DibFault fault = readDibFileHeader(file, behind.data(), behind.size(), layout);
    if (fault != DibFault::none || !layout.isRunLength())
        return fault;
    const Bytes runs(bytes.begin() + file.bfOffBits, bytes.begin() + file.bfOffBits + layout.imageBytes);
    Bytes rows(layout.rowsBytes, 0xEE);
    const bool checked = expandRuns(layout, runs.data(), NULL);
    EXPECT_EQ(checked, expandRuns(layout, runs.data(), rows.data()));
    return checked ? DibFault::none : DibFault::runs;
}

TEST(BitmapHeader, Kinds) {
    for (const KindRow& row : kindRows()) {
        DibLayout layout;
        const DibFault fault = readBytes(makeFile(row.spec), layout);
        EXPECT_EQ(row.good, fault == DibFault::none) << row.name << ": " << dibFaultText(fault);
    }
}

TEST(BitmapHeader, CutAtEveryByteOfTheHeaders) {
    for (const FileSpec& spec :
         {FileSpec{.bitCount = 4},
          FileSpec{.bitCount = 16, .compression = BI_BITFIELDS, .masks = {0xF800, 0x7E0, 0x1F}}}) {
        const Bytes whole = makeFile(spec);
        DibLayout layout;
        ASSERT_EQ(DibFault::none, readBytes(whole, layout));
        for (size_t length = 0; length < whole.size(); ++length) {
            const Bytes cut(whole.begin(), whole.begin() + length);
            EXPECT_NE(DibFault::none, readBytes(cut, layout)) << length << " of " << whole.size();
        }
    }
}

struct MetricsRow {
    LONG width, height;
    WORD bitCount;
    DWORD colorsUsed, stride, rows;
    int entries;
};

// Widths on both sides of the row padding at each depth.
const MetricsRow metricsRows[] = {
    {1, 1, 1, 0, 4, 4, 2},    {32, 2, 1, 0, 4, 8, 2},        {33, 2, 1, 0, 8, 16, 2},
    {8, 3, 4, 0, 4, 12, 16},  {9, 3, 4, 0, 8, 24, 16},       {4, 1, 8, 0, 4, 4, 256},
    {5, 1, 8, 5, 8, 8, 5},    {2, 5, 16, 0, 4, 20, 0},       {3, 5, 16, 0, 8, 40, 0},
    {3, 1, 24, 0, 12, 12, 0}, {4, -2, 24, 256, 12, 24, 256}, {5, 1, 24, 0, 16, 16, 0},
    {1, 1, 32, 0, 4, 4, 0},   {7, -3, 32, 0, 28, 84, 0},     {100, 65535, 1, 0, 16, 1048560, 2},
};

TEST(BitmapHeader, Metrics) {
    for (const MetricsRow& row : metricsRows) {
        SCOPED_TRACE(testing::Message() << row.width << " x " << row.height << " x " << row.bitCount);
        BITMAPINFOHEADER header = {40, row.width, row.height,     1, row.bitCount, BI_RGB, 0,
                                   0,  0,         row.colorsUsed, 0};
        DibLayout layout;
        ASSERT_EQ(DibFault::none, readDibHeader(&header, ~0ULL, layout));
        EXPECT_EQ(row.stride, layout.stride);
        EXPECT_EQ(row.rows, layout.imageBytes);
        EXPECT_EQ(row.entries, layout.tableEntries);
        EXPECT_EQ(14u + 40 + 4 * row.entries, DWORD(dibFileHeader(layout).bfOffBits));
        EXPECT_EQ(row.height < 0, layout.topDown);
    }
}

// The largest that a 32-bit size can tell, and one row more.
TEST(BitmapHeader, LargestSize) {
    BITMAPINFOHEADER header = {40, 0x3FFFFFE0, 1, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    DibLayout layout;
    EXPECT_EQ(DibFault::none, readDibHeader(&header, ~0ULL, layout));
    EXPECT_EQ(0xFFFFFF80u, layout.rowsBytes);
    EXPECT_EQ(DibFault::cutShort, readDibHeader(&header, 0xFFFFFF80u + 39ULL, layout));
    header.biWidth = 0x3FFFFFFF;
    EXPECT_EQ(DibFault::tooLarge, readDibHeader(&header, ~0ULL, layout));
}

} // namespace
