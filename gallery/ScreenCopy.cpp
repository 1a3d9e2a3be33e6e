#include "ScreenCopy.h"

namespace gallery {

static void paintAll() {
    MSG msg;
    while (::PeekMessageW(&msg, NULL, 0, 0, PM_REMOVE)) {
        ::TranslateMessage(&msg);
        ::DispatchMessageW(&msg);
    }
}

void copyScreen(CDC& dc, CPoint to, const CRect& from) {
    paintAll();
    ::GdiFlush();
    CWindowDC screen(NULL);
    dc.BitBlt(to.x, to.y, from.Width(), from.Height(), &screen, from.left, from.top, SRCCOPY);
}

CRect withList(CComboBox& combo) {
    CRect field, list, both;
    combo.GetWindowRect(&field);
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    combo.GetComboBoxInfo(&info);
    ::GetWindowRect(info.hwndList, &list);
    both.UnionRect(&field, &list);
    return both;
}

} // namespace gallery
