#pragma once

// The windows half of the foundation: GDI objects and device contexts, windows, dialogs and controls, the
// application object, the module chain. Names, signatures and behaviour are those of MFC 14 in its multi-byte
// build.

#include <afx.h>
#include <atltypes.h>
#include <afxcoll.h>
#include <afxres.h>
#include <commctrl.h>

#include "afxcmdtarget_.h"
#include "afxgdi_.h"
#include "afxdc_.h"
#include "afxmenu_.h"
#include "afxwnd_.h"
#include "afxctl_.h"
#include "afxframe_.h"
#include "afxdlg_.h"
#include "afxdll_.h"
#include "afxapp_.h"
