#pragma once

// What a bitmap's header says, checked: sizes in 64 bits, against the bytes that are there, before anything
// is allocated or touched. Headers need not be aligned.

#include <wintypes.h>

namespace orv {

constexpr WORD kBitmapType = 0x4D42; // "BM"
constexpr DWORD kFileHeaderBytes = sizeof(BITMAPFILEHEADER);
constexpr DWORD kInfoHeaderBytes = sizeof(BITMAPINFOHEADER);
constexpr DWORD kMaskBytes = 3 * sizeof(DWORD);
constexpr int kMaxTableEntries = 256;
constexpr ULONGLONG kUnknownSize = ~0ULL;

enum class DibFault {
    none,
    cutShort,    // less bytes than a header, or than the header promises
    notBitmap,   // the file does not begin with "BM"
    headerSize,  // not the 40-byte header: an OS/2 bitmap, or a later form
    dimensions,  // no width, no height, more than one plane, or a height that has no opposite
    depth,       // not 1, 4, 8, 16, 24 or 32 bits a pixel
    compression, // a way of storing that does not go with the depth or the row order
    colorTable,  // more than 256 colours
    masks,       // bit fields that are empty, broken, overlap or leave the pixel
    tooLarge,    // the whole would not fit a 32-bit size
    offset,      // the rows would begin inside the header or behind the end
    runs,        // run-length rows that leave the picture or break off
};
// For traces.
const char* dibFaultText(DibFault fault);

struct DibLayout {
    int width; // pixels
    int height;
    bool topDown; // the first stored row is the picture's top one
    int bitCount;
    DWORD compression; // BI_RGB, BI_BITFIELDS, BI_RLE4 or BI_RLE8
    DWORD maskBytes;   // bit-field masks between header and colour table
    DWORD masks[3];    // red, green, blue; 0 when there are none
    int tableEntries;  // of the colour table, 0 to 256
    DWORD stride;      // bytes of an uncompressed row, a multiple of 4
    DWORD rowsBytes;   // of all rows when they are not compressed
    DWORD imageBytes;  // of the rows as they are stored
    DWORD headerBytes() const { return kInfoHeaderBytes + maskBytes + sizeof(RGBQUAD) * tableEntries; }
    bool isRunLength() const { return compression == BI_RLE4 || compression == BI_RLE8; }
};

// Entries of the colour table of a picture that does not say how many it has; -1 for a depth that there is
// not.
int defaultTableEntries(int bitCount);

// Reads the 40 bytes of the header and, when available covers them, the masks behind it. available: bytes
// from the header's first on, as far as they can be known; the header must not promise more than that. An
// image size field of 0, or one too small for uncompressed rows, gives way to the size of the rows.
DibFault readDibHeader(const void* header, ULONGLONG available, DibLayout& layout);

// The same for a header at the start of a file's remaining bytes behind its file header: the rows begin at
// offBits from the file header's first byte, a gap before them is allowed.
DibFault readDibFileHeader(const BITMAPFILEHEADER& file, const void* header, ULONGLONG available,
                           DibLayout& layout);

// A file header for the layout; bfSize stays 0.
BITMAPFILEHEADER dibFileHeader(const DibLayout& layout);

} // namespace orv
