#include "stdafx.h"
#include "MainFrm.h"
#include "resource.h"

class CHostApp : public CWinApp {
public:
    virtual BOOL InitInstance();
    virtual int ExitInstance();
};

CHostApp theApp;

BOOL CHostApp::InitInstance() {
    CWinApp::InitInstance();

    CMainFrame* pFrame = new CMainFrame;
    m_pMainWnd = pFrame;
    pFrame->m_strFile = m_lpCmdLine;
    if (!pFrame->LoadFrame(IDR_MAINFRAME, WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, NULL, NULL))
        return FALSE;
    pFrame->ShowWindow(SW_SHOW);
    pFrame->UpdateWindow();
    return TRUE;
}

int CHostApp::ExitInstance() {
    ASSERT(m_pMainWnd == NULL);
    return CWinApp::ExitInstance();
}
