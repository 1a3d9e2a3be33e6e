#pragma once

// Extension modules and property sheets, as <afxext.h> offers them to hosts.

#include <afxwin.h>
#include <afxdlgs.h>
