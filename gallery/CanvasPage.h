#pragma once

#include <afxwin.h>

namespace gallery {

// A page of the window that has controls and draws the rest of itself.
class CanvasPage : public CWnd {
public:
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    // FALSE when there is no window for it: the page has deleted itself then, as it does with its window.
    BOOL makeIn(CWnd& parent, UINT id);

    // The whole client area; nothing is erased before.
    virtual void draw(CDC& dc) = 0;
    // Of the Tab key's way through the page: beyond them the frame's bar follows.
    virtual CWnd& firstControl() = 0;
    virtual CWnd& lastControl() = 0;

    void PostNcDestroy() override { delete this; }

    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};

} // namespace gallery
