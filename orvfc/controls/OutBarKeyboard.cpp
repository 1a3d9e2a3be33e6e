// The keyboard of the outlook bar. Its walk takes headers and items in the order in which they stand: the
// headers to the open folder, that folder's items, the other headers.

#include "GfxOutBarCtrl.h"

#include "OutBarFolders.h"
#include "OutBarLayout.h"

#include <algorithm>

UINT CGfxOutBarCtrl::OnGetDlgCode() {
    // Enter is for the current row, not for the dialog's default button; Tab for a window in the folder.
    const WPARAM key = GetCurrentMessage()->wParam; // the one asked about
    return DLGC_WANTARROWS | (key == VK_RETURN || (key == VK_TAB && TabStop()) ? DLGC_WANTMESSAGE : 0);
}

void CGfxOutBarCtrl::OnSetFocus(CWnd* pOldWnd) {
    CWnd::OnSetFocus(pOldWnd);
    if (::GetKeyState(VK_TAB) < 0)
        m_bKeyboard = true;
    Invalidate(FALSE);
}

void CGfxOutBarCtrl::OnKillFocus(CWnd* pNewWnd) {
    CWnd::OnKillFocus(pNewWnd);
    Invalidate(FALSE);
}

CGfxOutBarCtrl::Row CGfxOutBarCtrl::CurrentRow() const {
    if (IsValidItem(m_nCurrentItem))
        return {m_nSelFolder, m_nCurrentItem};
    return {m_pFolders->folder(m_nCurrentFolder) ? m_nCurrentFolder : m_nSelFolder, -1};
}

// Marked while the keyboard is what was used last.
void CGfxOutBarCtrl::MarkCurrentRow(bool bMark) {
    if (m_bKeyboard == bMark)
        return;
    m_bKeyboard = bMark;
    Invalidate(FALSE);
}

void CGfxOutBarCtrl::SetCurrentRow(const Row& row) {
    m_nCurrentFolder = row.folder;
    m_nCurrentItem = row.item;
    ShowItem(row.item);
    Invalidate(FALSE);
}

void CGfxOutBarCtrl::ShowItem(int nItem) {
    if (!IsValidItem(nItem))
        return;
    if (nItem < m_nFirstItem)
        ScrollItems(nItem - m_nFirstItem);
    else
        ScrollItems(std::max(0, LayoutOf(m_nSelFolder).firstToShow(nItem) - m_nFirstItem));
}

bool CGfxOutBarCtrl::Walk(UINT nChar) {
    const int nItems = GetItemCount(), nRows = GetFolderCount() + nItems,
              nPage = std::max(1, GetCountPerPage());
    if (nRows == 0)
        return false;
    const Row now = CurrentRow();
    const int nAbove = m_nSelFolder + 1; // headers before the items
    const int nFrom = now.item >= 0         ? nAbove + now.item
                      : now.folder < nAbove ? now.folder
                                            : now.folder + nItems;
    const struct {
        UINT key;
        int to;
    } steps[] = {{VK_UP, nFrom - 1},       {VK_DOWN, nFrom + 1}, {VK_PRIOR, nFrom - nPage},
                 {VK_NEXT, nFrom + nPage}, {VK_HOME, 0},         {VK_END, nRows - 1}};
    const auto step = std::ranges::find(steps, nChar, [](const auto& row) { return row.key; });
    if (step == std::end(steps))
        return false;
    const int nPlace = std::clamp(step->to, 0, nRows - 1);
    if (nPlace < nAbove)
        SetCurrentRow({nPlace, -1});
    else if (nPlace < nAbove + nItems)
        SetCurrentRow({m_nSelFolder, nPlace - nAbove});
    else
        SetCurrentRow({nPlace - nItems, -1});
    return true;
}

void CGfxOutBarCtrl::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    static const struct {
        UINT key;
        void (CGfxOutBarCtrl::*action)();
    } keys[] = {{VK_RETURN, &CGfxOutBarCtrl::OpenCurrentRow},
                {VK_TAB, &CGfxOutBarCtrl::EnterChild},
                {VK_F2, &CGfxOutBarCtrl::RenameCurrentRow},
                {VK_DELETE, &CGfxOutBarCtrl::RemoveCurrentRow},
                {VK_INSERT, &CGfxOutBarCtrl::AddEntry}};
    MarkCurrentRow(true);
    if (Walk(nChar) || (nChar == VK_RETURN && (nFlags & KF_REPEAT))) // held it is still one click
        return;
    for (const auto& key : keys) {
        if (key.key == nChar) {
            (this->*key.action)();
            return;
        }
    }
    CWnd::OnKeyDown(nChar, nRepCnt, nFlags);
}

void CGfxOutBarCtrl::OpenCurrentRow() {
    const Row row = CurrentRow();
    if (row.item >= 0)
        ClickItem(row.item);
    else if (row.folder != m_nSelFolder)
        SetSelFolder(row.folder);
    else if (const HWND hChild = ChildOf(row.folder))
        ::SetFocus(hChild);
}

void CGfxOutBarCtrl::RenameCurrentRow() {
    const Row row = CurrentRow();
    if (row.item >= 0 && (m_dwFlags & OUTBAR_RENAME_ITEMS))
        StartItemEdit(row.item);
    else if (row.item < 0 && (m_dwFlags & OUTBAR_RENAME_FOLDERS))
        StartGroupEdit(row.folder);
}

void CGfxOutBarCtrl::RemoveCurrentRow() {
    const Row row = CurrentRow();
    if (row.item >= 0 && (m_dwFlags & OUTBAR_REMOVE_ITEMS))
        RemoveItem(row.item);
    else if (row.item < 0 && (m_dwFlags & OUTBAR_REMOVE_FOLDERS))
        RemoveFolder(row.folder);
}

void CGfxOutBarCtrl::AddEntry() {
    if (!(m_dwFlags & OUTBAR_ADD_ENTRIES))
        return;
    if (::GetKeyState(VK_CONTROL) < 0) {
        const int nFolder = AddFolder("新文件夹");
        SetCurrentRow({nFolder, -1});
        StartGroupEdit(nFolder);
        return;
    }
    const int nItem = InsertItem(m_nSelFolder, CurrentRow().item + 1, "新项目");
    if (nItem >= 0) {
        SetCurrentRow({m_nSelFolder, nItem});
        StartItemEdit(nItem);
    }
}

// On the screen, inside what HitTestEx takes for the current row.
CPoint CGfxOutBarCtrl::MenuPoint() {
    const Row row = CurrentRow();
    CRect rect;
    if (row.item >= 0) {
        ShowItem(row.item);
        CRect rcInside;
        GetInsideRect(rcInside);
        GetItemRect(m_nSelFolder, row.item, rect);
        if (!IsSmallIconView()) {
            GetLabelRect(m_nSelFolder, row.item, rect);
            if (rect.IsRectEmpty())
                GetIconRect(m_nSelFolder, row.item, rect);
        }
        rect.IntersectRect(rect, rcInside);
    } else {
        GetFolderRect(row.folder, rect);
    }
    if (rect.IsRectEmpty())
        return CPoint(-1, -1);
    CPoint point = rect.CenterPoint();
    ClientToScreen(&point);
    return point;
}
