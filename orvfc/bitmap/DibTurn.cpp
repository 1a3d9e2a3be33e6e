#include "DibTurn.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace orv {
namespace {

int clampToInt(double value, int least, int most) {
    if (!(value > least))
        return least;
    return value < most ? int(value) : most;
}

int clampIndex(double value, int size) {
    return clampToInt(value, 0, size - 1);
}

} // namespace

DibVector turned(DibVector v, double angle) {
    const double c = std::cos(angle), s = std::sin(angle);
    return {v.x * c + v.y * s, v.y * c - v.x * s};
}

DibTurn::DibTurn(DibVector corner, DibVector across, DibVector down, int sourceWidth, int sourceHeight)
    : across_(), down_() {
    const double area = across.x * down.y - across.y * down.x;
    const auto axis = [&](double perX, double perY, int size) {
        return Axis{perX, perY, -(corner.x * perX + corner.y * perY), double(size)};
    };
    across_ = axis(sourceWidth * down.y / area, -sourceWidth * down.x / area, sourceWidth);
    down_ = axis(-sourceHeight * across.y / area, sourceHeight * across.x / area, sourceHeight);
    drawable_ = true;
    for (double value : {across_.perX, across_.perY, across_.start, down_.perX, down_.perY, down_.start})
        drawable_ = drawable_ && std::isfinite(value);
}

// Cuts [from, to] to the part of row y where the coordinate lies in the source, give or take a pixel.
void DibTurn::Axis::narrow(int y, double& from, double& to) const {
    if (perX == 0) {
        if (!covers(0, y))
            to = from - 1;
        return;
    }
    const double base = perY * (y + 0.5) + start;
    double enter = -base / perX - 0.5, leave = (size - base) / perX - 0.5;
    if (enter > leave)
        std::swap(enter, leave);
    from = std::max(from, enter - 1);
    to = std::min(to, leave + 1);
}

bool DibTurn::span(int y, int left, int right, int& first, int& last) const {
    double from = left, to = right - 1.0;
    across_.narrow(y, from, to);
    down_.narrow(y, from, to);
    if (!(from <= to))
        return false;
    first = clampToInt(from, left, right - 1);
    last = clampToInt(to + 1, left, right - 1) + 1;
    const auto covered = [&](int x) { return across_.covers(x, y) && down_.covers(x, y); };
    while (first < last && !covered(first))
        ++first;
    while (first < last && !covered(last - 1))
        --last;
    return first < last;
}

void DibTurn::copy(const DibRows& source, int y, int first, int last, BYTE* row, int origin) const {
    for (int x = first; x < last; ++x) {
        const int sx = clampIndex(across_.at(x, y), source.width);
        const int sy = clampIndex(down_.at(x, y), source.height);
        setPixel(row, x - origin, source.bitCount, getPixel(source.row(sy), sx, source.bitCount));
    }
}

bool turnedBox(int width, int height, double angle, DibBox& box) {
    if (!std::isfinite(angle))
        return false;
    constexpr double sliver = 0.01;
    const DibVector across = turned({double(width), 0}, angle), down = turned({0, double(height)}, angle);
    const double boxWidth = std::ceil(std::fabs(across.x) + std::fabs(down.x) - sliver);
    const double boxHeight = std::ceil(std::fabs(across.y) + std::fabs(down.y) - sliver);
    if (boxWidth > INT_MAX || boxHeight > INT_MAX)
        return false;
    box.width = std::max(1, int(boxWidth));
    box.height = std::max(1, int(boxHeight));
    box.corner = {(box.width - across.x - down.x) / 2, (box.height - across.y - down.y) / 2};
    return true;
}

} // namespace orv
