// The outlook bar's picture.

#include "out_bar_host.h"

#include "support/paper.h"

using namespace orv::test;

namespace {

std::vector<COLORREF> printed(CGfxOutBarCtrl& bar) {
    CRect rect;
    bar.GetClientRect(rect);
    Paper paper(rect.Width(), rect.Height());
    bar.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(paper.dc.m_hDC), PRF_CLIENT);
    return paper.pixels();
}

TEST_F(OutBar, ThePictureShowsWhatItHolds) {
    host.fill(2);
    bar.m_crBackground = bar.m_crBackground2 = RGB(10, 20, 30);
    bar.m_cr3dFace = RGB(200, 190, 180);
    bar.Invalidate();
    for (bool small : {false, true}) {
        bar.SetSmallIconView(small);
        bar.UpdateWindow();
        CRect icon, header, inside;
        for (int item : {0, 1}) {
            ASSERT_TRUE(bar.GetIconRect(0, item, icon));
            EXPECT_TRUE(host.shows(icon.CenterPoint().x, icon.CenterPoint().y,
                                   item == 0 ? RGB(255, 0, 0) : RGB(0, 255, 0)));
        }
        ASSERT_TRUE(bar.GetFolderRect(1, header));
        EXPECT_TRUE(host.shows(header.left + 20, header.top + 5, RGB(200, 190, 180)));
        EXPECT_TRUE(host.shows(header.left + 20, header.bottom - 1, bar.m_crDkShadow));
        bar.GetInsideRect(inside);
        EXPECT_TRUE(host.shows(2, inside.bottom - 1, RGB(10, 20, 30)));
        // Printed it is the same.
        EXPECT_TRUE(waitUntil([&] { return host.shown() == printed(bar); }));
    }
    bar.m_crBackground2 = RGB(210, 220, 230);
    bar.Invalidate();
    bar.UpdateWindow();
    CRect inside;
    bar.GetInsideRect(inside);
    EXPECT_TRUE(host.shows(2, inside.top, RGB(10, 20, 30)));
    EXPECT_TRUE(host.shows(2, inside.bottom - 1, RGB(210, 220, 230)));
    EXPECT_TRUE(bar.SendMessage(WM_ERASEBKGND, 0, 0)) << "nothing is erased first";
}

TEST_F(OutBar, ArrowsAreDrawnAsTheyAre) {
    host.fill(20);
    bar.ScrollItems(1);
    const auto shown = printed(bar);
    for (bool* flag : {&bar.m_bUpArrow, &bar.m_bDownArrow, &bar.m_bUpPressed, &bar.m_bDownPressed}) {
        *flag = !*flag;
        EXPECT_NE(shown, printed(bar));
        *flag = !*flag;
    }
    EXPECT_EQ(shown, printed(bar));
}

TEST_F(OutBar, TheCurrentRowIsMarkedForTheKeyboard) {
    host.fill(1);
    host.other.SetFocus();
    const auto plain = printed(bar);
    const auto hold = [](BYTE state) {
        BYTE keys[256];
        ::GetKeyboardState(keys);
        keys[VK_TAB] = state;
        ::SetKeyboardState(keys);
    };
    hold(0x80);
    bar.SetFocus();
    hold(0);
    EXPECT_NE(plain, printed(bar)) << "reached by Tab";
    bar.UpdateWindow();
    bar.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 200)); // beside everything
    EXPECT_EQ(plain, printed(bar));
    EXPECT_TRUE(bar.GetUpdateRect(NULL));
    bar.SendMessage(WM_KEYDOWN, VK_HOME);
    EXPECT_NE(plain, printed(bar));
}

// Whether two pictures differ within that part of a bar.
bool differ(const std::vector<COLORREF>& a, const std::vector<COLORREF>& b, int width, const CRect& rect) {
    for (int y = rect.top; y < rect.bottom; ++y)
        for (int x = rect.left; x < rect.right; ++x)
            if (const auto i = static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x);
                a[i] != b[i])
                return true;
    return false;
}

TEST_F(OutBar, ADisabledBarLooksIt) {
    host.fill(20);
    const auto enabled = printed(bar);
    CRect parts[4];
    bar.GetFolderRect(1, parts[0]);
    bar.GetIconRect(0, 0, parts[1]);
    bar.GetLabelRect(0, 0, parts[2]);
    parts[3] = bar.m_rcDownArrow;
    bar.EnableWindow(FALSE);
    for (const CRect& part : parts)
        EXPECT_TRUE(differ(enabled, printed(bar), 120, part)) << part.top;
    bar.EnableWindow(TRUE);
    EXPECT_EQ(enabled, printed(bar));
}

TEST_F(OutBar, ColoursLeftAloneFollowTheSystem) {
    const int index = COLOR_3DLIGHT;
    const COLORREF before = ::GetSysColor(index), news = RGB(1, 2, 3);
    CCountedBar own;
    ASSERT_TRUE(own.Create(WS_CHILD, CRect(0, 0, 9, 9), &host, 3));
    own.m_cr3dLight = RGB(4, 5, 6);
    ::SetSysColors(1, &index, &news);
    bar.SendMessage(WM_SYSCOLORCHANGE);
    own.SendMessage(WM_SYSCOLORCHANGE);
    ::SetSysColors(1, &index, &before);
    EXPECT_EQ(news, bar.m_cr3dLight);
    EXPECT_EQ(RGB(4, 5, 6), own.m_cr3dLight);
    EXPECT_EQ(::GetSysColor(COLOR_3DFACE), bar.m_cr3dFace);
    bar.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(before, bar.m_cr3dLight);
}

TEST_F(OutBar, TheHoveredItemHasAFrameWhenTheFlagSaysSo) {
    host.fill(2);
    const auto plain = printed(bar);
    bar.m_nLastItemHighlighted = 1;
    EXPECT_NE(plain, printed(bar));
    bar.SetAnimSelHighlight(false);
    EXPECT_EQ(plain, printed(bar));
    bar.ModifyFlag(OUTBAR_HILIGHT_ITEM, OUTBAR_SMALL_ICONS, SWP_FRAMECHANGED);
    EXPECT_EQ(0x0FDu, bar.GetFlag());
}

TEST_F(OutBar, SlidingEndsWhereAJumpDoes) {
    host.fill(3);
    bar.AddFolder("丙");
    std::vector<std::vector<COLORREF>> jumped;
    const int path[] = {2, 0, 1, 2, 1, 0};
    for (int folder : path) {
        bar.SetSelFolder(folder);
        jumped.push_back(printed(bar));
    }
    bar.ModifyFlag(0, OUTBAR_ANIMATE);
    size_t next = 0;
    for (int folder : path) {
        bar.SetAnimationTickCount(folder == 1 ? -5 : 1);
        EXPECT_TRUE(bar.SetSelFolder(folder));
        EXPECT_EQ(folder, bar.GetSelFolder());
        EXPECT_EQ(jumped[next++], printed(bar));
    }
    EXPECT_EQ(-1, bar.m_nSelItem);
}

} // namespace
