// The text property page: its copy of the text into the controls, and what was changed there back into it.

#include "OrvFCDrawTextPropPage.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "TextPageUnits.h"

namespace {

const char* const kAskingRow = "其它..."; // of the colours
// What the pickers can show, in points: beyond that they stand at the end.
constexpr double kSmallestSize = 1, kLargestSize = 1638, kLargestSpacing = 10000;

struct CheckBox {
    int id;
    BOOL (COrvDrawText::*get)() const;
    void (COrvDrawText::*set)(BOOL);
};

constexpr CheckBox kCheckBoxes[] = {
    {IDC_ORV_AUTO_BOUND, &COrvDrawText::LGetAutoCacuBound, &COrvDrawText::LSetAutoCacuBound},
    {IDC_ORV_BORDER, &COrvDrawText::LGetDrawBorder, &COrvDrawText::LSetDrawBorder},
    {IDC_ORV_CLIP, &COrvDrawText::LGetAutoClip, &COrvDrawText::LSetAutoClip},
    {IDC_ORV_LINE_FEED, &COrvDrawText::LGetAutoLinefeed, &COrvDrawText::LSetAutoLinefeed},
    {IDC_ORV_SHADE, &COrvDrawText::LGetDrawShade, &COrvDrawText::LSetDrawShade},
    {IDC_ORV_FONT_LINE, &COrvDrawText::LGetDrawFontLine, &COrvDrawText::LSetDrawFontLine},
};

template <class T, class STORE>
void takeDifference(const T& shown, const T& now, STORE store) {
    if (now != shown)
        store(now);
}

// A shape button that is pushed in says 0.
int isOn(const CFontShapeButton& button) {
    return button.GetPushState() == 0;
}

void showOn(CFontShapeButton& button, int on) {
    button.SetPushState(on ? 0 : 1, TRUE);
}

int screenResolution() {
    CClientDC dc(NULL);
    return dc.GetDeviceCaps(LOGPIXELSY);
}

// The size in points that the font's height was made for, or the points of the height as it is. Its sign says
// what the height measures, not how large it is.
double sizeShown(COrvFont& font, int dpi) {
    const int size = font.GetFontSize();
    const double points = COrvFont::ConvertHeightFromSize(size) == font.GetFontHeight()
                              ? size
                              : orv::pointsFromPixels(font.GetFontHeight(), dpi);
    return std::clamp(std::abs(points), kSmallestSize, kLargestSize);
}

double spacingShown(LONG pixels, int dpi) {
    return std::clamp(orv::pointsFromPixels(pixels, dpi), -kLargestSpacing, kLargestSpacing);
}

} // namespace

void COrvFCDrawTextPropPage::DoDataExchange(CDataExchange* pDX) {
    CPropertyPage::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        ShowText();
    else if (m_bShown)
        TakeControls();
}

void COrvFCDrawTextPropPage::ShowText() {
    COrvFont& font = *m_DrawText.LGetOrvFont();
    const int dpi = screenResolution();
    m_FontNameCmb.SetCurrentFontName(font.GetFontName());
    m_FontSizeCmb.SetCurrentSize(sizeShown(font, dpi));
    m_FontAslopeCmb.SetCurrentAngle(orv::degreesFromRadians(m_DrawText.LGetFPRect().GetAngle()));
    m_FontColorCmb.SetCurrentColor(m_DrawText.LGetTextColor());
    m_RowAlignCmb.SetCurrentAlignType(m_DrawText.LGetRowAlign());
    m_ColAlignCmb.SetCurrentAlignType(m_DrawText.LGetColAlign());
    m_RowSpaceCmb.SetCurrentDist(spacingShown(m_DrawText.LGetRowDist(), dpi));
    m_CharSpaceCmb.SetCurrentDist(spacingShown(m_DrawText.LGetCharDist(), dpi));
    showOn(m_UnderlineBtn, font.GetFontUnderline());
    showOn(m_BoldBtn, font.GetFontBold());
    showOn(m_ItalicBtn, font.GetFontItalic());
    for (const CheckBox& box : kCheckBoxes)
        CheckDlgButton(box.id, (m_DrawText.*box.get)() != 0);
    m_shown = ReadControls();
    m_bShown = TRUE;
    if (m_SampleEdit.m_hWnd == NULL)
        return;
    const CString content = m_DrawText.GetShowContent();
    m_SampleEdit.SetWindowText(content.IsEmpty() ? CString("显示内容") : content);
    InvalidText();
}

// While the user is asked for a colour of his own, the row that asks is no choice yet.
COLORREF COrvFCDrawTextPropPage::ChosenColor() const {
    return m_FontColorCmb.GetCurrentColorName() == kAskingRow ? m_shown.crText
                                                              : m_FontColorCmb.GetCurrentColor();
}

COrvFCDrawTextPropPage::Values COrvFCDrawTextPropPage::ReadControls() {
    static_assert(sizeof m_shown.bChecked == std::size(kCheckBoxes) * sizeof(BOOL));
    Values now;
    now.strFace = m_FontNameCmb.GetCurrentFontName();
    now.dSize = m_FontSizeCmb.GetCurrentSize();
    now.dSlope = m_FontAslopeCmb.GetCurrentAngle();
    now.dRowSpace = m_RowSpaceCmb.GetCurrentDist();
    now.dCharSpace = m_CharSpaceCmb.GetCurrentDist();
    now.crText = ChosenColor();
    now.nRowAlign = m_RowAlignCmb.GetCurrentAlignType();
    now.nColAlign = m_ColAlignCmb.GetCurrentAlignType();
    now.bUnderline = isOn(m_UnderlineBtn);
    now.bBold = isOn(m_BoldBtn);
    now.bItalic = isOn(m_ItalicBtn);
    for (size_t i = 0; i < std::size(kCheckBoxes); ++i)
        now.bChecked[i] = IsDlgButtonChecked(kCheckBoxes[i].id) != 0;
    return now;
}

void COrvFCDrawTextPropPage::TakeFont(const Values& now) {
    COrvFont& font = *m_DrawText.LGetOrvFont();
    if (!now.strFace.IsEmpty())
        takeDifference(m_shown.strFace, now.strFace,
                       [&](const CString& face) { font.SetFontName(face, TRUE); });
    takeDifference(m_shown.dSize, now.dSize,
                   [&](double size) { font.SetFontSize(orv::wholePoints(size), TRUE); });
    takeDifference(m_shown.bUnderline, now.bUnderline, [&](int on) { font.SetFontUnderline(on, TRUE); });
    takeDifference(m_shown.bBold, now.bBold, [&](int on) { font.SetFontBold(on, TRUE); });
    takeDifference(m_shown.bItalic, now.bItalic, [&](int on) { font.SetFontItalic(on, TRUE); });
}

void COrvFCDrawTextPropPage::TakeControls() {
    const Values now = ReadControls();
    const int dpi = screenResolution();
    COrvDrawText& text = m_DrawText;
    TakeFont(now);
    takeDifference(m_shown.dSlope, now.dSlope, [&](double degrees) {
        CFPRect rect = text.LGetFPRect();
        rect.SetAngle(orv::radiansFromDegrees(degrees));
        text.LSetFPRect(rect);
    });
    takeDifference(m_shown.crText, now.crText, [&](COLORREF cr) { text.LSetTextColor(cr); });
    takeDifference(m_shown.nRowAlign, now.nRowAlign, [&](UINT flag) { text.LSetRowAlign(flag); });
    takeDifference(m_shown.nColAlign, now.nColAlign, [&](UINT flag) { text.LSetColAlign(flag); });
    takeDifference(m_shown.dRowSpace, now.dRowSpace,
                   [&](double points) { text.LSetRowDist(orv::pixelsFromPoints(points, dpi)); });
    takeDifference(m_shown.dCharSpace, now.dCharSpace,
                   [&](double points) { text.LSetCharDist(orv::pixelsFromPoints(points, dpi)); });
    for (size_t i = 0; i < std::size(kCheckBoxes); ++i)
        takeDifference(m_shown.bChecked[i], now.bChecked[i],
                       [&](BOOL on) { (text.*kCheckBoxes[i].set)(on); });
    m_shown = now;
}
