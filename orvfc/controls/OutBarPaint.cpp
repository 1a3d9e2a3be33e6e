// The outlook bar's picture: made off-screen and copied, so that nothing flickers.

#include "GfxOutBarCtrl.h"

#include "OffScreen.h"
#include "OutBarFolders.h"
#include "OutBarLayout.h"

#include <algorithm>

namespace {

constexpr int frameGap = 3; // between a large icon and the frame around it

COLORREF mixed(COLORREF from, COLORREF to, int nPart, int nWhole) {
    const auto channel = [&](int a, int b) { return static_cast<BYTE>(a + (b - a) * nPart / nWhole); };
    return RGB(channel(GetRValue(from), GetRValue(to)), channel(GetGValue(from), GetGValue(to)),
               channel(GetBValue(from), GetBValue(to)));
}

} // namespace

void CGfxOutBarCtrl::OnPaint() {
    CPaintDC dc(this);
    const CRect rcPart(dc.m_ps.rcPaint);
    if (rcPart.IsRectEmpty())
        return;
    orv::OffScreen picture(dc, rcPart);
    Paint(picture.dc(), rcPart);
    picture.copyTo(dc);
}

LRESULT CGfxOutBarCtrl::OnPrintClient(WPARAM wParam, LPARAM) {
    if (CDC* dc = CDC::FromHandle(reinterpret_cast<HDC>(wParam))) {
        CRect rect;
        GetClientRect(rect);
        const int nSaved = dc->SaveDC();
        Paint(*dc, rect);
        dc->RestoreDC(nSaved);
    }
    return 0;
}

BOOL CGfxOutBarCtrl::OnEraseBkgnd(CDC*) {
    return TRUE;
}

// Everything that shows in rcPart. Where headers overlap, the first one lies on top, as hit tests have it.
void CGfxOutBarCtrl::Paint(CDC& dc, const CRect& rcPart) const {
    CFont* pFont = CFont::FromHandle(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT)));
    CFont* pOldFont = dc.SelectObject(pFont);
    dc.SetBkMode(TRANSPARENT);
    CRect rcInside, rcShown;
    GetInsideRect(rcInside);
    if (rcShown.IntersectRect(rcInside, rcPart)) {
        const int nSaved = dc.SaveDC();
        dc.IntersectClipRect(rcShown);
        PaintBackground(dc, rcInside);
        PaintItems(dc);
        PaintArrows(dc);
        dc.RestoreDC(nSaved);
    }
    for (int i = GetFolderCount() - 1; i >= 0; --i) {
        CRect rect;
        GetFolderRect(i, rect);
        if (rcShown.IntersectRect(rect, rcPart))
            PaintHeader(dc, i);
    }
    dc.SelectObject(pOldFont);
}

void CGfxOutBarCtrl::PaintBackground(CDC& dc, const CRect& rcInside) const {
    if (m_crBackground == m_crBackground2) {
        dc.FillSolidRect(rcInside, m_crBackground);
        return;
    }
    CRect rcClient, rcShade, rcClip;
    GetClientRect(rcClient);
    dc.GetClipBox(rcClip);
    rcShade.IntersectRect(rcInside, rcClient);
    const int nHeight = std::max(1, rcShade.Height() - 1);
    for (int y = std::max(rcClip.top, rcShade.top); y < std::min(rcClip.bottom, rcShade.bottom); ++y)
        dc.FillSolidRect(rcShade.left, y, rcShade.Width(), 1,
                         mixed(m_crBackground, m_crBackground2, y - rcShade.top, nHeight));
}

// A button: light edges at the left and top, shadows at the right and bottom.
void CGfxOutBarCtrl::PaintHeader(CDC& dc, int nFolder) const {
    CRect rect;
    GetFolderRect(nFolder, rect);
    dc.FillSolidRect(rect, m_cr3dFace);
    dc.Draw3dRect(rect, m_crHilight, m_crDkShadow);
    CRect rcEdge(rect);
    rcEdge.DeflateRect(1, 1);
    if (nFolder == m_nLastFolderHighlighted)
        dc.Draw3dRect(rcEdge, m_crHilight, m_crShadow);
    else
        dc.Draw3dRect(rcEdge, m_cr3dLight, m_cr3dFace);
    dc.SetTextColor(::GetSysColor(IsWindowEnabled() ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
    rcEdge.DeflateRect(2, 0);
    const CString& name = m_pFolders->folder(nFolder)->name;
    dc.DrawText(name, rcEdge, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX);
    if (IsCurrent(nFolder, -1)) {
        rect.DeflateRect(3, 3);
        dc.SetTextColor(RGB(0, 0, 0));
        dc.SetBkColor(RGB(255, 255, 255));
        dc.DrawFocusRect(rect);
    }
}

void CGfxOutBarCtrl::PaintItems(CDC& dc) const {
    if (GetItemCount() == 0)
        return;
    CRect rcInside, rcClip;
    GetInsideRect(rcInside);
    dc.GetClipBox(rcClip);
    const orv::OutBarLayout layout = LayoutOf(m_nSelFolder);
    orv::OutBarRow row = layout.row(m_nFirstItem);
    do {
        if (row.top >= rcInside.bottom)
            break;
        CRect rcDrawn, rcLabel(layout.labelRect(row)), rcIcon(layout.iconRect(row));
        rcDrawn.UnionRect(rcLabel, rcIcon);
        if (LONGLONG(rcDrawn.bottom) + 2 * frameGap > rcClip.top &&
            LONGLONG(rcDrawn.top) - frameGap < rcClip.bottom)
            PaintItem(dc, row.item, rcIcon, rcLabel);
    } while (layout.nextRow(row));
    CRect rcMark;
    if (m_nLastDragItemDraw >= 0 && GetDragItemRect(m_nLastDragItemDraw, rcMark))
        DrawDragArrow(dc, rcMark, m_nLastDragItemDrawType);
}

void CGfxOutBarCtrl::PaintItem(CDC& dc, int nItem, const CRect& rcIcon, const CRect& rcLabel) const {
    const orv::OutBarItem& item = *ItemAt(nItem);
    const bool bSmall = IsSmallIconView();
    const bool bFaint = !IsWindowEnabled();
    CRect rcFrame(rcLabel);
    if (rcIcon.Width() > 0) {
        // The rectangle of a large icon is moved up, its picture is not: the first one is seen whole.
        const CPoint place(rcIcon.left, bSmall ? rcIcon.top : rcIcon.top + frameGap);
        ::ImageList_DrawEx(OpenFolder()->images[bSmall]->GetSafeHandle(), item.image, dc.m_hDC, place.x,
                           place.y, 0, 0, CLR_NONE, m_crBackground,
                           ILD_TRANSPARENT | (bFaint ? ILD_BLEND50 : 0));
        rcFrame = CRect(place, IconSize(*OpenFolder(), item));
    }
    PaintFrame(dc, nItem, rcFrame);
    dc.SetTextColor(bFaint ? mixed(m_crWindow, m_crBackground, 1, 2) : m_crWindow);
    CRect rcText(rcLabel);
    const UINT nFormat = bSmall ? DT_LEFT | DT_SINGLELINE | DT_END_ELLIPSIS : DT_CENTER | DT_WORDBREAK;
    dc.DrawText(item.text, rcText, nFormat | DT_NOPREFIX);
    if (IsCurrent(m_nSelFolder, nItem)) {
        CRect rcFocus(rcLabel);
        rcFocus.InflateRect(2, 1);
        dc.SetTextColor(m_crWindow);
        dc.SetBkColor(m_crBackground);
        dc.DrawFocusRect(rcFocus);
    }
}

void CGfxOutBarCtrl::PaintFrame(CDC& dc, int nItem, const CRect& rcAround) const {
    CRect rcFrame, rcInside;
    GetInsideRect(rcInside);
    if (!rcFrame.IntersectRect(rcAround, rcInside))
        return;
    rcFrame.InflateRect(frameGap, frameGap);
    // At the upper edge there is no room above; at the lower one the frame goes on out of sight.
    rcFrame.IntersectRect(rcFrame, CRect(rcInside.left, rcInside.top, rcInside.right, rcFrame.bottom));
    if (nItem == m_nItemPressed)
        dc.Draw3dRect(rcFrame, m_crDkShadow, m_crHilight);
    else if (nItem == m_nLastItemHighlighted && (m_dwFlags & OUTBAR_HILIGHT_ITEM))
        dc.Draw3dRect(rcFrame, m_crHilight, m_crShadow);
    else if (nItem == m_nSelItem)
        dc.Draw3dRect(rcFrame, m_crShadow, m_crHilight);
}

void CGfxOutBarCtrl::PaintArrows(CDC& dc) const {
    const UINT nFaint = IsWindowEnabled() ? 0 : DFCS_INACTIVE;
    CRect rect(m_rcUpArrow);
    if (m_bUpArrow)
        dc.DrawFrameControl(rect, DFC_SCROLL, DFCS_SCROLLUP | nFaint | (m_bUpPressed ? DFCS_PUSHED : 0));
    rect = m_rcDownArrow;
    if (m_bDownArrow)
        dc.DrawFrameControl(rect, DFC_SCROLL, DFCS_SCROLLDOWN | nFaint | (m_bDownPressed ? DFCS_PUSHED : 0));
}

// A line with a head at each end. At the first place the heads point down only, behind the last item up only.
void CGfxOutBarCtrl::DrawDragArrow(CDC& dc, const CRect& rcMark, int nType) const {
    const int y = rcMark.CenterPoint().y, nHalf = rcMark.Height() / 2;
    dc.FillSolidRect(rcMark.left + 2, y, std::max(0, rcMark.Width() - 4), 1, m_crWindow);
    for (int i = 0; i <= nHalf; ++i) {
        const int nTop = nType == 0 ? y : y - (nHalf - i);
        const int nBottom = nType == 2 ? y : y + (nHalf - i);
        dc.FillSolidRect(rcMark.left + 2 + i, nTop, 1, nBottom - nTop + 1, m_crWindow);
        dc.FillSolidRect(rcMark.right - 3 - i, nTop, 1, nBottom - nTop + 1, m_crWindow);
    }
}

bool CGfxOutBarCtrl::IsCurrent(int nFolder, int nItem) const {
    const Row row = CurrentRow();
    return m_bKeyboard && ::GetFocus() == m_hWnd && row.folder == nFolder && row.item == nItem;
}

void CGfxOutBarCtrl::InvalidateItem(int nItem) {
    int nFirst, nLast;
    GetVisibleRange(m_nSelFolder, nFirst, nLast);
    if (!m_hWnd || !IsValidItem(nItem) || nItem < nFirst || nItem > nLast)
        return;
    const orv::OutBarLayout layout = LayoutOf(m_nSelFolder);
    const orv::OutBarRow row = layout.row(nItem);
    CRect rect, rcLabel(layout.labelRect(row)), rcIcon(layout.iconRect(row)), rcInside;
    GetInsideRect(rcInside);
    rect.UnionRect(rcLabel, rcIcon);
    if (!rect.IntersectRect(rect, rcInside))
        return;
    rect.InflateRect(frameGap, 2 * frameGap); // its frame, and the picture below the icon's rectangle
    InvalidateRect(rect, FALSE);
}

void CGfxOutBarCtrl::HighlightFolder(int nFolder) {
    if (nFolder == m_nLastFolderHighlighted)
        return;
    const int nBefore = m_nLastFolderHighlighted;
    m_nLastFolderHighlighted = nFolder;
    CRect rect;
    for (int i : {nBefore, nFolder})
        if (GetFolderRect(i, rect))
            InvalidateRect(rect, FALSE);
}

void CGfxOutBarCtrl::HighlightItem(int nItem, bool bPressed) {
    const int nPressed = bPressed ? nItem : -1;
    if (nItem == m_nLastItemHighlighted && nPressed == m_nItemPressed)
        return;
    for (int i : {m_nLastItemHighlighted, m_nItemPressed, nItem})
        InvalidateItem(i);
    m_nLastItemHighlighted = nItem;
    m_nItemPressed = nPressed;
}
