// Hover, presses, scroll arrows and the wheel of the outlook bar.

#include "GfxOutBarCtrl.h"

#include "OutBarFolders.h"
#include "OutBarLayout.h"

#include <orvfc/ORVFC.h>

#include <algorithm>

using orv::OutBarHit;

namespace {

constexpr UINT_PTR hoverTimer = 1, arrowTimer = 2;
constexpr UINT hoverPause = 100;                  // milliseconds
constexpr UINT arrowDelay = 400, arrowPause = 80; // before the first repetition, between the others

} // namespace

// Whether the window is still there with this object: handlers of the host may end both.
bool CGfxOutBarCtrl::IsAlive(HWND hWnd) const {
    return CWnd::FromHandlePermanent(hWnd) == this;
}

// --- hover

void CGfxOutBarCtrl::OnMouseMove(UINT nFlags, CPoint point) {
    CWnd::OnMouseMove(nFlags, point);
    if (!IsWindowEnabled())
        return;
    if (!(nFlags & MK_LBUTTON))
        LetGo(); // the button was let go where nobody told
    if (m_nArrowHeld == 0) {
        Hover(point);
        return;
    }
    // Off the arrow it is let go, as long as the button is held.
    bool& bPressed = m_nArrowHeld < 0 ? m_bUpPressed : m_bDownPressed;
    const CRect& rect = m_nArrowHeld < 0 ? m_rcUpArrow : m_rcDownArrow;
    const bool bOver = rect.PtInRect(point);
    if (bPressed != bOver) {
        bPressed = bOver;
        InvalidateRect(rect, FALSE);
    }
}

void CGfxOutBarCtrl::Hover(const CPoint& point) {
    SetTimer(hoverTimer, hoverPause, NULL);
    int nIndex;
    const OutBarHit hit = Hit(point, nIndex);
    HighlightFolder(hit == OutBarHit::folder ? nIndex : -1);
    HighlightItem(hit == OutBarHit::item ? nIndex : -1, false);
}

void CGfxOutBarCtrl::ClearHover() {
    KillTimer(hoverTimer);
    HighlightFolder(-1);
    HighlightItem(-1, false);
}

void CGfxOutBarCtrl::OnTimer(UINT_PTR nIDEvent) {
    if (nIDEvent == arrowTimer) {
        RepeatArrow();
        return;
    }
    if (nIDEvent != hoverTimer) {
        CWnd::OnTimer(nIDEvent);
        return;
    }
    CPoint point(static_cast<LPARAM>(::GetMessagePos()));
    const bool bOver = ::WindowFromPoint(point) == m_hWnd;
    ScreenToClient(&point);
    CRect rect;
    GetClientRect(rect);
    if (!bOver || !rect.PtInRect(point))
        ClearHover();
    else if (!m_bTracking && m_nArrowHeld == 0)
        Hover(point); // what lies under the resting mouse may have moved
}

BOOL CGfxOutBarCtrl::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) {
    CPoint point;
    // The message comes before its mouse message is taken: GetMessagePos would still tell the one before.
    if (nHitTest == HTCLIENT && pWnd->GetSafeHwnd() == m_hWnd && ::GetCursorPos(&point)) {
        ScreenToClient(&point);
        int nIndex;
        const OutBarHit hit = Hit(point, nIndex);
        if (hit == OutBarHit::folder || hit == OutBarHit::item) {
            ::SetCursor(m_hHandCursor);
            return TRUE;
        }
    }
    return CWnd::OnSetCursor(pWnd, nHitTest, message);
}

// --- presses

void CGfxOutBarCtrl::OnLButtonDown(UINT, CPoint point) {
    if (m_bTracking || !IsWindowEnabled())
        return;
    const HWND hWnd = m_hWnd;
    EndRename(true);
    MarkCurrentRow(false);
    SetFocus();
    if (!IsAlive(hWnd) || PressArrow(point))
        return;
    int nIndex;
    const OutBarHit hit = Hit(point, nIndex);
    if (hit == OutBarHit::folder) {
        SetCurrentRow({nIndex, -1});
        SetSelFolder(nIndex);
    } else if (hit == OutBarHit::item) {
        TrackItem(nIndex, point);
    }
}

void CGfxOutBarCtrl::OnLButtonUp(UINT nFlags, CPoint point) {
    if (m_nArrowHeld != 0)
        ::ReleaseCapture();
    CWnd::OnLButtonUp(nFlags, point);
}

void CGfxOutBarCtrl::OnCaptureChanged(CWnd* pWnd) {
    m_bTracking = false;
    ReleaseArrow();
    CWnd::OnCaptureChanged(pWnd);
}

void CGfxOutBarCtrl::SelectItem(int nItem) {
    InvalidateItem(m_nSelItem);
    InvalidateItem(nItem);
    m_nSelItem = nItem;
    SetCurrentRow({m_nSelFolder, nItem});
}

void CGfxOutBarCtrl::ClickItem(int nItem) {
    SelectItem(nItem);
    // The last thing done here: the window may end in it.
    if (const HWND hNotify = NotifiedWindow())
        ::SendMessage(hNotify, WM_GFX_OUTBAR_LBUTTON_DOWN, 0, 0);
}

void CGfxOutBarCtrl::SetNotifyWnd(CWnd* pNotifyWnd) {
    m_pNotifyWnd = pNotifyWnd;
    m_hNotifyWnd = pNotifyWnd->GetSafeHwnd();
}

HWND CGfxOutBarCtrl::NotifiedWindow() const {
    if (!m_pNotifyWnd)
        return NULL;
    // Set before it had a window, it is the host's own object.
    const HWND hWnd = m_hNotifyWnd ? m_hNotifyWnd : m_pNotifyWnd->m_hWnd;
    return ::IsWindow(hWnd) ? hWnd : NULL;
}

// --- scrolling

bool CGfxOutBarCtrl::PressArrow(const CPoint& point) {
    int nIndex;
    const OutBarHit hit = Hit(point, nIndex);
    const bool bUp = hit == OutBarHit::upArrow;
    if (!bUp && hit != OutBarHit::downArrow)
        return false;
    SetCapture();
    m_nArrowHeld = bUp ? -1 : 1;
    (bUp ? m_bUpPressed : m_bDownPressed) = true;
    InvalidateRect(bUp ? m_rcUpArrow : m_rcDownArrow, FALSE);
    SetTimer(arrowTimer, arrowDelay, NULL);
    ScrollItems(m_nArrowHeld);
    return true;
}

void CGfxOutBarCtrl::RepeatArrow() {
    if (m_nArrowHeld == 0) {
        KillTimer(arrowTimer);
        return;
    }
    SetTimer(arrowTimer, arrowPause, NULL);
    if (m_nArrowHeld < 0 ? m_bUpPressed : m_bDownPressed)
        ScrollItems(m_nArrowHeld);
}

void CGfxOutBarCtrl::ReleaseArrow() {
    if (m_nArrowHeld == 0)
        return;
    KillTimer(arrowTimer);
    m_nArrowHeld = 0;
    m_bUpPressed = m_bDownPressed = false;
    InvalidateRect(m_rcUpArrow, FALSE);
    InvalidateRect(m_rcDownArrow, FALSE);
}

BOOL CGfxOutBarCtrl::OnMouseWheel(UINT, short zDelta, CPoint) {
    // Fine wheels turn less than a notch at a time; a turn back starts afresh.
    if ((zDelta < 0) != (m_nWheelRest < 0))
        m_nWheelRest = 0;
    m_nWheelRest += zDelta;
    const int nNotches = m_nWheelRest / WHEEL_DELTA;
    m_nWheelRest %= WHEEL_DELTA;
    ScrollItems(-nNotches);
    return TRUE;
}

// --- context menu

void CGfxOutBarCtrl::OnContextMenu(CWnd* pWnd, CPoint pos) {
    if (pWnd->GetSafeHwnd() != m_hWnd) {
        Default();
        return;
    }
    EndRename(true);
    if (pos == CPoint(-1, -1))
        pos = MenuPoint();
    CPoint point(pos);
    ScreenToClient(&point);
    int nIndex;
    const OutBarHit hit = Hit(point, nIndex);
    if (hit == OutBarHit::item)
        SelectItem(nIndex);
    else if (hit == OutBarHit::folder)
        SetCurrentRow({nIndex, -1});
    const HWND hNotify = NotifiedWindow();
    ::SendMessage(hNotify && hNotify != m_hWnd ? hNotify : ::GetParent(m_hWnd), WM_CONTEXTMENU,
                  reinterpret_cast<WPARAM>(m_hWnd), MAKELPARAM(pos.x, pos.y));
}
