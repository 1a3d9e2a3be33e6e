#pragma once

// Resources of the dialog that asks for a number.

#define IDD_VALUE_INPUT 22007
#define IDC_VALUE_PROMPT 1001
#define IDC_VALUE 1002

#ifndef RC_INVOKED

#include <afxwin.h>

// Asks for a number. What is no number is refused with a message, and the dialog stays.
class CValueInputDlg : public CDialog {
public:
    double m_dValue; // shown first; what was typed after OK

    CValueInputDlg(LPCTSTR lpszPrompt, double dValue, CWnd* pParentWnd)
        : CDialog(IDD_VALUE_INPUT, pParentWnd), m_dValue(dValue), m_strPrompt(lpszPrompt) {}

protected:
    void DoDataExchange(CDataExchange* pDX) override;

private:
    CString m_strPrompt;
};

#endif
