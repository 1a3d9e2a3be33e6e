#include "stdafx.h"
#include "Options.h"

void CSheetPage::DoDataExchange(CDataExchange* pDX) {
    CPropertyPage::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_SHEET_NAME, m_strSheetName);
}

BEGIN_MESSAGE_MAP(CScalePage, CPropertyPage)
ON_BN_CLICKED(IDC_GRID, &CScalePage::OnGrid)
END_MESSAGE_MAP()

void CScalePage::DoDataExchange(CDataExchange* pDX) {
    CPropertyPage::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_SCALE, m_dScale);
    DDV_MinMaxDouble(pDX, m_dScale, 1, 10000);
    DDX_Check(pDX, IDC_GRID, m_bGrid);
}

void CScalePage::OnGrid() {
    SetModified();
}
