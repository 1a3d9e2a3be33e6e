// A host's extension DLL: one string of its own, one string that the program shadows, one serial class.

#include <afxwin.h>
#include <afxdllx.h>

class AFX_EXT_CLASS CGuest : public CObject {
    DECLARE_SERIAL(CGuest)
};

IMPLEMENT_SERIAL(CGuest, CObject, 1)

static AFX_EXTENSION_MODULE guestModule = {FALSE, NULL, NULL};

extern "C" BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID) {
    if (dwReason == DLL_PROCESS_ATTACH) {
        if (!AfxInitExtensionModule(guestModule, hInstance))
            return FALSE;
        new CDynLinkLibrary(guestModule);
    } else if (dwReason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(guestModule);
    }
    return TRUE;
}
