#pragma once

#include <afxwin.h>

namespace gallery {

// A child window that draws all of itself, on the screen and wherever it is printed, and deletes itself with
// its window.
class CanvasWnd : public CWnd {
protected:
    // The whole client area; nothing is erased before.
    virtual void draw(CDC& dc) = 0;

    void PostNcDestroy() override { delete this; }

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};

} // namespace gallery
