#pragma once

// Everything ORVFC offers. A host that wants less includes a single unit, e.g.
// <orvfc/linestyle/OrvGraphic.h>.

#include <afxwin.h>

#include "OrvApi.h"

// Messages by which pickers and controls notify their parents: registered under their own names when the
// library is loaded, so that a host finds them with RegisterWindowMessage as well.
extern ORVFC_API const UINT WM_FONT_NAME_CMB_SELCHANGE;
extern ORVFC_API const UINT WM_FONT_SIZE_CMB_SELCHANGE;
extern ORVFC_API const UINT WM_GFX_OUTBAR_LBUTTON_DOWN;
extern ORVFC_API const UINT WM_LINE_COLOR_CMB_SELCHANGE;
extern ORVFC_API const UINT WM_LINE_STYLE_CMB_SELCHANGE;
extern ORVFC_API const UINT WM_LINE_WIDTH_CMB_SELCHANGE;
extern ORVFC_API const UINT WM_BRUSH_FIGURE_CMB_SELCHANGE;
extern ORVFC_API const UINT WM_FILL_TYPE_CMB_SELCHANGE;
