#include "FourPointRect.h"

#include "FourPointCore.h"

namespace {

using orv::Place;

// The rectangle's own frame: origin in the anchor, x along the top side.
CPosition ownPoint(const CFPDRect& r, const CPosition& p) {
    const CPosition anchor(r.left, r.top);
    return p.Rotate(anchor, -orv::slope(r)) - anchor;
}

// The two ends that a side of the frame has along one axis of its own.
struct Span {
    double from;
    double to;
};

void setSpans(CFPDRect& r, Span x, Span y) {
    const CPosition anchor(r.left, r.top);
    const CPosition moved = CPosition(r.left + x.from, r.top + y.from).Rotate(anchor, orv::slope(r));
    r.SetRectWH(moved.x, moved.y, x.to - x.from, y.to - y.from, r.angle);
}

// One end dragged to `at`; the other stays, or moves as far the other way.
Span dragged(double extent, int half, double at, bool bothEnds) {
    if (half == 1)
        return {0, extent};
    const double opposite = extent - at;
    if (half == 0)
        return {at, bothEnds ? opposite : extent};
    return {bothEnds ? opposite : 0, at};
}

int stretch(CFPDRect& r, Place handle, const CPosition& p, bool bothEnds) {
    if (!orv::isFinite(p) || !orv::isFinite(r.GetLeftTop()) || !orv::isFinite(r.GetRightBottom()))
        return FALSE;
    const CPosition own = ownPoint(r, p);
    setSpans(r, dragged(orv::width(r), handle.x, own.x, bothEnds),
             dragged(orv::height(r), handle.y, own.y, bothEnds));
    return TRUE;
}

// Moved outwards by d at both ends, whichever of them is the greater.
Span widened(double extent, double d) {
    const double outwards = extent < 0 ? -d : d;
    return {-outwards, extent + outwards};
}

} // namespace

#define ORV_MEMBERS(name)                                                                                    \
    int CFPDRect::ZoomRect##name(const CPosition& p) {                                                       \
        return stretch(*this, orv::place::name, p, false);                                                   \
    }                                                                                                        \
    int CFPDRect::Zoom2Rect##name(const CPosition& p) {                                                      \
        return stretch(*this, orv::place::name, p, true);                                                    \
    }
ORV_FOUR_POINT_HANDLES(ORV_MEMBERS)
#undef ORV_MEMBERS

void CFPDRect::Zoom(double scale) {
    Zoom(GetSlopeCentre(), scale);
}

void CFPDRect::Zoom(const CPosition& centre, double scale) {
    if (!orv::isFinite(centre) || !isfinite(scale))
        return;
    SetRectWH(centre.x + (left - centre.x) * scale, centre.y + (top - centre.y) * scale,
              orv::width(*this) * scale, orv::height(*this) * scale, angle);
}

int CFPDRect::ZoomCentre(const CPosition& from, const CPosition& to) {
    const CPosition centre = GetSlopeCentre();
    const double before = centre.GetDistance(from), after = centre.GetDistance(to);
    if (!(before >= orv::zero) || !(after >= orv::zero) || !isfinite(after / before))
        return FALSE;
    Zoom(centre, after / before);
    return TRUE;
}

int CFPDRect::Offset(const CPosition& p1, const CPosition& p2, const CPosition& side) {
    const double distance = p1.GetDistance(p2);
    if (!(distance >= orv::zero) || !isfinite(distance) || !orv::isFinite(side) || PtOnRect(side, orv::zero))
        return FALSE;
    const double w = orv::width(*this), h = orv::height(*this);
    const double outwards = PtInRect(side, 0) ? -distance : distance;
    if (!(fabs(w) + 2 * outwards > 0) || !(fabs(h) + 2 * outwards > 0))
        return FALSE;
    setSpans(*this, widened(w, outwards), widened(h, outwards));
    return TRUE;
}

void CFPDRect::InflateRect(double d) {
    InflateRect(d, d, d, d);
}

void CFPDRect::InflateRect(double dx, double dy) {
    InflateRect(dx, dy, dx, dy);
}

void CFPDRect::InflateRect(DOUSIZE size) {
    InflateRect(size.cx, size.cy);
}

void CFPDRect::InflateRect(double l, double t, double r, double b) {
    SetRect(left - l, top - t, right + r, bottom + b, angle);
}

void CFPDRect::InflateRect(const DOURECT* r) {
    const CDouRect by(r);
    InflateRect(by.left, by.top, by.right, by.bottom);
}

void CFPDRect::DeflateRect(double d) {
    InflateRect(-d);
}

void CFPDRect::DeflateRect(double dx, double dy) {
    InflateRect(-dx, -dy);
}

void CFPDRect::DeflateRect(DOUSIZE size) {
    DeflateRect(size.cx, size.cy);
}

void CFPDRect::DeflateRect(double l, double t, double r, double b) {
    InflateRect(-l, -t, -r, -b);
}

void CFPDRect::DeflateRect(const DOURECT* r) {
    const CDouRect by(r);
    DeflateRect(by.left, by.top, by.right, by.bottom);
}
