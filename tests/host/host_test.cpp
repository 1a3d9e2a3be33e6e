// A host driven from outside by mouse and keyboard, as its user does.

#include "support/driven_program.h"
#include "resource.h"

#include "support/input.h"
#include "support/scratch_folder.h"

#include <commctrl.h>

#include <gtest/gtest.h>

using namespace orv::test;

namespace {

HWND item(HWND dialog, int id) {
    return ::GetDlgItem(dialog, id);
}

class Host : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(host.frame()); }
    // The dialog that this key opens together with Ctrl.
    static HWND open(DrivenProgram& host, WORD key, const char* title) {
        pressKey(VK_CONTROL, key);
        const HWND dialog = host.dialog(title);
        EXPECT_TRUE(dialog) << title;
        return dialog;
    }
    // Into a field that has the keyboard, over what is there.
    static void retype(DrivenProgram& host, HWND field, const char* text) {
        ASSERT_TRUE(host.waitFocus(field));
        pressKey(VK_HOME);
        pressKey(VK_SHIFT, VK_END);
        typeText(wideText(text));
        ASSERT_TRUE(host.waitText(field, text));
    }
    // Fills the item dialog by keys alone and confirms it.
    static void addItem(DrivenProgram& host, const char* name, const char* count, int symbol) {
        const HWND dialog = open(host, 'D', "项目");
        EXPECT_FALSE(::IsWindowEnabled(host.frame()));
        retype(host, item(dialog, IDC_NAME), name);
        pressKey(VK_TAB);
        retype(host, item(dialog, IDC_COUNT), count);
        pressKey(VK_TAB);
        ASSERT_TRUE(host.waitFocus(item(dialog, IDC_SYMBOL)));
        char picked[16];
        for (int i = 0; i <= symbol; ++i) {
            pressKey(VK_DOWN);
            // The combo's own reflected handler posts to its parent, and the parent's handler runs as well.
            wsprintfA(picked, "%d/%d", i + 1, i + 1);
            EXPECT_TRUE(host.waitText(item(dialog, IDC_PICKED), picked));
        }
        pressKey(VK_RETURN);
        EXPECT_TRUE(host.waitGone(dialog));
        EXPECT_TRUE(host.waitReady(host.frame()));
    }

    static bool menuShown() {
        HWND menu = ::FindWindowA("#32768", NULL);
        return menu && ::IsWindowVisible(menu);
    }

    // By the arrow keys, separators not counted.
    static void chooseFromMenu(int menu, int entry) {
        pressKey(VK_F10);
        for (int i = 0; i < menu; ++i)
            pressKey(VK_RIGHT);
        pressKey(VK_DOWN);
        ASSERT_TRUE(waitUntil(menuShown));
        for (int i = 0; i < entry; ++i)
            pressKey(VK_DOWN);
        pressKey(VK_RETURN);
    }

    static void leave(DrivenProgram& host) {
        ASSERT_TRUE(host.waitReady(host.frame()));
        pressKey(VK_MENU, VK_F4);
        EXPECT_EQ(0, host.waitExit());
    }

    ScratchFolder folder;
    const std::string plan = folder.path("plan").GetString();
    DrivenProgram host{"host.exe", plan, "计划"};
};

TEST_F(Host, ItemsAreAddedSavedAndLoadedByAnotherRun) {
    addItem(host, "铁路线", "3", 0);
    EXPECT_TRUE(host.waitTitle("计划: 铁路线*3圆 [ 500]"));
    addItem(host, "村庄 No.7", "100", 1);
    const std::string both = "计划: 铁路线*3圆 村庄 No.7*100方 [ 500]";
    EXPECT_TRUE(host.waitTitle(both));
    pressKey(VK_CONTROL, 'S');
    EXPECT_TRUE(host.waitTitle(both + " 已保存"));
    leave(host);
    DrivenProgram another("host_console.exe", plan, "计划");
    ASSERT_TRUE(another.frame());
    pressKey(VK_CONTROL, 'O');
    EXPECT_TRUE(another.waitTitle(both));
    leave(another);
}

TEST_F(Host, ARefusedValueKeepsTheDialogAndMarksTheField) {
    const HWND dialog = open(host, 'D', "项目");
    HWND count = item(dialog, IDC_COUNT);
    for (const char* refused : {"500", "0", "12x", "99999999999"}) {
        click(count);
        retype(host, count, refused);
        pressKey(VK_RETURN);
        HWND box = host.dialog("host");
        ASSERT_TRUE(box) << refused;
        EXPECT_FALSE(::IsWindowEnabled(dialog)) << refused;
        pressKey(VK_RETURN);
        EXPECT_TRUE(host.waitGone(box));
        EXPECT_TRUE(host.waitReady(dialog) && host.waitFocus(count)) << refused;
    }
    // The refused text is marked: typing replaces it.
    typeText(L"7");
    EXPECT_TRUE(host.waitText(count, "7"));
    pressKey(VK_RETURN);
    EXPECT_TRUE(host.waitTitle("计划: 项目*7- [ 500]"));
    leave(host);
}

TEST_F(Host, MouseAndASubclassedFieldWorkInTheDialog) {
    const HWND dialog = open(host, 'D', "项目");
    click(item(dialog, IDC_VISIBLE));
    EXPECT_TRUE(waitUntil([&] { return ::SendMessageA(item(dialog, IDC_VISIBLE), BM_GETCHECK, 0, 0) == 0; }));
    click(item(dialog, IDC_DOUBLE));
    EXPECT_TRUE(waitUntil([&] { return ::SendMessageA(item(dialog, IDC_DOUBLE), BM_GETCHECK, 0, 0) == 1; }));
    HWND note = item(dialog, IDC_NOTE);
    click(note);
    ASSERT_TRUE(host.waitFocus(note));
    typeText(wideText("备#注壹"));
    EXPECT_TRUE(host.waitText(note, "备注壹"));
    click(item(dialog, IDOK));
    EXPECT_TRUE(host.waitGone(dialog));
    EXPECT_TRUE(host.waitTitle("计划: (项目备注壹*1-=) [ 500]"));
    leave(host);
}

TEST_F(Host, CancelledDialogsChangeNothing) {
    addItem(host, "桥", "2", 1);
    const std::string title = "计划: 桥*2方 [ 500]";
    ASSERT_TRUE(host.waitTitle(title));
    const struct {
        const char* how;
        void (*close)(HWND dialog);
    } rows[] = {{"Esc", [](HWND) { pressKey(VK_ESCAPE); }},
                {"close box", [](HWND) { pressKey(VK_MENU, VK_F4); }},
                {"button", [](HWND dialog) { click(item(dialog, IDCANCEL)); }}};
    for (const auto& row : rows)
        for (const char* what : {"项目", "选项"}) {
            const HWND dialog = open(host, what == std::string("项目") ? 'D' : 'R', what);
            typeText(L"x");
            row.close(dialog);
            EXPECT_TRUE(host.waitGone(dialog)) << row.how << what;
            EXPECT_TRUE(host.waitReady(host.frame())) << row.how << what;
            EXPECT_TRUE(host.waitTitle(title)) << row.how << what;
        }
    leave(host);
}

TEST_F(Host, ASheetOfTwoPagesExchangesBoth) {
    const HWND sheet = open(host, 'R', "选项");
    HWND name = host.focus();
    EXPECT_EQ(IDC_SHEET_NAME, ::GetDlgCtrlID(name));
    EXPECT_FALSE(::IsWindowEnabled(host.frame()));
    typeText(wideText("总图"));
    EXPECT_TRUE(host.waitText(name, "总图"));
    pressKey(VK_CONTROL, VK_TAB);
    HWND scale = NULL;
    ASSERT_TRUE(waitUntil([&] {
        HWND page = reinterpret_cast<HWND>(::SendMessageA(sheet, PSM_GETCURRENTPAGEHWND, 0, 0));
        scale = page ? item(page, IDC_SCALE) : NULL;
        return scale && ::IsWindowVisible(scale);
    }));
    click(scale);
    retype(host, scale, "0");
    // The page is not left with a value that it refuses.
    pressKey(VK_RETURN);
    HWND box = host.dialog("host");
    ASSERT_TRUE(box);
    pressKey(VK_RETURN);
    ASSERT_TRUE(host.waitGone(box));
    ASSERT_TRUE(host.waitReady(sheet) && host.waitFocus(scale));
    retype(host, scale, "250.5");
    HWND grid = item(::GetParent(scale), IDC_GRID);
    click(grid);
    EXPECT_TRUE(waitUntil([&] { return ::SendMessageA(grid, BM_GETCHECK, 0, 0) == 1; }));
    pressKey(VK_RETURN);
    EXPECT_TRUE(host.waitGone(sheet));
    EXPECT_TRUE(host.waitTitle("计划: [总图 250.5#]"));
    leave(host);
}

TEST_F(Host, AModelessDialogStaysWhileTheFrameWorks) {
    const HWND find = open(host, 'F', "查找");
    ASSERT_TRUE(host.waitTitle("计划: [ 500] ?"));
    EXPECT_TRUE(::IsWindowEnabled(host.frame()));
    click(item(find, IDC_WHAT));
    retype(host, item(find, IDC_WHAT), "桥梁");
    pressKey(VK_RETURN);
    EXPECT_TRUE(host.waitTitle("计划: [ 500] ?桥梁"));
    pressKey(VK_ESCAPE);
    EXPECT_TRUE(host.waitGone(find));
    EXPECT_TRUE(host.waitTitle("计划: [ 500]"));
    leave(host);
}

TEST_F(Host, ItEndsWellInWhateverOrderItsWindowsClose) {
    leave(host);
    const struct {
        WORD key;
        const char* title;
    } rows[] = {{'D', "项目"}, {'R', "选项"}, {'F', "查找"}}; // modal, a sheet, modeless
    for (const auto& row : rows) {
        // The frame goes first, with the other window open over it.
        DrivenProgram one("host.exe", plan, "计划");
        ASSERT_TRUE(one.frame() && open(one, row.key, row.title));
        ::PostMessageA(one.frame(), WM_CLOSE, 0, 0);
        EXPECT_EQ(0, one.waitExit()) << row.title;
    }
}

TEST_F(Host, CommandsAreThereOnlyWithTheirReason) {
    // Nothing to clear: neither the menu nor the key does it. Clearing would rewrite the title.
    pressKey(VK_CONTROL, 'S');
    ASSERT_TRUE(host.waitTitle("计划 已保存"));
    chooseFromMenu(1, 1);
    pressKey(VK_ESCAPE);
    pressKey(VK_ESCAPE);
    ASSERT_TRUE(waitUntil([&] { return !menuShown(); }));
    pressKey(VK_CONTROL, 'E');
    pressKey(VK_CONTROL, 'S');
    ASSERT_TRUE(host.waitTitle("计划 已保存 已保存"));
    addItem(host, "井", "1", 0);
    ASSERT_TRUE(host.waitTitle("计划: 井*1圆 [ 500]") && host.waitReady(host.frame()));
    chooseFromMenu(1, 1);
    EXPECT_TRUE(host.waitTitle("计划: [ 500]") && host.waitReady(host.frame()));
    ASSERT_TRUE(waitUntil([&] { return !menuShown(); }));
    chooseFromMenu(0, 2);
    EXPECT_EQ(0, host.waitExit());
}

} // namespace
