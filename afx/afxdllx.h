#pragma once

// Included by the one source of an extension DLL that holds its DllMain.

#include <afxwin.h>
