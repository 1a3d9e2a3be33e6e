#pragma once

#include "resource.h"

// wParam: TRUE while the dialog is there, FALSE when it has gone.
#define WM_FIND_CHANGED (WM_APP + 1)

// A modeless dialog that deletes itself.
class CFindDlg : public CDialog {
public:
    BOOL Create(CWnd* pParent) {
        m_pOwnerFrame = pParent;
        return CDialog::Create(IDD_FIND, pParent);
    }
    CString m_strWhat;

protected:
    CWnd* m_pOwnerFrame;

    virtual void DoDataExchange(CDataExchange* pDX) {
        CDialog::DoDataExchange(pDX);
        DDX_Text(pDX, IDC_WHAT, m_strWhat);
    }
    virtual void OnOK() {
        if (UpdateData())
            m_pOwnerFrame->SendMessage(WM_FIND_CHANGED, TRUE);
    }
    virtual void OnCancel() { DestroyWindow(); }
    virtual void PostNcDestroy() {
        if (::IsWindow(m_pOwnerFrame->GetSafeHwnd()))
            m_pOwnerFrame->SendMessage(WM_FIND_CHANGED, FALSE);
        delete this;
    }
};
