#pragma once

#include "FindDlg.h"

// Shows the items, one a line.
class CPlanView : public CWnd {
public:
    CObList* m_pItems;

    CPlanView() : m_pItems(NULL) {}

protected:
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()
};

class CMainFrame : public CFrameWnd {
    DECLARE_DYNAMIC(CMainFrame)

public:
    CMainFrame();
    virtual ~CMainFrame();

    CString m_strFile;

    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

protected:
    CObList m_items;
    CPlanView m_wndView;
    CFindDlg* m_pFindDlg;
    CString m_strSheetName;
    double m_dScale;
    BOOL m_bGrid;

    void ShowState();
    void RemoveItems();

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnItemAdd();
    afx_msg void OnItemClear();
    afx_msg void OnUpdateItemClear(CCmdUI* pCmdUI);
    afx_msg void OnViewOptions();
    afx_msg void OnViewFind();
    afx_msg void OnFileSave();
    afx_msg void OnFileOpen();
    afx_msg LRESULT OnFound(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};
