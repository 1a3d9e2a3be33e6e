#include "OrvFont.h"

#include <afxdlgs.h>

#include <memory>

#include <orvfc/geometry/Truncate.h>
#include <orvfc/services/ArchiveFields.h>

#include "FaceName.h"

IMPLEMENT_SERIAL(COrvFont, CObject, 1)

namespace {

constexpr int kFirstSize = 20;         // what GetFontSize() says of a new font
constexpr int kFirstHeightPoints = 15; // what its height is made for
constexpr int kLargestHeight = 32767;  // what GDI can take

// What Windows before 6.0 knew of the metrics, and every Windows since answers.
constexpr UINT kMetricsSize = 340;
static_assert(offsetof(NONCLIENTMETRICSA, iPaddedBorderWidth) == kMetricsSize);
static_assert(sizeof(LOGFONTA) == 60);

LOGFONT statusBarFont() {
    NONCLIENTMETRICSA metrics = {};
    metrics.cbSize = kMetricsSize;
    if (!::SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, kMetricsSize, &metrics, 0))
        metrics.lfStatusFont = {};
    return metrics.lfStatusFont;
}

LONG limited(LONG value) {
    return value > kLargestHeight ? kLargestHeight : value < -kLargestHeight ? -kLargestHeight : value;
}

BOOL createFont(CFont& font, const LOGFONT& description) {
    LOGFONT lf = description;
    lf.lfHeight = limited(lf.lfHeight);
    lf.lfWidth = limited(lf.lfWidth);
    font.DeleteObject();
    return font.CreateFontIndirect(&lf);
}

// A device context of the whole screen. A system that has none to give does not throw here: measures are then
// empty, and the usual resolution holds.
class ScreenDC : public CDC {
public:
    ScreenDC() { Attach(::GetDC(NULL)); }
    ~ScreenDC() override {
        if (m_hDC != NULL)
            ::ReleaseDC(NULL, Detach());
    }
    int dpi() const {
        const int found = m_hDC != NULL ? GetDeviceCaps(LOGPIXELSY) : 0;
        return found > 0 ? found : 96;
    }
};

int saturated(LONGLONG value) {
    return orv::truncToInt(static_cast<double>(value));
}

CFont* createHeapFont(int nHeight, const char* pszFace) {
    LOGFONT lf = statusBarFont();
    lf.lfHeight = nHeight;
    if (pszFace != NULL && *pszFace != '\0')
        orv::copyFaceName(lf.lfFaceName, pszFace);
    auto font = std::make_unique<CFont>();
    return createFont(*font, lf) ? font.release() : NULL;
}

} // namespace

COrvFont::COrvFont() {
    init();
}

COrvFont::COrvFont(const COrvFont& font) : CObject(), m_nVersion(0) {
    *this = font;
}

COrvFont::~COrvFont() = default;

COrvFont& COrvFont::operator=(const COrvFont& font) {
    if (this == &font)
        return *this;
    m_crFont = font.m_crFont;
    m_lf = font.m_lf;
    m_dZoomModu = font.m_dZoomModu;
    m_nFontSize = font.m_nFontSize;
    m_dNominalSize = font.m_dNominalSize;
    ReCreateFont();
    return *this;
}

COrvFont& COrvFont::operator=(CFont& font) {
    LOGFONT lf;
    if (font.GetLogFont(&lf))
        SetLogFont(lf, TRUE);
    return *this;
}

void COrvFont::init() {
    m_font.DeleteObject();
    m_lf = statusBarFont();
    SetFontName("宋体", FALSE);
    m_lf.lfCharSet = 0;
    m_lf.lfClipPrecision = 0;
    m_lf.lfEscapement = 0;
    SetFontSize(kFirstHeightPoints, FALSE);
    m_lf.lfItalic = 0;
    m_lf.lfOrientation = 0;
    m_lf.lfOutPrecision = 0;
    m_lf.lfPitchAndFamily = FF_SWISS;
    m_lf.lfQuality = 0;
    m_lf.lfStrikeOut = 0;
    m_lf.lfUnderline = 0;
    m_lf.lfWeight = 0;
    m_lf.lfWidth = 0;
    m_dZoomModu = 1.0;
    m_nFontSize = kFirstSize; // not kFirstHeightPoints: callers know both
    m_crFont = 0;
    m_dNominalSize = 15.0;
    ReCreateFont();
    m_nVersion = 0;
}

// --- the description

CString COrvFont::GetFontName() const {
    return m_lf.lfFaceName;
}

void COrvFont::SetFontName(CString strName, int nRecreate) {
    orv::copyFaceName(m_lf.lfFaceName, static_cast<LPCTSTR>(strName));
    Recreate(nRecreate);
}

int COrvFont::GetFontSize() const {
    return m_nFontSize;
}

void COrvFont::SetFontSize(int nSize, int nRecreate) {
    m_nFontSize = nSize;
    m_lf.lfHeight = ConvertHeightFromSize(nSize);
    Recreate(nRecreate);
}

int COrvFont::GetFontAngle() const {
    return m_lf.lfEscapement / 10;
}

void COrvFont::SetFontAngle(int nDegrees, int nRecreate) {
    m_lf.lfEscapement = saturated(nDegrees * 10LL);
    Recreate(nRecreate);
}

int COrvFont::GetFontBold() const {
    return m_lf.lfWeight >= FW_BOLD;
}

void COrvFont::SetFontBold(int bBold, int nRecreate) {
    m_lf.lfWeight = bBold ? FW_BOLD : FW_DONTCARE;
    Recreate(nRecreate);
}

int COrvFont::GetFontItalic() const {
    return m_lf.lfItalic;
}

void COrvFont::SetFontItalic(int bItalic, int nRecreate) {
    m_lf.lfItalic = static_cast<BYTE>(bItalic);
    Recreate(nRecreate);
}

int COrvFont::GetFontUnderline() const {
    return m_lf.lfUnderline;
}

void COrvFont::SetFontUnderline(int bUnderline, int nRecreate) {
    m_lf.lfUnderline = static_cast<BYTE>(bUnderline);
    Recreate(nRecreate);
}

int COrvFont::GetFontHeight() const {
    return m_lf.lfHeight;
}

void COrvFont::SetFontHeight(int nHeight, CString strName, int nRecreate) {
    m_lf.lfHeight = nHeight;
    SetFontName(strName, nRecreate);
}

double COrvFont::GetZoomModu() const {
    return m_dZoomModu;
}

void COrvFont::SetZoomModu(double dZoom, int nRecreate) {
    m_dZoomModu = dZoom;
    if (dZoom == dZoom)
        m_lf.lfHeight = orv::truncToInt(m_lf.lfHeight * dZoom);
    Recreate(nRecreate);
}

COLORREF COrvFont::GetFontColor() const {
    return m_crFont;
}

void COrvFont::SetFontColor(COLORREF cr) {
    m_crFont = cr;
}

void COrvFont::SetFontAttribute(CString strName, int nSize, int nAngle, int bBold, int bItalic,
                                int bUnderline, int nRecreate) {
    SetFontAttribute(strName, nSize, nAngle, FALSE);
    SetFontBold(bBold, TRUE);
    SetFontItalic(bItalic, TRUE);
    SetFontUnderline(bUnderline, TRUE);
    Recreate(nRecreate);
}

void COrvFont::SetFontAttribute(CString strName, int nSize, int nRecreate) {
    SetFontName(strName, TRUE);
    SetFontSize(nSize, TRUE);
    Recreate(nRecreate);
}

void COrvFont::SetFontAttribute(CString strName, int nSize, int nAngle, int nRecreate) {
    SetFontAttribute(strName, nSize, FALSE);
    SetFontAngle(nAngle, TRUE);
    Recreate(nRecreate);
}

// --- LOGFONT and GDI font

int COrvFont::GetLogFontFont(LOGFONT& lf, int bDescription) const {
    if (!bDescription)
        return m_font.GetLogFont(&lf) != 0;
    lf = m_lf;
    return TRUE;
}

int COrvFont::SetLogFont(const LOGFONT& lf, int nRecreate) {
    m_lf = lf;
    orv::endFaceName(m_lf.lfFaceName);
    Recreate(nRecreate);
    return TRUE;
}

CFont* COrvFont::GetFont() {
    return &m_font;
}

void COrvFont::SetFont(CFont* pFont) {
    if (pFont == NULL) {
        TRACE("faild to SetFont(CFont* pFont)\n");
        return;
    }
    *this = *pFont;
}

int COrvFont::CopytoFont(CFont* pFont) const {
    ASSERT(pFont != NULL);
    return pFont != NULL && createFont(*pFont, m_lf);
}

int COrvFont::Set(CFont* pFont) const {
    return CopytoFont(pFont);
}

int COrvFont::Set(LOGFONT* pLogFont) const {
    ASSERT(pLogFont != NULL);
    if (pLogFont == NULL)
        return FALSE;
    *pLogFont = m_lf;
    return TRUE;
}

void COrvFont::ReCreateFont() {
    createFont(m_font, m_lf);
}

// --- on the screen

CSize COrvFont::GetTextRect(CString strText) {
    ScreenDC dc;
    if (dc.m_hDC == NULL)
        return CSize(0, 0);
    const int nSaved = dc.SaveDC();
    dc.SetTextJustification(0, 0);
    dc.SetTextCharacterExtra(0);
    dc.SelectObject(&m_font);
    const CSize size = dc.GetTextExtent(strText);
    dc.RestoreDC(nSaved);
    return size;
}

int COrvFont::GetTextHeight() {
    return GetTextRect("中国").cy;
}

CString COrvFont::GetSubscrible() const {
    CString text;
    text.Format("%s %d %s ", m_lf.lfFaceName, ConvertSizeFromHeight(m_lf.lfHeight),
                GetFontBold() ? "粗体" : " ");
    return text;
}

int COrvFont::CreateFontFromDialog() {
    LOGFONT lf = m_lf; // the dialog writes into what it is given, also when it is left
    CFontDialog dialog(&lf, CF_SCREENFONTS | CF_EFFECTS);
    dialog.m_cf.rgbColors = m_crFont;
    if (dialog.DoModal() != IDOK)
        return FALSE;
    dialog.GetCurrentFont(&lf);
    SetLogFont(lf, FALSE);
    m_crFont = dialog.GetColor();
    ReCreateFont();
    return TRUE;
}

int COrvFont::ConvertSizeFromHeight(int nHeight) {
    ScreenDC dc;
    CPoint point(nHeight < 0 ? nHeight : -nHeight, 0);
    if (dc.m_hDC != NULL)
        dc.LPtoDP(&point);
    const LONGLONG size = point.x * 72LL / dc.dpi();
    return saturated(size < 0 ? -size : size);
}

int COrvFont::ConvertHeightFromSize(int nSize) {
    ScreenDC dc;
    const LONGLONG points = nSize < 0 ? -LONGLONG(nSize) : nSize;
    const int height = saturated((points * dc.dpi() + 36) / 72); // to the nearest
    CPoint point(nSize < 0 ? height : -height, 0);
    if (dc.m_hDC != NULL)
        dc.DPtoLP(&point);
    return point.x;
}

CFont* COrvFont::CreateFontFromSize(int nSize, const char* pszFace) {
    return createHeapFont(ConvertHeightFromSize(nSize), pszFace);
}

CFont* COrvFont::CreateFontFromHieght(int nHeight, const char* pszFace) {
    return createHeapFont(nHeight, pszFace);
}

// --- stored form

struct COrvFont::Stored {
    int nVersion;
    LOGFONT lf;
    COLORREF crFont;
    double dZoomModu;
    LONG nFontSize;
    double dNominalSize;
    CString strFace;
};

void COrvFont::Serialize(CArchive& ar) {
    CObject::Serialize(ar);
    if (ar.IsStoring() && m_font.GetLogFont(&m_lf)) // loading reads every field of it
        orv::endFaceName(m_lf.lfFaceName);
    Stored now = {m_nVersion, m_lf, m_crFont, m_dZoomModu, m_nFontSize, m_dNominalSize, m_lf.lfFaceName};
    LOGFONT& lf = now.lf;
    orv::archiveFields(ar, now.nVersion, lf.lfCharSet, lf.lfClipPrecision, lf.lfEscapement, lf.lfHeight,
                       lf.lfItalic, lf.lfOrientation, lf.lfOutPrecision, lf.lfPitchAndFamily, lf.lfQuality,
                       lf.lfStrikeOut, lf.lfUnderline, lf.lfWeight, lf.lfWidth, now.crFont, now.dZoomModu,
                       now.nFontSize, now.dNominalSize, now.strFace);
    if (ar.IsStoring())
        return;
    m_nVersion = now.nVersion;
    m_lf = now.lf;
    orv::copyFaceName(m_lf.lfFaceName, static_cast<LPCTSTR>(now.strFace));
    m_crFont = now.crFont;
    m_dZoomModu = now.dZoomModu;
    m_nFontSize = now.nFontSize;
    m_dNominalSize = now.dNominalSize;
}

// --- diagnostics

void COrvFont::AssertValid() const {
    CObject::AssertValid();
    ASSERT(m_lf.lfFaceName[LF_FACESIZE - 1] == '\0');
}

void COrvFont::Dump(CDumpContext& dc) const {
    CObject::Dump(dc);
    dc << "face = " << m_lf.lfFaceName << ", height = " << m_lf.lfHeight << ", weight = " << m_lf.lfWeight
       << ", italic = " << m_lf.lfItalic << ", underline = " << m_lf.lfUnderline
       << ", escapement = " << m_lf.lfEscapement << "\n";
    dc << "m_nFontSize = " << m_nFontSize << ", m_dZoomModu = " << m_dZoomModu << ", m_crFont = " << m_crFont
       << ", GDI font = " << m_font.m_hObject << "\n";
}
