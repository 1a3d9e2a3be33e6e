#pragma once

/*
 * Plane geometry as 22 plain functions, callable from C. The library keeps no state and may be called from
 * any thread.
 *
 * The frame is the screen: x grows to the right, y grows downwards. Angles are radians, counter-clockwise as
 * seen on the screen: from the positive x axis towards negative y. The direction from (x1, y1) to (x2, y2) is
 * atan2(y1 - y2, x2 - x1), and the point at distance d in direction a from (cx, cy) is
 * (cx + d cos a, cy - d sin a). Pi is used at full precision.
 *
 * What holds for every function:
 * - Output pointers come last (first for the three rectangle functions), x before y. An output pointer may be
 *   null: that value is not written. Outputs may be the very variables whose values went in.
 * - Every value is accepted. A not-a-number among the arguments makes a distance, angle or point not-a-number
 *   and a yes-or-no answer 0. Infinities follow the arithmetic (infinite bounds and rectangles work); nothing
 *   crosses at infinite coordinates.
 * - Lengths between 1e-150 and 1e150 are measured to full precision; beyond these the squares leave the range
 *   of double, and the answer is 0 or infinite.
 * - All geometry works on differences, so that a figure far from the origin is treated as one at the origin.
 *
 * The three crossing functions (GetCrossPoint...) close gaps that only rounding has made: a "hair" is 2e-15
 * of the sum of the absolute values of the given coordinates and the radius. Things no further apart than a
 * hair touch, and touching counts as crossing. A segment no longer than a hair has no direction and crosses
 * nothing. When nothing is found no output is written.
 */

#if !defined(_WIN32)
#define ORVMATH_API
#define ORVMATH_CALL
#elif defined(ORVMATH_BUILD)
#define ORVMATH_API __declspec(dllexport)
#define ORVMATH_CALL __cdecl
#else
#define ORVMATH_API __declspec(dllimport)
#define ORVMATH_CALL __cdecl
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Distances, directions, feet ---- */

/* Distance between two points. */
ORVMATH_API double ORVMATH_CALL GetDistance(double x1, double y1, double x2, double y2);

/*
 * Direction of the vector from point 1 to point 2, in the half-open range [0, 2 pi): right is 0, up is pi/2,
 * down is 3 pi/2. A vector of no length gives 0.
 */
ORVMATH_API double ORVMATH_CALL GetAngleToXAxis(double x1, double y1, double x2, double y2);

/* The point half-way between the two; never overflows. */
ORVMATH_API void ORVMATH_CALL GetLineMid(double x1, double y1, double x2, double y2, double* mx, double* my);

/* Shortest distance from (px, py) to the segment, its ends included. No length: distance to that point. */
ORVMATH_API double ORVMATH_CALL GetDistFromPointToLineSegment(double px, double py, double x1, double y1,
                                                              double x2, double y2);

/* Distance from (px, py) to the unbounded line through the two points. Equal points: distance to that point.
 */
ORVMATH_API double ORVMATH_CALL GetDistFromPointToLinePer(double px, double py, double x1, double y1,
                                                          double x2, double y2);

/* Foot of the perpendicular from (px, py) on the unbounded line. Equal points: the foot is (x1, y1). */
ORVMATH_API void ORVMATH_CALL GetPerpendicularPoint(double px, double py, double x1, double y1, double x2,
                                                    double y2, double* fx, double* fy);

/*
 * Two points on the perpendicular through the middle of the segment: (xa, ya) lies d1 from the middle on the
 * counter-clockwise side as seen on the screen (above a segment that runs to the right), (xb, yb) lies d2
 * from it on the other side. A negative distance changes the side. A segment of no length has no sides: both
 * points are its middle.
 */
ORVMATH_API void ORVMATH_CALL GetPerHalveLineFromLineDist(double x1, double y1, double x2, double y2,
                                                          double d1, double d2, double* xa, double* ya,
                                                          double* xb, double* yb);

/* ---- Angles and bounds ---- */

/* Radians to degrees. */
ORVMATH_API double ORVMATH_CALL ConvertFromRadianToAngle(double radians);

/*
 * Non-zero when the direction lies on the arc that runs counter-clockwise from startAngle to endAngle, both
 * bounds included and moved outwards by tolerance (inwards when it is negative). Any number of whole turns
 * may be added to any of the angles; an end below the start wraps through 0. Bounds that are the same
 * direction (within 1e-12) mean the whole circle, as for the system's own Arc.
 */
ORVMATH_API int ORVMATH_CALL IsArcAngleInBounds(double angle, double startAngle, double endAngle,
                                                double tolerance);

/*
 * Non-zero when value lies between the two bounds, given in either order; the bounds belong to the range and
 * are moved outwards by tolerance (inwards when it is negative).
 */
ORVMATH_API int ORVMATH_CALL BetweenDistance(double value, double bound1, double bound2, double tolerance);
ORVMATH_API int ORVMATH_CALL BetweenDistanceInt(int value, int bound1, int bound2, int tolerance);

/*
 * The multiple of 10 to the power given that is nearest to value: power -2 keeps two decimals, power 3 rounds
 * to thousands. Halves go away from zero; what is a half is judged on value / 10^power as computed. A value
 * that has no digits below that place, is infinite or not-a-number comes back unchanged, as does one whose
 * nearest multiple is beyond the range of double, and every value for powers below -308.
 */
ORVMATH_API double ORVMATH_CALL GetNearestValue(double value, int power);

/* ---- Turning and mirroring ----
 * The Int variants compute in double and round to the nearest whole number, halves away from zero; results
 * beyond the range of int stop at its ends, and not-a-number (a turn by an infinite angle) gives 0.
 */

/* (x, y) turned about (cx, cy) by angle radians, counter-clockwise as seen on the screen. */
ORVMATH_API void ORVMATH_CALL PointRotateDou(double x, double y, double cx, double cy, double angle,
                                             double* rx, double* ry);
ORVMATH_API void ORVMATH_CALL PointRotateInt(int x, int y, int cx, int cy, double angle, int* rx, int* ry);

/* Reflection of (x, y) in the line through a and b. When a and b are one point, (x, y) itself. */
ORVMATH_API void ORVMATH_CALL PointMirrorDou(double x, double y, double ax, double ay, double bx, double by,
                                             double* rx, double* ry);
ORVMATH_API void ORVMATH_CALL PointMirrorInt(int x, int y, int ax, int ay, int bx, int by, int* rx, int* ry);

/* ---- Rectangles ----
 * Rectangles are taken as they stand: one is empty unless left < right and top < bottom, so a rectangle
 * without width or height, with exchanged sides or with a not-a-number is empty. An empty result is written
 * as four zeros and answered with 0; any other result with 1. Compare the system's own IntersectRect,
 * UnionRect and SubtractRect.
 */

/* What a and b have in common. Rectangles that only touch have nothing in common. */
ORVMATH_API int ORVMATH_CALL douIntersectRect(double* left, double* top, double* right, double* bottom,
                                              double aLeft, double aTop, double aRight, double aBottom,
                                              double bLeft, double bTop, double bRight, double bBottom);

/* The smallest rectangle that holds a and b. An empty one holds nothing: the result is then the other. */
ORVMATH_API int ORVMATH_CALL douUnionRect(double* left, double* top, double* right, double* bottom,
                                          double aLeft, double aTop, double aRight, double aBottom,
                                          double bLeft, double bTop, double bRight, double bBottom);

/*
 * a less b where the rest is a rectangle, that is, where b covers one whole side of a or all of it. Where b
 * cuts out a corner, a hole or a band through the middle, or misses a, the result is a.
 */
ORVMATH_API int ORVMATH_CALL douSubtractRect(double* left, double* top, double* right, double* bottom,
                                             double aLeft, double aTop, double aRight, double aBottom,
                                             double bLeft, double bTop, double bRight, double bBottom);

/* ---- Crossings ---- */

/*
 * 1 when segment 1 (x1, y1)-(x2, y2) and segment 2 (x3, y3)-(x4, y4) cross or touch, ends included, with the
 * point in (x, y); otherwise 0. Parallel segments, also those that overlap or meet end to end, have no single
 * crossing point: 0. Segments count as parallel when the shorter one's ends differ by no more than a hair in
 * their distance from the other's line.
 */
ORVMATH_API int ORVMATH_CALL GetCrossPointBetweenLineAndLineInBounds(double x1, double y1, double x2,
                                                                     double y2, double x3, double y3,
                                                                     double x4, double y4, double* x,
                                                                     double* y);

/*
 * Number of points (0 to 2) in which the segment meets the border of the box, in the order from (x1, y1) to
 * (x2, y2). The sides of the box may be given in either order; a box without width or height is a line or a
 * point. Passing through (or by, within a hair) a single corner is one point. An end that lies on the border
 * is a point, an end inside is none. Of a segment that runs along a side the two ends of the common piece are
 * given. When there is only one point, (xb, yb) repeats it.
 */
ORVMATH_API int ORVMATH_CALL GetCrossPointBetweenLineAndBox(double x1, double y1, double x2, double y2,
                                                            double left, double top, double right,
                                                            double bottom, double* xa, double* ya, double* xb,
                                                            double* yb);

/*
 * Number of points (0 to 2) in which the segment meets the arc, in the order from (x1, y1) to (x2, y2). The
 * arc runs counter-clockwise as seen on the screen from startAngle to endAngle, both ends included; equal
 * angles are the whole circle (see IsArcAngleInBounds). Touching the circle is one point. A radius that is
 * not above 0 has no arc: 0. When there is only one point, (xb, yb) repeats it.
 */
ORVMATH_API int ORVMATH_CALL GetCrossPointBetweenLineAndArcInBounds(double x1, double y1, double x2,
                                                                    double y2, double cx, double cy,
                                                                    double radius, double startAngle,
                                                                    double endAngle, double* xa, double* ya,
                                                                    double* xb, double* yb);

#ifdef __cplusplus
}
#endif
