#include "afxwin.h"

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
ON_WM_CREATE()
ON_WM_CLOSE()
ON_WM_SIZE()
ON_WM_SETFOCUS()
ON_WM_ERASEBKGND()
ON_WM_INITMENUPOPUP()
END_MESSAGE_MAP()

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

CFrameWnd::CFrameWnd() = default;
CFrameWnd::~CFrameWnd() = default;

void CFrameWnd::PostNcDestroy() {
    delete this;
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs) {
    // No redraw of everything at each size: the view covers the client area.
    if (cs.lpszClass == NULL)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorA(NULL, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    return CWnd::PreCreateWindow(cs);
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR lpszResourceName) {
    m_hAccelTable =
        ::LoadAcceleratorsA(AfxFindResourceHandle(lpszResourceName, RT_ACCELERATOR), lpszResourceName);
    return m_hAccelTable != NULL;
}

BOOL CFrameWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                       CWnd* pParentWnd, LPCTSTR lpszMenuName, DWORD dwExStyle, CCreateContext* pContext) {
    HMENU menu = NULL;
    if (lpszMenuName) {
        menu = ::LoadMenuA(AfxFindResourceHandle(lpszMenuName, RT_MENU), lpszMenuName);
        if (!menu) {
            PostNcDestroy();
            return FALSE;
        }
    }
    m_strTitle = lpszWindowName;
    // The sizes of rectDefault wrap around to CW_USEDEFAULT.
    const CSize size = CRect(rect).Size();
    // A failure deletes this object: nothing of it is touched then.
    if (CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top, size.cx, size.cy,
                 pParentWnd->GetSafeHwnd(), menu, pContext))
        return TRUE;
    // A window that came to life took the menu with it.
    if (::IsMenu(menu))
        ::DestroyMenu(menu);
    return FALSE;
}

BOOL CFrameWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd,
                          CCreateContext* pContext) {
    CString title;
    title.LoadString(nIDResource);
    LPCTSTR name = MAKEINTRESOURCEA(nIDResource);
    const HINSTANCE iconModule = AfxFindResourceHandle(name, RT_GROUP_ICON);
    LPCTSTR windowClass =
        AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorA(NULL, IDC_ARROW),
                            reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), ::LoadIconA(iconModule, name));
    const bool hasMenu = ::FindResourceA(AfxFindResourceHandle(name, RT_MENU), name, RT_MENU) != NULL;
    if (!Create(windowClass, title, dwDefaultStyle, rectDefault, pParentWnd, hasMenu ? name : NULL, 0,
                pContext))
        return FALSE;
    LoadAccelTable(name);
    return TRUE;
}

void CFrameWnd::ActivateFrame(int nCmdShow) {
    if (nCmdShow == -1)
        nCmdShow = IsIconic() ? SW_RESTORE : SW_SHOWNORMAL;
    ShowWindow(nCmdShow);
    BringWindowToTop();
}

int CFrameWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (Default() == -1)
        return -1;
    if (!OnCreateClient(lpCreateStruct, static_cast<CCreateContext*>(lpCreateStruct->lpCreateParams)))
        return -1;
    RecalcLayout();
    return 0;
}

BOOL CFrameWnd::OnCreateClient(LPCREATESTRUCT, CCreateContext* pContext) {
    return !pContext || !pContext->m_pNewViewClass || CreateView(pContext) != NULL;
}

CWnd* CFrameWnd::CreateView(CCreateContext* pContext, UINT nID) {
    CWnd* view = DYNAMIC_DOWNCAST(CWnd, pContext->m_pNewViewClass->CreateObject());
    if (!view) {
        TRACE("CreateView: the class makes no window\n");
        return NULL;
    }
    const CRect nowhere(0, 0, 0, 0);
    return view->Create(NULL, NULL, WS_CHILD | WS_VISIBLE | WS_BORDER, nowhere, this, nID, pContext) ? view
                                                                                                     : NULL;
}

void CFrameWnd::RecalcLayout(BOOL) {
    HWND view = ::GetDlgItem(m_hWnd, AFX_IDW_PANE_FIRST);
    if (!view)
        return;
    CRect client;
    GetClientRect(&client);
    ::SetWindowPos(view, NULL, 0, 0, client.right, client.bottom, SWP_NOZORDER | SWP_NOACTIVATE);
}

void CFrameWnd::OnSize(UINT nType, int, int) {
    Default();
    if (nType != SIZE_MINIMIZED)
        RecalcLayout();
}

void CFrameWnd::OnSetFocus(CWnd*) {
    HWND view = ::GetDlgItem(m_hWnd, AFX_IDW_PANE_FIRST);
    if (view)
        ::SetFocus(view);
    else
        Default();
}

BOOL CFrameWnd::OnEraseBkgnd(CDC*) {
    return ::GetDlgItem(m_hWnd, AFX_IDW_PANE_FIRST) ? TRUE : static_cast<BOOL>(Default());
}

void CFrameWnd::OnClose() {
    DestroyWindow();
}

BOOL CFrameWnd::PreTranslateMessage(MSG* pMsg) {
    return pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST && m_hAccelTable &&
           ::TranslateAcceleratorW(m_hWnd, m_hAccelTable, pMsg);
}

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinApp* app = AfxGetApp();
    return app && app->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

// None in what is no menu: the number comes from a message, and a handler may have destroyed it.
static UINT itemsOf(const CMenu& menu) {
    const UINT count = menu.GetMenuItemCount();
    return count == static_cast<UINT>(-1) ? 0 : count;
}

void CFrameWnd::OnInitMenuPopup(CMenu* pPopupMenu, UINT, BOOL bSysMenu) {
    Default();
    if (bSysMenu || !pPopupMenu)
        return;
    CCmdUI state;
    state.m_pMenu = pPopupMenu;
    state.m_nIndexMax = itemsOf(*pPopupMenu);
    for (; state.m_nIndex < state.m_nIndexMax; ++state.m_nIndex) {
        state.m_nID = pPopupMenu->GetMenuItemID(static_cast<int>(state.m_nIndex));
        // Separators, and items that open a menu.
        if (state.m_nID == 0 || state.m_nID == static_cast<UINT>(-1))
            continue;
        state.DoUpdate(this, m_bAutoMenuEnable && state.m_nID < 0xF000);
        state.m_nIndexMax = itemsOf(*pPopupMenu);
    }
}
