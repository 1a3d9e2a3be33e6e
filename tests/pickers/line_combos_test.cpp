// The line property pickers: filling, current values, choices.

#include "pickers_test.h"

#include <gtest/gtest.h>

#include "support/gdi_count.h"

#include <math.h>

using namespace orv::test;

namespace {

class CTestColorCmb : public CColorCmb {
public:
    using CColorCmb::CColorCmb;
    using CColorCmb::GetColorName;
    using CColorCmb::GetColorNameIndex;
    using CColorCmb::GetCustColorIndex;
    using CColorCmb::SetCurSel;
    using CColorCmb::SetCustormToBottom;
    using CColorCmb::SwapColorIndex;
};

template <class Combo>
struct Attached : Combo {
    explicit Attached(CPickerDlg& dialog) { EXPECT_TRUE(this->SubclassDlgItem(IDC_COMBO, &dialog)); }
};

class LineCombos : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(dialog.open()); }
    // The key chooses the custom row; the user goes through these dialogs, and the parent is told.
    void ask(CWnd& combo, WORD key, const std::vector<InDialogs::Step>& steps) {
        ASSERT_TRUE(focusOn(combo));
        const InDialogs user(dialog.m_hWnd, steps);
        dialog.toldBy([=] { pressKey(key); }, 2);
        EXPECT_TRUE(user.done());
    }
    static void cancel(HWND) { pressKey(VK_ESCAPE); }
    // A picker that the program makes itself.
    void make(CComboBox& combo) {
        ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE, CRect(10, 130, 200, 230), &dialog, 7));
    }
    CPickerDlg dialog;
};

TEST_F(LineCombos, ColorsFromASet) {
    Attached<CTestColorCmb> combo(dialog);
    CColorSet set;
    EXPECT_EQ(20, combo.AddItem(&set));
    EXPECT_EQ(0, combo.AddItem(static_cast<CColorSet*>(NULL)));
    EXPECT_EQ(0u, combo.GetCurrentColor());
    EXPECT_STREQ("", combo.GetCurrentColorName());
    const struct {
        COLORREF color;
        int index;
        const char* name;
    } rows[] = {{0x0000FF, 2, "红色"},
                {0x008000, 8, "绿色"},
                {0, 0, "黑色"},
                {0xFF00FF, 6, "粉红"},
                {0x123456, 19, " 86 , 52 , 18 "},
                {0x123456, 19, " 86 , 52 , 18 "},
                {0xFFFFFFFF, 20, " 255 , 255 , 255 "}};
    for (const auto& row : rows) {
        EXPECT_EQ(1, combo.SetCurrentColor(row.color));
        EXPECT_EQ(row.index, combo.GetCurSel());
        EXPECT_EQ(row.color, combo.GetCurrentColor());
        EXPECT_STREQ(row.name, combo.GetCurrentColorName());
        EXPECT_STREQ(row.name, combo.GetColorName(row.color));
        EXPECT_EQ(combo.GetCount() - 1, combo.GetCustColorIndex()) << "new rows come before the custom row";
    }
    EXPECT_EQ(1, combo.SetCurrentColorName("绿色"));
    EXPECT_EQ(3, combo.GetCurSel());
    EXPECT_EQ(0, combo.SetCurrentColorName("无"));
    EXPECT_EQ(3, combo.GetCurSel());
    EXPECT_EQ(10, combo.GetColorNameIndex("紫红色"));
    EXPECT_EQ(-1, combo.GetColorNameIndex("无"));
    combo.SetCurrentColor(0x008000);
    combo.ResetColors();
    EXPECT_EQ(20, combo.GetCount());
    EXPECT_EQ(0x008000u, combo.GetCurrentColor());
    dialog.settle();
    EXPECT_EQ("", dialog.toldText());
}

TEST_F(LineCombos, ColorRowsMove) {
    Attached<CTestColorCmb> combo(dialog);
    combo.AddItem(1, "一");
    combo.AddItem(0, "其它...");
    combo.AddItem(2, CString("二"));
    EXPECT_EQ(0, combo.InsertItem(0, 3, "三"));
    EXPECT_EQ(CB_ERR, combo.InsertItem(9, 3, "三"));
    EXPECT_EQ("三|一|其它...|二", textsOf(combo));
    combo.SetCurrentColor(2);
    combo.SetCustormToBottom();
    EXPECT_EQ("三|一|二|其它...", textsOf(combo));
    EXPECT_EQ(2u, combo.GetCurrentColor());
    combo.SetCurSel(0);
    const struct {
        int first, second, result;
        const char* texts;
        COLORREF current;
    } rows[] = {{0, 2, 1, "二|一|三|其它...", 3},
                {1, 0, 1, "一|二|三|其它...", 3},
                {1, 1, 1, "一|二|三|其它...", 3},
                {0, 4, 0, "一|二|三|其它...", 3},
                {-1, 0, 0, "一|二|三|其它...", 3}};
    for (const auto& row : rows) {
        EXPECT_EQ(row.result, combo.SwapColorIndex(row.first, row.second));
        EXPECT_EQ(row.texts, textsOf(combo));
        EXPECT_EQ(row.current, combo.GetCurrentColor());
    }
    EXPECT_EQ(0, combo.InsertItem(0, 9, "新"));
    EXPECT_EQ(3u, combo.GetCurrentColor()) << "rows inserted before it";
}

TEST_F(LineCombos, Widths) {
    Attached<CLineWidthCmb> combo(dialog);
    CLineWidthSet set;
    EXPECT_EQ(13, combo.AddItem(&set));
    EXPECT_EQ(0, combo.AddItem(static_cast<CLineWidthSet*>(NULL)));
    const struct {
        double set, taken;
        int index;
        const char* name;
    } rows[] = {{0.5, 0.5, 0, "0.5毫米"},      {1, 1, 1, "1毫米"},  {0.75, 0.75, 12, "0.75毫米"},
                {12.0000009, 12, 8, "12毫米"}, {-2, 1, 1, "1毫米"}, {NAN, 1, 1, "1毫米"},
                {INFINITY, 1, 1, "1毫米"},     {0, 0, 13, "0毫米"}, {0.75, 0.75, 12, "0.75毫米"}};
    for (const auto& row : rows) {
        EXPECT_EQ(1, combo.SetCurrentWidth(row.set));
        EXPECT_EQ(row.taken, combo.GetCurrentWidth()) << row.set;
        EXPECT_EQ(row.index, combo.GetCurSel()) << row.set;
        EXPECT_STREQ(row.name, combo.GetCurrentWidthName());
        EXPECT_EQ(row.index, combo.GetWidthIndex(row.name));
        EXPECT_STREQ(row.name, combo.GetWidthName(row.taken));
    }
    EXPECT_EQ(1, combo.SetCurrentWidthName("25毫米"));
    EXPECT_EQ(25, combo.GetCurrentWidth());
    EXPECT_EQ(0, combo.SetCurrentWidthName("25象素"));
    combo.AddItem(NAN, "非数");
    combo.SetCustormToBottom();
    EXPECT_EQ(combo.GetCount() - 1, combo.GetWidthIndex("其它..."));
}

TEST_F(LineCombos, StylesFiguresAndFillings) {
    COrvMainDrawManage manage("");
    {
        CLineStyleCmb combo(&manage);
        make(combo);
        combo.InitGerStyle();
        EXPECT_EQ("实线|虚线|点线|虚点线|虚点点线|空线", textsOf(combo));
        EXPECT_EQ(0, combo.AddItem(static_cast<CLineTypeSet*>(NULL)));
        EXPECT_EQ(1, combo.SetCurrentStyle(4));
        EXPECT_STREQ("虚点点线", combo.GetCurrentStyleName());
        EXPECT_EQ(1, combo.SetCurrentStyle(101)) << "a value that no row holds";
        EXPECT_EQ(101, combo.GetCurrentStyle());
        EXPECT_STREQ("铁道线", combo.GetCurrentStyleName());
        EXPECT_EQ(1, combo.SetCurrentStyleName("点线"));
        EXPECT_EQ(2, combo.GetCurrentStyle());
        combo.ResetContent();
        CLineTypeSet types;
        EXPECT_EQ(7, combo.AddItem(&types));
    }
    {
        CBrushFigureCmb combo;
        make(combo);
        combo.InitGerStyle();
        EXPECT_EQ("实背景|45度斜线|相交线|45度斜交线|45度斜线|水平线|垂直线", textsOf(combo));
        EXPECT_EQ(1, combo.SetCurrentStyle(4));
        EXPECT_EQ(4, combo.GetCurSel());
        EXPECT_EQ(1, combo.SetCurrentStyleName("45度斜线"));
        EXPECT_EQ(1, combo.GetCurrentStyle()) << "the first of two";
        EXPECT_EQ(1, combo.SetCurrentStyle(-1));
        EXPECT_STREQ("自定义图案 -1 ", combo.GetCurrentStyleName()) << "solid: no filling is no figure";
        combo.AddItem(2, CString("有色"), 0x0000FF);
        combo.ResetColor(0x00FF00);
        for (int i = 0; i < combo.GetCount(); ++i)
            EXPECT_EQ(0x00FF00u,
                      static_cast<CCmbBrushFigureData*>(static_cast<COrvCmbRecord*>(combo.GetItemDataPtr(i)))
                          ->m_crColor);
    }
    COrvFillTypeCmb combo;
    make(combo);
    combo.InitGerFillType();
    EXPECT_EQ("无填充|实背景|45度斜线|相交线|45度斜交线|45度斜线|水平线|垂直线", textsOf(combo));
    for (const int type : {-1, 6, 0, 99}) {
        EXPECT_EQ(1, combo.SetCurrentFillType(type));
        EXPECT_EQ(type, combo.GetCurrentFillType());
    }
    EXPECT_EQ(9, combo.GetCount());
}

TEST_F(LineCombos, EmptyListsAndNoWindow) {
    CTestColorCmb color;
    CLineWidthCmb width;
    CLineStyleCmb style(NULL);
    CBrushFigureCmb figure;
    COrvFillTypeCmb fill;
    EXPECT_EQ(0, color.SetCurrentColor(5) + width.SetCurrentWidth(5) + style.SetCurrentStyle(5) +
                     figure.SetCurrentStyle(5) + fill.SetCurrentFillType(5));
    EXPECT_EQ(0u, color.GetCurrentColor());
    EXPECT_EQ(-1, color.GetCustColorIndex());
    EXPECT_EQ(0, width.GetCurrentWidth());
    color.ResetColors();
    color.SetCustormToBottom();
    EXPECT_EQ(0, color.SwapColorIndex(0, 0));
    figure.ResetColor(1);
    ASSERT_TRUE(color.SubclassDlgItem(IDC_COMBO, &dialog));
    color.SetCustormToBottom();
    EXPECT_EQ(1, color.SetCurrentColor(0x0000FF));
    EXPECT_EQ("红色", textsOf(color)) << "the only row";
}

// --- choices

TEST_F(LineCombos, EachTellsWithItsOwnMessage) {
    CColorCmb color;
    CLineStyleCmb line(NULL);
    CLineWidthCmb width;
    CBrushFigureCmb figure;
    COrvFillTypeCmb fill;
    const struct {
        CComboBox& combo;
        std::function<void()> fill;
        const char* message;
    } rows[] = {
        {color, [&] { color.ResetColors(); }, "WM_LINE_COLOR_CMB_SELCHANGE"},
        {line, [&] { line.InitGerStyle(); }, "WM_LINE_STYLE_CMB_SELCHANGE"},
        {width, [&] { width.AddItem(1, "1"); }, "WM_LINE_WIDTH_CMB_SELCHANGE"},
        {figure, [&] { figure.InitGerStyle(); }, "WM_BRUSH_FIGURE_CMB_SELCHANGE"},
        {fill, [&] { fill.InitGerFillType(); }, "WM_FILL_TYPE_CMB_SELCHANGE"},
    };
    for (const auto& row : rows) {
        make(row.combo);
        row.fill();
        ASSERT_TRUE(focusOn(row.combo));
        EXPECT_EQ(std::string("CBN_SELCHANGE 7; ") + row.message + " 7 0; ",
                  dialog.toldBy([] { pressKey(VK_DOWN); }, 2));
        row.combo.DestroyWindow();
    }
}

// The value dialog over the row 其它....
TEST_F(LineCombos, AskingForAWidth) {
    Attached<CLineWidthCmb> combo(dialog);
    CLineWidthSet set;
    combo.AddItem(&set);
    combo.SetCurrentWidth(2);
    const auto type = [](const char* keys, WORD end) {
        return [=](HWND dialog) {
            CString prompt;
            CWnd::FromHandle(dialog)->GetDlgItemText(1001, prompt);
            EXPECT_STREQ("线宽毫米值：", prompt);
            typeText(wideText(keys));
            pressKey(end);
        };
    };
    const struct {
        std::vector<InDialogs::Step> steps;
        double width;
        const char* name;
    } rows[] = {
        {{{"输入数值", type("9", VK_ESCAPE)}}, 2, "2毫米"},
        {{{"输入数值", type("0.7", VK_RETURN)}}, 0.7, "0.7毫米"},
        {{{"输入数值", type("-2", VK_RETURN)}}, 1, "1毫米"},
        {{{"输入数值", type("宽", VK_RETURN)},
          {"", [](HWND) { pressKey(VK_RETURN); }},
          {"输入数值", type("25", VK_RETURN)}},
         25,
         "25毫米"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        ask(combo, VK_END, row.steps);
        EXPECT_EQ("CBN_SELCHANGE 1000; WM_LINE_WIDTH_CMB_SELCHANGE 1000 0; ", dialog.toldText());
        EXPECT_EQ(row.width, combo.GetCurrentWidth());
        EXPECT_STREQ(row.name, combo.GetCurrentWidthName());
        EXPECT_EQ(combo.GetCount() - 1, combo.GetWidthIndex("其它..."));
    }
}

// The system's dialog of colours.
TEST_F(LineCombos, AskingForAColor) {
    Attached<CTestColorCmb> combo(dialog);
    CColorSet set;
    combo.AddItem(&set);
    combo.SetCurSel(8); // the second 绿色
    ask(combo, VK_END, {{"", cancel}});
    EXPECT_EQ(0x008000u, combo.GetCurrentColor()) << "not the first of that name";
    ask(combo, VK_END, {InDialogs::colors(18, 52, 86, VK_RETURN)});
    EXPECT_EQ(RGB(18, 52, 86), combo.GetCurrentColor());
    EXPECT_STREQ(" 18 , 52 , 86 ", combo.GetCurrentColorName());
    EXPECT_EQ(combo.GetCount() - 1, combo.GetCustColorIndex());
}

TEST_F(LineCombos, TheOpenListAsksWhenItIsClosed) {
    Attached<CTestColorCmb> combo(dialog);
    combo.ResetColors();
    combo.SetCurrentColor(0x0000FF);
    ASSERT_TRUE(focusOn(combo));
    for (const bool accept : {false, true}) {
        dialog.settle();
        dialog.told.clear();
        pressKey(VK_F4);
        ASSERT_TRUE(waitUntil([&] { return combo.GetDroppedState(); }));
        pressKey(VK_END);
        ASSERT_TRUE(waitUntil([&] { return combo.GetCurSel() == 19; }));
        EXPECT_TRUE(combo.GetDroppedState()) << "nobody is asked in passing";
        const InDialogs user(dialog.m_hWnd, {{"", cancel}});
        pressKey(accept ? VK_RETURN : VK_ESCAPE);
        EXPECT_TRUE(waitUntil([&] { return combo.GetCurSel() == 2; }));
        EXPECT_EQ(accept, user.done()) << "Esc leaves without a question";
        EXPECT_FALSE(combo.GetDroppedState());
    }
}

TEST_F(LineCombos, AClickInTheOpenListCountsWhereverTheKeysStand) {
    Attached<CTestColorCmb> combo(dialog);
    combo.ResetColors();
    ASSERT_TRUE(focusOn(combo));
    const struct {
        bool walked; // by keys, to another row
        int clicked;
    } rows[] = {{false, 3}, {true, 17}, {true, 19}};
    for (const auto& r : rows) {
        const bool walked = r.walked;
        const int clicked = r.clicked;
        combo.SetCurSel(2);
        dialog.settle();
        dialog.told.clear();
        pressKey(VK_F4);
        ASSERT_TRUE(waitUntil([&] { return combo.GetDroppedState(); }));
        if (walked) {
            pressKey(VK_END);
            ASSERT_TRUE(waitUntil([&] { return dialog.told.size() == 1; }));
        }
        CRect row;
        ::SendMessage(partsOf(combo).hwndList, LB_GETITEMRECT, static_cast<WPARAM>(clicked),
                      reinterpret_cast<LPARAM>(&row));
        CWnd::FromHandle(partsOf(combo).hwndList)->ClientToScreen(&row);
        const InDialogs user(dialog.m_hWnd, {{"", cancel}});
        clickAt(row.left + 10, row.CenterPoint().y);
        EXPECT_TRUE(waitUntil([&, lines = walked ? 3u : 2u] { return dialog.told.size() == lines; }));
        dialog.settle();
        EXPECT_EQ(std::string(walked ? "CBN_SELCHANGE 1000; " : "") +
                      "CBN_SELCHANGE 1000; WM_LINE_COLOR_CMB_SELCHANGE 1000 0; ",
                  dialog.toldText());
        EXPECT_FALSE(combo.GetDroppedState());
        EXPECT_EQ(clicked == 19, user.done()) << "asked once, for the row 其它... alone";
        EXPECT_EQ(clicked == 19 ? 2 : clicked, combo.GetCurSel());
    }
}

TEST_F(LineCombos, TheCustomRowAlone) {
    Attached<CLineWidthCmb> combo(dialog);
    combo.AddItem(1, "其它...");
    ask(combo, VK_DOWN, {{"输入数值", cancel}});
    EXPECT_EQ(-1, combo.GetCurSel()) << "nothing stays selected";
}

TEST_F(LineCombos, TheParentMayGoWhileTheUserIsAsked) {
    Attached<CLineWidthCmb> combo(dialog);
    combo.AddItem(2, "2");
    combo.AddItem(1, "其它...");
    combo.SetInit();
    ASSERT_TRUE(focusOn(combo));
    const InDialogs user(dialog.m_hWnd, {{"输入数值", [&](HWND) { dialog.DestroyWindow(); }}});
    pressKey(VK_END);
    EXPECT_TRUE(waitUntil([&] { return user.done() && !dialog.m_hWnd; }));
    EXPECT_EQ(NULL, combo.m_hWnd);
    // A new window knows nothing of the choice in the one before.
    ASSERT_TRUE(dialog.open());
    ASSERT_TRUE(combo.SubclassDlgItem(IDC_COMBO, &dialog));
    combo.AddItem(1, "其它...");
    combo.AddItem(2, "2");
    ask(combo, VK_DOWN, {{"输入数值", cancel}});
    EXPECT_EQ(0, combo.GetCurSel());
}

TEST_F(LineCombos, NothingIsLeftOver) {
    const auto round = [&] {
        COrvMainDrawManage manage("");
        CLineStyleCmb style(&manage);
        make(style);
        style.InitGerStyle();
        style.AddItem(101, "铁道线");
        style.SetCurrentStyle(1);
        style.ShowDropDown();
        style.RedrawWindow();
        ::RedrawWindow(partsOf(style).hwndList, NULL, NULL, RDW_INVALIDATE | RDW_UPDATENOW);
        CColorPicker picker;
        picker.Create("", WS_CHILD | WS_VISIBLE, CRect(210, 130, 300, 160), &dialog, 8);
        picker.RedrawWindow();
        picker.CreatePaletteWindow();
        ::RedrawWindow(picker.GetPaletteWindow(), NULL, NULL, RDW_INVALIDATE | RDW_UPDATENOW);
        dialog.settle();
    };
    round();
    const int before = liveGdiHandles();
    for (int i = 0; i < 5; ++i)
        round();
    EXPECT_EQ(before, liveGdiHandles());
}

} // namespace
