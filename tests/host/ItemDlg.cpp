#include "stdafx.h"
#include "ItemDlg.h"

BEGIN_MESSAGE_MAP(CUpperEdit, CEdit)
ON_WM_CHAR()
END_MESSAGE_MAP()

void CUpperEdit::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if (nChar == '#')
        return;
    CEdit::OnChar(nChar, nRepCnt, nFlags);
}

IMPLEMENT_DYNAMIC(CItemDlg, CDialog)

CItemDlg::CItemDlg(CWnd* pParent /*=NULL*/)
    : CDialog(CItemDlg::IDD, pParent), m_nCount(1), m_bVisible(TRUE), m_nLines(0), m_nSelchanges(0),
      m_nPicked(0) {}

void CItemDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CItemDlg)
    DDX_Control(pDX, IDC_SYMBOL, m_wndSymbol);
    DDX_Control(pDX, IDC_NOTE, m_wndNote);
    DDX_Text(pDX, IDC_NAME, m_strName);
    DDV_MaxChars(pDX, m_strName, 12);
    DDX_Text(pDX, IDC_COUNT, m_nCount);
    DDV_MinMaxInt(pDX, m_nCount, 1, 100);
    DDX_Check(pDX, IDC_VISIBLE, m_bVisible);
    DDX_Radio(pDX, IDC_SINGLE, m_nLines);
    DDX_Text(pDX, IDC_NOTE, m_strNote);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CItemDlg, CDialog)
//{{AFX_MSG_MAP(CItemDlg)
ON_CBN_SELCHANGE(IDC_SYMBOL, &CItemDlg::OnSelchangeSymbol)
//}}AFX_MSG_MAP
ON_REGISTERED_MESSAGE(WM_SYMBOL_PICKED, &CItemDlg::OnSymbolPicked)
END_MESSAGE_MAP()

BOOL CItemDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    m_wndSymbol.Fill();
    GetDlgItem(IDC_NAME)->SetFocus();
    return FALSE;
}

void CItemDlg::OnOK() {
    m_strSymbolClass = m_wndSymbol.GetClassOfSelection();
    CDialog::OnOK();
}

void CItemDlg::ShowPicked() {
    CString str;
    str.Format(_T("%d/%d"), m_nSelchanges, m_nPicked);
    SetDlgItemText(IDC_PICKED, str);
}

void CItemDlg::OnSelchangeSymbol() {
    m_nSelchanges++;
    ShowPicked();
}

LRESULT CItemDlg::OnSymbolPicked(WPARAM wParam, LPARAM lParam) {
    ASSERT(wParam == IDC_SYMBOL);
    m_nPicked = (int)wParam == IDC_SYMBOL ? (int)lParam + 1 : -1;
    ShowPicked();
    return 0;
}
