#pragma once

// A dialog in which font pickers are created and typed into.

#include "pickers_test.h"

#include <gtest/gtest.h>

namespace orv::test {

// Also notes the command behind a choice.
class CFontDlg : public CPickerDlg {
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_COMMAND && wParam == 1)
            told.push_back("command of " + std::to_string(::GetDlgCtrlID(reinterpret_cast<HWND>(lParam))));
        if (message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED && LOWORD(wParam) == IDC_BUTTON)
            told.push_back("clicked");
        return CPickerDlg::WindowProc(message, wParam, lParam);
    }
};

inline std::string textOf(const CWnd& window) {
    CString text;
    window.GetWindowText(text);
    return static_cast<LPCTSTR>(text);
}

inline HWND fieldOf(const CComboBox& combo) {
    return partsOf(combo).hwndItem;
}

using Pixels = std::vector<COLORREF>;
inline const CRect kRow(0, 0, 120, 18);

// On a device context with the face as its font, or with the one that it has when new.
inline Pixels drawn(const std::function<void(CDC&)>& draw, const char* face) {
    Picture picture(kRow.Width(), kRow.Height());
    LOGFONT lf = {};
    picture.dc.GetCurrentFont()->GetLogFont(&lf);
    lf.lfCharSet = DEFAULT_CHARSET;
    strcpy_s(lf.lfFaceName, face ? face : "");
    CFont font;
    font.CreateFontIndirect(&lf);
    CFont* const old = face ? picture.dc.SelectObject(&font) : NULL;
    draw(picture.dc);
    if (old)
        picture.dc.SelectObject(old);
    return picture.pixels();
}

inline Pixels drawn(COrvCmbRecord& row, const char* face = NULL) {
    return drawn([&](CDC& dc) { row.DrawItem(&dc, kRow, 0); }, face);
}

// A row with this text from left on.
inline Pixels drawnText(int left, const std::string& text, const char* face = NULL) {
    const auto draw = [&](CDC& dc) {
        dc.FillSolidRect(&kRow, ::GetSysColor(COLOR_WINDOW));
        dc.SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
        CRect place(left, 0, kRow.right, kRow.bottom);
        dc.DrawText(text.c_str(), -1, &place, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    };
    return drawn(draw, face);
}

class FontPickers : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(dialog.open()); }
    void create(CComboBox& combo, DWORD style = CBS_DROPDOWN) {
        ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_TABSTOP | style,
                                 CRect(10, 130, 200, 330), &dialog, 7));
    }
    // Into the field of a combo, over what is there.
    void type(CComboBox& combo, const char* text) {
        ::SetFocus(fieldOf(combo));
        ASSERT_TRUE(waitUntil([&] { return ::GetFocus() == fieldOf(combo); }));
        combo.SetEditSel(0, -1);
        typeText(wideText(text));
        ASSERT_TRUE(waitUntil([&] { return textOf(combo) == text; })) << textOf(combo);
    }
    // A key as the program's own message loop has it, until the condition holds.
    void pressInLoop(WORD key, const std::function<bool()>& condition) {
        dialog.settle();
        pressKey(key);
        EXPECT_TRUE(pumpUntil(condition));
    }
    void leave() {
        CWnd* other = dialog.GetDlgItem(IDC_OTHER);
        other->SetFocus();
        ASSERT_TRUE(waitUntil([&] { return ::GetFocus() == other->m_hWnd; }));
    }
    CFontDlg dialog;
};

} // namespace orv::test
