#include "msgdispatch.h"
#include "proppage.h"
#include "wndcreate.h"

#include "afxcmn.h"

#include <vector>

IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)

BEGIN_MESSAGE_MAP(CPropertySheet, CWnd)
ON_WM_CLOSE()
END_MESSAGE_MAP()

namespace {

int buttonId(WPARAM button) {
    return button == PSBTN_OK       ? IDOK
           : button == PSBTN_CANCEL ? IDCANCEL
           : button == PSBTN_FINISH ? ID_WIZFINISH
                                    : 0;
}

} // namespace

CPropertySheet::CPropertySheet() {
    CommonConstruct(NULL, 0);
}

CPropertySheet::CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage) {
    m_strCaption.LoadString(nIDCaption);
    CommonConstruct(pParentWnd, iSelectPage);
}

CPropertySheet::CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
    : m_strCaption(pszCaption) {
    CommonConstruct(pParentWnd, iSelectPage);
}

CPropertySheet::~CPropertySheet() = default;

void CPropertySheet::CommonConstruct(CWnd* pParentWnd, UINT iSelectPage) {
    memset(&m_psh, 0, sizeof m_psh);
    m_psh.dwSize = sizeof m_psh;
    m_psh.pszCaption = m_strCaption;
    m_psh.nStartPage = iSelectPage;
    m_pParentWnd = pParentWnd;
}

void CPropertySheet::AddPage(CPropertyPage* pPage) {
    ASSERT_KINDOF(CPropertyPage, pPage);
    if (m_hWnd) {
        HPROPSHEETPAGE page = OrvPageAccess::handle(*pPage);
        if (!page)
            return;
        if (!SendMessage(PSM_ADDPAGE, 0, reinterpret_cast<LPARAM>(page))) {
            ::DestroyPropertySheetPage(page);
            return;
        }
    }
    m_pages.Add(pPage);
}

void CPropertySheet::RemovePage(CPropertyPage* pPage) {
    RemovePage(GetPageIndex(pPage));
}

void CPropertySheet::RemovePage(int nPage) {
    if (nPage < 0 || nPage >= GetPageCount())
        return;
    if (m_hWnd)
        SendMessage(PSM_REMOVEPAGE, nPage, 0);
    m_pages.RemoveAt(nPage);
}

BOOL CPropertySheet::MakeSheet(HWND hWndOwner) {
    if (m_pages.IsEmpty())
        return FALSE;
    std::vector<HPROPSHEETPAGE> pages;
    for (int i = 0; i < GetPageCount(); ++i)
        if (HPROPSHEETPAGE page = OrvPageAccess::handle(*GetPage(i)))
            pages.push_back(page);
    if (static_cast<int>(pages.size()) != GetPageCount()) {
        for (HPROPSHEETPAGE page : pages)
            ::DestroyPropertySheetPage(page);
        return FALSE;
    }
    const std::wstring caption = orvafx::wide(m_strCaption);
    PROPSHEETHEADERW header = {};
    header.dwSize = sizeof header;
    header.dwFlags = (m_psh.dwFlags & ~static_cast<DWORD>(PSH_PROPSHEETPAGE)) | PSH_MODELESS;
    header.hwndParent = hWndOwner;
    header.hInstance = AfxGetResourceHandle();
    header.hIcon = m_psh.hIcon;
    header.pszCaption = caption.c_str();
    header.nPages = static_cast<UINT>(pages.size());
    header.nStartPage = m_psh.nStartPage;
    header.phpage = pages.data();
    INT_PTR made;
    {
        orvafx::CreationHook hook(this);
        made = ::PropertySheetW(&header);
    }
    if (made == -1 || made == 0 || !m_hWnd)
        return FALSE;
    if (!m_bInitialised)
        OnInitDialog();
    m_bInitialised = TRUE;
    return m_hWnd != NULL;
}

INT_PTR CPropertySheet::DoModal() {
    ASSERT(m_hWnd == NULL);
    if (m_hWnd)
        return -1;
    const HWND owner = orvafx::modalOwner(m_pParentWnd);
    m_bModeless = FALSE;
    m_bInitialised = FALSE;
    // What is answered when the sheet closes in another way than by its buttons.
    m_nModalResult = IDCANCEL;
    return RunOver(owner);
}

int CPropertySheet::RunOver(HWND hWndOwner) {
    orvafx::OwnerDisabled disabled(hWndOwner);
    int result = -1;
    try {
        if (MakeSheet(hWndOwner)) {
            m_nFlags |= WF_CONTINUEMODAL;
            result = RunModalLoop(MLF_SHOWONIDLE);
        }
    } catch (...) {
        // From a PreTranslateMessage or OnInitDialog; it is DoModal's caller's.
        disabled.end(this);
        throw;
    }
    disabled.end(this);
    return result;
}

BOOL CPropertySheet::Create(CWnd* pParentWnd, DWORD dwStyle, DWORD dwExStyle) {
    ASSERT(m_hWnd == NULL);
    if (m_hWnd)
        return FALSE;
    m_bModeless = TRUE;
    m_bInitialised = FALSE;
    if (!MakeSheet(pParentWnd->GetSafeHwnd()))
        return FALSE;
    if (dwStyle != static_cast<DWORD>(-1)) {
        const DWORD change = WS_VISIBLE | WS_SYSMENU | WS_CAPTION | WS_THICKFRAME;
        ModifyStyle(change & ~dwStyle & ~static_cast<DWORD>(WS_VISIBLE),
                    dwStyle & change & ~static_cast<DWORD>(WS_VISIBLE), SWP_FRAMECHANGED);
    }
    if (dwExStyle)
        ModifyStyleEx(0, dwExStyle, SWP_FRAMECHANGED);
    ShowWindow((dwStyle == static_cast<DWORD>(-1) || (dwStyle & WS_VISIBLE)) ? SW_SHOW : SW_HIDE);
    return TRUE;
}

BOOL CPropertySheet::OnInitDialog() {
    return TRUE;
}

BOOL CPropertySheet::DestroyWindow() {
    return CWnd::DestroyWindow();
}

void CPropertySheet::PostNcDestroy() {}

void CPropertySheet::EndDialog(int nEndID) {
    if (m_bModeless)
        DestroyWindow();
    else
        EndModalLoop(nEndID);
}

BOOL CPropertySheet::ContinueModal() {
    return CWnd::ContinueModal() && m_hWnd && SendMessage(PSM_GETCURRENTPAGEHWND);
}

BOOL CPropertySheet::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (CWnd::OnCommand(wParam, lParam))
        return TRUE;
    const UINT id = LOWORD(wParam);
    if (id != IDOK && id != IDCANCEL && id != ID_WIZFINISH)
        return FALSE;
    Default();
    return TRUE;
}

LRESULT CPropertySheet::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    // The close box says cancel, and its sheet has to go like one of the buttons'.
    if (message == WM_SYSCOMMAND && (wParam & 0xFFF0) == SC_CLOSE) {
        OnClose();
        return 0;
    }
    const HWND window = m_hWnd;
    const LRESULT result = CWnd::DefWindowProc(message, wParam, lParam);
    const int button = message == WM_COMMAND        ? LOWORD(wParam)
                       : message == PSM_PRESSBUTTON ? buttonId(wParam)
                                                    : 0;
    // The system's sheet has taken a button that closes it when it has no current page any more.
    if ((button == IDOK || button == IDCANCEL || button == ID_WIZFINISH) && ::IsWindow(window) &&
        !::SendMessageA(window, PSM_GETCURRENTPAGEHWND, 0, 0))
        EndDialog(button);
    return result;
}

void CPropertySheet::OnClose() {
    SendMessage(WM_COMMAND, IDCANCEL, reinterpret_cast<LPARAM>(::GetDlgItem(m_hWnd, IDCANCEL)));
}

BOOL CPropertySheet::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    // Ctrl with Tab and Page keys turns pages: the system's sheet knows how.
    const WPARAM key = pMsg->message == WM_KEYDOWN ? pMsg->wParam : 0;
    if ((key == VK_TAB || key == VK_PRIOR || key == VK_NEXT) && ::GetKeyState(VK_CONTROL) < 0)
        return ::SendMessageW(m_hWnd, PSM_ISDIALOGMESSAGE, 0, reinterpret_cast<LPARAM>(pMsg)) != 0;
    return PreTranslateInput(pMsg);
}

BOOL CPropertySheet::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    return CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo) ||
           orvafx::passDialogCommandOn(this, nID, nCode, pExtra, pHandlerInfo);
}

CTabCtrl* CPropertySheet::GetTabControl() const {
    return static_cast<CTabCtrl*>(FromHandle(reinterpret_cast<HWND>(SendMessage(PSM_GETTABCONTROL))));
}

CPropertyPage* CPropertySheet::GetPage(int nPage) const {
    return nPage < 0 || nPage >= GetPageCount() ? NULL : static_cast<CPropertyPage*>(m_pages.GetAt(nPage));
}

int CPropertySheet::GetPageIndex(CPropertyPage* pPage) const {
    for (int i = 0; i < GetPageCount(); ++i)
        if (GetPage(i) == pPage)
            return i;
    return -1;
}

int CPropertySheet::GetActiveIndex() const {
    if (!m_hWnd)
        return static_cast<int>(m_psh.nStartPage);
    return GetTabControl() ? GetTabControl()->GetCurSel() : -1;
}

BOOL CPropertySheet::SetActivePage(int nPage) {
    if (nPage < 0 || nPage >= GetPageCount())
        return FALSE;
    if (!m_hWnd) {
        m_psh.nStartPage = static_cast<UINT>(nPage);
        return TRUE;
    }
    return static_cast<BOOL>(SendMessage(PSM_SETCURSEL, nPage));
}

BOOL CPropertySheet::SetActivePage(CPropertyPage* pPage) {
    return SetActivePage(GetPageIndex(pPage));
}

void CPropertySheet::SetTitle(LPCTSTR lpszText, UINT nStyle) {
    m_strCaption = lpszText;
    m_psh.pszCaption = m_strCaption;
    m_psh.dwFlags = m_psh.dwFlags | nStyle;
    if (m_hWnd)
        ::SendMessageA(m_hWnd, PSM_SETTITLEA, nStyle, reinterpret_cast<LPARAM>(lpszText));
}

void CPropertySheet::SetFinishText(LPCTSTR lpszText) {
    SendMessage(PSM_SETFINISHTEXTA, 0, reinterpret_cast<LPARAM>(lpszText));
}
