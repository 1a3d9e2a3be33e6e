// Common controls, image lists, the rich edit control.

#include "threadstate.h"

#include "afxcmn.h"

using orvafx::threadState;

IMPLEMENT_DYNCREATE(CImageList, CObject)
IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)
IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)
IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)
IMPLEMENT_DYNAMIC(CRichEditCtrl, CWnd)

BEGIN_MESSAGE_MAP(CRichEditCtrl, CWnd)
ON_WM_CHAR()
END_MESSAGE_MAP()

CToolTipCtrl::~CToolTipCtrl() = default;
CProgressCtrl::~CProgressCtrl() = default;
CTabCtrl::~CTabCtrl() = default;
CRichEditCtrl::~CRichEditCtrl() = default;

// --- image lists

CImageList::~CImageList() {
    DeleteImageList();
}

HIMAGELIST CImageList::GetSafeHandle() const {
    const CImageList* const volatile self = this;
    return self ? self->m_hImageList : NULL;
}

CImageList* PASCAL CImageList::FromHandlePermanent(HIMAGELIST hImageList) {
    return static_cast<CImageList*>(threadState().imageLists.permanent(hImageList));
}

CImageList* PASCAL CImageList::FromHandle(HIMAGELIST hImageList) {
    return threadState().imageLists.objectOf<CImageList>(hImageList, [=] {
        auto* list = new CImageList;
        list->m_hImageList = hImageList;
        return list;
    });
}

void PASCAL CImageList::DeleteTempMap() {
    threadState().imageLists.deleteTemporary();
}

BOOL CImageList::Attach(HIMAGELIST hImageList) {
    ASSERT(m_hImageList == NULL);
    if (!hImageList)
        return FALSE;
    DeleteImageList();
    m_hImageList = hImageList;
    threadState().imageLists.setPermanent(hImageList, this);
    return TRUE;
}

HIMAGELIST CImageList::Detach() {
    const HIMAGELIST handle = m_hImageList;
    orvafx::leaveHandle(&orvafx::ThreadState::imageLists, handle, this);
    m_hImageList = NULL;
    return handle;
}

BOOL CImageList::Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow) {
    return Attach(::ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
}

BOOL CImageList::Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask) {
    LPCTSTR name = MAKEINTRESOURCEA(nBitmapID);
    return Attach(::ImageList_LoadImageA(AfxFindResourceHandle(name, RT_BITMAP), name, cx, nGrow, crMask,
                                         IMAGE_BITMAP, LR_CREATEDIBSECTION));
}

BOOL CImageList::DeleteImageList() {
    const HIMAGELIST handle = Detach();
    return handle && ::ImageList_Destroy(handle);
}

int CImageList::Add(CBitmap* pbmImage, CBitmap* pbmMask) {
    return ::ImageList_Add(m_hImageList, static_cast<HBITMAP>(pbmImage->GetSafeHandle()),
                           static_cast<HBITMAP>(pbmMask->GetSafeHandle()));
}

int CImageList::Add(CBitmap* pbmImage, COLORREF crMask) {
    return ::ImageList_AddMasked(m_hImageList, static_cast<HBITMAP>(pbmImage->GetSafeHandle()), crMask);
}

BOOL CImageList::Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle) {
    return ::ImageList_Draw(m_hImageList, nImage, pDC->GetSafeHdc(), pt.x, pt.y, nStyle);
}

BOOL PASCAL CImageList::DragEnter(CWnd* pWndLock, CPoint point) {
    return ::ImageList_DragEnter(pWndLock->GetSafeHwnd(), point.x, point.y);
}

BOOL PASCAL CImageList::DragLeave(CWnd* pWndLock) {
    return ::ImageList_DragLeave(pWndLock->GetSafeHwnd());
}

// --- tool tips

namespace {

// Without a rectangle the tool is the window itself, known to the tip under its parent.
TOOLINFOA toolOf(CWnd* window, UINT_PTR id) {
    TOOLINFOA tool = {};
    tool.cbSize = TTTOOLINFOA_V1_SIZE;
    if (id == 0) {
        tool.hwnd = ::GetParent(window->GetSafeHwnd());
        tool.uFlags = TTF_IDISHWND;
        tool.uId = reinterpret_cast<UINT_PTR>(window->GetSafeHwnd());
    } else {
        tool.hwnd = window->GetSafeHwnd();
        tool.uId = id;
    }
    return tool;
}

LPARAM in(TOOLINFOA& tool) {
    return reinterpret_cast<LPARAM>(&tool);
}

} // namespace

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle) {
    return CreateEx(WS_EX_TOPMOST, TOOLTIPS_CLASSA, NULL, WS_POPUP | dwStyle, CW_USEDEFAULT, CW_USEDEFAULT,
                    CW_USEDEFAULT, CW_USEDEFAULT, pParentWnd->GetSafeHwnd(), NULL);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool) {
    ASSERT((lpRectTool == NULL) == (nIDTool == 0));
    TOOLINFOA tool = toolOf(pWnd, nIDTool);
    if (lpRectTool)
        tool.rect = *lpRectTool;
    tool.lpszText = const_cast<LPSTR>(lpszText);
    return static_cast<BOOL>(SendMessage(TTM_ADDTOOLA, 0, in(tool)));
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool, UINT_PTR nIDTool) {
    CString text;
    return text.LoadString(nIDText) && AddTool(pWnd, text, lpRectTool, nIDTool);
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFOA tool = toolOf(pWnd, nIDTool);
    SendMessage(TTM_DELTOOLA, 0, in(tool));
}

void CToolTipCtrl::GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool) const {
    // The message has no room for the buffer's size before version 6: the text of a tip is short.
    char text[1024] = "";
    TOOLINFOA tool = toolOf(pWnd, nIDTool);
    tool.lpszText = text;
    SendMessage(TTM_GETTEXTA, sizeof text, in(tool));
    str = text;
}

void CToolTipCtrl::UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFOA tool = toolOf(pWnd, nIDTool);
    tool.lpszText = const_cast<LPSTR>(lpszText);
    SendMessage(TTM_UPDATETIPTEXTA, 0, in(tool));
}

void CToolTipCtrl::SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect) {
    TOOLINFOA tool = toolOf(pWnd, nIDTool);
    tool.rect = *lpRect;
    SendMessage(TTM_NEWTOOLRECTA, 0, in(tool));
}

// --- progress, tabs

BOOL CProgressCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(PROGRESS_CLASSA, NULL, dwStyle, rect, pParentWnd, nID);
}

BOOL CTabCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_TABCONTROLA, NULL, dwStyle, rect, pParentWnd, nID);
}

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem) {
    TCITEMA item = {};
    item.mask = TCIF_TEXT;
    item.pszText = const_cast<LPSTR>(lpszItem);
    return static_cast<LONG>(SendMessage(TCM_INSERTITEMA, nItem, reinterpret_cast<LPARAM>(&item)));
}

// --- rich edit

BOOL AFXAPI AfxInitRichEdit2() {
    return ::GetModuleHandleA("riched20.dll") != NULL || ::LoadLibraryA("riched20.dll") != NULL;
}

BOOL CRichEditCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return AfxInitRichEdit2() && CWnd::Create("RichEdit20A", NULL, dwStyle, rect, pParentWnd, nID);
}

void CRichEditCtrl::GetSel(long& nStartChar, long& nEndChar) const {
    CHARRANGE range = {};
    SendMessage(EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&range));
    nStartChar = range.cpMin;
    nEndChar = range.cpMax;
}

void CRichEditCtrl::SetSel(long nStartChar, long nEndChar) {
    CHARRANGE range = {nStartChar, nEndChar};
    SendMessage(EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
}

CString CRichEditCtrl::GetSelText() const {
    long start, end;
    GetSel(start, end);
    CString text;
    if (end <= start)
        return text;
    // At most two bytes a character.
    SendMessage(EM_GETSELTEXT, 0,
                reinterpret_cast<LPARAM>(text.GetBuffer(static_cast<int>(end - start) * 2 + 1)));
    text.ReleaseBuffer();
    return text;
}

void CRichEditCtrl::OnChar(UINT nChar, UINT, UINT) {
    if (::IsWindowUnicode(m_hWnd) || (GetStyle() & ES_READONLY)) {
        Default();
        return;
    }
    if (m_chLead) {
        const char character[] = {static_cast<char>(m_chLead), static_cast<char>(nChar), '\0'};
        m_chLead = 0;
        ReplaceSel(character, TRUE);
    } else if (nChar <= 0xFF && ::IsDBCSLeadByte(static_cast<BYTE>(nChar))) {
        m_chLead = static_cast<BYTE>(nChar);
    } else {
        Default();
    }
}

void CRichEditCtrl::ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo) {
    SendMessage(EM_REPLACESEL, bCanUndo, reinterpret_cast<LPARAM>(lpszNewText));
}

DWORD CRichEditCtrl::GetFormat(WPARAM nWhat, CHARFORMAT& cf) const {
    cf.cbSize = sizeof cf;
    return static_cast<DWORD>(SendMessage(EM_GETCHARFORMAT, nWhat, reinterpret_cast<LPARAM>(&cf)));
}

BOOL CRichEditCtrl::SetFormat(WPARAM nWhat, CHARFORMAT& cf) {
    cf.cbSize = sizeof cf;
    return static_cast<BOOL>(SendMessage(EM_SETCHARFORMAT, nWhat, reinterpret_cast<LPARAM>(&cf)));
}

DWORD CRichEditCtrl::GetParaFormat(PARAFORMAT& pf) const {
    pf.cbSize = sizeof pf;
    return static_cast<DWORD>(SendMessage(EM_GETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&pf)));
}

BOOL CRichEditCtrl::SetParaFormat(PARAFORMAT& pf) {
    pf.cbSize = sizeof pf;
    return static_cast<BOOL>(SendMessage(EM_SETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&pf)));
}
