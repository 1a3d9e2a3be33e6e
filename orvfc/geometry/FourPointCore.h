#pragma once

#include <math.h>

#include <numbers>

#include <orvmathfunc/orvmathfunc.h>

#include "FourPointRect.h"
#include "Truncate.h"

// What the two four-point rectangles have in common. All sums are made in double, where those of whole units
// are exact, and pass through fit() on their way into a field.

// The nine named points of a rectangle, for lists of members that differ only in the name.
#define ORV_FOUR_POINT_HANDLES(M)                                                                            \
    M(LeftTop)                                                                                               \
    M(LeftMid) M(LeftBottom) M(BottomMid) M(RightBottom) M(RightMid) M(RightTop) M(TopMid)
#define ORV_FOUR_POINT_PLACES(M) ORV_FOUR_POINT_HANDLES(M) M(Centre)

namespace orv {

// A named point: its way from the left-top corner in halves of width and height.
struct Place {
    int x;
    int y;
};

namespace place {
inline constexpr Place LeftTop{0, 0}, LeftMid{0, 1}, LeftBottom{0, 2}, BottomMid{1, 2}, RightBottom{2, 2},
    RightMid{2, 1}, RightTop{2, 0}, TopMid{1, 0}, Centre{1, 1};
}

// How coordinates are kept and points are turned.
template <class Frame>
struct FourPoint;

template <>
struct FourPoint<CFPDRect> {
    using Number = double;
    using Point = CPosition;
    static double fit(double value) { return value; }
    static CPosition turn(const CPosition& p, const CPosition& c, double angle) { return p.Rotate(c, angle); }
    static CPosition mirror(const CPosition& p, const CPosition& a, const CPosition& b) {
        return p.Mirror(a, b);
    }
};

template <>
struct FourPoint<CFPRect> {
    using Number = LONG;
    using Point = CPoint;
    static LONG fit(double value) { return truncToInt(value); }
    static CPoint turn(const CPoint& p, const CPoint& c, double angle) {
        int x, y;
        PointRotateInt(p.x, p.y, c.x, c.y, angle, &x, &y);
        return CPoint(x, y);
    }
    static CPoint mirror(const CPoint& p, const CPoint& a, const CPoint& b) {
        int x, y;
        PointMirrorInt(p.x, p.y, a.x, a.y, b.x, b.y, &x, &y);
        return CPoint(x, y);
    }
};

template <class Point>
bool isFinite(const Point& p) {
    return isfinite(static_cast<double>(p.x)) && isfinite(static_cast<double>(p.y));
}

template <class Frame>
double width(const Frame& r) {
    return static_cast<double>(r.right) - r.left;
}

template <class Frame>
double height(const Frame& r) {
    return static_cast<double>(r.bottom) - r.top;
}

// The angle that the shape shows.
template <class Frame>
double slope(const Frame& r) {
    return isfinite(r.angle) ? r.angle : 0;
}

// A coordinate between two sides; the halves are added so that no sum leaves the range.
template <class Frame>
auto between(const Frame&, double first, double last, int half) {
    return FourPoint<Frame>::fit(half == 0 ? first : half == 2 ? last : first / 2 + last / 2);
}

template <class Frame>
auto uprightPoint(const Frame& r, Place at) {
    using Point = typename FourPoint<Frame>::Point;
    return Point(between(r, r.left, r.right, at.x), between(r, r.top, r.bottom, at.y));
}

template <class Frame>
auto turnedPoint(const Frame& r, Place at, double angle) {
    const auto anchor = uprightPoint(r, place::LeftTop);
    if (at.x == 0 && at.y == 0)
        return anchor;
    return FourPoint<Frame>::turn(uprightPoint(r, at), anchor, angle);
}

template <class Frame>
auto slopePoint(const Frame& r, Place at) {
    return turnedPoint(r, at, slope(r));
}

template <class Frame>
void setSize(Frame& r, double w, double h) {
    r.right = FourPoint<Frame>::fit(r.left + w);
    r.bottom = FourPoint<Frame>::fit(r.top + h);
}

// To another anchor, keeping the size.
template <class Frame>
void moveAnchor(Frame& r, double x, double y) {
    const double w = width(r), h = height(r);
    r.left = FourPoint<Frame>::fit(x);
    r.top = FourPoint<Frame>::fit(y);
    setSize(r, w, h);
}

// Moves the rectangle so that the point, turned by angle, lies at p.
void putAt(CFPDRect& r, Place at, const CPosition& p, double angle);
void putAt(CFPRect& r, Place at, const CPoint& p, double angle);

// The box around four points.
template <class Box, class Point>
void boxAround(Box& box, const Point (&points)[4]) {
    box.left = box.right = points[0].x;
    box.top = box.bottom = points[0].y;
    for (const Point& p : points) {
        box.left = p.x < box.left ? p.x : box.left;
        box.top = p.y < box.top ? p.y : box.top;
        box.right = p.x > box.right ? p.x : box.right;
        box.bottom = p.y > box.bottom ? p.y : box.bottom;
    }
}

template <class Frame, class Point>
void rotate(Frame& r, const Point& c, double a) {
    if (!isfinite(a) || !isFinite(c))
        return;
    const Point anchor = FourPoint<Frame>::turn(uprightPoint(r, place::LeftTop), c, a);
    r.angle = slope(r) + a;
    moveAnchor(r, anchor.x, anchor.y);
}

// In the image the corners run the other way round, so that another one becomes left-top: the image of
// left-bottom when the top side keeps its sense, that of right-top when it is reversed.
template <class Frame, class Point>
void mirror(Frame& r, const Point& a, const Point& b) {
    if (!isFinite(a) || !isFinite(b) || (a.x == b.x && a.y == b.y))
        return;
    const double turn = 2 * (GetAngleToXAxis(a.x, a.y, b.x, b.y) - slope(r));
    const bool reversed = cos(turn) < -zero; // not below 0: on the diagonal both ways are as good
    const Point corner = slopePoint(r, reversed ? place::RightTop : place::LeftBottom);
    const Point anchor = FourPoint<Frame>::mirror(corner, a, b);
    r.angle = slope(r) + remainder(turn + (reversed ? std::numbers::pi : 0), 2 * std::numbers::pi);
    moveAnchor(r, anchor.x, anchor.y);
}

} // namespace orv
