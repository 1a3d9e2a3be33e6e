#include "RailwayCorners.h"

#include <math.h>
#include <utility>

#include <orvmathfunc/orvmathfunc.h>
#include <orvfc/geometry/Truncate.h>

#include "PathWalk.h"

namespace orv {

namespace {

// A quarter turn as the track has always been drawn with, short of full precision.
constexpr double kQuarterTurn = 1.5707963;

double directionOf(const RailPiece& piece) {
    return GetAngleToXAxis(piece.x1, piece.y1, piece.x2, piece.y2);
}

double directionOf(POINT from, POINT to) {
    return GetAngleToXAxis(from.x, from.y, to.x, to.y);
}

bool same(POINT a, POINT b) {
    return a.x == b.x && a.y == b.y;
}

// The corners half a gauge to either side of (x, y). The angle is measured with y upwards, so the y offset is
// subtracted on the left and added on the right.
RailEnds cornersAt(double x, double y, double dDirection, int nGauge) {
    const double dx = cos(dDirection + kQuarterTurn) * nGauge / 2.0;
    const double dy = sin(dDirection + kQuarterTurn) * nGauge / 2.0;
    return {{truncToInt(x + dx), truncToInt(y - dy)}, {truncToInt(x - dx), truncToInt(y + dy)}};
}

// The angles are compared as they are reported, without folding the difference at a full turn.
bool railsWouldCross(double dDirection, const RailEnds& from, const RailEnds& to) {
    // A corner on top of the start has no direction that could be compared.
    if (same(from.left, to.left) || same(from.left, to.right))
        return false;
    const double dToLeft = directionOf(from.left, to.left);
    const double dToRight = directionOf(from.left, to.right);
    return fabs(dDirection - dToRight) < fabs(dDirection - dToLeft);
}

RailCorners joined(const RailPiece& piece, const RailEnds& from) {
    const double dDirection = directionOf(piece);
    RailEnds to = cornersAt(piece.x2, piece.y2, dDirection, piece.nGauge);
    if (railsWouldCross(dDirection, from, to))
        std::swap(to.left, to.right);
    return {from, to};
}

} // namespace

RailCorners firstRailCorners(const RailPiece& piece) {
    return joined(piece, cornersAt(piece.x1, piece.y1, directionOf(piece), piece.nGauge));
}

RailCorners nextRailCorners(const RailPiece& piece, const RailEnds& from) {
    // A piece without length has no direction to stand across: the track ends where it ended.
    if (GetDistance(piece.x1, piece.y1, piece.x2, piece.y2) < kWalkZero)
        return {from, from};
    return joined(piece, from);
}

} // namespace orv
