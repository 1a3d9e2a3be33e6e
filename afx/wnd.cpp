// The members of CWnd that are a few calls into the system.

#include "wndcreate.h"

#include <commctrl.h>
#include <shellapi.h>

using orvafx::threadState;

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

HWND CWnd::GetSafeHwnd() const {
    const CWnd* const volatile self = this;
    return self ? self->m_hWnd : NULL;
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND hWnd) {
    return static_cast<CWnd*>(threadState().windows.permanent(hWnd));
}

CWnd* PASCAL CWnd::FromHandle(HWND hWnd) {
    return threadState().windows.objectOf<CWnd>(hWnd, [=] { return new CWnd(hWnd); });
}

void PASCAL CWnd::DeleteTempMap() {
    threadState().windows.deleteTemporary();
}

BOOL CWnd::Attach(HWND hWndNew) {
    ASSERT(m_hWnd == NULL);
    ASSERT(FromHandlePermanent(hWndNew) == NULL);
    if (!hWndNew)
        return FALSE;
    Detach();
    m_hWnd = hWndNew;
    threadState().windows.setPermanent(hWndNew, this);
    if (WNDPROC left = orvafx::takeLeftProcedure(hWndNew, &m_bWide)) {
        *GetSuperWndProcAddr() = left;
        m_bInChain = TRUE;
    }
    return TRUE;
}

HWND CWnd::Detach() {
    const HWND handle = m_hWnd;
    orvafx::leaveHandle(&orvafx::ThreadState::windows, handle, this);
    WNDPROC* super = GetSuperWndProcAddr();
    if (handle && m_bInChain && *super) {
        orvafx::leaveProcedure(handle, *super, m_bWide);
        *super = NULL;
    }
    m_bInChain = FALSE;
    m_hWnd = NULL;
    m_hWndOwner = NULL;
    return handle;
}

void CWnd::AssertValid() const {
    ASSERT(m_hWnd == NULL || m_hWnd == HWND_TOPMOST || m_hWnd == HWND_NOTOPMOST || m_hWnd == HWND_BOTTOM ||
           ::IsWindow(m_hWnd));
}

void CWnd::Dump(CDumpContext& dc) const {
    CCmdTarget::Dump(dc);
    dc << "m_hWnd = " << static_cast<const void*>(m_hWnd);
    if (::IsWindow(m_hWnd)) {
        CString text;
        GetWindowText(text);
        char name[64] = "";
        ::GetClassNameA(m_hWnd, name, sizeof name);
        dc << ", class " << name << ", text \"" << text << "\"";
    }
    dc << "\n";
}

// --- style and text

static BOOL modifyStyle(HWND window, int which, DWORD remove, DWORD add, UINT flags) {
    const auto before = static_cast<DWORD>(::GetWindowLongA(window, which));
    const DWORD after = (before & ~remove) | add;
    if (before == after)
        return FALSE;
    ::SetWindowLongA(window, which, static_cast<LONG>(after));
    if (flags)
        ::SetWindowPos(window, NULL, 0, 0, 0, 0,
                       flags | SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return TRUE;
}

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return modifyStyle(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return modifyStyle(m_hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

void CWnd::GetWindowText(CString& rString) const {
    // Some controls count characters here, and write no zero behind a text that is cut.
    const int room = ::GetWindowTextLengthA(m_hWnd) * 2 + 1;
    char* text = rString.GetBuffer(room);
    memset(text, 0, static_cast<size_t>(room) + 1);
    ::GetWindowTextA(m_hWnd, text, room);
    rString.ReleaseBuffer();
}

int CWnd::GetDlgItemText(int nID, CString& rString) const {
    rString.Empty();
    if (HWND item = ::GetDlgItem(m_hWnd, nID))
        FromHandle(item)->GetWindowText(rString);
    return rString.GetLength();
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw) {
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(pFont->GetSafeHandle()), bRedraw);
}

CFont* CWnd::GetFont() const {
    return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
}

// --- geometry

void CWnd::CenterWindow(CWnd* pAlternateOwner) {
    const BOOL child = (GetStyle() & WS_CHILD) != 0;
    HWND over = pAlternateOwner->GetSafeHwnd();
    if (!over)
        over = child ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER);
    CRect mine, area, around;
    ::GetWindowRect(m_hWnd, &mine);
    if (child) {
        ::GetClientRect(::GetParent(m_hWnd), &area);
        ::GetClientRect(over, &around);
        ::MapWindowPoints(over, ::GetParent(m_hWnd), reinterpret_cast<LPPOINT>(&around), 2);
    } else {
        MONITORINFO monitor = {};
        monitor.cbSize = sizeof monitor;
        ::GetMonitorInfoA(::MonitorFromWindow(over ? over : m_hWnd, MONITOR_DEFAULTTOPRIMARY), &monitor);
        area = monitor.rcWork;
        if (over && ::IsWindowVisible(over) && !::IsIconic(over))
            ::GetWindowRect(over, &around);
        else
            around = area;
    }
    const CPoint center = around.CenterPoint();
    int x = center.x - mine.Width() / 2, y = center.y - mine.Height() / 2;
    // The left top corner stays in sight when not all of it fits.
    x = x + mine.Width() > area.right ? area.right - mine.Width() : x;
    y = y + mine.Height() > area.bottom ? area.bottom - mine.Height() : y;
    x = x < area.left ? area.left : x;
    y = y < area.top ? area.top : y;
    ::SetWindowPos(m_hWnd, NULL, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const {
    lpwndpl->length = sizeof *lpwndpl;
    return ::GetWindowPlacement(m_hWnd, lpwndpl);
}

void CWnd::ClientToScreen(LPRECT lpRect) const {
    ::MapWindowPoints(m_hWnd, NULL, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::ScreenToClient(LPRECT lpRect) const {
    ::MapWindowPoints(NULL, m_hWnd, reinterpret_cast<LPPOINT>(lpRect), 2);
}

// --- painting

CDC* CWnd::BeginPaint(LPPAINTSTRUCT lpPaint) {
    return CDC::FromHandle(::BeginPaint(m_hWnd, lpPaint));
}

CDC* CWnd::GetDC() {
    return CDC::FromHandle(::GetDC(m_hWnd));
}

CDC* CWnd::GetWindowDC() {
    return CDC::FromHandle(::GetWindowDC(m_hWnd));
}

int CWnd::ReleaseDC(CDC* pDC) {
    return ::ReleaseDC(m_hWnd, pDC->GetSafeHdc());
}

void CWnd::Print(CDC* pDC, DWORD dwFlags) const {
    SendMessage(WM_PRINT, reinterpret_cast<WPARAM>(pDC->GetSafeHdc()), dwFlags);
}

void CWnd::PrintClient(CDC* pDC, DWORD dwFlags) const {
    SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(pDC->GetSafeHdc()), dwFlags);
}

// --- menus

CMenu* CWnd::GetMenu() const {
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CWnd::SetMenu(CMenu* pMenu) {
    return ::SetMenu(m_hWnd, pMenu->GetSafeHmenu());
}

CMenu* CWnd::GetSystemMenu(BOOL bRevert) const {
    return CMenu::FromHandle(::GetSystemMenu(m_hWnd, bRevert));
}

void CWnd::DragAcceptFiles(BOOL bAccept) {
    ModifyStyleEx(bAccept ? 0 : WS_EX_ACCEPTFILES, bAccept ? WS_EX_ACCEPTFILES : 0);
}

// --- relatives

CWnd* CWnd::GetOwner() const {
    return m_hWndOwner ? FromHandle(m_hWndOwner) : GetParent();
}

CWnd* CWnd::GetTopLevelParent() const {
    HWND top = m_hWnd;
    while (HWND parent = top ? ::GetParent(top) : NULL)
        top = parent;
    return FromHandle(top);
}

CFrameWnd* CWnd::GetParentFrame() const {
    for (HWND parent = m_hWnd ? ::GetParent(m_hWnd) : NULL; parent; parent = ::GetParent(parent))
        if (CFrameWnd* frame = DYNAMIC_DOWNCAST(CFrameWnd, FromHandlePermanent(parent)))
            return frame;
    return NULL;
}

CWnd* CWnd::GetDescendantWindow(int nID, BOOL bOnlyPerm) const {
    struct Search {
        int id;
        BOOL onlyPermanent;
        HWND found;
    } search = {nID, bOnlyPerm, NULL};
    ::EnumChildWindows(
        m_hWnd,
        [](HWND window, LPARAM lParam) -> BOOL {
            auto& s = *reinterpret_cast<Search*>(lParam);
            if (::GetDlgCtrlID(window) != s.id || (s.onlyPermanent && !FromHandlePermanent(window)))
                return TRUE;
            s.found = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&search));
    return FromHandle(search.found);
}

int CWnd::GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) const {
    for (int id = nIDFirstButton; id <= nIDLastButton; ++id)
        if (IsDlgButtonChecked(id))
            return id;
    return 0;
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep, BOOL bOnlyPerm) {
    HWND next;
    for (HWND child = ::GetTopWindow(m_hWnd); child; child = next) {
        next = ::GetWindow(child, GW_HWNDNEXT); // the child may go away
        if (!bOnlyPerm)
            ::SendMessageA(child, message, wParam, lParam);
        else if (CWnd* permanent = FromHandlePermanent(child))
            AfxCallWndProc(permanent, child, message, wParam, lParam);
        if (bDeep && ::IsWindow(child) && ::GetTopWindow(child)) {
            CWnd* below = FromHandle(child);
            below->SendMessageToDescendants(message, wParam, lParam, bDeep, bOnlyPerm);
        }
    }
}

// --- scrolling

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask) {
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(m_hWnd, nBar, lpScrollInfo);
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    ::SetScrollInfo(m_hWnd, nBar, lpScrollInfo, bRedraw);
    return TRUE;
}

// --- tool tips: one tip window a thread, whose tools are the children of the window that has them enabled

BOOL CWnd::EnableToolTips(BOOL bEnable) {
    orvafx::ThreadState& state = threadState();
    if (state.toolTip)
        ::DestroyWindow(state.toolTip);
    state.toolTip = state.toolTipFor = NULL;
    if (!bEnable)
        return TRUE;
    state.toolTip =
        ::CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, NULL, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0,
                          0, 0, m_hWnd, NULL, AfxGetInstanceHandle(), NULL);
    if (!state.toolTip)
        return FALSE;
    state.toolTipFor = m_hWnd;
    for (HWND child = ::GetTopWindow(m_hWnd); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        TOOLINFOA tool = {};
        tool.cbSize = TTTOOLINFOA_V1_SIZE;
        tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
        tool.hwnd = m_hWnd;
        tool.uId = reinterpret_cast<UINT_PTR>(child);
        tool.lpszText = LPSTR_TEXTCALLBACKA;
        ::SendMessageA(state.toolTip, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
    }
    return TRUE;
}
