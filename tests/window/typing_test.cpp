// Typed characters of every kind, into every kind of field.

#include "window_test.h"

#include "support/input.h"

#include <string>

using namespace orv::test;

namespace {

// A window of the host's own gets code page bytes, as its class asks.
class CByteWnd : public CWnd {
public:
    CString m_strTyped;

protected:
    afx_msg void OnChar(UINT nChar, UINT, UINT) { m_strTyped += static_cast<char>(nChar); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CByteWnd, CWnd)
ON_WM_CHAR()
END_MESSAGE_MAP()

// Types into the window and waits for its text.
void expectTyped(CWnd& window, const char* text) {
    window.SetFocus();
    ASSERT_TRUE(waitUntil([&] { return ::GetFocus() == window.m_hWnd && ::GetForegroundWindow() != NULL; }));
    typeText(wideText(text));
    CString now;
    EXPECT_TRUE(waitUntil([&] {
        window.GetWindowText(now);
        return now == text;
    })) << now.GetString();
}

TEST(Typing, ChineseArrivesInEveryField) {
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_FIELDS));
    CComboBox combo;
    ASSERT_TRUE(combo.SubclassDlgItem(IDC_COMBO, &dialog));
    CEdit made;
    ASSERT_TRUE(made.Create(WS_CHILD | WS_VISIBLE, CRect(200, 0, 300, 20), &dialog, 1));
    CRichEditCtrl rich;
    ASSERT_TRUE(rich.Create(WS_CHILD | WS_VISIBLE, CRect(200, 30, 300, 60), &dialog, 2));
    CByteWnd bytes;
    ASSERT_TRUE(bytes.Create(NULL, NULL, WS_CHILD | WS_VISIBLE, CRect(200, 70, 300, 90), &dialog, 3));
    dialog.ShowWindow(SW_SHOW);
    ASSERT_TRUE(waitUntil([&] { return ::GetForegroundWindow() == dialog.m_hWnd; }));

    expectTyped(*dialog.GetDlgItem(IDC_EDIT), "未接管 a");
    expectTyped(made, "新建的");
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    ASSERT_TRUE(combo.GetComboBoxInfo(&info));
    expectTyped(*CWnd::FromHandle(info.hwndItem), "组合框");
    CEdit subclassed;
    subclassed.SubclassDlgItem(IDC_EDIT, &dialog);
    subclassed.SetWindowText("");
    expectTyped(subclassed, "接管的");
    expectTyped(rich, "富文本x字");

    bytes.SetFocus();
    typeText(wideText("字x"));
    EXPECT_TRUE(waitUntil([&] { return bytes.m_strTyped == "字x"; })) << bytes.m_strTyped.GetString();
}

} // namespace
