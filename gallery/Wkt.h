#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace gallery {

struct WktPoint {
    double x;
    double y;
};

// A run of WktLines::points that is drawn without lifting the pen.
struct WktFigure {
    size_t first;
    size_t count;
    bool
        closed; // a ring: the text's repeated last point is left out, the figure runs back to its first point
};

// The lines and rings of a whole text, in the order of the text.
struct WktLines {
    std::vector<WktPoint> points;
    std::vector<WktFigure> figures;
};

// Where and why a text was refused. Both numbers count from 1; the column counts bytes, a mark at the start
// of the text (UTF-8 byte order mark) not among them.
struct WktError {
    size_t line = 0;
    size_t column = 0;
    std::string text;
};

// Coordinates beyond this are refused: differences of two of them stay far from the end of the double range.
inline constexpr double wktLargestCoordinate = 1e15;

// Reads well-known text, one geometry a line: LINESTRING, MULTILINESTRING, POLYGON and MULTIPOLYGON give
// figures, POINT is checked and gives none; EMPTY may stand for any list. Keywords in any case. A point has
// two to four numbers, the same count throughout a geometry and, where a Z, M or ZM is written, the count
// that goes with it; the third and fourth are read and not kept. Blank lines are skipped, '#' starts a
// comment, lines may end in CRLF. A line has at least two points; a ring at least four, of which the last
// repeats the first. Takes time in proportion to the text. On failure returns false with error set and lines
// empty.
bool parseWkt(std::string_view text, WktLines& lines, WktError& error);

} // namespace gallery
