#include "TextPropertyPage.h"

#include "Pages.h"

namespace gallery {
namespace {

constexpr int margin = 24;
constexpr int canvasTop = 72;
constexpr UINT contentId = 1;
constexpr UINT propertiesId = 2;

// Applies what the page says whenever the sheet is confirmed.
class AppliedPage : public COrvFCDrawTextPropPage {
public:
    AppliedPage(COrvDrawText& text, CWnd& canvas) : m_target(text), m_canvas(canvas) {
        ExchangeData(&text, 0);
    }
    BOOL OnApply() override {
        ExchangeData(&m_target, 1);
        m_canvas.Invalidate(FALSE);
        return COrvFCDrawTextPropPage::OnApply();
    }

private:
    COrvDrawText& m_target;
    CWnd& m_canvas;
};

} // namespace

BEGIN_MESSAGE_MAP(TextPropertyPage, CanvasPage)
ON_WM_CREATE()
ON_EN_CHANGE(contentId, &TextPropertyPage::OnContent)
ON_BN_CLICKED(propertiesId, &TextPropertyPage::OnProperties)
END_MESSAGE_MAP()

TextPropertyPage* TextPropertyPage::make(CWnd& parent, UINT id) {
    auto* page = new TextPropertyPage;
    return page->makeIn(parent, id) ? page : NULL;
}

int TextPropertyPage::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CanvasPage::OnCreate(lpCreateStruct) == -1)
        return -1;
    m_text.SetShowContent("江山如此多娇，引无数英雄竞折腰。 Drawn by COrvDrawText in a turned rectangle.");
    m_text.LSetSingleline(FALSE);
    m_text.LSetDrawBorder(TRUE);
    m_text.LSetFPRect(CFPRect(120, 260, 520, 420, 0.2617993));
    m_text.LGetOrvFont()->SetFontSize(15, TRUE);
    m_font.CreatePointFont(95, "SimSun");
    constexpr DWORD style = WS_CHILD | WS_VISIBLE;
    if (!m_label.Create("内容", style | SS_CENTERIMAGE, CRect(margin, 24, 80, 50), this) ||
        !m_content.Create(style | WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL, CRect(90, 24, 480, 50), this,
                          contentId) ||
        !m_properties.Create("文本属性(&P)...", style | WS_TABSTOP, CRect(500, 23, 640, 51), this,
                             propertiesId))
        return -1;
    for (CWnd* control : std::initializer_list<CWnd*>{&m_label, &m_content, &m_properties})
        control->SetFont(&m_font);
    m_content.SetWindowText(m_text.GetShowContent());
    return 0;
}

void TextPropertyPage::OnContent() {
    CString content;
    m_content.GetWindowText(content);
    m_text.SetShowContent(content);
    Invalidate(FALSE);
}

void TextPropertyPage::OnProperties() {
    AppliedPage page(m_text, *this);
    CPropertySheet sheet("文本", this);
    sheet.AddPage(&page);
    sheet.DoModal();
}

void TextPropertyPage::draw(CDC& dc) {
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, ::GetSysColor(COLOR_BTNFACE));
    const CRect paper(margin, canvasTop, client.right - margin, client.bottom - margin);
    if (paper.IsRectEmpty())
        return;
    dc.FillSolidRect(&paper, RGB(255, 255, 255));
    const int saved = dc.SaveDC();
    dc.IntersectClipRect(&paper);
    m_text.Draw(&dc);
    dc.RestoreDC(saved);
}

CWnd* createTextPropertyPage(CWnd& parent, UINT id) {
    return TextPropertyPage::make(parent, id);
}

} // namespace gallery
