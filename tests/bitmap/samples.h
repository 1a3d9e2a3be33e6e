#pragma once

// Bitmap files made byte by byte: good ones of every kind, and one for each thing that can be wrong.

#include <wintypes.h>

#include <string>
#include <utility>
#include <vector>

namespace orv::test {

using Bytes = std::vector<BYTE>;

struct FileSpec {
    LONG width = 5, height = 3;
    WORD bitCount = 8;
    DWORD compression = BI_RGB;
    DWORD colorsUsed = 0;
    LONGLONG sizeImage = -1; // -1: that of the runs, 0 for rows
    DWORD headerSize = 40;
    WORD planes = 1, type = 0x4D42;
    DWORD gap = 0;           // bytes between colour table and rows
    LONGLONG offset = -1;    // of the rows as the file header says; -1: where they are
    LONGLONG rowsBytes = -1; // in the file; -1: as many as the picture has
    std::vector<DWORD> masks = {};
    Bytes runs = {}; // instead of rows
};

inline size_t strideOf(LONG width, int bitCount) {
    return (size_t(width) * bitCount + 31) / 32 * 4;
}

// Colour table: entry i is a colour of its own for every i. Rows: every byte is another one than its
// neighbours.
inline RGBQUAD tableColor(int i) {
    return {BYTE(i * 37 + 11), BYTE(255 - i), BYTE(i * 101), 0};
}

inline Bytes makeFile(const FileSpec& spec) {
    const int defaultColors = spec.bitCount <= 8 ? 1 << spec.bitCount : 0;
    const DWORD colors = spec.colorsUsed != 0 ? spec.colorsUsed : DWORD(defaultColors);
    const DWORD tableEntries = colors <= 256 ? colors : 256;
    const LONG lines = spec.height < 0 && spec.height != LONG(0x80000000) ? -spec.height : spec.height;
    size_t rows = spec.rowsBytes >= 0 ? size_t(spec.rowsBytes) : 0;
    if (spec.rowsBytes < 0)
        rows = !spec.runs.empty()           ? spec.runs.size()
               : lines > 0 && lines <= 1000 ? strideOf(spec.width, spec.bitCount) * size_t(lines)
                                            : 64;
    const size_t start = 14 + 40 + 4 * spec.masks.size() + 4 * tableEntries + spec.gap;
    Bytes bytes(start + rows);
    const DWORD offset = DWORD(spec.offset >= 0 ? spec.offset : LONGLONG(start));
    memcpy(&bytes[0], &spec.type, 2);
    memcpy(&bytes[10], &offset, 4);
    const BITMAPINFOHEADER header = {spec.headerSize,
                                     spec.width,
                                     spec.height,
                                     spec.planes,
                                     spec.bitCount,
                                     spec.compression,
                                     DWORD(spec.sizeImage < 0 ? LONGLONG(spec.runs.size()) : spec.sizeImage),
                                     2835,
                                     2835,
                                     spec.colorsUsed,
                                     0};
    memcpy(&bytes[14], &header, 40);
    BYTE* next = &bytes[0] + 54;
    for (DWORD mask : spec.masks) {
        memcpy(next, &mask, 4);
        next += 4;
    }
    for (DWORD i = 0; i < tableEntries; ++i, next += 4) {
        const RGBQUAD color = tableColor(int(i));
        memcpy(next, &color, 4);
    }
    for (size_t i = 0; i < rows; ++i)
        bytes[start + i] = i < spec.runs.size() ? spec.runs[i] : BYTE(i * 29 + 7);
    return bytes;
}

struct KindRow {
    const char* name;
    FileSpec spec;
    bool good;
};

// Every kind of wrong header, and the oddities that are right all the same.
inline std::vector<KindRow> kindRows() {
    const std::vector<DWORD> masks565 = {0xF800, 0x07E0, 0x001F}, masks888 = {0xFF, 0xFF00, 0xFF0000};
    const Bytes runs8 = {5, 1, 0, 0, 0, 5, 1, 2, 3, 4, 5, 0, 0, 0, 3, 9, 0, 1}; // 5 x 1; 5 as they are; 3 x 9
    const Bytes runs4 = {5, 0x12, 0, 0, 0, 5, 0x34, 0x56, 0x70, 0, 0, 1};
    using Specs = std::vector<std::pair<const char*, FileSpec>>;
    const Specs right = {
        {"1 bit", {.bitCount = 1}},
        {"4 bits", {.bitCount = 4}},
        {"8 bits", {}},
        {"16 bits", {.bitCount = 16}},
        {"24 bits", {.bitCount = 24}},
        {"32 bits", {.bitCount = 32}},
        {"from the top down", {.height = -3}},
        {"less colours than indices", {.colorsUsed = 3}},
        {"more colours than indices", {.bitCount = 4, .colorsUsed = 200}},
        {"24 bits with colours to choose", {.bitCount = 24, .colorsUsed = 7}},
        {"gap before the rows", {.gap = 17}},
        {"bytes behind the rows", {.rowsBytes = 999}},
        {"size field with two bytes more", {.sizeImage = 26, .rowsBytes = 26}},
        {"size field smaller than the rows", {.sizeImage = 3}},
        {"16 bits, fields", {.bitCount = 16, .compression = BI_BITFIELDS, .masks = masks565}},
        {"32 bits, fields", {.bitCount = 32, .compression = BI_BITFIELDS, .masks = masks888}},
        {"runs of 8 bits", {.compression = BI_RLE8, .runs = runs8}},
        {"runs of 4 bits", {.bitCount = 4, .compression = BI_RLE4, .runs = runs4}},
    };
    const Specs wrong = {
        {"not BM", {.type = 0x4D43}},
        {"header of 12", {.headerSize = 12}},
        {"header of 124", {.headerSize = 124}},
        {"header of 0", {.headerSize = 0}},
        {"0 bits", {.bitCount = 0}},
        {"2 bits", {.bitCount = 2}},
        {"48 bits", {.bitCount = 48}},
        {"no width", {.width = 0}},
        {"negative width", {.width = -5, .rowsBytes = 64}},
        {"no height", {.height = 0}},
        {"height without opposite", {.height = LONG(0x80000000)}},
        {"two planes", {.planes = 2}},
        {"257 colours", {.colorsUsed = 257}},
        {"2^30 + 1 colours", {.colorsUsed = 0x40000001}},
        {"2^32 - 1 colours", {.colorsUsed = 0xFFFFFFFF}},
        {"more colours than bytes before the rows", {.colorsUsed = 200, .offset = 14 + 40 + 4 * 199}},
        {"width x depth beyond 32 bits", {.width = 0x7FFFFFFF, .height = 1, .bitCount = 32, .rowsBytes = 64}},
        {"width x height beyond 32 bits", {.width = 0x10000, .height = 0x10000, .rowsBytes = 64}},
        {"size that comes round to 0", {.width = 0x8000, .height = 0x8000, .bitCount = 32, .rowsBytes = 64}},
        {"rows that come round with the header", {.width = 0x7FFFFFFC, .height = 2, .rowsBytes = 64}},
        {"one row too few", {.rowsBytes = 16}},
        {"one byte too few", {.rowsBytes = 23}},
        {"no rows", {.rowsBytes = 0}},
        {"size field beyond the file", {.sizeImage = 25}},
        {"size field 2^32 - 1", {.sizeImage = 0xFFFFFFFF}},
        {"rows behind the end", {.offset = 5000}},
        {"rows at 2^32 - 1", {.offset = 0xFFFFFFFF}},
        {"rows inside the file header", {.offset = 4}},
        {"rows inside the header", {.offset = 30}},
        {"rows inside the colour table", {.offset = 54}},
        {"rows inside the masks",
         {.bitCount = 16, .compression = BI_BITFIELDS, .offset = 54, .masks = masks565}},
        {"8 bits, fields", {.compression = BI_BITFIELDS, .masks = masks565}},
        {"24 bits, fields", {.bitCount = 24, .compression = BI_BITFIELDS, .masks = masks888}},
        {"masks that overlap", {.bitCount = 16, .compression = BI_BITFIELDS, .masks = {0xF800, 0xFE0, 0x1F}}},
        {"masks with a hole", {.bitCount = 16, .compression = BI_BITFIELDS, .masks = {0xE800, 0x07E0, 0x1F}}},
        {"an empty mask", {.bitCount = 16, .compression = BI_BITFIELDS, .masks = {0xF800, 0x7E0, 0}}},
        {"masks beyond the pixel",
         {.bitCount = 16, .compression = BI_BITFIELDS, .masks = {0xFF0000, 0x7E0, 0x1F}}},
        {"JPEG inside", {.bitCount = 24, .compression = 4}},
        {"PNG inside", {.bitCount = 24, .compression = 5}},
        {"compression 2^32 - 1", {.compression = 0xFFFFFFFF}},
        {"runs of 8 bits in 4", {.bitCount = 4, .compression = BI_RLE8, .runs = runs8}},
        {"runs of 4 bits in 8", {.compression = BI_RLE4, .runs = runs4}},
        {"runs from the top down", {.height = -3, .compression = BI_RLE8, .runs = runs8}},
        {"runs without size", {.compression = BI_RLE8, .sizeImage = 0, .runs = runs8}},
        {"a run past the right edge", {.compression = BI_RLE8, .runs = {9, 1, 0, 1}}},
        {"pixels past the right edge",
         {.compression = BI_RLE8, .runs = {0, 9, 1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 0, 1}}},
        {"a run above the top", {.compression = BI_RLE8, .runs = {0, 0, 0, 0, 0, 0, 1, 1, 0, 1}}},
        {"a move past the right edge", {.compression = BI_RLE8, .runs = {0, 2, 9, 0, 0, 1}}},
        {"a move above the top", {.compression = BI_RLE8, .runs = {0, 2, 0, 4, 0, 1}}},
        {"pixels that break off", {.compression = BI_RLE8, .runs = {0, 5, 1, 2}}},
        {"a move that breaks off", {.compression = BI_RLE8, .runs = {0, 2, 1}}},
        {"half a run", {.compression = BI_RLE8, .runs = {1, 1, 1}}},
    };
    std::vector<KindRow> rows;
    for (const auto& [name, spec] : right)
        rows.push_back({name, spec, true});
    for (const auto& [name, spec] : wrong)
        rows.push_back({name, spec, false});
    return rows;
}

} // namespace orv::test
