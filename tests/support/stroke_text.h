#pragma once

// One visible stroke or polygon as a line of text.

#include <afx.h>

#include <stdio.h>
#include <string>
#include <vector>

namespace orv::test {

struct VisibleStroke {
    std::vector<POINT> points;
    int width;
    COLORREF color;
    bool filled;
    COLORREF fill;
};

inline std::string strokeText(const VisibleStroke& stroke) {
    std::string text = stroke.filled ? "block " : "";
    char part[64];
    for (const POINT& point : stroke.points) {
        snprintf(part, sizeof(part), "%d,%d ", int(point.x), int(point.y));
        text += part;
    }
    snprintf(part, sizeof(part), "w%d %06X", stroke.width, unsigned(stroke.color));
    text += part;
    if (stroke.filled) {
        snprintf(part, sizeof(part), " fill %06X", unsigned(stroke.fill));
        text += part;
    }
    return text;
}

} // namespace orv::test
