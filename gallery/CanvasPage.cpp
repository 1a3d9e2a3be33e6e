#include "CanvasPage.h"

namespace gallery {

BEGIN_MESSAGE_MAP(CanvasPage, CWnd)
ON_WM_SETFOCUS()
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_MESSAGE(WM_PRINTCLIENT, &CanvasPage::OnPrintClient)
END_MESSAGE_MAP()

BOOL CanvasPage::makeIn(CWnd& parent, UINT id) {
    const CString windowClass = AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, ::LoadCursor(NULL, IDC_ARROW));
    return CreateEx(WS_EX_CONTROLPARENT, windowClass, NULL, WS_CHILD | WS_CLIPCHILDREN, CRect(0, 0, 0, 0),
                    &parent, id);
}

BOOL CanvasPage::PreTranslateMessage(MSG* pMsg) {
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_TAB) {
        const bool back = ::GetKeyState(VK_SHIFT) < 0;
        if (GetFocus() == (back ? &firstControl() : &lastControl())) {
            GetParent()->SetFocus();
            return TRUE;
        }
    }
    return IsDialogMessage(pMsg) || CWnd::PreTranslateMessage(pMsg);
}

void CanvasPage::OnSetFocus(CWnd*) {
    firstControl().SetFocus();
}

void CanvasPage::OnPaint() {
    CPaintDC dc(this);
    draw(dc);
}

LRESULT CanvasPage::OnPrintClient(WPARAM wParam, LPARAM) {
    if (CDC* dc = CDC::FromHandle(reinterpret_cast<HDC>(wParam)))
        draw(*dc);
    return 0;
}

BOOL CanvasPage::OnEraseBkgnd(CDC*) {
    return TRUE;
}

} // namespace gallery
