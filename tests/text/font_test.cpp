// The font description and the GDI font made from it.

#include <afxdlgs.h>

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <memory>

#include "afx/afx_test.h"
#include "orvfc/ORVFC.h"
#include "support/debug_events.h"

using namespace orv::test;

namespace {

LOGFONT described(const COrvFont& font) {
    LOGFONT lf = {};
    font.GetLogFontFont(lf, 1);
    return lf;
}

LOGFONT realised(const COrvFont& font) {
    LOGFONT lf = {};
    EXPECT_TRUE(font.GetLogFontFont(lf, 0));
    return lf;
}

bool inStep(const COrvFont& font) {
    const LOGFONT a = described(font), b = realised(font);
    return memcmp(&a, &b, offsetof(LOGFONT, lfFaceName)) == 0 && strcmp(a.lfFaceName, b.lfFaceName) == 0;
}

int screenDpi() {
    CClientDC dc(NULL);
    return dc.GetDeviceCaps(LOGPIXELSY);
}

// A font with no field as it was.
void fill(COrvFont& font) {
    LOGFONT lf = {-31, 7, -455, 120, 600, 2, 3, 1, GB2312_CHARSET, 4, 5, 6, 0x31, "黑体"};
    font.SetLogFont(lf, 1);
    font.SetZoomModu(1.0, 0);
    font.SetFontColor(0x00102030);
}

TEST(Font, IsNewAsTold) {
    COrvFont font;
    EXPECT_EQ(CString("宋体"), font.GetFontName());
    EXPECT_EQ(20, font.GetFontSize());
    EXPECT_EQ(COrvFont::ConvertHeightFromSize(15), font.GetFontHeight());
    EXPECT_EQ(0, font.GetFontBold());
    EXPECT_EQ(1.0, font.GetZoomModu());
    EXPECT_EQ(0u, font.GetFontColor());
    EXPECT_EQ(0x20, described(font).lfPitchAndFamily);
    EXPECT_TRUE(inStep(font));
    CString text;
    text.Format("宋体 %d   ", COrvFont::ConvertSizeFromHeight(font.GetFontHeight()));
    EXPECT_EQ(text, font.GetSubscrible());
    font.SetFontBold(1, 0);
    EXPECT_EQ(CString("粗体 "), font.GetSubscrible().Right(5));
}

TEST(Font, PointsAreRoundedOneWayAndCutTheOther) {
    const int dpi = screenDpi();
    for (const int size : {0, 1, 5, 9, 10, 15, 72, 1000, -10})
        EXPECT_EQ(-::MulDiv(size, dpi, 72), COrvFont::ConvertHeightFromSize(size)) << size;
    for (const int height : {0, -13, 13, -19, -20, 100, -100000})
        EXPECT_EQ(abs(height) * 72 / dpi, COrvFont::ConvertSizeFromHeight(height)) << height;
    EXPECT_LT(0, COrvFont::ConvertSizeFromHeight(INT_MIN));
    EXPECT_GT(0, COrvFont::ConvertHeightFromSize(INT_MAX));
}

TEST(Font, ASetterRecreatesTheFontOnlyWhenAsked) {
    LOGFONT other = {-31, 7, -455, 120, 600, 2, 3, 1, GB2312_CHARSET, 4, 5, 6, 0x31, "黑体"};
    const struct {
        const char* name;
        std::function<void(COrvFont&, int)> set;
    } rows[] = {
        {"name", [](COrvFont& f, int r) { f.SetFontName("黑体", r); }},
        {"size", [](COrvFont& f, int r) { f.SetFontSize(40, r); }},
        {"angle", [](COrvFont& f, int r) { f.SetFontAngle(45, r); }},
        {"bold", [](COrvFont& f, int r) { f.SetFontBold(1, r); }},
        {"italic", [](COrvFont& f, int r) { f.SetFontItalic(1, r); }},
        {"underline", [](COrvFont& f, int r) { f.SetFontUnderline(1, r); }},
        {"height", [](COrvFont& f, int r) { f.SetFontHeight(-77, "黑体", r); }},
        {"zoom", [](COrvFont& f, int r) { f.SetZoomModu(2.5, r); }},
        {"whole", [&](COrvFont& f, int r) { f.SetLogFont(other, r); }},
    };
    for (const auto& row : rows) {
        COrvFont font;
        row.set(font, 0);
        EXPECT_FALSE(inStep(font)) << row.name;
        font.ReCreateFont();
        EXPECT_TRUE(inStep(font)) << row.name;
        COrvFont asked;
        row.set(asked, 1);
        EXPECT_TRUE(inStep(asked)) << row.name;
        EXPECT_EQ(described(font).lfHeight, described(asked).lfHeight) << row.name;
    }
}

TEST(Font, AnglesAreWholeDegreesAndZoomsPileUp) {
    COrvFont font;
    font.SetFontAngle(45, 1);
    EXPECT_EQ(450, described(font).lfEscapement);
    EXPECT_EQ(45, font.GetFontAngle());
    LOGFONT lf = described(font);
    lf.lfEscapement = -455;
    font.SetLogFont(lf, 1);
    EXPECT_EQ(-45, font.GetFontAngle());
    font.SetFontAngle(INT_MAX, 0);
    EXPECT_EQ(INT_MAX, described(font).lfEscapement);

    font.SetFontHeight(-21, "宋体", 1);
    EXPECT_EQ(20, font.GetFontSize());
    font.SetZoomModu(1.5, 1);
    EXPECT_EQ(-31, font.GetFontHeight());
    font.SetZoomModu(1.5, 1);
    EXPECT_EQ(-46, font.GetFontHeight());
    font.SetZoomModu(std::numeric_limits<double>::quiet_NaN(), 1);
    EXPECT_EQ(-46, font.GetFontHeight());
    font.SetZoomModu(1e300, 1);
    EXPECT_EQ(INT_MIN, font.GetFontHeight());
    EXPECT_EQ(-32767, realised(font).lfHeight);
}

TEST(Font, ItalicAndUnderlineKeepTheLowByteAndBoldIsAWeight) {
    COrvFont font;
    font.SetFontItalic(0x1234, 0);
    font.SetFontUnderline(0x100, 0);
    EXPECT_EQ(0x34, font.GetFontItalic());
    EXPECT_EQ(0, font.GetFontUnderline());
    for (const auto& [weight, bold] : {std::pair(600, 0), {700, 1}, {900, 1}}) {
        LOGFONT lf = described(font);
        lf.lfWeight = weight;
        font.SetLogFont(lf, 0);
        EXPECT_EQ(bold, font.GetFontBold()) << weight;
    }
}

TEST(Font, AttributesComeInThreeForms) {
    COrvFont font;
    font.SetFontAttribute("黑体", 12, 30, 1, 1, 1, 0);
    EXPECT_TRUE(inStep(font));
    EXPECT_EQ(12, font.GetFontSize());
    EXPECT_EQ(30, font.GetFontAngle());
    EXPECT_TRUE(font.GetFontBold() && font.GetFontItalic() && font.GetFontUnderline());
    font.SetFontAttribute("宋体", 9, 0);
    EXPECT_EQ(CString("宋体"), font.GetFontName());
    EXPECT_EQ(9, font.GetFontSize());
    EXPECT_EQ(30, font.GetFontAngle());
    font.SetFontAttribute("宋体", 9, 60, 0);
    EXPECT_EQ(60, font.GetFontAngle());
}

TEST(Font, FontsComeFromAndGoToOthers) {
    DebugEvents events;
    COrvFont font;
    fill(font);
    CFont target;
    EXPECT_TRUE(font.CopytoFont(&target));
    EXPECT_TRUE(font.Set(&target));
    COrvFont from;
    from = target;
    EXPECT_EQ(CString("黑体"), from.GetFontName());
    EXPECT_EQ(-455, described(from).lfEscapement);
    COrvFont taken;
    taken.SetFont(&target);
    EXPECT_EQ(-31, taken.GetFontHeight());
    taken.SetFont(taken.GetFont());
    EXPECT_TRUE(inStep(taken));
    CFont none;
    taken.SetFont(&none);
    EXPECT_EQ(-31, taken.GetFontHeight());
    LOGFONT lf = {};
    EXPECT_TRUE(font.Set(&lf));
    EXPECT_STREQ("黑体", lf.lfFaceName);
    EXPECT_EQ(120, lf.lfOrientation);
    EXPECT_EQ("", events.text());
    taken.SetFont(NULL);
    EXPECT_EQ("faild to SetFont(CFont* pFont)\n", events.text());
    EXPECT_EQ(0, events.assertions());
    EXPECT_FALSE(font.CopytoFont(NULL));
    EXPECT_FALSE(font.Set(static_cast<CFont*>(NULL)));
    EXPECT_FALSE(font.Set(static_cast<LOGFONT*>(NULL)));
    EXPECT_EQ(3, events.assertions());
}

TEST(Font, CopiesHaveTheirOwnFont) {
    COrvFont font;
    fill(font);
    COrvFont copy(font);
    copy = font;
    copy = *&copy;
    EXPECT_TRUE(inStep(copy));
    EXPECT_NE(font.GetFont()->m_hObject, copy.GetFont()->m_hObject);
    EXPECT_EQ(0x00102030u, copy.GetFontColor());
}

TEST(Font, HeapFontsAreTheStatusBarsWithAFaceAndAHeight) {
    NONCLIENTMETRICSA metrics = {};
    metrics.cbSize = 340;
    ::SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, 340, &metrics, 0);
    const struct {
        CFont* font;
        int height;
        const char* face;
    } rows[] = {
        {COrvFont::CreateFontFromSize(12, "黑体"), COrvFont::ConvertHeightFromSize(12), "黑体"},
        {COrvFont::CreateFontFromSize(12, ""), COrvFont::ConvertHeightFromSize(12),
         metrics.lfStatusFont.lfFaceName},
        {COrvFont::CreateFontFromHieght(33, NULL), 33, metrics.lfStatusFont.lfFaceName},
    };
    for (const auto& row : rows) {
        const std::unique_ptr<CFont> font(row.font);
        LOGFONT lf;
        ASSERT_TRUE(font && font->GetLogFont(&lf));
        EXPECT_EQ(row.height, lf.lfHeight);
        EXPECT_STREQ(row.face, lf.lfFaceName);
        EXPECT_EQ(metrics.lfStatusFont.lfWeight, lf.lfWeight);
    }
}

TEST(Font, MeasuresOnTheScreen) {
    COrvFont font;
    CClientDC dc(NULL);
    CFont* old = dc.SelectObject(font.GetFont());
    EXPECT_EQ(dc.GetTextExtent("中国 ab", 7), font.GetTextRect("中国 ab"));
    EXPECT_EQ(dc.GetTextExtent("中国", 4).cy, font.GetTextHeight());
    dc.SelectObject(old);
    EXPECT_EQ(0, font.GetTextRect("").cx);
}

// The font dialog that comes up gets a size of 24 points and a button pressed.
UINT pressedButton;
void CALLBACK choose24Points(HWND, UINT, UINT_PTR timer, DWORD) {
    const HWND dialog = ::FindWindowA("#32770", NULL);
    if (dialog == NULL || !::IsWindowVisible(dialog))
        return;
    ::KillTimer(NULL, timer);
    ::SetDlgItemTextA(dialog, cmb3, "24");
    ::PostMessageA(dialog, WM_COMMAND, pressedButton, 0);
}

TEST(Font, ComesFromTheDialogOrStays) {
    COrvFont font;
    font.SetFontColor(RGB(255, 0, 0));
    font.SetFontUnderline(1, 1);
    const LOGFONT before = described(font);
    pressedButton = IDCANCEL;
    ::SetTimer(NULL, 0, 10, choose24Points);
    EXPECT_FALSE(font.CreateFontFromDialog());
    const LOGFONT left = described(font);
    EXPECT_EQ(0, memcmp(&before, &left, sizeof before));
    pressedButton = IDOK;
    ::SetTimer(NULL, 0, 10, choose24Points);
    EXPECT_TRUE(font.CreateFontFromDialog());
    EXPECT_EQ(COrvFont::ConvertHeightFromSize(24), font.GetFontHeight());
    EXPECT_EQ(RGB(255, 0, 0), font.GetFontColor());
    EXPECT_EQ(1, font.GetFontUnderline());
    EXPECT_EQ(20, font.GetFontSize());
    EXPECT_TRUE(inStep(font));
}

// --- stored form

std::string filledBytes() {
    return stored([](CArchive& ar) {
        ar << 0 << BYTE(GB2312_CHARSET) << BYTE(5) << LONG(-455) << LONG(-31) << BYTE(2) << LONG(120)
           << BYTE(4) << BYTE(0x31) << BYTE(6) << BYTE(1) << BYTE(3) << LONG(600) << LONG(7)
           << DWORD(0x00102030) << 1.0 << LONG(20) << 15.0 << CString("黑体");
    });
}

TEST(Font, IsStoredFieldByField) {
    COrvFont font;
    fill(font);
    EXPECT_EQ(toHex(filledBytes()), toHex(serialized(font)));
    EXPECT_EQ("FF FF 01 00", toHex(stored([&](CArchive& ar) { ar << &font; }).substr(0, 4))) << "schema 1";
    COrvFont loaded;
    ASSERT_EQ(CArchiveException::none, deserialized(loaded, filledBytes()));
    EXPECT_FALSE(inStep(loaded));
    loaded.ReCreateFont();
    EXPECT_TRUE(inStep(loaded));
    EXPECT_EQ(filledBytes(), serialized(loaded));
    // What was not recreated is not stored.
    font.SetFontBold(1, 0);
    EXPECT_EQ(filledBytes(), serialized(font));
    EXPECT_EQ(0, font.GetFontBold());
}

TEST(Font, ABrokenStreamLeavesTheFont) {
    const std::string good = filledBytes();
    for (size_t cut = 0; cut < good.size(); ++cut) {
        COrvFont font;
        font.SetFontBold(1, 0);
        EXPECT_EQ(CArchiveException::endOfFile, deserialized(font, good.substr(0, cut))) << cut;
        EXPECT_EQ(CString("宋体"), font.GetFontName());
        EXPECT_EQ(1, font.GetFontBold()) << "not yet made, and still wanted";
    }
}

TEST(Font, AnyBytesMakeASafeFont) {
    const std::string numbers(filledBytes().size() - 5, '\xFF'), name(200, '\xBA');
    COrvFont font;
    ASSERT_EQ(CArchiveException::none, deserialized(font, numbers + char(200) + name));
    EXPECT_EQ(30, font.GetFontName().GetLength());
    font.ReCreateFont();
    font.AssertValid();
    EXPECT_LE(0, font.GetTextRect("中国").cx);
    font.SetZoomModu(font.GetZoomModu(), 1);
    EXPECT_FALSE(font.GetSubscrible().IsEmpty());
}

} // namespace
