#pragma once

// Stands in for the drawing calls where there is no window system.

#include <orvfc/linestyle/Stroke.h>

#include <vector>

namespace orv::test {

struct RecordedStroke {
    StrokePen pen;
    std::vector<POINT> points;
    bool filled;
    COLORREF fill;
};

// Bounded, so that a long walk costs no memory; the count goes on.
constexpr size_t kMaxRecorded = 100000;
extern std::vector<RecordedStroke> recordedStrokes;
extern bool recordStrokes; // off: only counted
extern size_t strokeCount;

} // namespace orv::test
