// What all record combos have in common.

#include "pickers_test.h"

#include <gtest/gtest.h>

#include "support/debug_events.h"

using namespace orv::test;

namespace {

class Sample : public COrvCmbRecord {
public:
    static int alive;
    explicit Sample(const char* name) : m_strName(name) { ++alive; }
    ~Sample() override { --alive; }
    CString GetName() const override { return m_strName; }
    void DrawItem(CDC* pDC, const CRect& rc, int) override { pDC->FillSolidRect(&rc, RGB(9, 8, 7)); }
    CString m_strName;
};
int Sample::alive = 0;

class CSampleCombo : public COrvRecordCombo {
public:
    int changes = 0;
    int Add(const char* name, int index = -1) { return InsertRecord(index, new Sample(name)); }
    int AddNone() { return InsertRecord(-1, NULL); }
    using COrvRecordCombo::GetRecord;

protected:
    void OnSelchange() override {
        ++changes;
        PostChoice(WM_LINE_STYLE_CMB_SELCHANGE);
    }
};

class RecordCombo : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(dialog.open());
        attach(combo);
    }
    void TearDown() override {
        dialog.DestroyWindow();
        EXPECT_EQ(0, Sample::alive) << "records that nobody deleted";
    }
    void fill(CSampleCombo& one) {
        for (const char* name : {"红色", "绿色", "蓝色", "蓝绿"})
            one.Add(name);
    }
    void attach(CSampleCombo& one, int id = IDC_COMBO) {
        ASSERT_TRUE(one.SubclassDlgItem(id, &dialog));
        fill(one);
    }
    CPickerDlg dialog;
    CSampleCombo combo; // attached and filled
};

TEST_F(RecordCombo, HeightsAreSetHoweverItIsAttached) {
    CSampleCombo created;
    ASSERT_TRUE(created.Create(WS_CHILD | WS_VISIBLE, CRect(10, 130, 200, 230), &dialog, 7));
    fill(created);
    for (CSampleCombo* one : {&combo, &created}) {
        EXPECT_EQ(18, one->GetItemHeight(0));
        EXPECT_LE(abs(CRect(partsOf(*one).rcItem).Height() - 18), 2)
            << "the field, with or without its border";
    }
    EXPECT_EQ(DWORD(CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS),
              created.GetStyle() & (CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS));
    CString text;
    created.GetLBText(1, text);
    EXPECT_STREQ("绿色", text) << "what a screen reader reads";
    CFont high;
    high.CreateFont(-40, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, NULL);
    created.SetFont(&high);
    EXPECT_GE(created.GetItemHeight(0), 40);
    MEASUREITEMSTRUCT item = {};
    created.MeasureItem(&item);
    EXPECT_EQ(18u, item.itemHeight) << "of whatever font";
}

TEST_F(RecordCombo, RecordsGoWithTheirItems) {
    EXPECT_EQ(2, combo.Add("间", 2));
    EXPECT_STREQ("间", combo.GetRecord(2)->GetName());
    combo.DeleteString(2);
    EXPECT_EQ(4, Sample::alive);
    combo.ResetContent();
    EXPECT_EQ(0, Sample::alive);
    fill(combo);
    // Strangers cannot put in what would be deleted as a record.
    EXPECT_EQ(CB_ERR, combo.SetItemData(1, 0x1234));
    EXPECT_EQ(4, combo.AddString("无记录"));
    EXPECT_EQ(NULL, combo.GetRecord(4));
    EXPECT_EQ(5, combo.AddNone());
    for (int wrong : {-2, 7, INT_MAX})
        EXPECT_EQ(CB_ERR, combo.Add("x", wrong)) << wrong;
    EXPECT_EQ(NULL, combo.GetRecord(-1));
    EXPECT_EQ(NULL, combo.GetRecord(6));
}

TEST_F(RecordCombo, EndsInEveryOrder) {
    {
        CSampleCombo first;
        attach(first, IDC_NO_STRINGS);
        EXPECT_EQ(8, Sample::alive);
    }
    EXPECT_EQ(4, Sample::alive) << "the object went before its window";
    dialog.DestroyWindow();
    EXPECT_EQ(0, Sample::alive) << "the parent went before the object";
    EXPECT_EQ(NULL, combo.m_hWnd);
    combo.SetInit();
    EXPECT_EQ(NULL, combo.GetRecord(0));
    ASSERT_TRUE(dialog.open());
    attach(combo);
    EXPECT_EQ(4, combo.GetCount());
    combo.SetInit();
    EXPECT_EQ(0, combo.GetCurSel());
}

TEST_F(RecordCombo, TypingSearchesTheNames) {
    CSampleCombo other;
    attach(other, IDC_NO_STRINGS);
    for (CSampleCombo* one : {&combo, &other}) {
        ASSERT_TRUE(focusOn(*one));
        typeText(wideText("蓝绿"));
        EXPECT_TRUE(waitUntil([&] { return one->GetCurSel() == 3; }));
        EXPECT_EQ(2, one->changes) << "first to 蓝色, then on";
        CString text;
        one->GetWindowText(text);
        EXPECT_STREQ("蓝绿", text);
        char cut[4];
        EXPECT_EQ(2, one->GetWindowText(cut, 4)) << "never half a character";
        pressKey(VK_HOME);
        EXPECT_TRUE(waitUntil([&] { return one->GetCurSel() == 0; }));
    }
}

TEST_F(RecordCombo, ChoicesAreToldToAMessageWindow) {
    combo.SetInit();
    CPickerDlg other;
    ASSERT_TRUE(other.Create(IDD_PICKERS));
    combo.SetMessageWnd(&other);
    EXPECT_EQ(&other, combo.GetMessageWnd());
    ASSERT_TRUE(focusOn(combo));
    pressKey(VK_END);
    EXPECT_TRUE(waitUntil([&] { return other.told.size() == 1; }));
    EXPECT_EQ("WM_LINE_STYLE_CMB_SELCHANGE 0 0; ", other.toldText());
    EXPECT_EQ("CBN_SELCHANGE 1000; ", dialog.toldText());
    other.DestroyWindow();
    pressKey(VK_HOME);
    EXPECT_TRUE(waitUntil([&] { return combo.GetCurSel() == 0; })) << "a message window without window";
}

TEST_F(RecordCombo, DrawsOnlyWhatHasARecord) {
    Picture picture(40, 18);
    DRAWITEMSTRUCT item = {};
    item.hDC = picture.dc.m_hDC;
    item.rcItem = {0, 0, 40, 18};
    combo.DrawItem(&item);
    EXPECT_EQ(RGB(1, 2, 3), picture.at(5, 5)) << "no record";
    Sample sample("x");
    item.itemData = reinterpret_cast<ULONG_PTR>(static_cast<COrvCmbRecord*>(&sample));
    combo.DrawItem(&item);
    EXPECT_EQ(RGB(9, 8, 7), picture.at(5, 5));
    item.itemID = static_cast<UINT>(-1);
    combo.DrawItem(&item);
    EXPECT_EQ(::GetSysColor(COLOR_WINDOW), picture.at(5, 5)) << "the empty field";
    item.itemState = ODS_DISABLED;
    combo.DrawItem(&item);
    EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), picture.at(5, 5));
}

TEST_F(RecordCombo, OnlyOwnerDrawnCombosKeepRecords) {
    DebugEvents events;
    CSampleCombo plain, none;
    EXPECT_EQ(CB_ERR, none.Add("x")) << "no window";
    CWnd* edit = dialog.GetDlgItem(IDC_OTHER);
    ASSERT_TRUE(plain.SubclassWindow(edit->m_hWnd)) << "not even a combo";
    EXPECT_EQ(CB_ERR, plain.Add("x"));
    EXPECT_EQ(2, events.assertions());
}

} // namespace
