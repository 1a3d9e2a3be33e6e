// Measures of the outlook bar: what the layout is given, and its answers.

#include "GfxOutBarCtrl.h"

#include "OutBarFolders.h"
#include "OutBarLayout.h"

#include <algorithm>

using orv::OutBarFolder;
using orv::OutBarItem;
using orv::OutBarLayout;
using orv::OutBarParts;

namespace {

// The screen's device context with the font of labels.
class LabelDC {
public:
    LabelDC() : m_hDC(::GetDC(NULL)), m_hOld(::SelectObject(m_hDC, ::GetStockObject(DEFAULT_GUI_FONT))) {}
    ~LabelDC() {
        ::SelectObject(m_hDC, m_hOld);
        ::ReleaseDC(NULL, m_hDC);
    }
    LabelDC(const LabelDC&) = delete;
    LabelDC& operator=(const LabelDC&) = delete;

    // An empty text has a line's height.
    CSize measure(const CString& text, UINT nFormat, int nWidth) const {
        CRect rect(0, 0, std::max(1, nWidth), 0);
        const bool bEmpty = text.IsEmpty();
        ::DrawTextA(m_hDC, bEmpty ? " " : text.GetString(), bEmpty ? 1 : text.GetLength(), &rect,
                    nFormat | DT_CALCRECT | DT_NOPREFIX);
        return CSize(bEmpty ? 0 : rect.Width(), rect.Height());
    }

private:
    HDC m_hDC;
    HGDIOBJ m_hOld;
};

CRect clientRect(HWND hWnd) {
    CRect rect(0, 0, 0, 0);
    if (hWnd)
        ::GetClientRect(hWnd, &rect);
    return rect;
}

bool partRect(const OutBarLayout& layout, int item, RECT (OutBarLayout::*part)(const orv::OutBarRow&) const,
              CRect& rect) {
    const bool bThere = item >= 0 && item < layout.items();
    rect = bThere ? (layout.*part)(layout.row(item)) : RECT{};
    return bThere;
}

} // namespace

CSize CGfxOutBarCtrl::LabelSize(const OutBarItem& item, int nWidth) const {
    if (IsSmallIconView()) {
        if (item.smallLabel.cx < 0)
            item.smallLabel = LabelDC().measure(item.text, DT_SINGLELINE, 0);
        return item.smallLabel;
    }
    if (item.largeLabel.cx < 0 || item.largeWidth != nWidth) {
        item.largeLabel = LabelDC().measure(item.text, DT_WORDBREAK, nWidth);
        item.largeWidth = nWidth;
    }
    return item.largeLabel;
}

CSize CGfxOutBarCtrl::IconSize(const OutBarFolder& folder, const OutBarItem& item) const {
    const CImageList* images = folder.images[IsSmallIconView()];
    int cx = 0, cy = 0;
    if (!images || !images->GetSafeHandle() || item.image < 0 || item.image >= images->GetImageCount() ||
        !images->GetIconSize(&cx, &cy))
        return CSize(0, 0);
    return CSize(cx, cy);
}

OutBarLayout CGfxOutBarCtrl::LayoutOf(int nFolder) const {
    const OutBarFolder* folder = m_pFolders->folder(nFolder);
    orv::OutBarScene scene;
    scene.client = clientRect(m_hWnd);
    scene.metrics = {m_nFolderHeight,     m_xSmallIconLabelOffset, m_yLargeIconLabelOffset,
                     m_ySmallIconSpacing, m_yLargeIconSpacing,     m_xLeftMargin,
                     m_yTopMargin};
    scene.smallIcons = IsSmallIconView();
    scene.folders = GetFolderCount();
    scene.open = m_nSelFolder;
    scene.items = folder ? folder->count() : 0;
    scene.firstItem = nFolder == m_nSelFolder ? m_nFirstItem : 0;
    const int nWidth = scene.client.right - scene.client.left;
    return OutBarLayout(scene, [this, folder, nWidth](int item) {
        const OutBarItem& row = *folder->items[static_cast<size_t>(item)];
        return OutBarParts{IconSize(*folder, row), LabelSize(row, nWidth)};
    });
}

void CGfxOutBarCtrl::GetInsideRect(CRect& rect) const {
    rect = LayoutOf(m_nSelFolder).insideRect();
}

bool CGfxOutBarCtrl::GetFolderRect(int folder, CRect& rect) const {
    return LayoutOf(m_nSelFolder).folderRect(folder, rect);
}

bool CGfxOutBarCtrl::GetItemRect(int folder, int item, CRect& rect) const {
    return partRect(LayoutOf(folder), item, &OutBarLayout::itemRect, rect);
}

bool CGfxOutBarCtrl::GetIconRect(int folder, int item, CRect& rect) const {
    return partRect(LayoutOf(folder), item, &OutBarLayout::iconRect, rect);
}

bool CGfxOutBarCtrl::GetLabelRect(int folder, int item, CRect& rect) const {
    return partRect(LayoutOf(folder), item, &OutBarLayout::labelRect, rect);
}

CSize CGfxOutBarCtrl::GetItemSize(int folder, int item, int part) const {
    const OutBarFolder* owner = m_pFolders->folder(folder);
    const OutBarItem* row = m_pFolders->item(folder, item);
    if (!row || part < 1 || part > 3)
        return CSize(0, 0);
    if (part == 1)
        return IconSize(*owner, *row);
    const CSize label = LabelSize(*row, clientRect(m_hWnd).Width());
    if (part == 2)
        return label;
    return LayoutOf(folder).itemSize({IconSize(*owner, *row), label});
}

void CGfxOutBarCtrl::GetVisibleRange(int folder, int& first, int& last) const {
    const OutBarFolder* owner = m_pFolders->folder(folder);
    first = last = owner ? 0 : -1;
    if (!owner || owner->items.empty())
        return;
    first = folder == m_nSelFolder ? m_nFirstItem : 0;
    last = LayoutOf(folder).lastVisible();
}

bool CGfxOutBarCtrl::GetDragItemRect(int item, CRect& rect) const {
    rect.SetRectEmpty();
    if (!OpenFolder() || item < 0 || item > GetItemCount())
        return false;
    rect = LayoutOf(m_nSelFolder).dropRect(item);
    return true;
}

int CGfxOutBarCtrl::GetCountPerPage() const {
    return LayoutOf(m_nSelFolder).wholeItems();
}

orv::OutBarHit CGfxOutBarCtrl::Hit(const CPoint& point, int& index) const {
    index = -1;
    if (m_bUpArrow && m_rcUpArrow.PtInRect(point))
        return orv::OutBarHit::upArrow;
    if (m_bDownArrow && m_rcDownArrow.PtInRect(point))
        return orv::OutBarHit::downArrow;
    return LayoutOf(m_nSelFolder).hit(point, index);
}

int CGfxOutBarCtrl::HitTestEx(const CPoint& point, int& index) const {
    return static_cast<int>(Hit(point, index));
}

void CGfxOutBarCtrl::LayoutChanged() {
    Arrange();
    if (m_hWnd)
        Invalidate(FALSE);
}

// Scroll position, arrows and child window for what there is now. Nothing is repainted.
void CGfxOutBarCtrl::Arrange() {
    EndRename(true);
    // No empty room below the last item while there are items above.
    if (m_nFirstItem > 0)
        m_nFirstItem = std::clamp(m_nFirstItem, 0, LayoutOf(m_nSelFolder).furthestFirst());
    const OutBarLayout layout = LayoutOf(m_nSelFolder);
    const CSize arrow(::GetSystemMetrics(SM_CXVSCROLL), ::GetSystemMetrics(SM_CYVSCROLL));
    m_rcUpArrow = m_nFirstItem > 0 ? layout.upArrow(arrow) : RECT{};
    m_rcDownArrow = layout.itemsBelow() ? layout.downArrow(arrow) : RECT{};
    m_bUpArrow = !m_rcUpArrow.IsRectEmpty();
    m_bDownArrow = !m_rcDownArrow.IsRectEmpty();
    m_bUpPressed = m_bUpPressed && m_bUpArrow;
    m_bDownPressed = m_bDownPressed && m_bDownArrow;
    ShowChild();
}

void CGfxOutBarCtrl::ScrollItems(int nItems) {
    const LONGLONG nFirst = LONGLONG(m_nFirstItem) + nItems;
    const int nFurthest = std::max(m_nFirstItem, LayoutOf(m_nSelFolder).furthestFirst());
    const int nNew = static_cast<int>(std::clamp<LONGLONG>(nFirst, 0, nFurthest));
    if (nNew == m_nFirstItem)
        return;
    EndRename(true);
    m_nFirstItem = nNew;
    m_nLastItemHighlighted = m_nItemPressed = -1;
    LayoutChanged();
}
