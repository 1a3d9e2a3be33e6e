// The resize control among the parent's window procedures, and the messages it takes part in.

#include "ResizeCtrl.h"

#include "ResizeArray.h"

namespace {

constexpr char controlProperty[] = "___CResizeCtrl___Class___";
// What a control that is gone leaves on a window where another subclass still calls its procedure: the mark
// in the control's place, and the procedure to pass messages on to.
constexpr char previousProperty[] = "___CResizeCtrl___Previous___";
char goneMark;

bool isOnTop(HWND parent, WNDPROC procedure) {
    return ::GetWindowLongPtrW(parent, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(procedure);
}

// The wide functions, for a narrow subclass turns typed Chinese into question marks. A parent with a narrow
// procedure gets it back as it was.
WNDPROC setProcedure(HWND parent, WNDPROC procedure) {
    return reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(parent, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

CResizeCtrl* controlFrom(HANDLE owner) {
    return owner == &goneMark ? NULL : static_cast<CResizeCtrl*>(owner);
}

// The procedure that a gone control left on the window.
WNDPROC previousLeft(HWND parent) {
    return reinterpret_cast<WNDPROC>(reinterpret_cast<LONG_PTR>(::GetPropA(parent, previousProperty)));
}

} // namespace

CResizeCtrl* orv::resizeControlOf(HWND parent) {
    return controlFrom(::GetPropA(parent, controlProperty));
}

bool orv::isSeenThrough(HWND child, HWND parent, HDC dc) {
    char name[8] = "";
    ::GetClassNameA(child, name, sizeof(name));
    const bool isButton = lstrcmpiA(name, "Button") == 0;
    if ((isButton && (::GetWindowLongPtrW(child, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX) ||
        (::GetWindowLongPtrW(child, GWL_EXSTYLE) & WS_EX_TRANSPARENT) != 0) {
        return true;
    }
    if (!isButton && lstrcmpiA(name, "Static") != 0) {
        return false;
    }
    LOGBRUSH brush = {};
    const int saved = ::SaveDC(dc);
    const LRESULT given = ::SendMessageW(parent, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                                         reinterpret_cast<LPARAM>(child));
    ::RestoreDC(dc, saved);
    return ::GetObjectA(reinterpret_cast<HGDIOBJ>(given), sizeof(brush), &brush) != 0 &&
           brush.lbStyle == BS_NULL;
}

// --- hooking and unhooking

CResizeCtrl::~CResizeCtrl() {
    SetEnabled(FALSE);
    if (!Unhook()) {
        const BOOL left = ::SetPropA(m_hParent, previousProperty,
                                     reinterpret_cast<HANDLE>(reinterpret_cast<LONG_PTR>(m_pfnPrevious)));
        ::SetPropA(m_hParent, controlProperty, left ? &goneMark : NULL);
    }
    delete m_pEntries;
}

BOOL CResizeCtrl::IsHooked() const {
    return m_hParent != NULL && orv::resizeControlOf(m_hParent) == this;
}

// A place among the procedures that a disabled or gone control still keeps is taken over. FALSE: another
// control is enabled there, or the window lets nobody in.
BOOL CResizeCtrl::Hook() {
    if (IsHooked()) {
        return TRUE;
    }
    CResizeCtrl* other = orv::resizeControlOf(m_hParent);
    if (other != NULL && other->m_bEnabled) {
        return FALSE;
    }
    WNDPROC previous = other != NULL ? other->m_pfnPrevious : previousLeft(m_hParent);
    if (!::SetPropA(m_hParent, controlProperty, this)) {
        return FALSE;
    }
    ::RemovePropA(m_hParent, previousProperty);
    if (previous == NULL) {
        previous = setProcedure(m_hParent, ParentProc);
    }
    if (previous == NULL) {
        ::RemovePropA(m_hParent, controlProperty);
        return FALSE;
    }
    m_pfnPrevious = previous;
    return TRUE;
}

// FALSE: another subclass lies above and will go on calling ParentProc.
BOOL CResizeCtrl::Unhook() {
    if (!IsHooked()) {
        return TRUE;
    }
    if (!isOnTop(m_hParent, ParentProc)) {
        return FALSE;
    }
    setProcedure(m_hParent, m_pfnPrevious);
    ::RemovePropA(m_hParent, controlProperty);
    m_pfnPrevious = NULL;
    return TRUE;
}

LRESULT CALLBACK CResizeCtrl::ParentProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    const HANDLE owner = ::GetPropA(hWnd, controlProperty);
    if (owner == NULL) {
        return 0;
    }
    CResizeCtrl* control = controlFrom(owner);
    const WNDPROC previous = control != NULL ? control->m_pfnPrevious : previousLeft(hWnd);
    if (control != NULL && control->m_bEnabled && message != WM_NCDESTROY) {
        LRESULT result = 0;
        if (control->ProcessMessage(message, wParam, lParam, result) || !::IsWindow(hWnd)) {
            return result;
        }
    } else if (isOnTop(hWnd, ParentProc) || message == WM_NCDESTROY) {
        // Nothing to do any more, and safe to go.
        if (isOnTop(hWnd, ParentProc)) {
            setProcedure(hWnd, previous);
        }
        ::RemovePropA(hWnd, controlProperty);
        ::RemovePropA(hWnd, previousProperty);
        if (control != NULL && message == WM_NCDESTROY) {
            control->ForgetParent();
        } else if (control != NULL) {
            control->m_pfnPrevious = NULL;
        }
    }
    return ::CallWindowProcW(previous, hWnd, message, wParam, lParam);
}

// A captioned window gets, or gives back, the sizing border. The client area stays where it is.
void CResizeCtrl::ChangeStyle(BOOL bSizing) {
    const DWORD style = static_cast<DWORD>(::GetWindowLongPtrW(m_hParent, GWL_STYLE));
    const bool hasBorder = (style & WS_THICKFRAME) != 0;
    const bool isCaptioned = (style & (WS_CHILD | WS_CAPTION)) == WS_CAPTION;
    const bool change = bSizing ? isCaptioned && !hasBorder : m_bBorderAdded && hasBorder;
    m_bBorderAdded = bSizing && change;
    if (!change) {
        return;
    }
    const DWORD extended = static_cast<DWORD>(::GetWindowLongPtrW(m_hParent, GWL_EXSTYLE));
    const BOOL menu = ::GetMenu(m_hParent) != NULL;
    CRect before, after, rect;
    ::AdjustWindowRectEx(&before, style, menu, extended);
    ::AdjustWindowRectEx(&after, style ^ WS_THICKFRAME, menu, extended);
    ::GetWindowRect(m_hParent, &rect);
    rect.left += after.left - before.left;
    rect.top += after.top - before.top;
    rect.right += after.right - before.right;
    rect.bottom += after.bottom - before.bottom;
    const bool isPlaced = !::IsIconic(m_hParent) && !::IsZoomed(m_hParent);
    ::SetWindowLongPtrW(m_hParent, GWL_STYLE, static_cast<LONG_PTR>(style ^ WS_THICKFRAME));
    ::SetWindowPos(m_hParent, NULL, rect.left, rect.top, rect.Width(), rect.Height(),
                   SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED |
                       (isPlaced ? 0 : SWP_NOMOVE | SWP_NOSIZE));
}

// --- messages

struct CResizeCtrl::Row {
    UINT message;
    // TRUE: handled, result is the answer. FALSE: the parent's own procedure goes on with it.
    BOOL (CResizeCtrl::*handle)(WPARAM wParam, LPARAM lParam, LRESULT& result);
};

const CResizeCtrl::Row CResizeCtrl::rows[] = {
    {WM_SIZE, &CResizeCtrl::OnSize},           {WM_GETMINMAXINFO, &CResizeCtrl::OnGetMinMaxInfo},
    {WM_NCHITTEST, &CResizeCtrl::OnNcHitTest}, {WM_ERASEBKGND, &CResizeCtrl::OnEraseBkgnd},
    {WM_PAINT, &CResizeCtrl::OnPaint},         {WM_PRINTCLIENT, &CResizeCtrl::OnPrintClient},
};

BOOL CResizeCtrl::ProcessMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    for (const Row& row : rows) {
        if (row.message == message) {
            return (this->*row.handle)(wParam, lParam, result);
        }
    }
    return FALSE;
}

// To the parent's own procedure first. FALSE: that ended or disabled this control.
BOOL CResizeCtrl::PassOn(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    const HWND parent = m_hParent;
    result = ::CallWindowProcW(m_pfnPrevious, parent, message, wParam, lParam);
    return orv::resizeControlOf(parent) == this && m_bEnabled;
}

BOOL CResizeCtrl::OnSize(WPARAM wParam, LPARAM lParam, LRESULT&) {
    // A minimised parent has no size that its children could follow.
    if (wParam == SIZE_RESTORED || wParam == SIZE_MAXIMIZED) {
        if (m_bGrip) {
            PlaceGrip();
        }
        Resize(LOWORD(lParam), HIWORD(lParam));
    }
    return FALSE;
}

BOOL CResizeCtrl::OnGetMinMaxInfo(WPARAM wParam, LPARAM lParam, LRESULT& result) {
    auto* info = reinterpret_cast<MINMAXINFO*>(lParam);
    if (!PassOn(WM_GETMINMAXINFO, wParam, lParam, result) || info == NULL) {
        return TRUE;
    }
    const struct {
        LONG limit;
        LONG& tracking;
    } limits[] = {
        {m_sizeMinimum.cx, info->ptMinTrackSize.x},
        {m_sizeMinimum.cy, info->ptMinTrackSize.y},
        {m_sizeMaximum.cx, info->ptMaxTrackSize.x},
        {m_sizeMaximum.cy, info->ptMaxTrackSize.y},
    };
    for (const auto& [limit, tracking] : limits) {
        if (limit >= 0) {
            tracking = limit;
        }
    }
    return TRUE;
}

BOOL CResizeCtrl::OnNcHitTest(WPARAM, LPARAM lParam, LRESULT& result) {
    POINT point = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    if (!IsGripShown() || !::ScreenToClient(m_hParent, &point) || !m_rcGrip.PtInRect(point)) {
        return FALSE;
    }
    result = HTBOTTOMRIGHT;
    return TRUE;
}

// The parent's background leaves out the children that cover theirs: no child is wiped before it paints.
BOOL CResizeCtrl::OnEraseBkgnd(WPARAM wParam, LPARAM lParam, LRESULT& result) {
    const HDC dc = reinterpret_cast<HDC>(wParam);
    if (::WindowFromDC(dc) != m_hParent) {
        return FALSE; // a picture of the parent, in which the children may not come
    }
    // Each child that moves asks for it: it stays due until all have moved. Only a paint in between, which
    // has taken the update region, is served at once.
    if (m_bResizing && ::GetUpdateRect(m_hParent, NULL, FALSE)) {
        m_bEraseDue = TRUE;
        result = 0;
        return TRUE;
    }
    const HWND parent = m_hParent;
    const int saved = ::SaveDC(dc);
    // The parent is asked for brushes meanwhile: the control may be gone.
    for (size_t i = 0; orv::resizeControlOf(parent) == this && i < m_pEntries->entries.size(); ++i) {
        const HWND child = m_pEntries->entries[i].child;
        if ((::GetWindowLongPtrW(child, GWL_STYLE) & WS_VISIBLE) == 0 ||
            ::GetAncestor(child, GA_PARENT) != parent || orv::isSeenThrough(child, parent, dc)) {
            continue;
        }
        CRect rect;
        ::GetWindowRect(child, &rect);
        ::MapWindowPoints(NULL, parent, reinterpret_cast<POINT*>(&rect), 2);
        ::ExcludeClipRect(dc, rect.left, rect.top, rect.right, rect.bottom);
    }
    if (orv::resizeControlOf(parent) == this) {
        PassOn(WM_ERASEBKGND, wParam, lParam, result);
    }
    ::RestoreDC(dc, saved);
    return TRUE;
}

BOOL CResizeCtrl::OnPaint(WPARAM wParam, LPARAM lParam, LRESULT& result) {
    CRect update;
    const bool isGripHit =
        IsGripShown() && ::GetUpdateRect(m_hParent, &update, FALSE) && !(update & m_rcGrip).IsRectEmpty();
    if (PassOn(WM_PAINT, wParam, lParam, result) && isGripHit) {
        const HDC dc = ::GetDCEx(m_hParent, NULL, DCX_CACHE | DCX_CLIPCHILDREN | DCX_CLIPSIBLINGS);
        DrawGrip(dc);
        ::ReleaseDC(m_hParent, dc);
    }
    return TRUE;
}

BOOL CResizeCtrl::OnPrintClient(WPARAM wParam, LPARAM lParam, LRESULT& result) {
    if (PassOn(WM_PRINTCLIENT, wParam, lParam, result) && IsGripShown()) {
        DrawGrip(reinterpret_cast<HDC>(wParam));
    }
    return TRUE;
}

// --- the grip

int CResizeCtrl::SetGripEnabled(BOOL bEnable) {
    m_bGrip = bEnable;
    if (HasParent()) {
        PlaceGrip();
    }
    return 0;
}

// Into the parent's corner; where it was and where it is are painted again.
void CResizeCtrl::PlaceGrip() {
    ::InvalidateRect(m_hParent, &m_rcGrip, TRUE);
    ::GetClientRect(m_hParent, &m_rcGrip);
    m_rcGrip.left = m_rcGrip.right - ::GetSystemMetrics(SM_CXVSCROLL);
    m_rcGrip.top = m_rcGrip.bottom - ::GetSystemMetrics(SM_CYHSCROLL);
    ::InvalidateRect(m_hParent, &m_rcGrip, TRUE);
}

BOOL CResizeCtrl::IsGripShown() const {
    return m_bGrip && !::IsZoomed(m_hParent);
}

void CResizeCtrl::DrawGrip(HDC hDC) const {
    CRect rect(m_rcGrip);
    ::DrawFrameControl(hDC, &rect, DFC_SCROLL, DFCS_SCROLLSIZEGRIP);
}
