#include "SheetView.h"

namespace gallery {
namespace {

constexpr int lineStep = 32; // pixels of one arrow

} // namespace

BEGIN_MESSAGE_MAP(SheetView, CanvasWnd)
ON_WM_SIZE()
ON_WM_HSCROLL()
ON_WM_VSCROLL()
ON_WM_MOUSEWHEEL()
ON_WM_KEYDOWN()
ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

SheetView* SheetView::make(const Sheet& sheet, CWnd& parent, UINT id) {
    auto* view = new SheetView(sheet);
    const CString windowClass = AfxRegisterWndClass(0, ::LoadCursor(NULL, IDC_ARROW));
    // On failure the view has deleted itself.
    return view->Create(windowClass, NULL, WS_CHILD | WS_HSCROLL | WS_VSCROLL | WS_TABSTOP, CRect(0, 0, 0, 0),
                        &parent, id)
               ? view
               : NULL;
}

void SheetView::draw(CDC& dc) {
    if (!m_drawn && m_picture.create(m_sheet.width, m_sheet.height)) {
        m_sheet.draw(m_picture.dc());
        m_drawn = true;
    }
    CRect client;
    GetClientRect(&client);
    const CPoint from(GetScrollPos(SB_HORZ), GetScrollPos(SB_VERT));
    const CSize shown(m_sheet.width - from.x, m_sheet.height - from.y);
    if (m_drawn) {
        dc.BitBlt(0, 0, shown.cx, shown.cy, &m_picture.dc(), from.x, from.y, SRCCOPY);
    }
    // Beside the paper.
    const COLORREF desk = ::GetSysColor(COLOR_APPWORKSPACE);
    dc.FillSolidRect(CRect(shown.cx, 0, client.right, client.bottom), desk);
    dc.FillSolidRect(CRect(0, shown.cy, shown.cx, client.bottom), desk);
}

void SheetView::OnSize(UINT nType, int cx, int cy) {
    CanvasWnd::OnSize(nType, cx, cy);
    SCROLLINFO info = {};
    info.fMask = SIF_RANGE | SIF_PAGE;
    info.nMax = m_sheet.width - 1;
    info.nPage = static_cast<UINT>(cx);
    SetScrollInfo(SB_HORZ, &info);
    info.nMax = m_sheet.height - 1;
    info.nPage = static_cast<UINT>(cy);
    SetScrollInfo(SB_VERT, &info);
    Invalidate();
}

void SheetView::scrollTo(int bar, int position) {
    const int before = GetScrollPos(bar);
    SetScrollPos(bar, position); // the system keeps it in the range
    const int moved = before - GetScrollPos(bar);
    if (moved != 0) {
        ScrollWindow(bar == SB_HORZ ? moved : 0, bar == SB_VERT ? moved : 0);
        UpdateWindow();
    }
}

void SheetView::scroll(int bar, UINT code) {
    SCROLLINFO info = {};
    GetScrollInfo(bar, &info);
    const int page = static_cast<int>(info.nPage);
    const struct {
        UINT code;
        int position;
    } rows[] = {{SB_LINEUP, info.nPos - lineStep},
                {SB_LINEDOWN, info.nPos + lineStep},
                {SB_PAGEUP, info.nPos - page},
                {SB_PAGEDOWN, info.nPos + page},
                {SB_TOP, info.nMin},
                {SB_BOTTOM, info.nMax},
                {SB_THUMBTRACK, info.nTrackPos}};
    for (const auto& row : rows) {
        if (row.code == code) {
            return scrollTo(bar, row.position);
        }
    }
}

void SheetView::OnHScroll(UINT nSBCode, UINT, CScrollBar*) {
    scroll(SB_HORZ, nSBCode);
}

void SheetView::OnVScroll(UINT nSBCode, UINT, CScrollBar*) {
    scroll(SB_VERT, nSBCode);
}

BOOL SheetView::OnMouseWheel(UINT, short zDelta, CPoint) {
    scrollTo(SB_VERT, GetScrollPos(SB_VERT) - zDelta * 3 * lineStep / WHEEL_DELTA);
    return TRUE;
}

void SheetView::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    static const struct {
        UINT key;
        int bar;
        UINT code;
    } keys[] = {{VK_UP, SB_VERT, SB_LINEUP},    {VK_DOWN, SB_VERT, SB_LINEDOWN},
                {VK_PRIOR, SB_VERT, SB_PAGEUP}, {VK_NEXT, SB_VERT, SB_PAGEDOWN},
                {VK_HOME, SB_VERT, SB_TOP},     {VK_END, SB_VERT, SB_BOTTOM},
                {VK_LEFT, SB_HORZ, SB_LINEUP},  {VK_RIGHT, SB_HORZ, SB_LINEDOWN}};
    for (const auto& key : keys) {
        if (key.key == nChar) {
            return scroll(key.bar, key.code);
        }
    }
    CanvasWnd::OnKeyDown(nChar, nRepCnt, nFlags);
}

void SheetView::OnLButtonDown(UINT, CPoint) {
    SetFocus();
}

} // namespace gallery
