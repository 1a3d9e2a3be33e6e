#include "orvmathfunc.h"

#include "plane.h"

using namespace orv;

double ORVMATH_CALL GetAngleToXAxis(double x1, double y1, double x2, double y2) {
    // Adding 0 turns a negative zero into a positive one: no vector lies just below the axis by its sign
    // alone.
    const double angle = std::atan2(y1 - y2 + 0.0, x2 - x1 + 0.0);
    if (!(angle < 0))
        return angle;
    const double wrapped = angle + wholeTurn;
    return wrapped < wholeTurn ? wrapped : 0; // a direction a hair below the axis rounds up to the whole turn
}

double ORVMATH_CALL ConvertFromRadianToAngle(double radians) {
    return radians * (180 / pi);
}

int ORVMATH_CALL IsArcAngleInBounds(double angle, double startAngle, double endAngle, double tolerance) {
    return isOnArc(angle, startAngle, endAngle, tolerance);
}

namespace {

inline Vec turned(Vec p, Vec centre, double angle) {
    const Vec d = p - centre;
    const double c = std::cos(angle), s = std::sin(angle);
    return {centre.x + d.x * c + d.y * s, centre.y - d.x * s + d.y * c};
}

inline Vec mirrored(Vec p, Vec a, Vec b) {
    const Vec d = b - a;
    const double square = dot(d, d);
    if (square == 0)
        return p;
    const double twice = 2 * cross(p - a, d) / square;
    return {p.x - twice * d.y, p.y + twice * d.x};
}

inline void putRounded(int* x, int* y, Vec p) {
    put(x, roundToInt(p.x));
    put(y, roundToInt(p.y));
}

inline Vec fromInts(int x, int y) {
    return {static_cast<double>(x), static_cast<double>(y)};
}

} // namespace

void ORVMATH_CALL PointRotateDou(double x, double y, double cx, double cy, double angle, double* rx,
                                 double* ry) {
    putPoint(rx, ry, turned({x, y}, {cx, cy}, angle));
}

void ORVMATH_CALL PointRotateInt(int x, int y, int cx, int cy, double angle, int* rx, int* ry) {
    putRounded(rx, ry, turned(fromInts(x, y), fromInts(cx, cy), angle));
}

void ORVMATH_CALL PointMirrorDou(double x, double y, double ax, double ay, double bx, double by, double* rx,
                                 double* ry) {
    putPoint(rx, ry, mirrored({x, y}, {ax, ay}, {bx, by}));
}

void ORVMATH_CALL PointMirrorInt(int x, int y, int ax, int ay, int bx, int by, int* rx, int* ry) {
    putRounded(rx, ry, mirrored(fromInts(x, y), fromInts(ax, ay), fromInts(bx, by)));
}
