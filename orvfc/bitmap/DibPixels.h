#pragma once

// Pixels in rows of 1, 4, 8, 16, 24 and 32 bits.

#include "DibHeader.h"

#include <string.h>

namespace orv {

constexpr bool isDepth(int bitCount) {
    constexpr ULONGLONG depths = 1ULL << 1 | 1ULL << 4 | 1ULL << 8 | 1ULL << 16 | 1ULL << 24 | 1ULL << 32;
    return bitCount >= 0 && bitCount <= 32 && (depths >> bitCount & 1) != 0;
}

// Value of pixel x of a row: the index or the packed colour, the leftmost pixel of a byte in its highest
// bits.
inline DWORD getPixel(const BYTE* row, int x, int bitCount) {
    switch (bitCount) {
    case 1:
        return row[x >> 3] >> (7 - (x & 7)) & 1;
    case 4:
        return row[x >> 1] >> (x & 1 ? 0 : 4) & 0xF;
    case 8:
        return row[x];
    case 16: {
        WORD value;
        memcpy(&value, row + size_t(x) * 2, sizeof(value));
        return value;
    }
    case 24:
        row += size_t(x) * 3;
        return row[0] | row[1] << 8 | DWORD(row[2]) << 16;
    default: {
        DWORD value;
        memcpy(&value, row + size_t(x) * 4, sizeof(value));
        return value;
    }
    }
}

// Bits of value beyond the pixel's are dropped.
inline void setPixel(BYTE* row, int x, int bitCount, DWORD value) {
    switch (bitCount) {
    case 1:
    case 4: {
        const int perByte = 8 / bitCount;
        const int shift = (perByte - 1 - x % perByte) * bitCount;
        const BYTE mask = BYTE(((1 << bitCount) - 1) << shift);
        BYTE& byte = row[x / perByte];
        byte = BYTE((byte & ~mask) | (value << shift & mask));
        break;
    }
    case 8:
        row[x] = BYTE(value);
        break;
    default:
        memcpy(row + size_t(x) * (bitCount / 8), &value, bitCount / 8);
    }
}

// Uncompressed rows in memory.
struct DibRows {
    const BYTE* bits;
    DWORD stride;
    int width;
    int height;
    int bitCount;
    bool topDown;

    // y counts from the picture's top.
    const BYTE* row(int y) const { return bits + size_t(stride) * size_t(topDown ? y : height - 1 - y); }
};

// The pixel value of white, or of what comes nearest to it in the colour table.
DWORD whitePixel(const DibLayout& layout, const RGBQUAD* table);

// Turns the rows stored by a run-length bitmap into uncompressed bottom-up rows of layout.rowsBytes bytes,
// all zero before: what the runs skip is not touched. With rows NULL it only checks. FALSE when a run leaves
// the picture or is cut short. A run over the bytes that an uncompressed row would be filled up with is no
// fault, nor is a missing end mark.
bool expandRuns(const DibLayout& layout, const BYTE* runs, BYTE* rows);

} // namespace orv
