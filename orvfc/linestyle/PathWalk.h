#pragma once

// The walk along one straight segment, cut into pieces as long as the pattern says.
//
// Dash is anything with GetLength(nIndex), DrawDash(x1, y1, x2, y2, nIndex) and GetDrawType(), as
// COrvDrawBasicDash has them. A walk always ends: lengths may come from a file, so a length that is negative
// or not a number, or a run of pieces that gets nowhere, ends it with 0.

#include <math.h>

namespace orv {

// Lengths and remainders below this count as nothing.
constexpr double kWalkZero = 0.000001;
// A pattern whose current piece has less than this left takes the piece for finished.
constexpr double kPieceEnd = 0.01;
// Patterns may have gaps of no length, so a few idle pieces are no fault.
constexpr int kMaxIdlePieces = 64;
// More pieces than a segment between two device points can have at one unit each.
constexpr double kMaxSegmentPieces = 1e10;
// Piece numbers start over here instead of overflowing: a multiple of 12, so that patterns of 2, 4 and 6
// phases carry on in step.
constexpr int kPieceNumberLimit = 2147483640;

constexpr int nextPieceNumber(int nIndex) {
    return nIndex >= kPieceNumberLimit - 1 ? 0 : nIndex + 1;
}

class WalkGuard {
public:
    // Whether the walk may take one more whole piece of this length with dLeft still to go.
    bool allows(double dLength, double dLeft) {
        if (!(dLength >= 0.0) || ++m_dPieces > kMaxSegmentPieces)
            return false;
        m_dRun += dLength;
        if (m_dRun < kWalkZero || dLeft - dLength == dLeft)
            return ++m_nIdle <= kMaxIdlePieces;
        m_dRun = 0.0;
        m_nIdle = 0;
        return true;
    }

private:
    double m_dPieces = 0.0;
    double m_dRun = 0.0; // length of the pieces since the walk last got on
    int m_nIdle = 0;
};

// Walks from (dCurX, dCurY), which moves along, to (x, y). Returns 0 as soon as a DrawDash returns 0 or the
// walk cannot go on, else 1. A piece that the segment's end cuts keeps its number; it is drawn and walked for
// draw type 1 alone, otherwise the current point stays at the end of the last whole piece.
template <class Dash>
int walkSegment(Dash& dash, double& dCurX, double& dCurY, int& nIndex, double x, double y) {
    double dLeft = sqrt((y - dCurY) * (y - dCurY) + (x - dCurX) * (x - dCurX));
    if (!isfinite(dLeft))
        return 0;
    WalkGuard guard;
    double dLength = dash.GetLength(nIndex);
    while (dLength <= dLeft) {
        if (!guard.allows(dLength, dLeft))
            return 0;
        const double dFromX = dCurX;
        const double dFromY = dCurY;
        if (dLeft > 0.0) {
            dCurX += (x - dCurX) * dLength / dLeft;
            dCurY += (y - dCurY) * dLength / dLeft;
        }
        if (!dash.DrawDash(dFromX, dFromY, dCurX, dCurY, nIndex))
            return 0;
        dLeft -= dLength;
        nIndex = nextPieceNumber(nIndex);
        dLength = dash.GetLength(nIndex);
    }
    if (isnan(dLength))
        return 0;
    if (dash.GetDrawType() == 1 && dLength - dLeft > kWalkZero) {
        if (!dash.DrawDash(dCurX, dCurY, x, y, nIndex))
            return 0;
        dCurX = x;
        dCurY = y;
    }
    return 1;
}

} // namespace orv
