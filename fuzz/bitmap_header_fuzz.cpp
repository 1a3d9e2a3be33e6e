// Bitmap files: whatever the header says, what is taken lies inside the bytes, and rows and runs stay inside
// what was sized for them.

#include <orvfc/bitmap/DibTurn.h>

#include <stdint.h>
#include <stdlib.h>

#include <vector>

using namespace orv;

namespace {

void check(bool good) {
    if (!good)
        abort();
}

// All corners and one pixel inside, read and written.
void usePixels(BYTE* bits, const DibLayout& layout) {
    const DibRows rows = {bits, layout.stride, layout.width, layout.height, layout.bitCount, layout.topDown};
    for (int y : {0, layout.height / 2, layout.height - 1}) {
        for (int x : {0, layout.width / 2, layout.width - 1}) {
            BYTE* row = const_cast<BYTE*>(rows.row(y));
            const DWORD value = getPixel(row, x, layout.bitCount);
            setPixel(row, x, layout.bitCount, ~value);
            check(getPixel(row, x, layout.bitCount) != value);
            setPixel(row, x, layout.bitCount, value);
            check(getPixel(row, x, layout.bitCount) == value);
        }
    }
    DibBox box;
    if (!turnedBox(layout.width, layout.height, 0.5, box))
        return;
    const DibTurn turn(box.corner, turned({double(layout.width), 0}, 0.5),
                       turned({0, double(layout.height)}, 0.5), layout.width, layout.height);
    std::vector<BYTE> row(size_t(64) * 4);
    int first, last;
    if (turn.isDrawable() && turn.span(box.height / 2, 0, box.width < 64 ? box.width : 64, first, last))
        turn.copy(rows, box.height / 2, first, last, row.data(), 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    BITMAPFILEHEADER file;
    if (size < sizeof(file))
        return 0;
    memcpy(&file, data, sizeof(file));
    // A copy of its own length: a byte too far is seen.
    std::vector<BYTE> behind(data + sizeof(file), data + size);
    DibLayout layout;
    if (readDibFileHeader(file, behind.data(), behind.size(), layout) != DibFault::none)
        return 0;
    check(layout.tableEntries >= 0 && layout.tableEntries <= kMaxTableEntries && layout.width > 0 &&
          layout.height > 0);
    check(layout.stride % 4 == 0 && uint64_t(layout.stride) * layout.height == layout.rowsBytes);
    check(file.bfOffBits >= kFileHeaderBytes + layout.headerBytes());
    check(uint64_t(file.bfOffBits) + layout.imageBytes <= size);
    BYTE* bits = behind.data() + file.bfOffBits - kFileHeaderBytes;
    if (!layout.isRunLength()) {
        check(layout.rowsBytes <= layout.imageBytes);
        std::vector<BYTE> rows(bits, bits + layout.rowsBytes);
        usePixels(rows.data(), layout);
        return 0;
    }
    const std::vector<BYTE> runs(bits, bits + layout.imageBytes);
    const bool good = expandRuns(layout, runs.data(), NULL);
    constexpr DWORD most = 1 << 20;
    if (layout.rowsBytes > most)
        return 0;
    std::vector<BYTE> rows(layout.rowsBytes);
    check(expandRuns(layout, runs.data(), rows.data()) == good);
    if (good)
        usePixels(rows.data(), layout);
    return 0;
}
