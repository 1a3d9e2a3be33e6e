#pragma once

#include "resource.h"

// A field that takes no number sign.
class CNoteEdit : public CEdit {
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
    CNoteEdit m_wndNote;

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
};
