#include "stroke_recorder.h"

namespace orv::test {

std::vector<RecordedStroke> recordedStrokes;
bool recordStrokes = true;
size_t strokeCount = 0;

} // namespace orv::test

namespace orv {

namespace {

void record(HDC dc, const StrokePen& pen, const POINT* points, int count, bool filled) {
    if (!dc)
        return;
    ++test::strokeCount;
    if (test::recordStrokes && test::recordedStrokes.size() < test::kMaxRecorded)
        test::recordedStrokes.push_back({pen, {points, points + count}, filled, pen.crColor});
}

void recordLine(HDC dc, const StrokePen& pen, POINT from, POINT to) {
    const POINT points[] = {from, to};
    record(dc, pen, points, 2, false);
}

} // namespace

void strokeGeometric(HDC dc, const StrokePen& pen, POINT from, POINT to) {
    recordLine(dc, pen, from, to);
}

void strokePlain(HDC dc, const StrokePen& pen, POINT from, POINT to) {
    // What the system makes of a style that CreatePen does not know.
    const int style = pen.nStyle > PS_INSIDEFRAME ? int{PS_SOLID} : pen.nStyle;
    recordLine(dc, {style, pen.nWidth, pen.crColor}, from, to);
}

void strokePolyline(HDC dc, const StrokePen& pen, const POINT* pts, int count) {
    record(dc, pen, pts, count, false);
}

void strokeRails(HDC dc, COLORREF rail, COLORREF, const RailCorners& corners, bool start) {
    const StrokePen pen = {PS_SOLID, 1, rail};
    recordLine(dc, pen, corners.from.left, corners.to.left);
    recordLine(dc, pen, corners.from.right, corners.to.right);
    if (start)
        recordLine(dc, pen, corners.from.left, corners.from.right);
}

void fillRailBlock(HDC dc, COLORREF rail, const RailCorners& corners) {
    const POINT block[] = {corners.from.left, corners.from.right, corners.to.right, corners.to.left,
                           corners.from.left};
    record(dc, {PS_SOLID, 1, rail}, block, 5, true);
}

} // namespace orv
