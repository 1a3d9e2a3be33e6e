#include "DibInfo.h"

namespace orv {

void traceFault(DibFault fault) {
    if (fault == DibFault::headerSize)
        TRACE0("Not a valid Windows bitmap -- probably an OS/2 bitmap\n");
    else
        TRACE("COrvDib: %s\n", dibFaultText(fault));
    UNUSED(fault);
}

bool layoutOf(const COrvDib& dib, DibLayout& layout) {
    constexpr ULONGLONG checkedBefore = ~0ULL;
    if (dib.m_pInfoHeader == NULL ||
        readDibHeader(dib.m_pInfoHeader, checkedBefore, layout) != DibFault::none)
        return false;
    if (layout.headerBytes() != dib.GetSizeHeader() || layout.tableEntries != dib.m_nColorTableEntries)
        return false;
    layout.imageBytes = dib.m_dwImageBytes;
    return layout.isRunLength() || layout.rowsBytes <= layout.imageBytes;
}

void fillInfo(const COrvDib& dib, const DibLayout& layout, DibInfo& info) {
    memset(&info, 0, sizeof(info));
    memcpy(&info.header, dib.m_pInfoHeader, sizeof(info.header));
    info.header.biSizeImage = layout.rowsBytes;
    // Said in full: Wine's metafiles write past a record's end when 8 bits leave it at 0.
    info.header.biClrUsed = layout.bitCount <= 8 ? 1u << layout.bitCount : 0;
    info.header.biClrImportant = 0;
    if (layout.isRunLength())
        info.header.biCompression = BI_RGB;
    if (layout.maskBytes != 0)
        memcpy(info.colors, dib.m_pInfoHeader + 1, layout.maskBytes);
    else
        memcpy(info.colors, dib.m_pColorTable, sizeof(RGBQUAD) * layout.tableEntries);
}

PlainRows::PlainRows(const COrvDib& dib) : rows() {
    if (dib.m_pBits == NULL || !layoutOf(dib, layout))
        return;
    if (dib.m_hSection != NULL)
        ::GdiFlush();
    const BYTE* bits = dib.m_pBits;
    if (layout.isRunLength()) {
        // A few runs may stand for a very large picture: zero memory costs nothing until it is touched.
        expanded_.reset(static_cast<BYTE*>(::calloc(layout.rowsBytes, 1)));
        if (expanded_ == NULL || !expandRuns(layout, bits, expanded_.get()))
            return;
        bits = expanded_.get();
    }
    fillInfo(dib, layout, info);
    rows = {bits, layout.stride, layout.width, layout.height, layout.bitCount, layout.topDown};
}

} // namespace orv
