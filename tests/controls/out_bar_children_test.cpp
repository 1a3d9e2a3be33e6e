// Controls in the outlook bar's folders: what they tell the bar's parent, and how Tab goes through them.

#include "out_bar_host.h"

#include <memory>

using namespace orv::test;

namespace {

constexpr UINT free_ = 8, kept = 9; // identifiers: of a control that the bar knows nothing of, and of its own

// Hears of its own messages by reflection.
class CHearing : public CButton {
public:
    int heard = 0;
    BOOL keeps = FALSE;

protected:
    afx_msg BOOL OnClicked() { return ++heard, keeps; }
    afx_msg BOOL OnNotified(NMHDR*, LRESULT*) { return ++heard, keeps; }
    afx_msg HBRUSH CtlColor(CDC*, UINT) { return ++heard, static_cast<HBRUSH>(NULL); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CHearing, CButton)
ON_CONTROL_REFLECT_EX(BN_CLICKED, &CHearing::OnClicked)
ON_NOTIFY_REFLECT_EX(NM_CLICK, &CHearing::OnNotified)
ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

class CKeepingBar : public CCountedBar {
public:
    int heard = 0;

protected:
    afx_msg void OnClicked() { ++heard; }
    afx_msg void OnNotified(NMHDR*, LRESULT*) { ++heard; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CKeepingBar, CCountedBar)
ON_BN_CLICKED(kept, &CKeepingBar::OnClicked)
ON_NOTIFY(NM_CLICK, kept, &CKeepingBar::OnNotified)
END_MESSAGE_MAP()

class CToldHost : public CBarHost {
public:
    int heard = 0; // by the message map
    std::function<void()> onClicked;
    std::function<bool(const MSG&, LRESULT&)> before; // true: this is the answer

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        LRESULT answer = 0;
        return before && before({m_hWnd, message, wParam, lParam, 0, {}}, answer)
                   ? answer
                   : CBarHost::WindowProc(message, wParam, lParam);
    }
    afx_msg void OnClicked() {
        ++heard;
        if (onClicked)
            onClicked();
    }
    afx_msg void OnNotified(NMHDR*, LRESULT*) { ++heard; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CToldHost, CBarHost)
ON_BN_CLICKED(free_, &CToldHost::OnClicked)
ON_NOTIFY(NM_CLICK, free_, &CToldHost::OnNotified)
END_MESSAGE_MAP()

LPARAM asParam(const void* pointer) {
    return reinterpret_cast<LPARAM>(pointer);
}

TEST(OutBarChildren, WhatTheyTellGoesOnAsItIs) {
    CToldHost host;
    ASSERT_TRUE(host.make());
    host.fill(3);
    CWnd child;
    ASSERT_TRUE(child.Create("STATIC", "", WS_CHILD, CRect(0, 0, 9, 9), &host.bar, free_));
    host.bar.AddFolderBar("窗", &child);
    const LPARAM window = asParam(child.m_hWnd);
    CClientDC dc(&child);
    const auto paper = reinterpret_cast<WPARAM>(dc.m_hDC);
    NMHDR header = {child.m_hWnd, free_, NM_DBLCLK};
    DRAWITEMSTRUCT draw = {ODT_STATIC, free_, 0, 0, 0, child.m_hWnd, dc.m_hDC, {}, 0};
    MEASUREITEMSTRUCT measure = {ODT_LISTBOX, free_, 0, 0, 0, 0};
    DELETEITEMSTRUCT gone = {ODT_LISTBOX, free_, 0, child.m_hWnd, 0};
    COMPAREITEMSTRUCT compare = {ODT_LISTBOX, free_, child.m_hWnd, 0, 0, 0, 0, 0};
    const struct {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        bool goesOn, answers; // some have no answer
    } rows[] = {{WM_COMMAND, MAKEWPARAM(free_, EN_CHANGE), window, true, true},
                {WM_NOTIFY, free_, asParam(&header), true, true},
                {WM_COMPAREITEM, free_, asParam(&compare), true, true},
                {WM_VKEYTOITEM, MAKEWPARAM('A', 2), window, true, true},
                {WM_CHARTOITEM, MAKEWPARAM('a', 2), window, true, true},
                {WM_CTLCOLOREDIT, paper, window, true, true},
                {WM_CTLCOLORSTATIC, paper, window, true, true},
                {WM_NEXTDLGCTL, 1, 0, true, true},
                {WM_LINE_STYLE_CMB_SELCHANGE, free_, 0, true, true},
                {WM_FONT_NAME_CMB_SELCHANGE, free_, 0, true, true},
                {WM_DRAWITEM, free_, asParam(&draw), true, false},
                {WM_MEASUREITEM, free_, asParam(&measure), true, false},
                {WM_DELETEITEM, free_, asParam(&gone), true, false},
                {WM_HSCROLL, SB_LINEDOWN, window, true, false},
                {WM_VSCROLL, SB_LINEDOWN, window, true, false},
                // Of the bar's own menu and scroll bar, to the bar itself.
                {WM_COMMAND, free_, 0, false, false},
                {WM_HSCROLL, SB_LINEDOWN, 0, false, false},
                {WM_GFX_OUTBAR_LBUTTON_DOWN, 0, 0, false, false},
                {WM_USER, 1, window, false, false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << "message " << row.message << ", " << row.lParam);
        int told = 0;
        host.before = [&](const MSG& msg, LRESULT& answer) {
            EXPECT_EQ(row.message, msg.message);
            EXPECT_EQ(row.wParam, msg.wParam);
            EXPECT_EQ(row.lParam, msg.lParam);
            answer = 4711;
            return ++told;
        };
        const LRESULT answer = host.bar.SendMessage(row.message, row.wParam, row.lParam);
        host.before = nullptr;
        EXPECT_EQ(row.goesOn, told == 1);
        EXPECT_EQ(row.answers, answer == 4711);
    }
    // The rename field keeps to itself, from its making to its end.
    int told = 0;
    host.before = [&](const MSG& msg, LRESULT&) {
        told += (msg.message == WM_COMMAND || msg.message == WM_CTLCOLOREDIT) &&
                ::GetParent(reinterpret_cast<HWND>(msg.lParam)) == host.bar.m_hWnd;
        return false;
    };
    host.ShowWindow(SW_SHOW);
    ASSERT_TRUE(host.bar.StartItemEdit(1));
    CWnd::GetFocus()->SetWindowText("neu");
    CWnd::GetFocus()->UpdateWindow();
    host.other.SetFocus();
    EXPECT_STREQ("neu", host.bar.GetItemText(1));
    EXPECT_EQ(0, told);
    host.DestroyWindow();
}

TEST(OutBarChildren, EverybodyHearsOnce) {
    const struct {
        const char* name;
        UINT id;
        BOOL keeps; // the child's object
        bool mfcHost;
        int bar, host; // times that these hear
    } rows[] = {{"nobody keeps it", free_, FALSE, true, 0, 1},
                {"the child keeps it", free_, TRUE, true, 0, 0},
                {"the bar's class handles it", kept, FALSE, true, 1, 0},
                {"the child keeps it from the bar's class", kept, TRUE, true, 0, 0},
                {"a host that reflects nothing", free_, FALSE, false, 0, 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        CToldHost host;
        ASSERT_TRUE(host.make());
        const HWND plain = ::CreateWindow("STATIC", "", WS_POPUP, 0, 0, 99, 99, NULL, NULL, NULL, NULL);
        CKeepingBar bar;
        ASSERT_TRUE(
            bar.Create(WS_CHILD, CRect(0, 0, 99, 99), row.mfcHost ? &host : CWnd::FromHandle(plain), 3));
        CHearing child;
        ASSERT_TRUE(child.Create("", WS_CHILD, CRect(0, 0, 9, 9), &bar, row.id));
        bar.AddFolderBar("窗", &child);
        child.keeps = row.keeps;
        child.SendMessage(BM_CLICK);
        EXPECT_EQ(1, child.heard);
        NMHDR header = {child.m_hWnd, row.id, NM_CLICK};
        bar.SendMessage(WM_NOTIFY, row.id, asParam(&header));
        EXPECT_EQ(2, child.heard);
        EXPECT_EQ(2 * row.bar, bar.heard);
        EXPECT_EQ(2 * row.host, host.heard);
        CClientDC dc(&child);
        bar.SendMessage(WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(dc.m_hDC), asParam(child.m_hWnd));
        EXPECT_EQ(3, child.heard);
        ::DestroyWindow(plain);
        host.DestroyWindow();
    }
}

TEST(OutBarChildren, TheHostDrawsTheItemsOfAList) {
    CToldHost host;
    ASSERT_TRUE(host.make());
    CWnd list;
    ASSERT_TRUE(list.Create(WC_LISTVIEW, "", WS_CHILD | LVS_LIST, CRect(0, 0, 9, 9), &host.bar, free_));
    LVITEM item = {};
    item.mask = LVIF_TEXT;
    item.pszText = const_cast<char*>("a");
    list.SendMessage(LVM_INSERTITEMA, 0, asParam(&item));
    host.bar.AddFolderBar("窗", &list);
    int items = 0; // come only when the answer to the first stage has come back
    host.before = [&](const MSG& msg, LRESULT& answer) {
        const auto* draw = reinterpret_cast<const NMCUSTOMDRAW*>(msg.lParam);
        if (msg.message != WM_NOTIFY || draw->hdr.hwndFrom != list.m_hWnd || draw->hdr.code != NM_CUSTOMDRAW)
            return false;
        items += draw->dwDrawStage == CDDS_ITEMPREPAINT;
        answer = draw->dwDrawStage == CDDS_PREPAINT ? CDRF_NOTIFYITEMDRAW : CDRF_DODEFAULT;
        return true;
    };
    host.ShowWindow(SW_SHOW);
    list.RedrawWindow();
    EXPECT_EQ(1, items);
    host.DestroyWindow();
}

// The host's handler ends the child, the bar's window, its object or all of it.
TEST(OutBarChildren, EndsWhileItTells) {
    for (int way = 0; way < 4; ++way) {
        CToldHost host;
        ASSERT_TRUE(host.make());
        auto bar = std::make_unique<CCountedBar>();
        ASSERT_TRUE(bar->Create(WS_CHILD, CRect(0, 0, 99, 99), &host, 3));
        CButton child;
        ASSERT_TRUE(child.Create("", WS_CHILD, CRect(0, 0, 9, 9), bar.get(), free_));
        bar->AddFolderBar("窗", &child);
        host.onClicked = [&] {
            if (way == 0)
                child.DestroyWindow();
            else if (way == 1)
                bar->DestroyWindow();
            else if (way == 2)
                bar.reset();
            else
                host.DestroyWindow();
        };
        child.SendMessage(BM_CLICK);
        EXPECT_EQ(1, host.heard);
        EXPECT_EQ(NULL, child.m_hWnd);
        bar.reset();
        host.DestroyWindow();
    }
}

// --- Tab

class CTabDialog : public CDialog {
public:
    CEdit first, last;
    CGfxOutBarCtrl bar;
    CEdit child, many;      // one line, many lines
    CWnd group;             // WS_EX_CONTROLPARENT
    CButton one, two, grey; // in it

    bool make() {
        const struct {
            DLGTEMPLATE head;
            WORD menu, windowClass, title;
        } empty = {{WS_POPUP | WS_VISIBLE, 0, 0, 0, 0, 200, 200}, 0, 0, 0};
        const DWORD stop = WS_CHILD | WS_VISIBLE | WS_TABSTOP, hidden = WS_CHILD | WS_TABSTOP;
        const CRect rect(0, 0, 9, 9);
        return CreateIndirect(&empty.head) && first.Create(stop, rect, this, 101) &&
               bar.Create(WS_CHILD | WS_VISIBLE, CRect(20, 0, 120, 150), this, 102, 0) &&
               last.Create(stop, rect, this, 103) && child.Create(hidden, rect, &bar, 104) &&
               many.Create(hidden | ES_MULTILINE, rect, &bar, 105) &&
               group.CreateEx(WS_EX_CONTROLPARENT, AfxRegisterWndClass(0), "", WS_CHILD, rect, &bar, 106) &&
               grey.Create("", stop | WS_DISABLED, rect, &group, 107) &&
               one.Create("", stop, rect, &group, 108) && two.Create("", stop, rect, &group, 109);
    }
    // The focus after each of so many Tabs, beginning in the first field.
    CString walk(int tabs) {
        CString way;
        first.SetFocus();
        while (tabs-- > 0 && !testing::Test::HasFailure()) {
            press();
            way += name() + " ";
        }
        return way.Trim();
    }
    void press(WORD modifier = 0) {
        const HWND before = ::GetFocus();
        modifier ? pressKey(modifier, VK_TAB) : pressKey(VK_TAB);
        EXPECT_TRUE(pumpUntil([&] { return ::GetFocus() != before; })) << "after " << name();
    }
    static CString name() {
        static const char* const names[] = {"first", "bar",  "last", "child", "many",
                                            "group", "grey", "one",  "two"};
        const int id = ::GetDlgCtrlID(::GetFocus());
        return id > 100 && id < 110 ? names[id - 101] : "?";
    }

protected:
    void OnOK() override {}
};

TEST(OutBarTab, GoesThroughTheOpenFolder) {
    CTabDialog dialog;
    ASSERT_TRUE(dialog.make());
    ASSERT_TRUE(waitUntil([&] { return ::GetForegroundWindow() == dialog.m_hWnd; }));
    CGfxOutBarCtrl& bar = dialog.bar;
    bar.AddFolder("项");
    bar.InsertItem(0, 0, "x");
    bar.AddFolderBar("窗", &dialog.child);
    bar.AddFolderBar("行", &dialog.many);
    bar.AddFolderBar("组", &dialog.group);
    bar.AddFolderBar("空", NULL);
    const struct {
        const char* name;
        int folder;
        std::function<void()> change;
        const char* way;
    } rows[] = {
        {"items", 0, [] {}, "bar last first bar"},
        {"a field", 1, [] {}, "bar child last first"},
        {"a disabled field", 1, [&] { dialog.child.EnableWindow(FALSE); }, "bar last first bar"},
        {"a field of many lines", 2, [] {}, "bar many last first"},
        {"no tab stop", 2, [&] { dialog.many.ModifyStyle(WS_TABSTOP, 0); }, "bar last first bar"},
        {"a group", 3, [] {}, "bar one two last first"},
        {"a group in which nothing is to be seen", 3,
         [&] { dialog.one.ShowWindow(SW_HIDE), dialog.two.ShowWindow(SW_HIDE); }, "bar last first bar"},
        {"an empty folder", 4, [] {}, "bar last first bar"},
        {"a hidden bar", 3, [&] { dialog.two.ShowWindow(SW_SHOW), bar.ShowWindow(SW_HIDE); },
         "last first last first"},
        {"alone in the dialog", 3,
         [&] {
             bar.ShowWindow(SW_SHOW);
             dialog.first.ModifyStyle(WS_TABSTOP, 0);
             dialog.last.ModifyStyle(WS_TABSTOP, 0);
         },
         "bar two bar two"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        bar.SetSelFolder(row.folder);
        row.change();
        EXPECT_STREQ(row.way, dialog.walk(row.folder == 3 && row.way[4] == 'o' ? 5 : 4));
    }
    dialog.DestroyWindow();
}

TEST(OutBarTab, ComesBackAndIsNotLostInAClosedFolder) {
    CTabDialog dialog;
    ASSERT_TRUE(dialog.make());
    ASSERT_TRUE(waitUntil([&] { return ::GetForegroundWindow() == dialog.m_hWnd; }));
    CGfxOutBarCtrl& bar = dialog.bar;
    dialog.child.SetWindowText("abc");
    bar.AddFolderBar("窗", &dialog.child);
    EXPECT_STREQ("bar child", dialog.walk(2));
    EXPECT_EQ(MAKELONG(0, 3), dialog.child.SendMessage(EM_GETSEL)) << "all of it, as dialogs do";
    CString way;
    for (int i = 0; i < 3; ++i) {
        dialog.press(VK_SHIFT);
        way += CTabDialog::name() + " ";
    }
    EXPECT_STREQ("bar first last ", way);
    // Closed, removed, all removed: the bar has the focus instead.
    const std::function<void()> ends[] = {[&] { bar.SetSelFolder(0); }, [&] { bar.RemoveFolder(1); },
                                          [&] { bar.RemoveAllFolder(); }};
    for (const auto& end : ends) {
        bar.AddFolderBar("组", &dialog.group);
        bar.SetSelFolder(1);
        dialog.two.SetFocus();
        ASSERT_EQ(&dialog.two, CWnd::GetFocus());
        end();
        EXPECT_EQ(&bar, CWnd::GetFocus()) << &end - ends;
    }
    dialog.DestroyWindow();
}

} // namespace
