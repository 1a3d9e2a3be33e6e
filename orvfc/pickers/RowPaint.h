#pragma once

// The steps by which the owner-drawn combos get their rows and draw them.

#include <afxwin.h>

#include <orvfc/services/SavedDC.h>

#include "OrvRecordCombo.h"

namespace orv {

constexpr COLORREF kSelectionFrame = 0xFF8000;
// Where the names stand: behind a square swatch, behind a line sample.
constexpr int kNameBehindSwatch = 21;
constexpr int kNameBehindLine = 85;
constexpr int kLineSample = 80; // width of a line sample

// The whole row in the colour of windows; disabled combos show that of dialogs.
void paintBackground(CDC* pDC, const CRect& rc, int nState);
// Round the whole row when it is selected.
void paintSelection(CDC* pDC, const CRect& rc, int nState, COLORREF crFrame = kSelectionFrame);
// A rectangle with the current pen.
void paintSwatch(CDC* pDC, const CRect& rcSwatch, const LOGBRUSH& brush);
// The square at the left of a row.
CRect swatchOf(const CRect& rc);
// From nLeft units behind the row's left edge to its right edge. nFormat: more of DrawText's flags.
void paintName(CDC* pDC, const CRect& rc, int nLeft, const CString& strName, int nState, UINT nFormat = 0);

// The height of a combo's rows in pixels: nLeast, or more where its font needs that.
int rowHeight(const CWnd& combo, int nLeast);
// Gives it to the rows of the list and of the field. In a dialog WM_MEASUREITEM has come and gone before the
// combo is attached.
void setRowHeights(CComboBox& combo, int nLeast);
// False before its WM_CREATE: there are no rows to set heights for.
bool hasList(const CComboBox& combo);
// Adds what an owner-drawn combo with texts needs, and nKind where the host asked for no kind of combo.
void completeStyle(CREATESTRUCT& cs, DWORD nKind);

} // namespace orv
