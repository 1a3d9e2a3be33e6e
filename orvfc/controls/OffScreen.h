#pragma once

// A picture of part of a window, made off-screen.

#include <afxwin.h>

namespace orv {

class OffScreen {
public:
    // A bitmap for the part of the device context's surface; drawing into dc() uses the surface's
    // coordinates.
    OffScreen(CDC& surface, const CRect& part) : part_(part) {
        dc_.CreateCompatibleDC(&surface);
        bitmap_.CreateCompatibleBitmap(&surface, part.Width(), part.Height());
        before_ = dc_.SelectObject(&bitmap_);
        dc_.SetViewportOrg(-part.left, -part.top);
    }
    ~OffScreen() { dc_.SelectObject(before_); }
    OffScreen(const OffScreen&) = delete;
    OffScreen& operator=(const OffScreen&) = delete;

    CDC& dc() { return dc_; }
    void copyTo(CDC& surface) {
        surface.BitBlt(part_.left, part_.top, part_.Width(), part_.Height(), &dc_, part_.left, part_.top,
                       SRCCOPY);
    }

private:
    const CRect part_;
    CDC dc_;
    CBitmap bitmap_;
    CBitmap* before_;
};

} // namespace orv
