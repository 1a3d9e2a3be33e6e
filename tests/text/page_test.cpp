// What the text property page makes of a text, under real input.

#include "page.h"

#include "support/debug_events.h"

using namespace orv::test;

TEST_F(TextPage, WhatIsLeftAloneStaysAsItWas) {
    COrvDrawText text;
    fillWithFont(text);
    for (const DWORD mask : {DWORD(ORVTEXT_ALL), DWORD(0)}) {
        CPage page;
        page.m_dwEnable = mask;
        page.ExchangeData(&text, 0);
        open(page);
        EXPECT_TRUE(page.ExchangeData(1));
        EXPECT_EQ("", changed(text, page)) << mask;
        EXPECT_TRUE(page.ExchangeData(0));
        EXPECT_TRUE(page.ExchangeData(1));
        EXPECT_EQ("", changed(text, page)) << mask;
    }
    CPage closed;
    EXPECT_FALSE(closed.ExchangeData(0));
    EXPECT_FALSE(closed.ExchangeData(1));
    closed.ExchangeData(NULL, 0);
    closed.ExchangeData(NULL, 1);
    closed.ExchangeData(&text, 0);
    EXPECT_EQ("", changed(text, closed));
}

TEST_F(TextPage, AControlChangesOneMemberAndTheSample) {
    const struct {
        int id;
        WORD key;
        const char* changed; // the member and its new value
        bool inSample;
    } rows[] = {
        {21137, VK_DOWN, "face", true},
        {21261, VK_SPACE, "underline 0 -> 1", true},
        {21114, VK_SPACE, "weight 0 -> 700", true},
        {21115, VK_SPACE, "italic 0 -> 1", true},
        {21131, VK_DOWN, "size", true},
        {21132, VK_DOWN, "angle 0.000000 -> 0.261799", false},
        {21133, VK_DOWN, "text color 0 -> 16777215", true},
        {21130, VK_DOWN, "row alignment 0 -> 1", false},
        {21138, VK_DOWN, "column alignment 0 -> 1", false},
        {21124, VK_SPACE, "auto bound 0 -> 1", false},
        {21125, VK_SPACE, "border 0 -> 1", false},
        {21126, VK_SPACE, "clip 0 -> 1", false},
        {21139, VK_HOME, "row distance 4 -> 5", false},
        {21134, VK_SPACE, "line feed 1 -> 0", false},
        {21136, VK_SPACE, "shade 0 -> 1", false},
        {21127, VK_SPACE, "font line 0 -> 1", false},
        {21135, VK_HOME, "character distance 0 -> 5", false},
    };
    for (const auto& row : rows) {
        COrvDrawText text;
        text.LGetOrvFont()->SetFontSize(10, TRUE);
        CPage page;
        page.ExchangeData(&text, 0);
        open(page);
        const Look look = sampleLook(page);
        focusOn(page, row.id);
        pressKey(row.key);
        EXPECT_TRUE(pumpUntil([&] { return changed(text, page) != ""; })) << row.id;
        const std::string change = changed(text, page);
        EXPECT_EQ(0u, change.find(row.changed)) << change;
        EXPECT_EQ(change.size() - 2, change.find("; ")) << "one member: " << change;
        EXPECT_EQ(row.inSample, !(look == sampleLook(page))) << row.id;
    }
}

TEST_F(TextPage, TheSampleShowsWhatIsChosen) {
    CPage page;
    COrvDrawText text;
    text.SetShowContent("样品 Sample");
    text.LSetTextColor(RGB(255, 0, 0));
    text.LGetOrvFont()->SetFontAttribute("宋体", 12, 0, 1, 0, 0, 1);
    open(page);
    page.ExchangeData(&text, 0);
    EXPECT_EQ("样品 Sample", textOf(page, IDC_ORV_SAMPLE));
    EXPECT_EQ((Look{"宋体", CFE_BOLD, 240, RGB(255, 0, 0)}), sampleLook(page));
    text.SetShowContent("");
    page.ExchangeData(&text, 0);
    EXPECT_NE("", textOf(page, IDC_ORV_SAMPLE));
}

// Not what the pickers showed of the text before it.
TEST_F(TextPage, WhatNoPickerCanShowStandsAtTheNearestEnd) {
    const struct {
        int size;
        LONG dist;
        double degrees;
        const char *sizeText, *distText, *slopeText;
    } rows[] = {{12, 4, 30, "12.00", "3.0磅", "30.00"},
                {-14, LONG_MAX, 400, "14.00", "10000.0磅", "40.00"},
                {0, LONG_MIN, -400, "1.00", "-10000.0磅", "-40.00"},
                {9000, 0, 360, "1638.00", "0.0磅", "360.00"}};
    CPage page;
    open(page);
    for (const auto& row : rows) {
        COrvDrawText text;
        text.LGetOrvFont()->SetFontSize(row.size, TRUE);
        text.LSetRowDist(row.dist);
        text.LSetCharDist(row.dist);
        text.LSetFPRect(CFPRect(0, 0, 100, 50, row.degrees * 3.141592653589793 / 180));
        page.ExchangeData(&text, 0);
        EXPECT_EQ(row.sizeText, textOf(page, IDC_ORV_SIZE));
        EXPECT_EQ(row.distText, textOf(page, IDC_ORV_ROW_SPACE));
        EXPECT_EQ(row.distText, textOf(page, IDC_ORV_CHAR_SPACE));
        EXPECT_EQ(row.slopeText, textOf(page, IDC_ORV_SLOPE));
        page.ExchangeData(1);
        EXPECT_EQ("", changed(text, page));
    }
}

// Enter closes a list and takes what was typed, rubbish makes way, and nobody's passing by changes a thing.
TEST_F(TextPage, FieldsOfThePickers) {
    const struct {
        int id;
        bool open;
        const wchar_t* typed;
        WORD key;
        const char *field, *changed;
    } rows[] = {
        {IDC_ORV_FACE, true, L"tahoma", VK_RETURN, "Tahoma", "face arial -> Tahoma; "},
        {IDC_ORV_FACE, true, L"rubbish", VK_RETURN, "arial", ""},
        {IDC_ORV_FACE, true, L"", VK_TAB, "arial", ""},
        {IDC_ORV_SIZE, true, L"1e999", VK_TAB, "1.00", "size 20 -20 -> 1 -1; "},
        {IDC_ORV_SIZE, true, L"-x", VK_TAB, "15.00", ""},
        {IDC_ORV_SIZE, false, L"24", VK_RETURN, "24.00", "size 20 -20 -> 24 -32; "},
        {IDC_ORV_SLOPE, true, L"x", VK_RETURN, "0.00", ""},
        {IDC_ORV_SLOPE, true, L"45", VK_TAB, "45.00", "angle 0.000000 -> 0.785398; "},
    };
    for (const auto& row : rows) {
        COrvDrawText text;
        text.LGetOrvFont()->SetFontName("arial", TRUE); // not as the list writes it
        CPage page;
        page.ExchangeData(&text, 0);
        open(page);
        page.m_FontNameCmb.AddFont("Arial", 1);
        page.m_FontNameCmb.AddFont("Tahoma", 1);
        auto& combo = *static_cast<CComboBox*>(page.GetDlgItem(row.id));
        const HWND field = focusOn(page, row.id);
        combo.ShowDropDown(row.open);
        combo.SetEditSel(0, -1);
        typeText(row.typed);
        pressKey(row.key);
        EXPECT_TRUE(pumpUntil([&] {
            return textOf(page, row.id) == row.field && !combo.GetDroppedState() &&
                   (row.key == VK_RETURN) == (::GetFocus() == field);
        })) << row.id
            << " " << row.field << ": " << textOf(page, row.id);
        EXPECT_EQ(row.changed, changed(text, page));
        const int points = row.id == IDC_ORV_SIZE ? atoi(row.field) : 15;
        EXPECT_EQ(20 * points, sampleLook(page).height);
    }
}

TEST_F(TextPage, TheRowThatAsksForAColorIsNoColor) {
    CPage page;
    COrvDrawText text;
    text.LSetTextColor(0x123456);
    page.ExchangeData(&text, 0);
    open(page);
    page.m_FontColorCmb.SetFocus();
    page.m_FontColorCmb.ShowDropDown();
    pressKey(VK_END);
    EXPECT_TRUE(pumpUntil([&] { return page.m_FontColorCmb.GetCurrentColorName() == "其它..."; }));
    EXPECT_EQ("", changed(text, page));
    EXPECT_EQ(0x123456u, sampleLook(page).color);
    pressKey(VK_ESCAPE);
    EXPECT_TRUE(pumpUntil([&] { return page.m_FontColorCmb.GetCurrentColor() == 0x123456; }));
    EXPECT_EQ("", changed(text, page));
}

// Posted ones, as the program's loop shows them to the page.
TEST_F(TextPage, CommandsRefreshTheSample) {
    CPage page;
    open(page);
    const LPARAM face = reinterpret_cast<LPARAM>(page.m_FontNameCmb.m_hWnd);
    const LPARAM size = reinterpret_cast<LPARAM>(page.GetDlgItem(IDC_ORV_SIZE)->m_hWnd);
    const struct {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        bool refreshes, swallowed;
    } rows[] = {
        {WM_COMMAND, 1, face, true, true},
        {WM_COMMAND, 1, size, true, true},
        {WM_COMMAND, 1, 0, true, false},
        {WM_COMMAND, 0, 0, true, false},
        {WM_COMMAND, 0, -1, true, true},
        {WM_COMMAND, 5, 0, true, false},
        {WM_COMMAND, 2, face, false, false},
        {WM_COMMAND, 4, -1, false, false},
        {WM_COMMAND, 6, 0, false, false},
        {WM_LINE_COLOR_CMB_SELCHANGE, 21133, 0, true, false},
        {WM_LINE_WIDTH_CMB_SELCHANGE, 0, 0, false, false},
    };
    const Look look = sampleLook(page);
    CHARFORMAT other = {};
    other.cbSize = sizeof other;
    other.dwMask = CFM_SIZE | CFM_ITALIC;
    other.dwEffects = CFE_ITALIC;
    other.yHeight = 777;
    for (const auto& row : rows) {
        page.m_SampleEdit.SetSel(0, -1);
        page.m_SampleEdit.SetSelectionCharFormat(other);
        MSG msg = {page.m_hWnd, row.message, row.wParam, row.lParam, 0, {}};
        EXPECT_EQ(row.swallowed, page.PreTranslateMessage(&msg) != FALSE) << row.wParam;
        EXPECT_EQ(row.refreshes, sampleLook(page) == look) << row.wParam;
    }
}

// A check box is all that the host's own template has.
TEST_F(TextPage, TakesATemplateThatLacksControls) {
    constexpr WORD kChild = (WS_CHILD | WS_VISIBLE) >> 16, kStop = kChild | (WS_TABSTOP >> 16);
    constexpr WORD kCheck = BS_AUTOCHECKBOX, kId = IDC_ORV_BORDER;
    // Style, extended style, number of controls, place; no menu, class and title; the control.
    alignas(4) static const WORD dialog[] = {0,     kChild, 0, 0, 1, 0,  0, 90,  40,     0,    0, 0, kCheck,
                                             kStop, 0,      0, 5, 5, 60, 9, kId, 0xFFFF, 0x80, 0, 0};
    DebugEvents events;
    CPage page;
    COrvDrawText text;
    fillWithFont(text);
    text.LSetDrawBorder(FALSE);
    page.ExchangeData(&text, 0);
    ASSERT_TRUE(page.CreateIndirect(reinterpret_cast<LPCDLGTEMPLATE>(dialog), &host));
    click(::GetDlgItem(page.m_hWnd, IDC_ORV_BORDER));
    EXPECT_TRUE(pumpUntil([&] { return page.m_DrawText.LGetDrawBorder() != 0; }));
    EXPECT_EQ("border 0 -> 1; ", changed(text, page));
    EXPECT_EQ(0, events.assertions());
}
