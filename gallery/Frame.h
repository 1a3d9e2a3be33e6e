#pragma once

#include <orvfc/ORVFC.h>

#include <vector>

namespace gallery {

// The gallery's window: the bar of pages on the left, the chosen page beside it. A page is made when it is
// first chosen. Tab changes between bar and page. The bar's entries may be renamed and dragged about: each
// keeps its page.
class Frame : public CFrameWnd {
public:
    // FALSE when there is no window; the frame has deleted itself then.
    BOOL make();

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSysColorChange(); // told to top-level windows alone: the bar wants to know
    afx_msg LRESULT OnClicked(WPARAM wParam, LPARAM lParam);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos);
    afx_msg void OnChangeView();
    DECLARE_MESSAGE_MAP()

private:
    void fillBar();
    void choose(int page);
    void place(CWnd& page);
    CWnd* chosen() const { return m_chosen < 0 ? NULL : m_windows[static_cast<size_t>(m_chosen)]; }

    CGfxOutBarCtrl m_bar;
    CResizeCtrl m_resize;
    CImageList m_largeIcons, m_smallIcons;
    std::vector<CWnd*> m_windows; // one for each page, NULL until it is chosen
    int m_chosen = -1;
};

} // namespace gallery
