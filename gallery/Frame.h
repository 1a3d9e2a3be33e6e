#pragma once

#include <afxwin.h>

#include <vector>

namespace gallery {

// The gallery's window: the list of pages on the left, the chosen page beside it. A page is made when it is
// first chosen. Tab changes between list and page.
class Frame : public CFrameWnd {
public:
    // FALSE when there is no window; the frame has deleted itself then.
    BOOL make();

    void RecalcLayout(BOOL bNotify = TRUE) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);
    afx_msg void OnSelchange();
    DECLARE_MESSAGE_MAP()

private:
    void choose(int page);
    CWnd* chosen() const { return m_chosen < 0 ? NULL : m_windows[static_cast<size_t>(m_chosen)]; }

    CListBox m_list;
    CFont m_font;
    std::vector<CWnd*> m_windows; // one for each page, NULL until it is chosen
    int m_chosen = -1;
};

} // namespace gallery
