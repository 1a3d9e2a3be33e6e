// An item of the outlook bar under the pressed button: a click, or a drag to another place.

#include "GfxOutBarCtrl.h"

#include "OutBarFolders.h"
#include "OutBarLayout.h"

#include <algorithm>
#include <cstdlib>

using orv::OutBarHit;

namespace {

constexpr UINT_PTR dragTimer = 3;
constexpr UINT dragPause = 50;   // milliseconds, a tick
constexpr int openTicks = 10;    // over a header until its folder opens
constexpr int scrollTicks = 4;   // between two steps of scrolling
constexpr int scrollMargin = 16; // pixels at the upper and lower edge in which it scrolls

} // namespace

struct CGfxOutBarCtrl::Drag {
    int folder; // where the item comes from
    int item;
    CPoint press;
    CPoint last;            // of the mouse
    bool moving = false;    // a drag, no longer a press
    bool released = false;  // the button, in the end
    bool calledOff = false; // by the right button, which is still down
    int dropFolder = -1;    // -1: it cannot be dropped here
    int dropItem = -1;
    int header = -1; // a header under the mouse
    int headerTicks = 0;
    int edgeTicks = 0;
};

void CGfxOutBarCtrl::TrackItem(int nItem, const CPoint& ptPress) {
    const HWND hWnd = m_hWnd;
    Drag drag = {m_nSelFolder, nItem, ptPress, ptPress};
    SetCapture();
    m_bTracking = true;
    HighlightItem(nItem, true);
    SetTimer(dragTimer, dragPause, NULL);
    while (m_bTracking) {
        MSG msg;
        if (!::GetMessageW(&msg, NULL, 0, 0)) {
            ::PostQuitMessage(static_cast<int>(msg.wParam)); // for the loop outside
            break;
        }
        if (!TrackMessage(msg, drag))
            ::DispatchMessageW(&msg);
        if (!IsAlive(hWnd))
            return;
    }
    m_bTracking = false;
    KillTimer(dragTimer);
    if (::GetCapture() == m_hWnd)
        ::ReleaseCapture();
    ClearDrag();
    if (!drag.released)
        return;
    if (drag.moving) {
        Drop(drag);
        return;
    }
    if (IsOver(drag))
        ClickItem(nItem);
}

void CGfxOutBarCtrl::ClearDrag() {
    SetDragMark(-1);
    HighlightItem(-1, false);
    HighlightFolder(-1);
}

// Whether the mouse is on the item that was pressed. Another folder may have opened since.
bool CGfxOutBarCtrl::IsOver(const Drag& drag) const {
    int nIndex;
    return m_nSelFolder == drag.folder && Hit(drag.last, nIndex) == OutBarHit::item && nIndex == drag.item;
}

// True: done with. Keys go nowhere meanwhile; Esc and the right button end it all.
// The right button's way up is waited for: outside it would bring a menu.
bool CGfxOutBarCtrl::TrackMessage(const MSG& msg, Drag& drag) {
    if (msg.message >= WM_KEYFIRST && msg.message <= WM_KEYLAST) {
        if (msg.message == WM_KEYDOWN && msg.wParam == VK_ESCAPE)
            m_bTracking = false;
        return true;
    }
    if (msg.hwnd != m_hWnd)
        return false;
    switch (msg.message) {
    case WM_MOUSEMOVE:
        if (!(msg.wParam & (drag.calledOff ? MK_RBUTTON : MK_LBUTTON)))
            m_bTracking = false; // the button was let go where nobody told
        else if (!drag.calledOff)
            TrackMove(CPoint(msg.lParam), drag);
        return true;
    case WM_LBUTTONUP:
        if (drag.calledOff)
            return true;
        TrackMove(CPoint(msg.lParam), drag);
        drag.released = true;
        m_bTracking = false;
        return true;
    case WM_RBUTTONDOWN:
        if (drag.moving)
            ::SetCursor(m_hNoDragCursor);
        drag.calledOff = true;
        drag.moving = false;
        ClearDrag();
        return true;
    case WM_RBUTTONUP:
        m_bTracking = !drag.calledOff;
        return true;
    case WM_TIMER:
        if (msg.wParam != dragTimer)
            return false;
        if (drag.moving)
            TrackTimer(drag);
        return true;
    }
    return false;
}

void CGfxOutBarCtrl::TrackMove(const CPoint& point, Drag& drag) {
    drag.last = point;
    if (!drag.moving) {
        drag.moving = (m_dwFlags & OUTBAR_DRAG_ITEMS) &&
                      (std::abs(point.x - drag.press.x) > ::GetSystemMetrics(SM_CXDRAG) ||
                       std::abs(point.y - drag.press.y) > ::GetSystemMetrics(SM_CYDRAG));
        if (!drag.moving) {
            const bool bOver = IsOver(drag);
            HighlightItem(bOver ? drag.item : -1, bOver);
            return;
        }
        HighlightItem(-1, false);
    }
    int nIndex;
    const int nHeader = Hit(point, nIndex) == OutBarHit::folder ? nIndex : -1;
    if (nHeader != drag.header) {
        drag.header = nHeader;
        drag.headerTicks = 0;
        HighlightFolder(nHeader);
    }
    CRect rcInside;
    GetInsideRect(rcInside);
    const bool bInside = nHeader < 0 && rcInside.PtInRect(point);
    const int nFolder = bInside ? m_nSelFolder : nHeader;
    const orv::OutBarFolder* folder = m_pFolders->folder(nFolder);
    drag.dropFolder = folder && !folder->holdsChild ? nFolder : -1;
    if (drag.dropFolder >= 0)
        drag.dropItem = bInside ? LayoutOf(nFolder).dropIndex(point.y) : folder->count();
    SetDragMark(bInside && drag.dropFolder >= 0 ? drag.dropItem : -1);
    ::SetCursor(drag.dropFolder >= 0 ? m_hDragCursor : m_hNoDragCursor);
}

// While the mouse rests: a header opens its folder, the edges scroll.
void CGfxOutBarCtrl::TrackTimer(Drag& drag) {
    if (drag.header >= 0 && drag.header != m_nSelFolder && ++drag.headerTicks == openTicks) {
        OpenRow(drag.header);
        TrackMove(drag.last, drag);
        return;
    }
    CRect rcInside;
    GetInsideRect(rcInside);
    int nStep = 0;
    if (drag.header < 0 && rcInside.PtInRect(drag.last)) {
        if (drag.last.y < rcInside.top + scrollMargin)
            nStep = -1;
        else if (drag.last.y >= rcInside.bottom - scrollMargin)
            nStep = 1;
    }
    if (nStep == 0) {
        drag.edgeTicks = 0;
    } else if (++drag.edgeTicks % scrollTicks == 0) {
        ScrollItems(nStep);
        TrackMove(drag.last, drag);
    }
}

// The selected and the current item stay what they are, wherever they are then.
void CGfxOutBarCtrl::Drop(const Drag& drag) {
    orv::OutBarFolder* from = m_pFolders->folder(drag.folder);
    orv::OutBarFolder* to = m_pFolders->folder(drag.dropFolder);
    if (!from || !to || !m_pFolders->item(drag.folder, drag.item))
        return;
    // What is seen stays too.
    if (from == OpenFolder() && drag.item < m_nFirstItem)
        --m_nFirstItem;
    const orv::OutBarItem* selected = ItemAt(m_nSelItem);
    const orv::OutBarItem* current = ItemAt(m_nCurrentItem);
    auto item = std::move(from->items[static_cast<size_t>(drag.item)]);
    from->items.erase(from->items.begin() + drag.item);
    int nPlace = drag.dropItem;
    if (from == to && nPlace > drag.item)
        --nPlace;
    to->items.insert(to->items.begin() + std::clamp(nPlace, 0, to->count()), std::move(item));
    const auto indexOf = [this](const orv::OutBarItem* wanted) {
        const auto& items = OpenFolder()->items;
        const auto found = std::find_if(items.begin(), items.end(),
                                        [&](const auto& row) { return wanted && row.get() == wanted; });
        return found == items.end() ? -1 : static_cast<int>(found - items.begin());
    };
    m_nSelItem = indexOf(selected);
    m_nCurrentItem = indexOf(current);
    LayoutChanged();
}

// Before that item of the open folder; -1: no mark.
void CGfxOutBarCtrl::SetDragMark(int nItem) {
    if (nItem == m_nLastDragItemDraw)
        return;
    CRect rect;
    if (m_hWnd && GetDragItemRect(m_nLastDragItemDraw, rect))
        InvalidateRect(rect, FALSE);
    m_nLastDragItemDraw = nItem;
    m_nLastDragItemDrawType = nItem < 0 ? -1 : nItem == 0 ? 0 : nItem < GetItemCount() ? 1 : 2;
    if (m_hWnd && GetDragItemRect(nItem, rect))
        InvalidateRect(rect, FALSE);
}
