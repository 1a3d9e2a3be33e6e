#include "RowPaint.h"

#include <algorithm>

namespace orv {

namespace {

int backgroundOf(int nState) {
    return nState & ODS_DISABLED ? COLOR_BTNFACE : COLOR_WINDOW;
}

} // namespace

void paintBackground(CDC* pDC, const CRect& rc, int nState) {
    pDC->SetBkColor(::GetSysColor(backgroundOf(nState)));
    pDC->ExtTextOut(0, 0, ETO_OPAQUE, &rc, "", 0, NULL);
}

void paintSelection(CDC* pDC, const CRect& rc, int nState, COLORREF crFrame) {
    CPen pen;
    if (!(nState & ODS_SELECTED) || !pen.CreatePen(PS_SOLID, 1, crFrame))
        return;
    SavedDC saved(pDC);
    pDC->SelectObject(&pen);
    pDC->SelectStockObject(NULL_BRUSH);
    pDC->Rectangle(&rc);
}

void paintSwatch(CDC* pDC, const CRect& rcSwatch, const LOGBRUSH& brush) {
    CBrush fill;
    if (!fill.CreateBrushIndirect(&brush))
        return;
    SavedDC saved(pDC);
    // The same piece of a hatch in every row.
    CPoint origin = rcSwatch.TopLeft();
    pDC->LPtoDP(&origin);
    pDC->SetBrushOrg(origin.x, origin.y);
    pDC->SelectObject(&fill);
    pDC->Rectangle(&rcSwatch);
}

CRect swatchOf(const CRect& rc) {
    return CRect(rc.left + 2, rc.top + 2, rc.left + 16, rc.top + 16);
}

void paintName(CDC* pDC, const CRect& rc, int nLeft, const CString& strName, int nState, UINT nFormat) {
    SavedDC saved(pDC);
    pDC->SetBkColor(::GetSysColor(backgroundOf(nState)));
    pDC->SetTextColor(::GetSysColor(nState & ODS_DISABLED ? COLOR_GRAYTEXT : COLOR_WINDOWTEXT));
    CRect rcName(rc.left + nLeft, rc.top, rc.right, rc.bottom);
    // The text's opaque ground leaves the frame alone.
    if (nState & ODS_SELECTED)
        rcName.DeflateRect(0, 1, 1, 1);
    pDC->DrawText(strName, &rcName, DT_SINGLELINE | DT_VCENTER | nFormat);
}

int rowHeight(const CWnd& combo, int nLeast) {
    constexpr int nFrame = 1; // above and below
    CFont* const pFont = combo.m_hWnd ? combo.GetFont() : NULL;
    TEXTMETRIC metrics = {};
    CDC dc;
    if (!pFont || !dc.CreateCompatibleDC(NULL))
        return nLeast;
    const SavedDC saved(&dc);
    dc.SelectObject(pFont);
    dc.GetTextMetrics(&metrics);
    return std::max<int>(nLeast, metrics.tmHeight + 2 * nFrame);
}

void setRowHeights(CComboBox& combo, int nLeast) {
    const UINT nHeight = static_cast<UINT>(rowHeight(combo, nLeast));
    combo.SetItemHeight(-1, nHeight);
    combo.SetItemHeight(0, nHeight);
}

bool hasList(const CComboBox& combo) {
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    return combo.GetComboBoxInfo(&info) && info.hwndList;
}

void completeStyle(CREATESTRUCT& cs, DWORD nKind) {
    cs.style |= CBS_HASSTRINGS;
    if (!(cs.style & (CBS_OWNERDRAWFIXED | CBS_OWNERDRAWVARIABLE)))
        cs.style |= CBS_OWNERDRAWFIXED;
    if (!(cs.style & CBS_DROPDOWNLIST)) // the bits of all kinds
        cs.style |= nKind;
}

} // namespace orv
