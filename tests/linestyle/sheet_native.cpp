#include "sheet.h"
#include "stroke_recorder.h"

#include "support/stroke_text.h"

namespace orv::test {

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
