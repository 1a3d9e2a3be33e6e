// The standard controls.

#include "afxwin.h"

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)
IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

CStatic::~CStatic() = default;
CButton::~CButton() = default;
CEdit::~CEdit() = default;
CListBox::~CListBox() = default;
CComboBox::~CComboBox() = default;
CScrollBar::~CScrollBar() = default;

BOOL CStatic::Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create("STATIC", lpszText, dwStyle, rect, pParentWnd, nID);
}
BOOL CButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create("BUTTON", lpszCaption, dwStyle, rect, pParentWnd, nID);
}
BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create("EDIT", NULL, dwStyle, rect, pParentWnd, nID);
}
BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create("LISTBOX", NULL, dwStyle, rect, pParentWnd, nID);
}
BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create("COMBOBOX", NULL, dwStyle, rect, pParentWnd, nID);
}
BOOL CScrollBar::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create("SCROLLBAR", NULL, dwStyle, rect, pParentWnd, nID);
}

// --- what the parent sends back, to the virtual members. A message-map entry of the class comes first.

namespace {

// The four of lists and combos.
template <class CONTROL>
BOOL drawnItem(CONTROL& control, UINT message, LPARAM lParam, LRESULT* result) {
    switch (message) {
    case WM_DRAWITEM:
        control.DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return TRUE;
    case WM_MEASUREITEM:
        control.MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return TRUE;
    case WM_COMPAREITEM:
        *result = control.CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        return TRUE;
    case WM_DELETEITEM:
        control.DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        return TRUE;
    default:
        return FALSE;
    }
}

} // namespace

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (CWnd::OnChildNotify(message, wParam, lParam, pResult))
        return TRUE;
    if (message != WM_DRAWITEM)
        return FALSE;
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (CWnd::OnChildNotify(message, wParam, lParam, pResult))
        return TRUE;
    if (message != WM_DRAWITEM)
        return FALSE;
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (CWnd::OnChildNotify(message, wParam, lParam, pResult) || drawnItem(*this, message, lParam, pResult))
        return TRUE;
    if (message == WM_VKEYTOITEM)
        *pResult = VKeyToItem(LOWORD(wParam), HIWORD(wParam));
    else if (message == WM_CHARTOITEM)
        *pResult = CharToItem(LOWORD(wParam), HIWORD(wParam));
    else
        return FALSE;
    return TRUE;
}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return CWnd::OnChildNotify(message, wParam, lParam, pResult) ||
           drawnItem(*this, message, lParam, pResult);
}

void CListBox::DrawItem(LPDRAWITEMSTRUCT) {}
void CListBox::MeasureItem(LPMEASUREITEMSTRUCT) {}
int CListBox::CompareItem(LPCOMPAREITEMSTRUCT) {
    return 0;
}
void CListBox::DeleteItem(LPDELETEITEMSTRUCT) {}
int CListBox::VKeyToItem(UINT, UINT) {
    return static_cast<int>(Default());
}
int CListBox::CharToItem(UINT, UINT) {
    return static_cast<int>(Default());
}
void CComboBox::DrawItem(LPDRAWITEMSTRUCT) {}
void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT) {}
int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT) {
    return 0;
}
void CComboBox::DeleteItem(LPDELETEITEMSTRUCT) {}

// --- texts

void CListBox::GetText(int nIndex, CString& rString) const {
    rString.Empty();
    const int length = GetTextLen(nIndex);
    if (length == LB_ERR)
        return;
    GetText(nIndex, rString.GetBuffer(length + 1));
    rString.ReleaseBuffer();
}

UINT CListBox::ItemFromPoint(CPoint pt, BOOL& bOutside) const {
    const auto answer = static_cast<DWORD>(SendMessage(LB_ITEMFROMPOINT, 0, MAKELPARAM(pt.x, pt.y)));
    bOutside = HIWORD(answer) != 0;
    return LOWORD(answer);
}

void CComboBox::GetLBText(int nIndex, CString& rString) const {
    rString.Empty();
    const int length = GetLBTextLen(nIndex);
    if (length == CB_ERR)
        return;
    GetLBText(nIndex, rString.GetBuffer(length + 1));
    rString.ReleaseBuffer();
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const {
    if (nMaxLength < static_cast<int>(sizeof(WORD)))
        return 0;
    const auto room = static_cast<WORD>(nMaxLength > 0xFFFF ? 0xFFFF : nMaxLength);
    memcpy(lpszBuffer, &room, sizeof room); // the system reads the room from the buffer
    return static_cast<int>(SendMessage(EM_GETLINE, nIndex, reinterpret_cast<LPARAM>(lpszBuffer)));
}

void CEdit::GetSel(int& nStartChar, int& nEndChar) const {
    DWORD start = 0, end = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    nStartChar = static_cast<int>(start);
    nEndChar = static_cast<int>(end);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll) {
    SendMessage(EM_SETSEL, nStartChar, nEndChar);
    if (!bNoScroll)
        SendMessage(EM_SCROLLCARET);
}

void CEdit::SetSel(DWORD dwSelection, BOOL bNoScroll) {
    SetSel(LOWORD(dwSelection), HIWORD(dwSelection), bNoScroll);
}
