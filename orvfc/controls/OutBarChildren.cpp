// Windows in the outlook bar's folders: where they stand, what they tell, how Tab reaches them.

#include "GfxOutBarCtrl.h"

#include "GfxGroupEdit.h"
#include "OutBarFolders.h"

#include <orvfc/ORVFC.h>

#include <algorithm>

using orv::OutBarFolder;

namespace {

// What controls tell their parent. Neither the bar's own menus nor its scroll bars name a window.
constexpr struct {
    UINT first, last;
    bool fromWindow; // lParam is the control
} childMessages[] = {{WM_COMMAND, WM_COMMAND, true},
                     {WM_NOTIFY, WM_NOTIFY, false},
                     {WM_DRAWITEM, WM_DELETEITEM, false},
                     {WM_VKEYTOITEM, WM_CHARTOITEM, true},
                     {WM_COMPAREITEM, WM_COMPAREITEM, false},
                     {WM_HSCROLL, WM_VSCROLL, true},
                     {WM_CTLCOLORMSGBOX, WM_CTLCOLORSTATIC, true},
                     {WM_NEXTDLGCTL, WM_NEXTDLGCTL, false}}; // fields of many lines, when Tab is pressed

const UINT* const pickerMessages[] = {&WM_FONT_NAME_CMB_SELCHANGE,  &WM_FONT_SIZE_CMB_SELCHANGE,
                                      &WM_LINE_COLOR_CMB_SELCHANGE, &WM_LINE_STYLE_CMB_SELCHANGE,
                                      &WM_LINE_WIDTH_CMB_SELCHANGE, &WM_BRUSH_FIGURE_CMB_SELCHANGE,
                                      &WM_FILL_TYPE_CMB_SELCHANGE};

// The rename field's messages are the bar's own.
bool isChildMessage(UINT message, LPARAM lParam) {
    for (const auto& row : childMessages)
        if (message >= row.first && message <= row.last)
            return !row.fromWindow ||
                   (lParam && !DYNAMIC_DOWNCAST(CGfxGroupEdit,
                                                CWnd::FromHandlePermanent(reinterpret_cast<HWND>(lParam))));
    return std::any_of(std::begin(pickerMessages), std::end(pickerMessages),
                       [=](const UINT* picker) { return *picker == message; });
}

// Whether the window is an MFC one. Like the bar it would send a message back to the object of its control,
// which must not hear of it twice.
bool reflects(HWND hHost) {
    return CWnd::FromHandlePermanent(hHost) != NULL;
}

bool holds(HWND hWnd, HWND hFocus) {
    return hWnd && (hFocus == hWnd || ::IsChild(hWnd, hFocus));
}

// The first tab stop in it, or itself.
HWND firstStop(HWND hWnd) {
    if (!::IsWindowVisible(hWnd) || !::IsWindowEnabled(hWnd))
        return NULL;
    if (!(::GetWindowLong(hWnd, GWL_EXSTYLE) & WS_EX_CONTROLPARENT))
        return ::GetWindowLong(hWnd, GWL_STYLE) & WS_TABSTOP ? hWnd : NULL;
    for (HWND hChild = ::GetWindow(hWnd, GW_CHILD); hChild; hChild = ::GetWindow(hChild, GW_HWNDNEXT))
        if (const HWND hStop = firstStop(hChild))
            return hStop;
    return NULL;
}

// A dialog marks the text of the field that gets the focus and moves its default button's frame; other hosts
// do not know the message.
void tabTo(HWND hHost, HWND hStop) {
    ::SendMessage(hHost, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(hStop), TRUE);
    if (::IsWindow(hStop) && !holds(hStop, ::GetFocus()))
        ::SetFocus(hStop);
}

bool isHeld(int key) {
    return ::GetKeyState(key) < 0;
}

} // namespace

// --- where they stand

// The handle alone proves nothing: it may have gone to another window since.
HWND CGfxOutBarCtrl::ChildOf(int nFolder) const {
    const OutBarFolder* row = m_pFolders->folder(nFolder);
    if (!row || !row->child || !::IsWindow(row->child))
        return NULL;
    return !m_hWnd || ::GetAncestor(row->child, GA_PARENT) == m_hWnd ? row->child : NULL;
}

void CGfxOutBarCtrl::AdoptChild(int nFolder) const {
    const OutBarFolder* row = m_pFolders->folder(nFolder);
    // This window and those around it cannot be its children.
    if (!m_hWnd || !row || !::IsWindow(row->child) || row->child == m_hWnd || ::IsChild(row->child, m_hWnd))
        return;
    ::ShowWindow(row->child, SW_HIDE);
    if (::GetAncestor(row->child, GA_PARENT) == m_hWnd)
        return;
    // A top-level window stays one for the system until its style says otherwise.
    CWnd::FromHandle(row->child)->ModifyStyle(WS_POPUP, WS_CHILD);
    ::SetParent(row->child, m_hWnd);
}

CWnd* CGfxOutBarCtrl::GetFolderChild(int folder) const {
    return CWnd::FromHandle(ChildOf(folder));
}

// Only the open folder's child is seen, between the headers.
void CGfxOutBarCtrl::ShowChild() const {
    if (!m_hWnd)
        return;
    for (int i = 0; i < GetFolderCount(); ++i) {
        const HWND hChild = ChildOf(i);
        if (hChild && i != m_nSelFolder)
            ::ShowWindow(hChild, SW_HIDE);
    }
    if (const HWND hChild = ChildOf(m_nSelFolder)) {
        CRect rect;
        GetInsideRect(rect);
        ::SetWindowPos(hChild, NULL, rect.left, rect.top, std::max(0, rect.Width()),
                       std::max(0, rect.Height()),
                       SWP_NOZORDER | SWP_NOACTIVATE | (m_bAnimating ? SWP_HIDEWINDOW : SWP_SHOWWINDOW));
    }
}

// A child that its owner destroys leaves its folder empty.
void CGfxOutBarCtrl::OnParentNotify(UINT message, LPARAM lParam) {
    CWnd::OnParentNotify(message, lParam);
    if (LOWORD(message) != WM_DESTROY)
        return;
    for (const auto& row : m_pFolders->rows)
        if (row->child == reinterpret_cast<HWND>(lParam))
            row->child = NULL;
    Invalidate(FALSE);
}

// The focus does not stay in a window that goes out of sight. May call the host.
void CGfxOutBarCtrl::LeaveChild() {
    if (holds(ChildOf(m_nSelFolder), ::GetFocus()))
        SetFocus();
}

// --- what they tell

LRESULT CGfxOutBarCtrl::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND hHost = isChildMessage(message, lParam) ? ::GetParent(m_hWnd) : NULL;
    // The last thing done here: the window may end in it, and the object.
    return hHost ? ::SendMessage(hHost, message, wParam, lParam)
                 : CWnd::DefWindowProc(message, wParam, lParam);
}

// What no handler of the bar's class takes goes on with its reflection still to come.
BOOL CGfxOutBarCtrl::OnCommand(WPARAM wParam, LPARAM lParam) {
    AFX_CMDHANDLERINFO info;
    if (isChildMessage(WM_COMMAND, lParam) && reflects(::GetParent(m_hWnd)) &&
        !OnCmdMsg(LOWORD(wParam), HIWORD(wParam), NULL, &info))
        return FALSE;
    return CWnd::OnCommand(wParam, lParam);
}

BOOL CGfxOutBarCtrl::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    const auto* header = reinterpret_cast<const NMHDR*>(lParam);
    AFX_CMDHANDLERINFO info;
    if (reflects(::GetParent(m_hWnd)) && !OnCmdMsg(static_cast<UINT>(::GetDlgCtrlID(header->hwndFrom)),
                                                   MAKELONG(header->code, WM_NOTIFY), NULL, &info))
        return FALSE;
    return CWnd::OnNotify(wParam, lParam, pResult);
}

HBRUSH CGfxOutBarCtrl::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor) {
    if (m_hEdit && pWnd->GetSafeHwnd() == m_hEdit)
        return RenameColors(*pDC);
    return reflects(::GetParent(m_hWnd)) ? reinterpret_cast<HBRUSH>(Default())
                                         : CWnd::OnCtlColor(pDC, pWnd, nCtlColor);
}

// --- Tab

// Where Tab leads from the bar. It has no WS_EX_CONTROLPARENT, with which the dialog would pass it over, and
// would look for ever for a tab stop where its folders have none.
HWND CGfxOutBarCtrl::TabStop() const {
    return isHeld(VK_SHIFT) || isHeld(VK_CONTROL) ? NULL : firstStop(ChildOf(m_nSelFolder));
}

void CGfxOutBarCtrl::EnterChild() {
    if (const HWND hStop = TabStop())
        tabTo(::GetParent(m_hWnd), hStop);
}

// Shift+Tab from there comes back: to the dialog the bar and what is in it are one.
BOOL CGfxOutBarCtrl::PreTranslateMessage(MSG* pMsg) {
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_TAB && isHeld(VK_SHIFT) && !isHeld(VK_CONTROL) &&
        holds(firstStop(ChildOf(m_nSelFolder)), pMsg->hwnd)) {
        const LRESULT wants =
            ::SendMessage(pMsg->hwnd, WM_GETDLGCODE, VK_TAB, reinterpret_cast<LPARAM>(pMsg));
        if (!(wants & (DLGC_WANTTAB | DLGC_WANTMESSAGE))) {
            tabTo(::GetParent(m_hWnd), m_hWnd);
            return TRUE;
        }
    }
    return CWnd::PreTranslateMessage(pMsg);
}
