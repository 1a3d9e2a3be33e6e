#include "DibHeader.h"

#include <initializer_list>

namespace orv {
namespace {

struct DepthRow {
    int bitCount;
    int tableEntries;
};
constexpr DepthRow depthRows[] = {{1, 2}, {4, 16}, {8, 256}, {16, 0}, {24, 0}, {32, 0}};

// One unbroken group of bits inside a pixel.
bool isField(DWORD mask, int bitCount) {
    const ULONGLONG lowest = mask & (~mask + 1ULL);
    return mask != 0 && ((mask + lowest) & mask) == 0 && (bitCount == 32 || mask >> bitCount == 0);
}

bool areFields(const DWORD (&masks)[3], int bitCount) {
    for (DWORD mask : masks) {
        if (!isField(mask, bitCount))
            return false;
    }
    return (masks[0] & masks[1]) == 0 && (masks[0] & masks[2]) == 0 && (masks[1] & masks[2]) == 0;
}

DibFault readDimensions(const BITMAPINFOHEADER& header, DibLayout& layout) {
    if (header.biWidth <= 0 || header.biHeight == 0 || header.biHeight == LONG(0x80000000) ||
        header.biPlanes != 1)
        return DibFault::dimensions;
    layout.width = header.biWidth;
    layout.topDown = header.biHeight < 0;
    layout.height = layout.topDown ? -header.biHeight : header.biHeight;
    layout.bitCount = header.biBitCount;
    return defaultTableEntries(layout.bitCount) < 0 ? DibFault::depth : DibFault::none;
}

DibFault readCompression(const BITMAPINFOHEADER& header, DibLayout& layout) {
    layout.compression = header.biCompression;
    layout.maskBytes = 0;
    memset(layout.masks, 0, sizeof(layout.masks));
    switch (header.biCompression) {
    case BI_RGB:
        return DibFault::none;
    case BI_RLE4:
    case BI_RLE8: {
        const int bitCount = header.biCompression == BI_RLE4 ? 4 : 8;
        // How long the runs are only the size field can say.
        const bool good = layout.bitCount == bitCount && !layout.topDown && header.biSizeImage != 0;
        return good ? DibFault::none : DibFault::compression;
    }
    case BI_BITFIELDS:
        layout.maskBytes = kMaskBytes;
        return layout.bitCount == 16 || layout.bitCount == 32 ? DibFault::none : DibFault::compression;
    default:
        return DibFault::compression;
    }
}

DibFault readSizes(const BITMAPINFOHEADER& header, DibLayout& layout) {
    if (header.biClrUsed > DWORD(kMaxTableEntries))
        return DibFault::colorTable;
    layout.tableEntries =
        header.biClrUsed != 0 ? int(header.biClrUsed) : defaultTableEntries(layout.bitCount);
    const ULONGLONG stride = (ULONGLONG(layout.width) * layout.bitCount + 31) / 32 * 4;
    const ULONGLONG rows = stride * layout.height;
    ULONGLONG image = header.biSizeImage;
    if (!layout.isRunLength() && image < rows)
        image = rows;
    constexpr ULONGLONG most = 0xFFFFFFFF;
    if (rows > most || kFileHeaderBytes + layout.headerBytes() + image > most)
        return DibFault::tooLarge;
    layout.stride = DWORD(stride);
    layout.rowsBytes = DWORD(rows);
    layout.imageBytes = DWORD(image);
    return DibFault::none;
}

// Everything but the question whether the rows are there.
DibFault readFields(const void* bytes, ULONGLONG available, DibLayout& layout) {
    BITMAPINFOHEADER header;
    if (available < sizeof(header.biSize))
        return DibFault::cutShort;
    memcpy(&header.biSize, bytes, sizeof(header.biSize));
    if (header.biSize != kInfoHeaderBytes)
        return DibFault::headerSize;
    if (available < kInfoHeaderBytes)
        return DibFault::cutShort;
    memcpy(&header, bytes, sizeof(header));
    for (const auto read : {readDimensions, readCompression, readSizes}) {
        const DibFault fault = read(header, layout);
        if (fault != DibFault::none)
            return fault;
    }
    if (available < layout.headerBytes())
        return DibFault::cutShort;
    if (layout.maskBytes == 0)
        return DibFault::none;
    memcpy(layout.masks, static_cast<const BYTE*>(bytes) + kInfoHeaderBytes, sizeof(layout.masks));
    return areFields(layout.masks, layout.bitCount) ? DibFault::none : DibFault::masks;
}

} // namespace

const char* dibFaultText(DibFault fault) {
    static const char* const texts[] = {
        "no fault",
        "the bitmap is cut short",
        "not a bitmap file",
        "not a 40-byte bitmap header",
        "impossible width, height or planes",
        "impossible number of bits a pixel",
        "impossible compression",
        "more than 256 colours",
        "impossible bit fields",
        "the bitmap is too large",
        "the rows lie inside the header or outside the file",
        "run-length rows leave the picture",
    };
    return texts[int(fault)];
}

int defaultTableEntries(int bitCount) {
    for (const DepthRow& row : depthRows) {
        if (row.bitCount == bitCount)
            return row.tableEntries;
    }
    return -1;
}

DibFault readDibHeader(const void* header, ULONGLONG available, DibLayout& layout) {
    const DibFault fault = readFields(header, available, layout);
    if (fault == DibFault::none && available - layout.headerBytes() < layout.imageBytes)
        return DibFault::cutShort;
    return fault;
}

DibFault readDibFileHeader(const BITMAPFILEHEADER& file, const void* header, ULONGLONG available,
                           DibLayout& layout) {
    if (file.bfType != kBitmapType)
        return DibFault::notBitmap;
    const DibFault fault = readFields(header, available, layout);
    if (fault != DibFault::none)
        return fault;
    if (file.bfOffBits < kFileHeaderBytes + layout.headerBytes() ||
        file.bfOffBits - kFileHeaderBytes > available)
        return DibFault::offset;
    const ULONGLONG behind = available - (file.bfOffBits - kFileHeaderBytes);
    return behind < layout.imageBytes ? DibFault::cutShort : DibFault::none;
}

BITMAPFILEHEADER dibFileHeader(const DibLayout& layout) {
    BITMAPFILEHEADER file = {};
    file.bfType = kBitmapType;
    file.bfOffBits = kFileHeaderBytes + layout.headerBytes();
    return file;
}

} // namespace orv
