// The outlook bar under a user's hands.

#include "out_bar_host.h"

#include <memory>

using namespace orv::test;

namespace {

class OutBarInput : public OutBar {
protected:
    // The condition that this many clicks have arrived.
    Steps::Condition clicked(int times) {
        return [this, times] { return host.clicks == times; };
    }
    Steps::Action press(CPoint at) {
        return [at] { pressMouse(at.x, at.y); };
    }
    Steps::Action move(CPoint at) {
        return [at] { moveMouse(at.x, at.y); };
    }
    Steps::Action release(CPoint at) {
        return [at] { releaseMouse(at.x, at.y); };
    }
    Steps::Action clickOn(CPoint at) {
        return [at] { clickAt(at.x, at.y); };
    }
    Steps::Action key(WORD key) {
        return [key] { pressKey(key); };
    }
    // A place on a drag's way, and the condition that it has arrived there.
    struct Stop {
        CPoint at;
        Steps::Condition arrived;
    };
    // From the first place by these stops, and let go at the last one.
    void drag(CPoint from, const std::vector<Stop>& way) {
        Steps steps;
        steps.then(press(from));
        Steps::Condition arrived = held;
        for (const Stop& stop : way) {
            steps.when(arrived, move(stop.at));
            arrived = stop.arrived;
        }
        steps.when(arrived, release(way.back().at)).run(idle);
    }
    // The field over a name has the keyboard.
    Steps::Condition renames() {
        return [this] { return ::GetParent(::GetFocus()) == bar.m_hWnd; };
    }
    Steps::Condition dropsAt(int index) {
        return [this, index] { return bar.m_nLastDragItemDraw == index; };
    }
    // A press of the key, and the wait for what it does.
    static bool keyUntil(WORD key, const Steps::Condition& done) {
        pressKey(key);
        return waitUntil(done);
    }
    static bool held() { return ::GetCapture() != NULL; }
    static bool idle() { return ::GetCapture() == NULL; }
};

TEST_F(OutBarInput, HoverFollowsTheMouseAndLeaves) {
    host.fill(3);
    Steps()
        .then(move(host.item(1)))
        .when([&] { return bar.m_nLastItemHighlighted == 1 && ::GetCursor() == bar.m_hHandCursor; },
              move(host.header(1)))
        .when([&] { return bar.m_nLastFolderHighlighted == 1 && bar.m_nLastItemHighlighted == -1; },
              move(CPoint(900, 900)))
        .run([&] { return bar.m_nLastFolderHighlighted == -1; });
    EXPECT_FALSE(bar.KillTimer(1)) << "the timer rests with the mouse away";
    // The header goes from under a resting mouse.
    Steps()
        .then(move(host.header(1)))
        .when([&] { return bar.m_nLastFolderHighlighted == 1; }, [&] { bar.SetSelFolder(1); })
        .run([&] { return bar.m_nLastFolderHighlighted == -1; });
    bar.SetSelFolder(0);
    // Covered by another window the bar is left too.
    Steps().then(move(host.item(0))).run([&] { return bar.m_nLastItemHighlighted == 0; });
    CWnd cover;
    ASSERT_TRUE(cover.CreateEx(WS_EX_TOPMOST, AfxRegisterWndClass(0), "", WS_POPUP | WS_VISIBLE, 100, 100,
                               400, 400, NULL, NULL));
    EXPECT_TRUE(waitUntil([&] { return bar.m_nLastItemHighlighted == -1; }));
    cover.DestroyWindow();
}

TEST_F(OutBarInput, OneMessageForEachClick) {
    host.fill(3);
    // A header opens its folder, and is none.
    Steps()
        .then(clickOn(host.header(1)))
        .when([&] { return bar.GetSelFolder() == 1; }, [&] { clickAt(host.header(0).x, host.header(0).y); })
        .run([&] { return bar.GetSelFolder() == 0; });
    host.onClick = [&] { EXPECT_EQ(host.clicks == 1 ? 102u : 100u, bar.GetCurrentItemData()); };
    Steps().then(clickOn(host.item(2))).when(clicked(1), clickOn(host.item(0))).run(clicked(2));
    EXPECT_EQ(0, bar.m_nSelItem);
    EXPECT_EQ(bar.m_hWnd, ::GetFocus());
    // A press that is let go elsewhere, or cancelled, is none.
    const int moved = ::GetSystemMetrics(SM_CXDRAG);
    bar.ModifyFlag(OUTBAR_DRAG_ITEMS, 0);
    Steps()
        .then(press(host.item(1)))
        .when([&] { return held() && bar.m_nLastItemHighlighted == 1; },
              move(host.item(2) + CPoint(moved, 0)))
        .when([&] { return bar.m_nLastItemHighlighted == -1; }, release(host.item(2)))
        .when(idle, press(host.item(1)))
        .when(held, key(VK_ESCAPE))
        .when(idle, release(host.item(1)))
        .run([] { return ::GetAsyncKeyState(VK_LBUTTON) >= 0; });
    EXPECT_EQ(2, host.clicks);
    EXPECT_EQ(0, bar.m_nSelItem);
    EXPECT_STREQ("0 1 2", host.texts());
    // Let go on another folder's item in the same place.
    CRect icon;
    bar.GetIconRect(0, 1, icon);
    const CPoint place = host.toScreen(CPoint(icon.CenterPoint().x, icon.bottom - 3));
    int index = -1;
    Steps().then(press(place)).when(held, [&] { bar.SetSelFolder(1); }).then(release(place)).run(idle);
    EXPECT_EQ(1, host.hit(place, index));
    EXPECT_EQ(1, index);
    EXPECT_EQ(2, host.clicks);
    // A bar that is its own listener.
    bar.SetNotifyWnd(&bar);
    Steps().then(clickOn(host.item(0))).run([&] { return bar.clicks == 1; });
}

TEST_F(OutBarInput, ArrowsScrollOnceAndAgainWhileHeld) {
    host.fill(20);
    EXPECT_FALSE(bar.m_bUpArrow);
    EXPECT_TRUE(bar.m_bDownArrow);
    const CPoint down = host.middle(bar.m_rcDownArrow);
    Steps().then(clickOn(down)).run([&] { return bar.m_bUpArrow && idle() && !bar.m_bDownPressed; });
    EXPECT_EQ(1, bar.m_nFirstItem);
    // Held it goes on; beside the arrow it rests; at the end the arrow goes.
    int rested = -1;
    Steps()
        .then(press(down))
        .when([&] { return bar.m_nFirstItem >= 4 && bar.m_bDownPressed; }, move(down - CPoint(60, 0)))
        .when([&] { return !bar.m_bDownPressed; }, [&] { rested = bar.m_nFirstItem, bar.repeats = 0; })
        .when([&] { return bar.repeats >= 3; },
              [&] {
                  EXPECT_EQ(rested, bar.m_nFirstItem);
                  moveMouse(down.x, down.y);
              })
        .when([&] { return !bar.m_bDownArrow; }, release(down))
        .run(idle);
    int first, last;
    bar.GetVisibleRange(0, first, last);
    EXPECT_EQ(19, last);
    const CPoint up = host.middle(bar.m_rcUpArrow);
    Steps().then(press(up)).when([&] { return bar.m_nFirstItem == 0; }, release(up)).run(idle);
    EXPECT_FALSE(bar.m_bUpArrow);
}

TEST_F(OutBarInput, TheWheelScrollsByNotches) {
    host.fill(20);
    for (short part : {-40, -40, -40, -240})
        bar.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, part), 0);
    EXPECT_EQ(3, bar.m_nFirstItem);
    bar.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -60), 0);
    bar.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 60), 0);
    EXPECT_EQ(3, bar.m_nFirstItem) << "half a notch forth and back";
    bar.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 32760), 0);
    EXPECT_EQ(0, bar.m_nFirstItem);
}

TEST_F(OutBarInput, DragsWithinTheFolder) {
    host.fill(3);
    bar.m_nSelItem = 0;
    const CPoint below = host.item(2) + CPoint(0, 10), above = host.item(0) - CPoint(0, 40);
    Steps()
        .then(press(host.item(0)))
        .when(held, move(below))
        .when(dropsAt(3),
              [&] {
                  EXPECT_EQ(2, bar.m_nLastDragItemDrawType);
                  EXPECT_EQ(bar.m_hDragCursor, ::GetCursor());
                  CRect mark;
                  EXPECT_TRUE(bar.GetDragItemRect(3, mark));
                  bar.UpdateWindow();
                  EXPECT_TRUE(host.shows(mark.CenterPoint().x, mark.CenterPoint().y, bar.m_crWindow));
              })
        .then(release(below))
        .run(idle);
    EXPECT_STREQ("1 2 0", host.texts());
    EXPECT_EQ(2, bar.m_nSelItem) << "still the same item";
    EXPECT_EQ(-1, bar.m_nLastDragItemDraw);
    drag(host.item(2), {{above, [&] { return bar.m_nLastDragItemDrawType == 0; }}});
    EXPECT_STREQ("0 1 2", host.texts());
    drag(host.item(0), {{host.item(1) + CPoint(0, 10), dropsAt(2)}});
    EXPECT_STREQ("1 0 2", host.texts());
    EXPECT_EQ(0, host.clicks);
}

TEST_F(OutBarInput, DragsIntoAnotherFolderWithScrolling) {
    host.fill(20);
    for (int i = 0; i < 20; ++i)
        bar.InsertItem(1, -1, "z", 0, 300);
    // In the open folder, so far below its top or, negative, above its bottom.
    const auto inside = [&](int y) {
        CRect rect;
        bar.GetInsideRect(rect);
        return host.toScreen(CPoint(rect.CenterPoint().x, (y < 0 ? rect.bottom : rect.top) + y));
    };
    bar.SetSelFolder(1);
    const CPoint edge = inside(-3), between = inside(70);
    bar.SetSelFolder(0);
    // Over the other header until it opens, at the lower edge until it scrolls, then between two items.
    // On a busy machine it scrolls on before the mouse is away.
    int first = 0;
    const auto scrolled = [&] { return bar.m_nFirstItem >= 3; };
    const auto marked = [&] {
        first = bar.m_nFirstItem;
        return scrolled() && bar.m_nLastDragItemDraw == first + 1;
    };
    drag(host.item(1),
         {{host.header(1), [&] { return bar.GetSelFolder() == 1; }}, {edge, scrolled}, {between, marked}});
    EXPECT_EQ(23, bar.GetItemCount());
    EXPECT_STREQ("1", bar.GetItemText(first + 1));
    EXPECT_EQ(101u, bar.GetItemData(first + 1));
    // On a header: behind the last one.
    drag(host.item(first + 1), {{host.header(0), [&] { return bar.m_nLastFolderHighlighted == 0; }}});
    bar.SetSelFolder(1); // a header under the mouse for long has opened its folder
    EXPECT_EQ(22, bar.GetItemCount());
    bar.SetSelFolder(0);
    EXPECT_EQ(20, bar.GetItemCount());
    EXPECT_STREQ("1", bar.GetItemText(19));
    // Scrolled away within its folder an item leaves a gap above: what is seen stays.
    drag(host.item(0), {{inside(-3), scrolled}, {inside(70), marked}});
    EXPECT_EQ(first - 1, bar.m_nFirstItem);
    EXPECT_STREQ("0", bar.GetItemText(first));
}

TEST_F(OutBarInput, DragsThatEndWithoutADrop) {
    host.fill(3);
    CEdit child;
    ASSERT_TRUE(child.Create(WS_CHILD, CRect(0, 0, 1, 1), &bar, 9));
    bar.AddFolderBar("窗", &child);
    const CPoint below = host.item(2) + CPoint(0, 10), outside = host.toScreen(CPoint(200, 150));
    const struct {
        const char* name;
        CPoint to;
        Steps::Action end;
    } rows[] = {{"Esc", below, key(VK_ESCAPE)},
                {"the right button", below, [&] { rightClickAt(below.x, below.y); }},
                {"out of the bar", outside, release(outside)},
                {"a folder without items", host.header(2), release(host.header(2))},
                {"the capture is taken away", below, [] { ::ReleaseCapture(); }},
                {"the button is let go unseen", below, [&] { bar.PostMessage(WM_MOUSEMOVE, 0, 0); }},
                {"disabled", below, [&] { bar.EnableWindow(FALSE), bar.EnableWindow(TRUE); }},
                {"a row comes", below, [&] { bar.RemoveItem(bar.InsertItem(0, -1, "neu")); }},
                {"another folder goes", below, [&] { bar.RemoveFolder(bar.AddFolder("neu")); }}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Steps()
            .then(press(host.item(0)))
            .when(held, move(row.to))
            .when([&] { return ::GetCursor() == bar.m_hNoDragCursor || ::GetCursor() == bar.m_hDragCursor; },
                  row.end)
            .when(idle, release(outside))
            .run([&] { return bar.m_nLastDragItemDraw == -1; });
        bar.SetSelFolder(0); // a header under the mouse for long has opened its folder
        EXPECT_STREQ("0 1 2", host.texts());
        EXPECT_EQ(0, host.clicks + host.menus);
    }
    // The folder that the item comes from, then the window: nothing of the drag is left when there is one
    // again.
    for (const bool window : {false, true}) {
        Steps()
            .then(press(host.item(0)))
            .when(held, move(below))
            .when(dropsAt(window ? 2 : 3), [&] { window ? bar.DestroyWindow() : bar.RemoveFolder(0); })
            .when(idle, release(below))
            .run(idle);
        EXPECT_STREQ("x y", host.texts());
        EXPECT_EQ(-1, bar.m_nLastDragItemDraw);
        bar.AssertValid();
    }
}

// Handlers of the host that end the window, the object or the program in the midst of a press.
TEST(OutBarEnd, TheHostEndsItInMidPress) {
    for (int way = 0; way < 3; ++way) {
        auto owner = std::make_unique<CBarHost>();
        ASSERT_TRUE(owner->make());
        owner->fill(3);
        owner->ShowWindow(SW_SHOW);
        ASSERT_TRUE(waitUntil([&] { return ::GetForegroundWindow() == owner->m_hWnd; }));
        const CPoint at = owner->item(1);
        const auto gone = [&] { return !owner || !owner->bar.m_hWnd || ::GetCapture() == NULL; };
        Steps steps;
        if (way == 0) {
            owner->onClick = [&] { owner->bar.DestroyWindow(); };
            steps.then([&] { clickAt(at.x, at.y); });
            steps.run([&] { return owner->clicks == 1; });
        } else {
            steps.then([&] { pressMouse(at.x, at.y); })
                .when([] { return ::GetCapture() != NULL; },
                      [&] {
                          if (way == 1)
                              owner.reset();
                          else
                              ::PostQuitMessage(7);
                      })
                .run(gone);
            releaseMouse(at.x, at.y);
        }
        if (way == 2) {
            MSG msg;
            EXPECT_TRUE(::PeekMessageW(&msg, NULL, WM_QUIT, WM_QUIT, PM_REMOVE))
                << "kept for the loop outside";
            EXPECT_EQ(7u, msg.wParam);
        }
        owner.reset();
    }
}

TEST_F(OutBarInput, TheKeyboardWalksOpensRenamesAndRemoves) {
    host.fill(20);
    bar.SetFocus();
    ASSERT_TRUE(waitUntil([&] { return ::GetFocus() == bar.m_hWnd; }));
    // Down to the first item, click it; on to the last one, which scrolls into view.
    pressKey(VK_DOWN);
    ASSERT_TRUE(keyUntil(VK_RETURN, clicked(1)));
    EXPECT_EQ(100u, bar.GetCurrentItemData());
    bar.SendMessage(WM_KEYDOWN, VK_RETURN, 1 | KF_REPEAT << 16);
    EXPECT_EQ(1, host.clicks) << "held it is one click";
    pressKey(VK_END);
    pressKey(VK_UP);
    ASSERT_TRUE(keyUntil(VK_RETURN, clicked(2)));
    EXPECT_EQ(119u, bar.GetCurrentItemData());
    int first, last;
    bar.GetVisibleRange(0, first, last);
    EXPECT_EQ(19, last);
    ASSERT_TRUE(keyUntil(VK_DELETE, [&] { return bar.GetItemCount() == 19; }));
    pressKey(VK_PRIOR);
    ASSERT_TRUE(keyUntil(VK_RETURN, clicked(3)));
    EXPECT_EQ(118u - bar.GetCountPerPage(), bar.GetCurrentItemData());
    // The other folder's header, its name, and away with it.
    pressKey(VK_END);
    ASSERT_TRUE(keyUntil(VK_RETURN, [&] { return bar.GetSelFolder() == 1; }));
    ASSERT_TRUE(keyUntil(VK_F2, renames()));
    typeText(L"丙\r");
    ASSERT_TRUE(waitUntil([&] { return bar.GetFolderName(1) == "丙" && ::GetFocus() == bar.m_hWnd; }));
    ASSERT_TRUE(keyUntil(VK_DELETE, [&] { return bar.GetFolderCount() == 1; }));
    EXPECT_EQ(0, bar.GetSelFolder());
    pressKey(VK_HOME);
    ASSERT_TRUE(keyUntil(VK_INSERT, renames()));
    typeText(L"新\r");
    ASSERT_TRUE(waitUntil([&] { return bar.GetItemText(0) == "新"; }));
    pressKey(VK_CONTROL, VK_INSERT);
    ASSERT_TRUE(waitUntil([&] { return bar.GetFolderCount() == 2; }));
    // What the flags do not allow does not happen.
    bar.SetFocus();
    bar.ModifyFlag(OUTBAR_DEFAULT_FLAGS, 0);
    for (WORD key : {VK_HOME, VK_F2, VK_DELETE, VK_INSERT, VK_DOWN, VK_F2, VK_DELETE, VK_RETURN})
        pressKey(key);
    ASSERT_TRUE(waitUntil(clicked(4)));
    EXPECT_EQ(2, bar.GetFolderCount());
    EXPECT_EQ(20, bar.GetItemCount());
    EXPECT_EQ(bar.m_hWnd, ::GetFocus());
}

TEST_F(OutBarInput, TabReachesItAndEnterStays) {
    host.fill(3);
    host.other.SetFocus();
    MSG tab = {host.other.m_hWnd, WM_KEYDOWN, VK_TAB, 0, 0, {}};
    host.IsDialogMessage(&tab);
    EXPECT_EQ(bar.m_hWnd, ::GetFocus());
    EXPECT_TRUE(bar.SendMessage(WM_GETDLGCODE) & DLGC_WANTARROWS);
    MSG enter = {bar.m_hWnd, WM_KEYDOWN, VK_RETURN, 0, 0, {}};
    EXPECT_TRUE(bar.SendMessage(WM_GETDLGCODE, VK_RETURN, reinterpret_cast<LPARAM>(&enter)) &
                DLGC_WANTMESSAGE);
    EXPECT_FALSE(bar.SendMessage(WM_GETDLGCODE, VK_TAB, reinterpret_cast<LPARAM>(&tab)) & DLGC_WANTMESSAGE);
}

TEST_F(OutBarInput, MenusAreReported) {
    host.fill(20);
    const CPoint at = host.item(1);
    rightClickAt(at.x, at.y);
    ASSERT_TRUE(waitUntil([&] { return host.menus == 1; }));
    EXPECT_EQ(at, host.menuAt);
    EXPECT_EQ(101u, bar.GetCurrentItemData());
    EXPECT_EQ(0, host.clicks);
    bar.SetFocus();
    for (bool small : {false, true}) {
        bar.SetSmallIconView(small);
        const int before = host.menus;
        pressKey(VK_END);
        pressKey(VK_UP);
        pressKey(VK_APPS);
        ASSERT_TRUE(waitUntil([&] { return host.menus == before + 1; }));
        int index;
        EXPECT_EQ(1, host.hit(host.menuAt, index));
        EXPECT_EQ(19, index);
        pressKey(VK_DOWN);
        pressKey(VK_SHIFT, VK_F10);
        ASSERT_TRUE(waitUntil([&] { return host.menus == before + 2; }));
        EXPECT_EQ(0, host.hit(host.menuAt, index));
        EXPECT_EQ(1, index);
    }
    bar.SetNotifyWnd(&bar);
    const int before = host.menus;
    rightClickAt(at.x, at.y);
    ASSERT_TRUE(waitUntil([&] { return host.menus == before + 1; })) << "never to itself";
}

TEST_F(OutBarInput, ADisabledBarDoesNothing) {
    host.fill(20);
    bar.ScrollItems(1);
    Steps().then(move(host.item(2))).run([&] { return bar.m_nLastItemHighlighted == 2; });
    bar.EnableWindow(FALSE);
    EXPECT_EQ(-1, bar.m_nLastItemHighlighted);
    CPoint point = host.item(2);
    bar.ScreenToClient(&point);
    CPoint arrow = bar.m_rcDownArrow.CenterPoint();
    for (UINT message : {WM_MOUSEMOVE, WM_LBUTTONDOWN})
        for (CPoint at : {point, arrow})
            bar.SendMessage(message, 0, MAKELPARAM(at.x, at.y));
    EXPECT_EQ(-1, bar.m_nLastItemHighlighted);
    EXPECT_EQ(1, bar.m_nFirstItem);
    EXPECT_TRUE(idle());
    EXPECT_FALSE(bar.StartItemEdit(2) || bar.StartGroupEdit(0));
}

} // namespace
