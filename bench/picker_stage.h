#pragma once

#include <afxwin.h>

namespace orv::bench {

// A window for pickers, a row of one of them, and a paper of its size to paint it on.
struct PickerStage {
    static constexpr int width = 160, height = 18;
    const CRect row{0, 0, width, height};
    CWnd parent;
    CDC dc;
    CBitmap bitmap;

    PickerStage() {
        parent.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP, 0, 0, 300, 300, NULL, NULL);
        CClientDC screen(NULL);
        dc.CreateCompatibleDC(&screen);
        bitmap.CreateCompatibleBitmap(&screen, width, height);
        dc.SelectObject(&bitmap);
    }

    // The least that shows a text in a row.
    void paintBare(const char* text, int length) {
        ::FillRect(dc.m_hDC, &row, ::GetSysColorBrush(COLOR_WINDOW));
        ::TextOutA(dc.m_hDC, row.left + 21, row.top + 1, text, length);
    }
};

} // namespace orv::bench
