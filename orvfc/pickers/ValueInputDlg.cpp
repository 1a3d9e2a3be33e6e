#include "ValueInputDlg.h"

void CValueInputDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        SetDlgItemText(IDC_VALUE_PROMPT, m_strPrompt);
    DDX_Text(pDX, IDC_VALUE, m_dValue);
}
