#pragma once

// The field in which a folder or an item of the outlook bar is renamed.

#include <afxwin.h>
#include <orvfc/OrvApi.h>

// An edit field that ends by itself: with Enter or by losing the focus its text is to be taken, with Esc or
// DestroyWindow it is not. However many of these come together, its parent is told once, by
// SendMessage: WM_GFX_END_LABEL_EDIT with wParam 0 to take the text (anything else: not) and the field's
// window in lParam. Then the window is destroyed and the object deletes itself: make it with new.
class ORVFC_API CGfxGroupEdit : public CEdit {
    DECLARE_DYNCREATE(CGfxGroupEdit)

public:
    CGfxGroupEdit();
    ~CGfxGroupEdit() override;
    CGfxGroupEdit(const CGfxGroupEdit&) = delete;
    CGfxGroupEdit& operator=(const CGfxGroupEdit&) = delete;

    bool m_bEscapeKey = false; // set by Esc: the text is not to be taken

    // Tells the parent and destroys the window. Only the first call does anything.
    void EndEdit(bool bTake);
    bool IsEnding() const { return m_bEnding; }

    BOOL DestroyWindow() override;
    // Looks at the message's wParam alone, whatever the message is (callers rely on it): 13 ends as Enter
    // does and 27 as Esc does; the message is swallowed.
    BOOL PreTranslateMessage(MSG* pMsg) override;

    void Dump(CDumpContext& dc) const override;

protected:
    void PostNcDestroy() override; // deletes the object
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg UINT OnGetDlgCode(); // all keys: Enter and Esc do not reach a dialog's buttons
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnClose();
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    bool TellParent(bool bTake);
    bool m_bEnding = false;
};
