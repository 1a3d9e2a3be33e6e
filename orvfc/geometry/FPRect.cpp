#include "FourPointRect.h"

#include "FourPointCore.h"

using Frame = CFPRect;
#include "FourPointMembers.inl"

namespace {

// What asks for no whole units is asked of the twin.
CFPDRect exact(const CFPRect& r) {
    return CFPDRect(r.left, r.top, r.right, r.bottom, r.angle);
}

// Between two sides in any order, or less than tol units beyond them.
int isWithin(LONG value, LONG side1, LONG side2, LONG tol) {
    const double reach = tol > 0 ? tol - 1.0 : tol;
    const int low = orv::truncToInt((side1 < side2 ? side1 : side2) - reach);
    const int high = orv::truncToInt((side1 < side2 ? side2 : side1) + reach);
    return low <= high && BetweenDistanceInt(value, low, high, 0) != 0;
}

} // namespace

CFPRect::CFPRect() : FPRECT{} {}

CFPRect::CFPRect(LONG l, LONG t, LONG r, LONG b, double angle) : FPRECT{l, t, r, b, angle} {}

CFPRect::CFPRect(LONG x1, LONG y1, LONG x2, LONG y2, LONG x3, LONG y3, LONG x4, LONG y4) {
    SetRectFourPoint(x1, y1, x2, y2, x3, y3, x4, y4);
}

CFPRect::CFPRect(const CPoint& lt, const CPoint& lb, const CPoint& rb, const CPoint& rt) {
    SetRectFourPoint(lt, lb, rb, rt);
}

CFPRect::CFPRect(const CRect& r) : FPRECT{r.left, r.top, r.right, r.bottom, 0} {}

CFPRect::CFPRect(const CFPRect& r) = default;

CFPRect::~CFPRect() = default;

CFPRect& CFPRect::operator=(const CFPRect& r) = default;

// Moved by the difference until the point reads back: a move across zero may shift it by a unit against its
// anchor. That settles in four moves, or never.
void orv::putAt(CFPRect& r, Place at, const CPoint& p, double angle) {
    for (int tries = 0; tries < 4; ++tries) {
        const CPoint now = turnedPoint(r, at, angle);
        if (now == p)
            return;
        moveAnchor(r, r.left + (static_cast<double>(p.x) - now.x),
                   r.top + (static_cast<double>(p.y) - now.y));
    }
}

void CFPRect::Zoom(double scale) {
    if (!isfinite(scale))
        return;
    const CPoint centre = GetSlopeCentre();
    orv::setSize(*this, trunc(orv::width(*this) * scale), trunc(orv::height(*this) * scale));
    SetSlopeCentre(centre);
}

int CFPRect::PtInRect(const CPoint& p, LONG tol) const {
    const CPoint back = orv::FourPoint<CFPRect>::turn(p, GetLeftTop(), -orv::slope(*this));
    return isWithin(back.x, left, right, tol) && isWithin(back.y, top, bottom, tol);
}

int CFPRect::PtOnRect(const CPoint& p, LONG tol) const {
    return exact(*this).PtOnRect(CPosition(p), tol);
}

int CFPRect::RectInRect(const CDouRect& r, LONG tol, int mode) const {
    return exact(*this).RectInRect(r, tol, mode);
}

void CFPRect::GetBox(CRect& box) const {
    orv::boxAround(box, {GetSlopeLeftTop(), GetSlopeRightTop(), GetSlopeLeftBottom(), GetSlopeRightBottom()});
}

void CFPRect::Dump(CDumpContext& dc) const {
    CString str;
    str.Format(_T("CFPRect (%d, %d, %d, %d) turned by %.17g"), static_cast<int>(left), static_cast<int>(top),
               static_cast<int>(right), static_cast<int>(bottom), angle);
    dc << str;
}
