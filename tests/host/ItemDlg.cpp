#include "stdafx.h"
#include "ItemDlg.h"

BEGIN_MESSAGE_MAP(CNoteEdit, CEdit)
ON_WM_CHAR()
END_MESSAGE_MAP()

void CNoteEdit::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if (nChar == '#')
        return;
    CEdit::OnChar(nChar, nRepCnt, nFlags);
}

IMPLEMENT_DYNAMIC(CItemDlg, CDialog)

CItemDlg::CItemDlg(CWnd* pParent /*=NULL*/)
    : CDialog(CItemDlg::IDD, pParent), m_nCount(1), m_bVisible(TRUE), m_nLines(0) {}

void CItemDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CItemDlg)
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
