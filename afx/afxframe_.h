#pragma once

// Frame windows.

#include "afxwnd_.h"

// The child that fills a frame's client area.
#define AFX_IDW_PANE_FIRST 0xE900
// A frame style bit of MFC's; the title is the frame's own text in any case.
#define FWS_ADDTOTITLE 0x00008000L

// What a frame passes to OnCreateClient.
struct CCreateContext {
    CRuntimeClass* m_pNewViewClass = NULL; // a dynamically creatable window class, or NULL: no view
    CFrameWnd* m_pCurrentFrame = NULL;
};

// A program's window with a menu, accelerators and a view: the child AFX_IDW_PANE_FIRST, which fills the
// client area. Made with new; deletes itself with its window.
class ORVAFX_API CFrameWnd : public CWnd {
    DECLARE_DYNCREATE(CFrameWnd)

public:
    CFrameWnd();
    ~CFrameWnd() override;

    static const CRect rectDefault;

    HACCEL m_hAccelTable = NULL;
    BOOL m_bAutoMenuEnable = TRUE; // menu items without a handler are greyed

    // One accelerator table a frame; TRUE when there is such a resource.
    BOOL LoadAccelTable(LPCTSTR lpszResourceName);
    BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
                const RECT& rect = rectDefault, CWnd* pParentWnd = NULL, LPCTSTR lpszMenuName = NULL,
                DWORD dwExStyle = 0, CCreateContext* pContext = NULL);
    // Menu, accelerators, icon and title (a string) of one resource number.
    virtual BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                           CWnd* pParentWnd = NULL, CCreateContext* pContext = NULL);

    CString GetTitle() const { return m_strTitle; }
    void SetTitle(LPCTSTR lpszTitle) { m_strTitle = lpszTitle; }
    virtual void ActivateFrame(int nCmdShow = -1);
    // Lays the view out again.
    virtual void RecalcLayout(BOOL bNotify = TRUE);

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    // Makes the view; FALSE: the frame is not made.
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);
    CWnd* CreateView(CCreateContext* pContext, UINT nID = AFX_IDW_PANE_FIRST);
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnClose();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);

    CString m_strTitle;

    DECLARE_MESSAGE_MAP()
};
