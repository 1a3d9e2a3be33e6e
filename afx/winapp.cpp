#include "afxwin.h"

namespace orvafx {
void setInstanceHandle(HINSTANCE instance);
}

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinApp, CCmdTarget)
ON_COMMAND(ID_APP_EXIT, &CWinApp::OnAppExit)
END_MESSAGE_MAP()

namespace {

CWinApp* theApp = NULL;

CString exeName() {
    char path[MAX_PATH] = {};
    ::GetModuleFileNameA(NULL, path, MAX_PATH - 1);
    CString name(path);
    name = name.Mid(name.ReverseFind('\\') + 1);
    int dot = name.ReverseFind('.');
    return dot < 0 ? name : name.Left(dot);
}

// The icon that goes with the buttons, where the caller names none.
UINT withIcon(UINT type) {
    if (type & MB_ICONMASK)
        return type;
    switch (type & MB_TYPEMASK) {
    case MB_OK:
    case MB_OKCANCEL:
        return type | MB_ICONEXCLAMATION;
    case MB_YESNO:
    case MB_YESNOCANCEL:
        return type | MB_ICONQUESTION;
    default:
        return type;
    }
}

} // namespace

CWinApp::CWinApp(LPCTSTR lpszAppName) : m_strAppName(lpszAppName) {
    m_pszAppName = lpszAppName ? static_cast<LPCTSTR>(m_strAppName) : NULL;
    ASSERT(theApp == NULL);
    if (!theApp)
        theApp = this;
}

CWinApp::~CWinApp() {
    if (theApp == this)
        theApp = NULL;
}

void CWinApp::TakeNames() {
    m_strExeName = exeName();
    m_pszExeName = m_strExeName;
    if (!m_pszAppName) {
        m_strAppName = m_strExeName;
        m_pszAppName = m_strAppName;
    }
}

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt) {
    return ShowAppMessageBox(this, lpszPrompt, nType, nIDPrompt);
}

int CWinApp::ShowAppMessageBox(CWinApp* pApp, LPCTSTR lpszPrompt, UINT nType, UINT) {
    CString title = pApp && pApp->m_pszAppName ? CString(pApp->m_pszAppName) : exeName();
    HWND owner = pApp && pApp->m_pMainWnd ? pApp->m_pMainWnd->m_hWnd : NULL;
    if (HWND popup = owner ? ::GetLastActivePopup(owner) : NULL)
        owner = popup;
    return ::MessageBoxA(owner, lpszPrompt, title, withIcon(nType) | (owner ? 0 : MB_TASKMODAL));
}

void CWinApp::OnAppExit() {
    if (m_pMainWnd)
        m_pMainWnd->SendMessage(WM_CLOSE);
}

HICON CWinApp::LoadIcon(UINT nIDResource) const {
    LPCTSTR name = MAKEINTRESOURCEA(nIDResource);
    return ::LoadIconA(AfxFindResourceHandle(name, RT_GROUP_ICON), name);
}

HCURSOR CWinApp::LoadCursor(UINT nIDResource) const {
    LPCTSTR name = MAKEINTRESOURCEA(nIDResource);
    return ::LoadCursorA(AfxFindResourceHandle(name, RT_GROUP_CURSOR), name);
}

CWinApp* AFXAPI AfxGetApp() {
    return theApp;
}
CWinThread* AFXAPI AfxGetThread() {
    // Other threads have no object of their own.
    return theApp && theApp->m_nThreadID == ::GetCurrentThreadId() ? theApp : NULL;
}
LPCTSTR AFXAPI AfxGetAppName() {
    return theApp ? theApp->m_pszAppName : NULL;
}
CWnd* AFXAPI AfxGetMainWnd() {
    CWinThread* thread = AfxGetThread();
    return thread ? thread->m_pMainWnd : NULL;
}

BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR lpCmdLine, int nCmdShow) {
    orvafx::setInstanceHandle(hInstance);
    // Dialog templates may name any of the common controls.
    INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
    ::InitCommonControlsEx(&controls);
    if (theApp) {
        theApp->m_hInstance = hInstance;
        theApp->m_lpCmdLine = lpCmdLine;
        theApp->m_nCmdShow = nCmdShow;
        theApp->TakeNames();
    }
    return TRUE;
}

int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow) {
    if (!theApp || !AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow))
        return -1;
    int status;
    if (theApp->InitInstance()) {
        status = theApp->Run();
    } else {
        if (theApp->m_pMainWnd) {
            TRACE("AfxWinMain: InitInstance says no, its main window goes\n");
            theApp->m_pMainWnd->DestroyWindow();
        }
        status = theApp->ExitInstance();
    }
    AfxUnlockTempMaps(TRUE);
    return status;
}

// For programs that bring only their application object.
extern "C" __declspec(dllexport) int WINAPI
    WinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPSTR lpCmdLine, int nCmdShow) {
    return AfxWinMain(hInstance, hPrevInstance, lpCmdLine, nCmdShow);
}

int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp) {
    return theApp ? theApp->DoMessageBox(lpszText, nType, nIDHelp)
                  : CWinApp::ShowAppMessageBox(NULL, lpszText, nType, nIDHelp);
}

int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp) {
    CString text;
    if (!text.LoadString(nIDPrompt))
        TRACE("AfxMessageBox: there is no string %u\n", nIDPrompt);
    return AfxMessageBox(text, nType, nIDHelp == static_cast<UINT>(-1) ? nIDPrompt : nIDHelp);
}
