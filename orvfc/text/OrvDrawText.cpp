#include "OrvDrawText.h"

#include <math.h>

#include <orvfc/geometry/Truncate.h>
#include <orvfc/services/ArchiveFields.h>

IMPLEMENT_SERIAL(COrvDrawText, CObject, 1)

namespace {

constexpr LONG kRowDist = 4;
constexpr UINT kTabSpaces = 8;
constexpr int kLabelPoints = 9;
constexpr LONG kShadeOffset = 6;

constexpr double kPi = 3.1415926; // the constant that callers turn their rectangles with
constexpr double kWholeDegree = 0.000001;

int wholeDegrees(double angle) {
    if (!isfinite(angle))
        return 0;
    const double degrees = angle * 180.0 / kPi;
    return orv::truncToInt(degrees + copysign(kWholeDegree, degrees));
}

} // namespace

COrvDrawText::COrvDrawText() : m_fields() {
    init();
}

COrvDrawText::COrvDrawText(const COrvDrawText& text)
    : CObject(), m_fields(text.m_fields), m_font(text.m_font), m_rect(text.m_rect),
      m_strContent(text.m_strContent) {}

COrvDrawText::~COrvDrawText() = default;

COrvDrawText& COrvDrawText::operator=(const COrvDrawText& text) {
    m_fields = text.m_fields;
    m_font = text.m_font;
    m_rect = text.m_rect;
    m_strContent = text.m_strContent;
    return *this;
}

void COrvDrawText::init() {
    InitFields();
    m_font.init();
    m_fields.nRowDist = kRowDist;
    m_fields.bAutoLinefeed = TRUE;
    m_fields.bDrawFontLine = FALSE;
    m_fields.bAutoCacuBound = FALSE;
    m_fields.nShadeOffset = kShadeOffset;
    m_fields.dShadeDist = kShadeOffset;
    m_fields.nSingleRowHeight = 0;
    m_strContent = "显示内容";
}

void COrvDrawText::InitSingleText() {
    InitFields();
    m_font.init();
    m_font.SetFontSize(kLabelPoints, TRUE);
}

// What both kinds have; the font, which makes GDI objects, is left to each.
void COrvDrawText::InitFields() {
    m_fields.nBkMode = TRANSPARENT;
    m_fields.crBk = 0xFFFFFF;
    m_fields.crBorder = 0;
    m_fields.nRop2 = R2_COPYPEN;
    m_fields.crText = 0;
    m_fields.nRowDist = 0;
    m_fields.nCharDist = 0;
    m_fields.nRowAlign = 0;
    m_fields.nColAlign = 0;
    m_fields.nTabCountSpace = kTabSpaces;
    m_fields.bDrawBorder = FALSE;
    m_fields.bAutoLinefeed = FALSE;
    m_fields.bAutoClip = FALSE;
    m_fields.bDrawShade = FALSE;
    m_fields.bDrawClearanceShade = FALSE;
    m_fields.bSingleline = TRUE;
    m_rect.Init();
}

// --- accessors

#define ORV_TEXT_FIELD(Type, Get, Set, field)                                                                \
    Type COrvDrawText::Get() const {                                                                         \
        return m_fields.field;                                                                               \
    }                                                                                                        \
    void COrvDrawText::Set(Type value) {                                                                     \
        m_fields.field = value;                                                                              \
    }

ORV_TEXT_FIELD(UINT, LGetBkMode, LSetBkMode, nBkMode)
ORV_TEXT_FIELD(COLORREF, LGetBkColor, LSetBkColor, crBk)
ORV_TEXT_FIELD(COLORREF, LGetBorderColor, LSetBorderColor, crBorder)
ORV_TEXT_FIELD(UINT, LGetRop2, LSetRop2, nRop2)
ORV_TEXT_FIELD(UINT, LGetDrawMode, LSetDrawMode, nDrawMode)
ORV_TEXT_FIELD(COLORREF, LGetTextColor, LSetTextColor, crText)
ORV_TEXT_FIELD(LONG, LGetRowDist, LSetRowDist, nRowDist)
ORV_TEXT_FIELD(LONG, LGetCharDist, LSetCharDist, nCharDist)
ORV_TEXT_FIELD(UINT, LGetRowAlign, LSetRowAlign, nRowAlign)
ORV_TEXT_FIELD(UINT, LGetColAlign, LSetColAlign, nColAlign)
ORV_TEXT_FIELD(UINT, LGetTabCountSpace, LSetTabCountSpace, nTabCountSpace)
ORV_TEXT_FIELD(BOOL, LGetDrawBorder, LSetDrawBorder, bDrawBorder)
ORV_TEXT_FIELD(BOOL, LGetAutoLinefeed, LSetAutoLinefeed, bAutoLinefeed)
ORV_TEXT_FIELD(BOOL, LGetAutoClip, LSetAutoClip, bAutoClip)
ORV_TEXT_FIELD(BOOL, LGetDrawShade, LSetDrawShade, bDrawShade)
ORV_TEXT_FIELD(BOOL, LGetbDrawClearanceShade, LSetDrawClearanceShade, bDrawClearanceShade)
ORV_TEXT_FIELD(BOOL, LGetSingleline, LSetSingleline, bSingleline)
ORV_TEXT_FIELD(BOOL, LGetDrawFontLine, LSetDrawFontLine, bDrawFontLine)
ORV_TEXT_FIELD(BOOL, LGetAutoCacuBound, LSetAutoCacuBound, bAutoCacuBound)
ORV_TEXT_FIELD(int, LGetSingleRowHeight, LSetSingleRowHeight, nSingleRowHeight)

#undef ORV_TEXT_FIELD

COrvFont* COrvDrawText::LGetOrvFont() {
    return &m_font;
}

void COrvDrawText::LSetOrvFont(const COrvFont& font) {
    m_font = font;
}

const CFPRect& COrvDrawText::LGetFPRect() const {
    return m_rect;
}

void COrvDrawText::LSetFPRect(const CFPRect& rect) {
    m_rect = rect;
}

CString COrvDrawText::GetShowContent() const {
    return m_strContent;
}

void COrvDrawText::SetShowContent(CString strContent) {
    m_strContent = strContent;
}

void COrvDrawText::SetShowRect(const CRect& rect) {
    m_rect = CFPRect(rect);
}

// --- the font

void COrvDrawText::SetFontAngle(const FPRECT* pRect) {
    ASSERT(pRect != NULL);
    if (pRect == NULL)
        return;
    m_font.SetFontAngle(wholeDegrees(pRect->angle), FALSE);
    RealiseFont();
}

// Makes the GDI font anew where it is out of date.
void COrvDrawText::RealiseFont() {
    LOGFONT wanted, made;
    m_font.GetLogFontFont(wanted, TRUE);
    constexpr size_t numbers = offsetof(LOGFONT, lfFaceName);
    if (!m_font.GetLogFontFont(made, FALSE) || memcmp(&wanted, &made, numbers) != 0 ||
        strcmp(wanted.lfFaceName, made.lfFaceName) != 0)
        m_font.ReCreateFont();
}

int COrvDrawText::CreateFontFromDialog() {
    return m_font.CreateFontFromDialog();
}

// --- stored form

void COrvDrawText::Serialize(CArchive& ar) {
    CObject::Serialize(ar);
    orv::archiveWhole(*this, ar, [](COrvDrawText& text, CArchive& fields) {
        Fields& f = text.m_fields;
        orv::archiveFields(fields, f.bAutoClip, f.bAutoLinefeed, f.bDrawBorder, f.bDrawClearanceShade, f.crBk,
                           f.crBorder, f.bSingleline, f.nCharDist, f.nColAlign, f.nDrawMode, f.nRop2,
                           f.nRowAlign, f.nRowDist, f.nTabCountSpace, f.crText, f.bDrawFontLine,
                           f.nShadeOffset, f.dShadeDist, text.m_strContent);
        text.m_font.Serialize(fields);
        text.m_rect.Serialize(fields);
    });
}

// --- diagnostics

void COrvDrawText::AssertValid() const {
    CObject::AssertValid();
    m_font.AssertValid();
}

void COrvDrawText::Dump(CDumpContext& dc) const {
    const Fields& f = m_fields;
    CObject::Dump(dc);
    dc << "content = " << m_strContent << "\n";
    m_rect.Dump(dc);
    dc << "\nsingle line = " << f.bSingleline << ", line feed = " << f.bAutoLinefeed
       << ", clip = " << f.bAutoClip << ", auto bound = " << f.bAutoCacuBound
       << ", draw mode = " << f.nDrawMode << "\n";
    dc << "row align = " << f.nRowAlign << ", column align = " << f.nColAlign
       << ", row distance = " << f.nRowDist << ", character distance = " << f.nCharDist
       << ", single row height = " << f.nSingleRowHeight << "\n";
    dc << "text colour = " << f.crText << ", background mode = " << f.nBkMode
       << ", background colour = " << f.crBk << ", border = " << f.bDrawBorder
       << ", border colour = " << f.crBorder << ", shade = " << f.bDrawShade << ", rop2 = " << f.nRop2
       << "\n";
    m_font.Dump(dc);
}
