#include "bitmap_peer.h"

DWORD peerPixel(const BITMAPINFOHEADER* header, const BYTE* bits, DWORD imageBytes, int x, int y) {
    const int height = header->biHeight < 0 ? -header->biHeight : header->biHeight;
    if (bits == NULL || header->biCompression == BI_RLE4 || header->biCompression == BI_RLE8)
        return 0;
    if (x < 0 || y < 0 || x >= header->biWidth || y >= height)
        return 0;
    const size_t stride = (size_t(header->biWidth) * header->biBitCount + 31) / 32 * 4;
    const size_t start = stride * size_t(header->biHeight < 0 ? height - 1 - y : y);
    if (start + stride > imageBytes)
        return 0;
    const BYTE* row = bits + start;
    switch (header->biBitCount) {
    case 1:
        return row[x / 8] >> (7 - x % 8) & 1;
    case 4:
        return x % 2 != 0 ? row[x / 2] & 0xF : row[x / 2] >> 4;
    case 8:
        return row[x];
    case 16:
        return row[2 * x] | row[2 * x + 1] << 8;
    case 24:
        return row[3 * x] | row[3 * x + 1] << 8 | row[3 * x + 2] << 16;
    default:
        return row[4 * x] | row[4 * x + 1] << 8 | row[4 * x + 2] << 16 | DWORD(row[4 * x + 3]) << 24;
    }
}
