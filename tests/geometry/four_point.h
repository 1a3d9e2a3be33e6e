#pragma once

// What the tests of both four-point rectangles share: the named points and where they must lie.

#include <cmath>
#include <ostream>

#include <orvfc/geometry/FourPointRect.h>

#include "printing.h"

namespace orv::test {

constexpr double pi = 3.14159265358979323846;
constexpr double degree = pi / 180;
constexpr double angles[] = {0, 30 * degree, 90 * degree, 200 * degree};

template <class Frame>
struct Types;

template <>
struct Types<CFPDRect> {
    using Number = double;
    using Point = CPosition;
    static constexpr double rounding = 1e-9;
};

template <>
struct Types<CFPRect> {
    using Number = LONG;
    using Point = CPoint;
    static constexpr double rounding = 1.42; // halves cut from both parts of a middle, then both rounded
};

template <class Frame>
struct Handle {
    using Point = typename Types<Frame>::Point;
    const char* name;
    int x, y; // halves of width and height from the left-top corner
    Point (Frame::*upright)() const;
    Point (Frame::*slope)() const;
    void (Frame::*setSlope)(const Point&);
};

#define HANDLE(x, y, name)                                                                                   \
    { #name, x, y, &Frame::Get##name, &Frame::GetSlope##name, &Frame::SetSlope##name }
template <class Frame>
const Handle<Frame> handles[] = {
    HANDLE(0, 0, LeftTop),  HANDLE(0, 1, LeftMid),  HANDLE(0, 2, LeftBottom),
    HANDLE(1, 0, TopMid),   HANDLE(1, 1, Centre),   HANDLE(1, 2, BottomMid),
    HANDLE(2, 0, RightTop), HANDLE(2, 1, RightMid), HANDLE(2, 2, RightBottom),
};
#undef HANDLE

// The named point of the turned shape, from first principles.
template <class Frame>
CPosition expectedAt(const Frame& r, double x, double y) {
    const double along = x * (static_cast<double>(r.right) - r.left) / 2;
    const double down = y * (static_cast<double>(r.bottom) - r.top) / 2;
    return CPosition(r.left + along * cos(r.angle) + down * sin(r.angle),
                     r.top - along * sin(r.angle) + down * cos(r.angle));
}

inline double apart(const CPosition& a, const CPosition& b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

template <class Frame>
Ltrb sides(const Frame& r) {
    return Ltrb(r.left, r.top, r.right, r.bottom);
}

} // namespace orv::test

inline std::ostream& operator<<(std::ostream& out, const CFPDRect& r) {
    return out << orv::test::sides(r) << " at " << r.angle / orv::test::degree << " degrees";
}

inline std::ostream& operator<<(std::ostream& out, const CFPRect& r) {
    return out << orv::test::sides(r) << " at " << r.angle / orv::test::degree << " degrees";
}
