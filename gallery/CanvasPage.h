#pragma once

#include "CanvasWnd.h"

namespace gallery {

// A page of the window that has controls and draws the rest of itself.
class CanvasPage : public CanvasWnd {
public:
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    // FALSE when there is no window for it: the page has deleted itself then, as it does with its window.
    BOOL makeIn(CWnd& parent, UINT id);

    // Of the Tab key's way through the page: beyond them the frame's bar follows.
    virtual CWnd& firstControl() = 0;
    virtual CWnd& lastControl() = 0;

    afx_msg void OnSetFocus(CWnd* pOldWnd);
    DECLARE_MESSAGE_MAP()
};

} // namespace gallery
