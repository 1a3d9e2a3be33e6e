#include "stdafx.h"
#include "MainFrm.h"
#include "Item.h"
#include "ItemDlg.h"
#include "Options.h"

/////////////////////////////////////////////////////////////////////////////
// CPlanView

BEGIN_MESSAGE_MAP(CPlanView, CWnd)
ON_WM_PAINT()
END_MESSAGE_MAP()

BOOL CPlanView::PreCreateWindow(CREATESTRUCT& cs) {
    if (!CWnd::PreCreateWindow(cs))
        return FALSE;
    cs.dwExStyle |= WS_EX_CLIENTEDGE;
    cs.style &= ~WS_BORDER;
    cs.lpszClass = AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW | CS_DBLCLKS, ::LoadCursor(NULL, IDC_ARROW),
                                       reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), NULL);
    return TRUE;
}

void CPlanView::OnPaint() {
    CPaintDC dc(this);
    if (m_pItems == NULL)
        return;
    int y = 4;
    POSITION pos = m_pItems->GetHeadPosition();
    while (pos != NULL) {
        CItem* pItem = (CItem*)m_pItems->GetNext(pos);
        if (pItem->m_pSymbol != NULL)
            pItem->m_pSymbol->Draw(&dc, CRect(4, y, 18, y + 14));
        dc.TextOut(24, y, pItem->GetText());
        y += 20;
    }
}

/////////////////////////////////////////////////////////////////////////////
// CMainFrame

IMPLEMENT_DYNAMIC(CMainFrame, CFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
ON_WM_CREATE()
ON_COMMAND(ID_ITEM_ADD, &CMainFrame::OnItemAdd)
ON_COMMAND(ID_ITEM_CLEAR, &CMainFrame::OnItemClear)
ON_UPDATE_COMMAND_UI(ID_ITEM_CLEAR, &CMainFrame::OnUpdateItemClear)
ON_COMMAND(ID_VIEW_OPTIONS, &CMainFrame::OnViewOptions)
ON_COMMAND(ID_VIEW_FIND, &CMainFrame::OnViewFind)
ON_COMMAND(ID_FILE_SAVE, &CMainFrame::OnFileSave)
ON_COMMAND(ID_FILE_OPEN, &CMainFrame::OnFileOpen)
ON_MESSAGE(WM_FIND_CHANGED, &CMainFrame::OnFound)
END_MESSAGE_MAP()

CMainFrame::CMainFrame() : m_pFindDlg(NULL), m_dScale(500), m_bGrid(FALSE) {}

CMainFrame::~CMainFrame() {
    RemoveItems();
}

int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    if (!m_wndView.Create(NULL, NULL, WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, AFX_IDW_PANE_FIRST,
                          NULL)) {
        TRACE0("Failed to create view window\n");
        return -1;
    }
    m_wndView.m_pItems = &m_items;
    return 0;
}

BOOL CMainFrame::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (m_wndView.OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    return CFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void CMainFrame::RemoveItems() {
    while (!m_items.IsEmpty())
        delete m_items.RemoveHead();
}

void CMainFrame::ShowState() {
    CString strTitle = _T("计划:");
    POSITION pos = m_items.GetHeadPosition();
    while (pos != NULL)
        strTitle += _T(" ") + ((CItem*)m_items.GetNext(pos))->GetText();
    CString strOptions;
    strOptions.Format(_T(" [%s %g%s]"), (LPCTSTR)m_strSheetName, m_dScale, m_bGrid ? _T("#") : _T(""));
    strTitle += strOptions;
    if (m_pFindDlg != NULL)
        strTitle += _T(" ?") + m_pFindDlg->m_strWhat;
    SetWindowText(strTitle);
    m_wndView.Invalidate();
}

void CMainFrame::OnItemAdd() {
    CItemDlg dlg(this);
    dlg.m_strName = _T("项目");
    if (dlg.DoModal() != IDOK)
        return;
    CItem* pItem = new CItem;
    pItem->m_strName = dlg.m_strName + dlg.m_strNote;
    pItem->m_nCount = dlg.m_nCount;
    pItem->m_bVisible = dlg.m_bVisible;
    pItem->m_nLines = dlg.m_nLines;
    CRuntimeClass* pClass = CRuntimeClass::FromName(dlg.m_strSymbolClass);
    if (pClass != NULL)
        pItem->m_pSymbol = STATIC_DOWNCAST(CSymbol, pClass->CreateObject());
    m_items.AddTail(pItem);
    ShowState();
}

void CMainFrame::OnItemClear() {
    RemoveItems();
    ShowState();
}

void CMainFrame::OnUpdateItemClear(CCmdUI* pCmdUI) {
    pCmdUI->Enable(!m_items.IsEmpty());
}

void CMainFrame::OnViewOptions() {
    CPropertySheet sheet(IDS_OPTIONS, this);
    CSheetPage pageSheet;
    CScalePage pageScale;
    pageSheet.m_strSheetName = m_strSheetName;
    pageScale.m_dScale = m_dScale;
    pageScale.m_bGrid = m_bGrid;
    sheet.AddPage(&pageSheet);
    sheet.AddPage(&pageScale);
    if (sheet.DoModal() != IDOK)
        return;
    m_strSheetName = pageSheet.m_strSheetName;
    m_dScale = pageScale.m_dScale;
    m_bGrid = pageScale.m_bGrid;
    ShowState();
}

void CMainFrame::OnViewFind() {
    if (m_pFindDlg == NULL) {
        m_pFindDlg = new CFindDlg;
        m_pFindDlg->Create(this);
    }
    m_pFindDlg->SetFocus();
    ShowState();
}

LRESULT CMainFrame::OnFound(WPARAM wParam, LPARAM) {
    if (!wParam)
        m_pFindDlg = NULL;
    ShowState();
    return 0;
}

void CMainFrame::OnFileSave() {
    CFile file;
    CFileException e;
    if (!file.Open(m_strFile, CFile::modeCreate | CFile::modeWrite, &e)) {
        e.ReportError();
        return;
    }
    CArchive ar(&file, CArchive::store);
    m_items.Serialize(ar);
    ar << m_strSheetName << m_dScale << m_bGrid;
    ar.Close();
    CString strTitle;
    GetWindowText(strTitle);
    SetWindowText(strTitle + _T(" 已保存"));
}

void CMainFrame::OnFileOpen() {
    RemoveItems();
    TRY {
        CFile file(m_strFile, CFile::modeRead);
        CArchive ar(&file, CArchive::load);
        m_items.Serialize(ar);
        ar >> m_strSheetName >> m_dScale >> m_bGrid;
    }
    CATCH_ALL(e) {
        e->ReportError();
    }
    END_CATCH_ALL
    ShowState();
}
