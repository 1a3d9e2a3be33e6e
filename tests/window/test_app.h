#pragma once

#include <afxwin.h>

// The application of this program: keeps the message boxes instead of showing them.
class CTestApp : public CWinApp {
public:
    int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt) override;
    CString m_strPrompt;
    int m_nBoxes = 0;
};

extern CTestApp theApp;
