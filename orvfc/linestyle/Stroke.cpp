#include "Stroke.h"

namespace orv {

namespace {

// Owns a GDI object and keeps it selected while it lives.
class Selected {
public:
    Selected(HDC hDC, HGDIOBJ hObject)
        : m_hDC(hDC), m_hObject(hObject), m_hOld(hObject ? ::SelectObject(hDC, hObject) : NULL) {}
    ~Selected() {
        if (m_hOld)
            ::SelectObject(m_hDC, m_hOld);
        if (m_hObject)
            ::DeleteObject(m_hObject);
    }
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;

    explicit operator bool() const { return m_hOld != NULL; }

private:
    HDC m_hDC;
    HGDIOBJ m_hObject;
    HGDIOBJ m_hOld;
};

int widthOf(const StrokePen& pen) {
    return pen.nWidth > 0 ? pen.nWidth : 0;
}

HPEN geometricPen(const StrokePen& pen) {
    const LOGBRUSH brush = {BS_SOLID, pen.crColor, 0};
    return ::ExtCreatePen(pen.nStyle, widthOf(pen), &brush, 0, NULL);
}

HPEN plainPen(const StrokePen& pen) {
    return ::CreatePen(pen.nStyle, widthOf(pen), pen.crColor);
}

HPEN railPen(COLORREF crRail) {
    return ::CreatePen(PS_SOLID, 1, crRail);
}

void line(HDC hDC, POINT from, POINT to) {
    ::MoveToEx(hDC, from.x, from.y, NULL);
    ::LineTo(hDC, to.x, to.y);
}

} // namespace

void strokeGeometric(HDC hDC, const StrokePen& pen, POINT from, POINT to) {
    if (!hDC)
        return;
    if (const Selected selected{hDC, geometricPen(pen)})
        line(hDC, from, to);
}

void strokePlain(HDC hDC, const StrokePen& pen, POINT from, POINT to) {
    if (!hDC)
        return;
    if (const Selected selected{hDC, plainPen(pen)})
        line(hDC, from, to);
}

void strokePolyline(HDC hDC, const StrokePen& pen, const POINT* pts, int nCount) {
    if (!hDC)
        return;
    if (const Selected selected{hDC, plainPen(pen)})
        ::Polyline(hDC, pts, nCount);
}

void strokeRails(HDC hDC, COLORREF crRail, COLORREF crFill, const RailCorners& corners, bool bStart) {
    if (!hDC)
        return;
    const Selected pen{hDC, railPen(crRail)};
    const Selected brush{hDC, ::CreateSolidBrush(crFill)};
    if (!pen || !brush)
        return;
    line(hDC, corners.from.left, corners.to.left);
    line(hDC, corners.from.right, corners.to.right);
    if (bStart)
        line(hDC, corners.from.left, corners.from.right);
}

void fillRailBlock(HDC hDC, COLORREF crRail, const RailCorners& corners) {
    if (!hDC)
        return;
    const Selected pen{hDC, railPen(crRail)};
    const Selected brush{hDC, ::CreateSolidBrush(crRail)};
    if (!pen || !brush)
        return;
    const POINT block[] = {corners.from.left, corners.from.right, corners.to.right, corners.to.left,
                           corners.from.left};
    ::Polygon(hDC, block, 5);
}

} // namespace orv
