#include "TextPageUnits.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <orvfc/geometry/Truncate.h>

namespace orv {

double pointsFromPixels(LONG pixels, int dpi) {
    return dpi > 0 ? pixels * 72.0 / dpi : 0.0;
}

LONG pixelsFromPoints(double points, int dpi) {
    return truncToInt(std::round(points * dpi / 72));
}

int wholePoints(double points) {
    return std::max(truncToInt(points), 1);
}

LONG twipsFromPoints(int points) {
    return truncToInt(points * 20.0);
}

// With pi as it is, a hair above the library's own: whole degrees survive the way to radians, and the font's
// way back, which cuts.
double degreesFromRadians(double radians) {
    const double degrees = radians * 180 / std::numbers::pi;
    if (!std::isfinite(degrees))
        return 0.0;
    return std::abs(degrees) <= 360 ? degrees : std::fmod(degrees, 360);
}

double radiansFromDegrees(double degrees) {
    return degrees * std::numbers::pi / 180;
}

} // namespace orv
