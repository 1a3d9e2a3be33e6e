#include "cdib.h"
#include "DibInfo.h"

#include <new>
#include <utility>

IMPLEMENT_SERIAL(COrvDib, CObject, 1)

COrvDib::COrvDib() {
    Clear();
}

COrvDib::COrvDib(CSize size, int bitCount) {
    Clear();
    BITMAPINFOHEADER header = {};
    header.biSize = sizeof(header);
    header.biWidth = size.cx;
    header.biHeight = size.cy;
    header.biPlanes = 1;
    header.biBitCount = WORD(bitCount);
    orv::DibLayout layout;
    const bool bGood =
        bitCount == header.biBitCount && orv::readDibHeader(&header, ~0ULL, layout) == orv::DibFault::none;
    ASSERT(bGood);
    void* block = bGood ? ::operator new(layout.headerBytes(), std::nothrow) : NULL;
    if (block == NULL)
        return;
    memset(block, 0, layout.headerBytes());
    memcpy(block, &header, sizeof(header));
    TakeHeader(block, layout);
    m_nHeaderOwner = ownerAllocation;
}

COrvDib::COrvDib(const COrvDib& dib) : CObject() {
    Clear();
    CopyOf(dib);
}

COrvDib& COrvDib::operator=(const COrvDib& dib) {
    SetDib(dib);
    return *this;
}

COrvDib::~COrvDib() {
    Empty();
}

// The copy is complete before the old picture goes: the original may lie in this object's memory.
BOOL COrvDib::SetDib(const COrvDib& dib) {
    if (&dib == this)
        return TRUE;
    COrvDib copy;
    const BOOL bCopied = copy.CopyOf(dib);
    Swap(copy);
    return bCopied;
}

namespace {

HPALETTE makePalette(const PALETTEENTRY* entries, int count) {
    struct {
        WORD version;
        WORD count;
        PALETTEENTRY entries[orv::kMaxTableEntries];
    } palette = {0x300, WORD(count), {}};
    memcpy(palette.entries, entries, sizeof(PALETTEENTRY) * count);
    return ::CreatePalette(reinterpret_cast<LOGPALETTE*>(&palette));
}

HPALETTE copyPalette(HPALETTE original) {
    PALETTEENTRY entries[orv::kMaxTableEntries];
    const UINT count = ::GetPaletteEntries(original, 0, orv::kMaxTableEntries, entries);
    return count > 0 ? makePalette(entries, int(count)) : NULL;
}

void* copyBlock(const void* original, size_t bytes) {
    void* copy = ::operator new(bytes, std::nothrow);
    if (copy != NULL)
        memcpy(copy, original, bytes);
    return copy;
}

} // namespace

// Into an empty object; all or nothing.
BOOL COrvDib::CopyOf(const COrvDib& dib) {
    orv::DibLayout layout;
    if (dib.m_pInfoHeader == NULL)
        return TRUE;
    if (!orv::layoutOf(dib, layout))
        return FALSE;
    void* header = copyBlock(dib.m_pInfoHeader, layout.headerBytes());
    if (header == NULL)
        return FALSE;
    TakeHeader(header, layout);
    m_nHeaderOwner = ownerAllocation;
    if (dib.m_pBits != NULL) {
        if (dib.m_hSection != NULL)
            ::GdiFlush();
        m_pBits = static_cast<BYTE*>(copyBlock(dib.m_pBits, layout.imageBytes));
        if (m_pBits == NULL) {
            Empty();
            return FALSE;
        }
        m_nBitsOwner = ownerAllocation;
    }
    if (dib.m_hPal != NULL)
        m_hPal = copyPalette(dib.m_hPal);
    m_dRadian = dib.m_dRadian;
    return TRUE;
}

void COrvDib::Clear() {
    m_pColorTable = NULL;
    m_hSection = NULL;
    m_pBits = NULL;
    m_pInfoHeader = NULL;
    m_hMemBlock = NULL;
    m_nHeaderOwner = m_nBitsOwner = ownerNobody;
    m_dwImageBytes = 0;
    m_nColorTableEntries = 0;
    m_hMapFile = m_hMapping = NULL;
    m_pMapView = NULL;
    m_hPal = NULL;
    m_dRadian = m_dWidth = m_dHeight = 0;
}

void COrvDib::Swap(COrvDib& dib) {
    std::swap(m_pColorTable, dib.m_pColorTable);
    std::swap(m_hSection, dib.m_hSection);
    std::swap(m_pBits, dib.m_pBits);
    std::swap(m_pInfoHeader, dib.m_pInfoHeader);
    std::swap(m_hMemBlock, dib.m_hMemBlock);
    std::swap(m_nHeaderOwner, dib.m_nHeaderOwner);
    std::swap(m_nBitsOwner, dib.m_nBitsOwner);
    std::swap(m_dwImageBytes, dib.m_dwImageBytes);
    std::swap(m_nColorTableEntries, dib.m_nColorTableEntries);
    std::swap(m_hMapFile, dib.m_hMapFile);
    std::swap(m_hMapping, dib.m_hMapping);
    std::swap(m_pMapView, dib.m_pMapView);
    std::swap(m_hPal, dib.m_hPal);
    std::swap(m_dRadian, dib.m_dRadian);
    std::swap(m_dWidth, dib.m_dWidth);
    std::swap(m_dHeight, dib.m_dHeight);
}

void COrvDib::Empty() {
    const bool bGlobal = m_nHeaderOwner == ownerGlobal || m_nBitsOwner == ownerGlobal;
    if (bGlobal && m_hMemBlock != NULL) {
        ::GlobalUnlock(m_hMemBlock);
        ::GlobalFree(m_hMemBlock);
    }
    if (m_nBitsOwner == ownerAllocation)
        ::operator delete(m_pBits);
    if (m_nHeaderOwner == ownerAllocation)
        ::operator delete(m_pInfoHeader);
    if (m_hSection != NULL)
        ::DeleteObject(m_hSection);
    if (m_hPal != NULL)
        ::DeleteObject(m_hPal);
    if (m_pMapView != NULL)
        ::UnmapViewOfFile(m_pMapView);
    if (m_hMapping != NULL)
        ::CloseHandle(m_hMapping);
    if (m_hMapFile != NULL)
        ::CloseHandle(m_hMapFile);
    Clear();
}

// Takes over a header that has been found good, with nothing of an older one left.
void COrvDib::TakeHeader(void* header, const orv::DibLayout& layout) {
    m_pInfoHeader = static_cast<BITMAPINFOHEADER*>(header);
    m_pColorTable =
        reinterpret_cast<RGBQUAD*>(static_cast<BYTE*>(header) + orv::kInfoHeaderBytes + layout.maskBytes);
    m_nColorTableEntries = layout.tableEntries;
    m_dwImageBytes = layout.imageBytes;
    m_dWidth = layout.width;
    m_dHeight = layout.height;
}

CSize COrvDib::GetDimensions() const {
    orv::DibLayout layout;
    return orv::layoutOf(*this, layout) ? CSize(layout.width, layout.height) : CSize(0, 0);
}

DWORD COrvDib::GetSizeHeader() const {
    const BYTE* end = reinterpret_cast<const BYTE*>(m_pColorTable + m_nColorTableEntries);
    return m_pInfoHeader != NULL ? DWORD(end - reinterpret_cast<const BYTE*>(m_pInfoHeader)) : 0;
}

DWORD COrvDib::GetFileLength() const {
    return m_pInfoHeader != NULL ? orv::kFileHeaderBytes + GetSizeHeader() + m_dwImageBytes : 0;
}

// The row of a pixel; NULL outside the picture. A host may have changed the header since it was checked.
BYTE* COrvDib::RowOf(int x, int y) const {
    const BITMAPINFOHEADER* header = m_pInfoHeader;
    if (m_pBits == NULL || header->biCompression == BI_RLE4 || header->biCompression == BI_RLE8 ||
        !orv::isDepth(header->biBitCount))
        return NULL;
    const LONGLONG height = header->biHeight < 0 ? -LONGLONG(header->biHeight) : header->biHeight;
    if (x < 0 || x >= header->biWidth || y < 0 || y >= height)
        return NULL;
    const ULONGLONG stride = (ULONGLONG(header->biWidth) * header->biBitCount + 31) / 32 * 4;
    const ULONGLONG start = stride * ULONGLONG(header->biHeight < 0 ? height - 1 - y : y);
    return start + stride <= m_dwImageBytes ? m_pBits + start : NULL;
}

DWORD COrvDib::GetPixelIndex(int x, int y) const {
    const BYTE* row = RowOf(x, y);
    return row != NULL ? orv::getPixel(row, x, m_pInfoHeader->biBitCount) : 0;
}

BOOL COrvDib::SetPiexelIndex(int x, int y, DWORD value) {
    BYTE* row = RowOf(x, y);
    if (row == NULL)
        return FALSE;
    orv::setPixel(row, x, m_pInfoHeader->biBitCount, value);
    return TRUE;
}

BOOL COrvDib::MakePalette() {
    if (m_nColorTableEntries <= 0 || m_nColorTableEntries > orv::kMaxTableEntries)
        return FALSE;
    if (m_hPal != NULL)
        ::DeleteObject(m_hPal);
    TRACE1("COrvDib::MakePalette -- m_nColorTableEntries = %d\n", m_nColorTableEntries);
    PALETTEENTRY entries[orv::kMaxTableEntries];
    for (int i = 0; i < m_nColorTableEntries; ++i) {
        const RGBQUAD& color = m_pColorTable[i];
        entries[i] = {color.rgbRed, color.rgbGreen, color.rgbBlue, 0};
    }
    m_hPal = makePalette(entries, m_nColorTableEntries);
    return m_hPal != NULL;
}

void COrvDib::Dump(CDumpContext& dc) const {
    CObject::Dump(dc);
    const CSize size = GetDimensions();
    dc << "size = " << size.cx << " x " << size.cy << "\n";
    if (m_pInfoHeader != NULL) {
        dc << "bits a pixel = " << m_pInfoHeader->biBitCount
           << ", compression = " << m_pInfoHeader->biCompression
           << ", rows from the top down = " << (m_pInfoHeader->biHeight < 0) << "\n";
        dc << "m_nColorTableEntries = " << m_nColorTableEntries << ", m_dwImageBytes = " << m_dwImageBytes
           << "\n";
    }
    dc << "m_pInfoHeader = " << m_pInfoHeader << ", m_pBits = " << m_pBits
       << ", m_nHeaderOwner = " << m_nHeaderOwner << ", m_nBitsOwner = " << m_nBitsOwner << "\n";
    dc << "m_hSection = " << m_hSection << ", m_hMapFile = " << m_hMapFile << ", m_hPal = " << m_hPal
       << ", m_dRadian = " << m_dRadian << "\n";
}
