#pragma once

#include "Wkt.h"

#include <wintypes.h>

#include <limits>
#include <vector>

namespace gallery {

// The box around points, both edges included. Starts empty: minX > maxX.
struct Bounds {
    double minX = std::numeric_limits<double>::infinity();
    double minY = std::numeric_limits<double>::infinity();
    double maxX = -std::numeric_limits<double>::infinity();
    double maxY = -std::numeric_limits<double>::infinity();

    bool isEmpty() const { return minX > maxX; }
    void add(const WktPoint& point);
    void add(const WktLines& lines);
};

// True when every coordinate could be a longitude and a latitude in degrees: within +-180 and +-90.
bool couldBeDegrees(const Bounds& bounds);

enum class Projection {
    plane,   // x and y have the same unit
    degrees, // longitude and latitude: x is shortened by the cosine of the middle latitude (equirectangular)
};

// Lays bounds into a picture with one scale for both axes, centred, y upwards in the world and downwards in
// the picture. Bounds without width or height go to the middle of that axis.
class Fit {
public:
    // margin: pixels kept free on every side; less when the picture is too small for it.
    Fit(const Bounds& bounds, Projection projection, int width, int height, int margin);

    // The pixel, always within the picture, also for a point outside the bounds.
    POINT toPixel(const WktPoint& point) const;

    // The pixels of a figure, without those that repeat their predecessor; of a ring also without a last one
    // that repeats the first. Fewer than two pixels: nothing to draw.
    std::vector<POINT> toPixels(const WktLines& lines, const WktFigure& figure) const;

private:
    int m_width;
    int m_height;
    double m_midX = 0; // world point that lands in the middle of the picture
    double m_midY = 0;
    double m_scaleX = 1; // pixels per world unit
    double m_scaleY = 1;
};

} // namespace gallery
