#pragma once

// The application object and what hangs on it.

#include "afxcmdtarget_.h"

class ORVAFX_API CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread();
    ~CWinThread() override = default;

    CWnd* m_pMainWnd = nullptr;
    DWORD m_nThreadID;

    virtual BOOL InitInstance() { return FALSE; }
    virtual int ExitInstance() { return 0; }
};

// The one application object of a program, constructed as a global of the host. A second one is a bug
// (ASSERT) and does not replace the first.
class ORVAFX_API CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)

public:
    // The name shown in message boxes; without one it is the program's file name without extension.
    explicit CWinApp(LPCTSTR lpszAppName = NULL);
    ~CWinApp() override;

    HINSTANCE m_hInstance = NULL;
    LPTSTR m_lpCmdLine = NULL;
    int m_nCmdShow = 0;
    LPCTSTR m_pszAppName = NULL;
    LPCTSTR m_pszExeName = NULL;

    // Every message box of the library and of AfxMessageBox comes through here: override it to show it
    // elsewhere. nIDPrompt is the help context. Returns the button pressed (IDOK, ...), 0 when there is no
    // memory.
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    // The plain box, also without an application object.
    static int ShowAppMessageBox(CWinApp* pApp, LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);

    HICON LoadIcon(UINT nIDResource) const;
    HCURSOR LoadCursor(UINT nIDResource) const;
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const { return ::LoadCursorA(NULL, lpszCursorName); }

private:
    friend ORVAFX_API BOOL AFXAPI AfxWinInit(HINSTANCE, HINSTANCE, LPTSTR, int);
    void TakeNames();

    CString m_strAppName;
    CString m_strExeName;
};

// NULL in a host without an application object.
ORVAFX_API CWinApp* AFXAPI AfxGetApp();
ORVAFX_API CWinThread* AFXAPI AfxGetThread();
ORVAFX_API LPCTSTR AFXAPI AfxGetAppName();
ORVAFX_API CWnd* AFXAPI AfxGetMainWnd();

// Starts the foundation; a console host calls it first of all. TRUE on success, also when called again.
ORVAFX_API BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine,
                                  int nCmdShow);

// A type without icon bits gets the icon that fits its buttons.
ORVAFX_API int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
ORVAFX_API int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = static_cast<UINT>(-1));

// While locked, temporary objects of this thread stay. The last unlock deletes them, unless it is told not
// to.
ORVAFX_API void AFXAPI AfxLockTempMaps();
ORVAFX_API BOOL AFXAPI AfxUnlockTempMaps(BOOL bDeleteTemps = TRUE);
