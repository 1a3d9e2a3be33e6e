#include "msgdispatch.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP* PASCAL CCmdTarget::GetThisMessageMap() {
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, AfxSig_end, static_cast<AFX_PMSG>(0)}};
    static const AFX_MSGMAP map = {NULL, entries};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const {
    return GetThisMessageMap();
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    // The high word names the message unless it is WM_COMMAND.
    UINT message = WM_COMMAND, code = static_cast<UINT>(nCode);
    if (code != CN_UPDATE_COMMAND_UI && HIWORD(code) != 0) {
        message = HIWORD(code);
        code = LOWORD(code);
    }
    const AFX_MSGMAP_ENTRY* entry = orvafx::findCommandEntry(GetMessageMap(), message, code, nID);
    if (!entry)
        return FALSE;
    if (pHandlerInfo) {
        pHandlerInfo->pTarget = this;
        pHandlerInfo->pmf = entry->pfn;
        return TRUE;
    }
    return orvafx::callCommandHandler(this, *entry, nID, pExtra);
}

namespace {
int waitCursors = 0; // one user, one mouse: shared by all threads
HCURSOR cursorBefore = NULL;
} // namespace

void CCmdTarget::BeginWaitCursor() {
    HCURSOR before = ::SetCursor(::LoadCursorA(NULL, IDC_WAIT));
    if (waitCursors++ == 0)
        cursorBefore = before;
}

void CCmdTarget::EndWaitCursor() {
    if (waitCursors > 0 && --waitCursors == 0)
        ::SetCursor(cursorBefore);
}

void CCmdTarget::RestoreWaitCursor() {
    ::SetCursor(waitCursors > 0 ? ::LoadCursorA(NULL, IDC_WAIT) : cursorBefore);
}

CWaitCursor::CWaitCursor() {
    if (CWinApp* app = AfxGetApp())
        app->BeginWaitCursor();
}

CWaitCursor::~CWaitCursor() {
    if (CWinApp* app = AfxGetApp())
        app->EndWaitCursor();
}

void CWaitCursor::Restore() {
    if (CWinApp* app = AfxGetApp())
        app->RestoreWaitCursor();
}

void CCmdUI::Enable(BOOL bOn) {
    m_bEnableChanged = TRUE;
    if (m_pMenu) {
        if (m_pSubMenu == NULL)
            m_pMenu->EnableMenuItem(m_nIndex, MF_BYPOSITION | (bOn ? MF_ENABLED : MF_DISABLED | MF_GRAYED));
    } else if (m_pOther) {
        // A disabled window keeps no focus.
        if (!bOn && ::GetFocus() == m_pOther->m_hWnd)
            if (CWnd* parent = m_pOther->GetParent())
                parent->SendMessage(WM_NEXTDLGCTL);
        m_pOther->EnableWindow(bOn);
    }
}

void CCmdUI::SetCheck(int nCheck) {
    if (m_pMenu) {
        if (m_pSubMenu == NULL)
            m_pMenu->CheckMenuItem(m_nIndex, MF_BYPOSITION | (nCheck ? MF_CHECKED : MF_UNCHECKED));
    } else if (m_pOther && (m_pOther->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON)) {
        m_pOther->SendMessage(BM_SETCHECK, nCheck);
    }
}

void CCmdUI::SetRadio(BOOL bOn) {
    SetCheck(bOn);
    if (!m_pMenu || m_pSubMenu)
        return;
    MENUITEMINFOA info = {};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE;
    if (!::GetMenuItemInfoA(m_pMenu->m_hMenu, m_nIndex, TRUE, &info))
        return;
    info.fType |= MFT_RADIOCHECK;
    ::SetMenuItemInfoA(m_pMenu->m_hMenu, m_nIndex, TRUE, &info);
}

void CCmdUI::SetText(LPCTSTR lpszText) {
    if (m_pMenu) {
        if (m_pSubMenu)
            return;
        const UINT state = m_pMenu->GetMenuState(m_nIndex, MF_BYPOSITION);
        m_pMenu->ModifyMenu(m_nIndex,
                            MF_BYPOSITION | MF_STRING | (state & (MF_GRAYED | MF_DISABLED | MF_CHECKED)),
                            m_nID, lpszText);
    } else if (m_pOther) {
        m_pOther->SetWindowText(lpszText);
    }
}

BOOL CCmdUI::DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler) {
    if (m_nID == 0 || LOWORD(m_nID) == 0xFFFF)
        return TRUE;
    m_bEnableChanged = FALSE;
    const BOOL asked = pTarget->OnCmdMsg(m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), this, NULL);
    if (bDisableIfNoHndler && !m_bEnableChanged) {
        AFX_CMDHANDLERINFO info = {NULL, NULL};
        Enable(pTarget->OnCmdMsg(m_nID, CN_COMMAND, this, &info));
    }
    return asked;
}
