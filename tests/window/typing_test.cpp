// Typed characters of every kind, where no other test types: in a rich field and in a window of the host's
// own.

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

TEST(Typing, ChineseArrives) {
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_FIELDS));
    CRichEditCtrl rich;
    ASSERT_TRUE(rich.Create(WS_CHILD | WS_VISIBLE, CRect(200, 30, 300, 60), &dialog, 2));
    CByteWnd bytes;
    ASSERT_TRUE(bytes.Create(NULL, NULL, WS_CHILD | WS_VISIBLE, CRect(200, 70, 300, 90), &dialog, 3));
    dialog.ShowWindow(SW_SHOW);
    ASSERT_TRUE(waitUntil([&] { return ::GetForegroundWindow() == dialog.m_hWnd; }));

    rich.SetFocus();
    typeText(wideText("富文本x字"));
    CString text;
    EXPECT_TRUE(waitUntil([&] { return rich.GetWindowText(text), text == "富文本x字"; })) << text;
    bytes.SetFocus();
    typeText(wideText("字x"));
    EXPECT_TRUE(waitUntil([&] { return bytes.m_strTyped == "字x"; })) << bytes.m_strTyped;
}

} // namespace
