#include "Fit.h"

#include <algorithm>
#include <cmath>

namespace gallery {
namespace {

constexpr double pi = 3.14159265358979323846;

LONG nearestPixel(double value, int size) {
    return LONG(std::lround(std::clamp(value, 0.0, double(size - 1))));
}

bool operator==(const POINT& a, const POINT& b) {
    return a.x == b.x && a.y == b.y;
}

} // namespace

void Bounds::add(const WktPoint& point) {
    minX = std::min(minX, point.x);
    minY = std::min(minY, point.y);
    maxX = std::max(maxX, point.x);
    maxY = std::max(maxY, point.y);
}

void Bounds::add(const WktLines& lines) {
    for (const WktPoint& point : lines.points) {
        add(point);
    }
}

bool couldBeDegrees(const Bounds& bounds) {
    return bounds.minX >= -180 && bounds.maxX <= 180 && bounds.minY >= -90 && bounds.maxY <= 90;
}

Fit::Fit(const Bounds& bounds, Projection projection, int width, int height, int margin)
    : m_width(width), m_height(height) {
    if (bounds.isEmpty()) {
        return;
    }
    m_midX = (bounds.minX + bounds.maxX) / 2;
    m_midY = (bounds.minY + bounds.maxY) / 2;
    // At the poles the cosine ends; a thousandth keeps the scale finite there.
    const double shorten =
        projection == Projection::degrees ? std::max(std::cos(m_midY * pi / 180), 0.001) : 1.0;
    const int room = std::max(0, std::min({margin, (width - 1) / 2, (height - 1) / 2}));
    const double spanX = (bounds.maxX - bounds.minX) * shorten;
    const double spanY = bounds.maxY - bounds.minY;
    const double infinite = std::numeric_limits<double>::infinity();
    double scale = std::min(spanX > 0 ? (width - 1 - 2 * room) / spanX : infinite,
                            spanY > 0 ? (height - 1 - 2 * room) / spanY : infinite);
    if (!std::isfinite(scale)) {
        scale = 1; // a single point, or a span too small to divide by
    }
    m_scaleX = scale * shorten;
    m_scaleY = scale;
}

POINT Fit::toPixel(const WktPoint& point) const {
    return {nearestPixel((m_width - 1) / 2.0 + (point.x - m_midX) * m_scaleX, m_width),
            nearestPixel((m_height - 1) / 2.0 - (point.y - m_midY) * m_scaleY, m_height)};
}

std::vector<POINT> Fit::toPixels(const WktLines& lines, const WktFigure& figure) const {
    std::vector<POINT> pixels;
    for (size_t i = figure.first; i < figure.first + figure.count; ++i) {
        const POINT pixel = toPixel(lines.points[i]);
        if (pixels.empty() || !(pixel == pixels.back())) {
            pixels.push_back(pixel);
        }
    }
    while (figure.closed && pixels.size() > 1 && pixels.back() == pixels.front()) {
        pixels.pop_back();
    }
    return pixels;
}

} // namespace gallery
