#pragma once

// The text property page in a host's window, and every member of the text it edits.

#include <afxdlgs.h>

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "orvfc/ORVFC.h"
#include "filled_text.h"
#include "support/input.h"

namespace orv::test {

class CPage : public COrvFCDrawTextPropPage {
public:
    using COrvFCDrawTextPropPage::m_FontColorCmb;
    using COrvFCDrawTextPropPage::m_FontNameCmb;
    using COrvFCDrawTextPropPage::m_SampleEdit;
};

// By name, as text.
using Members = std::map<std::string, std::string>;

inline Members membersOf(COrvDrawText& text) {
    const auto say = [](auto... values) {
        std::string said;
        ((said += (said.empty() ? "" : " ") + std::to_string(values)), ...);
        return said;
    };
    COrvFont& font = *text.LGetOrvFont();
    LOGFONT lf = {};
    font.GetLogFontFont(lf, 1);
    const CFPRect& rect = text.LGetFPRect();
    return {
        {"text color", say(text.LGetTextColor())},
        {"row distance", say(text.LGetRowDist())},
        {"character distance", say(text.LGetCharDist())},
        {"row alignment", say(text.LGetRowAlign())},
        {"column alignment", say(text.LGetColAlign())},
        {"border", say(text.LGetDrawBorder())},
        {"line feed", say(text.LGetAutoLinefeed())},
        {"clip", say(text.LGetAutoClip())},
        {"shade", say(text.LGetDrawShade())},
        {"font line", say(text.LGetDrawFontLine())},
        {"auto bound", say(text.LGetAutoCacuBound())},
        {"angle", say(rect.angle)},
        {"face", lf.lfFaceName},
        {"size", say(font.GetFontSize(), lf.lfHeight)},
        {"weight", say(lf.lfWeight)},
        {"italic", say(lf.lfItalic)},
        {"underline", say(lf.lfUnderline)},
        // What no control shows.
        {"content", static_cast<LPCTSTR>(text.GetShowContent())},
        {"rect", say(rect.left, rect.top, rect.right, rect.bottom)},
        {"drawing", say(text.LGetBkMode(), text.LGetBkColor(), text.LGetBorderColor(), text.LGetRop2(),
                        text.LGetDrawMode(), text.LGetTabCountSpace(), text.LGetbDrawClearanceShade(),
                        text.LGetSingleline(), text.LGetSingleRowHeight())},
        {"font", say(lf.lfEscapement, lf.lfCharSet, lf.lfStrikeOut, lf.lfWidth, font.GetFontColor(),
                     font.GetZoomModu())},
    };
}

inline std::string difference(COrvDrawText& before, COrvDrawText& after) {
    const Members a = membersOf(before);
    std::string names;
    for (const auto& [name, value] : membersOf(after))
        if (a.at(name) != value)
            names += name + " " + a.at(name) + " -> " + value + "; ";
    return names;
}

// What the page's text has otherwise than this one.
inline std::string changed(COrvDrawText& text, CPage& page) {
    COrvDrawText out;
    page.ExchangeData(&out, 1);
    return difference(text, out);
}

// Nor does a control know such a font.
inline void fillWithFont(COrvDrawText& text) {
    fill(text);
    LOGFONT lf = {-19, 5, 123, 0, 800, 7, 9, 1, GB2312_CHARSET, 0, 0, 0, 0, "没有的字体"};
    text.LGetOrvFont()->SetLogFont(lf, TRUE);
    text.LGetOrvFont()->SetFontColor(0x654321);
}

struct Look {
    std::string face;
    DWORD effects;
    LONG height;
    COLORREF color;
    bool operator==(const Look&) const = default;
};

inline Look sampleLook(CPage& page) {
    CHARFORMAT format = {};
    page.m_SampleEdit.SetSel(0, -1);
    page.m_SampleEdit.GetSelectionCharFormat(format);
    return {format.szFaceName, format.dwEffects & (CFE_BOLD | CFE_ITALIC | CFE_UNDERLINE), format.yHeight,
            format.crTextColor};
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
    // The control, or the field of a combo that has one, gets the keyboard.
    static HWND focusOn(CPage& page, int id) {
        HWND control = ::GetDlgItem(page.m_hWnd, id);
        if (const HWND field = ::FindWindowExA(control, NULL, "Edit", NULL))
            control = field;
        ::SetFocus(control);
        EXPECT_TRUE(pumpUntil([&] { return ::GetFocus() == control; })) << id;
        return control;
    }
    static std::string textOf(CPage& page, int id) {
        CString text;
        page.GetDlgItemText(id, text);
        return static_cast<LPCTSTR>(text);
    }
    CWnd host;
};

} // namespace orv::test
