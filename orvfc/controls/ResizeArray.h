#pragma once

#include <afxwin.h>

#include <vector>

#include "ResizeShares.h"

// What the two halves of the resize control share: its children (ResizeCtrl.cpp) and its place among the
// parent's window procedures (ResizeHook.cpp).

struct CResizeArray {
    struct Entry {
        HWND child;
        orv::ResizeFour remainders;
        orv::ResizeFour shares;
        bool dropDown; // a combo whose window is sized by the height of field and list together
        int dropDownSurplus;
    };
    struct Move {
        HWND child;
        orv::ResizeFour box;
        CRect before;
    };

    std::vector<Entry> entries;
    std::vector<Move> moves; // of the running step; memory for all is taken when a child is added
};

class CResizeCtrl;

namespace orv {

// The control that has hooked the window, enabled or only passing messages on. NULL when there is none.
CResizeCtrl* resizeControlOf(HWND parent);

// Whether the parent's background is seen in a child: group boxes, transparent windows, and texts and buttons
// that the parent gives a hollow brush. The parent is asked for its brushes.
bool isSeenThrough(HWND child, HWND parent, HDC dc);

} // namespace orv
