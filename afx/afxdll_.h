#pragma once

// The module chain: the application and the extension DLLs it has loaded. Resources are looked for in the
// application first and then along the chain, the DLL that joined last first. Run-time classes of every
// loaded module are found by name as soon as its static constructors have run.

#include <afx.h>

#if defined(_AFXEXT)
#define AFX_EXT_CLASS __declspec(dllexport)
#define AFX_EXT_API __declspec(dllexport)
#define AFX_EXT_DATA __declspec(dllexport)
#else
#define AFX_EXT_CLASS __declspec(dllimport)
#define AFX_EXT_API __declspec(dllimport)
#define AFX_EXT_DATA __declspec(dllimport)
#endif

// One static record in each extension DLL, zero before its attach notice.
struct AFX_EXTENSION_MODULE {
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource;
};

// From the DLL's attach notice. FALSE when the record was initialised before with another module.
ORVAFX_API BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
// From the DLL's detach notice: takes every CDynLinkLibrary of this module out of the chain and deletes it.
ORVAFX_API void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

// A link of the chain: created with new after AfxInitExtensionModule, deleted by AfxTermExtensionModule.
class ORVAFX_API CDynLinkLibrary {
public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource);
    virtual ~CDynLinkLibrary();
    CDynLinkLibrary(const CDynLinkLibrary&) = delete;
    CDynLinkLibrary& operator=(const CDynLinkLibrary&) = delete;

    HMODULE m_hModule;
    HMODULE m_hResource;
    BOOL m_bSystem;
    CDynLinkLibrary* m_pNextDLL;
};

ORVAFX_API HINSTANCE AFXAPI AfxGetInstanceHandle();
// The application's resources; AfxSetResourceHandle puts another module in their place.
ORVAFX_API HINSTANCE AFXAPI AfxGetResourceHandle();
ORVAFX_API void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource);
// The first module that holds the resource; the application's resource handle when none does.
ORVAFX_API HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);
// The first module that holds the string, NULL when none does.
ORVAFX_API HINSTANCE AFXAPI AfxFindStringResourceHandle(UINT nID);
// At most nMaxBuf - 1 bytes, never half a character; 0 when there is no such string.
ORVAFX_API int AFXAPI AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf = 256);
