// The outlook bar's contents and geometry.

#include "out_bar_host.h"

#include "support/debug_events.h"
#include "support/gdi_count.h"
#include "support/heap_count.h"

using namespace orv::test;

namespace {

TEST(OutBarNew, StartsWithItsDefaults) {
    CGfxOutBarCtrl bar;
    EXPECT_EQ(0x3FCu, bar.GetFlag());
    EXPECT_EQ(::GetSysColor(COLOR_BACKGROUND), bar.m_crBackground);
    EXPECT_EQ(::GetSysColor(COLOR_WINDOW), bar.m_crWindow2);
    EXPECT_TRUE(bar.m_hHandCursor && bar.m_hDragCursor && bar.m_hNoDragCursor);
    EXPECT_NE(bar.m_hHandCursor, bar.m_hDragCursor);
    EXPECT_EQ(::RegisterWindowMessageA("WM_GFX_OUTBAR_LBUTTON_DOWN"), WM_GFX_OUTBAR_LBUTTON_DOWN);
    // It holds rows before it has a window.
    CBarHost parent;
    ASSERT_TRUE(parent.make());
    EXPECT_EQ(0, bar.AddFolder("a"));
    EXPECT_EQ(1, bar.AddFolderBar("c", &parent.other));
    EXPECT_EQ(0, bar.InsertItem(0, 5, "b"));
    EXPECT_FALSE(bar.StartItemEdit(0));
    EXPECT_EQ(CSize(0, 0), bar.GetItemSize(0, 0, 1));
    EXPECT_TRUE(bar.Create(WS_CHILD, CRect(0, 0, 9, 9), &parent, 3));
    EXPECT_EQ(&parent.other, bar.GetFolderChild(1));
    EXPECT_EQ(bar.m_hWnd, ::GetParent(parent.other.m_hWnd));
    CBarHost host;
    EXPECT_TRUE(host.make(OUTBAR_SMALL_ICONS));
    EXPECT_EQ(1u, host.bar.GetFlag());
    EXPECT_TRUE(host.bar.GetStyle() & WS_TABSTOP);
    auto* made = RUNTIME_CLASS(CGfxOutBarCtrl)->CreateObject();
    EXPECT_TRUE(made && made->IsKindOf(RUNTIME_CLASS(CWnd)));
    delete made;
}

TEST_F(OutBar, EntriesAreReadFromFoldersThatAreNotOpen) {
    host.fill(3);
    CString all;
    for (int folder = 0; folder < bar.GetFolderCount(); ++folder)
        for (int item = 0; item < bar.GetItemCount(folder); ++item) {
            OUTBAR_INFO info;
            EXPECT_TRUE(bar.GetItemInfo(folder, item, info));
            all.AppendFormat("%d: %s %d %d, ", folder, info.strText, info.nImage,
                             static_cast<int>(info.dwData));
        }
    EXPECT_STREQ("0: 0 0 100, 0: 1 1 101, 0: 2 0 102, 1: x 0 200, 1: y 1 201, ", all);
    EXPECT_EQ(0, bar.GetSelFolder());
}

TEST_F(OutBar, IndexesThatDoNotExist) {
    host.fill(3);
    bar.AddFolder("空");
    for (int index : {-1, 3, INT_MAX, INT_MIN}) {
        SCOPED_TRACE(index);
        CRect rect(1, 2, 3, 4);
        int first = 7, last = 7;
        EXPECT_FALSE(bar.GetFolderRect(index, rect));
        EXPECT_EQ(CRect(0, 0, 0, 0), rect);
        for (int item : {0, -1, 3}) {
            EXPECT_FALSE(bar.GetItemRect(index, item, rect));
            EXPECT_FALSE(bar.GetIconRect(0, index, rect));
            EXPECT_FALSE(bar.GetLabelRect(index, item, rect));
            EXPECT_EQ(CSize(0, 0), bar.GetItemSize(index, item, 3));
        }
        EXPECT_EQ(CSize(0, 0), bar.GetItemSize(0, 0, index == 3 ? 4 : index));
        EXPECT_EQ(index == 3, bar.GetDragItemRect(index, rect)) << "behind the last one";
        bar.GetVisibleRange(index, first, last);
        EXPECT_TRUE(first == -1 && last == -1);
        EXPECT_FALSE(bar.SetSelFolder(index));
        EXPECT_FALSE(bar.RemoveFolder(index));
        EXPECT_FALSE(bar.SetFolderText(index, "?"));
        EXPECT_STREQ("", bar.GetFolderName(index));
        EXPECT_FALSE(bar.GetFolderChild(index));
        EXPECT_EQ(0u, bar.GetFolderData(index));
        EXPECT_FALSE(bar.SetFolderImageList(index, &host.large, 0));
        EXPECT_FALSE(bar.SetFolderImageList(0, &host.large, index));
        EXPECT_FALSE(bar.SetImageList(&host.large, index));
        EXPECT_FALSE(bar.GetFolderImageList(index, true));
        EXPECT_EQ(-1, bar.InsertItem(index, 0, "?"));
        EXPECT_FALSE(bar.IsValidItem(index) || bar.RemoveItem(index) || bar.SetItemText(index, "?") ||
                     bar.SetItemData(index, 1) || bar.SetItemImage(index, 1));
        OUTBAR_INFO info;
        info.strText = "stays";
        EXPECT_FALSE(bar.GetItemInfo(index, 0, info) || bar.GetItemInfo(0, index, info));
        EXPECT_STREQ("stays", info.strText);
        EXPECT_EQ(0, bar.GetItemCount(index));
        EXPECT_STREQ("", bar.GetItemText(index));
        EXPECT_EQ(0u, bar.GetItemData(index));
        EXPECT_EQ(-1, bar.GetItemImage(index));
    }
    int first = 7, last = 7;
    bar.GetVisibleRange(2, first, last);
    EXPECT_TRUE(first == 0 && last == 0) << "a folder without items";
    EXPECT_STREQ("0 1 2", host.texts());
}

TEST_F(OutBar, FoldersComeAndGo) {
    int index;
    EXPECT_EQ(-1, bar.HitTestEx(CPoint(60, 100), index));
    CRect inside;
    bar.GetInsideRect(inside);
    EXPECT_EQ(CRect(0, 0, 120, 300), inside);
    const DWORD_PTR wide = static_cast<DWORD_PTR>(0x123456789ABCull);
    for (const char* name : {"a", "b", "c", "b", ""})
        bar.AddFolder(name, wide + bar.GetFolderCount());
    EXPECT_EQ(0, bar.GetSelFolder()) << "the first one opens";
    EXPECT_EQ(wide + 4, bar.GetFolderData(4));
    const struct {
        const char* name;
        int folder;
    } names[] = {{"a", 0}, {"b", 1}, {"", 4}, {"B", -1}, {NULL, 4}};
    for (const auto& row : names)
        EXPECT_EQ(row.folder, bar.GetFolderText(row.name));
    const struct {
        int open, removed;
        const char* after; // the open folder's name
        int folder;
    } removals[] = {{3, 1, "b", 2}, {2, 3, "b", 2}, {2, 2, "c", 1}, {0, 0, "c", 0}, {0, 0, "", -1}};
    for (const auto& row : removals) {
        bar.SetSelFolder(row.open);
        EXPECT_TRUE(bar.RemoveFolder(row.removed));
        EXPECT_EQ(row.folder, bar.GetSelFolder());
        EXPECT_STREQ(row.after, bar.GetFolderName(bar.GetSelFolder()));
        bar.AssertValid();
    }
    host.fill(30);
    bar.ScrollItems(5);
    bar.RemoveAllFolder();
    EXPECT_EQ(0, bar.GetFolderCount());
    EXPECT_EQ(-1, bar.GetSelFolder());
    EXPECT_EQ(0, bar.m_nFirstItem);
    bar.AssertValid();
}

TEST_F(OutBar, ItemsComeAndGo) {
    host.fill(0);
    const struct {
        int index;
        const char* text;
        int result;
    } rows[] = {{0, "a", 0}, {0, "b", 0}, {1, "c", 1}, {99, "d", 3}, {-1, "e", 4}, {5, NULL, 5}};
    for (const auto& row : rows)
        EXPECT_EQ(row.result, bar.InsertItem(0, row.index, row.text, row.index));
    EXPECT_STREQ("b c a d e ", host.texts());
    const DWORD_PTR wide = static_cast<DWORD_PTR>(0x123456789ABCull);
    EXPECT_TRUE(bar.SetItemData(2, wide) && bar.SetItemText(2, "甲") && bar.SetItemImage(2, 7));
    bar.m_nSelItem = 2;
    EXPECT_EQ(wide, bar.GetCurrentItemData());
    // What is selected stays selected.
    bar.InsertItem(0, 0, "f");
    bar.RemoveItem(1);
    bar.RemoveItem(4);
    EXPECT_STREQ("f c 甲 d ", host.texts());
    EXPECT_EQ(wide, bar.GetCurrentItemData());
    EXPECT_EQ(7, bar.GetItemImage(2));
    bar.RemoveItem(2);
    EXPECT_EQ(0u, bar.GetCurrentItemData());
    // What is seen stays seen, and there is no empty room at the end.
    for (int i = 0; i < 40; ++i)
        bar.InsertItem(0, -1, "z");
    bar.ScrollItems(30);
    bar.InsertItem(0, 3, "y");
    EXPECT_EQ(31, bar.m_nFirstItem);
    while (bar.GetItemCount() > 2)
        bar.RemoveItem(0);
    EXPECT_EQ(0, bar.m_nFirstItem);
    EXPECT_FALSE(bar.m_bUpArrow || bar.m_bDownArrow);
    OUTBAR_INFO info, copy;
    info.strText = "录";
    info.nImage = 1;
    info.dwData = wide;
    copy = info;
    EXPECT_EQ(1, bar.InsertItem(0, 1, copy));
    EXPECT_EQ(wide, bar.GetItemData(1));
    EXPECT_EQ(bar.GetFolderCount() - 1, bar.AddFolder(info));
}

TEST_F(OutBar, ImageListsOfAllFoldersAndOfOne) {
    EXPECT_EQ(&host.small, bar.GetImageList(&host.small, 0)) << "there is no folder";
    host.fill(1);
    EXPECT_EQ(&host.large, bar.GetImageList(NULL, 0));
    EXPECT_EQ(&host.small, bar.GetFolderImageList(1, true));
    EXPECT_TRUE(bar.SetFolderImageList(1, NULL, 0));
    EXPECT_EQ(NULL, bar.GetImageList(NULL, 0)) << "they differ";
    EXPECT_EQ(&host.large, bar.GetFolderImageList(0, false));
    EXPECT_EQ(CSize(0, 0), bar.GetItemSize(1, 0, 1));
}

TEST_F(OutBar, SizesOfIconsLabelsAndItems) {
    host.fill(1);
    for (int image : {-1, 2, INT_MAX, INT_MIN})
        bar.InsertItem(0, -1, "图", image);
    bar.InsertItem(0, -1, "");
    bar.InsertItem(0, -1, "some words that need more than one line of the bar");
    for (bool small : {false, true}) {
        bar.SetSmallIconView(small);
        const CSize icon = small ? CSize(16, 16) : CSize(32, 32), label = bar.GetItemSize(0, 0, 2);
        EXPECT_EQ(icon, bar.GetItemSize(0, 0, 1));
        EXPECT_EQ(small ? CSize(16 + 4 + label.cx, 16) : CSize(32, 32 + label.cy + 3 + 8),
                  bar.GetItemSize(0, 0, 3));
        for (int item = 1; item <= 4; ++item)
            EXPECT_EQ(CSize(0, 0), bar.GetItemSize(0, item, 1)) << "no such picture";
        EXPECT_EQ(label.cy, bar.GetItemSize(0, 5, 2).cy) << "an empty label has a line";
        const CSize words = bar.GetItemSize(0, 6, 2);
        EXPECT_EQ(small, words.cx > 120);
        EXPECT_EQ(small, words.cy == label.cy);
    }
    bar.SetSmallIconView(false);
    bar.SetItemText(5, "没有空格的中文也要分成几行才能全部显示出来的名称");
    EXPECT_LE(bar.GetItemSize(0, 5, 2).cx, 120);
    // Broken again when the width changes.
    const int before = bar.GetItemSize(0, 6, 2).cy;
    bar.SetWindowPos(NULL, 0, 0, 60, 300, SWP_NOMOVE);
    EXPECT_GT(bar.GetItemSize(0, 6, 2).cy, before);
}

TEST_F(OutBar, ArrowsAreHitBeforeWhatLiesUnderThem) {
    host.fill(20);
    bar.SetSmallIconView(true);
    bar.ScrollItems(3);
    ASSERT_TRUE(bar.m_bUpArrow && bar.m_bDownArrow);
    int index = 7;
    EXPECT_EQ(2, bar.HitTestEx(bar.m_rcUpArrow.CenterPoint(), index));
    EXPECT_EQ(-1, index);
    EXPECT_EQ(3, bar.HitTestEx(bar.m_rcDownArrow.CenterPoint(), index));
    EXPECT_EQ(1, bar.HitTestEx(CPoint(10, bar.m_rcUpArrow.CenterPoint().y), index));
    EXPECT_EQ(3, index);
}

TEST_F(OutBar, ChildWindowsAreShownInTheirFolder) {
    CEdit child;
    ASSERT_TRUE(child.Create(WS_CHILD, CRect(0, 0, 1, 1), &host, 9)) << "the bar takes it over";
    host.fill(1);
    EXPECT_EQ(2, bar.AddFolderBar("窗", &child, 5));
    EXPECT_EQ(&child, bar.GetFolderChild(2));
    EXPECT_FALSE(child.IsWindowVisible());
    EXPECT_EQ(-1, bar.InsertItem(2, 0, "no items there"));
    bar.SetSelFolder(2);
    CRect rect, inside;
    child.GetWindowRect(rect);
    bar.ScreenToClient(rect);
    bar.GetInsideRect(inside);
    EXPECT_TRUE(child.IsWindowVisible());
    EXPECT_EQ(inside, rect);
    bar.SetWindowPos(NULL, 0, 0, 90, 200, SWP_NOMOVE);
    child.GetClientRect(rect);
    EXPECT_EQ(90, rect.Width());
    bar.SetSelFolder(0);
    EXPECT_FALSE(child.IsWindowVisible());
    bar.ModifyFlag(0, OUTBAR_ANIMATE);
    bar.SetSelFolder(2);
    EXPECT_TRUE(child.IsWindowVisible());
    child.SetParent(&host);
    EXPECT_EQ(NULL, bar.GetFolderChild(2)) << "it has left";
    bar.SetSelFolder(0);
    EXPECT_TRUE(child.IsWindowVisible());
    child.SetParent(&bar);
    child.DestroyWindow();
    EXPECT_EQ(NULL, bar.GetFolderChild(2));
    bar.SetSelFolder(0);
    ASSERT_TRUE(child.Create(WS_CHILD, CRect(0, 0, 1, 1), &bar, 9));
    bar.AddFolderBar("又", &child);
    bar.SetSelFolder(3);
    bar.RemoveFolder(3);
    EXPECT_TRUE(::IsWindow(child.m_hWnd) && !child.IsWindowVisible()) << "the host's";
    EXPECT_EQ(3, bar.AddFolderBar("空", NULL));
    // Windows around it cannot be in it; one that stood alone can.
    for (CWnd* around : {static_cast<CWnd*>(&bar), static_cast<CWnd*>(&host)}) {
        EXPECT_EQ(NULL, bar.GetFolderChild(bar.AddFolderBar("外", around)));
        EXPECT_TRUE(around->IsWindowVisible());
    }
    CWnd popup;
    ASSERT_TRUE(popup.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP, 0, 0, 9, 9, host.m_hWnd, NULL));
    const int folder = bar.AddFolderBar("弹", &popup);
    EXPECT_EQ(&popup, bar.GetFolderChild(folder));
    bar.SetSelFolder(folder);
    EXPECT_TRUE(popup.IsWindowVisible());
    popup.GetWindowRect(rect);
    bar.ScreenToClient(rect);
    bar.GetInsideRect(inside);
    EXPECT_EQ(inside, rect);
    bar.SetFocus();
    bar.SendMessage(WM_KEYDOWN, VK_RETURN);
    EXPECT_EQ(&popup, CWnd::GetFocus()) << "Enter on its open folder";
}

// Removes a folder while the bar has it drawn.
class CMeddler : public CWnd {
public:
    CGfxOutBarCtrl* bar = NULL;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_PRINT)
            bar->RemoveFolder(bar->GetFolderCount() - 1);
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

TEST_F(OutBar, FoldersGoWhileTheySlide) {
    CMeddler child;
    child.bar = &bar;
    ASSERT_TRUE(child.Create(NULL, "", WS_CHILD, CRect(0, 0, 1, 1), &bar, 9));
    bar.AddFolderBar("窗", &child);
    host.fill(1);
    bar.ModifyFlag(0, OUTBAR_ANIMATE);
    bar.SetSelFolder(2);
    bar.AssertValid();
    EXPECT_EQ(2, bar.GetFolderCount());
    EXPECT_EQ(0, bar.GetSelFolder());
    EXPECT_TRUE(child.IsWindowVisible());
}

TEST_F(OutBar, NamesAndSizesOfAnyLength) {
    host.fill(3);
    bar.ModifyFlag(0, OUTBAR_ANIMATE);
    bar.SetAnimationTickCount(0);
    CString words;
    while (words.GetLength() < 10000)
        words += "字 ";
    for (const CString& text : {CString(), CString('x', 10000), words}) {
        bar.SetItemText(1, text);
        bar.SetFolderText(1, text);
        for (CSize size : {CSize(0, 0), CSize(1, 1), CSize(120, 40), CSize(30, 300), CSize(120, 300)}) {
            for (bool small : {false, true}) {
                bar.SetWindowPos(NULL, 0, 0, size.cx, size.cy, SWP_NOMOVE);
                bar.SetSmallIconView(small);
                bar.SetSelFolder(bar.GetSelFolder() == 0);
                bar.SetSelFolder(0);
                bar.ScrollItems(1);
                EXPECT_TRUE(bar.StartGroupEdit(1) && bar.StartItemEdit(1));
                bar.UpdateWindow();
                EXPECT_EQ(text, bar.GetItemText(1));
                EXPECT_EQ(text, bar.GetFolderName(1)) << "its field was ended by the item's";
                bar.AssertValid();
            }
        }
    }
}

TEST_F(OutBar, NothingStaysBehind) {
    const auto round = [] {
        CBarHost owner;
        ASSERT_TRUE(owner.make(OUTBAR_DEFAULT_FLAGS));
        owner.fill(30);
        owner.ShowWindow(SW_SHOW);
        owner.UpdateWindow();
        owner.bar.SetAnimationTickCount(0);
        owner.bar.SetSelFolder(1);
        owner.bar.SetSelFolder(0);
        owner.bar.ScrollItems(10);
        owner.bar.SetSmallIconView(true);
        for (int i = 0; i < 3; ++i) {
            owner.bar.StartItemEdit(i);
            owner.bar.UpdateWindow();
        }
        owner.bar.RemoveFolder(1);
    };
    round();
    CWnd::DeleteTempMap();
    const int handles = liveGdiHandles();
    const HeapUse heap = heapUse();
    for (int i = 0; i < 3; ++i)
        round();
    CWnd::DeleteTempMap();
    EXPECT_EQ(handles, liveGdiHandles());
    EXPECT_EQ(heap.blocks, heapUse().blocks);
}

TEST_F(OutBar, DumpsWhatItHolds) {
    host.fill(2);
    DebugEvents events;
    bar.Dump(afxDump);
    EXPECT_NE(std::string::npos, events.text().find("first item = 0"));
    EXPECT_NE(std::string::npos, events.text().find("item 1, image = 1"));
}

} // namespace
