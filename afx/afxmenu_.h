#pragma once

// Menus.

#include "afxcmdtarget_.h"

class CBitmap;

// A menu. The object owns its handle and destroys it, unless the handle came through FromHandle or has been
// given to a window or another menu (Detach it then).
class ORVAFX_API CMenu : public CObject {
    DECLARE_DYNCREATE(CMenu)

public:
    CMenu() = default;
    ~CMenu() override;

    HMENU m_hMenu = NULL;

    operator HMENU() const { return m_hMenu; }
    // NULL on a null pointer as well.
    HMENU GetSafeHmenu() const;
    static CMenu* PASCAL FromHandle(HMENU hMenu);
    static CMenu* PASCAL FromHandlePermanent(HMENU hMenu);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HMENU hMenu);
    HMENU Detach();

    BOOL CreateMenu() { return Attach(::CreateMenu()); }
    BOOL CreatePopupMenu() { return Attach(::CreatePopupMenu()); }
    // Looked for along the module chain.
    BOOL LoadMenu(LPCTSTR lpszResourceName);
    BOOL LoadMenu(UINT nIDResource) { return LoadMenu(MAKEINTRESOURCEA(nIDResource)); }
    BOOL DestroyMenu();

    // Shows the menu at a screen point; commands go to pWnd. With TPM_RETURNCMD the command chosen.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = NULL);

    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = NULL) {
        return ::AppendMenuA(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = NULL) {
        return ::InsertMenuA(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = NULL) {
        return ::ModifyMenuA(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL RemoveMenu(UINT nPosition, UINT nFlags) { return ::RemoveMenu(m_hMenu, nPosition, nFlags); }
    BOOL DeleteMenu(UINT nPosition, UINT nFlags) { return ::DeleteMenu(m_hMenu, nPosition, nFlags); }
    // The state before, (UINT)-1 when there is no such item.
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck) {
        return ::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck);
    }
    BOOL CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags) {
        return ::CheckMenuRadioItem(m_hMenu, nIDFirst, nIDLast, nIDItem, nFlags);
    }
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable) {
        return ::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable);
    }
    UINT GetMenuItemCount() const { return ::GetMenuItemCount(m_hMenu); }
    UINT GetMenuItemID(int nPos) const { return ::GetMenuItemID(m_hMenu, nPos); }
    UINT GetMenuState(UINT nID, UINT nFlags) const { return ::GetMenuState(m_hMenu, nID, nFlags); }
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;
    CMenu* GetSubMenu(int nPos) const { return FromHandle(::GetSubMenu(m_hMenu, nPos)); }
    BOOL SetDefaultItem(UINT uItem, BOOL fByPos = FALSE) {
        return ::SetMenuDefaultItem(m_hMenu, uItem, fByPos);
    }
};
