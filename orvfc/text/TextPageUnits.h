#pragma once

// The units of the text property page: points and degrees before the user, pixels, radians and twips behind.
// What is not a number is 0; what goes beyond the range of a result stops at its ends.

#include <wintypes.h>

namespace orv {

double pointsFromPixels(LONG pixels, int dpi); // 0 where there is no resolution
LONG pixelsFromPoints(double points, int dpi); // to the nearest, halves away from zero
int wholePoints(double points);                // cut toward zero, but at least 1
LONG twipsFromPoints(int points);              // twentieths of a point
double degreesFromRadians(double radians);     // whole turns are left out beyond one
double radiansFromDegrees(double degrees);

} // namespace orv
