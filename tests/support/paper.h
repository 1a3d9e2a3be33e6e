#pragma once

// A white sheet of 32 bits in memory.

#include <afxwin.h>

namespace orv::test {

inline constexpr COLORREF kWhite = RGB(255, 255, 255);

class Paper {
public:
    Paper(int w, int h) : width(w), height(h) {
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
        const DWORD value = bits_[y * width + x];
        return RGB(BYTE(value >> 16), BYTE(value >> 8), BYTE(value));
    }
    void clear() {
        ::GdiFlush();
        memset(bits_, 0xFF, size_t(4) * width * height);
    }
    CDC dc;
    const int width, height;

private:
    DWORD* bits_;
    HBITMAP bitmap_;
    HGDIOBJ old_;
};

} // namespace orv::test
