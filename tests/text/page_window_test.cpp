// The text property page as a window: its controls, alone and in a sheet, opened and closed.

#include "page.h"

#include <memory>
#include <vector>

#include "support/debug_events.h"
#include "support/gdi_count.h"

using namespace orv::test;

// What a bit of the mask enables.
const struct {
    int id;
    DWORD bit;
} kControls[] = {{21137, 0x1},    {21261, 0x2},    {21114, 0x2},   {21115, 0x2},   {21131, 0x8},
                 {21132, 0x10},   {21133, 0x4},    {21130, 0x20},  {21138, 0x40},  {21124, 0x80},
                 {21125, 0x100},  {21126, 0x200},  {21139, 0x400}, {21134, 0x800}, {21136, 0x1000},
                 {21127, 0x2000}, {21135, 0x4000}, {21122, 0x8000}};

TEST_F(TextPage, ControlsStandApartOnThePage) {
    CPage page;
    open(page);
    CString title;
    page.GetWindowText(title);
    EXPECT_STREQ("文本属性", title);
    CRect client;
    page.GetClientRect(&client);
    page.ClientToScreen(&client);
    std::vector<CRect> taken;
    for (const auto& row : kControls) {
        CWnd* control = page.GetDlgItem(row.id);
        ASSERT_TRUE(control) << row.id;
        EXPECT_TRUE(control->IsWindowEnabled()) << "all are, when nobody has said otherwise";
        CRect place;
        control->GetWindowRect(&place);
        EXPECT_TRUE(!place.IsRectEmpty() && (place & client) == place) << row.id;
        for (const CRect& other : taken)
            EXPECT_TRUE((place & other).IsRectEmpty()) << row.id;
        taken.push_back(place);
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
    fillWithFont(text);
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
