// How messages find their handlers, and what the handlers are given.

#include "window_test.h"

#include "support/input.h"

#include <string>
#include <vector>

using namespace orv::test;

namespace {

std::vector<std::string> heard;

template <class... Values>
void hear(LPCSTR format, Values... values) {
    CString text;
    text.Format(format, values...);
    heard.push_back(text.GetString());
}

std::string take() {
    std::string all;
    for (const std::string& line : heard)
        all += (all.empty() ? "" : "; ") + line;
    heard.clear();
    return all;
}

const UINT WM_HOST_NEWS = ::RegisterWindowMessageA("WM_HOST_NEWS");

// Every kind of message once, as its handler gets it.
class CHearingWnd : public CHiddenWnd {
protected:
    afx_msg void OnSize(UINT nType, int cx, int cy) { hear("size %u %d %d", nType, cx, cy); }
    afx_msg void OnMove(int x, int y) { hear("move %d %d", x, y); }
    afx_msg void OnTimer(UINT_PTR nIDEvent) { hear("timer %I64x", ULONGLONG(nIDEvent)); }
    afx_msg void OnMouseMove(UINT nFlags, CPoint point) { hear("mouse %x %d %d", nFlags, point.x, point.y); }
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint point) {
        hear("wheel %x %d %d %d", nFlags, zDelta, point.x, point.y);
        return TRUE;
    }
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
        hear("key %x %u %x", nChar, nRepCnt, nFlags);
    }
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
        hear("scroll %u %u %d", nSBCode, nPos, pScrollBar != NULL);
    }
    afx_msg LRESULT OnNcHitTest(CPoint point) {
        hear("hit %d %d", point.x, point.y);
        return HTBORDER;
    }
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) {
        hear("cursor %d %u %x", pWnd == this, nHitTest, message);
        return TRUE;
    }
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized) {
        hear("activate %u %d %d", nState, pWndOther == this, bMinimized);
    }
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point) {
        hear("menu %d %d %d", pWnd == this, point.x, point.y);
    }
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam) { hear("system %x %I64x", nID, LONGLONG(lParam)); }
    afx_msg void OnCaptureChanged(CWnd* pWnd) { hear("capture %d", pWnd == this); }
    afx_msg void OnEnable(BOOL bEnable) { hear("enable %d", bEnable); }
    afx_msg UINT OnGetDlgCode() { return DLGC_WANTARROWS; }
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI) {
        hear("limits");
        lpMMI->ptMinTrackSize.x = 77;
    }
    afx_msg LRESULT OnUser(WPARAM wParam, LPARAM lParam) {
        hear("user %d %d", int(wParam), int(lParam));
        return 5;
    }
    afx_msg LRESULT OnNews(WPARAM wParam, LPARAM) {
        hear("news %d", int(wParam));
        return 6;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CHearingWnd, CWnd)
ON_WM_SIZE()
ON_WM_MOVE()
ON_WM_TIMER()
ON_WM_MOUSEMOVE()
ON_WM_MOUSEWHEEL()
ON_WM_KEYDOWN()
ON_WM_HSCROLL()
ON_WM_NCHITTEST()
ON_WM_SETCURSOR()
ON_WM_ACTIVATE()
ON_WM_CONTEXTMENU()
ON_WM_SYSCOMMAND()
ON_WM_CAPTURECHANGED()
ON_WM_ENABLE()
ON_WM_GETDLGCODE()
ON_WM_GETMINMAXINFO()
ON_MESSAGE(WM_USER + 3, &CHearingWnd::OnUser)
ON_REGISTERED_MESSAGE(WM_HOST_NEWS, &CHearingWnd::OnNews)
END_MESSAGE_MAP()

TEST(Routing, HandlersGetTheirMessagesTakenApart) {
    Made<CHearingWnd> window;
    const auto self = reinterpret_cast<LPARAM>(window.m_hWnd);
    take();
    MINMAXINFO limits = {};
    const struct {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        const char* expected;
        LRESULT result;
    } rows[] = {
        {WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(40000, 7), "size 2 40000 7", 0},
        {WM_MOVE, 0, MAKELPARAM(-5, 6), "move -5 6", 0},
        {WM_TIMER, static_cast<WPARAM>(0x123456789ABCull), 0, "timer 123456789abc", 0},
        {WM_MOUSEMOVE, MK_SHIFT, MAKELPARAM(-1, -32768), "mouse 4 -1 -32768", 0},
        {WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, -120), MAKELPARAM(-3, 9), "wheel 8 -120 -3 9", 1},
        {WM_KEYDOWN, VK_F4, MAKELPARAM(3, 0x4010), "key 73 3 4010", 0},
        {WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 50000), 0, "scroll 5 50000 0", 0},
        {WM_NCHITTEST, 0, MAKELPARAM(-8, -9), "hit -8 -9", HTBORDER},
        {WM_SETCURSOR, static_cast<WPARAM>(self), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE), "cursor 1 1 200", 1},
        {WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1), self, "activate 2 1 1", 0},
        {WM_CONTEXTMENU, static_cast<WPARAM>(self), -1, "menu 1 -1 -1", 0},
        {WM_SYSCOMMAND, SC_CLOSE, MAKELPARAM(1, 2), "system f060 20001", 0},
        {WM_CAPTURECHANGED, 0, self, "capture 1", 0},
        {WM_ENABLE, FALSE, 0, "enable 0", 0},
        {WM_GETDLGCODE, 0, 0, "", DLGC_WANTARROWS},
        {WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits), "limits", 0},
        // Without its record the message goes to the system, which minds no null here either.
        {WM_USER + 3, 1, -2, "user 1 -2", 5},
        {WM_HOST_NEWS, 8, 0, "news 8", 6},
        // Nobody's.
        {WM_USER + 4, 1, 1, "", 0},
        {WM_HOST_NEWS + 1, 1, 1, "", 0},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.result, window.SendMessage(row.message, row.wParam, row.lParam)) << row.expected;
        EXPECT_EQ(row.expected, take()) << row.message;
    }
    EXPECT_EQ(77, limits.ptMinTrackSize.x);
}

// --- commands and notifications

class CBaseWnd : public CHiddenWnd {
protected:
    afx_msg void OnOne() { hear("base one"); }
    afx_msg void OnTwo() { hear("base two"); }
    afx_msg void OnRange(UINT nID) { hear("base range %u", nID); }
    afx_msg BOOL OnMaybe(UINT nID) {
        hear("base maybe %u", nID);
        return FALSE;
    }
    afx_msg void OnNote(NMHDR* pNMHDR, LRESULT* pResult) {
        hear("base note %d", int(pNMHDR->code));
        *pResult = 9;
    }
    afx_msg BOOL OnNoteRange(UINT nID, NMHDR*, LRESULT*) {
        hear("base notes %u", nID);
        return FALSE;
    }
    afx_msg void OnEdited() { hear("parent edited"); }
    afx_msg void OnUpdateTwo(CCmdUI* pCmdUI) { pCmdUI->Enable(FALSE); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CBaseWnd, CWnd)
ON_COMMAND(1, &CBaseWnd::OnOne)
ON_COMMAND(2, &CBaseWnd::OnTwo)
ON_COMMAND_RANGE(10, 20, &CBaseWnd::OnRange)
ON_COMMAND_EX(30, &CBaseWnd::OnMaybe)
ON_UPDATE_COMMAND_UI(3, &CBaseWnd::OnUpdateTwo)
ON_COMMAND(3, &CBaseWnd::OnTwo)
ON_NOTIFY(NM_CLICK, 50, &CBaseWnd::OnNote)
ON_NOTIFY_EX_RANGE(NM_CLICK, 51, 52, &CBaseWnd::OnNoteRange)
ON_EN_CHANGE(60, &CBaseWnd::OnEdited)
END_MESSAGE_MAP()

class CDerivedWnd : public CBaseWnd {
protected:
    afx_msg void OnOne() { hear("derived one"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CDerivedWnd, CBaseWnd)
ON_COMMAND(1, &CDerivedWnd::OnOne)
END_MESSAGE_MAP()

TEST(Routing, CommandsGoToTheMostDerivedMapAndOn) {
    Made<CDerivedWnd> window;
    const struct {
        WPARAM command;
        const char* expected;
        bool taken;
    } rows[] = {
        {1, "derived one", true},
        {2, "base two", true},
        {9, "", false},
        {10, "base range 10", true},
        {20, "base range 20", true},
        {21, "", false},
        {30, "base maybe 30", false},
        {MAKEWPARAM(1, 1), "derived one", true}, // by an accelerator
        {3, "", true},                           // disabled: nothing happens
        {0, "", false},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.taken, window.SendMessage(WM_COMMAND, row.command) == 1) << row.command;
        EXPECT_EQ(row.expected, take()) << row.command;
    }
    AFX_CMDHANDLERINFO info = {};
    EXPECT_TRUE(window.OnCmdMsg(2, CN_COMMAND, NULL, &info));
    EXPECT_EQ(&window, info.pTarget);
    EXPECT_EQ("", take()) << "asking calls nobody";
}

// --- what comes back to the controls

class CReflectingEdit : public CEdit {
public:
    BOOL m_bKeep = FALSE;

protected:
    afx_msg BOOL OnEdited() {
        hear("own edited");
        return m_bKeep;
    }
    afx_msg HBRUSH CtlColor(CDC* pDC, UINT nCtlColor) {
        hear("own color %u %d", nCtlColor, pDC != NULL);
        return m_bKeep ? static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)) : NULL;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CReflectingEdit, CEdit)
ON_CONTROL_REFLECT_EX(EN_CHANGE, &CReflectingEdit::OnEdited)
ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

TEST(Routing, ControlsHearFirstAndMayPassOn) {
    Made<CDerivedWnd> parent;
    CReflectingEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD, CRect(0, 0, 50, 20), &parent, 60));
    edit.SetWindowText("甲");
    EXPECT_EQ("own edited; parent edited", take());
    edit.m_bKeep = TRUE;
    edit.SetWindowText("乙");
    EXPECT_EQ("own edited", take());

    CClientDC dc(&edit);
    auto ask = [&] {
        return reinterpret_cast<HBRUSH>(parent.SendMessage(
            WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc.m_hDC), reinterpret_cast<LPARAM>(edit.m_hWnd)));
    };
    EXPECT_EQ(static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)), ask());
    EXPECT_EQ("own color 1 1", take());
    edit.m_bKeep = FALSE;
    EXPECT_NE(static_cast<HBRUSH>(NULL), ask()) << "without a brush the parent's holds";
    take();

    NMHDR note = {edit.m_hWnd, 50, static_cast<UINT>(NM_CLICK)};
    edit.SetDlgCtrlID(50);
    EXPECT_EQ(9, parent.SendMessage(WM_NOTIFY, 50, reinterpret_cast<LPARAM>(&note)));
    EXPECT_EQ("base note -2", take());
    edit.SetDlgCtrlID(52);
    EXPECT_EQ(0, parent.SendMessage(WM_NOTIFY, 52, reinterpret_cast<LPARAM>(&note)));
    EXPECT_EQ("base notes 52", take());
}

class CRecordingCombo : public CComboBox {
public:
    void DrawItem(LPDRAWITEMSTRUCT) override { hear("draw"); }
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override {
        hear("measure");
        lpMeasureItemStruct->itemHeight = 23;
    }
    void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct) override {
        hear("delete %d", int(lpDeleteItemStruct->itemData));
    }
    int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct) override {
        return lpCompareItemStruct->itemData1 < lpCompareItemStruct->itemData2 ? -1 : 1;
    }
};

TEST(Routing, OwnerDrawnItemsAreTheControlsOwnUntilTheEnd) {
    Made<CHiddenWnd> parent;
    CRecordingCombo combo;
    ASSERT_TRUE(combo.Create(WS_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_SORT,
                             CRect(0, 0, 90, 100), &parent, 7));
    EXPECT_NE(std::string::npos, take().find("measure"));
    EXPECT_EQ(23, combo.GetItemHeight(0));
    for (int data : {30, 10, 20})
        combo.SendMessage(CB_ADDSTRING, 0, data);
    EXPECT_EQ(10, int(combo.GetItemData(0)));
    EXPECT_EQ(30, int(combo.GetItemData(2)));
    combo.DeleteString(1);
    EXPECT_EQ("delete 20", take());
    // The combo deletes its items while it is being destroyed: its object is still there.
    combo.DestroyWindow();
    const std::string last = take();
    EXPECT_NE(std::string::npos, last.find("delete 10")) << last;
    EXPECT_NE(std::string::npos, last.find("delete 30")) << last;
}

// --- menus

TEST(Routing, MenuItemsFollowTheirHandlers) {
    class CUpdatedFrame : public CFrameWnd {
    public:
        BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override {
            if (nID != 100 && nID != 101)
                return FALSE;
            if (nCode == static_cast<int>(CN_UPDATE_COMMAND_UI)) {
                auto* ui = static_cast<CCmdUI*>(pExtra);
                ui->Enable(nID == 100);
                ui->SetCheck(nID == 100);
                if (nID == 100)
                    ui->SetText("新名");
                return TRUE;
            }
            return CFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
        }
    };
    auto* frame = new CUpdatedFrame;
    ASSERT_TRUE(frame->Create(NULL, "frame"));
    CMenu menu;
    menu.CreatePopupMenu();
    for (UINT id : {100u, 101u, 102u})
        menu.AppendMenu(MF_STRING, id, "旧名");
    frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
    EXPECT_EQ(UINT(MF_CHECKED), menu.GetMenuState(100, MF_BYCOMMAND) & (MF_CHECKED | MF_GRAYED));
    EXPECT_EQ(UINT(MF_GRAYED), menu.GetMenuState(101, MF_BYCOMMAND) & (MF_CHECKED | MF_GRAYED));
    EXPECT_EQ(UINT(MF_GRAYED), menu.GetMenuState(102, MF_BYCOMMAND) & (MF_CHECKED | MF_GRAYED))
        << "no handler";
    CString text;
    menu.GetMenuString(100, text, MF_BYCOMMAND);
    EXPECT_STREQ("新名", text);
    // What is no menu has no items, and is through at once.
    menu.DestroyMenu();
    for (const WPARAM none : {WPARAM(1), WPARAM(0x24), WPARAM(-1)})
        frame->SendMessage(WM_INITMENUPOPUP, none, 0);
    frame->DestroyWindow();
}

// --- typed characters, where no other test types them

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

TEST(Routing, TypedChineseArrivesInRichFieldsAndAsBytes) {
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
