#pragma once

// What the system's bitmap functions are given of a COrvDib.

#include "cdib.h"
#include "DibPixels.h"

#include <memory>
#include <stdlib.h>

namespace orv {

// A header of uncompressed rows with the largest colour table there can be: however many entries a picture
// has and whatever indices its pixels hold, nobody reads past its end. Missing entries are black.
struct DibInfo {
    BITMAPINFOHEADER header;
    RGBQUAD colors[kMaxTableEntries]; // or the masks of bit fields

    const BITMAPINFO* get() const { return reinterpret_cast<const BITMAPINFO*>(this); }
    BITMAPINFO* get() { return reinterpret_cast<BITMAPINFO*>(this); }
};

// Says the fault to the debugger.
void traceFault(DibFault fault);

// FALSE when the bitmap is empty, or its public fields no longer agree with its header.
bool layoutOf(const COrvDib& dib, DibLayout& layout);

void fillInfo(const COrvDib& dib, const DibLayout& layout, DibInfo& info);

// The uncompressed rows of a bitmap; run-length rows are written out for as long as this object lives.
class PlainRows {
public:
    explicit PlainRows(const COrvDib& dib);
    bool isGood() const { return rows.bits != NULL; }

    DibLayout layout;
    DibInfo info;
    DibRows rows;

private:
    struct Free {
        void operator()(BYTE* bytes) const { ::free(bytes); }
    };
    std::unique_ptr<BYTE, Free> expanded_;
};

inline HDC handleOf(CDC* pDC) {
    return pDC != NULL ? pDC->m_hDC : NULL;
}

// A device context of no device, for the functions that want one.
class MemoryDc {
public:
    MemoryDc() : dc(::CreateCompatibleDC(NULL)) {}
    ~MemoryDc() { ::DeleteDC(dc); }
    MemoryDc(const MemoryDc&) = delete;
    MemoryDc& operator=(const MemoryDc&) = delete;

    const HDC dc;
};

// The rows of a bitmap that is in no device context, as a packed bitmap in a movable global block. NULL when
// the driver has none in that form.
HGLOBAL packBitmap(HDC dc, HBITMAP bitmap, WORD bitCount, DWORD compression);

} // namespace orv
