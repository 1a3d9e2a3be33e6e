#include "PickerPage.h"

#include "Pages.h"

#include <algorithm>

namespace gallery {
namespace {

constexpr int margin = 24;
constexpr int rowStep = 40;
constexpr int labelWidth = 110;
constexpr int fieldWidth = 210;
constexpr int canvasTop = margin + 4 * rowStep + 12;
constexpr UINT firstId = 1;
constexpr UINT pickerId = 6;
constexpr const char* labels[] = {"线颜色", "线型", "线宽", "图案", "填充", "图案颜色", "颜色值"};

CPoint placeOf(int number) {
    return CPoint(margin + number % 2 * (labelWidth + fieldWidth + margin), margin + number / 2 * rowStep);
}

} // namespace

BEGIN_MESSAGE_MAP(PickerPage, CanvasPage)
ON_WM_CREATE()
ON_REGISTERED_MESSAGE(WM_LINE_COLOR_CMB_SELCHANGE, &PickerPage::OnChosen)
ON_REGISTERED_MESSAGE(WM_LINE_STYLE_CMB_SELCHANGE, &PickerPage::OnChosen)
ON_REGISTERED_MESSAGE(WM_LINE_WIDTH_CMB_SELCHANGE, &PickerPage::OnChosen)
ON_REGISTERED_MESSAGE(WM_BRUSH_FIGURE_CMB_SELCHANGE, &PickerPage::OnChosen)
ON_REGISTERED_MESSAGE(WM_FILL_TYPE_CMB_SELCHANGE, &PickerPage::OnChosen)
ON_BN_CLICKED(pickerId, &PickerPage::OnFigureColor)
END_MESSAGE_MAP()

PickerPage* PickerPage::make(CWnd& parent, UINT id) {
    auto* page = new PickerPage;
    return page->makeIn(parent, id) ? page : NULL;
}

int PickerPage::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CanvasPage::OnCreate(lpCreateStruct) == -1) {
        return -1;
    }
    m_font.CreatePointFont(95, "SimSun");
    constexpr DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    CComboBox* const combos[] = {&m_color, &m_style, &m_width, &m_figure, &m_fill};
    for (int i = 0; i < 7; ++i) {
        const CPoint at = placeOf(i);
        const CRect field(at + CSize(labelWidth, 0), CSize(fieldWidth, 26));
        if (!m_labels[i].Create(labels[i], WS_CHILD | WS_VISIBLE | SS_CENTERIMAGE,
                                CRect(at, CSize(labelWidth, 26)), this)) {
            return -1;
        }
        m_labels[i].SetFont(&m_font);
        const UINT id = firstId + static_cast<UINT>(i);
        if (i < 5) {
            combos[i]->Create(style | WS_VSCROLL, field + CRect(0, 0, 0, 300), this, id);
            combos[i]->SetFont(&m_font);
        } else if (i == 5) {
            m_picker.Create("", style, field, this, id);
            m_picker.SetFont(&m_font);
        } else {
            m_buddy.Create(style | WS_BORDER | ES_READONLY, field, this, id);
            m_buddy.SetFont(&m_font);
        }
    }
    fill();
    return 0;
}

void PickerPage::fill() {
    CColorSet colors;
    CLineTypeSet types;
    CLineWidthSet widths;
    m_color.AddItem(&colors);
    m_style.AddItem(&types);
    m_width.AddItem(&widths);
    m_figure.InitGerStyle();
    m_fill.InitGerFillType();
    m_color.SetCurrentColor(RGB(0, 0, 255));
    m_style.SetCurrentStyle(3);
    m_width.SetCurrentWidth(0.5);
    m_figure.SetCurrentStyle(3);
    m_fill.SetCurrentFillType(1);
    m_picker.SetBuddy(m_buddy.m_hWnd);
    m_picker.SetColor(RGB(0, 128, 0));
    OnFigureColor();
}

BOOL PickerPage::PreTranslateMessage(MSG* pMsg) {
    // The open palette has the keys.
    if (m_picker.GetPaletteWindow() != NULL)
        return IsDialogMessage(pMsg) || CWnd::PreTranslateMessage(pMsg);
    return CanvasPage::PreTranslateMessage(pMsg);
}

LRESULT PickerPage::OnChosen(WPARAM, LPARAM) {
    const CRect rect = canvas();
    InvalidateRect(&rect);
    return 0;
}

void PickerPage::OnFigureColor() {
    m_figure.ResetColor(m_picker.GetColor());
    OnChosen(0, 0);
}

// --- the canvas

CRect PickerPage::canvas() const {
    CRect client;
    GetClientRect(&client);
    return CRect(margin, canvasTop, std::max<int>(margin, client.right - margin),
                 std::max<int>(canvasTop, client.bottom - margin));
}

void PickerPage::draw(CDC& dc) {
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, ::GetSysColor(COLOR_BTNFACE));
    const CRect paper = canvas();
    if (paper.IsRectEmpty()) {
        return;
    }
    dc.FillSolidRect(&paper, RGB(255, 255, 255));
    const int saved = dc.SaveDC();
    dc.IntersectClipRect(&paper);
    // Two areas side by side, and the line above them.
    CRect area(paper.left + 40, paper.top + 130, paper.CenterPoint().x - 20, paper.bottom - 40);
    LOGBRUSH figure = {}, filling = {};
    CCmbBrushFigureData(m_figure.GetCurrentStyle(), "", m_picker.GetColor()).CreateBrushByType(figure);
    CCmbFillTypeData(m_fill.GetCurrentFillType()).CreateLogBr(filling);
    dc.SetBkColor(RGB(255, 255, 255));
    for (const LOGBRUSH& look : {figure, filling}) {
        CBrush brush;
        brush.CreateBrushIndirect(&look);
        CBrush* old = dc.SelectObject(&brush);
        dc.Rectangle(&area);
        dc.SelectObject(old);
        area.OffsetRect(paper.CenterPoint().x + 20 - area.left, 0);
    }
    const int width = std::max(1, GetPelsFromCM(NULL, m_width.GetCurrentWidth() / 10));
    const int type = m_style.GetCurrentStyle();
    dc.BeginPath();
    dc.MoveTo(paper.left + 40, paper.top + 90);
    dc.LineTo(paper.left + paper.Width() / 3, paper.top + 30);
    dc.LineTo(paper.left + 2 * paper.Width() / 3, paper.top + 95);
    dc.LineTo(paper.right - 40, paper.top + 40);
    dc.EndPath();
    m_lines.draw(dc, type, type == 101 ? std::max(width, 6) : width, m_color.GetCurrentColor());
    dc.RestoreDC(saved);
}

CWnd* createPickerPage(CWnd& parent, UINT id) {
    return PickerPage::make(parent, id);
}

} // namespace gallery
