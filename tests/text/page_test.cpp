// The text property page under real input, alone and in a sheet.

#include <afxdlgs.h>

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "orvfc/ORVFC.h"
#include "support/debug_events.h"
#include "support/gdi_count.h"
#include "support/input.h"

using namespace orv::test;

namespace {

class CPage : public COrvFCDrawTextPropPage {
public:
    using COrvFCDrawTextPropPage::m_FontColorCmb;
    using COrvFCDrawTextPropPage::m_FontNameCmb;
    using COrvFCDrawTextPropPage::m_SampleEdit;
};

class CHostWnd : public CWnd {};

// As a program's loop does it: the page sees its messages before they are dispatched.
bool pumpUntil(const std::function<bool()>& condition) {
    const ULONGLONG end = ::GetTickCount64() + 30000;
    while (!condition()) {
        MSG message;
        while (::PeekMessageW(&message, NULL, 0, 0, PM_REMOVE))
            if (!CWnd::WalkPreTranslateTree(NULL, &message)) {
                ::TranslateMessage(&message);
                ::DispatchMessageW(&message);
            }
        if (::GetTickCount64() > end)
            return false;
        ::Sleep(1);
    }
    return true;
}

// Every member by name, as text.
using Members = std::map<std::string, std::string>;

template <class T>
std::string say(const T& value) {
    if constexpr (std::is_same_v<T, CString>)
        return static_cast<LPCTSTR>(value);
    else
        return std::to_string(value);
}

Members membersOf(COrvDrawText& text) {
    Members members;
#define MEMBER(getter) members[#getter] = say(text.getter())
    MEMBER(LGetBkMode);
    MEMBER(LGetBkColor);
    MEMBER(LGetBorderColor);
    MEMBER(LGetRop2);
    MEMBER(LGetDrawMode);
    MEMBER(LGetTextColor);
    MEMBER(LGetRowDist);
    MEMBER(LGetCharDist);
    MEMBER(LGetRowAlign);
    MEMBER(LGetColAlign);
    MEMBER(LGetTabCountSpace);
    MEMBER(LGetDrawBorder);
    MEMBER(LGetAutoLinefeed);
    MEMBER(LGetAutoClip);
    MEMBER(LGetDrawShade);
    MEMBER(LGetbDrawClearanceShade);
    MEMBER(LGetSingleline);
    MEMBER(LGetDrawFontLine);
    MEMBER(LGetAutoCacuBound);
    MEMBER(LGetSingleRowHeight);
    MEMBER(GetShowContent);
#undef MEMBER
    const CFPRect& rect = text.LGetFPRect();
    members["rect"] = say(rect.left) + " " + say(rect.top) + " " + say(rect.right) + " " + say(rect.bottom);
    members["angle"] = say(rect.angle);
    COrvFont& font = *text.LGetOrvFont();
    LOGFONT lf = {};
    font.GetLogFontFont(lf, 1);
    members["face"] = lf.lfFaceName;
    members["size"] = say(font.GetFontSize()) + " " + say(lf.lfHeight);
    members["weight"] = say(lf.lfWeight);
    members["italic"] = say(lf.lfItalic);
    members["underline"] = say(lf.lfUnderline);
    members["font"] = say(lf.lfEscapement) + say(lf.lfCharSet) + say(lf.lfStrikeOut) + say(lf.lfWidth) +
                      say(font.GetFontColor()) + say(font.GetZoomModu());
    return members;
}

std::string difference(const Members& a, const Members& b) {
    std::string names;
    for (const auto& [name, value] : a)
        if (b.at(name) != value)
            names += name + " " + value + " -> " + b.at(name) + "; ";
    return names;
}

// No member as it is when new, and hardly one that a control could show exactly.
void fill(COrvDrawText& text) {
    text.LSetBkMode(OPAQUE);
    text.LSetBkColor(0x010203);
    text.LSetBorderColor(0x040506);
    text.LSetRop2(R2_XORPEN);
    text.LSetDrawMode(3);
    text.LSetTextColor(0x123456);
    text.LSetRowDist(7);
    text.LSetCharDist(-3);
    text.LSetRowAlign(99);
    text.LSetColAlign(4);
    text.LSetTabCountSpace(3);
    text.LSetDrawBorder(2);
    text.LSetAutoLinefeed(FALSE);
    text.LSetAutoClip(5);
    text.LSetDrawShade(TRUE);
    text.LSetDrawClearanceShade(TRUE);
    text.LSetSingleline(FALSE);
    text.LSetDrawFontLine(-1);
    text.LSetAutoCacuBound(TRUE);
    text.LSetFPRect(CFPRect(10, 20, 310, 220, 0.7654321));
    text.LSetSingleRowHeight(33);
    text.SetShowContent("内容\r\nText");
    LOGFONT lf = {-19, 5, 123, 0, 800, 7, 9, 1, GB2312_CHARSET, 0, 0, 0, 0, "没有的字体"};
    text.LGetOrvFont()->SetLogFont(lf, TRUE);
    text.LGetOrvFont()->SetFontColor(0x654321);
}

class TextPage : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(host.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP | WS_VISIBLE, 50, 50, 700, 500,
                                  NULL, NULL));
    }
    void open(CPage& page) {
        ASSERT_TRUE(page.Create(IDD_ORV_TEXT_PAGE, &host));
        page.ShowWindow(SW_SHOW);
        host.SetForegroundWindow();
        ASSERT_TRUE(waitUntil([&] { return ::GetForegroundWindow() == host.m_hWnd; }));
    }
    CHostWnd host;
};

TEST_F(TextPage, WhatIsLeftAloneStaysAsItWas) {
    for (const DWORD mask : {DWORD(ORVTEXT_ALL), DWORD(0)}) {
        COrvDrawText text, out;
        fill(text);
        const Members before = membersOf(text);
        CPage page;
        page.m_dwEnable = mask;
        page.ExchangeData(&text, 0);
        open(page);
        EXPECT_TRUE(page.ExchangeData(1));
        page.ExchangeData(&out, 1);
        EXPECT_EQ("", difference(before, membersOf(out))) << mask;
        EXPECT_TRUE(page.ExchangeData(0));
        EXPECT_TRUE(page.ExchangeData(1));
        page.ExchangeData(&out, 1);
        EXPECT_EQ("", difference(before, membersOf(out))) << mask;
    }
    COrvDrawText text, out;
    CPage closed;
    EXPECT_FALSE(closed.ExchangeData(0));
    EXPECT_FALSE(closed.ExchangeData(1));
    closed.ExchangeData(NULL, 0);
    closed.ExchangeData(NULL, 1);
    fill(text);
    closed.ExchangeData(&text, 0);
    closed.ExchangeData(&out, 1);
    EXPECT_EQ("", difference(membersOf(text), membersOf(out)));
}

struct ControlRow {
    int id;
    DWORD bit;
    const char* caption;
    int x, y, cx, cy; // dialog units; the height of a combo is that of its list
    bool combo;
};

const ControlRow kControls[] = {
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
    for (const ControlRow& row : kControls) {
        CWnd* control = page.GetDlgItem(row.id);
        ASSERT_TRUE(control) << row.id;
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
            CString caption;
            control->GetWindowText(caption);
            EXPECT_STREQ(row.caption, caption);
        }
    }
}

TEST_F(TextPage, EachBitEnablesItsGroup) {
    for (DWORD bit = 1; bit <= ORVTEXT_SAMPLE; bit <<= 1) {
        CPage page;
        page.m_dwEnable = bit;
        open(page);
        for (const ControlRow& row : kControls)
            EXPECT_EQ(row.bit == bit, page.GetDlgItem(row.id)->IsWindowEnabled() != FALSE) << row.id;
    }
}

struct Look {
    std::string face;
    DWORD effects;
    LONG height;
    COLORREF color;
    bool operator==(const Look&) const = default;
};

Look sampleLook(CPage& page) {
    CHARFORMAT format = {};
    page.m_SampleEdit.SetSel(0, -1);
    page.m_SampleEdit.GetSelectionCharFormat(format);
    return {format.szFaceName, format.dwEffects & (CFE_BOLD | CFE_ITALIC | CFE_UNDERLINE), format.yHeight,
            format.crTextColor};
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
        {21133, VK_DOWN, "LGetTextColor 0 -> 16777215", true},
        {21130, VK_DOWN, "LGetRowAlign 0 -> 1", false},
        {21138, VK_DOWN, "LGetColAlign 0 -> 1", false},
        {21124, VK_SPACE, "LGetAutoCacuBound 0 -> 1", false},
        {21125, VK_SPACE, "LGetDrawBorder 0 -> 1", false},
        {21126, VK_SPACE, "LGetAutoClip 0 -> 1", false},
        {21139, VK_HOME, "LGetRowDist 4 -> 5", false},
        {21134, VK_SPACE, "LGetAutoLinefeed 1 -> 0", false},
        {21136, VK_SPACE, "LGetDrawShade 0 -> 1", false},
        {21127, VK_SPACE, "LGetDrawFontLine 0 -> 1", false},
        {21135, VK_HOME, "LGetCharDist 0 -> 5", false},
    };
    for (const auto& row : rows) {
        COrvDrawText text, out;
        text.LGetOrvFont()->SetFontSize(10, TRUE);
        CPage page;
        page.ExchangeData(&text, 0);
        open(page);
        const Members before = membersOf(text);
        const Look look = sampleLook(page);
        HWND control = ::GetDlgItem(page.m_hWnd, row.id);
        if (const HWND field = ::FindWindowExA(control, NULL, "Edit", NULL))
            control = field;
        ::SetFocus(control);
        ASSERT_TRUE(pumpUntil([&] { return ::GetFocus() == control; })) << row.id;
        pressKey(row.key);
        EXPECT_TRUE(pumpUntil([&] {
            page.ExchangeData(&out, 1);
            return difference(before, membersOf(out)) != "";
        })) << row.id;
        const std::string changed = difference(before, membersOf(out));
        EXPECT_EQ(0u, changed.find(row.changed)) << changed;
        EXPECT_EQ(changed.size() - 2, changed.find("; ")) << "one member: " << changed;
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
    CString sample;
    page.m_SampleEdit.GetWindowText(sample);
    EXPECT_STREQ("样品 Sample", sample);
    const Look look = sampleLook(page);
    EXPECT_EQ("宋体", look.face);
    EXPECT_EQ(DWORD(CFE_BOLD), look.effects);
    EXPECT_EQ(240, look.height);
    EXPECT_EQ(RGB(255, 0, 0), look.color);
    text.SetShowContent("");
    page.ExchangeData(&text, 0);
    page.m_SampleEdit.GetWindowText(sample);
    EXPECT_FALSE(sample.IsEmpty());
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
    const auto shown = [&](int id) {
        CString value;
        page.GetDlgItemText(id, value);
        return value;
    };
    for (const auto& row : rows) {
        COrvDrawText text, out;
        text.LGetOrvFont()->SetFontSize(row.size, TRUE);
        text.LSetRowDist(row.dist);
        text.LSetCharDist(row.dist);
        text.LSetFPRect(CFPRect(0, 0, 100, 50, row.degrees * 3.141592653589793 / 180));
        page.ExchangeData(&text, 0);
        EXPECT_STREQ(row.sizeText, shown(IDC_ORV_SIZE));
        EXPECT_STREQ(row.distText, shown(IDC_ORV_ROW_SPACE));
        EXPECT_STREQ(row.distText, shown(IDC_ORV_CHAR_SPACE));
        EXPECT_STREQ(row.slopeText, shown(IDC_ORV_SLOPE));
        page.ExchangeData(1);
        page.ExchangeData(&out, 1);
        EXPECT_EQ("", difference(membersOf(text), membersOf(out)));
    }
}

TEST_F(TextPage, TypedValuesAreTakenWithEnter) {
    CPage page;
    open(page);
    const HWND combo = ::GetDlgItem(page.m_hWnd, IDC_ORV_SIZE);
    const HWND field = ::FindWindowExA(combo, NULL, "Edit", NULL);
    ::SetFocus(field);
    ::SendMessageA(combo, CB_SETEDITSEL, 0, MAKELONG(0, -1));
    typeText(L"24");
    pressKey(VK_RETURN);
    COrvDrawText out;
    EXPECT_TRUE(pumpUntil([&] {
        page.ExchangeData(&out, 1);
        char text[20] = "";
        ::GetWindowTextA(field, text, sizeof text);
        return out.LGetOrvFont()->GetFontSize() == 24 && std::string(text) == "24.00";
    }));
    EXPECT_EQ(480, sampleLook(page).height);
}

// Enter closes a list and takes what was typed, rubbish makes way, and nobody's passing by changes a thing.
TEST_F(TextPage, FieldsOfThePickers) {
    const struct {
        int id;
        const wchar_t* typed;
        WORD key;
        const char *field, *changed;
    } rows[] = {
        {IDC_ORV_FACE, L"tahoma", VK_RETURN, "Tahoma", "face arial -> Tahoma; "},
        {IDC_ORV_FACE, L"rubbish", VK_RETURN, "arial", ""},
        {IDC_ORV_FACE, L"", VK_TAB, "arial", ""},
        {IDC_ORV_SIZE, L"1e999", VK_TAB, "1.00", "size 20 -20 -> 1 -1; "},
        {IDC_ORV_SIZE, L"-x", VK_TAB, "15.00", ""},
        {IDC_ORV_SLOPE, L"x", VK_RETURN, "0.00", ""},
        {IDC_ORV_SLOPE, L"45", VK_TAB, "45.00", "angle 0.000000 -> 0.785398; "},
        {IDC_ORV_SLOPE, L"", VK_TAB, "0.00", ""},
    };
    for (const auto& row : rows) {
        COrvDrawText text, out;
        text.LGetOrvFont()->SetFontName("arial", TRUE); // not as the list writes it
        CPage page;
        page.ExchangeData(&text, 0);
        open(page);
        page.m_FontNameCmb.AddFont("Arial", 1);
        page.m_FontNameCmb.AddFont("Tahoma", 1);
        auto& combo = *static_cast<CComboBox*>(page.GetDlgItem(row.id));
        const HWND field = ::FindWindowExA(combo.m_hWnd, NULL, "Edit", NULL);
        ::SetFocus(field);
        combo.ShowDropDown();
        combo.SetEditSel(0, -1);
        typeText(row.typed);
        pressKey(row.key);
        CString shown;
        EXPECT_TRUE(pumpUntil([&] {
            combo.GetWindowText(shown);
            return shown == row.field && !combo.GetDroppedState() &&
                   (row.key == VK_RETURN) == (::GetFocus() == field);
        })) << row.id
            << " " << row.field << ": " << shown;
        page.ExchangeData(&out, 1);
        EXPECT_EQ(row.changed, difference(membersOf(text), membersOf(out)));
    }
}

TEST_F(TextPage, TabGoesRoundAllControls) {
    CPage page;
    open(page);
    CWnd* const first = page.GetDlgItem(IDC_ORV_UNDERLINE);
    first->SetFocus();
    for (int stops = 0; stops < 18; ++stops) {
        const HWND before = ::GetFocus();
        pressKey(VK_TAB);
        ASSERT_TRUE(pumpUntil([&] { return ::GetFocus() != before; })) << ::GetDlgCtrlID(before);
        EXPECT_EQ(stops == 17, ::GetFocus() == first->m_hWnd);
    }
}

TEST_F(TextPage, TheRowThatAsksForAColorIsNoColor) {
    CPage page;
    COrvDrawText text, out;
    text.LSetTextColor(0x123456);
    page.ExchangeData(&text, 0);
    open(page);
    page.m_FontColorCmb.SetFocus();
    page.m_FontColorCmb.ShowDropDown();
    pressKey(VK_END);
    EXPECT_TRUE(pumpUntil([&] { return page.m_FontColorCmb.GetCurrentColorName() == "其它..."; }));
    page.ExchangeData(&out, 1);
    EXPECT_EQ(0x123456u, out.LGetTextColor());
    EXPECT_EQ(0x123456u, sampleLook(page).color);
    pressKey(VK_ESCAPE);
    EXPECT_TRUE(pumpUntil([&] { return page.m_FontColorCmb.GetCurrentColor() == 0x123456; }));
    page.ExchangeData(&out, 1);
    EXPECT_EQ(0x123456u, out.LGetTextColor());
}

TEST_F(TextPage, InASheetItAppliesAndAChoiceOfFaceDoesNotConfirm) {
    CPage page;
    CPropertySheet sheet("表单");
    sheet.AddPage(&page);
    ASSERT_TRUE(sheet.Create(&host, WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE));
    sheet.SetForegroundWindow();
    ASSERT_TRUE(pumpUntil([&] { return ::GetForegroundWindow() == sheet.m_hWnd; }));
    const HWND apply = ::GetDlgItem(sheet.m_hWnd, 0x3021);
    EXPECT_FALSE(::IsWindowEnabled(apply));
    const HWND field = ::FindWindowExA(::GetDlgItem(page.m_hWnd, IDC_ORV_SIZE), NULL, "Edit", NULL);
    ::SetFocus(field);
    ASSERT_TRUE(pumpUntil([&] { return ::GetFocus() == field; }));
    pressKey(VK_DOWN);
    EXPECT_TRUE(pumpUntil([&] { return ::IsWindowEnabled(apply) != FALSE; }));
    bool arrived = false;
    for (int i = 0; i < 3; ++i) // behind everything that was posted
        EXPECT_TRUE(pumpUntil([&] { return std::exchange(arrived, true); }));
    EXPECT_TRUE(::IsWindow(sheet.m_hWnd)) << "the command behind a choice is no OK";
    sheet.PressButton(PSBTN_APPLYNOW);
    COrvDrawText out;
    page.ExchangeData(&out, 1);
    EXPECT_NE(COrvDrawText().LGetOrvFont()->GetFontHeight(), out.LGetOrvFont()->GetFontHeight());
    sheet.DestroyWindow();
    EXPECT_EQ(NULL, page.m_hWnd);
}

// A check box is all that the host's own template has.
TEST_F(TextPage, TakesATemplateThatLacksControls) {
    alignas(4) static const WORD dialog[] = {0,
                                             WORD((WS_CHILD | WS_VISIBLE) >> 16),
                                             0,
                                             0,
                                             1,
                                             0,
                                             0,
                                             90,
                                             40,
                                             0,
                                             0,
                                             0, // no menu, class, title
                                             BS_AUTOCHECKBOX,
                                             WORD((WS_CHILD | WS_VISIBLE | WS_TABSTOP) >> 16),
                                             0,
                                             0,
                                             5,
                                             5,
                                             60,
                                             9,
                                             IDC_ORV_BORDER,
                                             0xFFFF,
                                             0x80,
                                             0,
                                             0};
    DebugEvents events;
    CPage page;
    COrvDrawText text, out;
    fill(text);
    text.LSetDrawBorder(FALSE);
    page.ExchangeData(&text, 0);
    ASSERT_TRUE(page.CreateIndirect(reinterpret_cast<LPCDLGTEMPLATE>(dialog), &host));
    click(::GetDlgItem(page.m_hWnd, IDC_ORV_BORDER));
    EXPECT_TRUE(pumpUntil([&] { return page.m_DrawText.LGetDrawBorder() != 0; }));
    page.ExchangeData(&out, 1);
    EXPECT_EQ("LGetDrawBorder 0 -> 1; ", difference(membersOf(text), membersOf(out)));
    EXPECT_EQ(0, events.assertions());
}

// The host's window goes with the page in it; the page opens again in another.
TEST_F(TextPage, OutlivesItsParent) {
    COrvDrawText text, out;
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
    page.ExchangeData(&out, 1);
    EXPECT_EQ("", difference(membersOf(text), membersOf(out)));
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
