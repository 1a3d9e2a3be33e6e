#include "benchpeer.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double pi = 3.14159265358979323846;

double turnOf(double angle) {
    angle = std::fmod(angle, 2 * pi);
    return angle < 0 ? angle + 2 * pi : angle;
}

bool empty(double l, double t, double r, double b) {
    return !(l < r && t < b);
}

int writeRect(double* left, double* top, double* right, double* bottom, double l, double t, double r,
              double b) {
    if (empty(l, t, r, b))
        l = t = r = b = 0;
    *left = l;
    *top = t;
    *right = r;
    *bottom = b;
    return l < r;
}

} // namespace

double peerDistance(double x1, double y1, double x2, double y2) {
    return std::sqrt((x2 - x1) * (x2 - x1) + (y2 - y1) * (y2 - y1));
}

double peerAngleToXAxis(double x1, double y1, double x2, double y2) {
    const double angle = std::atan2(y1 - y2, x2 - x1);
    return angle < 0 ? angle + 2 * pi : angle;
}

void peerLineMid(double x1, double y1, double x2, double y2, double* mx, double* my) {
    *mx = (x1 + x2) / 2;
    *my = (y1 + y2) / 2;
}

double peerDistToSegment(double px, double py, double x1, double y1, double x2, double y2) {
    const double dx = x2 - x1, dy = y2 - y1, square = dx * dx + dy * dy;
    const double reach = (px - x1) * dx + (py - y1) * dy;
    if (reach <= 0)
        return peerDistance(px, py, x1, y1);
    if (reach >= square)
        return peerDistance(px, py, x2, y2);
    return std::fabs((px - x1) * dy - (py - y1) * dx) / std::sqrt(square);
}

double peerDistToLine(double px, double py, double x1, double y1, double x2, double y2) {
    const double dx = x2 - x1, dy = y2 - y1;
    return std::fabs((px - x1) * dy - (py - y1) * dx) / std::sqrt(dx * dx + dy * dy);
}

void peerPerpendicular(double px, double py, double x1, double y1, double x2, double y2, double* fx,
                       double* fy) {
    const double dx = x2 - x1, dy = y2 - y1;
    const double t = ((px - x1) * dx + (py - y1) * dy) / (dx * dx + dy * dy);
    *fx = x1 + t * dx;
    *fy = y1 + t * dy;
}

int peerArcAngle(double angle, double startAngle, double endAngle, double tolerance) {
    const double sweep = turnOf(endAngle - startAngle), past = turnOf(angle - startAngle + tolerance);
    return sweep == 0 || past <= sweep + 2 * tolerance;
}

void peerRotateDou(double x, double y, double cx, double cy, double angle, double* rx, double* ry) {
    const double c = std::cos(angle), s = std::sin(angle);
    *rx = cx + (x - cx) * c + (y - cy) * s;
    *ry = cy - (x - cx) * s + (y - cy) * c;
}

void peerRotateInt(int x, int y, int cx, int cy, double angle, int* rx, int* ry) {
    double dx, dy;
    peerRotateDou(x, y, cx, cy, angle, &dx, &dy);
    *rx = static_cast<int>(std::lround(dx));
    *ry = static_cast<int>(std::lround(dy));
}

void peerMirrorDou(double x, double y, double ax, double ay, double bx, double by, double* rx, double* ry) {
    double fx, fy;
    peerPerpendicular(x, y, ax, ay, bx, by, &fx, &fy);
    *rx = 2 * fx - x;
    *ry = 2 * fy - y;
}

void peerMirrorInt(int x, int y, int ax, int ay, int bx, int by, int* rx, int* ry) {
    double dx, dy;
    peerMirrorDou(x, y, ax, ay, bx, by, &dx, &dy);
    *rx = static_cast<int>(std::lround(dx));
    *ry = static_cast<int>(std::lround(dy));
}

int peerBetween(double value, double bound1, double bound2, double tolerance) {
    return std::min(bound1, bound2) - tolerance <= value && value <= std::max(bound1, bound2) + tolerance;
}

int peerBetweenInt(int value, int bound1, int bound2, int tolerance) {
    return std::min(bound1, bound2) - tolerance <= value && value <= std::max(bound1, bound2) + tolerance;
}

int peerIntersect(double* left, double* top, double* right, double* bottom, double al, double at, double ar,
                  double ab, double bl, double bt, double br, double bb) {
    if (empty(al, at, ar, ab) || empty(bl, bt, br, bb))
        return writeRect(left, top, right, bottom, 0, 0, 0, 0);
    return writeRect(left, top, right, bottom, std::max(al, bl), std::max(at, bt), std::min(ar, br),
                     std::min(ab, bb));
}

int peerUnion(double* left, double* top, double* right, double* bottom, double al, double at, double ar,
              double ab, double bl, double bt, double br, double bb) {
    if (empty(al, at, ar, ab))
        return writeRect(left, top, right, bottom, bl, bt, br, bb);
    if (empty(bl, bt, br, bb))
        return writeRect(left, top, right, bottom, al, at, ar, ab);
    return writeRect(left, top, right, bottom, std::min(al, bl), std::min(at, bt), std::max(ar, br),
                     std::max(ab, bb));
}

int peerSubtract(double* left, double* top, double* right, double* bottom, double al, double at, double ar,
                 double ab, double bl, double bt, double br, double bb) {
    if (bt <= at && bb >= ab && bl < ar && br > al) {
        if (bl <= al)
            al = br;
        else if (br >= ar)
            ar = bl;
    } else if (bl <= al && br >= ar && bt < ab && bb > at) {
        if (bt <= at)
            at = bb;
        else if (bb >= ab)
            ab = bt;
    }
    return writeRect(left, top, right, bottom, al, at, ar, ab);
}

int peerCrossLine(double x1, double y1, double x2, double y2, double x3, double y3, double x4, double y4,
                  double* x, double* y) {
    const double dx1 = x2 - x1, dy1 = y2 - y1, dx2 = x4 - x3, dy2 = y4 - y3;
    const double hair = 2e-15 * (std::fabs(x1) + std::fabs(y1) + std::fabs(x2) + std::fabs(y2) +
                                 std::fabs(x3) + std::fabs(y3) + std::fabs(x4) + std::fabs(y4));
    const double slant = dx1 * dy2 - dy1 * dx2;
    const double longer = std::max(std::fabs(dx1) + std::fabs(dy1), std::fabs(dx2) + std::fabs(dy2));
    if (!(std::fabs(slant) > hair * longer))
        return 0;
    const double t = ((x3 - x1) * dy2 - (y3 - y1) * dx2) / slant,
                 u = ((x3 - x1) * dy1 - (y3 - y1) * dx1) / slant;
    if (t >= 0 && t <= 1 && u >= 0 && u <= 1) {
        *x = x1 + t * dx1;
        *y = y1 + t * dy1;
        return 1;
    }
    const double ex = t < 0.5 ? x1 : x2, ey = t < 0.5 ? y1 : y2, fx = u < 0.5 ? x3 : x4,
                 fy = u < 0.5 ? y3 : y4;
    if (peerDistToSegment(ex, ey, x3, y3, x4, y4) <= hair) {
        *x = ex;
        *y = ey;
        return 1;
    }
    if (peerDistToSegment(fx, fy, x1, y1, x2, y2) <= hair) {
        *x = fx;
        *y = fy;
        return 1;
    }
    return 0;
}

// One side after the other, equal points once, in the order along the segment.
int peerCrossBox(double x1, double y1, double x2, double y2, double left, double top, double right,
                 double bottom, double* xa, double* ya, double* xb, double* yb) {
    const double corners[5][2] = {{left, top}, {left, bottom}, {right, bottom}, {right, top}, {left, top}};
    int count = 0;
    for (int i = 0; i < 4; ++i) {
        double x, y;
        if (!peerCrossLine(x1, y1, x2, y2, corners[i][0], corners[i][1], corners[i + 1][0], corners[i + 1][1],
                           &x, &y))
            continue;
        if (count == 1 && peerDistance(x, y, *xa, *ya) > 1e-9) {
            *xb = x;
            *yb = y;
            count = 2;
        } else if (count == 0) {
            *xa = x;
            *ya = y;
            count = 1;
        }
    }
    if (count == 2 && peerDistance(x1, y1, *xa, *ya) > peerDistance(x1, y1, *xb, *yb)) {
        std::swap(*xa, *xb);
        std::swap(*ya, *yb);
    }
    return count;
}

int peerCrossArc(double x1, double y1, double x2, double y2, double cx, double cy, double radius,
                 double startAngle, double endAngle, double* xa, double* ya, double* xb, double* yb) {
    const double dx = x2 - x1, dy = y2 - y1, fx = x1 - cx, fy = y1 - cy;
    const double a = dx * dx + dy * dy, b = fx * dx + fy * dy, c = fx * fx + fy * fy - radius * radius;
    const double inner = b * b - a * c;
    if (inner < 0)
        return 0;
    const double root = std::sqrt(inner), ts[2] = {(-b - root) / a, (-b + root) / a};
    int count = 0;
    for (double t : ts) {
        const double x = x1 + t * dx, y = y1 + t * dy;
        if (t < 0 || t > 1 || !peerArcAngle(std::atan2(cy - y, x - cx), startAngle, endAngle, 1e-12))
            continue;
        (count == 0 ? *xa : *xb) = x;
        (count == 0 ? *ya : *yb) = y;
        ++count;
    }
    return count;
}

void peerPerHalve(double x1, double y1, double x2, double y2, double d1, double d2, double* xa, double* ya,
                  double* xb, double* yb) {
    const double dx = x2 - x1, dy = y2 - y1, reach = std::sqrt(dx * dx + dy * dy);
    const double mx = (x1 + x2) / 2, my = (y1 + y2) / 2;
    *xa = mx + d1 * dy / reach;
    *ya = my - d1 * dx / reach;
    *xb = mx - d2 * dy / reach;
    *yb = my + d2 * dx / reach;
}

double peerDegrees(double radians) {
    return radians * 180 / pi;
}

double peerNearest(double value, int power) {
    const double unit = std::pow(10.0, power);
    return std::round(value / unit) * unit;
}
