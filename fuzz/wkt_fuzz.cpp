// The reader of well-known text, and the fitting of what it read: every pixel lies in the picture, no pixel
// repeats its predecessor.

#include "gallery/Fit.h"
#include "gallery/Wkt.h"

#include <cstdint>
#include <cstdlib>

namespace {

void check(bool good) {
    if (!good) {
        std::abort();
    }
}

void checkPixels(const std::vector<POINT>& pixels, int width, int height) {
    for (size_t i = 0; i < pixels.size(); ++i) {
        check(pixels[i].x >= 0 && pixels[i].x < width && pixels[i].y >= 0 && pixels[i].y < height);
        check(i == 0 || pixels[i].x != pixels[i - 1].x || pixels[i].y != pixels[i - 1].y);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace gallery;
    WktLines lines;
    WktError error;
    if (!parseWkt({reinterpret_cast<const char*>(data), size}, lines, error)) {
        check(lines.points.empty() && lines.figures.empty() && !error.text.empty());
        check(error.line >= 1 && error.line <= size + 1 && error.column >= 1 && error.column <= size + 1);
        return 0;
    }
    Bounds bounds;
    bounds.add(lines);
    size_t points = 0;
    for (Projection projection : {Projection::plane, Projection::degrees}) {
        const Fit fit(bounds, projection, 64, 48, 4);
        for (const WktFigure& figure : lines.figures) {
            check(figure.first <= lines.points.size() && figure.count <= lines.points.size() - figure.first);
            checkPixels(fit.toPixels(lines, figure), 64, 48);
            points += figure.count;
        }
    }
    check(points == 2 * lines.points.size());
    return 0;
}
