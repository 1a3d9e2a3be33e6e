// The outlook bar's window: creation, flags, what it tells the outside.

#include "GfxOutBarCtrl.h"

#include "OutBarFolders.h"

#include <algorithm>
#include <iterator>

IMPLEMENT_DYNCREATE(CGfxOutBarCtrl, CWnd)

BEGIN_MESSAGE_MAP(CGfxOutBarCtrl, CWnd)
ON_WM_CREATE()
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_DESTROY()
ON_WM_ENABLE()
ON_WM_PARENTNOTIFY()
ON_WM_CTLCOLOR()
ON_WM_SYSCOLORCHANGE()
ON_WM_MOUSEMOVE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_CAPTURECHANGED()
ON_WM_MOUSEWHEEL()
ON_WM_TIMER()
ON_WM_SETCURSOR()
ON_WM_CONTEXTMENU()
ON_WM_KEYDOWN()
ON_WM_GETDLGCODE()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_MESSAGE(WM_PRINTCLIENT, &CGfxOutBarCtrl::OnPrintClient)
ON_MESSAGE(WM_GFX_END_LABEL_EDIT, &CGfxOutBarCtrl::OnEndLabelEdit)
END_MESSAGE_MAP()

namespace {

constexpr UINT noDragCursor = 22001, dragCursor = 22002, handCursor = 22003;

HCURSOR loadCursor(UINT nID) {
    LPCTSTR name = MAKEINTRESOURCE(nID);
    return ::LoadCursor(AfxFindResourceHandle(name, RT_GROUP_CURSOR), name);
}

const struct {
    COLORREF CGfxOutBarCtrl::*field;
    int index; // of the system's colours
} systemColors[] = {
    {&CGfxOutBarCtrl::m_crBackground, COLOR_BACKGROUND}, {&CGfxOutBarCtrl::m_crBackground2, COLOR_BACKGROUND},
    {&CGfxOutBarCtrl::m_crWindow, COLOR_WINDOW},         {&CGfxOutBarCtrl::m_crWindow2, COLOR_WINDOW},
    {&CGfxOutBarCtrl::m_cr3dFace, COLOR_3DFACE},         {&CGfxOutBarCtrl::m_cr3dLight, COLOR_3DLIGHT},
    {&CGfxOutBarCtrl::m_crHilight, COLOR_3DHILIGHT},     {&CGfxOutBarCtrl::m_crShadow, COLOR_3DSHADOW},
    {&CGfxOutBarCtrl::m_crDkShadow, COLOR_3DDKSHADOW}};

} // namespace

void OUTBAR_INFO::Dump(CDumpContext& dc) const {
    dc << "OUTBAR_INFO strText = " << strText << ", nImage = " << nImage
       << ", child = " << static_cast<const void*>(pChild->GetSafeHwnd()) << "\n";
}

CGfxOutBarCtrl::CGfxOutBarCtrl()
    : m_rcUpArrow(0, 0, 0, 0), m_rcDownArrow(0, 0, 0, 0), m_hHandCursor(loadCursor(handCursor)),
      m_hDragCursor(loadCursor(dragCursor)), m_hNoDragCursor(loadCursor(noDragCursor)),
      m_pFolders(new orv::OutBarFolders) {
    static_assert(sizeof m_crTaken == std::size(systemColors) * sizeof(COLORREF));
    TakeSystemColors(true);
}

CGfxOutBarCtrl::~CGfxOutBarCtrl() {
    DestroyWindow();
    delete m_pFolders;
}

BOOL CGfxOutBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID, DWORD dwFlags) {
    m_dwFlags = dwFlags;
    return CWnd::Create(NULL, NULL, dwStyle, rect, pParentWnd, nID);
}

BOOL CGfxOutBarCtrl::PreCreateWindow(CREATESTRUCT& cs) {
    // Without CS_DBLCLKS a quick second press is a press. No background: nothing is erased.
    cs.lpszClass = AfxRegisterWndClass(0, ::LoadCursor(NULL, IDC_ARROW));
    cs.style |= WS_TABSTOP | WS_CLIPCHILDREN;
    return CWnd::PreCreateWindow(cs);
}

void CGfxOutBarCtrl::ModifyFlag(const DWORD& dwRemove, const DWORD& dwAdd, UINT redraw) {
    m_dwFlags = (m_dwFlags & ~dwRemove) | dwAdd;
    if (!m_hWnd)
        return;
    Arrange();
    if (redraw == 0)
        Invalidate(FALSE);
    else
        SetWindowPos(NULL, 0, 0, 0, 0, redraw | SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER);
}

void CGfxOutBarCtrl::SetSmallIconView(bool bSmall) {
    ModifyFlag(OUTBAR_SMALL_ICONS, bSmall ? OUTBAR_SMALL_ICONS : 0);
}

void CGfxOutBarCtrl::SetAnimSelHighlight(bool bHighlight) {
    ModifyFlag(OUTBAR_HILIGHT_ITEM, bHighlight ? OUTBAR_HILIGHT_ITEM : 0);
}

int CGfxOutBarCtrl::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    // Folders that came before the window.
    for (int i = 0; i < GetFolderCount(); ++i)
        AdoptChild(i);
    LayoutChanged();
    return 0;
}

void CGfxOutBarCtrl::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    LayoutChanged();
}

void CGfxOutBarCtrl::OnDestroy() {
    m_hEdit = NULL; // goes down with this window, and its text with it
    LetGo();
    // Folders' windows go down too: their handles may be others' when this object has a window again.
    for (int i = 0; i < GetFolderCount(); ++i)
        if (ChildOf(i))
            m_pFolders->folder(i)->child = NULL;
    m_bAnimating = false;
    SetDragMark(-1);
    ClearHover();
    CWnd::OnDestroy();
}

// Whatever the mouse holds, an item or an arrow.
void CGfxOutBarCtrl::LetGo() const {
    if ((m_bTracking || m_nArrowHeld != 0) && ::GetCapture() == m_hWnd)
        ::ReleaseCapture();
}

void CGfxOutBarCtrl::OnEnable(BOOL bEnable) {
    CWnd::OnEnable(bEnable);
    if (!bEnable) {
        EndRename(true);
        LetGo();
        ClearHover();
    }
    Invalidate(FALSE);
}

// All of them, or those that are still as they were taken: the others are the host's.
void CGfxOutBarCtrl::TakeSystemColors(bool bAll) {
    COLORREF* pTaken = m_crTaken;
    for (const auto& row : systemColors) {
        const COLORREF color = ::GetSysColor(row.index);
        if (bAll || this->*row.field == *pTaken)
            this->*row.field = color;
        *pTaken++ = color;
    }
}

void CGfxOutBarCtrl::OnSysColorChange() {
    CWnd::OnSysColorChange();
    TakeSystemColors(false);
    Invalidate(FALSE);
}

void CGfxOutBarCtrl::AssertValid() const {
    CWnd::AssertValid();
    ASSERT(m_nSelFolder >= -1 && m_nSelFolder < GetFolderCount());
    ASSERT(m_nFirstItem >= 0 && (m_nFirstItem == 0 || m_nFirstItem < GetItemCount()));
    ASSERT(m_nSelItem >= -1 && m_nSelItem < GetItemCount());
    ASSERT(m_nCurrentItem >= -1 && m_nCurrentItem < GetItemCount());
}

void CGfxOutBarCtrl::Dump(CDumpContext& dc) const {
    CWnd::Dump(dc);
    dc << "flags = " << m_dwFlags << ", open folder = " << m_nSelFolder << ", first item = " << m_nFirstItem
       << ", selected item = " << m_nSelItem << "\n";
    for (const auto& folder : m_pFolders->rows) {
        dc << "folder " << folder->name << ", child = " << static_cast<const void*>(folder->child) << "\n";
        for (const auto& item : folder->items)
            dc << "  item " << item->text << ", image = " << item->image << "\n";
    }
}
