#pragma once

// A sheet of 32 bits in memory.

#include <afxwin.h>

#include <algorithm>
#include <vector>

namespace orv::test {

inline constexpr COLORREF kWhite = RGB(255, 255, 255);

class Paper {
public:
    Paper(int w, int h, COLORREF color = kWhite) : width(w), height(h), color_(swapped(color)) {
        const BITMAPINFO info = {{40, w, -h, 1, 32, BI_RGB, 0, 0, 0, 0, 0}, {}};
        void* bits = NULL;
        dc.CreateCompatibleDC(NULL);
        bitmap_ = ::CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, NULL, 0);
        bits_ = static_cast<DWORD*>(bits);
        old_ = ::SelectObject(dc, bitmap_);
        clear();
    }
    ~Paper() {
        ::SelectObject(dc, old_);
        ::DeleteObject(bitmap_);
    }
    COLORREF at(int x, int y) const {
        ::GdiFlush();
        return swapped(bits_[y * width + x]);
    }
    // Row by row.
    std::vector<COLORREF> pixels() const {
        ::GdiFlush();
        std::vector<COLORREF> all(bits_, bits_ + width * height);
        std::transform(all.begin(), all.end(), all.begin(), swapped);
        return all;
    }
    void clear() {
        ::GdiFlush();
        std::fill_n(bits_, width * height, color_);
    }
    CDC dc;
    const int width, height;

private:
    // Bitmaps have red and blue the other way round than colours; the fourth byte is nobody's.
    static DWORD swapped(DWORD value) { return RGB(BYTE(value >> 16), BYTE(value >> 8), BYTE(value)); }
    const DWORD color_;
    DWORD* bits_;
    HBITMAP bitmap_;
    HGDIOBJ old_;
};

} // namespace orv::test
