// The wrappers of controls, menus and the system's dialogs.

#include "window_test.h"

namespace {

class Controls : public testing::Test {
protected:
    Made<CHiddenWnd> parent;
    const CRect rect{0, 0, 80, 80};
};

TEST_F(Controls, ListsAndCombosHoldTexts) {
    CListBox list;
    CComboBox combo;
    ASSERT_TRUE(list.Create(WS_CHILD, rect, &parent, 1));
    ASSERT_TRUE(combo.Create(WS_CHILD | CBS_DROPDOWN, rect, &parent, 2));
    auto check = [](auto& control, auto getText) {
        EXPECT_EQ(0, control.AddString("甲文"));
        EXPECT_EQ(1, control.AddString("丙"));
        EXPECT_EQ(1, control.InsertString(1, "乙abc"));
        EXPECT_EQ(3, control.GetCount());
        CString text;
        getText(1, text);
        EXPECT_STREQ("乙abc", text);
        getText(9, text);
        EXPECT_STREQ("", text);
        EXPECT_EQ(2, control.FindStringExact(-1, "丙"));
        EXPECT_EQ(1, control.FindString(-1, "乙"));
        EXPECT_EQ(LB_ERR, control.FindString(-1, "丁"));
        EXPECT_EQ(1, control.SelectString(-1, "乙"));
        EXPECT_EQ(1, control.GetCurSel());
        control.SetItemData(2, static_cast<DWORD_PTR>(0x1234567890ull));
        control.DeleteString(0);
        EXPECT_EQ(static_cast<DWORD_PTR>(0x1234567890ull), control.GetItemData(1));
        control.ResetContent();
        EXPECT_EQ(0, control.GetCount());
        EXPECT_EQ(LB_ERR, control.SetCurSel(5));
    };
    check(list, [&](int i, CString& s) { list.GetText(i, s); });
    check(combo, [&](int i, CString& s) { combo.GetLBText(i, s); });
}

TEST_F(Controls, EditsAndRichEditsHoldTexts) {
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | ES_MULTILINE, rect, &parent, 1));
    edit.SetWindowText("第一行\r\n第二行x");
    EXPECT_EQ(2, edit.GetLineCount());
    char line[8] = "";
    EXPECT_EQ(7, edit.GetLine(1, line, 8));
    EXPECT_EQ(0, memcmp(line, "第二行x", 7));
    edit.SetSel(0, 2);
    edit.ReplaceSel("首", TRUE);
    CString text;
    edit.GetWindowText(text);
    EXPECT_STREQ("首行\r\n第二行x", text);
    int start = 0, end = 0;
    edit.GetSel(start, end);
    EXPECT_TRUE(start == 1 && end == 1);
    EXPECT_TRUE(edit.CanUndo());

    CRichEditCtrl rich;
    ASSERT_TRUE(rich.Create(WS_CHILD | ES_MULTILINE, rect, &parent, 2));
    rich.SetWindowText("线型与线宽");
    rich.GetWindowText(text);
    EXPECT_STREQ("线型与线宽", text);
    rich.SetSel(0, 2);
    EXPECT_STREQ("线型", rich.GetSelText());
    CHARFORMAT format = {}, now = {};
    format.dwMask = CFM_SIZE;
    format.yHeight = 400;
    EXPECT_TRUE(rich.SetSelectionCharFormat(format));
    rich.GetSelectionCharFormat(now);
    EXPECT_EQ(400, now.yHeight);
    rich.SetSel(3, 5);
    rich.GetSelectionCharFormat(now);
    EXPECT_NE(400, now.yHeight);
    rich.SetSel(2, 5);
    rich.ReplaceSel("和比例");
    rich.GetWindowText(text);
    EXPECT_STREQ("线型和比例", text);
}

TEST_F(Controls, ButtonsStaticsBarsAndProgress) {
    CButton button;
    ASSERT_TRUE(button.Create("按", WS_CHILD | BS_AUTOCHECKBOX, rect, &parent, 1));
    button.SendMessage(BM_CLICK);
    EXPECT_EQ(1, button.GetCheck());
    EXPECT_EQ(UINT(BS_AUTOCHECKBOX), button.GetButtonStyle());
    CStatic label;
    ASSERT_TRUE(label.Create("标", WS_CHILD, rect, &parent));
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | SBS_HORZ, rect, &parent, 2));
    SCROLLINFO info = {};
    info.fMask = SIF_ALL;
    info.nMax = 99;
    info.nPage = 10;
    info.nPos = 95;
    EXPECT_TRUE(bar.SetScrollInfo(&info));
    EXPECT_EQ(90, bar.GetScrollPos()) << "the last page ends at the end";
    CProgressCtrl progress;
    ASSERT_TRUE(progress.Create(WS_CHILD, rect, &parent, 3));
    progress.SetRange32(0, 100000);
    progress.SetPos(70000);
    EXPECT_EQ(70000, progress.GetPos());
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.Create(WS_CHILD, rect, &parent, 4));
    EXPECT_EQ(0, tabs.InsertItem(0, "页一"));
    EXPECT_EQ(1, tabs.InsertItem(1, "页二"));
    EXPECT_EQ(2, tabs.GetItemCount());
    // What a control gets when nobody has set it aside.
    EXPECT_EQ(&parent, label.GetParent());
    EXPECT_EQ(&parent, label.GetOwner());
    label.SetOwner(&button);
    EXPECT_EQ(&button, label.GetOwner());
    EXPECT_EQ(&tabs, parent.GetDescendantWindow(4, TRUE));
}

TEST_F(Controls, ToolTipsKnowTheirTools) {
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(&parent, TTS_ALWAYSTIP));
    CButton button;
    ASSERT_TRUE(button.Create("按", WS_CHILD, rect, &parent, 1));
    EXPECT_TRUE(tip.AddTool(&button, "窗口的提示"));
    EXPECT_TRUE(tip.AddTool(&parent, 300u, CRect(0, 0, 5, 5), 7));
    EXPECT_EQ(2, tip.GetToolCount());
    CString text;
    tip.GetText(text, &button);
    EXPECT_STREQ("窗口的提示", text);
    tip.GetText(text, &parent, 7);
    EXPECT_STREQ("提示文字", text);
    tip.UpdateTipText("新", &parent, 7);
    tip.GetText(text, &parent, 7);
    EXPECT_STREQ("新", text);
    tip.DelTool(&button);
    EXPECT_EQ(1, tip.GetToolCount());
    EXPECT_TRUE(parent.EnableToolTips(TRUE));
    EXPECT_TRUE(parent.EnableToolTips(FALSE));
}

TEST_F(Controls, ImageListsOwnTheirPictures) {
    CImageList list;
    ASSERT_TRUE(list.Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 4));
    CBitmap bitmap;
    CClientDC dc(&parent);
    bitmap.CreateCompatibleBitmap(&dc, 32, 16);
    EXPECT_EQ(0, list.Add(&bitmap, RGB(255, 0, 255)));
    EXPECT_EQ(2, list.GetImageCount());
    EXPECT_EQ(&list, CImageList::FromHandle(list.m_hImageList));
    EXPECT_TRUE(list.Draw(&dc, 1, CPoint(0, 0), ILD_NORMAL));
    EXPECT_TRUE(list.Remove(0));
    EXPECT_EQ(1, list.GetImageCount());
    HIMAGELIST handle = list.Detach();
    EXPECT_EQ(NULL, list.GetSafeHandle());
    EXPECT_TRUE(::ImageList_Destroy(handle));
}

TEST_F(Controls, MenusHoldTheirItems) {
    CMenu menu, popup;
    ASSERT_TRUE(menu.CreateMenu());
    ASSERT_TRUE(popup.CreatePopupMenu());
    popup.AppendMenu(MF_STRING, 5, "项目");
    menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(popup.m_hMenu), "菜单");
    EXPECT_EQ(&popup, menu.GetSubMenu(0));
    popup.Detach();
    EXPECT_NE(&popup, menu.GetSubMenu(0)) << "a temporary object now";
    EXPECT_EQ(5u, menu.GetSubMenu(0)->GetMenuItemID(0));
    EXPECT_FALSE(popup.LoadMenu(9999u));
}

TEST_F(Controls, GeometryAndState) {
    parent.MoveWindow(100, 120, 300, 200);
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_EMPTY, &parent));
    parent.ShowWindow(SW_SHOWNA);
    dialog.CenterWindow();
    CRect outer, inner;
    parent.GetWindowRect(&outer);
    dialog.GetWindowRect(&inner);
    EXPECT_LE(abs(outer.CenterPoint().x - inner.CenterPoint().x), 1);
    EXPECT_LE(abs(outer.CenterPoint().y - inner.CenterPoint().y), 1);
    CRect client(10, 10, 20, 20);
    parent.ClientToScreen(&client);
    EXPECT_EQ(CRect(110, 130, 120, 140), client);
    parent.ScreenToClient(&client);
    EXPECT_EQ(CRect(10, 10, 20, 20), client);
    EXPECT_TRUE(parent.ModifyStyle(0, WS_VSCROLL, SWP_FRAMECHANGED));
    EXPECT_FALSE(parent.ModifyStyle(0, WS_VSCROLL));
    EXPECT_TRUE(parent.GetStyle() & WS_VSCROLL);
    EXPECT_EQ(&parent, dialog.GetTopLevelParent()) << "owners count as parents";
    EXPECT_TRUE(dialog.SetWindowPos(&CWnd::wndTop, 0, 0, 50, 60, SWP_NOMOVE));
    dialog.GetWindowRect(&inner);
    EXPECT_EQ(50, inner.Width());
    CFont font;
    font.CreatePointFont(120, "SimSun");
    dialog.GetDlgItem(IDOK)->SetFont(&font);
    EXPECT_EQ(&font, dialog.GetDlgItem(IDOK)->GetFont());
}

// --- the dialog of files; those of colours and fonts are shown by those who open them

void CALLBACK cancelFiles(HWND, UINT, UINT_PTR, DWORD) {
    const HWND dialog = ::FindWindowA("#32770", NULL);
    if (::IsWindowVisible(dialog))
        ::PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
}

TEST_F(Controls, TheDialogOfFilesMayBeCancelled) {
    const UINT_PTR timer = ::SetTimer(NULL, 0, 10, cancelFiles);
    CFileDialog file(TRUE, "lin", "orvDrawType.lin", OFN_HIDEREADONLY, "线型 (*.lin)|*.lin|所有|*.*||",
                     &parent);
    EXPECT_EQ(IDCANCEL, file.DoModal());
    ::KillTimer(NULL, timer);
}

TEST(FileDialog, TakesNamesApart) {
    const struct {
        const char *path, *name, *title, *ext, *folder;
    } rows[] = {{"C:\\a\\b.c", "b.c", "b", "c", "C:\\a"},
                {"C:\\线型\\表.x.lin", "表.x.lin", "表.x", "lin", "C:\\线型"},
                {"C:\\a.b\\c", "c", "c", "", "C:\\a.b"}};
    for (const auto& row : rows) {
        CFileDialog dialog(FALSE, NULL, row.path);
        EXPECT_STREQ(row.path, dialog.GetPathName());
        EXPECT_STREQ(row.name, dialog.GetFileName());
        EXPECT_STREQ(row.title, dialog.GetFileTitle());
        EXPECT_STREQ(row.ext, dialog.GetFileExt());
        EXPECT_STREQ(row.folder, dialog.GetFolderPath());
        POSITION pos = dialog.GetStartPosition();
        EXPECT_STREQ(row.path, dialog.GetNextPathName(pos));
        EXPECT_EQ(NULL, pos);
    }
    // A name that is too long loses no half character.
    CString overlong('a', MAX_PATH - 2);
    overlong += "文";
    EXPECT_STREQ(overlong.Left(MAX_PATH - 2), CFileDialog(FALSE, NULL, overlong).GetPathName());
    CFileDialog several(TRUE, NULL, NULL, OFN_ALLOWMULTISELECT);
    char names[] = "C:\\a\0b.c\0d.e\0";
    several.m_ofn.lpstrFile = names;
    POSITION pos = several.GetStartPosition();
    EXPECT_STREQ("C:\\a\\b.c", several.GetNextPathName(pos));
    EXPECT_STREQ("C:\\a\\d.e", several.GetNextPathName(pos));
    EXPECT_EQ(NULL, pos);
    CFileDialog filtered(TRUE, NULL, NULL, 0, "表|*.x||");
    EXPECT_EQ(0, memcmp(filtered.m_ofn.lpstrFilter, "表\0*.x\0", 8));
}

} // namespace
