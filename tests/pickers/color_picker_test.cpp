// The colour button and its palette window.

#include "pickers_test.h"

#include <gtest/gtest.h>

using namespace orv::test;

namespace {

// Cells of the built-in colours: 8 a row, 20 wide, behind a margin of 4.
CPoint cellAt(HWND palette, int cell) {
    POINT point = {4 + cell % 8 * 20 + 10, 4 + cell / 8 * 20 + 10};
    ::ClientToScreen(palette, &point);
    return point;
}

class CPickDlg : public CPickerDlg {
public:
    std::vector<WPARAM> commands;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_COMMAND && LOWORD(wParam) == IDC_BUTTON) {
            commands.push_back(wParam);
            EXPECT_EQ(reinterpret_cast<LPARAM>(::GetDlgItem(m_hWnd, IDC_BUTTON)), lParam);
        }
        return CPickerDlg::WindowProc(message, wParam, lParam);
    }
};

class ColorPicker : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(dialog.open());
        ASSERT_TRUE(picker.SubclassDlgItem(IDC_BUTTON, &dialog));
        ASSERT_TRUE(focusOn(picker));
    }
    HWND opened() {
        EXPECT_TRUE(waitUntil([&] { return picker.GetPaletteWindow() != NULL; }));
        return picker.GetPaletteWindow();
    }
    HWND open(WORD key = VK_SPACE) {
        pressKey(key);
        return opened();
    }
    bool closed() {
        return waitUntil([&] { return picker.GetPaletteWindow() == NULL; });
    }
    CPickDlg dialog;
    CColorPicker picker;
};

TEST_F(ColorPicker, SettingAColorTellsParentAndBuddy) {
    CString text;
    picker.GetColor(text);
    EXPECT_STREQ("#000000", text);
    const HWND buddy = ::GetDlgItem(dialog.m_hWnd, IDC_BUDDY);
    picker.SetBuddy(buddy);
    picker.SetColor(0x0000FF);
    EXPECT_TRUE(dialog.commands.empty()) << "posted, not sent";
    dialog.GetDlgItemText(IDC_BUDDY, text);
    EXPECT_STREQ("#FF0000", text);
    dialog.settle();
    EXPECT_EQ(std::vector<WPARAM>{IDC_BUTTON}, dialog.commands);
    picker.SetColor(0xFF123456);
    picker.GetColor(text);
    EXPECT_STREQ("#563412", text);
    EXPECT_EQ(0xFF123456u, picker.GetColor());
    ::DestroyWindow(buddy);
    picker.SetColor(1); // a buddy that is gone
    CColorPicker none;
    none.SetColor(2);
    none.CreatePaletteWindow();
    EXPECT_EQ(2u, none.GetColor());
    EXPECT_EQ(NULL, none.GetPaletteWindow());
}

TEST_F(ColorPicker, ThePaletteIsThere) {
    const HWND palette = open();
    char text[32];
    ::GetClassNameA(palette, text, sizeof text);
    EXPECT_STREQ("ColorPalette", text);
    ::GetWindowTextA(palette, text, sizeof text);
    EXPECT_STREQ("Palatte", text);
    CRect button, window;
    picker.GetWindowRect(&button);
    ::GetWindowRect(palette, &window);
    EXPECT_EQ(button.bottom, window.top);
    EXPECT_EQ(button.left, window.left);
    EXPECT_EQ(picker.m_hWnd, ::GetFocus()) << "the button keeps the keyboard";
    picker.CreatePaletteWindow();
    EXPECT_EQ(palette, picker.GetPaletteWindow());
    picker.DestroyPaletteWindow();
    EXPECT_FALSE(::IsWindow(palette));
}

TEST_F(ColorPicker, Keys) {
    const struct {
        std::vector<WORD> keys; // behind the one that opens it
        COLORREF color;
        size_t told;
        WORD opens = VK_SPACE;
    } rows[] = {
        {{VK_RIGHT, VK_RIGHT, VK_RETURN}, 0x0000FF, 1}, // from black
        {{VK_DOWN, VK_SPACE}, 0xFF00FF, 1},
        {{VK_HOME, VK_RETURN}, 0, 1},
        {{VK_RIGHT, VK_ESCAPE}, 0, 0, VK_F4},
        {{VK_RIGHT, VK_F4}, 0, 0},
        {{VK_END, VK_LEFT, VK_RETURN}, 0xFFFF00, 1},
    };
    for (const auto& row : rows) {
        dialog.commands.clear();
        open(row.opens);
        for (const WORD key : row.keys)
            pressKey(key);
        EXPECT_TRUE(closed());
        dialog.settle();
        EXPECT_EQ(row.color, picker.GetColor());
        EXPECT_EQ(row.told, dialog.commands.size());
    }
    open();
    pressKey(VK_TAB);
    EXPECT_TRUE(closed());
    EXPECT_TRUE(waitUntil([&] { return ::GetFocus() != picker.m_hWnd; })) << "Tab goes on";
    ASSERT_TRUE(focusOn(picker));
    pressKey(VK_MENU, VK_DOWN);
    EXPECT_TRUE(opened());
}

TEST_F(ColorPicker, Mouse) {
    click(picker);
    CPoint at = cellAt(opened(), 4);
    clickAt(at.x, at.y);
    EXPECT_TRUE(closed());
    EXPECT_EQ(0xFF0000u, picker.GetColor());
    // In one stroke.
    CRect button;
    picker.GetWindowRect(&button);
    pressMouse(button.CenterPoint().x + 3, button.CenterPoint().y);
    at = cellAt(opened(), 13);
    releaseMouse(at.x, at.y);
    EXPECT_TRUE(closed());
    EXPECT_EQ(0x00FFFFu, picker.GetColor());
    // Beside it, on the button as well.
    for (const CPoint outside : {CPoint(900, 700), button.CenterPoint()}) {
        open();
        clickAt(outside.x, outside.y);
        EXPECT_TRUE(closed());
    }
    dialog.settle();
    EXPECT_EQ(2u, dialog.commands.size()) << "two choices, and no click told";
    EXPECT_EQ(NULL, picker.GetPaletteWindow());
}

TEST_F(ColorPicker, TheTipNamesTheColor) {
    const HWND palette = open();
    const CPoint at = cellAt(palette, 6);
    moveMouse(at.x, at.y);
    const auto tipText = [&] {
        HWND tip = NULL;
        while ((tip = ::FindWindowExA(NULL, tip, TOOLTIPS_CLASSA, NULL)) != NULL) {
            char text[80] = "";
            TOOLINFOA tool = {};
            tool.cbSize = sizeof tool;
            tool.hwnd = palette;
            tool.lpszText = text;
            ::SendMessageA(tip, TTM_GETTEXTA, sizeof text, reinterpret_cast<LPARAM>(&tool));
            if (*text && ::IsWindowVisible(tip))
                return std::string(text);
        }
        return std::string();
    };
    EXPECT_TRUE(waitUntil([&] { return tipText() == "粉红"; })) << tipText();
    pressKey(VK_LEFT);
    EXPECT_TRUE(waitUntil([&] { return tipText() == "蓝绿"; })) << tipText();
    typeText(wideText("紫红"));
    EXPECT_TRUE(waitUntil([&] { return tipText() == "紫红色"; })) << tipText();
    pressKey(VK_END);
    EXPECT_TRUE(waitUntil([&] { return tipText().empty(); })) << "that row says its name itself";
}

TEST_F(ColorPicker, OwnColor) {
    for (const bool ok : {false, true}) {
        dialog.commands.clear();
        open();
        const InDialogs user(dialog.m_hWnd, {InDialogs::colors(1, 2, 3, ok ? VK_RETURN : VK_ESCAPE)});
        pressKey(VK_END);
        pressKey(VK_RETURN);
        EXPECT_TRUE(waitUntil([&] { return user.done() && ::IsWindowEnabled(dialog.m_hWnd); }));
        dialog.settle();
        EXPECT_EQ(ok ? RGB(1, 2, 3) : 0u, picker.GetColor());
        EXPECT_EQ(ok ? 1u : 0u, dialog.commands.size());
        ASSERT_TRUE(focusOn(picker));
    }
}

TEST_F(ColorPicker, MarksAndCells) {
    picker.SetColor(0x0000FF);
    const HWND palette = open();
    pressKey(VK_RIGHT); // the mark of hovering goes on to 绿色
    CRect client;
    ::GetClientRect(palette, &client);
    Picture picture(client.right, client.bottom);
    const auto marked = [&] {
        ::SendMessage(palette, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(picture.dc.m_hDC), PRF_CLIENT);
        return picture.at(4 + 3 * 20, 4) == ::GetSysColor(COLOR_HIGHLIGHT);
    };
    EXPECT_TRUE(waitUntil(marked));
    EXPECT_EQ(::GetSysColor(COLOR_BTNTEXT), picture.at(4 + 2 * 20 + 1, 5)) << "the selected one's frame";
    EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), picture.at(4 + 4 * 20 + 1, 5));
    const CColorSet colors;
    for (int i = 0; i < 19; ++i)
        EXPECT_EQ(colors.GetElement(i)->crColor, picture.at(4 + i % 8 * 20 + 10, 4 + i / 8 * 20 + 10)) << i;
}

TEST_F(ColorPicker, SetsOfEverySize) {
    CColorSet set;
    picker.SetColorSet(&set);
    set.EmptyAllColors();
    open();
    pressKey(VK_RIGHT);
    pressKey(VK_RETURN);
    pressKey(VK_ESCAPE);
    EXPECT_TRUE(closed());
    EXPECT_EQ(0u, picker.GetColor());
    for (COLORREF cr = 1; cr <= 5000; ++cr)
        set.AddItem("x", cr);
    HWND palette = open();
    set.EmptyAllColors(); // under the open palette
    CRect window, area;
    ::GetWindowRect(palette, &window);
    ::SystemParametersInfo(SPI_GETWORKAREA, 0, &area, 0);
    CRect both;
    both.UnionRect(&window, &area);
    EXPECT_EQ(area, both) << "inside the screen";
    pressKey(VK_END);
    pressKey(VK_RETURN);
    EXPECT_TRUE(closed());
    EXPECT_EQ(5000u, picker.GetColor());
}

TEST_F(ColorPicker, EndsInEveryOrder) {
    open();
    picker.EnableWindow(FALSE);
    EXPECT_EQ(NULL, picker.GetPaletteWindow());
    picker.CreatePaletteWindow();
    EXPECT_EQ(NULL, picker.GetPaletteWindow()) << "disabled";
    picker.EnableWindow(TRUE);
    ASSERT_TRUE(focusOn(picker));
    HWND palette = open();
    ASSERT_TRUE(focusOn(*dialog.GetDlgItem(IDC_OTHER)));
    EXPECT_FALSE(::IsWindow(palette)) << "the focus went elsewhere";
    ASSERT_TRUE(focusOn(picker));
    palette = open();
    ::DestroyWindow(palette);
    EXPECT_EQ(NULL, picker.GetPaletteWindow());
    palette = open();
    dialog.DestroyWindow();
    EXPECT_FALSE(::IsWindow(palette));
    ASSERT_TRUE(dialog.open());
    {
        CColorPicker first;
        ASSERT_TRUE(first.SubclassDlgItem(IDC_BUTTON, &dialog));
        first.CreatePaletteWindow();
        palette = first.GetPaletteWindow();
        EXPECT_TRUE(::IsWindow(palette));
    }
    EXPECT_FALSE(::IsWindow(palette));
}

} // namespace
