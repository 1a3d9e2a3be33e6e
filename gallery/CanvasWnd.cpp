#include "CanvasWnd.h"

namespace gallery {

BEGIN_MESSAGE_MAP(CanvasWnd, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_MESSAGE(WM_PRINTCLIENT, &CanvasWnd::OnPrintClient)
END_MESSAGE_MAP()

void CanvasWnd::OnPaint() {
    CPaintDC dc(this);
    draw(dc);
}

LRESULT CanvasWnd::OnPrintClient(WPARAM wParam, LPARAM) {
    if (CDC* dc = CDC::FromHandle(reinterpret_cast<HDC>(wParam)))
        draw(*dc);
    return 0;
}

BOOL CanvasWnd::OnEraseBkgnd(CDC*) {
    return TRUE;
}

} // namespace gallery
