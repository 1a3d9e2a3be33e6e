#include "SheetStyle.h"
#include "Sheets.h"

#include "Fit.h"
#include "LineStyles.h"
#include "WktNames.h"

#include <algorithm>
#include <cmath>
#include <optional>

// The railway of the sample map with the names of its stations, each across the line where it stands.

namespace gallery {
namespace {

constexpr int width = 1280;
constexpr int height = 1500;
constexpr int margin = 56;
constexpr WORD sampleType = 10; // RT_RCDATA
constexpr int gauge = 7;
constexpr int nameHeight = 18;
constexpr int dotRadius = 4;
constexpr int trackRoom = 7; // kept free on both sides of the track

constexpr COLORREF leaderColor = RGB(168, 168, 176);
constexpr COLORREF coastColor = RGB(120, 160, 190);
constexpr COLORREF riverColor = RGB(170, 205, 228);

std::string_view sample(const char* name) {
    HRSRC found = ::FindResourceA(NULL, name, MAKEINTRESOURCEA(sampleType));
    HGLOBAL loaded = found != NULL ? ::LoadResource(NULL, found) : NULL;
    if (loaded == NULL)
        return {};
    return {static_cast<const char*>(::LockResource(loaded)), ::SizeofResource(NULL, found)};
}

WktLines linesOf(const char* name) {
    WktLines lines;
    WktError error;
    parseWkt(sample(name), lines, error);
    return lines;
}

CString ansi(std::string_view utf8) {
    wchar_t wide[64];
    char bytes[128];
    const int units = ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), int(utf8.size()), wide, 64);
    const int count = ::WideCharToMultiByte(CP_ACP, 0, wide, units, bytes, sizeof(bytes), NULL, NULL);
    return CString(bytes, count);
}

class StationSheet {
public:
    explicit StationSheet(CDC& dc);
    void draw();

private:
    void drawLines(const WktLines& lines, int type, int lineWidth, COLORREF color);
    void station(const WktName& station);
    double acrossAt(const POINT& at) const;
    std::optional<CFPRect> placeFor(const POINT& at, const CSize& size, double angle, double& distance) const;
    bool isFree(const CFPRect& rect) const;

    CDC& m_dc;
    LineStyles m_styles;
    COrvDrawText m_name;
    WktLines m_railway = linesOf("RAILWAY");
    WktLines m_coast = linesOf("COAST");
    WktLines m_rivers = linesOf("RIVERS");
    std::vector<POINT> m_track;
    std::vector<CRect> m_taken;
    std::optional<Fit> m_fit;
};

StationSheet::StationSheet(CDC& dc) : m_dc(dc) {
    m_name.InitSingleText();
    m_name.LSetTextColor(inkColor);
    m_name.LSetBkMode(OPAQUE); // coast and rivers leave the names room
    Label::setFace(*m_name.LGetOrvFont(), nameHeight);
    Bounds bounds;
    bounds.add(m_railway);
    bounds.add(m_coast);
    m_fit.emplace(bounds, Projection::degrees, width, height, margin);
    for (const WktFigure& figure : m_railway.figures)
        m_track = m_fit->toPixels(m_railway, figure);
}

void StationSheet::drawLines(const WktLines& lines, int type, int lineWidth, COLORREF color) {
    for (const WktFigure& figure : lines.figures) {
        const std::vector<POINT> pixels = m_fit->toPixels(lines, figure);
        m_dc.BeginPath();
        m_dc.Polyline(pixels.data(), int(pixels.size()));
        if (figure.closed)
            m_dc.CloseFigure();
        m_dc.EndPath();
        m_styles.draw(m_dc, type, lineWidth, color);
        m_dc.AbortPath();
    }
}

// The direction across the track, in whole degrees and never upside down: that from the neighbour before to
// the one behind, turned by a quarter.
double StationSheet::acrossAt(const POINT& at) const {
    size_t nearest = 0;
    for (size_t i = 0; i < m_track.size(); ++i)
        if (std::hypot(m_track[i].x - at.x, m_track[i].y - at.y) <
            std::hypot(m_track[nearest].x - at.x, m_track[nearest].y - at.y))
            nearest = i;
    const POINT& before = m_track[nearest > 0 ? nearest - 1 : 0];
    const POINT& behind = m_track[std::min(nearest + 1, m_track.size() - 1)];
    double angle = std::round(std::atan2(before.y - behind.y, behind.x - before.x) / degree) + 90;
    while (angle > 80)
        angle -= 180;
    while (angle <= -100)
        angle += 180;
    return angle * degree;
}

bool StationSheet::isFree(const CFPRect& rect) const {
    CRect box;
    rect.GetBox(box);
    CRect common;
    if (box.left < 4 || box.right > width - 4)
        return false;
    for (const CRect& taken : m_taken)
        if (common.IntersectRect(&taken, &box))
            return false;
    for (size_t i = 1; i < m_track.size(); ++i) {
        const double steps = std::hypot(m_track[i].x - m_track[i - 1].x, m_track[i].y - m_track[i - 1].y) / 3;
        for (double step = 0; step < steps; ++step) {
            const double part = step / steps;
            const CPoint point(LONG(m_track[i - 1].x + (m_track[i].x - m_track[i - 1].x) * part),
                               LONG(m_track[i - 1].y + (m_track[i].y - m_track[i - 1].y) * part));
            if (rect.PtInRect(point, trackRoom))
                return false;
        }
    }
    return true;
}

// Beside the point, to the right before to the left, as near as there is room. distance: from the point,
// negative to the left.
std::optional<CFPRect> StationSheet::placeFor(const POINT& at, const CSize& size, double angle,
                                              double& distance) const {
    for (const double away : {14.0, 40.0, 70.0, 100.0, 140.0})
        for (const double turn : {0.0, 15.0, -15.0, 30.0, -30.0})
            for (const int side : {1, -1}) {
                const double direction = angle + turn * degree;
                CFPRect rect(0, 0, size.cx, size.cy, direction);
                const CPoint end(LONG(at.x + side * away * std::cos(direction)),
                                 LONG(at.y - side * away * std::sin(direction)));
                if (side > 0)
                    rect.SetSlopeLeftMid(end);
                else
                    rect.SetSlopeRightMid(end);
                distance = side * away;
                if (isFree(rect))
                    return rect;
            }
    return std::nullopt;
}

void StationSheet::station(const WktName& station) {
    const POINT at = m_fit->toPixel(station.point);
    m_name.SetShowContent(ansi(station.name));
    CSize size;
    m_name.GetAutoRect(size);
    double distance = 0;
    const std::optional<CFPRect> place = placeFor(at, size, acrossAt(at), distance);
    if (!place)
        return;
    CRect box;
    place->GetBox(box);
    m_taken.push_back(box);
    const double start = distance > 0 ? distance - 3 : distance + 3;
    m_dc.MoveTo(at);
    m_dc.LineTo(LONG(at.x + start * std::cos(place->angle)), LONG(at.y - start * std::sin(place->angle)));
    m_dc.Ellipse(at.x - dotRadius, at.y - dotRadius, at.x + dotRadius + 1, at.y + dotRadius + 1);
    m_name.LSetFPRect(*place);
    m_name.Draw(&m_dc);
}

void StationSheet::draw() {
    drawLines(m_rivers, 0, 2, riverColor);
    drawLines(m_coast, 0, 2, coastColor);
    drawLines(m_railway, 101, gauge, inkColor);
    Label(36).draw(m_dc, inkColor, 48, 34, "站名  Turned labels");
    Label(14).draw(
        m_dc, noteColor, 48, 88,
        "The stations of the Beijing-Shanghai railway, each name across the line where it stands.");
    if (m_track.size() < 2)
        return;
    CPen leader(PS_SOLID, 1, leaderColor);
    CBrush dot(markColor);
    CPen* previousPen = m_dc.SelectObject(&leader);
    CBrush* previousBrush = m_dc.SelectObject(&dot);
    for (const WktName& name : namedPoints(sample("RAILWAY")))
        station(name);
    m_dc.SelectObject(previousBrush);
    m_dc.SelectObject(previousPen);
}

} // namespace

void drawStationSheet(CDC& dc) {
    StationSheet(dc).draw();
}

} // namespace gallery
