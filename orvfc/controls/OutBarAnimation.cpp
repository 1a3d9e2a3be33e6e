// One folder closes and another one opens: the headers between them slide, with what they carry.

#include "GfxOutBarCtrl.h"

#include "OffScreen.h"

#include <algorithm>

namespace {

constexpr int steps = 10;
constexpr LONG longestPause = 100; // milliseconds

// What the screen can show of the window: pictures of the rest would cost memory for nothing.
bool shownPart(const CWnd& wnd, CRect& rect) {
    CRect rcScreen(CPoint(::GetSystemMetrics(SM_XVIRTUALSCREEN), ::GetSystemMetrics(SM_YVIRTUALSCREEN)),
                   CSize(::GetSystemMetrics(SM_CXVIRTUALSCREEN), ::GetSystemMetrics(SM_CYVIRTUALSCREEN)));
    wnd.ScreenToClient(rcScreen);
    wnd.GetClientRect(rect);
    return rect.IntersectRect(rect, rcScreen);
}

// The child window's picture where it stands.
void printChild(CDC& dc, HWND hChild, const CRect& rect) {
    const int nSaved = dc.SaveDC();
    dc.IntersectClipRect(rect);
    dc.OffsetViewportOrg(rect.left, rect.top);
    ::SendMessage(hChild, WM_PRINT, reinterpret_cast<WPARAM>(dc.m_hDC),
                  PRF_CLIENT | PRF_NONCLIENT | PRF_CHILDREN | PRF_ERASEBKGND);
    dc.RestoreDC(nSaved);
}

} // namespace

void CGfxOutBarCtrl::AnimateFolderScroll(int nFrom, int nTo) {
    const HWND hWnd = m_hWnd;
    CRect rcPart, rcInside[2], rcHeader[2];
    if (!shownPart(*this, rcPart) || nFrom == nTo) {
        OpenRow(nTo);
        return;
    }
    const int nFirst = std::min(nFrom, nTo) + 1; // the first header that moves
    CClientDC dc(this);
    orv::OffScreen before(dc, rcPart), after(dc, rcPart);
    orv::OffScreen* const pictures[] = {&before, &after};
    // Children are in the pictures; their windows would stand in the way.
    m_bAnimating = true;
    for (int i = 0; i < 2; ++i) {
        if (i == 1)
            OpenRow(nTo);
        GetInsideRect(rcInside[i]);
        GetFolderRect(nFirst, rcHeader[i]);
        Paint(pictures[i]->dc(), rcPart);
        if (const HWND hChild = ChildOf(m_nSelFolder)) {
            const int nFolders = GetFolderCount();
            printChild(pictures[i]->dc(), hChild, rcInside[i]);
            ::ShowWindow(hChild, SW_HIDE);
            // Both were the host's code.
            if (!IsAlive(hWnd))
                return;
            if (GetFolderCount() != nFolders) {
                m_bAnimating = false;
                LayoutChanged();
                return;
            }
        }
    }
    // Upwards the new folder comes over the old one, downwards the old one goes off the new one.
    const bool bUp = nTo > nFrom;
    orv::OffScreen &still = bUp ? before : after, &moving = bUp ? after : before;
    const int nTop = std::min(rcHeader[0].top, rcHeader[1].top);
    const int nBottom = bUp ? rcInside[1].bottom : rcInside[0].bottom;
    // In too low a bar headers would go the wrong way: then there is nothing to slide.
    const int nDistance = (rcHeader[0].top - rcHeader[1].top) * (bUp ? 1 : -1);
    const DWORD dwPause = static_cast<DWORD>(std::clamp<LONG>(m_nAnimationTickCount, 0, longestPause));
    for (int i = 1; i <= steps && nDistance > 0; ++i) {
        const int nShift = nDistance * (bUp ? steps - i : i) / steps;
        dc.BitBlt(rcPart.left, nTop, rcPart.Width(), nShift, &still.dc(), rcPart.left, nTop, SRCCOPY);
        dc.BitBlt(rcPart.left, nTop + nShift, rcPart.Width(), nBottom - nTop - nShift, &moving.dc(),
                  rcPart.left, nTop, SRCCOPY);
        ::GdiFlush();
        ::Sleep(dwPause);
    }
    m_bAnimating = false;
    LayoutChanged();
    UpdateWindow();
}
