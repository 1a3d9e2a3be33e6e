#pragma once

// Where the two rails of a railway piece begin and end.

#include <afx.h>

namespace orv {

// The ends of the left and the right rail. Left and right are as seen along the walk.
struct RailEnds {
    POINT left;
    POINT right;
};

struct RailPiece {
    double x1, y1, x2, y2;
    int nGauge;
};

struct RailCorners {
    RailEnds from;
    RailEnds to;
};

// The corners of a piece that starts a track of its own.
RailCorners firstRailCorners(const RailPiece& piece);

// The corners of a piece that goes on from the corners of the piece before. The far corners are exchanged
// when the other one lies closer to the piece's direction, so that the rails do not cross after a sharp turn.
RailCorners nextRailCorners(const RailPiece& piece, const RailEnds& from);

} // namespace orv
