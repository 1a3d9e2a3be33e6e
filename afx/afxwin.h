#pragma once

// The windows half of the foundation: GDI objects and device contexts, the application object, the module
// chain. Names, signatures and behaviour are those of MFC 14 in its multi-byte build.

#include <afx.h>
#include <atltypes.h>
#include <afxcoll.h>

#include "afxcmdtarget_.h"
#include "afxgdi_.h"
#include "afxdc_.h"
#include "afxdll_.h"
#include "afxapp_.h"
