// The pickers of faces.

#include "font_pickers_test.h"

#include <algorithm>

#include "support/gdi_count.h"

using namespace orv::test;

namespace {

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

TEST_F(FontPickers, SomeKindsOfFontsAreTaken) {
    const struct {
        DWORD type;
        bool screen, printer, plain;
    } rows[] = {{TRUETYPE_FONTTYPE, true, true, true},
                {TRUETYPE_FONTTYPE | DEVICE_FONTTYPE, true, true, false},
                {TRUETYPE_FONTTYPE | 0x4000, false, true, false},
                {DEVICE_FONTTYPE, false, true, false},
                {RASTER_FONTTYPE, false, false, false},
                {0, false, true, false}};
    CFontCombo faces;
    COrvFontComboBox plain;
    create(faces, CBS_DROPDOWNLIST);
    create(plain, CBS_DROPDOWNLIST);
    EXPECT_TRUE(waitUntil([&] { return plain.GetCount() > 0; }));
    const LOGFONT font = {-7, 0, 0, 0, 700, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, 0, "A face"};
    const auto takes = [&](FONTENUMPROC take, CComboBox& combo, DWORD type) {
        combo.ResetContent();
        EXPECT_TRUE(take(&font, NULL, type, reinterpret_cast<LPARAM>(&combo)));
        return combo.FindStringExact(-1, "A face") >= 0;
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.screen, takes(CFontCombo::EnumFamScreenCallBackEx, faces, row.type)) << row.type;
        EXPECT_EQ(row.printer, takes(CFontCombo::EnumFamPrinterCallBackEx, faces, row.type)) << row.type;
        EXPECT_EQ(row.plain, takes(COrvFontComboBox::EnumFontProc, plain, row.type)) << row.type;
    }
    EXPECT_TRUE(takes(COrvFontComboBox::EnumFontProc, plain, TRUETYPE_FONTTYPE));
    plain.SetCurSel(0);
    LOGFONT chosen = {};
    EXPECT_TRUE(plain.GetSelFont(chosen));
    EXPECT_EQ(700, chosen.lfWeight) << "as the system gave it";
}

TEST_F(FontPickers, AFaceIsChosenOrTyped) {
    CFontCombo combo;
    create(combo);
    for (const char* face : {"Beta", "Alpha", "Alpha Black"})
        combo.AddFont(face, 1);
    combo.SetCurrentFontName("Alpha");
    EXPECT_EQ(0, combo.GetCurSel());
    ::SetFocus(fieldOf(combo));
    EXPECT_EQ("CBN_SELCHANGE 7; WM_FONT_NAME_CMB_SELCHANGE 7 0; command of 7; ",
              dialog.toldBy([] { pressKey(VK_DOWN); }, 3));
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
    EXPECT_EQ("Alpha|Beta|Gamma", textsOf(combo)) << "one foreign name at a time";
    EXPECT_EQ(1, combo.AddFont("Beta", 1)) << "no more a foreign one";
    combo.SetCurrentFontName("Delta");
    EXPECT_EQ("Alpha|Beta|Delta|Gamma", textsOf(combo));
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
    const HWND list = partsOf(combo).hwndList;
    // Opens the list, shows it page by page and closes it. Answers how many handles are left then.
    const auto round = [&](int count, int kept) {
        for (int i = combo.GetCount(); i < count; ++i)
            combo.AddFont(("Face " + std::to_string(10000 + i)).c_str(), 1);
        const int closed = liveGdiHandles();
        combo.ShowDropDown();
        CRect rc;
        ::GetClientRect(list, &rc);
        const int rows = rc.Height() / 18, opened = liveGdiHandles();
        for (int top = 0; top < count; top += rows) {
            ::SendMessage(list, LB_SETTOPINDEX, static_cast<WPARAM>(top), 0);
            const int before = liveGdiHandles();
            ::RedrawWindow(list, NULL, NULL, RDW_INVALIDATE | RDW_UPDATENOW);
            EXPECT_LE(liveGdiHandles() - before, rows + 2) << "cut rows at both ends";
        }
        EXPECT_LE(liveGdiHandles() - opened, kept);
        EXPECT_LE(std::min(count, kept) / 3, liveGdiHandles() - opened) << "kept while the list is open";
        combo.ShowDropDown(FALSE);
        dialog.settle();
        return liveGdiHandles() - closed;
    };
    for (int i = 0; i < 2; ++i) // the system's own objects come in the first ones
        round(500, 500);
    EXPECT_EQ(0, round(500, 500));
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

// How many pixel rows have something of the text.
int inkedRows(const Pixels& pixels) {
    int rows = 0;
    for (auto row = pixels.begin(); row != pixels.end(); row += kRow.Width())
        rows += std::any_of(row, row + kRow.Width(), [&](COLORREF cr) { return cr != pixels.front(); });
    return rows;
}

TEST_F(FontPickers, AFaceShowsItsNameInItselfWhereItCan) {
    const std::string others[] = {"没有的字体", "a&b", std::string(10000, 'x')};
    int ofTheirOwn = 0;
    for (const std::string& face : systemFaces()) {
        CFontObj row(face.c_str(), 1);
        const Pixels own = drawnText(10, face, face.c_str()), plain = drawnText(10, face);
        const bool legible = face[0] != '@' && inkedRows(own) > 4; // neither lying nor tiny
        EXPECT_TRUE((legible ? own : plain) == drawn(row)) << face;
        EXPECT_LT(4, inkedRows(drawn(row))) << face;
        ofTheirOwn += drawn(row) != plain;
        for (const std::string& name : others) {
            CFontObj other(name.c_str(), 1);
            EXPECT_TRUE(drawnText(10, name, face.c_str()) == drawn(other, face.c_str()))
                << name.substr(0, 40) << " in " << face;
        }
    }
    EXPECT_LT(0, ofTheirOwn) << "else the test sees nothing";
    CFontObj row("Alpha", 1);
    row.SetFontInUse(TRUE);
    CFontObj copy(row);
    Picture used(200, 18);
    copy.DrawItem(&used.dc, CRect(0, 0, 200, 18), ODS_SELECTED);
    EXPECT_EQ(::GetSysColor(COLOR_WINDOWTEXT), used.at(4, 9)) << "the mark of a face in use";
    EXPECT_EQ(COLORREF(0xFF8000), used.at(0, 0)) << "the frame of the selection";
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
    EXPECT_EQ(0, inked(picture, RGB(4, 4, 4), 0, 100).right & ~INT_MIN);
    item.itemData = reinterpret_cast<ULONG_PTR>(&lf);
    item.itemState = ODS_SELECTED;
    combo.DrawItem(&item);
    EXPECT_EQ(RGB(2, 2, 2), picture.at(50, 1));
    EXPECT_LT(5, inked(picture, RGB(2, 2, 2), 0, 100).Width());
}

TEST_F(FontPickers, ThePlainPickerKeepsFontsOnlyWhereItCan) {
    COrvFontComboBox combo;
    ASSERT_TRUE(combo.SubclassDlgItem(IDC_NO_STRINGS, &dialog));
    EXPECT_EQ(CB_ERR, combo.AddString("its address would be deleted as a font"));
    combo.InitFonts();
    EXPECT_EQ(0, combo.GetCount());
}

} // namespace
