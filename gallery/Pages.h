#pragma once

#include <afxwin.h>

#include <span>

namespace gallery {

// One page of the window. Each page has a source file of its own and a row in Pages.cpp.
struct Page {
    const char* title;
    // Makes the page's window, a hidden child of parent; it deletes itself when it is destroyed. NULL when it
    // cannot be made.
    CWnd* (*create)(CWnd& parent, UINT id);
    const char* folder = "控件"; // of the bar on the left
};

std::span<const Page> pages();

CWnd* createLinePage(CWnd& parent, UINT id);
CWnd* createPickerPage(CWnd& parent, UINT id);
CWnd* createTextPropertyPage(CWnd& parent, UINT id);

} // namespace gallery
