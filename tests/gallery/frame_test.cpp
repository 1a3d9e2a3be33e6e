// The gallery's window as its user meets it.

#include "support/driven_program.h"
#include "support/input.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace orv::test;

namespace {

// A few pixels of the page as the screen shows it, sparse enough to be asked for again and again.
std::vector<COLORREF> sample(HWND page) {
    RECT place;
    ::GetWindowRect(page, &place);
    HDC screen = ::GetDC(NULL);
    std::vector<COLORREF> colors;
    for (int y = 40; y < 500; y += 46)
        for (int x = 50; x < 900; x += 17)
            colors.push_back(::GetPixel(screen, place.left + x, place.top + y));
    ::ReleaseDC(NULL, screen);
    return colors;
}

bool hasInk(const std::vector<COLORREF>& colors) {
    return std::count(colors.begin(), colors.end(), RGB(255, 255, 255)) < static_cast<int>(colors.size());
}

class Frame : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(gallery.frame() && bar);
        ASSERT_TRUE(gallery.waitFocus(bar));
    }
    void TearDown() override {
        pressKey(VK_MENU, VK_F4);
        EXPECT_EQ(0, gallery.waitExit());
    }
    void tabThrough(HWND page, std::initializer_list<int> controls) const {
        for (const int control : controls) {
            pressKey(VK_TAB);
            EXPECT_TRUE(gallery.waitFocus(::GetDlgItem(page, control))) << control;
        }
    }
    HWND pageOf(int id) const { return ::GetDlgItem(gallery.frame(), id); }
    // The second folder's first item.
    static void chooseSecondFolder() {
        for (const WORD key : {VK_END, VK_RETURN, VK_DOWN, VK_RETURN})
            pressKey(key);
    }

    DrivenProgram gallery{"gallery.exe", "--window", "ORVFC 图库"};
    HWND bar = ::GetDlgItem(gallery.frame(), 100);
};

TEST_F(Frame, ShowsThePageAndScrollsIt) {
    HWND page = pageOf(200);
    ASSERT_TRUE(page);
    EXPECT_TRUE(waitUntil([&] { return ::IsWindowVisible(page); }));
    EXPECT_TRUE(waitUntil([&] { return hasInk(sample(page)); }));
    pressKey(VK_TAB);
    ASSERT_TRUE(gallery.waitFocus(page));
    const auto top = sample(page);
    pressKey(VK_END);
    EXPECT_TRUE(waitUntil([&] { return hasInk(sample(page)) && sample(page) != top; }));
    pressKey(VK_HOME);
    EXPECT_TRUE(waitUntil([&] { return sample(page) == top; }));
    pressKey(VK_TAB);
    ASSERT_TRUE(gallery.waitFocus(bar));
    // The page fills what the bar leaves.
    ::SetWindowPos(gallery.frame(), NULL, 0, 0, 700, 500, SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_TRUE(waitUntil([&] {
        RECT frame, inner;
        ::GetClientRect(gallery.frame(), &frame);
        ::GetWindowRect(page, &inner);
        ::MapWindowPoints(NULL, gallery.frame(), reinterpret_cast<POINT*>(&inner), 2);
        return inner.right == frame.right && inner.bottom == frame.bottom && inner.left == 160;
    }));
}

TEST_F(Frame, TheBarChoosesThePage) {
    HWND first = pageOf(200);
    chooseSecondFolder();
    EXPECT_TRUE(waitUntil([&] {
        HWND second = pageOf(201);
        return second && ::IsWindowVisible(second) && !::IsWindowVisible(first);
    }));
    EXPECT_EQ(bar, gallery.focus());
    // Back with the mouse: the first header, then the item below it.
    RECT place;
    ::GetWindowRect(bar, &place);
    clickAt(place.left + 80, place.top + 10);
    EXPECT_TRUE(waitUntil([&] {
        clickAt(place.left + 80, place.top + 40);
        return ::IsWindowVisible(first) != FALSE;
    }));
}

TEST_F(Frame, ThePickersDriveTheirCanvas) {
    chooseSecondFolder();
    HWND page = NULL;
    ASSERT_TRUE(waitUntil([&] { return (page = pageOf(201)) != NULL; }));
    EXPECT_TRUE(waitUntil([&] { return ::IsWindowVisible(page) && hasInk(sample(page)); }));
    tabThrough(page, {1, 2, 3, 4, 5}); // from the colours on
    const auto before = sample(page);
    pressKey(VK_HOME); // no filling
    EXPECT_TRUE(waitUntil([&] { return sample(page) != before; }));
    tabThrough(page, {6, 7});
    pressKey(VK_TAB);
    EXPECT_TRUE(gallery.waitFocus(bar)) << "behind the last control";
    tabThrough(page, {1});
    pressKey(VK_SHIFT, VK_TAB);
    EXPECT_TRUE(gallery.waitFocus(bar)) << "before the first one";
}

} // namespace
