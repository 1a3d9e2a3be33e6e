// Lines in a style: the managers against the same GDI calls made bare, against the system's own user-style
// pen, and the growth of the cost with the length.

#include "harness.h"

#include <afxwin.h>

#include <orvfc/linestyle/LineProperBar.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

namespace {

using Polyline = std::vector<POINT>;
using LineWork = std::vector<Polyline>;

constexpr int kSide = 1024; // pixels of the picture

// One line of about that many units, winding outwards in steps of some 8 units.
LineWork spiral(double length) {
    constexpr double pitch = 17;
    Polyline line;
    double turned = 0, walked = 0;
    while (walked < length) {
        const double radius = std::fmod(6 + pitch * turned / 6.2831853, 500);
        line.push_back(
            {LONG(kSide / 2 + radius * std::cos(turned)), LONG(kSide / 2 + radius * std::sin(turned))});
        turned += 8 / (radius + 8);
        walked += 8 * radius / (radius + 8);
    }
    return {line};
}

// Six hundred lines of twelve points each, as on a map.
LineWork map() {
    LineWork lines;
    for (int i = 0; i < 600; ++i) {
        Polyline line;
        double x = (i * 389) % kSide, y = (i * 211) % kSide, heading = i;
        for (int k = 0; k < 12; ++k) {
            line.push_back({LONG(x), LONG(y)});
            heading += std::sin(i + k * 1.7) * 0.6;
            x += 14 * std::cos(heading);
            y += 14 * std::sin(heading);
        }
        lines.push_back(line);
    }
    return lines;
}

class Paper {
public:
    Paper() {
        dc.CreateCompatibleDC(NULL);
        CClientDC screen(NULL);
        bitmap_.CreateCompatibleBitmap(&screen, kSide, kSide);
        old_ = dc.SelectObject(&bitmap_);
    }
    ~Paper() { dc.SelectObject(old_); }
    Paper(const Paper&) = delete;
    Paper& operator=(const Paper&) = delete;

    CDC dc;

private:
    CBitmap bitmap_;
    CBitmap* old_;
};

void buildPath(CDC& dc, const Polyline& line) {
    dc.BeginPath();
    dc.Polyline(line.data(), int(line.size()));
    dc.EndPath();
}

void drawInStyle(CDC& dc, COrvMainDrawManage& manage, const LineWork& lines, int type, int width) {
    for (const Polyline& line : lines) {
        buildPath(dc, line);
        manage.Draw(&dc, type, width, RGB(200, 0, 0));
    }
}

// What each type strokes and skips, in turn.
const std::vector<double>& lengthsOf(int type) {
    static const std::vector<double> lengths[] = {{}, {18, 5}, {5, 5}, {17, 5, 5, 5}, {17, 6, 5, 6, 5, 6}};
    return lengths[type];
}

struct Stroke {
    POINT from, to;
    bool visible;
};

// The strokes of a line, worked out beforehand: the bare loop below only makes the calls.
std::vector<Stroke> strokesOf(const Polyline& line, int type) {
    const std::vector<double>& lengths = lengthsOf(type);
    std::vector<Stroke> strokes;
    size_t piece = 0;
    double left = lengths[0];
    POINT from = line[0];
    for (size_t i = 1; i < line.size(); ++i) {
        double x = line[i - 1].x, y = line[i - 1].y;
        double ahead = std::hypot(line[i].x - x, line[i].y - y);
        for (bool more = true; more;) {
            const double step = std::min(left, ahead);
            if (ahead > 0) {
                x += (line[i].x - x) * step / ahead;
                y += (line[i].y - y) * step / ahead;
            }
            const POINT to = {LONG(x), LONG(y)};
            strokes.push_back({from, to, piece % 2 == 0});
            from = to;
            more = left <= ahead;
            ahead -= step;
            left -= step;
            if (left < 0.01)
                left = lengths[++piece % lengths.size()];
        }
    }
    return strokes;
}

void drawBare(HDC hdc, const LineWork& lines, const std::vector<std::vector<Stroke>>& strokes, int width) {
    for (size_t i = 0; i < lines.size(); ++i) {
        ::BeginPath(hdc);
        ::Polyline(hdc, lines[i].data(), int(lines[i].size()));
        ::EndPath(hdc);
        ::FlattenPath(hdc);
        const int count = ::GetPath(hdc, NULL, NULL, 0);
        std::unique_ptr<POINT[]> points(new POINT[count]);
        std::unique_ptr<BYTE[]> types(new BYTE[count]);
        ::GetPath(hdc, points.get(), types.get(), count);
        for (const Stroke& stroke : strokes[i]) {
            const LOGBRUSH brush = {BS_SOLID, RGB(200, 0, 0), 0};
            const DWORD style =
                PS_GEOMETRIC | PS_ENDCAP_FLAT | PS_JOIN_MITER | (stroke.visible ? PS_SOLID : PS_NULL);
            HPEN pen = ::ExtCreatePen(style, width, &brush, 0, NULL);
            HGDIOBJ old = ::SelectObject(hdc, pen);
            ::MoveToEx(hdc, stroke.from.x, stroke.from.y, NULL);
            ::LineTo(hdc, stroke.to.x, stroke.to.y);
            ::SelectObject(hdc, old);
            ::DeleteObject(pen);
        }
    }
}

void drawWithSystemPen(HDC hdc, const LineWork& lines, int type, int width) {
    std::vector<DWORD> style;
    for (double length : lengthsOf(type))
        style.push_back(DWORD(length));
    const LOGBRUSH brush = {BS_SOLID, RGB(200, 0, 0), 0};
    HPEN pen = ::ExtCreatePen(PS_GEOMETRIC | PS_ENDCAP_FLAT | PS_JOIN_MITER | PS_USERSTYLE, width, &brush,
                              DWORD(style.size()), style.data());
    HGDIOBJ old = ::SelectObject(hdc, pen);
    for (const Polyline& line : lines)
        ::Polyline(hdc, line.data(), int(line.size()));
    ::SelectObject(hdc, old);
    ::DeleteObject(pen);
}

// What all rows share: the paper, the manager and the line work. Made at the first use, when the foundation
// runs.
struct Stage {
    Paper paper;
    COrvMainDrawManage manage{CString()};
    const LineWork spiral45 = spiral(45000), spiral90 = spiral(90000), streets = map();

    static Stage& the() {
        static Stage stage;
        return stage;
    }
};

using Pick = const LineWork Stage::*;

orv::bench::Work inStyle(Pick pick, int type, int width) {
    return [=](int times) {
        Stage& stage = Stage::the();
        while (times--)
            drawInStyle(stage.paper.dc, stage.manage, stage.*pick, type, width);
    };
}

orv::bench::Work bare(Pick pick, int type, int width) {
    auto strokes = std::make_shared<std::vector<std::vector<Stroke>>>();
    return [=](int times) {
        Stage& stage = Stage::the();
        if (strokes->empty())
            for (const Polyline& line : stage.*pick)
                strokes->push_back(strokesOf(line, type));
        while (times--)
            drawBare(stage.paper.dc, stage.*pick, *strokes, width);
    };
}

orv::bench::Work systemPen(Pick pick, int type, int width) {
    return [=](int times) {
        Stage& stage = Stage::the();
        while (times--)
            drawWithSystemPen(stage.paper.dc, stage.*pick, type, width);
    };
}

std::string name(const char* what, int type, int width) {
    return std::string(what) + ", type " + std::to_string(type) + ", width " + std::to_string(width);
}

void addLines(orv::bench::Suite& suite) {
    for (const auto& [what, pick] : {std::pair<const char*, Pick>{"spiral of 45,000", &Stage::spiral45},
                                     {"map of 600 lines", &Stage::streets}})
        for (int width : {1, 3})
            for (int type = 1; type <= 4; ++type)
                suite.add({"lines in a style, against the same calls made bare", name(what, type, width),
                           1.10, inStyle(pick, type, width), bare(pick, type, width)});
    for (int type = 1; type <= 4; ++type)
        suite.add({"lines in a style, 90,000 units against 45,000", name("spiral", type, 1), 2.20,
                   inStyle(&Stage::spiral90, type, 1), inStyle(&Stage::spiral45, type, 1)});
    // The system's pen takes seconds: a few rounds tell a factor of ten.
    for (int width : {1, 3})
        for (int type = 1; type <= 4; ++type)
            suite.add({"lines in a style, against the system's user-style pen",
                       name("spiral of 45,000", type, width), 0.10, inStyle(&Stage::spiral45, type, width),
                       systemPen(&Stage::spiral45, type, width), 3});
}

const orv::bench::Rows rows(addLines);

} // namespace
