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
    Bytes rows(layout.rowsBytes);
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
