// Everything here needs a device context: taking its path, and drawing it in a pattern.

#include <afxwin.h>

#include "LineProperBar.h"

namespace {

// The path of pDC, flattened, drawn piece by piece. Whether the walk came to its end is not reported.
void walkPath(CDC* pDC, COrvDrawBasicDash& dash) {
    pDC->FlattenPath();
    COrvGPathData path;
    if (path.GetPathData(pDC) > 0 && !path.m_pPoints)
        return;
    COrvDrawCurve curve(&dash);
    curve.PolyDraw(path.m_pPoints, path.m_pTypes, path.m_nCount);
}

void drawPath(CDC* pDC, COrvDrawBasicDash& dash, int nWidth, COLORREF crColor) {
    if (nWidth < 1)
        dash.SetLinePropertyDefault();
    else
        dash.SetLineProperty(nWidth, crColor);
    // In both cases, so that a width below 1 still reaches the base fields.
    dash.m_hDC = pDC->GetSafeHdc();
    dash.m_nWidth = nWidth;
    dash.m_crColor = crColor;
    walkPath(pDC, dash);
}

int strokeSolid(CDC* pDC, int nWidth, COLORREF crColor) {
    CPen pen;
    if (!pen.CreatePen(PS_SOLID, nWidth, crColor))
        return 0;
    CPen* pOldPen = pDC->SelectObject(&pen);
    pDC->StrokePath();
    if (pOldPen)
        pDC->SelectObject(pOldPen);
    return 1;
}

} // namespace

int COrvGPathData::GetPathData(CDC* pDC) {
    ASSERT(pDC);
    Empty();
    if (!pDC)
        return 0;
    const int nCount = pDC->GetPath(NULL, NULL, 0);
    m_nCount = nCount;
    if (nCount < 1)
        return nCount;
    const BOOL bAllocated = Allocate(nCount);
    m_nCount = bAllocated ? pDC->GetPath(m_pPoints, m_pTypes, nCount) : nCount;
    return m_nCount;
}

int COrvDrawManage::Draw(CDC* pDC, int nType, int nWidth, COLORREF crColor) {
    ASSERT(pDC);
    if (!pDC)
        return 0;
    if (COrvDrawBasicDash* pDash = GetDashFromType(nType)) {
        drawPath(pDC, *pDash, nWidth, crColor);
        return 1;
    }
    return nType == 0 ? strokeSolid(pDC, nWidth, crColor) : 0;
}

int COrvMainDrawManage::Draw(CDC* pDC, int nType, int nWidth, COLORREF crColor) {
    ASSERT(pDC);
    COrvDrawBasicDash* pDash = pDC ? GetLineType(nType) : NULL;
    if (!pDash)
        return 0;
    drawPath(pDC, *pDash, nWidth, crColor);
    return 1;
}

int DrawSpeciaPath(CDC* pDC, int nType, int nWidth) {
    ASSERT(pDC);
    if (!pDC || nType != 101)
        return 0;
    COrvDrawDashRailway railway(pDC->GetSafeHdc());
    railway.m_nGauge = nWidth;
    walkPath(pDC, railway);
    return 1;
}
