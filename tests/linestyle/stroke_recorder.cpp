#include "stroke_recorder.h"

#include "sheet.h"
#include "support/stroke_text.h"

namespace orv::test {

std::vector<RecordedStroke> recordedStrokes;
bool recordStrokes = true;
size_t strokeCount = 0;

Sheet::Sheet() : dc_(reinterpret_cast<HDC>(1)) {
    recordedStrokes.clear();
    strokeCount = 0;
}

Sheet::~Sheet() = default;

std::vector<std::string> Sheet::take() {
    std::vector<std::string> seen;
    for (const RecordedStroke& stroke : recordedStrokes)
        if ((stroke.pen.nStyle & 0xF) != PS_NULL)
            seen.push_back(strokeText(
                {stroke.points, stroke.pen.nWidth, stroke.pen.crColor, stroke.filled, stroke.fill}));
    recordedStrokes.clear();
    return seen;
}

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
