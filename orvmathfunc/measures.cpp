#include "orvmathfunc.h"

#include "plane.h"

#include <charconv>

using namespace orv;

double ORVMATH_CALL GetDistance(double x1, double y1, double x2, double y2) {
    return length({x2 - x1, y2 - y1});
}

void ORVMATH_CALL GetLineMid(double x1, double y1, double x2, double y2, double* mx, double* my) {
    putPoint(mx, my, {x1 * 0.5 + x2 * 0.5, y1 * 0.5 + y2 * 0.5});
}

double ORVMATH_CALL GetDistFromPointToLineSegment(double px, double py, double x1, double y1, double x2,
                                                  double y2) {
    return distanceToSegment({px, py}, {x1, y1}, {x2, y2});
}

double ORVMATH_CALL GetDistFromPointToLinePer(double px, double py, double x1, double y1, double x2,
                                              double y2) {
    const Vec d{x2 - x1, y2 - y1}, w{px - x1, py - y1};
    const double reach = length(d);
    return reach == 0 ? length(w) : std::fabs(cross(w, d)) / reach;
}

void ORVMATH_CALL GetPerpendicularPoint(double px, double py, double x1, double y1, double x2, double y2,
                                        double* fx, double* fy) {
    const Vec d{x2 - x1, y2 - y1};
    const double square = dot(d, d);
    const double t = square == 0 ? 0 : dot({px - x1, py - y1}, d) / square;
    putPoint(fx, fy, {x1 + t * d.x, y1 + t * d.y});
}

void ORVMATH_CALL GetPerHalveLineFromLineDist(double x1, double y1, double x2, double y2, double d1,
                                              double d2, double* xa, double* ya, double* xb, double* yb) {
    const Vec d{x2 - x1, y2 - y1}, middle{x1 * 0.5 + x2 * 0.5, y1 * 0.5 + y2 * 0.5};
    const double reach = length(d);
    // The unit direction a quarter turn counter-clockwise on the screen.
    const Vec side = reach == 0 ? Vec{0, 0} : Vec{d.y / reach, -d.x / reach};
    putPoint(xa, ya, {middle.x + d1 * side.x, middle.y + d1 * side.y});
    putPoint(xb, yb, {middle.x - d2 * side.x, middle.y - d2 * side.y});
}

int ORVMATH_CALL BetweenDistance(double value, double bound1, double bound2, double tolerance) {
    // In just this form a bound that is not-a-number ends up in low or high, and nothing is between.
    const double low = bound1 < bound2 ? bound1 : bound2, high = bound1 < bound2 ? bound2 : bound1;
    return (low - tolerance <= value) & (value <= high + tolerance);
}

int ORVMATH_CALL BetweenDistanceInt(int value, int bound1, int bound2, int tolerance) {
    const bool upwards = bound1 <= bound2;
    const std::int64_t low = upwards ? bound1 : bound2, high = upwards ? bound2 : bound1;
    return low - tolerance <= value && value <= high + tolerance;
}

namespace {

// Powers of ten that double holds exactly; rounding to decimals is exact as far as they reach.
constexpr double exactPowers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                  1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr int exactCount = sizeof exactPowers / sizeof *exactPowers;

// Up to 308. The larger ones are read as text, since pow is off by some digits in some runtimes.
double powerOfTen(int power) {
    if (power < exactCount)
        return exactPowers[power];
    char text[] = "1e000";
    for (int place = 4; place > 1; --place, power /= 10)
        text[place] = static_cast<char>('0' + power % 10);
    double value = 0;
    std::from_chars(text, text + 5, value);
    return value;
}

} // namespace

double ORVMATH_CALL GetNearestValue(double value, int power) {
    constexpr int largestPower = 308;
    constexpr double noFraction = 4503599627370496.0; // 2^52: from here on every double is whole
    if (power < -largestPower)
        return value;
    if (power > largestPower)
        return std::isfinite(value) ? 0 : value;
    const double scale = powerOfTen(power < 0 ? -power : power);
    const double scaled = power < 0 ? value * scale : value / scale;
    if (!(std::fabs(scaled) < noFraction))
        return value;
    const double whole = roundHalfAway(scaled);
    const double nearest = power < 0 ? whole / scale : whole * scale;
    return std::isinf(nearest) ? value : nearest;
}
