// Measuring and drawing of COrvDrawText.

#include "OrvDrawText.h"

#include <math.h>

#include <orvfc/geometry/Truncate.h>

#include "LineBreak.h"
#include "TextContext.h"

namespace {

enum : UINT { kRowCentre = 1, kRowRight = 2, kColCentre = 6, kColBottom = 7 };

constexpr double kPi = 3.1415926;
// The system fills shapes and makes regions row by row: rectangles larger than this stay without.
constexpr LONG kLargestShape = 1 << 20;

LONG fit(LONGLONG value) {
    return orv::truncToInt(static_cast<double>(value));
}

struct Corners {
    explicit Corners(const CFPRect& rect)
        : points{rect.GetSlopeLeftTop(), rect.GetSlopeLeftBottom(), rect.GetSlopeRightBottom(),
                 rect.GetSlopeRightTop()} {}

    bool isBounded() const {
        const CRect box = bounds();
        return LONGLONG(box.right) - box.left <= kLargestShape &&
               LONGLONG(box.bottom) - box.top <= kLargestShape;
    }
    // On the device as well.
    bool isBoundedOn(const CDC& dc) const {
        Corners onDevice(*this);
        ::LPtoDP(orv::attributeDC(dc), onDevice.points, 4);
        return onDevice.isBounded();
    }
    CRect bounds() const {
        CRect box(points[0], points[0]);
        for (const POINT& p : points)
            box.SetRect(p.x < box.left ? p.x : box.left, p.y < box.top ? p.y : box.top,
                        p.x > box.right ? p.x : box.right, p.y > box.bottom ? p.y : box.bottom);
        return box;
    }

    POINT points[4]; // left-top, left-bottom, right-bottom, right-top
};

std::string_view bytesOf(const CString& text) {
    return orv::drawnText({static_cast<LPCTSTR>(text), static_cast<size_t>(text.GetLength())});
}

} // namespace

// --- measures

double COrvDrawText::Angle() const {
    return isfinite(m_rect.angle) ? m_rect.angle : 0.0;
}

LONG COrvDrawText::Pitch(const CDC& dc) const {
    const TEXTMETRIC metrics = orv::textMetrics(dc);
    return fit(LONGLONG(metrics.tmHeight) + metrics.tmExternalLeading + m_fields.nRowDist);
}

LONG COrvDrawText::Step(LONG nPitch) const {
    return m_fields.nSingleRowHeight > 0 ? m_fields.nSingleRowHeight : nPitch;
}

// The width of one character like the first.
LONG COrvDrawText::LeastWidth(orv::TextMeasurer& measurer, const CString& strText) const {
    if (strText.IsEmpty())
        return 0;
    const auto first = static_cast<signed char>(strText[0]); // lead bytes are negative
    return measurer.extent(first < 13 ? "中" : "a");
}

orv::LineBreaker COrvDrawText::Breaker(orv::TextMeasurer& measurer, const CString& strText, LONG nWidth,
                                       orv::BreakKind kind) const {
    const orv::BreakRules rules = {static_cast<int>(nWidth), m_fields.bSingleline != FALSE,
                                   m_fields.bAutoLinefeed != FALSE, m_fields.bAutoClip != FALSE};
    return orv::LineBreaker(bytesOf(strText), kind, rules,
                            [&measurer](std::string_view text) { return measurer.prefixes(text); });
}

void COrvDrawText::PrepareMeasuring(CDC& dc) {
    dc.SetTextJustification(0, 0);
    dc.SetTextCharacterExtra(m_fields.nCharDist);
    RealiseFont();
    dc.SelectObject(m_font.GetFont());
}

int COrvDrawText::MeasureBlock(CFPRect& rect, const CString& strText, orv::BreakKind kind) {
    CClientDC screen(NULL);
    const orv::SavedDC saved(&screen);
    PrepareMeasuring(screen);
    orv::TextMeasurer measurer(screen);
    LONG width = 0;
    LONGLONG lines = 0;
    if (m_fields.bSingleline) {
        width = measurer.extent(bytesOf(strText));
        lines = 1;
    } else {
        const LONG least = LeastWidth(measurer, strText);
        const LONG room = rect.GetWidth();
        orv::LineBreaker breaker = Breaker(measurer, strText, room < least ? least : room, kind);
        for (orv::TextLine line; breaker.next(line); ++lines)
            if (line.extent > width)
                width = line.extent;
    }
    rect.SetRectWH(rect.left, rect.top, width, fit(lines * Step(Pitch(screen))), rect.angle);
    return TRUE;
}

int COrvDrawText::AutoCacuBound(CDC* pDC, CString strText) {
    if (!orv::isUsable(pDC) || !m_fields.bAutoCacuBound)
        return FALSE;
    return GetAutoRect(m_rect, strText);
}

int COrvDrawText::GetAutoRect(CFPRect& rect, CString strText) {
    return MeasureBlock(rect, strText, orv::BreakKind::runs);
}

int COrvDrawText::GetAutoRect2(CFPRect& rect, CString strText) {
    return MeasureBlock(rect, strText, orv::BreakKind::singleTexts);
}

int COrvDrawText::GetAutoRect(CFPRect& rect) {
    return GetAutoRect(rect, m_strContent);
}

int COrvDrawText::GetAutoRect(CSize& size) {
    CFPRect rect(m_rect);
    GetAutoRect(rect);
    size.SetSize(rect.GetWidth(), rect.GetHeight());
    return TRUE;
}

int COrvDrawText::GetAutoRect(CFPRect& rect, CPoint& point, double angle) {
    CClientDC screen(NULL);
    const orv::SavedDC saved(&screen);
    PrepareMeasuring(screen);
    const LONG width = orv::TextMeasurer(screen).extent(bytesOf(m_strContent));
    const TEXTMETRIC metrics = orv::textMetrics(screen);
    const LONG height = Step(metrics.tmHeight + metrics.tmExternalLeading);
    // Half the text back along the angle, though with the sign of y as if it grew upwards.
    const LONG left = orv::truncToInt(point.x + cos(angle - kPi) * width / 2);
    const LONG top = orv::truncToInt(point.y + sin(angle - kPi) * width / 2);
    rect.SetRectWH(left, top, width, height, angle);
    return TRUE;
}

int COrvDrawText::AddNewRow() {
    CClientDC screen(NULL);
    const orv::SavedDC saved(&screen);
    PrepareMeasuring(screen);
    m_rect.SetRight(fit(LONGLONG(m_rect.right) + Pitch(screen)));
    return TRUE;
}

CString COrvDrawText::GetSingleText(CDC* pDC, CString strText, CSize size, int& count) {
    count = 0;
    if (!orv::isUsable(pDC))
        return CString();
    orv::TextMeasurer measurer(*pDC);
    count = static_cast<int>(Breaker(measurer, strText, size.cx, orv::BreakKind::runs).singleText().count);
    return strText.Left(count);
}

// --- drawing

void COrvDrawText::Draw(CDC* pDC) {
    Draw(pDC, m_strContent);
}

void COrvDrawText::Draw(CDC* pDC, const CString& strText) {
    DrawBlock(pDC, strText, orv::BreakKind::runs);
}

void COrvDrawText::Draw2(CDC* pDC, const CString& strText) {
    DrawBlock(pDC, strText, orv::BreakKind::singleTexts);
}

void COrvDrawText::DrawBlock(CDC* pDC, const CString& strText, orv::BreakKind kind) {
    if (!orv::isUsable(pDC))
        return;
    AutoCacuBound(pDC, strText);
    SetFontAngle(&m_rect);
    const CFPRect before(m_rect);
    const orv::SavedDC saved(pDC);
    PrepareDrawing(*pDC);
    AlignBlock(*pDC, strText, kind);
    if (strText.IsEmpty())
        return; // and the rectangle stays where it was aligned to
    DrawPrepared(*pDC, strText, kind);
    m_rect = before;
}

void COrvDrawText::PrepareDrawing(CDC& dc) {
    PrepareMeasuring(dc);
    dc.SelectStockObject(NULL_BRUSH);
    dc.SetBkMode(m_fields.nBkMode);
    dc.SetBkColor(m_fields.crBk);
    dc.SetTextColor(m_fields.crText);
    dc.SetTextAlign(TA_LEFT | TA_TOP | TA_NOUPDATECP);
    if (m_fields.nRop2 >= R2_BLACK && m_fields.nRop2 <= R2_WHITE)
        dc.SetROP2(m_fields.nRop2);
}

void COrvDrawText::AlignBlock(CDC& dc, const CString& strText, orv::BreakKind kind) {
    if (m_fields.nColAlign != kColCentre && m_fields.nColAlign != kColBottom)
        return;
    CFPRect block(m_rect);
    MeasureBlock(block, strText, kind);
    const LONGLONG height = LONGLONG(block.bottom) - block.top;
    if (m_fields.nColAlign == kColBottom)
        m_rect.SetTop(fit(m_rect.bottom - height));
    else
        m_rect.SetTop(
            fit((LONGLONG(m_rect.top) + m_rect.bottom) / 2 - height / 2 + orv::textMetrics(dc).tmHeight / 2));
}

void COrvDrawText::DrawPrepared(CDC& dc, const CString& strText, orv::BreakKind kind) {
    orv::TextMeasurer measurer(dc);
    const LONG least = LeastWidth(measurer, strText);
    LONG width = m_rect.GetWidth();
    if (width < least) {
        if (m_fields.bAutoClip)
            return;
        width = least;
    }
    const bool frame = m_fields.nDrawMode == 0;
    if (frame && m_fields.nBkMode != TRANSPARENT)
        FillBackground(dc);
    orv::LineBreaker lines = Breaker(measurer, strText, width, kind);
    DrawLines(dc, lines, strText, width);
    if (frame && m_fields.bDrawBorder)
        DrawBorder(dc);
    if (frame && m_fields.bDrawShade)
        DrawShade(dc);
}

void COrvDrawText::DrawLines(CDC& dc, orv::LineBreaker& lines, const CString& strText, LONG nWidth) const {
    const double angle = Angle();
    const LONG pitch = Pitch(dc);
    const LONG stepX = orv::truncToInt(Step(pitch) * sin(angle));
    const LONG stepY = orv::truncToInt(Step(pitch) * cos(angle));
    const LPCTSTR text = strText;
    CPoint origin(m_rect.left, m_rect.top);
    for (orv::TextLine line; lines.next(line);) {
        DrawAligned(dc, text + line.start, static_cast<int>(line.count), fit(LONGLONG(nWidth) - line.extent),
                    origin);
        origin.SetPoint(fit(LONGLONG(origin.x) + stepX), fit(LONGLONG(origin.y) + stepY));
        if (m_fields.bAutoClip && LONGLONG(origin.y) + pitch > m_rect.bottom)
            return;
    }
}

// nSpare: by how much the line is shorter than its room.
void COrvDrawText::DrawAligned(CDC& dc, LPCTSTR pszText, int nCount, LONG nSpare, CPoint origin) const {
    if (nCount == 0)
        return;
    const LONG indent = m_fields.nRowAlign == kRowRight    ? nSpare
                        : m_fields.nRowAlign == kRowCentre ? nSpare / 2
                                                           : 0;
    const double angle = Angle();
    dc.TextOut(fit(LONGLONG(origin.x) + orv::truncToInt(indent * cos(angle))),
               fit(LONGLONG(origin.y) - orv::truncToInt(indent * sin(angle))), pszText, nCount);
}

void COrvDrawText::DrawSingleText(CDC* pDC, CString strText, CRect rc) {
    if (!orv::isUsable(pDC))
        return;
    const orv::SavedDC saved(pDC); // the text alignment may move the current position
    const std::string_view text = bytesOf(strText);
    const LONG extent = orv::TextMeasurer(*pDC).extent(text);
    DrawAligned(*pDC, strText, static_cast<int>(text.size()), fit(LONGLONG(rc.right) - rc.left - extent),
                rc.TopLeft());
}

void COrvDrawText::DrawClueText(CDC* pDC, CRect rect, CString strText) {
    if (!orv::isUsable(pDC))
        return;
    LOGFONT lf;
    m_font.GetLogFontFont(lf, TRUE);
    lf.lfEscapement = 0;
    lf.lfOrientation = 0;
    COrvFont upright;
    upright.SetLogFont(lf, TRUE);
    const orv::SavedDC saved(pDC);
    pDC->SelectObject(upright.GetFont());
    pDC->SetTextJustification(0, 0);
    pDC->SetTextCharacterExtra(m_fields.nCharDist);
    pDC->SetTextAlign(TA_LEFT | TA_TOP | TA_NOUPDATECP);
    pDC->SetBkMode(TRANSPARENT);
    pDC->SetTextColor(::GetSysColor(COLOR_GRAYTEXT));
    const UINT align = m_fields.nRowAlign == kRowRight    ? DT_RIGHT
                       : m_fields.nRowAlign == kRowCentre ? DT_CENTER
                                                          : DT_LEFT;
    const std::string_view text = bytesOf(strText);
    pDC->DrawText(text.data(), static_cast<int>(text.size()), rect,
                  align | DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
}

// --- the frame

int COrvDrawText::SetDCPath(CDC* pDC) {
    if (!orv::isUsable(pDC))
        return FALSE;
    CPoint position(0, 0);
    ::GetCurrentPositionEx(orv::attributeDC(*pDC), &position);
    const Corners corners(m_rect);
    if (!pDC->BeginPath())
        return FALSE;
    pDC->MoveTo(corners.points[0]);
    for (int i = 1; i < 4; ++i)
        pDC->LineTo(corners.points[i]);
    pDC->CloseFigure();
    const BOOL made = pDC->EndPath();
    pDC->MoveTo(position);
    return made;
}

void COrvDrawText::FillBackground(CDC& dc) const {
    const Corners corners(m_rect);
    CBrush brush;
    if (!corners.isBoundedOn(dc) || !brush.CreateSolidBrush(m_fields.crBk))
        return;
    const orv::SavedDC saved(&dc);
    dc.SelectObject(&brush);
    dc.SelectStockObject(NULL_PEN);
    dc.Polygon(corners.points, 4);
}

void COrvDrawText::DrawBorder(CDC& dc) const {
    const Corners corners(m_rect);
    CPen pen;
    if (!corners.isBoundedOn(dc) || !pen.CreatePen(PS_SOLID, 1, m_fields.crBorder))
        return;
    const orv::SavedDC saved(&dc);
    dc.SelectObject(&pen);
    dc.BeginPath();
    dc.MoveTo(corners.points[0]);
    for (int i = 1; i <= 4; ++i)
        dc.LineTo(corners.points[i % 4]);
    dc.EndPath();
    dc.StrokePath();
}

void COrvDrawText::DrawShade(CDC& dc) const {
    const Corners shape(m_rect);
    Corners cast(m_rect);
    for (POINT& p : cast.points)
        p = {fit(LONGLONG(p.x) + m_fields.nShadeOffset), fit(LONGLONG(p.y) + m_fields.nShadeOffset)};
    CRgn covered, shade;
    CBrush brush;
    if (!shape.isBoundedOn(dc) || !shape.isBounded() || !covered.CreatePolygonRgn(shape.points, 4, WINDING) ||
        !shade.CreatePolygonRgn(cast.points, 4, WINDING) ||
        !brush.CreateSolidBrush(::GetSysColor(COLOR_3DDKSHADOW)))
        return;
    const orv::SavedDC saved(&dc);
    if (shade.CombineRgn(&shade, &covered, RGN_DIFF) > NULLREGION)
        dc.FillRgn(&shade, &brush);
}
