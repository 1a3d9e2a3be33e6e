#pragma once

// Everything ORVFC offers. A host that wants less includes a single unit, e.g.
// <orvfc/linestyle/OrvGraphic.h>.

#include <afxwin.h>

#include <orvfc/OrvApi.h>
#include <orvfc/bitmap/cdib.h>
#include <orvfc/controls/GfxGroupEdit.h>
#include <orvfc/controls/GfxOutBarCtrl.h>
#include <orvfc/controls/ResizeCtrl.h>
#include <orvfc/geometry/Extend.h>
#include <orvfc/geometry/FourPointRect.h>
#include <orvfc/geometry/ScreenUnits.h>
#include <orvfc/geometry/planentity.h>
#include <orvfc/linestyle/LineProperBar.h>
#include <orvfc/linestyle/LineTypeSet.h>
#include <orvfc/linestyle/LineWidthSet.h>
#include <orvfc/linestyle/OrvGraphic.h>
#include <orvfc/pickers/AlignCmb.h>
#include <orvfc/pickers/CharSpaceCmb.h>
#include <orvfc/pickers/ColorPicker.h>
#include <orvfc/pickers/ColorSet.h>
#include <orvfc/pickers/FontAslope.h>
#include <orvfc/pickers/FontCombox.h>
#include <orvfc/pickers/FontShape.h>
#include <orvfc/pickers/FontShapeButton.h>
#include <orvfc/pickers/FontSizeCmb.h>
#include <orvfc/pickers/OrvFillTypeCmb.h>
#include <orvfc/pickers/OrvFontComboBox.h>
#include <orvfc/pickers/OrvRecordCombo.h>
#include <orvfc/pickers/PFCombox.h>
#include <orvfc/services/COrvVersion.h>
#include <orvfc/services/DateFormat.h>
#include <orvfc/services/DynamicArray.h>
#include <orvfc/services/GerNer.h>
#include <orvfc/services/OrvArchive.h>
#include <orvfc/services/OrvIniReader.h>
#include <orvfc/services/OrvRegister.h>
#include <orvfc/services/OrvRegistry.h>
#include <orvfc/services/SysInfo.h>
#include <orvfc/text/FontAppFile.h>
#include <orvfc/text/OrvFCDrawTextPropPage.h>

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
