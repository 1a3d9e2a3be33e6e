#include "host.h"

namespace orv::test {
namespace {

const COLORREF palette[] = {RGB(0, 0, 0),       RGB(255, 0, 0),   RGB(0, 255, 0),   RGB(0, 0, 255),
                            RGB(255, 255, 0),   RGB(0, 255, 255), RGB(255, 0, 255), RGB(128, 64, 0),
                            RGB(255, 255, 255), RGB(128, 128, 0), RGB(0, 128, 128), RGB(64, 0, 64),
                            RGB(32, 32, 32),    RGB(64, 128, 32), RGB(8, 16, 248),  RGB(200, 100, 50)};

int indexAt(int bitCount, int x, int y) {
    const int mixed = x * 5 + y * 11 + x * y;
    return bitCount == 1 ? mixed % 3 % 2 : mixed % 16;
}

// Full and empty channels only: every depth can show them.
COLORREF strongColor(int index) {
    return palette[index % 7 + 1 - (index % 7 == 6 ? 6 : 0)];
}

DWORD fieldOf(BYTE value, DWORD mask) {
    return value != 0 ? mask : 0;
}

DWORD packed(const Depth& depth, COLORREF color) {
    if (depth.bitCount == 24 || (depth.bitCount == 32 && depth.masks.empty()))
        return DWORD(GetRValue(color)) << 16 | GetGValue(color) << 8 | GetBValue(color);
    const std::vector<DWORD> masks =
        !depth.masks.empty() ? depth.masks : std::vector<DWORD>{0x7C00, 0x3E0, 0x1F};
    return fieldOf(GetRValue(color), masks[0]) | fieldOf(GetGValue(color), masks[1]) |
           fieldOf(GetBValue(color), masks[2]);
}

BYTE fieldValue(DWORD value, DWORD mask) {
    return BYTE(ULONGLONG(value & mask) * 255 / mask);
}

} // namespace

void writeFile(const char* path, const Bytes& bytes) {
    CFile file(path, CFile::modeCreate | CFile::modeWrite);
    file.Write(bytes.data(), UINT(bytes.size()));
}

Bytes readFile(const char* path) {
    CFile file(path, CFile::modeRead | CFile::shareDenyNone);
    Bytes bytes(size_t(file.GetLength()));
    file.Read(bytes.data(), UINT(bytes.size()));
    return bytes;
}

const std::vector<Depth>& depths() {
    static const std::vector<Depth> all = {
        {"1 bit", 1, BI_RGB, {}},
        {"4 bits", 4, BI_RGB, {}},
        {"8 bits", 8, BI_RGB, {}},
        {"16 bits", 16, BI_RGB, {}},
        {"16 bits, fields", 16, BI_BITFIELDS, {0xF800, 0x07E0, 0x001F}},
        {"24 bits", 24, BI_RGB, {}},
        {"32 bits", 32, BI_RGB, {}},
        {"32 bits, fields", 32, BI_BITFIELDS, {0x0000FF, 0x00FF00, 0xFF0000}},
    };
    return all;
}

Bytes pictureFile(const Depth& depth, int width, int height) {
    Bytes bytes = makeFile({.width = width,
                            .height = height,
                            .bitCount = depth.bitCount,
                            .compression = depth.compression,
                            .masks = depth.masks});
    const int lines = abs(height);
    const size_t stride = strideOf(width, depth.bitCount), start = bytes.size() - stride * lines;
    for (int i = 0; depth.bitCount <= 8 && i < 16 && i < 1 << depth.bitCount; ++i) {
        const RGBQUAD color = {GetBValue(palette[i]), GetGValue(palette[i]), GetRValue(palette[i]), 0};
        memcpy(&bytes[54 + 4 * i], &color, 4);
    }
    // Every byte is set: what the rows are filled up with as well.
    std::fill(bytes.begin() + start, bytes.end(), BYTE(0));
    for (int y = 0; y < lines; ++y) {
        for (int x = 0; x < width; ++x) {
            const size_t bit = size_t(x) * depth.bitCount;
            BYTE* at = &bytes[start + stride * (height < 0 ? y : lines - 1 - y) + bit / 8];
            const DWORD value = depth.bitCount <= 8 ? DWORD(indexAt(depth.bitCount, x, y))
                                                    : packed(depth, pictureColor(depth, x, y));
            if (depth.bitCount < 8)
                *at |= BYTE(value << (8 - depth.bitCount - bit % 8));
            else
                memcpy(at, &value, depth.bitCount / 8);
        }
    }
    return bytes;
}

COLORREF pictureColor(const Depth& depth, int x, int y) {
    const int index = indexAt(depth.bitCount, x, y);
    return depth.bitCount <= 8 ? palette[index] : strongColor(index);
}

BOOL readBytes(COrvDib& dib, const Bytes& bytes) {
    CMemFile file(const_cast<BYTE*>(bytes.data()), UINT(bytes.size()));
    return dib.Read(&file);
}

ReadDib::ReadDib(const Bytes& file) {
    if (!readBytes(*this, file))
        throw std::runtime_error("a good file is not read");
}

COLORREF colorOf(const COrvDib& dib, int x, int y) {
    const BITMAPINFOHEADER& header = *dib.m_pInfoHeader;
    const DWORD value = dib.GetPixelIndex(x, dib.GetDimensions().cy - 1 - y);
    if (header.biBitCount <= 8) {
        const RGBQUAD& color = dib.m_pColorTable[value];
        return RGB(color.rgbRed, color.rgbGreen, color.rgbBlue);
    }
    DWORD masks[3] = {0xFF0000, 0xFF00, 0xFF};
    if (header.biBitCount == 16) {
        masks[0] = 0x7C00;
        masks[1] = 0x3E0;
        masks[2] = 0x1F;
    }
    if (header.biCompression == BI_BITFIELDS)
        memcpy(masks, dib.m_pInfoHeader + 1, sizeof(masks));
    return RGB(fieldValue(value, masks[0]), fieldValue(value, masks[1]), fieldValue(value, masks[2]));
}

void expectPicture(const COrvDib& dib, const Depth& depth, int width, int height) {
    ASSERT_EQ(CSize(width, height), dib.GetDimensions());
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            ASSERT_EQ(pictureColor(depth, x, y), colorOf(dib, x, y)) << depth.name << " " << x << ", " << y;
}

Bytes runsFile() {
    const Bytes runs = {4, 9, 0, 0, 1, 3, 3, 5, 0, 1};
    return makeFile({.width = 4, .height = 2, .compression = BI_RLE8, .runs = runs});
}

COLORREF tableEntry(int i) {
    const RGBQUAD color = tableColor(i);
    return RGB(color.rgbRed, color.rgbGreen, color.rgbBlue);
}

} // namespace orv::test
