#include "proppage.h"

#include "wndcreate.h"

IMPLEMENT_DYNCREATE(CPropertyPage, CDialog)

namespace {

// The page's window is the next one that the system makes behind this call.
UINT CALLBACK pageCallback(HWND, UINT message, LPPROPSHEETPAGEW page) {
    if (message == PSPCB_CREATE)
        orvafx::hookNextDialog(reinterpret_cast<CPropertyPage*>(page->lParam));
    return 1;
}

} // namespace

namespace orvafx {

std::wstring wide(LPCSTR text) {
    const int length = ::MultiByteToWideChar(CP_ACP, 0, text, -1, NULL, 0);
    std::wstring result(length > 0 ? length : 1, L'\0');
    ::MultiByteToWideChar(CP_ACP, 0, text, -1, result.data(), length);
    result.pop_back();
    return result;
}

} // namespace orvafx

// The system takes the wide form, in which pages get typed characters of every kind.
HPROPSHEETPAGE OrvPageAccess::handle(CPropertyPage& page) {
    HINSTANCE module = NULL;
    LPCDLGTEMPLATE dialogTemplate = page.m_lpDialogTemplate;
    LPCTSTR name = page.m_lpszTemplateName;
    if (!dialogTemplate && name) {
        module = AfxFindResourceHandle(name, RT_DIALOG);
        HRSRC resource = ::FindResourceA(module, name, RT_DIALOG);
        HGLOBAL loaded = resource ? ::LoadResource(module, resource) : NULL;
        dialogTemplate = loaded ? static_cast<LPCDLGTEMPLATE>(::LockResource(loaded)) : NULL;
    }
    if (!dialogTemplate) {
        TRACE("CPropertySheet: a page has no template\n");
        return NULL;
    }
    page.m_psp.pResource = dialogTemplate;
    const PROPSHEETPAGEA& psp = page.m_psp;
    PROPSHEETPAGEW w = {};
    std::wstring title;
    w.dwSize = sizeof w;
    w.dwFlags = psp.dwFlags | PSP_DLGINDIRECT | PSP_USECALLBACK;
    w.hInstance = module ? module : AfxGetResourceHandle();
    w.pResource = dialogTemplate;
    w.hIcon = psp.hIcon;
    if (psp.dwFlags & PSP_USETITLE) {
        title = orvafx::wide(psp.pszTitle ? psp.pszTitle : static_cast<LPCTSTR>(page.m_strCaption));
        w.pszTitle = title.c_str();
    }
    w.pfnDlgProc = AfxDlgProc;
    w.lParam = reinterpret_cast<LPARAM>(&page);
    w.pfnCallback = pageCallback;
    return ::CreatePropertySheetPageW(&w);
}

CPropertyPage::CPropertyPage() : CPropertyPage(static_cast<LPCTSTR>(NULL)) {}

CPropertyPage::CPropertyPage(UINT nIDTemplate, UINT nIDCaption, DWORD dwSize)
    : CPropertyPage(MAKEINTRESOURCEA(nIDTemplate), nIDCaption, dwSize) {}

CPropertyPage::CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption, DWORD) {
    Construct(lpszTemplateName, nIDCaption);
}

CPropertyPage::~CPropertyPage() = default;

void CPropertyPage::Construct(UINT nIDTemplate, UINT nIDCaption) {
    Construct(MAKEINTRESOURCEA(nIDTemplate), nIDCaption);
}

void CPropertyPage::Construct(LPCTSTR lpszTemplateName, UINT nIDCaption) {
    memset(&m_psp, 0, sizeof m_psp);
    m_psp.dwSize = sizeof m_psp;
    m_lpszTemplateName = lpszTemplateName;
    if (nIDCaption && m_strCaption.LoadString(nIDCaption)) {
        m_psp.pszTitle = m_strCaption;
        m_psp.dwFlags |= PSP_USETITLE;
    }
}

CPropertySheet* CPropertyPage::GetParentSheet() {
    for (HWND parent = m_hWnd ? ::GetParent(m_hWnd) : NULL; parent; parent = ::GetParent(parent))
        if (CPropertySheet* sheet = DYNAMIC_DOWNCAST(CPropertySheet, FromHandlePermanent(parent)))
            return sheet;
    return NULL;
}

void CPropertyPage::CancelToClose() {
    if (CPropertySheet* sheet = GetParentSheet())
        sheet->PostMessage(PSM_CANCELTOCLOSE);
}

void CPropertyPage::SetModified(BOOL bChanged) {
    if (CPropertySheet* sheet = GetParentSheet())
        sheet->SendMessage(bChanged ? PSM_CHANGED : PSM_UNCHANGED, reinterpret_cast<WPARAM>(m_hWnd));
}

LRESULT CPropertyPage::QuerySiblings(WPARAM wParam, LPARAM lParam) {
    CPropertySheet* sheet = GetParentSheet();
    return sheet ? sheet->SendMessage(PSM_QUERYSIBLINGS, wParam, lParam) : 0;
}

BOOL CPropertyPage::OnSetActive() {
    // The first time OnInitDialog has just done it; the same values again do no harm.
    return UpdateData(FALSE);
}

BOOL CPropertyPage::OnKillActive() {
    return UpdateData(TRUE);
}

BOOL CPropertyPage::OnApply() {
    OnOK();
    return TRUE;
}

void CPropertyPage::PostNcDestroy() {}

BOOL CPropertyPage::PreTranslateMessage(MSG* pMsg) {
    // The keys belong to the sheet, which is asked next.
    return CWnd::PreTranslateMessage(pMsg);
}

BOOL CPropertyPage::OnCommand(WPARAM wParam, LPARAM lParam) {
    return CDialog::OnCommand(wParam, lParam);
}

BOOL CPropertyPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (CDialog::OnNotify(wParam, lParam, pResult))
        return TRUE;
    auto* header = reinterpret_cast<NMHDR*>(lParam);
    // The sheet's own notifications, not those of a nested sheet's.
    if (header->hwndFrom != ::GetParent(m_hWnd))
        return FALSE;
    switch (header->code) {
    case PSN_SETACTIVE:
        *pResult = OnSetActive() ? 0 : -1;
        break;
    case PSN_KILLACTIVE:
        *pResult = !OnKillActive();
        break;
    case PSN_APPLY:
        *pResult = OnApply() ? PSNRET_NOERROR : PSNRET_INVALID_NOCHANGEPAGE;
        break;
    case PSN_RESET:
        OnReset();
        break;
    case PSN_QUERYCANCEL:
        *pResult = !OnQueryCancel();
        break;
    case PSN_WIZBACK:
        *pResult = MapWizardResult(OnWizardBack());
        break;
    case PSN_WIZNEXT:
        *pResult = MapWizardResult(OnWizardNext());
        break;
    case PSN_WIZFINISH:
        *pResult = !OnWizardFinish();
        break;
    default:
        return FALSE;
    }
    return TRUE;
}

// The system's sheet gets its pages as templates in memory, and knows them by these instead of by a number.
LRESULT CPropertyPage::MapWizardResult(LRESULT lToMap) {
    if (lToMap == 0 || lToMap == -1)
        return lToMap;
    CPropertySheet* sheet = GetParentSheet();
    for (int i = 0; sheet && i < sheet->GetPageCount(); ++i) {
        const CPropertyPage* page = sheet->GetPage(i);
        if (reinterpret_cast<LRESULT>(page->m_lpszTemplateName) == lToMap)
            return reinterpret_cast<LRESULT>(page->m_psp.pResource);
    }
    TRACE("CPropertyPage: the wizard has no page %d\n", static_cast<int>(lToMap));
    return -1;
}
