#include "msgdispatch.h"
#include "wndcreate.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
ON_COMMAND(IDOK, &CDialog::OnOK)
ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
    : m_lpszTemplateName(lpszTemplateName), m_pParentWnd(pParentWnd) {}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd)
    : m_lpszTemplateName(MAKEINTRESOURCEA(nIDTemplate)), m_pParentWnd(pParentWnd) {}

CDialog::~CDialog() {
    if (m_hWnd)
        DestroyWindow();
}

LPCDLGTEMPLATE CDialog::FindTemplate(LPCTSTR lpszTemplateName, HINSTANCE& hInst) const {
    if (!lpszTemplateName)
        return NULL;
    hInst = AfxFindResourceHandle(lpszTemplateName, RT_DIALOG);
    HRSRC resource = ::FindResourceA(hInst, lpszTemplateName, RT_DIALOG);
    HGLOBAL loaded = resource ? ::LoadResource(hInst, resource) : NULL;
    return loaded ? static_cast<LPCDLGTEMPLATE>(::LockResource(loaded)) : NULL;
}

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd) {
    m_lpszTemplateName = lpszTemplateName;
    HINSTANCE module = NULL;
    LPCDLGTEMPLATE dialogTemplate = FindTemplate(lpszTemplateName, module);
    if (!dialogTemplate)
        TRACE("CDialog::Create: there is no such template\n");
    if (!pParentWnd)
        pParentWnd = AfxGetMainWnd();
    return dialogTemplate && CreateDlgIndirect(dialogTemplate, pParentWnd, module);
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd) {
    return Create(MAKEINTRESOURCEA(nIDTemplate), pParentWnd);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void*) {
    if (!pParentWnd)
        pParentWnd = AfxGetMainWnd();
    return CreateDlgIndirect(lpDialogTemplate, pParentWnd);
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void*) {
    ASSERT(m_lpszTemplateName == NULL && lpDialogTemplate != NULL);
    m_lpDialogTemplate = lpDialogTemplate;
    if (pParentWnd)
        m_pParentWnd = pParentWnd;
    return lpDialogTemplate != NULL;
}

namespace orvafx {

HWND modalOwner(CWnd* parent) {
    HWND owner = parent->GetSafeHwnd();
    if (!owner)
        owner = AfxGetMainWnd()->GetSafeHwnd();
    while (owner && (::GetWindowLongA(owner, GWL_STYLE) & WS_CHILD))
        owner = ::GetParent(owner);
    if (owner && !parent)
        owner = ::GetLastActivePopup(owner);
    return owner;
}

OwnerDisabled::OwnerDisabled(HWND owner)
    : owner_(owner), disabled_(owner && owner != ::GetDesktopWindow() && ::IsWindowEnabled(owner)) {
    if (disabled_)
        ::EnableWindow(owner_, FALSE);
}

void OwnerDisabled::end(CWnd* dialog) {
    OrvWndAccess::endModal(dialog);
    if (disabled_)
        ::EnableWindow(owner_, TRUE);
    if (owner_ && dialog->m_hWnd && ::GetActiveWindow() == dialog->m_hWnd)
        ::SetActiveWindow(owner_);
    dialog->DestroyWindow();
}

} // namespace orvafx

INT_PTR CDialog::DoModal() {
    HINSTANCE module = NULL;
    LPCDLGTEMPLATE dialogTemplate =
        m_lpDialogTemplate ? m_lpDialogTemplate : FindTemplate(m_lpszTemplateName, module);
    if (!dialogTemplate || m_hWnd) {
        TRACE("CDialog::DoModal: there is no such template, or the dialog has a window already\n");
        return -1;
    }
    return RunOver(orvafx::modalOwner(m_pParentWnd), dialogTemplate, module);
}

int CDialog::RunOver(HWND hWndOwner, LPCDLGTEMPLATE lpTemplate, HINSTANCE hInst) {
    orvafx::OwnerDisabled disabled(hWndOwner);
    m_nModalResult = -1;
    // EndDialog may be called while the dialog is made.
    m_nFlags |= WF_CONTINUEMODAL;
    try {
        if (CreateDlgIndirect(lpTemplate, CWnd::FromHandle(hWndOwner), hInst) &&
            (m_nFlags & WF_CONTINUEMODAL))
            RunModalLoop((GetStyle() & DS_NOIDLEMSG) ? MLF_SHOWONIDLE | MLF_NOIDLEMSG : MLF_SHOWONIDLE);
    } catch (...) {
        // From a PreTranslateMessage; it is DoModal's caller's.
        disabled.end(this);
        throw;
    }
    disabled.end(this);
    return m_nModalResult;
}

void CDialog::EndDialog(int nResult) {
    if (m_nFlags & (WF_MODALLOOP | WF_CONTINUEMODAL))
        EndModalLoop(nResult);
    else if (m_hWnd)
        ::EndDialog(m_hWnd, nResult);
}

void CDialog::GotoDlgCtrl(CWnd* pWndCtrl) {
    SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(pWndCtrl->GetSafeHwnd()), 1);
}

BOOL CDialog::OnInitDialog() {
    UpdateData(FALSE);
    return TRUE;
}

void CDialog::OnOK() {
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg) {
    return CWnd::PreTranslateMessage(pMsg) || PreTranslateInput(pMsg);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    return CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo) ||
           orvafx::passDialogCommandOn(this, nID, nCode, pExtra, pHandlerInfo);
}

INT_PTR CALLBACK AfxDlgProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_INITDIALOG)
        return FALSE;
    CWnd* window = CWnd::FromHandlePermanent(hWnd);
    CDialog* dialog = DYNAMIC_DOWNCAST(CDialog, window);
    if (!dialog)
        return TRUE;
    try {
        return dialog->OnInitDialog();
    } catch (...) {
        orvafx::swallowException({hWnd, message, wParam, lParam, 0, {}});
        // Half a dialog is none. A modal one ends when its loop begins.
        if (OrvWndAccess::isModal(dialog))
            dialog->EndDialog(-1);
        else
            dialog->DestroyWindow();
        return FALSE;
    }
}
