#pragma once

// Extension modules, as <afxext.h> offers them to hosts.

#include <afxwin.h>
