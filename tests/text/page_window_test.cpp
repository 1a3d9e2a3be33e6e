// The text property page as a window: its controls, alone and in a sheet, opened and closed.

#include "page.h"

#include <memory>

#include "support/debug_events.h"
#include "support/gdi_count.h"

using namespace orv::test;

namespace {

const struct {
    int id;
    DWORD bit;
    const char* caption;
    int x, y, cx, cy; // dialog units; the height of a combo is that of its list
    bool combo;
} kControls[] = {
    {21137, 0x1, NULL, 33, 15, 58, 107, true},
    {21261, 0x2, "下划线", 115, 13, 15, 13, false},
    {21114, 0x2, "黑体", 133, 13, 17, 13, false},
    {21115, 0x2, "斜体", 153, 13, 17, 13, false},
    {21131, 0x8, NULL, 33, 32, 58, 84, true},
    {21132, 0x10, NULL, 116, 32, 57, 89, true},
    {21133, 0x4, NULL, 218, 14, 58, 124, true},
    {21130, 0x20, NULL, 193, 32, 36, 95, true},
    {21138, 0x40, NULL, 238, 32, 37, 95, true},
    {21124, 0x80, "自动计算尺寸", 13, 68, 58, 9, false},
    {21125, 0x100, "显示边框", 74, 68, 47, 9, false},
    {21126, 0x200, "自动修剪", 133, 68, 47, 9, false},
    {21139, 0x400, NULL, 218, 64, 58, 91, true},
    {21134, 0x800, "自动换行", 13, 82, 53, 9, false},
    {21136, 0x1000, "显示边框阴影", 74, 82, 58, 9, false},
    {21127, 0x2000, "显示轮廓", 134, 81, 45, 9, false},
    {21135, 0x4000, NULL, 218, 80, 58, 78, true},
    {21122, 0x8000, NULL, 7, 104, 273, 51, false},
};

TEST_F(TextPage, EveryControlStandsWhereTold) {
    CPage page;
    open(page);
    CString title;
    page.GetWindowText(title);
    EXPECT_STREQ("文本属性", title);
    for (const auto& row : kControls) {
        CWnd* control = page.GetDlgItem(row.id);
        ASSERT_TRUE(control) << row.id;
        EXPECT_TRUE(control->IsWindowEnabled()) << "all are, when nobody has said otherwise";
        // The system rounds places and sizes apart.
        CRect place(row.x, row.y, 0, 0), expected(0, 0, row.cx, row.cy), actual;
        ::MapDialogRect(page.m_hWnd, &place);
        ::MapDialogRect(page.m_hWnd, &expected);
        control->GetWindowRect(&actual);
        page.ScreenToClient(&actual);
        EXPECT_EQ(place.TopLeft(), actual.TopLeft()) << row.id;
        EXPECT_EQ(expected.Width(), actual.Width()) << row.id;
        if (!row.combo) {
            EXPECT_EQ(expected.Height(), actual.Height()) << row.id;
        }
        if (row.caption) {
            EXPECT_EQ(row.caption, textOf(page, row.id));
        }
    }
}

TEST_F(TextPage, EachBitEnablesItsGroup) {
    for (DWORD mask = 1; mask <= 2 * ORVTEXT_SAMPLE; mask <<= 1) { // the last: no bit of a group
        CPage page;
        page.m_dwEnable = mask;
        open(page);
        for (const auto& row : kControls)
            EXPECT_EQ(row.bit == mask, page.GetDlgItem(row.id)->IsWindowEnabled() != FALSE) << row.id;
    }
}

TEST_F(TextPage, TabGoesRoundAllControls) {
    CPage page;
    open(page);
    const HWND first = focusOn(page, IDC_ORV_UNDERLINE);
    for (int stops = 0; stops < 18; ++stops) {
        const HWND before = ::GetFocus();
        pressKey(VK_TAB);
        ASSERT_TRUE(pumpUntil([&] { return ::GetFocus() != before; })) << ::GetDlgCtrlID(before);
        EXPECT_EQ(stops == 17, ::GetFocus() == first);
    }
}

TEST_F(TextPage, InASheetItAppliesAndAChoiceOfFaceDoesNotConfirm) {
    CPage page;
    CPropertySheet sheet("表单");
    sheet.AddPage(&page);
    ASSERT_TRUE(sheet.Create(&host, WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE));
    sheet.SetForegroundWindow();
    ASSERT_TRUE(pumpUntil([&] { return ::GetForegroundWindow() == sheet.m_hWnd; }));
    const HWND apply = ::GetDlgItem(sheet.m_hWnd, 0x3021);
    MSG refresh = {page.m_hWnd, WM_COMMAND, 5, 0, 0, {}};
    page.PreTranslateMessage(&refresh);
    EXPECT_FALSE(::IsWindowEnabled(apply)) << "nothing has changed";
    focusOn(page, IDC_ORV_SIZE);
    pressKey(VK_DOWN);
    EXPECT_TRUE(pumpUntil([&] { return ::IsWindowEnabled(apply) != FALSE; }));
    int rounds = 0; // until everything that was posted has come
    EXPECT_TRUE(pumpUntil([&] { return ++rounds > 3; }));
    EXPECT_TRUE(::IsWindow(sheet.m_hWnd)) << "the command behind a choice is no OK";
    sheet.PressButton(PSBTN_APPLYNOW);
    COrvDrawText text;
    EXPECT_EQ(0u, changed(text, page).find("size"));
    sheet.DestroyWindow();
    EXPECT_EQ(NULL, page.m_hWnd);
}

// The host's window goes with the page in it; the page opens again in another.
TEST_F(TextPage, OutlivesItsParent) {
    COrvDrawText text;
    fill(text);
    CPage page;
    page.ExchangeData(&text, 0);
    open(page);
    page.m_FontNameCmb.SetFocus();
    typeText(L"rub");
    host.DestroyWindow();
    EXPECT_EQ(NULL, page.m_hWnd);
    EXPECT_FALSE(page.ExchangeData(1));
    SetUp();
    open(page);
    EXPECT_TRUE(page.ExchangeData(1));
    EXPECT_EQ("", changed(text, page));
}

TEST_F(TextPage, IsMadeByItsRunTimeClassAndLeavesNothingBehind) {
    const auto round = [&] {
        std::unique_ptr<CObject> object(RUNTIME_CLASS(COrvFCDrawTextPropPage)->CreateObject());
        auto& page = *static_cast<COrvFCDrawTextPropPage*>(object.get());
        EXPECT_TRUE(page.Create(IDD_ORV_TEXT_PAGE, &host));
        page.ShowWindow(SW_SHOW);
        page.UpdateWindow();
        page.DestroyWindow();
    };
    round();
    round();
    const int before = liveGdiHandles();
    for (int i = 0; i < 5; ++i)
        round();
    EXPECT_EQ(before, liveGdiHandles());
    DebugEvents events;
    COrvFCDrawTextPropPage closed;
    EXPECT_FALSE(closed.InvalidText());
    EXPECT_EQ(1, events.assertions());
}

} // namespace
