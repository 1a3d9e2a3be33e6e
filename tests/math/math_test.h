#pragma once

// The functions' arguments as points.

#include <orvmathfunc/orvmathfunc.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double pi = 3.14159265358979323846;

struct Point {
    double x, y;
    bool operator==(const Point&) const = default;
    Point operator+(Point p) const { return {x + p.x, y + p.y}; }
    Point operator-(Point p) const { return {x - p.x, y - p.y}; }
};

inline std::ostream& operator<<(std::ostream& out, Point p) {
    return out << "(" << p.x << " " << p.y << ")";
}

inline double distance(Point a, Point b) {
    return GetDistance(a.x, a.y, b.x, b.y);
}

inline double direction(Point a, Point b) {
    return GetAngleToXAxis(a.x, a.y, b.x, b.y);
}

inline double toSegment(Point p, Point a, Point b) {
    return GetDistFromPointToLineSegment(p.x, p.y, a.x, a.y, b.x, b.y);
}

inline double toLine(Point p, Point a, Point b) {
    return GetDistFromPointToLinePer(p.x, p.y, a.x, a.y, b.x, b.y);
}

// Outputs that were not written.
constexpr Point untouched = {-77, -77};

struct Crossings {
    int count;
    Point at[2] = {untouched, untouched};
};

inline Crossings crossSegments(Point a, Point b, Point c, Point d) {
    Crossings all;
    all.count = GetCrossPointBetweenLineAndLineInBounds(a.x, a.y, b.x, b.y, c.x, c.y, d.x, d.y, &all.at[0].x,
                                                        &all.at[0].y);
    return all;
}

inline Crossings crossBox(Point a, Point b, Point lt, Point rb) {
    Crossings all;
    all.count = GetCrossPointBetweenLineAndBox(a.x, a.y, b.x, b.y, lt.x, lt.y, rb.x, rb.y, &all.at[0].x,
                                               &all.at[0].y, &all.at[1].x, &all.at[1].y);
    return all;
}

inline Crossings crossArc(Point a, Point b, Point centre, double radius, double start, double end) {
    Crossings all;
    all.count =
        GetCrossPointBetweenLineAndArcInBounds(a.x, a.y, b.x, b.y, centre.x, centre.y, radius, start, end,
                                               &all.at[0].x, &all.at[0].y, &all.at[1].x, &all.at[1].y);
    return all;
}
