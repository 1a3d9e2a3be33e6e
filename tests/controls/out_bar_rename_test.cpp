// Renaming in the outlook bar: however it ends, it ends once.

#include "out_bar_host.h"

using namespace orv::test;

namespace {

class OutBarRename : public OutBar {
protected:
    void SetUp() override {
        OutBar::SetUp();
        host.fill(20);
    }
    // Opens the field over item 1 or header 1, and has the text in it.
    CGfxGroupEdit* start(bool item, const char* text) {
        EXPECT_TRUE(item ? bar.StartItemEdit(1) : bar.StartGroupEdit(1));
        auto* edit = DYNAMIC_DOWNCAST(CGfxGroupEdit, CWnd::GetFocus());
        EXPECT_TRUE(edit);
        if (edit)
            edit->SetWindowText(text);
        return edit;
    }
    static void sendKey(CWnd& edit, UINT key) {
        MSG msg = {edit.m_hWnd, WM_KEYDOWN, key, 0, 0, {}};
        if (!CWnd::WalkPreTranslateTree(NULL, &msg))
            ::DispatchMessageW(&msg);
    }
};

TEST_F(OutBarRename, EndsOnceHoweverItEnds) {
    int height = 300;
    const struct {
        const char* name;
        bool taken;
        std::function<void(CGfxGroupEdit*)> end;
    } rows[] = {
        {"Enter", true, [](CGfxGroupEdit* edit) { sendKey(*edit, VK_RETURN); }},
        {"Esc", false, [](CGfxGroupEdit* edit) { sendKey(*edit, VK_ESCAPE); }},
        {"Enter as a character", true, [](CGfxGroupEdit* edit) { edit->SendMessage(WM_CHAR, VK_RETURN); }},
        {"Esc as a character", false, [](CGfxGroupEdit* edit) { edit->SendMessage(WM_CHAR, VK_ESCAPE); }},
        {"closed", true, [](CGfxGroupEdit* edit) { edit->SendMessage(WM_CLOSE); }},
        {"the focus goes", true, [&](CGfxGroupEdit*) { host.other.SetFocus(); }},
        {"destroyed", false, [](CGfxGroupEdit* edit) { edit->DestroyWindow(); }},
        {"scrolled", true, [&](CGfxGroupEdit*) { bar.ScrollItems(2); }},
        {"resized", true, [&](CGfxGroupEdit*) { bar.SetWindowPos(NULL, 0, 0, 120, ++height, SWP_NOMOVE); }},
        {"another view", true, [&](CGfxGroupEdit*) { bar.SetSmallIconView(!bar.IsSmallIconView()); }},
        {"another folder opens", true, [&](CGfxGroupEdit*) { bar.SetSelFolder(1 - bar.GetSelFolder()); }},
        {"a row comes before it", true, [&](CGfxGroupEdit*) { bar.RemoveItem(bar.InsertItem(0, 0, "neu")); }},
        {"disabled", true, [&](CGfxGroupEdit*) { bar.EnableWindow(FALSE), bar.EnableWindow(TRUE); }},
        {"the host sets the texts", false,
         [&](CGfxGroupEdit*) { bar.SetItemText(1, "old"), bar.SetFolderText(1, "old"); }},
        {"another one starts", true, [&](CGfxGroupEdit*) { bar.StartItemEdit(0); }},
    };
    for (const auto& row : rows) {
        for (bool item : {true, false}) {
            SCOPED_TRACE(CString(row.name) + (item ? ", item" : ", header"));
            bar.SetSelFolder(0);
            bar.ScrollItems(-99);
            bar.SetItemText(1, "old");
            bar.SetFolderText(1, "old");
            CGfxGroupEdit* edit = start(item, "新名");
            ASSERT_TRUE(edit);
            const HWND window = edit->m_hWnd;
            bar.ends = 0;
            row.end(edit);
            EXPECT_FALSE(::IsWindow(window));
            EXPECT_EQ(1, bar.ends);
            bar.SetSelFolder(0);
            EXPECT_STREQ(row.taken ? "新名" : "old", item ? bar.GetItemText(1) : bar.GetFolderName(1));
            EXPECT_STREQ("old", item ? bar.GetFolderName(1) : bar.GetItemText(1));
        }
    }
}

// Takes the focus from a field, and then does everything else that ends one.
class CHasty : public CWnd {
public:
    HWND edit = NULL;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_SETFOCUS) {
            ::SendMessageA(edit, WM_CHAR, VK_RETURN, 0);
            ::SendMessageA(edit, WM_CLOSE, 0, 0);
            ::DestroyWindow(edit);
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

TEST_F(OutBarRename, AllEndsTogether) {
    CHasty hasty;
    ASSERT_TRUE(hasty.Create(NULL, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 9, 9), &host, 8));
    for (UINT key : {0, VK_RETURN, VK_ESCAPE, VK_DELETE}) {
        bar.SetItemText(1, "old");
        CGfxGroupEdit* edit = start(true, "neu");
        hasty.edit = edit->m_hWnd;
        bar.ends = 0;
        if (key == VK_DELETE)
            ::DestroyWindow(edit->m_hWnd); // its focus goes first
        else if (key == 0)
            hasty.SetFocus();
        else
            sendKey(*edit, key);
        hasty.SetFocus();
        EXPECT_EQ(1, bar.ends);
        EXPECT_FALSE(::IsWindow(hasty.edit));
        EXPECT_STREQ(key == VK_ESCAPE ? "old" : "neu", bar.GetItemText(1));
    }
}

TEST_F(OutBarRename, OnlyWParamIsLookedAt) {
    const struct {
        UINT message;
        WPARAM wParam;
        bool swallowed;
    } rows[] = {{WM_KEYDOWN, 13, true}, {WM_MOUSEMOVE, 13, true}, {WM_TIMER, 27, true},
                {WM_NULL, 27, true},    {WM_KEYDOWN, 9, false},   {WM_KEYDOWN, VK_TAB, false},
                {WM_CLOSE, 0, false},   {WM_CHAR, 'a', false}};
    for (const auto& row : rows) {
        CGfxGroupEdit* edit = start(true, "neu");
        const HWND window = edit->m_hWnd;
        MSG msg = {window, row.message, row.wParam, 13, 0, {}};
        EXPECT_EQ(row.swallowed, edit->PreTranslateMessage(&msg)) << row.message << ", " << row.wParam;
        EXPECT_EQ(!row.swallowed, ::IsWindow(window)) << row.message << ", " << row.wParam;
    }
}

TEST_F(OutBarRename, TypedTextArrives) {
    Steps()
        .then([&] { bar.StartItemEdit(15); })
        .when([&] { return ::GetParent(::GetFocus()) == bar.m_hWnd; }, [] { typeText(L"线型 a"); })
        .then([] { pressKey(VK_RETURN); })
        .run([&] { return bar.GetItemText(15) == "线型 a"; });
    EXPECT_EQ(bar.m_hWnd, ::GetFocus());
    int first, last;
    bar.GetVisibleRange(0, first, last);
    EXPECT_TRUE(first <= 15 && 15 <= last) << "the item was scrolled into view";
}

TEST_F(OutBarRename, NothingToRename) {
    for (int index : {-1, 2, 20, INT_MAX}) {
        EXPECT_FALSE(bar.StartGroupEdit(index));
        EXPECT_EQ(index == 2, bar.StartItemEdit(index));
    }
    start(true, "")->EndEdit(true);
    EXPECT_STREQ("1", bar.GetItemText(1)) << "an empty text is not taken";
    host.other.SetFocus();
    // Anybody may send the message.
    CGfxGroupEdit* edit = start(true, "neu");
    for (LPARAM lParam : {LPARAM(0), LPARAM(1), LPARAM(host.other.m_hWnd), LPARAM(edit->m_hWnd), LPARAM(-1)})
        bar.SendMessage(WM_GFX_END_LABEL_EDIT, 0, lParam);
    EXPECT_STREQ("1", bar.GetItemText(1));
    EXPECT_EQ(edit, CWnd::GetFocus());
    // The bar goes with a field open, and the folder under one.
    bar.RemoveFolder(1);
    EXPECT_NE(edit, CWnd::GetFocus());
    start(true, "neu");
    bar.DestroyWindow();
}

} // namespace
