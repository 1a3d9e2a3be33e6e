// The pickers of faces, sizes, slopes, spacings, alignments and shapes.

#include "pickers_test.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

#include "support/debug_events.h"
#include "support/gdi_count.h"

using namespace orv::test;

namespace {

// Also notes the command behind a choice.
class CFontDlg : public CPickerDlg {
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_COMMAND && wParam == 1)
            told.push_back("command of " + std::to_string(::GetDlgCtrlID(reinterpret_cast<HWND>(lParam))));
        if (message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED && LOWORD(wParam) == IDC_BUTTON)
            told.push_back("clicked");
        return CPickerDlg::WindowProc(message, wParam, lParam);
    }
};

std::string textOf(const CWnd& window) {
    CString text;
    window.GetWindowText(text);
    return static_cast<LPCTSTR>(text);
}

std::string rowTexts(const CComboBox& combo) {
    std::string texts;
    for (int i = 0; i < combo.GetCount(); ++i) {
        CString text;
        combo.GetLBText(i, text);
        texts += static_cast<LPCTSTR>(text) + std::string(" ");
    }
    return texts;
}

HWND fieldOf(const CComboBox& combo) {
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    combo.GetComboBoxInfo(&info);
    return info.hwndItem;
}

class FontPickers : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(dialog.open()); }
    void create(CComboBox& combo, DWORD style = CBS_DROPDOWN) {
        ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_TABSTOP | style,
                                 CRect(10, 130, 200, 330), &dialog, 7));
    }
    // Into the field of a combo, over what is there.
    void type(CComboBox& combo, const char* text) {
        ::SetFocus(fieldOf(combo));
        ASSERT_TRUE(waitUntil([&] { return ::GetFocus() == fieldOf(combo); }));
        combo.SetEditSel(0, -1);
        typeText(wideText(text));
        ASSERT_TRUE(waitUntil([&] { return textOf(combo) == text; })) << textOf(combo);
    }
    // A key as the program's own message loop has it, until the condition holds.
    void pressInLoop(WORD key, const std::function<bool()>& condition) {
        dialog.settle();
        pressKey(key);
        EXPECT_TRUE(waitInLoop(condition));
    }
    bool waitInLoop(const std::function<bool()>& condition) {
        MSG message;
        return waitUntil([&] {
            while (!condition() && ::PeekMessage(&message, NULL, 0, 0, PM_REMOVE))
                if (!dialog.WalkPreTranslateTree(dialog.m_hWnd, &message)) {
                    ::TranslateMessage(&message);
                    ::DispatchMessage(&message);
                }
            return condition();
        });
    }
    void leave() {
        CWnd* other = dialog.GetDlgItem(IDC_OTHER);
        other->SetFocus();
        ASSERT_TRUE(waitUntil([&] { return ::GetFocus() == other->m_hWnd; }));
    }
    CFontDlg dialog;
};

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
    EXPECT_EQ("5.00 7.00 8.00 9.00 10.00 12.00 14.00 18.00 22.00 26.00 35.00 45.00 60.00 ", rowTexts(sizes));
    angles.Init();
    EXPECT_EQ("0.00 15.00 30.00 45.00 90.00 105.00 130.00 145.00 160.00 175.00 190.00 205.00 300.00 350.00 ",
              rowTexts(angles));
    aligns.Init();
    EXPECT_EQ("左对齐 居中 右对齐 分散对齐 上对齐 居中 下对齐 ", rowTexts(aligns));
    shapes.Init();
    EXPECT_EQ("常规 斜体 下划线 黑体 ", rowTexts(shapes));
    for (const double dist : {3.5, 4.26, 2.0})
        spaces.AddItem(dist);
    EXPECT_EQ("3.5磅 4.3磅 2.0磅 ", rowTexts(spaces));
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
    EXPECT_EQ("3.5磅 7.2磅 ", rowTexts(spaces)) << "one row at a time";
    EXPECT_EQ(7.25, spaces.GetCurrentDist());
    EXPECT_TRUE(spaces.SetCurrentDist(3.5));
    EXPECT_EQ(0, spaces.GetCurSel());
    spaces.ResetContent();
    spaces.AddItem(1);
    EXPECT_TRUE(spaces.SetCurrentDist(2));
    EXPECT_EQ("1.0磅 2.0磅 ", rowTexts(spaces)) << "the row of before is gone, and only that";

    CFontAlignCmb aligns;
    create(aligns, CBS_DROPDOWNLIST);
    EXPECT_EQ(0u, aligns.GetCurrentAlignType());
    aligns.Init();
    aligns.SetCurrentAlignType(6);
    EXPECT_EQ(5, aligns.GetCurSel());
    aligns.SetCurrentAlignType(99);
    EXPECT_EQ(99u, aligns.GetCurrentAlignType());
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
    pressKey(VK_DOWN);
    EXPECT_TRUE(waitUntil([&] { return dialog.told.size() == 3; }));
    EXPECT_EQ("CBN_SELCHANGE 7; WM_FONT_SIZE_CMB_SELCHANGE 7 0; command of 7; ", dialog.toldText());
    EXPECT_EQ(10, sizes.GetCurrentSize());
    EXPECT_EQ("10.00", textOf(sizes));
    sizes.SetEditSel(0, -1);
    leave();
    EXPECT_EQ(LOWORD(sizes.GetEditSel()), HIWORD(sizes.GetEditSel())) << "no selection is left behind";
    dialog.told.clear();
    CFontAslopeCmb angles;
    create(angles);
    angles.Init();
    angles.SetInit();
    ::SetFocus(fieldOf(angles));
    pressKey(VK_DOWN);
    EXPECT_TRUE(waitUntil([&] { return dialog.told.size() == 1; }));
    dialog.settle();
    EXPECT_EQ("CBN_SELCHANGE 7; ", dialog.toldText());
    EXPECT_EQ(15, angles.GetCurrentAngle());
}

// --- faces

int CALLBACK keepTrueType(const LOGFONT* plf, const TEXTMETRIC*, DWORD type, LPARAM faces) {
    if ((type & TRUETYPE_FONTTYPE) && !(type & 0x4000))
        reinterpret_cast<std::vector<std::string>*>(faces)->push_back(plf->lfFaceName);
    return TRUE;
}

std::vector<std::string> systemFaces() {
    std::vector<std::string> faces;
    CClientDC dc(NULL);
    LOGFONT any = {};
    ::EnumFontFamiliesExA(dc.m_hDC, &any, keepTrueType, reinterpret_cast<LPARAM>(&faces), 0);
    std::sort(faces.begin(), faces.end());
    faces.erase(std::unique(faces.begin(), faces.end()), faces.end());
    return faces;
}

TEST_F(FontPickers, FacesAreTheSystemsInAlphabeticalOrder) {
    CFontCombo combo;
    create(combo);
    combo.Initialize();
    std::vector<std::string> shown;
    for (int i = 0; i < combo.GetCount(); ++i) {
        CString text;
        combo.GetLBText(i, text);
        EXPECT_TRUE(shown.empty() || text.CompareNoCase(shown.back().c_str()) > 0) << text;
        shown.push_back(static_cast<LPCTSTR>(text));
    }
    std::sort(shown.begin(), shown.end());
    EXPECT_EQ(systemFaces(), shown);
    const int count = combo.GetCount();
    const int added = combo.AddFont("Mmm", 5);
    CString text;
    combo.GetLBText(added, text);
    EXPECT_STREQ("Mmm", text);
    EXPECT_EQ(added, combo.AddFont("mmm", 5)) << "there already";
    EXPECT_EQ(count + 1, combo.GetCount());
    EXPECT_TRUE(combo.SetFontInUse("MMM"));
    EXPECT_FALSE(combo.SetFontInUse("nobody's face"));
    combo.SetCurrentFontName("没有的字体");
    combo.Initialize();
    EXPECT_EQ(count, combo.GetCount());
    EXPECT_STREQ("没有的字体", combo.GetCurrentFontName());
    EXPECT_EQ("没有的字体", textOf(combo));
    EXPECT_FALSE(combo.SetCurrentFont());
}

TEST_F(FontPickers, AFaceIsChosenOrTyped) {
    CFontCombo combo;
    create(combo);
    for (const char* face : {"Beta", "Alpha", "Alpha Black"})
        combo.AddFont(face, 1);
    combo.SetCurrentFontName("Alpha");
    EXPECT_EQ(0, combo.GetCurSel());
    ::SetFocus(fieldOf(combo));
    pressKey(VK_DOWN);
    EXPECT_TRUE(waitUntil([&] { return dialog.told.size() == 3; }));
    EXPECT_EQ("CBN_SELCHANGE 7; WM_FONT_NAME_CMB_SELCHANGE 7 0; command of 7; ", dialog.toldText());
    EXPECT_STREQ("Alpha Black", combo.GetCurrentFontName());
    dialog.told.clear();
    type(combo, "beta");
    EXPECT_TRUE(waitUntil([&] { return dialog.told.size() == 2; })) << "a pause in the typing";
    EXPECT_STREQ("Beta", combo.GetCurrentFontName());
    EXPECT_EQ("beta", textOf(combo));
    leave();
    EXPECT_EQ("Beta", textOf(combo));
    type(combo, "Alp");
    leave();
    EXPECT_EQ("Beta", textOf(combo)) << "no face of that name";
    dialog.settle();
    EXPECT_EQ("WM_FONT_NAME_CMB_SELCHANGE 7 0; command of 7; ", dialog.toldText());
}

TEST_F(FontPickers, AFaceIsTypedWithEnterAndIntoTheOpenList) {
    CFontCombo combo;
    create(combo);
    for (const char* face : {"Alpha", "Beta", "Gamma", "中易宋体", "中易黑体"})
        combo.AddFont(face, 1);
    combo.SetInit();
    EXPECT_STREQ("Alpha", combo.GetCurrentFontName());
    type(combo, "beta");
    pressInLoop(VK_RETURN, [&] { return textOf(combo) == "Beta"; });
    EXPECT_STREQ("Beta", combo.GetCurrentFontName());
    pressInLoop(VK_F4, [&] { return combo.GetDroppedState() != 0; });
    type(combo, "中易宋");
    pressInLoop(VK_RETURN, [&] { return textOf(combo) == "中易宋体"; });
    EXPECT_TRUE(waitUntil([&] { return combo.GetCurrentFontName() == "中易宋体"; }));
    // A list without a selection takes what the field begins, and nobody is told by the system.
    type(combo, "Ga");
    const auto current = [&] { return std::string(combo.GetCurrentFontName()); };
    combo.SendMessage(WM_TIMER, 1); // the typing has paused
    combo.ShowDropDown();
    EXPECT_TRUE(waitUntil([&] { return current() == textOf(combo); })) << current() << textOf(combo);
    EXPECT_EQ("Gamma", current());
}

TEST_F(FontPickers, ADropDownListKeepsItsAlphabet) {
    CFontCombo combo;
    create(combo, CBS_DROPDOWNLIST);
    for (const char* face : {"Gamma", "Alpha"})
        combo.AddFont(face, 1);
    combo.SetCurrentFontName("Delta");
    combo.SetCurrentFontName("Beta");
    EXPECT_EQ("Alpha Beta Gamma ", rowTexts(combo)) << "one foreign name at a time";
    EXPECT_EQ(1, combo.AddFont("Beta", 1)) << "no more a foreign one";
    combo.SetCurrentFontName("Delta");
    EXPECT_EQ("Alpha Beta Delta Gamma ", rowTexts(combo));
    EXPECT_EQ(2, combo.GetCurSel());
}

TEST_F(FontPickers, RowsAreAsHighAsTheirFont) {
    CFont font;
    font.CreatePointFont(240, "宋体");
    CFontCombo faces;
    COrvFontComboBox plain;
    for (CComboBox* combo : std::initializer_list<CComboBox*>{&faces, &plain}) {
        create(*combo, CBS_DROPDOWNLIST);
        EXPECT_EQ(18, combo->GetItemHeight(0));
        combo->SetFont(&font);
        EXPECT_LE(32, combo->GetItemHeight(0));
        EXPECT_LE(combo->GetItemHeight(0), combo->GetItemHeight(-1));
    }
}

TEST_F(FontPickers, FontsAreMadeForRowsInViewAndFreed) {
    CFontCombo combo;
    create(combo, CBS_DROPDOWNLIST);
    const auto fillTo = [&](int count) {
        CString name;
        for (int i = combo.GetCount(); i < count; ++i) {
            name.Format("Face %04d", i);
            combo.AddFont(name, 1);
        }
    };
    // The most handles that a page of rows took, and those that all pages left.
    const HWND list = listOf(combo);
    const auto scrollThrough = [&](int& most) {
        CRect rc;
        ::GetClientRect(list, &rc);
        const int first = liveGdiHandles();
        for (int top = 0; top < combo.GetCount(); top += rc.Height() / 18) {
            ::SendMessage(list, LB_SETTOPINDEX, static_cast<WPARAM>(top), 0);
            const int before = liveGdiHandles();
            ::RedrawWindow(list, NULL, NULL, RDW_INVALIDATE | RDW_UPDATENOW);
            most = std::max(most, liveGdiHandles() - before);
        }
        return liveGdiHandles() - first;
    };
    const auto round = [&](int count, int kept) {
        const int closed = liveGdiHandles();
        combo.ShowDropDown();
        CRect rc;
        ::GetClientRect(list, &rc);
        int most = 0;
        const int made = scrollThrough(most);
        EXPECT_LE(most, rc.Height() / 18 + 2) << "cut rows at both ends";
        EXPECT_LE(made, kept);
        EXPECT_LE(std::min(count, kept) / 3, made) << "rows keep their fonts while the list is open";
        if (count <= kept) {
            EXPECT_EQ(0, scrollThrough(most)) << "one font a row";
        }
        combo.ShowDropDown(FALSE);
        dialog.settle();
        return liveGdiHandles() - closed;
    };
    fillTo(500);
    for (int i = 0; i < 2; ++i) // the system's own objects come in the first ones
        round(500, 500);
    EXPECT_EQ(0, round(500, 500));
    fillTo(1400);
    EXPECT_EQ(0, round(1400, 1000)) << "not every handle that the system has";
    for (int i = 0; i < 50; ++i) {
        combo.SetCurSel(i);
        combo.UpdateWindow();
    }
    const int before = liveGdiHandles();
    for (int i = 50; i < 100; ++i) {
        combo.SetCurSel(i);
        combo.UpdateWindow();
    }
    EXPECT_EQ(before, liveGdiHandles()) << "the field of a closed list";
}

TEST_F(FontPickers, AFaceShowsItsNameInItselfWhereItCan) {
    const std::vector<std::string> faces = systemFaces();
    ASSERT_FALSE(faces.empty());
    for (const std::string& face : {faces.front(), std::string("没有的字体"), std::string(10000, 'x')}) {
        CFontObj row(face.c_str(), 1);
        Picture used(200, 18), unused(200, 18);
        row.DrawItem(&unused.dc, CRect(0, 0, 200, 18), 0);
        row.SetFontInUse(TRUE);
        CFontObj copy(row);
        copy.DrawItem(&used.dc, CRect(0, 0, 200, 18), ODS_SELECTED);
        const COLORREF window = ::GetSysColor(COLOR_WINDOW);
        EXPECT_LT(10, unused.inked(window, 10, 200).Width()) << face.substr(0, 40);
        EXPECT_EQ(window, unused.at(4, 9));
        EXPECT_EQ(::GetSysColor(COLOR_WINDOWTEXT), used.at(4, 9)) << "the mark of a face in use";
        EXPECT_EQ(COLORREF(0xFF8000), used.at(0, 0)) << "the frame of the selection";
    }
    CFontObj with("a&b", 1), without("ab", 1);
    Picture both(200, 18), letters(200, 18);
    with.DrawItem(&both.dc, CRect(0, 0, 200, 18), 0);
    without.DrawItem(&letters.dc, CRect(0, 0, 200, 18), 0);
    const COLORREF window = ::GetSysColor(COLOR_WINDOW);
    EXPECT_LT(letters.inked(window, 0, 200).Width(), both.inked(window, 0, 200).Width())
        << "& is a character";
}

TEST_F(FontPickers, ThePlainPickerFillsItself) {
    COrvFontComboBox combo(ORVFONTS_INTERFACE);
    combo.SetHilightColors(RGB(1, 1, 1), RGB(2, 2, 2));
    combo.SetNormalColors(RGB(3, 3, 3), RGB(4, 4, 4));
    ASSERT_TRUE(combo.SubclassDlgItem(IDC_COMBO, &dialog));
    EXPECT_TRUE(waitUntil([&] { return combo.GetCount() > 0; }));
    const int count = combo.GetCount();
    combo.FillFonts();
    EXPECT_EQ(count, combo.GetCount()) << "no face twice";
    LOGFONT lf = {};
    EXPECT_FALSE(combo.GetSelFont(lf));
    combo.SetCurSel(count - 1);
    EXPECT_TRUE(combo.GetSelFont(lf));
    CString text;
    combo.GetLBText(count - 1, text);
    EXPECT_STREQ(lf.lfFaceName, text);
    EXPECT_EQ(CB_ERR, combo.SetItemData(0, 0x1234)) << "would be deleted as a font";
    combo.AddString("no data");
    Picture picture(100, 18);
    DRAWITEMSTRUCT item = {};
    item.hDC = picture.dc.m_hDC;
    item.rcItem = {0, 0, 100, 18};
    combo.DrawItem(&item);
    EXPECT_EQ(RGB(4, 4, 4), picture.at(50, 1)) << "no data: no name";
    EXPECT_EQ(0, picture.inked(RGB(4, 4, 4), 0, 100).right & ~INT_MIN);
    item.itemData = reinterpret_cast<ULONG_PTR>(&lf);
    item.itemState = ODS_SELECTED;
    combo.DrawItem(&item);
    EXPECT_EQ(RGB(2, 2, 2), picture.at(50, 1));
    EXPECT_LT(5, picture.inked(RGB(2, 2, 2), 0, 100).Width());
}

TEST_F(FontPickers, ThePlainPickerKeepsFontsOnlyWhereItCan) {
    COrvFontComboBox combo;
    ASSERT_TRUE(combo.SubclassDlgItem(IDC_NO_STRINGS, &dialog));
    EXPECT_EQ(CB_ERR, combo.AddString("its address would be deleted as a font"));
    combo.InitFonts();
    EXPECT_EQ(0, combo.GetCount());
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
