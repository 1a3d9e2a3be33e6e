#pragma once

// What the font pickers have in common.

#include "RowPaint.h"

namespace orv {

// Behind the registered message of a choice the face and size pickers post their parent WM_COMMAND with
// wParam 1, which a plain dialog takes for OK. Hosts rely on it.
inline void postCommandBehind(const CWnd& picker) {
    if (const HWND hParent = ::GetParent(picker.m_hWnd))
        ::PostMessage(hParent, WM_COMMAND, 1, reinterpret_cast<LPARAM>(picker.m_hWnd));
}

// Can be typed into.
inline bool hasField(const CComboBox& combo) {
    return (combo.GetStyle() & CBS_DROPDOWNLIST) != CBS_DROPDOWNLIST;
}

// Enter, pressed in the field of a closed list: what stands there is meant.
inline bool confirmsField(const CComboBox& combo, const MSG& msg) {
    return msg.message == WM_KEYDOWN && msg.wParam == VK_RETURN && hasField(combo) &&
           !combo.GetDroppedState();
}

// Sets the field's text only where it differs: the caret stays with whoever is typing.
inline void showInField(CComboBox& combo, const CString& strText) {
    CString strShown;
    combo.GetWindowText(strShown);
    if (hasField(combo) && strShown != strText)
        combo.SetWindowText(strText);
}

constexpr int kPlainMargin = 3; // before a name that has no sample, in pixels

// A row that is its name and no more. The current font is used when pFont is null.
inline void paintPlainRow(CDC* pDC, const CRect& rc, const CString& strName, int nState,
                          CFont* pFont = NULL) {
    paintBackground(pDC, rc, nState);
    paintSelection(pDC, rc, nState);
    CFont* const pOld = pFont ? pDC->SelectObject(pFont) : NULL;
    paintName(pDC, rc, kPlainMargin, strName, nState, DT_NOPREFIX);
    if (pOld)
        pDC->SelectObject(pOld);
}

} // namespace orv
