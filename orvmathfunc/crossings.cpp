#include "orvmathfunc.h"

#include "plane.h"

using namespace orv;

namespace {

struct Segment {
    Vec from, to;
};

inline double size(Vec v) {
    return std::fabs(v.x) + std::fabs(v.y);
}

// See the header: the distance below which only rounding keeps things apart. A sum, not a maximum, because a
// not-a-number spreads through it, and every test below is written to fail on one.
constexpr double hairPart = 2e-15;

struct Outputs {
    double *xa, *ya, *xb, *yb;
};

int answerOne(const Outputs& out, Vec p) {
    putPoint(out.xa, out.ya, p);
    putPoint(out.xb, out.yb, p);
    return 1;
}

int answerTwo(const Outputs& out, Vec first, Vec second) {
    putPoint(out.xa, out.ya, first);
    putPoint(out.xb, out.yb, second);
    return 2;
}

inline double clamped(double value, double low, double high) {
    return value < low ? low : value > high ? high : value;
}

// Yes or no as an int, joined without branches: half of all pairs of segments go either way.
inline int isPart(double t) {
    return int(t >= 0) & int(t <= 1);
}

// Farther from the segment than any touch of segments that are not parallel: quickly told, and true of most.
inline int isFar(double t) {
    return int(t < -1) | int(t > 2);
}

inline double larger(double a, double b) {
    return a > b ? a : b;
}

// The end of a nearest to its crossing with b's line (at t), when that end touches b. slant is the cross
// product of the two directions: what t is off by, times the slant, is the end's distance from b's line times
// b's length.
bool touchingEnd(const Segment& a, double t, const Segment& b, double slant, double hair, Vec& end) {
    const double off = larger(-t, t - 1);
    if (!(off * std::fabs(slant) <= hair * size(b.to - b.from)))
        return false;
    end = t < 0.5 ? a.from : a.to;
    return distanceToSegment(end, b.from, b.to) <= hair;
}

// What is left when the lines do not cross within both segments: an end that touches the other segment. Kept
// out of the function's short way, which would otherwise save registers for this one.
ORV_RARE int answerTouch(const Segment& a, const Segment& b, double t, double u, double slant, double hair,
                         double* x, double* y) {
    Vec p;
    if (!touchingEnd(a, t, b, slant, hair, p) && !touchingEnd(b, u, a, slant, hair, p))
        return 0;
    putPoint(x, y, p);
    return 1;
}

// ---- Boxes ----

struct Box {
    Vec low, high;
};

enum Axis { own, alongX, alongY };

// A place on the segment, and the kind of side that cut it there (own: the segment's own end).
struct Cut {
    double t;
    Axis axis;
};

struct Piece {
    Cut enter{0, own}, leave{1, own};
};

bool cutToSlab(double start, double delta, double low, double high, Axis axis, Piece& piece) {
    if (delta == 0)
        return low <= start && start <= high;
    const double atLow = (low - start) / delta, atHigh = (high - start) / delta;
    const double in = delta > 0 ? atLow : atHigh, out = delta > 0 ? atHigh : atLow;
    if (in > piece.enter.t)
        piece.enter = {in, axis};
    if (out < piece.leave.t)
        piece.leave = {out, axis};
    return piece.enter.t <= piece.leave.t;
}

// Both ends beyond the same side of the range, by more than margin: quickly told, and true of most segments.
inline bool isBeyond(double from, double to, double low, double high, double margin) {
    return (from < low - margin && to < low - margin) || (from > high + margin && to > high + margin);
}

// The piece of the segment inside the box widened by margin; false when there is none.
bool cutToBox(const Segment& s, const Box& box, double margin, Piece& piece) {
    const Vec d = s.to - s.from;
    piece = {};
    return cutToSlab(s.from.x, d.x, box.low.x - margin, box.high.x + margin, alongX, piece) &&
           cutToSlab(s.from.y, d.y, box.low.y - margin, box.high.y + margin, alongY, piece);
}

// The coordinate of the box's side at which a segment of that direction enters (or leaves).
inline double sideOf(double low, double high, double delta, bool entering) {
    return (delta > 0) == entering ? low : high;
}

Vec placeOf(const Segment& s, const Box& box, const Cut& cut, bool entering) {
    const Vec d = s.to - s.from;
    Vec p = along(s.from, s.to, cut.t);
    if (cut.axis == alongX)
        p.x = sideOf(box.low.x, box.high.x, d.x, entering);
    if (cut.axis == alongY)
        p.y = sideOf(box.low.y, box.high.y, d.y, entering);
    return {clamped(p.x, box.low.x, box.high.x), clamped(p.y, box.low.y, box.high.y)};
}

bool isOnBorder(Vec p, const Box& box, double hair) {
    return p.x - box.low.x <= hair || box.high.x - p.x <= hair || p.y - box.low.y <= hair ||
           box.high.y - p.y <= hair;
}

// Whether the piece runs over a single corner: in by one side, out by its neighbour, the corner within a
// hair.
bool isAtCorner(const Segment& s, const Box& box, const Piece& piece, double hair, Vec& corner) {
    if (piece.enter.axis == own || piece.leave.axis == own || piece.enter.axis == piece.leave.axis)
        return false;
    const Vec d = s.to - s.from;
    const bool entersAlongX = piece.enter.axis == alongX;
    corner = {sideOf(box.low.x, box.high.x, d.x, entersAlongX),
              sideOf(box.low.y, box.high.y, d.y, !entersAlongX)};
    return std::fabs(cross(corner - s.from, d)) <= hair * length(d);
}

int answerPiece(const Segment& s, const Box& box, const Piece& piece, double hair, const Outputs& out) {
    const Vec first = placeOf(s, box, piece.enter, true), second = placeOf(s, box, piece.leave, false);
    const bool firstCounts = piece.enter.axis != own || isOnBorder(first, box, hair);
    const bool secondCounts = piece.leave.axis != own || isOnBorder(second, box, hair);
    Vec corner;
    if (firstCounts && secondCounts) {
        if (isAtCorner(s, box, piece, hair, corner))
            return answerOne(out, corner);
        return size(second - first) <= 2 * hair ? answerOne(out, first) : answerTwo(out, first, second);
    }
    return firstCounts ? answerOne(out, first) : secondCounts ? answerOne(out, second) : 0;
}

// ---- Arcs; points are relative to the centre ----

struct Arc {
    Vec centre;
    double radius, start, end;
};

// The point of the segment at t when it lies on the segment and on the arc; an end just off t counts as on
// it.
bool isOnBoth(const Segment& s, double t, const Arc& arc, double hair, Vec& p) {
    if (!isPart(t)) {
        p = t < 0.5 ? s.from : s.to;
        if (!(std::fabs(length(p) - arc.radius) <= hair))
            return false;
    }
    return isOnArc(std::atan2(-p.y, p.x), arc.start, arc.end, 1e-12 + hair / arc.radius);
}

int answerArc(const Segment& s, const Arc& arc, double hair, const Outputs& out) {
    const Vec d = s.to - s.from;
    const double reach = length(d), turn = cross(s.from, d);
    const double height = std::fabs(turn) / reach;
    if (!(height <= arc.radius + hair))
        return 0;
    const double middle = -dot(s.from, d) / (reach * reach);
    const Vec foot{turn / (reach * reach) * d.y, -turn / (reach * reach) * d.x};
    const auto back = [&](Vec p) { return Vec{arc.centre.x + p.x, arc.centre.y + p.y}; };
    if (height >= arc.radius - hair) {
        Vec p = foot;
        return isOnBoth(s, middle, arc, hair, p) ? answerOne(out, back(p)) : 0;
    }
    const double part = std::sqrt((arc.radius - height) * (arc.radius + height)) / reach;
    Vec first{foot.x - part * d.x, foot.y - part * d.y}, second{foot.x + part * d.x, foot.y + part * d.y};
    const bool firstCounts = isOnBoth(s, middle - part, arc, hair, first);
    const bool secondCounts = isOnBoth(s, middle + part, arc, hair, second);
    if (firstCounts && secondCounts)
        return size(second - first) <= 2 * hair ? answerOne(out, back(first))
                                                : answerTwo(out, back(first), back(second));
    return firstCounts ? answerOne(out, back(first)) : secondCounts ? answerOne(out, back(second)) : 0;
}

} // namespace

int ORVMATH_CALL GetCrossPointBetweenLineAndLineInBounds(double x1, double y1, double x2, double y2,
                                                         double x3, double y3, double x4, double y4,
                                                         double* x, double* y) {
    const Vec d1{x2 - x1, y2 - y1}, d2{x4 - x3, y4 - y3}, between{x3 - x1, y3 - y1};
    const double slant = cross(d1, d2);
    const double t = cross(between, d2) / slant, u = cross(between, d1) / slant;
    if (isFar(t) | isFar(u))
        return 0;
    const double hair = hairPart * (size({x1, y1}) + size({x2, y2}) + size({x3, y3}) + size({x4, y4}));
    if (!(std::fabs(slant) > hair * larger(size(d1), size(d2))))
        return 0;
    if (!(isPart(t) & int(t < 1) & isPart(u)))
        return answerTouch({{x1, y1}, {x2, y2}}, {{x3, y3}, {x4, y4}}, t, u, slant, hair, x, y);
    putPoint(x, y, {x1 + t * d1.x, y1 + t * d1.y});
    return 1;
}

int ORVMATH_CALL GetCrossPointBetweenLineAndBox(double x1, double y1, double x2, double y2, double left,
                                                double top, double right, double bottom, double* xa,
                                                double* ya, double* xb, double* yb) {
    const Segment s{{x1, y1}, {x2, y2}};
    const Box box{{left < right ? left : right, top < bottom ? top : bottom},
                  {left < right ? right : left, top < bottom ? bottom : top}};
    const double hair = hairPart * (size(s.from) + size(s.to) + size(box.low) + size(box.high));
    const Vec d = s.to - s.from;
    if (!(size(d) > hair) || isBeyond(s.from.x, s.to.x, box.low.x, box.high.x, hair) ||
        isBeyond(s.from.y, s.to.y, box.low.y, box.high.y, hair))
        return 0;
    const Outputs out{xa, ya, xb, yb};
    Piece piece;
    if (cutToBox(s, box, 0, piece))
        return answerPiece(s, box, piece, hair, out);
    if (!cutToBox(s, box, hair, piece))
        return 0;
    // The segment passes by within a hair: along a side the common piece, otherwise the one point it touches.
    if (d.x == 0 || d.y == 0)
        return answerPiece(s, box, piece, hair, out);
    const Cut middle{(piece.enter.t + piece.leave.t) / 2, own};
    return answerOne(out, placeOf(s, box, middle, true));
}

int ORVMATH_CALL GetCrossPointBetweenLineAndArcInBounds(double x1, double y1, double x2, double y2, double cx,
                                                        double cy, double radius, double startAngle,
                                                        double endAngle, double* xa, double* ya, double* xb,
                                                        double* yb) {
    const Arc arc{{cx, cy}, radius, startAngle, endAngle};
    const Segment s{{x1 - cx, y1 - cy}, {x2 - cx, y2 - cy}};
    const double hair = hairPart * (size({x1, y1}) + size({x2, y2}) + size(arc.centre) + radius);
    if (!(radius > 0) || !(size(s.to - s.from) > hair))
        return 0;
    return answerArc(s, arc, hair, {xa, ya, xb, yb});
}
