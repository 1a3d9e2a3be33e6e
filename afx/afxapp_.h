#pragma once

// The application object and what hangs on it.

#include "afxwnd_.h"

// The thread with its message pump.
//
// What a PreTranslateMessage or OnIdle throws is no handler's: it leaves the loop to who called Run or
// DoModal. A modal dialog or sheet has no window any more then and may be opened again; one that a handler
// opened ends there, traced.
class ORVAFX_API CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread();
    ~CWinThread() override = default;

    CWnd* m_pMainWnd = nullptr; // its destruction ends the program
    DWORD m_nThreadID;
    MSG m_msgCur = {};

    virtual BOOL InitInstance() { return FALSE; }
    // Pumps until WM_QUIT, and answers ExitInstance.
    virtual int Run();
    // The program's exit status: what AfxPostQuitMessage was told; 0 when the program did not end by it, as
    // one that is a dialog shown in InitInstance.
    virtual int ExitInstance() { return m_msgCur.message == WM_QUIT ? static_cast<int>(m_msgCur.wParam) : 0; }
    // FALSE after WM_QUIT.
    virtual BOOL PumpMessage();
    // TRUE: the message is done with. The base asks every window from the addressed one up, then the main
    // window.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    // Messages that start no new idle time: the mouse at rest, paints, caret blinks.
    virtual BOOL IsIdleMessage(MSG* pMsg);
    // lCount: how many times in a row. TRUE: call again. The base empties the maps of temporary objects.
    virtual BOOL OnIdle(LONG lCount);
    // An exception that left a handler; answers the message's result. The caller deletes the exception.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);
    virtual CWnd* GetMainWnd() { return m_pMainWnd; }
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

    BOOL InitInstance() override { return TRUE; }
    // For the menu command ID_APP_EXIT: closes the main window.
    afx_msg void OnAppExit();

    // Every message box of the library and of AfxMessageBox comes through here: override it to show it
    // elsewhere. nIDPrompt is the help context. Returns the button pressed (IDOK, ...), 0 when there is no
    // memory.
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    // The plain box, also without an application object.
    static int ShowAppMessageBox(CWinApp* pApp, LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);

    HICON LoadIcon(UINT nIDResource) const;
    HCURSOR LoadCursor(UINT nIDResource) const;
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const { return ::LoadCursorA(NULL, lpszCursorName); }

    HICON LoadStandardIcon(LPCTSTR lpszIconName) const { return ::LoadIconA(NULL, lpszIconName); }

protected:
    DECLARE_MESSAGE_MAP()

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

// What WinMain does: starts the foundation, InitInstance, Run (when InitInstance says FALSE: ends without it,
// destroying the main window). The program's exit status. A program that supplies only its application object
// gets a WinMain that calls this.
ORVAFX_API int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine,
                                 int nCmdShow);
ORVAFX_API void AFXAPI AfxPostQuitMessage(int nExitCode);
// One message of a loop of one's own. FALSE after WM_QUIT.
ORVAFX_API BOOL AFXAPI AfxPumpMessage();
ORVAFX_API BOOL AFXAPI AfxPreTranslateMessage(MSG* pMsg);

// A type without icon bits gets the icon that fits its buttons.
ORVAFX_API int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
ORVAFX_API int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = static_cast<UINT>(-1));

// While locked, temporary objects of this thread stay. The last unlock deletes them, unless it is told not
// to.
ORVAFX_API void AFXAPI AfxLockTempMaps();
ORVAFX_API BOOL AFXAPI AfxUnlockTempMaps(BOOL bDeleteTemps = TRUE);
