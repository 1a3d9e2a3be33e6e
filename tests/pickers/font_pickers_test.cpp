// The pickers of sizes, slopes, spacings, alignments and shapes.

#include "font_pickers_test.h"

#include <cmath>

#include "support/debug_events.h"
#include "support/gdi_count.h"

using namespace orv::test;

namespace {

// --- numbers

TEST_F(FontPickers, FillThemselvesAsTold) {
    CFontSizeCmb sizes;
    CFontAslopeCmb angles;
    CFontAlignCmb aligns;
    CFontShapeCmb shapes;
    CCharSpaceCmb spaces;
    for (CComboBox* combo : std::initializer_list<CComboBox*>{&sizes, &angles, &aligns, &shapes, &spaces})
        create(*combo, 0);
    sizes.InitSize();
    EXPECT_EQ("5.00|7.00|8.00|9.00|10.00|12.00|14.00|18.00|22.00|26.00|35.00|45.00|60.00", textsOf(sizes));
    angles.Init();
    EXPECT_EQ("0.00|15.00|30.00|45.00|90.00|105.00|130.00|145.00|160.00|175.00|190.00|205.00|300.00|350.00",
              textsOf(angles));
    aligns.Init();
    EXPECT_EQ("左对齐|居中|右对齐|分散对齐|上对齐|居中|下对齐", textsOf(aligns));
    shapes.Init();
    EXPECT_EQ("常规|斜体|下划线|黑体", textsOf(shapes));
    for (const double dist : {3.5, 4.26, 2.0})
        spaces.AddItem(dist);
    EXPECT_EQ("3.5磅|4.3磅|2.0磅", textsOf(spaces));
    for (COrvRecordCombo* combo :
         std::initializer_list<COrvRecordCombo*>{&sizes, &angles, &aligns, &shapes, &spaces}) {
        combo->SetInit();
        EXPECT_EQ(0, combo->GetCurSel());
        EXPECT_EQ(18, combo->GetItemHeight(0));
    }
    EXPECT_EQ(5, sizes.GetCurrentSize());
    EXPECT_EQ(3.5, spaces.GetCurrentDist());
    ::SendMessage(sizes.m_hWnd, CB_SETCURSEL, 2, 0);
    EXPECT_EQ(8, sizes.GetCurrentSize()) << "selected by whomever";
    EXPECT_EQ("8.00", textOf(sizes));
    sizes.SetCurrentSize(8.0000004);
    EXPECT_EQ(8.0000004, sizes.GetCurrentSize()) << "as it was set";
    // A list is chosen from, sizes and slopes may be typed.
    EXPECT_EQ(DWORD(CBS_DROPDOWN), sizes.GetStyle() & CBS_DROPDOWNLIST);
    EXPECT_EQ(DWORD(CBS_DROPDOWN), angles.GetStyle() & CBS_DROPDOWNLIST);
    EXPECT_EQ(DWORD(CBS_DROPDOWNLIST), spaces.GetStyle() & CBS_DROPDOWNLIST);
    EXPECT_STREQ("上对齐", CCmbFontAlignData::GetFlagString(4));
    EXPECT_STREQ("上对齐", CCmbFontAlignData::GetFlagString(8));
    EXPECT_STREQ("居中", CCmbFontAlignData::GetFlagString(6));
}

TEST_F(FontPickers, ValuesThatNoRowHoldsAreShownAllTheSame) {
    CFontSizeCmb sizes;
    create(sizes);
    sizes.InitSize();
    EXPECT_TRUE(sizes.SetCurrentSize(12));
    EXPECT_EQ(5, sizes.GetCurSel());
    EXPECT_TRUE(sizes.SetCurrentSize(10.5));
    EXPECT_EQ(-1, sizes.GetCurSel());
    EXPECT_EQ("10.50", textOf(sizes));
    EXPECT_EQ(10.5, sizes.GetCurrentSize());
    EXPECT_EQ(1, sizes.IsFontSizeIn(60));
    EXPECT_EQ(0, sizes.IsFontSizeIn(10.5));
    EXPECT_TRUE(sizes.SetCurrentSize(9.754)) << "its text is coarser than the value";
    EXPECT_TRUE(sizes.TakeTypedText());
    EXPECT_EQ(9.754, sizes.GetCurrentSize());

    CCharSpaceCmb spaces;
    create(spaces, CBS_DROPDOWNLIST);
    spaces.AddItem(3.5);
    EXPECT_TRUE(spaces.SetCurrentDist(6));
    EXPECT_TRUE(spaces.SetCurrentDist(7.25));
    EXPECT_EQ("3.5磅|7.2磅", textsOf(spaces)) << "one row at a time";
    EXPECT_EQ(7.25, spaces.GetCurrentDist());
    EXPECT_TRUE(spaces.SetCurrentDist(3.5));
    EXPECT_EQ(0, spaces.GetCurSel());
    spaces.ResetContent();
    for (const double dist : {1.0, 1.5}) // where the records of before were
        spaces.AddItem(dist);
    EXPECT_TRUE(spaces.SetCurrentDist(2));
    EXPECT_EQ("1.0磅|1.5磅|2.0磅", textsOf(spaces)) << "the row of before is gone, and only that";

    CFontAlignCmb aligns;
    create(aligns, CBS_DROPDOWNLIST);
    EXPECT_EQ(0u, aligns.GetCurrentAlignType());
    aligns.Init();
    aligns.SetCurrentAlignType(6);
    EXPECT_EQ(5, aligns.GetCurSel());
    for (const UINT flag : {99u, 4u}) {
        aligns.SetCurrentAlignType(flag);
        EXPECT_EQ(flag, aligns.GetCurrentAlignType());
        EXPECT_EQ(8, aligns.GetCount()) << "one row at a time";
    }
    CFontShapeCmb shapes;
    create(shapes, CBS_DROPDOWNLIST);
    shapes.Init();
    shapes.SetCurrentShape(ORVSHAPE_BOLD);
    EXPECT_EQ(UINT(ORVSHAPE_BOLD), shapes.GetCurrentShape());
    shapes.SetCurrentShape(77);
    EXPECT_EQ(UINT(ORVSHAPE_REGULAR), shapes.GetCurrentShape());
}

TEST_F(FontPickers, WhatIsNoValueIsRefused) {
    CFontSizeCmb sizes, none;
    CFontAslopeCmb angles;
    create(sizes);
    create(angles);
    EXPECT_TRUE(sizes.SetCurrentSize(8)) << "an empty list";
    for (const double wrong : {0.0, -3.0, 1639.0, HUGE_VAL, std::nan("")}) {
        EXPECT_FALSE(sizes.SetCurrentSize(wrong)) << wrong;
        EXPECT_EQ(8, sizes.GetCurrentSize());
    }
    EXPECT_FALSE(angles.SetCurrentAngle(361));
    EXPECT_TRUE(angles.SetCurrentAngle(-360));
    EXPECT_EQ(CB_ERR, sizes.SetCurSel(0));
    for (const double wrong : {-3.0, HUGE_VAL, std::nan("")})
        sizes.AddItem(wrong);
    EXPECT_EQ(0, sizes.GetCount()) << "nor can it be chosen";
    EXPECT_FALSE(none.SetCurrentSize(8)) << "no window";
    EXPECT_EQ(CB_ERR, none.SetCurSel(0));
    EXPECT_FALSE(none.TakeTypedText());
    DebugEvents events;
    none.AddItem(8);
    EXPECT_EQ(1, events.assertions()) << "rows need a window";
    none.SetInit();
}

TEST_F(FontPickers, TypedNumbersCountAndRubbishIsKeptOut) {
    CFontSizeCmb sizes;
    create(sizes);
    sizes.InitSize();
    sizes.SetCurrentSize(9);
    type(sizes, "10.5");
    EXPECT_EQ(10.5, sizes.GetCurrentSize()) << "while it stands there";
    leave();
    EXPECT_EQ("10.50", textOf(sizes));
    for (const char* rubbish : {"abc", "-4", "0", "99999", "1e3", "0x10", "nan", "磅", ""}) {
        sizes.SetCurrentSize(9);
        ::SetFocus(fieldOf(sizes));
        sizes.SetWindowText(rubbish);
        leave();
        EXPECT_EQ("9.00", textOf(sizes)) << rubbish;
        EXPECT_EQ(9, sizes.GetCurrentSize()) << rubbish;
    }
    type(sizes, "14");
    pressInLoop(VK_RETURN, [&] { return textOf(sizes) == "14.00"; });
    EXPECT_EQ(6, sizes.GetCurSel());
    type(sizes, "1");
    pressInLoop(VK_F4, [&] { return sizes.GetDroppedState() != 0; });
    EXPECT_EQ("1.00", textOf(sizes)) << "and not the first row that begins so";
    EXPECT_EQ(1, sizes.GetCurrentSize());
    EXPECT_EQ(-1, sizes.GetCurSel());
}

TEST_F(FontPickers, ASizeIsReportedInOrder) {
    CFontSizeCmb sizes;
    create(sizes);
    sizes.InitSize();
    sizes.SetCurSel(3);
    EXPECT_EQ(9, sizes.GetCurrentSize());
    dialog.settle();
    EXPECT_EQ("", dialog.toldText()) << "code tells nobody";
    ::SetFocus(fieldOf(sizes));
    EXPECT_EQ("CBN_SELCHANGE 7; WM_FONT_SIZE_CMB_SELCHANGE 7 0; command of 7; ",
              dialog.toldBy([] { pressKey(VK_DOWN); }, 3));
    EXPECT_EQ(10, sizes.GetCurrentSize());
    EXPECT_EQ("10.00", textOf(sizes));
    sizes.SetEditSel(0, -1);
    leave();
    EXPECT_EQ(LOWORD(sizes.GetEditSel()), HIWORD(sizes.GetEditSel())) << "no selection is left behind";
    CFontAslopeCmb angles;
    create(angles);
    angles.Init();
    angles.SetInit();
    ::SetFocus(fieldOf(angles));
    EXPECT_EQ("CBN_SELCHANGE 7; ", dialog.toldBy([] { pressKey(VK_DOWN); }, 1));
    EXPECT_EQ(15, angles.GetCurrentAngle());
}

TEST_F(FontPickers, RowsAreTheTextsOfTheirValues) {
    CCmbFontSizeData size(10.5);
    CCmbFontAslopeData angle(300);
    CCmbCharSpaceData space(2);
    CCmbFontAlignData align(3);
    CCmbFontShapeData regular(ORVSHAPE_REGULAR), italic(ORVSHAPE_ITALIC);
    const struct {
        COrvCmbRecord& row;
        const char* text;
        bool same;
    } rows[] = {{size, "10.50", true},     {angle, "300.00", true}, {space, "2.0磅", true},
                {align, "分散对齐", true}, {regular, "常规", true}, {italic, "斜体", false}};
    for (const auto& row : rows)
        EXPECT_EQ(row.same, drawn(row.row) == drawnText(3, row.text)) << row.text;
}

// --- shapes

TEST_F(FontPickers, AShapeButtonSwitches) {
    CFontShapeButton button;
    ASSERT_TRUE(button.SubclassDlgItem(IDC_BUTTON, &dialog));
    button.SetWindowText("下划线");
    EXPECT_EQ(1, button.GetPushState());
    EXPECT_STREQ("下划线", button.GetDrawText());
    button.SetFontShape(ORVSHAPE_UNDERLINE, TRUE);
    EXPECT_STREQ("U", button.GetDrawText());
    EXPECT_TRUE(button.GetDrawFont(NULL).lfUnderline);
    for (const int state : {0, 1}) { // the system keeps a brush for each
        button.SetPushState(state, TRUE);
        button.UpdateWindow();
    }
    const int before = liveGdiHandles();
    const struct {
        const char* what;
        std::function<void()> act;
        int state;
    } rows[] = {
        {"a click", [&] { click(button.m_hWnd); }, 0},
        {"a quick second one", [&] { click(button.m_hWnd); }, 1},
        {"the space bar", [&] { pressKey(VK_SPACE); }, 0},
    };
    for (const auto& row : rows) {
        dialog.told.clear();
        row.act();
        EXPECT_TRUE(waitUntil([&] { return !dialog.told.empty(); })) << row.what;
        EXPECT_EQ(row.state, button.GetPushState()) << row.what;
    }
    button.SetPushState(7, TRUE);
    EXPECT_EQ(1, button.GetPushState());
    dialog.settle();
    button.UpdateWindow();
    EXPECT_EQ(before, liveGdiHandles());
    EXPECT_EQ("clicked; ", dialog.toldText()) << "one for each click";
}

TEST_F(FontPickers, AShapeButtonShowsItsState) {
    CFontShapeButton button;
    ASSERT_TRUE(button.SubclassDlgItem(IDC_BUTTON, &dialog));
    button.SetFontShape(ORVSHAPE_BOLD, FALSE);
    const auto ink = [&](int pushState, UINT itemState) {
        Picture picture(30, 24);
        button.SetPushState(pushState, FALSE);
        DRAWITEMSTRUCT item = {};
        item.hDC = picture.dc.m_hDC;
        item.rcItem = {0, 0, 30, 24};
        item.itemState = itemState;
        button.DrawItem(&item);
        int dark = 0;
        for (int y = 4; y < 20; ++y)
            for (int x = 4; x < 26; ++x)
                dark += picture.at(x, y) == ::GetSysColor(COLOR_BTNTEXT);
        return std::pair(picture.at(1, 1), dark);
    };
    EXPECT_NE(ink(0, 0).first, ink(1, 0).first) << "pushed in or not";
    EXPECT_LT(5, ink(1, 0).second);
    EXPECT_EQ(0, ink(1, ODS_DISABLED).second) << "grey when disabled";
}

} // namespace
