#include "OrvFontComboBox.h"

#include <new>

#include "FontChoice.h"
#include "ShapedFont.h"

namespace {

constexpr UINT kInitFonts = WM_APP + 0x22; // to itself
constexpr int kRowHeight = 18;
constexpr COLORREF kOfTheSystem = CLR_INVALID; // also after the user changes it

COLORREF colorOr(COLORREF cr, int nSystem) {
    return cr == kOfTheSystem ? ::GetSysColor(nSystem) : cr;
}

const LOGFONT* fontOfItem(ULONG_PTR data) {
    return data != 0 && data != static_cast<ULONG_PTR>(CB_ERR) ? reinterpret_cast<const LOGFONT*>(data)
                                                               : NULL;
}

} // namespace

IMPLEMENT_DYNAMIC(COrvFontComboBox, CComboBox)

BEGIN_MESSAGE_MAP(COrvFontComboBox, CComboBox)
ON_WM_CREATE()
ON_MESSAGE(kInitFonts, &COrvFontComboBox::OnInitFonts)
END_MESSAGE_MAP()

COrvFontComboBox::COrvFontComboBox() : COrvFontComboBox(ORVFONTS_OWN_FACE) {}

COrvFontComboBox::COrvFontComboBox(OrvFontComboStyle nStyle)
    : m_nStyle(nStyle), m_crHilightText(kOfTheSystem), m_crHilightBack(kOfTheSystem),
      m_crNormalText(kOfTheSystem), m_crNormalBack(kOfTheSystem), m_bFilled(FALSE) {}

// A window that outlives its object would keep the fonts for ever.
COrvFontComboBox::~COrvFontComboBox() {
    if (m_hWnd)
        DestroyWindow();
}

void COrvFontComboBox::SetHilightColors(COLORREF crText, COLORREF crBack) {
    m_crHilightText = crText;
    m_crHilightBack = crBack;
    if (m_hWnd)
        Invalidate();
}

void COrvFontComboBox::SetNormalColors(COLORREF crText, COLORREF crBack) {
    m_crNormalText = crText;
    m_crNormalBack = crBack;
    if (m_hWnd)
        Invalidate();
}

// --- attaching

BOOL COrvFontComboBox::PreCreateWindow(CREATESTRUCT& cs) {
    orv::completeStyle(cs, CBS_DROPDOWNLIST | CBS_SORT);
    return CComboBox::PreCreateWindow(cs);
}

void COrvFontComboBox::PreSubclassWindow() {
    CComboBox::PreSubclassWindow();
    if (orv::hasList(*this))
        Attached();
}

int COrvFontComboBox::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    const int nResult = CComboBox::OnCreate(lpCreateStruct);
    if (nResult == 0)
        Attached();
    return nResult;
}

// Only owner-drawn combos say when an item goes; without strings an item's text itself would be its data.
BOOL COrvFontComboBox::OwnsFonts() const {
    return (GetStyle() & (CBS_OWNERDRAWFIXED | CBS_OWNERDRAWVARIABLE)) != 0 &&
           (GetStyle() & CBS_HASSTRINGS) != 0;
}

void COrvFontComboBox::Attached() {
    orv::setRowHeights(*this, kRowHeight);
    m_bFilled = FALSE;
    PostMessage(kInitFonts);
}

LRESULT COrvFontComboBox::OnInitFonts(WPARAM, LPARAM) {
    if (!m_bFilled)
        InitFonts();
    return 0;
}

// --- fonts

int CALLBACK COrvFontComboBox::EnumFontProc(const LOGFONT* plf, const TEXTMETRIC*, DWORD nFontType,
                                            LPARAM lThis) {
    auto& combo = *reinterpret_cast<COrvFontComboBox*>(lThis);
    if (nFontType != TRUETYPE_FONTTYPE || combo.FindStringExact(-1, plf->lfFaceName) != CB_ERR)
        return TRUE;
    const int nItem = combo.AddString(plf->lfFaceName);
    if (nItem >= 0) // past WindowProc, which keeps others from doing this
        combo.DefWindowProc(CB_SETITEMDATA, static_cast<WPARAM>(nItem),
                            reinterpret_cast<LPARAM>(new (std::nothrow) LOGFONT(*plf)));
    return TRUE;
}

void COrvFontComboBox::InitFonts() {
    if (!m_hWnd)
        return;
    ResetContent();
    FillFonts();
}

void COrvFontComboBox::FillFonts() {
    if (!m_hWnd || !OwnsFonts())
        return;
    m_bFilled = TRUE;
    CClientDC dc(this);
    LOGFONT any = {};
    any.lfCharSet = DEFAULT_CHARSET;
    ::EnumFontFamiliesExA(dc.m_hDC, &any, EnumFontProc, reinterpret_cast<LPARAM>(this), 0);
}

int COrvFontComboBox::GetSelFont(LOGFONT& lf) const {
    const int nItem = m_hWnd ? GetCurSel() : -1;
    const LOGFONT* plf = nItem >= 0 ? fontOfItem(GetItemData(nItem)) : NULL;
    if (plf == NULL)
        return FALSE;
    lf = *plf;
    return TRUE;
}

LRESULT COrvFontComboBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    // Somebody else's pointer would be deleted as a font.
    const bool addsData = message == CB_ADDSTRING || message == CB_INSERTSTRING || message == CB_DIR;
    if (message == CB_SETITEMDATA || (addsData && !OwnsFonts()))
        return CB_ERR;
    const LRESULT nResult = CComboBox::WindowProc(message, wParam, lParam);
    if (message == WM_SETFONT)
        orv::setRowHeights(*this, kRowHeight);
    return nResult;
}

// --- items

void COrvFontComboBox::MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
    lpMeasureItemStruct->itemHeight = static_cast<UINT>(orv::rowHeight(*this, kRowHeight));
}

void COrvFontComboBox::DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct) {
    delete fontOfItem(lpDeleteItemStruct->itemData);
    lpDeleteItemStruct->itemData = 0;
}

void COrvFontComboBox::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) {
    CDC* pDC = CDC::FromHandle(lpDrawItemStruct->hDC);
    if (pDC == NULL)
        return;
    const orv::SavedDC saved(pDC);
    const CRect rc(lpDrawItemStruct->rcItem);
    const UINT nState = lpDrawItemStruct->itemState;
    const bool selected = (nState & ODS_SELECTED) != 0, disabled = (nState & ODS_DISABLED) != 0;
    const COLORREF crBack = disabled   ? ::GetSysColor(COLOR_BTNFACE)
                            : selected ? colorOr(m_crHilightBack, COLOR_HIGHLIGHT)
                                       : colorOr(m_crNormalBack, COLOR_WINDOW);
    pDC->FillSolidRect(&rc, crBack);
    pDC->SetBkMode(TRANSPARENT);
    pDC->SetTextColor(disabled   ? ::GetSysColor(COLOR_GRAYTEXT)
                      : selected ? colorOr(m_crHilightText, COLOR_HIGHLIGHTTEXT)
                                 : colorOr(m_crNormalText, COLOR_WINDOWTEXT));
    const LOGFONT* plf =
        lpDrawItemStruct->itemID != static_cast<UINT>(-1) ? fontOfItem(lpDrawItemStruct->itemData) : NULL;
    if (plf != NULL && m_nStyle == ORVFONTS_OWN_FACE)
        DrawFont(pDC, rc, *plf);
    else if (plf != NULL)
        DrawDefault(pDC, rc, *plf);
    if (nState & ODS_FOCUS)
        pDC->DrawFocusRect(&rc);
}

void COrvFontComboBox::DrawFont(CDC* pDC, const CRect& rc, const LOGFONT& lf) {
    LOGFONT own = orv::fontOf(pDC);
    memcpy(own.lfFaceName, lf.lfFaceName, sizeof own.lfFaceName);
    own.lfCharSet = DEFAULT_CHARSET; // the face's first one need not have its name's characters
    CFont font;
    font.CreateFontIndirect(&own);
    CFont* const pOld = pDC->SelectObject(&font);
    if (lf.lfCharSet == SYMBOL_CHARSET || !orv::showsItsName(pDC, lf.lfFaceName))
        pDC->SelectObject(pOld);
    DrawDefault(pDC, rc, lf);
    pDC->SelectObject(pOld);
}

void COrvFontComboBox::DrawDefault(CDC* pDC, const CRect& rc, const LOGFONT& lf) {
    CRect rcName(rc);
    rcName.left += orv::kPlainMargin;
    pDC->DrawText(lf.lfFaceName, -1, &rcName, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
}

void COrvFontComboBox::Dump(CDumpContext& dc) const {
    CComboBox::Dump(dc);
    dc << "style = " << static_cast<int>(m_nStyle) << ", items = " << (m_hWnd ? GetCount() : 0) << "\n";
}
