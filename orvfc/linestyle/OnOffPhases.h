#pragma once

// The four on/off patterns as rows: what each phase draws, how long it is, and what a line colour does to the
// gaps.

#include <afx.h>

namespace orv {

// Geometric pens with flat caps and mitred joins.
constexpr int kGeometric = int{PS_GEOMETRIC} | int{PS_ENDCAP_FLAT} | int{PS_JOIN_MITER};
constexpr int kSolidStyle = kGeometric | PS_SOLID;
constexpr int kInvisibleStyle = kGeometric | PS_NULL;

// A kind is one way of drawing: 0 the dash, 1 the gap, 2 the dot of the longer patterns.
constexpr int kMaxKinds = 3;
constexpr int kMaxPhases = 6;

struct KindDefaults {
    int nWidth;
    COLORREF crColor;
    int nStyle;
};
constexpr KindDefaults kKindDefaults[kMaxKinds] = {
    {1, 0x000000, kSolidStyle},
    {1, 0xFFFFFF, kInvisibleStyle},
    {1, 0x000000, kSolidStyle},
};

// What SetLineProperty makes of the gap's colour. The gap's pen is invisible; the colour is stored all the
// same.
enum class GapColor { Complement, SameAsLine, Unchanged };

struct OnOffRow {
    int nType;
    int nPhases;
    BYTE kindOfPhase[kMaxPhases];
    int nLen[kMaxKinds];
    GapColor gapColor;
    bool bFinishClearsPoints;
};

constexpr OnOffRow kDashRow = {1, 2, {0, 1}, {18, 5}, GapColor::Complement, true};
constexpr OnOffRow kDotRow = {2, 2, {0, 1}, {5, 5}, GapColor::SameAsLine, false};
constexpr OnOffRow kDashDotRow = {3, 4, {0, 1, 2, 1}, {17, 5, 5}, GapColor::Unchanged, false};
constexpr OnOffRow kDashDotDotRow = {4, 6, {0, 1, 2, 1, 2, 1}, {17, 6, 5}, GapColor::Complement, false};

// The phase of piece number nIndex. Negative numbers give a phase below zero in the patterns of four and six
// phases (it draws nothing), but alternate as usual in those of two.
constexpr int phaseOfPiece(const OnOffRow& row, int nIndex) {
    return row.nPhases == 2 ? nIndex & 1 : nIndex % row.nPhases;
}

// The kind that a phase draws, -1 for a phase outside the pattern.
constexpr int kindOfPhase(const OnOffRow& row, int nPhase) {
    return nPhase >= 0 && nPhase < row.nPhases ? row.kindOfPhase[nPhase] : -1;
}

// The kind of the piece that follows a piece of this phase, -1 for a phase outside the pattern.
constexpr int kindAfterPhase(const OnOffRow& row, int nPhase) {
    return kindOfPhase(row, nPhase) < 0 ? -1 : row.kindOfPhase[(nPhase + 1) % row.nPhases];
}

constexpr COLORREF gapColor(GapColor rule, COLORREF crLine, COLORREF crOld) {
    if (rule == GapColor::Complement)
        return 0xFFFFFF - crLine;
    return rule == GapColor::SameAsLine ? crLine : crOld;
}

} // namespace orv
