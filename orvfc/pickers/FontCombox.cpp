#include "FontCombox.h"

#include <algorithm>
#include <new>
#include <vector>

#include <orvfc/ORVFC.h>
#include <orvfc/text/FaceName.h>

#include "FontChoice.h"
#include "NameSearch.h"
#include "ShapedFont.h"

namespace {

constexpr DWORD kScreenFont = 1; // the flags of an enumerated face
constexpr DWORD kNotThese = 0x4000;
constexpr UINT_PTR kTypingTimer = 1;
constexpr UINT kTypingPause = 500; // milliseconds
constexpr int kMostFonts = 1000;   // at a time: the system has 10,000 handles for a program
constexpr int kMark = 4;           // side of the mark of a face in use, in pixels
constexpr int kNameBehindMark = 10;

bool isBefore(const CString& a, const CString& b) {
    return a.CompareNoCase(b) < 0;
}

} // namespace

// --- a row

CFontObj::CFontObj(DWORD dwFlags) : CFontObj(CString(), dwFlags) {}

CFontObj::CFontObj(CString strFace, DWORD dwFlags)
    : m_strFace(strFace), m_dwFlags(dwFlags), m_bInUse(FALSE), m_pFont(NULL), m_bOwnFace(FALSE),
      m_nFontHeight(0) {}

CFontObj::CFontObj(const CFontObj& obj) : CFontObj(obj.m_strFace, obj.m_dwFlags) {
    m_bInUse = obj.m_bInUse;
}

CFontObj& CFontObj::operator=(const CFontObj& obj) {
    if (this == &obj)
        return *this;
    FreeFont();
    m_strFace = obj.m_strFace;
    m_dwFlags = obj.m_dwFlags;
    m_bInUse = obj.m_bInUse;
    return *this;
}

CFontObj::~CFontObj() {
    FreeFont();
}

void CFontObj::FreeFont() {
    delete m_pFont;
    m_pFont = NULL;
}

CFont* CFontObj::OwnFace(CDC* pDC) {
    LOGFONT lf = orv::fontOf(pDC);
    if (m_pFont == NULL || m_nFontHeight != lf.lfHeight) {
        FreeFont();
        m_nFontHeight = lf.lfHeight;
        orv::copyFaceName(lf.lfFaceName, static_cast<LPCTSTR>(m_strFace));
        lf.lfCharSet = DEFAULT_CHARSET;
        m_pFont = new CFont;
        m_pFont->CreateFontIndirect(&lf);
        const orv::SavedDC saved(pDC);
        pDC->SelectObject(m_pFont);
        m_bOwnFace = orv::showsItsName(pDC, m_strFace);
    }
    return m_bOwnFace ? m_pFont : NULL;
}

void CFontObj::DrawItem(CDC* pDC, const CRect& rc, int nState) {
    CFont* const pFont = OwnFace(pDC);
    const orv::SavedDC saved(pDC);
    orv::paintBackground(pDC, rc, nState);
    orv::paintSelection(pDC, rc, nState);
    if (m_bInUse) {
        const int top = rc.CenterPoint().y - kMark / 2;
        pDC->FillSolidRect(rc.left + orv::kPlainMargin, top, kMark, kMark, ::GetSysColor(COLOR_WINDOWTEXT));
    }
    if (pFont != NULL)
        pDC->SelectObject(pFont);
    orv::paintName(pDC, rc, kNameBehindMark, m_strFace, nState, DT_NOPREFIX);
}

// --- the combo

struct CFontCombo::Collected {
    std::vector<CString> faces;
};

IMPLEMENT_DYNAMIC(CFontCombo, COrvRecordCombo)

BEGIN_MESSAGE_MAP(CFontCombo, COrvRecordCombo)
ON_WM_DESTROY()
ON_WM_TIMER()
ON_CONTROL_REFLECT_EX(CBN_EDITCHANGE, &CFontCombo::OnEditchange)
ON_CONTROL_REFLECT_EX(CBN_SETFOCUS, &CFontCombo::OnSetfocus)
ON_CONTROL_REFLECT_EX(CBN_KILLFOCUS, &CFontCombo::OnKillfocus)
ON_CONTROL_REFLECT_EX(CBN_DROPDOWN, &CFontCombo::OnDropdown)
ON_CONTROL_REFLECT_EX(CBN_SELENDOK, &CFontCombo::OnSelendok)
ON_CONTROL_REFLECT_EX(CBN_CLOSEUP, &CFontCombo::OnCloseUp)
END_MESSAGE_MAP()

CFontCombo::CFontCombo() : CFontCombo(0) {}

CFontCombo::CFontCombo(int nStyle) : m_pCollected(NULL), m_nStyle(nStyle), m_nFonts(0) {}

BOOL CFontCombo::PreCreateWindow(CREATESTRUCT& cs) {
    if (!(cs.style & CBS_DROPDOWNLIST))
        cs.style |= CBS_DROPDOWN;
    return COrvRecordCombo::PreCreateWindow(cs);
}

void CFontCombo::OnDestroy() {
    KillTimer(kTypingTimer);
    COrvRecordCombo::OnDestroy();
}

// --- faces

int CALLBACK CFontCombo::EnumFamScreenCallBackEx(const LOGFONT* plf, const TEXTMETRIC*, DWORD nFontType,
                                                 LPARAM lThis) {
    if ((nFontType & TRUETYPE_FONTTYPE) != 0 && (nFontType & kNotThese) == 0)
        reinterpret_cast<CFontCombo*>(lThis)->AddFont(plf->lfFaceName, kScreenFont);
    return TRUE;
}

int CALLBACK CFontCombo::EnumFamPrinterCallBackEx(const LOGFONT* plf, const TEXTMETRIC*, DWORD nFontType,
                                                  LPARAM lThis) {
    if ((nFontType & RASTER_FONTTYPE) == 0)
        reinterpret_cast<CFontCombo*>(lThis)->AddFont(plf->lfFaceName, kScreenFont);
    return TRUE;
}

void CFontCombo::EnumerateFonts() {
    if (!m_hWnd)
        return;
    Collected collected;
    m_pCollected = &collected;
    const HDC hScreen = ::GetWindowDC(NULL);
    LOGFONT any = {};
    ::EnumFontFamiliesExA(hScreen, &any, EnumFamScreenCallBackEx, reinterpret_cast<LPARAM>(this), 0);
    ::ReleaseDC(NULL, hScreen);
    m_pCollected = NULL;
    std::sort(collected.faces.begin(), collected.faces.end(), isBefore);
    const bool inOrder = GetCount() == 0;
    const CString* pLast = NULL;
    for (const CString& face : collected.faces) {
        if (pLast != NULL && pLast->CompareNoCase(face) == 0)
            continue;
        pLast = &face;
        if (inOrder)
            InsertRecord(-1, new (std::nothrow) CFontObj(face, kScreenFont));
        else
            AddFont(face, kScreenFont);
    }
}

void CFontCombo::Initialize() {
    if (!m_hWnd)
        return;
    const CString current = m_strCurrent;
    ResetContent();
    EnumerateFonts();
    if (!current.IsEmpty())
        SetCurrentFontName(current);
}

int CFontCombo::PlaceOf(const CString& strFace) const {
    int low = 0, high = GetCount();
    while (low < high) {
        const int middle = (low + high) / 2;
        const COrvCmbRecord* pRow = GetRecord(middle);
        if (pRow != NULL && isBefore(pRow->GetName(), strFace))
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

int CFontCombo::FindFace(const CString& strFace) const {
    return FindRecord<CFontObj>(
        [&](const CFontObj& row) { return row.GetName().CompareNoCase(strFace) == 0; });
}

int CFontCombo::AddFont(CString strFace, DWORD dwFlags) {
    if (m_pCollected != NULL) {
        m_pCollected->faces.push_back(strFace);
        return static_cast<int>(m_pCollected->faces.size()) - 1;
    }
    if (!m_hWnd)
        return -1;
    const int nPlace = PlaceOf(strFace);
    auto* pThere = static_cast<CFontObj*>(GetRecord(nPlace));
    if (pThere == NULL || pThere->GetName().CompareNoCase(strFace) != 0)
        return InsertRecord(nPlace, new (std::nothrow) CFontObj(strFace, dwFlags));
    if (IsOwnRow(pThere)) {
        *pThere = CFontObj(strFace, dwFlags);
        KeepOwnRow();
    }
    return nPlace;
}

int CFontCombo::SetFontInUse(const CString& strFace) {
    auto* pRow = static_cast<CFontObj*>(GetRecord(FindFace(strFace)));
    if (pRow == NULL)
        return FALSE;
    pRow->SetFontInUse(TRUE);
    Invalidate(FALSE);
    return TRUE;
}

// --- the current face

void CFontCombo::SetCurrentFontName(CString strFace) {
    m_strCurrent = strFace;
    if (!m_hWnd)
        return;
    int nRow = FindFace(strFace);
    if (nRow < 0 && !orv::hasField(*this) && !strFace.IsEmpty()) {
        DeleteOwnRow();
        nRow = InsertOwnRow(PlaceOf(strFace), new (std::nothrow) CFontObj(strFace, 0));
    }
    SetCurSel(nRow);
    m_strCurrent = strFace; // the row's may be written otherwise
    orv::showInField(*this, m_strCurrent);
}

// The name in the field becomes current when it is a row's. TRUE when it was another one before.
BOOL CFontCombo::TakeTypedFace() {
    if (!m_hWnd || !orv::hasField(*this))
        return FALSE;
    CString text;
    GetWindowText(text);
    text.Trim();
    if (text.CompareNoCase(m_strCurrent) == 0)
        return FALSE; // the same, though its row may write it otherwise
    const COrvCmbRecord* pRow = GetRecord(FindFace(text));
    if (pRow == NULL)
        return FALSE;
    m_strCurrent = pRow->GetName();
    return TRUE;
}

BOOL CFontCombo::TakeChosenRow() {
    const auto* pRow = CurrentRecord<CFontObj>();
    if (pRow == NULL)
        return FALSE;
    m_strCurrent = pRow->GetName();
    orv::showInField(*this, m_strCurrent);
    return TRUE;
}

// The field is done with: its name is taken and told, or the current one comes back.
void CFontCombo::TakeField() {
    KillTimer(kTypingTimer);
    const BOOL changed = TakeTypedFace();
    SetCurrentFontName(m_strCurrent);
    if (changed)
        Report();
}

// The field has the beginning of the row's name.
BOOL CFontCombo::IsBegunInField(int nIndex) const {
    CString text;
    GetWindowText(text);
    const COrvCmbRecord* pRow = GetRecord(nIndex);
    return pRow != NULL && !text.IsEmpty() && orv::nameBegins(pRow->GetName(), text);
}

int CFontCombo::SetCurrentFont() {
    TakeTypedFace();
    SetCurrentFontName(m_strCurrent);
    return m_hWnd != NULL && FindFace(m_strCurrent) >= 0;
}

// --- what the user does

void CFontCombo::Report() {
    PostChoice(WM_FONT_NAME_CMB_SELCHANGE);
    orv::postCommandBehind(*this);
}

void CFontCombo::OnSelchange() {
    if (TakeChosenRow())
        Report();
}

BOOL CFontCombo::OnEditchange() {
    SetTimer(kTypingTimer, kTypingPause, NULL);
    return FALSE;
}

void CFontCombo::OnTimer(UINT_PTR nIDEvent) {
    if (nIDEvent != kTypingTimer) {
        COrvRecordCombo::OnTimer(nIDEvent);
        return;
    }
    KillTimer(kTypingTimer);
    // The field is left to the typist: "Arial" may go on to become "Arial Black".
    if (TakeTypedFace())
        Report();
}

BOOL CFontCombo::OnSetfocus() {
    if (orv::hasField(*this))
        SetEditSel(0, -1);
    return FALSE;
}

BOOL CFontCombo::OnKillfocus() {
    if (orv::hasField(*this))
        TakeField();
    return FALSE;
}

BOOL CFontCombo::PreTranslateMessage(MSG* pMsg) {
    if (orv::confirmsField(*this, *pMsg))
        TakeField();
    return COrvRecordCombo::PreTranslateMessage(pMsg);
}

// An opening list completes the field to the first row that begins so, and tells nobody.
BOOL CFontCombo::OnDropdown() {
    return orv::hasField(*this) ? OnEditchange() : FALSE;
}

// Typing led to the row, Enter chose it: the list closes without a change of selection.
BOOL CFontCombo::OnSelendok() {
    const int nRow = GetCurSel();
    if (orv::hasField(*this) && IsBegunInField(nRow)) {
        SetWindowText(GetRecord(nRow)->GetName());
        OnEditchange();
    }
    return FALSE;
}

// Fonts are for rows that are seen.
BOOL CFontCombo::OnCloseUp() {
    FreeFonts();
    return FALSE;
}

void CFontCombo::FreeFonts() {
    for (int i = GetCount(); i-- > 0;)
        if (auto* pRow = static_cast<CFontObj*>(GetRecord(i)))
            pRow->FreeFont();
    m_nFonts = 0;
}

void CFontCombo::DrawRecord(COrvCmbRecord& record, CDC* pDC, const CRect& rc, int nState) {
    auto& row = static_cast<CFontObj&>(record);
    const bool hadFont = row.HasFont();
    COrvRecordCombo::DrawRecord(record, pDC, rc, nState);
    if (!GetDroppedState())
        row.FreeFont(); // in the field: no list closes behind it
    else if (!hadFont && ++m_nFonts > kMostFonts)
        FreeFonts();
}

void CFontCombo::Dump(CDumpContext& dc) const {
    COrvRecordCombo::Dump(dc);
    dc << "current face = " << m_strCurrent << "\n";
}
