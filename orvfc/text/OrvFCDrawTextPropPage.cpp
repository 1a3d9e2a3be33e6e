#include "OrvFCDrawTextPropPage.h"

#include <orvfc/ORVFC.h>

#include "FaceName.h"
#include "TextPageUnits.h"

IMPLEMENT_DYNCREATE(COrvFCDrawTextPropPage, CPropertyPage)

BEGIN_MESSAGE_MAP(COrvFCDrawTextPropPage, CPropertyPage)
ON_WM_CLOSE()
ON_CBN_SELCHANGE(IDC_ORV_FACE, &COrvFCDrawTextPropPage::OnSelchangeComboFontName)
ON_CBN_EDITCHANGE(IDC_ORV_FACE, &COrvFCDrawTextPropPage::OnEditchangeComboFontName)
ON_CBN_SELCHANGE(IDC_ORV_SIZE, &COrvFCDrawTextPropPage::OnSelchangeComboFontSize)
ON_CBN_EDITCHANGE(IDC_ORV_SIZE, &COrvFCDrawTextPropPage::OnEditchangeComboFontSize)
ON_CBN_SELCHANGE(IDC_ORV_SLOPE, &COrvFCDrawTextPropPage::OnSelchangeComboFontAslope)
ON_CBN_EDITCHANGE(IDC_ORV_SLOPE, &COrvFCDrawTextPropPage::OnEditchangeComboFontAslope)
ON_CBN_SELCHANGE(IDC_ORV_COLOR, &COrvFCDrawTextPropPage::OnSelchangeComboFontColor)
ON_CBN_SELCHANGE(IDC_ORV_ROW_ALIGN, &COrvFCDrawTextPropPage::OnSelchangeComboRowAlign)
ON_CBN_SELCHANGE(IDC_ORV_COLUMN_ALIGN, &COrvFCDrawTextPropPage::OnSelchangeComboColAlign)
ON_CBN_SELCHANGE(IDC_ORV_CHAR_SPACE, &COrvFCDrawTextPropPage::OnSelchangeComboCharSpace)
ON_CBN_SELCHANGE(IDC_ORV_ROW_SPACE, &COrvFCDrawTextPropPage::OnSelchangeComboRowSpace)
ON_BN_CLICKED(IDC_ORV_UNDERLINE, &COrvFCDrawTextPropPage::OnButtonFontUnderline)
ON_BN_CLICKED(IDC_ORV_BOLD, &COrvFCDrawTextPropPage::OnButtonFontBold)
ON_BN_CLICKED(IDC_ORV_ITALIC, &COrvFCDrawTextPropPage::OnButtonFontItalic)
ON_BN_CLICKED(IDC_ORV_AUTO_BOUND, &COrvFCDrawTextPropPage::OnCheckAutoCacu)
ON_BN_CLICKED(IDC_ORV_LINE_FEED, &COrvFCDrawTextPropPage::OnCheckFontAutoEnter)
ON_BN_CLICKED(IDC_ORV_SHADE, &COrvFCDrawTextPropPage::OnCheckFontBorderShade)
ON_BN_CLICKED(IDC_ORV_BORDER, &COrvFCDrawTextPropPage::OnCheckFontBorder)
ON_BN_CLICKED(IDC_ORV_CLIP, &COrvFCDrawTextPropPage::OnCheckFontClip)
ON_BN_CLICKED(IDC_ORV_FONT_LINE, &COrvFCDrawTextPropPage::OnCheckFontLine)
END_MESSAGE_MAP()

namespace {

// What each shape button edits; the numbers follow the order of the table of shapes.
constexpr UINT kItalicShape = 1, kUnderlineShape = 2, kBoldShape = 3;

constexpr UINT kFaceListWidth = 200, kAlignListWidth = 80; // pixels
const int kAlignments[] = {0, 1, 2, 3, 5, 6, 7};
const double kSpacings[] = {3.5, 4.26, 5.55, 7.5}; // points

struct EnabledControl {
    DWORD bit;
    int id;
};

const EnabledControl kEnabledControls[] = {
    {ORVTEXT_FACE, IDC_ORV_FACE},
    {ORVTEXT_SHAPE, IDC_ORV_UNDERLINE},
    {ORVTEXT_SHAPE, IDC_ORV_BOLD},
    {ORVTEXT_SHAPE, IDC_ORV_ITALIC},
    {ORVTEXT_COLOR, IDC_ORV_COLOR},
    {ORVTEXT_SIZE, IDC_ORV_SIZE},
    {ORVTEXT_SLOPE, IDC_ORV_SLOPE},
    {ORVTEXT_ROW_ALIGN, IDC_ORV_ROW_ALIGN},
    {ORVTEXT_COLUMN_ALIGN, IDC_ORV_COLUMN_ALIGN},
    {ORVTEXT_AUTO_BOUND, IDC_ORV_AUTO_BOUND},
    {ORVTEXT_BORDER, IDC_ORV_BORDER},
    {ORVTEXT_CLIP, IDC_ORV_CLIP},
    {ORVTEXT_ROW_SPACE, IDC_ORV_ROW_SPACE},
    {ORVTEXT_LINE_FEED, IDC_ORV_LINE_FEED},
    {ORVTEXT_SHADE, IDC_ORV_SHADE},
    {ORVTEXT_FONT_LINE, IDC_ORV_FONT_LINE},
    {ORVTEXT_CHAR_SPACE, IDC_ORV_CHAR_SPACE},
    {ORVTEXT_SAMPLE, IDC_ORV_SAMPLE},
};

} // namespace

COrvFCDrawTextPropPage::COrvFCDrawTextPropPage() : CPropertyPage(IDD_ORV_TEXT_PAGE), m_dwEnable(ORVTEXT_ALL) {
    // The template names the control's class: it has to be there before the page's window.
    AfxInitRichEdit2();
}

COrvFCDrawTextPropPage::~COrvFCDrawTextPropPage() = default;

void COrvFCDrawTextPropPage::ExchangeData(COrvDrawText* p, int save) {
    if (p == NULL)
        return;
    if (save) {
        *p = m_DrawText;
        return;
    }
    m_DrawText = *p;
    if (m_hWnd != NULL)
        UpdateData(FALSE);
}

int COrvFCDrawTextPropPage::ExchangeData(int save) {
    return m_hWnd != NULL && UpdateData(save != 0);
}

// --- opening

// A host's own template may lack some of them.
void COrvFCDrawTextPropPage::SubclassControls() {
    const struct {
        CWnd& control;
        UINT id;
    } controls[] = {
        {m_FontNameCmb, IDC_ORV_FACE},        {m_FontColorCmb, IDC_ORV_COLOR},
        {m_RowAlignCmb, IDC_ORV_ROW_ALIGN},   {m_ColAlignCmb, IDC_ORV_COLUMN_ALIGN},
        {m_FontAslopeCmb, IDC_ORV_SLOPE},     {m_FontSizeCmb, IDC_ORV_SIZE},
        {m_CharSpaceCmb, IDC_ORV_CHAR_SPACE}, {m_RowSpaceCmb, IDC_ORV_ROW_SPACE},
        {m_UnderlineBtn, IDC_ORV_UNDERLINE},  {m_BoldBtn, IDC_ORV_BOLD},
        {m_ItalicBtn, IDC_ORV_ITALIC},        {m_SampleEdit, IDC_ORV_SAMPLE},
    };
    for (const auto& row : controls)
        row.control.SubclassDlgItem(row.id, this);
}

void COrvFCDrawTextPropPage::FillControls() {
    m_UnderlineBtn.SetFontShape(kUnderlineShape, FALSE);
    m_BoldBtn.SetFontShape(kBoldShape, FALSE);
    m_ItalicBtn.SetFontShape(kItalicShape, FALSE);
    m_FontNameCmb.Initialize();
    if (m_FontNameCmb.m_hWnd != NULL) // the field is narrow: its list may be wider
        m_FontNameCmb.SetDroppedWidth(kFaceListWidth);
    m_FontColorCmb.ResetColors();
    for (CFontAlignCmb* combo : {&m_RowAlignCmb, &m_ColAlignCmb}) {
        if (combo->m_hWnd == NULL)
            continue;
        combo->SetDroppedWidth(kAlignListWidth);
        for (const int flag : kAlignments)
            combo->AddItem(flag);
    }
    for (CCharSpaceCmb* combo : {&m_CharSpaceCmb, &m_RowSpaceCmb})
        for (const double spacing : kSpacings)
            if (combo->m_hWnd != NULL)
                combo->AddItem(spacing);
    if (m_FontSizeCmb.m_hWnd != NULL) {
        m_FontSizeCmb.InitSize();
        m_FontSizeCmb.SetInit();
    }
    if (m_FontAslopeCmb.m_hWnd != NULL)
        m_FontAslopeCmb.Init();
}

void COrvFCDrawTextPropPage::EnableControls() {
    for (const EnabledControl& row : kEnabledControls)
        ::EnableWindow(::GetDlgItem(m_hWnd, row.id), (m_dwEnable & row.bit) != 0);
}

BOOL COrvFCDrawTextPropPage::OnInitDialog() {
    m_bShown = FALSE;
    ModifyStyleEx(0, WS_EX_CONTROLPARENT); // Tab goes into it from a dialog round it
    SubclassControls();
    FillControls();
    const BOOL result = CPropertyPage::OnInitDialog(); // exchanges the data into the controls
    EnableControls();
    if (m_SampleEdit.m_hWnd != NULL)
        InvalidText();
    return result;
}

// --- the sample

int COrvFCDrawTextPropPage::InvalidText() {
    ASSERT(m_SampleEdit.m_hWnd != NULL);
    if (m_SampleEdit.m_hWnd == NULL)
        return FALSE;
    CHARFORMATA format = {};
    static_assert(sizeof(format) == 60);
    format.cbSize = sizeof(format);
    format.dwMask = 0xE000000F; // bold, italic, underline, strike-out, face, size, colour
    const Values now = ReadControls();
    if (now.bUnderline)
        format.dwEffects |= CFE_UNDERLINE;
    if (now.bItalic)
        format.dwEffects |= CFE_ITALIC;
    if (now.bBold)
        format.dwEffects |= CFE_BOLD;
    format.yHeight = orv::twipsFromPoints(orv::wholePoints(now.dSize));
    format.crTextColor = now.crText;
    orv::copyFaceName(format.szFaceName, static_cast<LPCTSTR>(now.strFace));
    m_SampleEdit.SetSel(0, 99999999);
    m_SampleEdit.SetSelectionCharFormat(format);
    m_SampleEdit.SetDefaultCharFormat(format);
    return TRUE;
}

// --- messages

BOOL COrvFCDrawTextPropPage::IsCommandOfPicker(LPARAM lParam) const {
    const HWND hWnd = reinterpret_cast<HWND>(lParam);
    return hWnd != NULL && (hWnd == m_FontNameCmb.m_hWnd || hWnd == m_FontSizeCmb.m_hWnd);
}

void COrvFCDrawTextPropPage::TakeFields() {
    for (CComboBox* combo : {static_cast<CComboBox*>(&m_FontNameCmb), static_cast<CComboBox*>(&m_FontSizeCmb),
                             static_cast<CComboBox*>(&m_FontAslopeCmb)})
        if (combo->m_hWnd != NULL && combo->GetDroppedState())
            combo->ShowDropDown(FALSE);
    m_FontNameCmb.SetCurrentFont();
    m_FontSizeCmb.TakeTypedText();
    m_FontAslopeCmb.TakeTypedText();
    Changed();
}

BOOL COrvFCDrawTextPropPage::PreTranslateMessage(MSG* pMsg) {
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_RETURN) {
        char name[8] = "";
        ::GetClassNameA(pMsg->hwnd, name, sizeof name);
        if (::lstrcmpiA(name, "edit") == 0) {
            TakeFields();
            return TRUE;
        }
    }
    if (pMsg->message == WM_COMMAND) {
        const UINT id = LOWORD(pMsg->wParam);
        if (id < 2 || id == 5)
            Changed();
        if ((pMsg->wParam == 0 && pMsg->lParam == -1) || (id == 1 && IsCommandOfPicker(pMsg->lParam)))
            return TRUE;
    }
    if (pMsg->message == WM_LINE_COLOR_CMB_SELCHANGE)
        Changed();
    if (CPropertyPage::PreTranslateMessage(pMsg))
        return TRUE;
    // A sheet or dialog round the page sees to its Tab and arrow keys; another parent does not.
    CWnd* const parent = GetParent();
    return DYNAMIC_DOWNCAST(CPropertySheet, parent) == NULL && DYNAMIC_DOWNCAST(CDialog, parent) == NULL &&
           PreTranslateInput(pMsg);
}

void COrvFCDrawTextPropPage::OnClose() {
    UpdateData(TRUE);
    CPropertyPage::OnClose();
}

// A control was changed: the copy follows it, and so does the sample. The sheet's Apply button comes alive
// only for a change that counts.
void COrvFCDrawTextPropPage::Changed() {
    if (m_hWnd == NULL || !m_bShown)
        return;
    const Values before = m_shown;
    TakeControls(); // without the fields that a derived page may exchange: they are not what was changed
    if (m_SampleEdit.m_hWnd != NULL)
        InvalidText();
    if (DYNAMIC_DOWNCAST(CPropertySheet, GetParent()) != NULL && !(before == m_shown))
        SetModified(TRUE);
}

// The face is taken when it is chosen or its field is left, not letter by letter.
void COrvFCDrawTextPropPage::OnEditchangeComboFontName() {}

void COrvFCDrawTextPropPage::OnButtonFontBold() {
    Changed();
    if (m_SampleEdit.m_hWnd != NULL)
        m_SampleEdit.Invalidate();
}

#define ORV_REFRESHING(handler)                                                                              \
    void COrvFCDrawTextPropPage::handler() {                                                                 \
        Changed();                                                                                           \
    }

ORV_REFRESHING(OnSelchangeComboFontName)
ORV_REFRESHING(OnSelchangeComboFontSize)
ORV_REFRESHING(OnEditchangeComboFontSize)
ORV_REFRESHING(OnSelchangeComboFontAslope)
ORV_REFRESHING(OnEditchangeComboFontAslope)
ORV_REFRESHING(OnSelchangeComboFontColor)
ORV_REFRESHING(OnSelchangeComboRowAlign)
ORV_REFRESHING(OnSelchangeComboColAlign)
ORV_REFRESHING(OnSelchangeComboCharSpace)
ORV_REFRESHING(OnSelchangeComboRowSpace)
ORV_REFRESHING(OnButtonFontUnderline)
ORV_REFRESHING(OnButtonFontItalic)
ORV_REFRESHING(OnCheckAutoCacu)
ORV_REFRESHING(OnCheckFontAutoEnter)
ORV_REFRESHING(OnCheckFontBorderShade)
ORV_REFRESHING(OnCheckFontBorder)
ORV_REFRESHING(OnCheckFontClip)
ORV_REFRESHING(OnCheckFontLine)

// --- diagnostics

void COrvFCDrawTextPropPage::AssertValid() const {
    CPropertyPage::AssertValid();
}

void COrvFCDrawTextPropPage::Dump(CDumpContext& dc) const {
    CPropertyPage::Dump(dc);
    dc << "m_dwEnable = " << m_dwEnable << "\n";
    dc << "shown: face = " << m_shown.strFace << ", size = " << m_shown.dSize
       << ", slope = " << m_shown.dSlope << ", color = " << m_shown.crText << "\n";
    m_DrawText.Dump(dc);
}
