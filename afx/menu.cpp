#include "threadstate.h"

using orvafx::threadState;

IMPLEMENT_DYNCREATE(CMenu, CObject)

CMenu::~CMenu() {
    DestroyMenu();
}

HMENU CMenu::GetSafeHmenu() const {
    const CMenu* const volatile self = this;
    return self ? self->m_hMenu : NULL;
}

CMenu* PASCAL CMenu::FromHandlePermanent(HMENU hMenu) {
    return static_cast<CMenu*>(threadState().menus.permanent(hMenu));
}

CMenu* PASCAL CMenu::FromHandle(HMENU hMenu) {
    return threadState().menus.objectOf<CMenu>(hMenu, [=] {
        auto* menu = new CMenu;
        menu->m_hMenu = hMenu;
        return menu;
    });
}

void PASCAL CMenu::DeleteTempMap() {
    threadState().menus.deleteTemporary();
}

BOOL CMenu::Attach(HMENU hMenu) {
    ASSERT(m_hMenu == NULL);
    if (!hMenu)
        return FALSE;
    DestroyMenu();
    m_hMenu = hMenu;
    threadState().menus.setPermanent(hMenu, this);
    return TRUE;
}

HMENU CMenu::Detach() {
    const HMENU handle = m_hMenu;
    orvafx::leaveHandle(&orvafx::ThreadState::menus, handle, this);
    m_hMenu = NULL;
    return handle;
}

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName) {
    return Attach(::LoadMenuA(AfxFindResourceHandle(lpszResourceName, RT_MENU), lpszResourceName));
}

BOOL CMenu::DestroyMenu() {
    const HMENU handle = Detach();
    return handle && ::DestroyMenu(handle);
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect) {
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, pWnd->GetSafeHwnd(), lpRect);
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const {
    const int length = ::GetMenuStringA(m_hMenu, nIDItem, NULL, 0, nFlags);
    ::GetMenuStringA(m_hMenu, nIDItem, rString.GetBuffer(length + 1), length + 1, nFlags);
    rString.ReleaseBuffer();
    return rString.GetLength();
}
