#include "GfxGroupEdit.h"

#include "GfxOutBarCtrl.h"

IMPLEMENT_DYNCREATE(CGfxGroupEdit, CEdit)

BEGIN_MESSAGE_MAP(CGfxGroupEdit, CEdit)
ON_WM_CHAR()
ON_WM_GETDLGCODE()
ON_WM_KILLFOCUS()
ON_WM_CLOSE()
ON_WM_DESTROY()
END_MESSAGE_MAP()

CGfxGroupEdit::CGfxGroupEdit() = default;
CGfxGroupEdit::~CGfxGroupEdit() = default;

// The one end: whoever comes first wins.
bool CGfxGroupEdit::TellParent(bool bTake) {
    if (m_bEnding || !m_hWnd)
        return false;
    m_bEnding = true;
    ::SendMessageA(::GetParent(m_hWnd), WM_GFX_END_LABEL_EDIT, bTake ? 0 : 1,
                   reinterpret_cast<LPARAM>(m_hWnd));
    return true;
}

void CGfxGroupEdit::EndEdit(bool bTake) {
    const HWND hWnd = m_hWnd;
    // The parent may have destroyed the window, and this object with it.
    if (TellParent(bTake) && ::IsWindow(hWnd))
        ::DestroyWindow(hWnd);
}

// The system takes the focus from a window that it destroys: that must not be the end that counts.
BOOL CGfxGroupEdit::DestroyWindow() {
    const HWND hWnd = m_hWnd;
    TellParent(false);
    return ::IsWindow(hWnd) && CEdit::DestroyWindow();
}

BOOL CGfxGroupEdit::PreTranslateMessage(MSG* pMsg) {
    if (pMsg->wParam == VK_RETURN || pMsg->wParam == VK_ESCAPE) {
        if (pMsg->wParam == VK_ESCAPE)
            m_bEscapeKey = true;
        SendMessage(WM_CLOSE);
        return TRUE;
    }
    return CEdit::PreTranslateMessage(pMsg);
}

void CGfxGroupEdit::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if (nChar == VK_RETURN || nChar == VK_ESCAPE)
        EndEdit(nChar == VK_RETURN);
    else
        CEdit::OnChar(nChar, nRepCnt, nFlags);
}

UINT CGfxGroupEdit::OnGetDlgCode() {
    return CEdit::OnGetDlgCode() | DLGC_WANTALLKEYS;
}

void CGfxGroupEdit::OnKillFocus(CWnd* pNewWnd) {
    CEdit::OnKillFocus(pNewWnd);
    EndEdit(true);
}

void CGfxGroupEdit::OnClose() {
    EndEdit(!m_bEscapeKey);
}

void CGfxGroupEdit::OnDestroy() {
    TellParent(false);
    CEdit::OnDestroy();
}

void CGfxGroupEdit::PostNcDestroy() {
    delete this;
}

void CGfxGroupEdit::Dump(CDumpContext& dc) const {
    CEdit::Dump(dc);
    CString text;
    if (m_hWnd)
        GetWindowText(text);
    dc << "text = " << text << ", ending = " << static_cast<int>(m_bEnding) << "\n";
}
