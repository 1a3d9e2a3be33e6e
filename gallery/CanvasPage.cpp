#include "CanvasPage.h"

namespace gallery {

BEGIN_MESSAGE_MAP(CanvasPage, CanvasWnd)
ON_WM_SETFOCUS()
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
    return IsDialogMessage(pMsg) || CanvasWnd::PreTranslateMessage(pMsg);
}

void CanvasPage::OnSetFocus(CWnd*) {
    firstControl().SetFocus();
}

} // namespace gallery
