#pragma once

#include "resource.h"
#include "symbols.h"

// A field that keeps its text in upper case letters.
class CUpperEdit : public CEdit {
protected:
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    DECLARE_MESSAGE_MAP()
};

class CItemDlg : public CDialog {
    DECLARE_DYNAMIC(CItemDlg)

public:
    CItemDlg(CWnd* pParent = NULL);

    enum { IDD = IDD_ITEM };
    CString m_strName;
    CString m_strNote;
    int m_nCount;
    BOOL m_bVisible;
    int m_nLines;
    CString m_strSymbolClass;
    CSymbolCombo m_wndSymbol;
    CUpperEdit m_wndNote;

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();
    virtual void OnOK();
    void ShowPicked();

    afx_msg void OnSelchangeSymbol();
    afx_msg LRESULT OnSymbolPicked(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    int m_nSelchanges;
    int m_nPicked;
};
