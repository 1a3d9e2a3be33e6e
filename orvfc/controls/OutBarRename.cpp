// Renaming a folder or an item of the outlook bar in place.

#include "GfxOutBarCtrl.h"

#include "GfxGroupEdit.h"

#include <algorithm>

namespace {

constexpr UINT editId = 1;

} // namespace

bool CGfxOutBarCtrl::StartGroupEdit(int folder) {
    BeforeChange(true);
    CRect rect;
    if (!GetFolderRect(folder, rect))
        return false;
    rect.DeflateRect(1, 1);
    m_nEditFolder = folder;
    m_nEditItem = -1;
    return StartEdit(rect, GetFolderName(folder), ES_CENTER);
}

bool CGfxOutBarCtrl::StartItemEdit(int item) {
    BeforeChange(true);
    if (!IsValidItem(item))
        return false;
    ShowItem(item);
    CRect rect, rcInside;
    GetLabelRect(m_nSelFolder, item, rect);
    GetInsideRect(rcInside);
    // One line over the label's first one, as wide as there is room.
    TEXTMETRIC metrics = {};
    {
        CClientDC dc(this);
        CGdiObject* pOld = dc.SelectStockObject(DEFAULT_GUI_FONT);
        dc.GetTextMetrics(&metrics);
        dc.SelectObject(pOld);
    }
    const LONG nHeight = metrics.tmHeight + 6;
    const LONGLONG nLast = std::max<LONGLONG>(rcInside.top, LONGLONG(rcInside.bottom) - nHeight);
    rect.left = std::clamp<LONG>(IsSmallIconView() ? rect.left : 0, 4, std::max<LONG>(4, rcInside.right / 2));
    rect.right = rcInside.right - 4;
    rect.top = static_cast<LONG>(std::clamp<LONGLONG>(rect.top - 3LL, rcInside.top, nLast));
    rect.bottom = rect.top + nHeight;
    m_nEditFolder = m_nSelFolder;
    m_nEditItem = item;
    return StartEdit(rect, GetItemText(item), IsSmallIconView() ? ES_LEFT : ES_CENTER);
}

bool CGfxOutBarCtrl::StartEdit(const CRect& rect, const CString& text, DWORD dwStyle) {
    if (!m_hWnd || !IsWindowEnabled())
        return false;
    UpdateWindow();
    auto* edit = new CGfxGroupEdit;
    // When it fails, the object has deleted itself.
    if (!edit->Create(WS_CHILD | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL | dwStyle, rect, this, editId))
        return false;
    m_hEdit = edit->m_hWnd;
    edit->SetFont(CFont::FromHandle(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT))), FALSE);
    edit->SetWindowText(text);
    edit->SetSel(0, -1);
    edit->SetFocus();
    return true;
}

void CGfxOutBarCtrl::EndRename(bool bTake) {
    if (auto* edit = DYNAMIC_DOWNCAST(CGfxGroupEdit, CWnd::FromHandlePermanent(m_hEdit)))
        edit->EndEdit(bTake);
}

LRESULT CGfxOutBarCtrl::OnEndLabelEdit(WPARAM wParam, LPARAM lParam) {
    const HWND hEdit = reinterpret_cast<HWND>(lParam);
    // Anybody can send this; only the field's own word counts.
    auto* edit = DYNAMIC_DOWNCAST(CGfxGroupEdit, CWnd::FromHandlePermanent(hEdit));
    if (!hEdit || hEdit != m_hEdit || !edit || !edit->IsEnding())
        return 0;
    m_hEdit = NULL;
    CString text;
    edit->GetWindowText(text);
    if (::GetFocus() == hEdit)
        SetFocus();
    if (wParam != 0 || text.IsEmpty())
        return 0;
    if (m_nEditItem < 0)
        SetFolderText(m_nEditFolder, text);
    else if (m_nEditFolder == m_nSelFolder)
        SetItemText(m_nEditItem, text);
    return 0;
}

HBRUSH CGfxOutBarCtrl::RenameColors(CDC& dc) {
    dc.SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
    dc.SetBkColor(m_crWindow2);
    m_brEdit.DeleteObject();
    m_brEdit.CreateSolidBrush(m_crWindow2);
    return m_brEdit;
}
