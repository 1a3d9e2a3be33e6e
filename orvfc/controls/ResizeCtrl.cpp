#include "ResizeCtrl.h"

#include "ResizeArray.h"

#include <algorithm>
#include <new>

using orv::ResizeFour;

namespace {

constexpr int defaultParts = 100;
const CSize noLimit(-1, -1);

// From the top of a drop-down combo's field to the bottom of its list. 0 for other windows, which do not know
// the message.
int dropDownHeight(HWND window) {
    CRect list, field;
    // What it answers is not the same on all systems; that it fills in the rectangle is.
    ::SendMessageW(window, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&list));
    if (list.IsRectEmpty() ||
        (::GetWindowLongPtrW(window, GWL_STYLE) & (CBS_SIMPLE | CBS_DROPDOWN)) == CBS_SIMPLE) {
        return 0;
    }
    ::GetWindowRect(window, &field);
    return list.bottom - field.top;
}

// A drop-down combo takes the height it is given as that of field and list together, while the rectangle it
// tells leaves the field out on some systems. How much more it has to be given for its list to stay as high
// as it is; nothing of it is seen.
int dropDownSurplus(HWND combo) {
    CRect field;
    ::GetWindowRect(combo, &field);
    const int told = dropDownHeight(combo);
    constexpr UINT flags = SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW;
    ::SetWindowPos(combo, NULL, 0, 0, field.Width(), told, flags);
    const int surplus = told - dropDownHeight(combo);
    if (surplus != 0) {
        ::SetWindowPos(combo, NULL, 0, 0, field.Width(), told + surplus, flags);
    }
    return surplus;
}

// How a child takes its new place. A text aligned to the side that moves would be painted in the new part
// only, beside the copy of its old picture.
UINT flagsOf(const CResizeArray::Move& move) {
    char name[8] = "";
    const bool sized = move.before.Size() != CSize(move.box.width, move.box.height);
    if (sized) {
        ::GetClassNameA(move.child, name, sizeof(name));
    }
    return SWP_NOZORDER | (lstrcmpiA(name, "Static") == 0 ? SWP_NOCOPYBITS : 0);
}

} // namespace

CResizeCtrl::CResizeCtrl()
    : m_hParent(NULL), m_pEntries(NULL), m_sizeMinimum(noLimit), m_sizeMaximum(noLimit) {
    ForgetParent();
}

CResizeCtrl::CResizeCtrl(HWND hParent, int enable, int parts) : CResizeCtrl() {
    Create(hParent, enable, parts);
}

CResizeCtrl::CResizeCtrl(CWnd* pParent, int enable, int parts) : CResizeCtrl() {
    Create(pParent, enable, parts);
}

int CResizeCtrl::Create(HWND hParent, int enable, int parts) {
    if (HasParent() || !::IsWindow(hParent) || parts < 1) {
        return 0;
    }
    m_pEntries = new (std::nothrow) CResizeArray;
    if (m_pEntries == NULL) {
        return 0;
    }
    m_hParent = hParent;
    m_nParts = parts;
    m_bGrip = FALSE;
    if (enable && !SetEnabled(TRUE)) {
        ForgetParent();
        return 0;
    }
    return 1;
}

int CResizeCtrl::Create(CWnd* pParent, int enable, int parts) {
    return Create(pParent->GetSafeHwnd(), enable, parts);
}

// As newly made. The parent is left as it is.
void CResizeCtrl::ForgetParent() {
    delete m_pEntries;
    m_pEntries = NULL;
    m_hParent = NULL;
    m_nParts = defaultParts;
    m_sizeLast = CSize(-1, -1);
    m_bResizing = FALSE;
    m_bEraseDue = FALSE;
    m_bEnabled = FALSE;
    m_bGrip = FALSE;
    m_rcGrip.SetRectEmpty();
    m_pfnPrevious = NULL;
    m_bBorderAdded = FALSE;
}

// A parent whose end was kept from this control, by a subclass that passed its last message by, is noticed
// here.
BOOL CResizeCtrl::HasParent() {
    if (m_hParent != NULL && !::IsWindow(m_hParent)) {
        ForgetParent();
    }
    return m_hParent != NULL;
}

int CResizeCtrl::SetEnabled(BOOL bEnable) {
    if (!HasParent()) {
        return 0;
    }
    if (!bEnable == !m_bEnabled) {
        return 1;
    }
    if (!bEnable) {
        ChangeStyle(FALSE);
        m_bEnabled = FALSE;
        PlaceGrip();
        Unhook();
        return 1;
    }
    if (!Hook()) {
        return 0;
    }
    m_bEnabled = TRUE;
    CRect client;
    ::GetClientRect(m_hParent, &client);
    m_sizeLast = ::IsIconic(m_hParent) ? CSize(-1, -1) : client.Size();
    PlaceGrip();
    ChangeStyle(TRUE);
    return 1;
}

// --- the children

int CResizeCtrl::Add(HWND hWnd, int left, int top, int width, int height) {
    const ResizeFour shares = {left, top, width, height};
    if (!HasParent() || !::IsWindow(hWnd) || !orv::areShares(shares, m_nParts)) {
        return 0;
    }
    const bool dropDown = dropDownHeight(hWnd) != 0;
    const CResizeArray::Entry entry = {hWnd, {}, shares, dropDown, dropDown ? dropDownSurplus(hWnd) : 0};
    auto& entries = m_pEntries->entries;
    const auto known = std::ranges::find(entries, hWnd, &CResizeArray::Entry::child);
    if (known != entries.end()) {
        *known = entry;
        return 1;
    }
    try {
        entries.push_back(entry);
        m_pEntries->moves.reserve(entries.capacity());
    } catch (const std::bad_alloc&) {
        Remove(hWnd);
        return 0;
    }
    return 1;
}

int CResizeCtrl::Add(CWnd* pWnd, int left, int top, int width, int height) {
    return Add(pWnd->GetSafeHwnd(), left, top, width, height);
}

int CResizeCtrl::Add(int nID, int left, int top, int width, int height) {
    return HasParent() ? Add(::GetDlgItem(m_hParent, nID), left, top, width, height) : 0;
}

int CResizeCtrl::Add(const CResizeInfo* pInfo) {
    return pInfo != NULL ? Add(pInfo->hWnd, pInfo->left, pInfo->top, pInfo->width, pInfo->height) : 0;
}

int CResizeCtrl::Remove(HWND hWnd) {
    return HasParent() && std::erase_if(m_pEntries->entries, [hWnd](const CResizeArray::Entry& entry) {
                              return entry.child == hWnd;
                          }) != 0;
}

int CResizeCtrl::Remove(CWnd* pWnd) {
    return Remove(pWnd->GetSafeHwnd());
}

int CResizeCtrl::Remove(int nID) {
    return HasParent() ? Remove(::GetDlgItem(m_hParent, nID)) : 0;
}

// --- one size step

void CResizeCtrl::Resize(int cx, int cy) {
    if (m_bResizing) {
        return;
    }
    const bool first = m_sizeLast.cx < 0;
    const int dx = cx - m_sizeLast.cx, dy = cy - m_sizeLast.cy;
    if (!first && dx == 0 && dy == 0) {
        return;
    }
    m_sizeLast = CSize(cx, cy);
    if (first) {
        return;
    }
    m_bResizing = TRUE;
    PlanMoves(dx, dy);
    const HWND parent = m_hParent;
    MoveChildren();
    EraseWhatIsDue(parent);
    RepaintSeenThrough(parent);
    // The children were told, and so was who owns them: the control may be gone.
    if (orv::resizeControlOf(parent) == this) {
        m_bResizing = FALSE;
    }
}

void CResizeCtrl::PlanMoves(int dx, int dy) {
    auto& [entries, moves] = *m_pEntries;
    moves.clear();
    std::erase_if(entries, [](const CResizeArray::Entry& entry) { return !::IsWindow(entry.child); });
    for (auto& entry : entries) {
        // A batch takes children of one window only.
        if (::GetAncestor(entry.child, GA_PARENT) != m_hParent) {
            continue;
        }
        CRect rect;
        ::GetWindowRect(entry.child, &rect);
        ::MapWindowPoints(NULL, m_hParent, reinterpret_cast<POINT*>(&rect), 2);
        ResizeFour box = {rect.left, rect.top, rect.Width(), rect.Height()};
        ResizeFour shares = entry.shares;
        if (entry.dropDown) {
            shares.height = 0;
            box.height = dropDownHeight(entry.child) + entry.dropDownSurplus;
        }
        if (orv::moveByShares(dx, dy, shares, m_nParts, entry.remainders, box)) {
            moves.push_back({entry.child, box, rect});
        }
    }
}

void CResizeCtrl::MoveChildren() {
    const auto& moves = m_pEntries->moves;
    const HWND parent = m_hParent;
    HDWP batch = ::BeginDeferWindowPos(static_cast<int>(moves.size()));
    for (size_t i = 0; batch != NULL && i < moves.size(); ++i) {
        const ResizeFour& box = moves[i].box;
        batch = ::DeferWindowPos(batch, moves[i].child, NULL, box.left, box.top, box.width, box.height,
                                 flagsOf(moves[i]));
    }
    if (batch != NULL && ::EndDeferWindowPos(batch)) {
        return;
    }
    // No batch, or a window that went in the midst of it: one by one, as long as there are any.
    for (size_t i = 0; orv::resizeControlOf(parent) == this && i < moves.size(); ++i) {
        const CResizeArray::Move move = moves[i];
        ::SetWindowPos(move.child, NULL, move.box.left, move.box.top, move.box.width, move.box.height,
                       flagsOf(move));
    }
}

// The children keep what they show.
void CResizeCtrl::EraseWhatIsDue(HWND parent) {
    if (orv::resizeControlOf(parent) != this || !m_bEraseDue) {
        return;
    }
    m_bEraseDue = FALSE;
    CRgn left;
    left.CreateRectRgn(0, 0, 0, 0);
    ::GetUpdateRgn(parent, left, FALSE);
    ::RedrawWindow(parent, NULL, left, RDW_INVALIDATE | RDW_ERASE | RDW_NOCHILDREN);
}

// What the parent is seen through does not wipe its old picture.
void CResizeCtrl::RepaintSeenThrough(HWND parent) {
    if (!::IsWindowVisible(parent)) {
        return;
    }
    const HDC dc = ::GetDC(parent);
    for (size_t i = 0; orv::resizeControlOf(parent) == this && i < m_pEntries->moves.size(); ++i) {
        const CResizeArray::Move move = m_pEntries->moves[i];
        if (orv::isSeenThrough(move.child, parent, dc)) {
            const CRect after(CPoint(move.box.left, move.box.top), CSize(move.box.width, move.box.height));
            ::InvalidateRect(parent, CRect(move.before | after), TRUE);
        }
    }
    ::ReleaseDC(parent, dc);
}

// --- the parent's size

void CResizeCtrl::SetMinimumTrackingSize() {
    WINDOWPLACEMENT placement = {};
    placement.length = sizeof(placement);
    CRect rect;
    if (!GetWindowRect(&rect)) {
        return;
    }
    if (::IsIconic(m_hParent) && ::GetWindowPlacement(m_hParent, &placement)) {
        rect = placement.rcNormalPosition;
    }
    m_sizeMinimum = rect.Size();
}

int CResizeCtrl::GetWindowRect(RECT* pRect) const {
    return m_hParent != NULL && pRect != NULL && ::GetWindowRect(m_hParent, pRect);
}

void CResizeCtrl::Dump(CDumpContext& dc) const {
    dc << "CResizeCtrl parent = " << static_cast<const void*>(m_hParent) << ", parts = " << m_nParts
       << ", last client size = " << m_sizeLast << "\n  enabled = " << m_bEnabled
       << ", hooked = " << IsHooked() << ", grip = " << m_bGrip << ", resizing = " << m_bResizing
       << "\n  minimum = " << m_sizeMinimum << ", maximum = " << m_sizeMaximum << "\n";
    if (m_pEntries == NULL) {
        return;
    }
    for (const auto& [child, remainders, shares, dropDown, surplus] : m_pEntries->entries) {
        dc << "  child " << static_cast<const void*>(child) << ": left " << shares.left << " (remainder "
           << remainders.left << "), top " << shares.top << " (" << remainders.top << "), width "
           << shares.width << " (" << remainders.width << "), height " << shares.height << " ("
           << remainders.height << ")" << (dropDown ? ", drop-down combo" : "") << "\n";
    }
}
