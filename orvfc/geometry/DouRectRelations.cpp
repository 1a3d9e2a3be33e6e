#include "planentity.h"

#include <math.h>

#include <orvmathfunc/orvmathfunc.h>

namespace {

using Combine = decltype(&douIntersectRect);

// Combines a and b into out; a and b may be out.
int combine(Combine service, DOURECT& out, const DOURECT* a, const DOURECT* b) {
    ASSERT(a != NULL && b != NULL);
    if (!a || !b)
        return FALSE;
    return service(&out.left, &out.top, &out.right, &out.bottom, a->left, a->top, a->right, a->bottom,
                   b->left, b->top, b->right, b->bottom) != 0;
}

// Keeps the rectangle when the result is empty.
int combineInto(Combine service, CDouRect& rect, const DOURECT* b) {
    DOURECT result{};
    if (!combine(service, result, &rect, b))
        return FALSE;
    rect = result;
    return TRUE;
}

struct Edge {
    CPosition from, to;
};

} // namespace

int CDouRect::IsRectEmpty() const {
    return Width() < orv::zero && Height() < orv::zero;
}

int CDouRect::IsRectNull() const {
    return fabs(left) < orv::zero && fabs(top) < orv::zero && fabs(right) < orv::zero &&
           fabs(bottom) < orv::zero;
}

int CDouRect::IsSame(const DOURECT* r, double tol) const {
    ASSERT(r != NULL);
    return r && fabs(left - r->left) < tol && fabs(top - r->top) < tol && fabs(right - r->right) < tol &&
           fabs(bottom - r->bottom) < tol;
}

int CDouRect::IntersectRect(const DOURECT* a, const DOURECT* b) {
    return combine(douIntersectRect, *this, a, b);
}

int CDouRect::UnionRect(const DOURECT* a, const DOURECT* b) {
    return combine(douUnionRect, *this, a, b);
}

int CDouRect::SubtractRect(const DOURECT* a, const DOURECT* b) {
    return combine(douSubtractRect, *this, a, b);
}

int CDouRect::IntersetcRect(const DOURECT* b) {
    return combineInto(douIntersectRect, *this, b);
}

int CDouRect::UnionRect(const DOURECT* b) {
    return combineInto(douUnionRect, *this, b);
}

int CDouRect::SubtractRect(const DOURECT* b) {
    return combineInto(douSubtractRect, *this, b);
}

CDouRect CDouRect::operator&(const DOURECT& r) const {
    CDouRect result(*this);
    result.IntersectRect(this, &r);
    return result;
}

CDouRect CDouRect::operator|(const DOURECT& r) const {
    CDouRect result(*this);
    result.UnionRect(this, &r);
    return result;
}

int CDouRect::PtInRect(CPosition pt, double tol) const {
    return pt.IsInBox(*this, tol);
}

int CDouRect::IsAllInRect(const CDouRect& r, double tol) const {
    return TopLeft().IsInBox(r, tol) && BottomRight().IsInBox(r, tol);
}

int CDouRect::IsPartInRect(CDouRect r, double tol) const {
    return TopLeft().IsInBox(r, tol) || BottomLeft().IsInBox(r, tol) || BottomRight().IsInBox(r, tol) ||
           TopRight().IsInBox(r, tol);
}

int CDouRect::GetRalationBox(CDouRect r, double tol) const {
    enum { apart = -1, same = 0, inside = 1, around = 2, overlapping = 3 };
    const int topLeftInR = TopLeft().IsInBox(r, tol), itsTopLeftInThis = r.TopLeft().IsInBox(*this, tol);
    if (!topLeftInR && !itsTopLeftInThis)
        return apart;
    if (topLeftInR && BottomRight().IsInBox(r, tol))
        return inside;
    if (itsTopLeftInThis && r.BottomRight().IsInBox(*this, tol))
        return around;
    return IsSame(&r, tol) ? same : overlapping;
}

int CDouRect::IsLineRelationBox(const CPosition& p1, const CPosition& p2, double tol) const {
    double xa, ya, xb, yb;
    if (GetCrossPointBetweenLineAndBox(p1.x, p1.y, p2.x, p2.y, left, top, right, bottom, &xa, &ya, &xb, &yb))
        return 1;
    return p1.IsInBox(*this, tol) || p2.IsInBox(*this, tol);
}

int CDouRect::IsArcRelationBox(const CPosition& centre, const CPosition& start, const CPosition& end,
                               double) const {
    const double radius = centre.GetDistance(start);
    const double first = start.GetAngle(centre), last = end.GetAngle(centre);
    const Edge edges[] = {{TopLeft(), BottomLeft()},
                          {BottomLeft(), BottomRight()},
                          {BottomRight(), TopRight()},
                          {TopRight(), TopLeft()}};
    double xa, ya, xb, yb;
    for (const Edge& e : edges)
        if (GetCrossPointBetweenLineAndArcInBounds(e.from.x, e.from.y, e.to.x, e.to.y, centre.x, centre.y,
                                                   radius, first, last, &xa, &ya, &xb, &yb))
            return 1;
    return 0;
}

int CDouRect::IntersectLine(const CPosition& p1, const CPosition& p2, CPosition* const out) const {
    ASSERT(out != NULL);
    if (!out || IsRectEmpty() || p1.IsSame(p2, orv::zero))
        return 0;
    // Two edges only; asking each of them twice, as the operation is defined, cannot change the answer.
    const Edge edges[] = {{TopLeft(), TopRight()}, {BottomRight(), TopRight()}};
    for (const Edge& e : edges)
        if (GetCrossPointBetweenLineAndLineInBounds(p1.x, p1.y, p2.x, p2.y, e.from.x, e.from.y, e.to.x,
                                                    e.to.y, &out->x, &out->y) == 1)
            return 1;
    return 0;
}
