#include "PFComboxData.h"

#include <math.h>

#include <algorithm>

#include <orvfc/linestyle/LineProperBar.h>

#include "BrushFigures.h"
#include "RowPaint.h"

namespace {

constexpr int kTrackGauge = 10; // of a railway in a sample

void drawSwatchAndName(CDC* pDC, const CRect& rc, int nState, const LOGBRUSH& brush, const CString& strName) {
    orv::paintBackground(pDC, rc, nState);
    orv::paintSelection(pDC, rc, nState);
    orv::paintSwatch(pDC, orv::swatchOf(rc), brush);
    orv::paintName(pDC, rc, orv::kNameBehindSwatch, strName, nState);
}

// The current path with a pen of the system.
void strokeWithPen(CDC* pDC, int nStyle) {
    CPen pen;
    // Wine and Windows differ in what they make of a style that there is not.
    if (!pen.CreatePen(nStyle >= PS_SOLID && nStyle <= PS_INSIDEFRAME ? nStyle : PS_SOLID, 1, RGB(0, 0, 0)))
        return;
    CPen* pOldPen = pDC->SelectObject(&pen);
    pDC->StrokePath();
    pDC->SelectObject(pOldPen);
}

int barHeight(double dWidth, int nRoom) {
    if (!(dWidth > 1))
        return 1;
    return static_cast<int>(std::min<double>(floor(dWidth + 0.5), std::max(nRoom, 1)));
}

} // namespace

// --- colour

void CCmbColorData::DrawItem(CDC* pDC, const CRect& rc, int bSelected) {
    drawSwatchAndName(pDC, rc, bSelected, {BS_SOLID, m_crColor, 0}, m_strName);
}

void CCmbColorData::Dump(CDumpContext& dc) const {
    dc << "CCmbColorData m_strName = " << m_strName << ", m_crColor = " << m_crColor << "\n";
}

// --- line type

void CCmbLineStyleData::DrawItem(CDC* pDC, const CRect& rc, int bSelected) {
    DrawItem(pDC, rc, bSelected, NULL);
}

void CCmbLineStyleData::DrawItem(CDC* pDC, const CRect& rc, int bSelected, COrvMainDrawManage* pManage) {
    orv::paintBackground(pDC, rc, bSelected);
    orv::paintSelection(pDC, rc, bSelected, ::GetSysColor(COLOR_HIGHLIGHT));
    const int y = (rc.top + rc.bottom) / 2;
    pDC->BeginPath();
    pDC->MoveTo(rc.left, y);
    pDC->LineTo(rc.left + orv::kLineSample, y);
    pDC->EndPath();
    // Width -1: the pattern's own.
    const int nDrawn =
        pManage ? pManage->Draw(pDC, m_nStyle, -1, 0) : DrawSpeciaPath(pDC, m_nStyle, kTrackGauge);
    if (!nDrawn)
        strokeWithPen(pDC, m_nStyle);
    pDC->AbortPath();
    orv::paintName(pDC, rc, orv::kNameBehindLine, m_strName, bSelected);
}

void CCmbLineStyleData::Dump(CDumpContext& dc) const {
    dc << "CCmbLineStyleData m_strName = " << m_strName << ", m_nStyle = " << m_nStyle << "\n";
}

// --- line width

void CCmbLineWidthData::DrawItem(CDC* pDC, const CRect& rc, int bSelected) {
    orv::paintBackground(pDC, rc, bSelected);
    orv::paintSelection(pDC, rc, bSelected);
    const int nHeight = barHeight(m_dWidth, rc.Height() - 4);
    const int nTop = rc.top + (rc.Height() - nHeight) / 2;
    {
        const orv::SavedDC saved(pDC);
        pDC->FillSolidRect(CRect(rc.left + 2, nTop, rc.left + orv::kLineSample, nTop + nHeight),
                           ::GetSysColor(bSelected & ODS_DISABLED ? COLOR_GRAYTEXT : COLOR_WINDOWTEXT));
    }
    orv::paintName(pDC, rc, orv::kNameBehindLine, m_strName, bSelected);
}

void CCmbLineWidthData::Dump(CDumpContext& dc) const {
    dc << "CCmbLineWidthData m_strName = " << m_strName << ", m_dWidth = " << m_dWidth << "\n";
}

// --- brush figure

int CCmbBrushFigureData::CreateBrushByType(LOGBRUSH& brush) const {
    if (m_nType >= 0)
        return orv::brushFigure(m_nType, m_crColor, brush) ? 1 : 0;
    brush = {BS_SOLID, m_crColor, 0};
    return 0;
}

void CCmbBrushFigureData::DrawItem(CDC* pDC, const CRect& rc, int bSelected) {
    LOGBRUSH brush;
    CreateBrushByType(brush);
    drawSwatchAndName(pDC, rc, bSelected, brush, m_strName);
}

void CCmbBrushFigureData::Dump(CDumpContext& dc) const {
    dc << "CCmbBrushFigureData m_strName = " << m_strName << ", m_nType = " << m_nType
       << ", m_crColor = " << m_crColor << "\n";
}

// --- fill type

int CCmbFillTypeData::CreateLogBr(LOGBRUSH& brush) const {
    return orv::brushFigure(m_nFillType, RGB(0, 0, 0), brush) ? 1 : 0;
}

CString CCmbFillTypeData::GetName() const {
    LOGBRUSH brush;
    if (const char* lpszName = orv::brushFigure(m_nFillType, 0, brush))
        return lpszName;
    CString strName;
    strName.Format(_T("自定义填充 %d "), m_nFillType);
    return strName;
}

void CCmbFillTypeData::DrawItem(CDC* pDC, const CRect& rc, int bSelected) {
    orv::paintBackground(pDC, rc, bSelected);
    orv::paintSelection(pDC, rc, bSelected);
    LOGBRUSH brush;
    CreateLogBr(brush);
    orv::paintSwatch(pDC, CRect(rc.left + 2, rc.top + 2, rc.left + orv::kLineSample, rc.bottom - 2), brush);
    orv::paintName(pDC, rc, orv::kNameBehindLine, GetName(), bSelected);
}

void CCmbFillTypeData::Dump(CDumpContext& dc) const {
    dc << "CCmbFillTypeData m_nFillType = " << m_nFillType << "\n";
}
