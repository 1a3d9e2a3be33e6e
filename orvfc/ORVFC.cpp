// The library's module entry: joins the host's module chain, leaves it, registers the notification messages.

#include <afxwin.h>
#include <afxdllx.h>

#include "ORVFC.h"

// Static constructors run before the attach notice: the messages are there when the load is traced.
#define ORV_REGISTERED_MESSAGE(name) const UINT name = ::RegisterWindowMessageA(#name)

ORV_REGISTERED_MESSAGE(WM_FONT_NAME_CMB_SELCHANGE);
ORV_REGISTERED_MESSAGE(WM_FONT_SIZE_CMB_SELCHANGE);
ORV_REGISTERED_MESSAGE(WM_GFX_OUTBAR_LBUTTON_DOWN);
ORV_REGISTERED_MESSAGE(WM_LINE_COLOR_CMB_SELCHANGE);
ORV_REGISTERED_MESSAGE(WM_LINE_STYLE_CMB_SELCHANGE);
ORV_REGISTERED_MESSAGE(WM_LINE_WIDTH_CMB_SELCHANGE);
ORV_REGISTERED_MESSAGE(WM_BRUSH_FIGURE_CMB_SELCHANGE);
ORV_REGISTERED_MESSAGE(WM_FILL_TYPE_CMB_SELCHANGE);

static AFX_EXTENSION_MODULE ORVFCDLL = {FALSE, NULL, NULL};

extern "C" BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID) {
    if (dwReason == DLL_PROCESS_ATTACH) {
        TRACE0("ORVFC.DLL Initializing!\n");
        if (!AfxInitExtensionModule(ORVFCDLL, hInstance))
            return FALSE;
        new CDynLinkLibrary(ORVFCDLL);
    } else if (dwReason == DLL_PROCESS_DETACH) {
        TRACE0("ORVFC.DLL Terminating!\n");
        AfxTermExtensionModule(ORVFCDLL);
    }
    return TRUE;
}
