// Packed bitmaps in global blocks.

#include "cdib.h"
#include "DibInfo.h"

#include <initializer_list>

namespace {

// The depth that holds as many bits, 0 when there is none.
WORD depthFor(int bits) {
    for (int depth : {1, 4, 8, 16, 24, 32}) {
        if (bits <= depth)
            return WORD(depth);
    }
    return 0;
}

// A locked global block.
struct Block {
    explicit Block(HGLOBAL block) : handle(block), bytes(static_cast<BYTE*>(::GlobalLock(block))) {}
    ~Block() {
        if (bytes != NULL)
            ::GlobalUnlock(handle);
    }
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;

    HGLOBAL handle;
    BYTE* bytes;
};

// The handle of a block that is given as handle or as the address of a locked one.
HGLOBAL blockOf(void* packedDib) {
    const HGLOBAL handle = ::GlobalHandle(packedDib);
    return handle != NULL ? handle : ::GlobalSize(packedDib) != 0 ? packedDib : NULL;
}

bool fillBlock(HGLOBAL handle, HDC dc, HBITMAP bitmap, const orv::DibInfo& info,
               const orv::DibLayout& layout) {
    const Block block(handle);
    if (block.bytes == NULL)
        return false;
    memcpy(block.bytes, &info, layout.headerBytes());
    BITMAPINFO* filled = reinterpret_cast<BITMAPINFO*>(block.bytes);
    const UINT lines = UINT(layout.height);
    const int done =
        ::GetDIBits(dc, bitmap, 0, lines, block.bytes + layout.headerBytes(), filled, DIB_RGB_COLORS);
    filled->bmiHeader.biClrUsed = filled->bmiHeader.biClrImportant = 0;
    return done == layout.height;
}

// Whether the bitmap's pixels are numbers of colours that lie elsewhere: a device bitmap's of that depth,
// where the device has no palette into which GetDIBits would look.
bool lacksColors(HDC dc, HBITMAP bitmap, int bitCount) {
    DIBSECTION facts;
    return ::GetObjectA(bitmap, sizeof(facts), &facts) == sizeof(facts.dsBm) &&
           facts.dsBm.bmPlanes * facts.dsBm.bmBitsPixel == bitCount && (bitCount == 4 || bitCount == 8) &&
           (::GetDeviceCaps(dc, RASTERCAPS) & RC_PALETTE) == 0;
}

void enterColors(HGLOBAL handle, HPALETTE palette, int bitCount) {
    const Block block(handle);
    if (block.bytes == NULL)
        return;
    PALETTEENTRY entries[orv::kMaxTableEntries];
    const UINT count = ::GetPaletteEntries(palette, 0, 1u << bitCount, entries);
    RGBQUAD* colors = reinterpret_cast<BITMAPINFO*>(block.bytes)->bmiColors;
    for (UINT i = 0; i < count; ++i)
        colors[i] = {entries[i].peBlue, entries[i].peGreen, entries[i].peRed, 0};
}

BOOL writeBlock(const char* path, const BYTE* bytes, const orv::DibLayout& layout) {
    CFile file;
    if (!file.Open(path, CFile::modeCreate | CFile::modeWrite | CFile::shareExclusive))
        return FALSE;
    BITMAPFILEHEADER header = orv::dibFileHeader(layout);
    header.bfSize = header.bfOffBits + layout.imageBytes;
    try {
        file.Write(&header, sizeof(header));
        file.Write(bytes, layout.headerBytes() + layout.imageBytes);
        file.Close();
    } catch (CException* e) {
        e->Delete();
        file.Abort();
        ::DeleteFileA(path);
        return FALSE;
    }
    return TRUE;
}

} // namespace

namespace orv {

HGLOBAL packBitmap(HDC dc, HBITMAP bitmap, WORD bitCount, DWORD compression) {
    BITMAP facts;
    if (::GetObjectA(bitmap, sizeof(facts), &facts) == 0)
        return NULL;
    DibInfo info = {};
    info.header = {
        sizeof(info.header), facts.bmWidth, facts.bmHeight, 1, bitCount, compression, 0, 0, 0, 0, 0};
    // The driver says how long compressed rows are, and which bits a field has.
    if (::GetDIBits(dc, bitmap, 0, UINT(facts.bmHeight), NULL, info.get(), DIB_RGB_COLORS) == 0)
        return NULL;
    info.header.biClrUsed = info.header.biClrImportant = 0;
    DibLayout layout;
    if (readDibHeader(&info, ~0ULL, layout) != DibFault::none)
        return NULL;
    const HGLOBAL handle = ::GlobalAlloc(GHND, SIZE_T(layout.headerBytes()) + layout.imageBytes);
    if (handle == NULL || fillBlock(handle, dc, bitmap, info, layout))
        return handle;
    ::GlobalFree(handle);
    return NULL;
}

} // namespace orv

HGLOBAL DDBtoDIB(CBitmap& bitmap, DWORD compression, CPalette* pPalette) {
    BITMAP facts;
    if (bitmap.m_hObject == NULL || bitmap.GetBitmap(&facts) == 0)
        return NULL;
    WORD bitCount = depthFor(facts.bmPlanes * facts.bmBitsPixel);
    if (compression == BI_RLE4 || compression == BI_RLE8)
        bitCount = compression == BI_RLE4 ? 4 : 8;
    else if (compression != BI_RGB && compression != BI_BITFIELDS)
        return NULL;
    const orv::MemoryDc memory;
    const HPALETTE palette = pPalette != NULL ? HPALETTE(pPalette->m_hObject) : NULL;
    // The palette is given back by the device context's end.
    if (palette != NULL) {
        ::SelectPalette(memory.dc, palette, FALSE);
        ::RealizePalette(memory.dc);
    }
    const HGLOBAL packed = bitCount != 0 ? orv::packBitmap(memory.dc, bitmap, bitCount, compression) : NULL;
    if (packed != NULL && palette != NULL && lacksColors(memory.dc, bitmap, bitCount))
        enterColors(packed, palette, bitCount);
    return packed;
}

BOOL WriteDib(const char* path, void* packedDib) {
    ASSERT(path != NULL && packedDib != NULL);
    const HGLOBAL handle = path != NULL && packedDib != NULL ? blockOf(packedDib) : NULL;
    if (handle == NULL)
        return FALSE;
    const Block block(handle);
    orv::DibLayout layout;
    if (block.bytes == NULL)
        return FALSE;
    const orv::DibFault fault = orv::readDibHeader(block.bytes, ::GlobalSize(handle), layout);
    if (fault != orv::DibFault::none) {
        orv::traceFault(fault);
        return FALSE;
    }
    return writeBlock(path, block.bytes, layout);
}
