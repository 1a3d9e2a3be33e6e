#include "FourPointRect.h"

#include "FourPointCore.h"

// What a turned rectangle is and where it stands; FPDRectStretch.cpp holds how it is dragged to another size,
// FPDRectRelations.cpp what it is to other figures.

using Frame = CFPDRect;
#include "FourPointMembers.inl"

CFPDRect::CFPDRect() : FPDRECT{} {}

CFPDRect::CFPDRect(double l, double t, double r, double b, double angle) : FPDRECT{l, t, r, b, angle} {}

CFPDRect::CFPDRect(double x1, double y1, double x2, double y2, double x3, double y3, double x4, double y4) {
    SetRectFourPoint(x1, y1, x2, y2, x3, y3, x4, y4);
}

CFPDRect::CFPDRect(const CPosition& lt, const CPosition& lb, const CPosition& rb, const CPosition& rt) {
    SetRectFourPoint(lt, lb, rb, rt);
}

CFPDRect::CFPDRect(const CDouRect& r) : FPDRECT{r.left, r.top, r.right, r.bottom, 0} {}

CFPDRect::CFPDRect(const CFPDRect& r) = default;

CFPDRect::~CFPDRect() = default;

CFPDRect& CFPDRect::operator=(const CFPDRect& r) = default;

CFPDRect& CFPDRect::operator=(const CDouRect& r) {
    SetRect(r.left, r.top, r.right, r.bottom, 0);
    return *this;
}

CFPDRect& CFPDRect::operator=(const CRect& r) {
    return *this = CDouRect(r);
}

void CFPDRect::SetRectRectangle(const CDouRect& r) {
    SetRectFourPoint(r.TopLeft(), r.BottomLeft(), r.BottomRight(), r.TopRight());
}

void CFPDRect::SetRectTwoPos(const CPosition& lt, const CPosition& rb) {
    SetRect(lt.x, lt.y, rb.x, rb.y, 0);
}

CDouRect CFPDRect::GetRectangle() const {
    return CDouRect(left, top, right, bottom);
}

void orv::putAt(CFPDRect& r, Place at, const CPosition& p, double angle) {
    const CPosition way = CPosition(at.x * width(r) / 2, at.y * height(r) / 2).Rotate(CPosition(), angle);
    moveAnchor(r, p.x - way.x, p.y - way.y);
}

// The corners and the centre, which the integer class does not place.
#define ORV_MEMBERS(name)                                                                                    \
    void CFPDRect::Position##name(const CPosition& p) {                                                      \
        orv::putAt(*this, orv::place::name, p, 0);                                                           \
    }                                                                                                        \
    void CFPDRect::PositionSlope##name(const CPosition& p) {                                                 \
        SetSlope##name(p);                                                                                   \
    }
ORV_MEMBERS(LeftTop)
ORV_MEMBERS(LeftBottom)
ORV_MEMBERS(RightBottom)
ORV_MEMBERS(RightTop)
ORV_MEMBERS(Centre)
#undef ORV_MEMBERS

void CFPDRect::Dump(CDumpContext& dc) const {
    CString str;
    str.Format(_T("CFPDRect (%.17g, %.17g, %.17g, %.17g) turned by %.17g"), left, top, right, bottom, angle);
    dc << str;
}
