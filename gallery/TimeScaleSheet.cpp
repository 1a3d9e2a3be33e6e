#include "SheetStyle.h"
#include "Sheets.h"

#include "LineStyles.h"

#include <afxdisp.h>

#include <algorithm>

// A space probe's plan under three time scales. Each scale has three rows; the columns of the last row are as
// wide as that row's widest label.

namespace gallery {
namespace {

constexpr int rowHeight = 26;
constexpr int rowsOfScale = 3;
constexpr int laneHeight = 38;
constexpr int columnPadding = 3; // on both sides of a label

struct Day {
    int year, month, day;
    double date() const { return COleDateTime(year, month, day, 0, 0, 0); }
};

// The flight of Tianwen-1 to Mars (Beijing dates).
struct Phase {
    const char* name;
    Day from, to;
    int type;
    int width;
    COLORREF color;
};
constexpr Phase phases[] = {
    {"地火转移", {2020, 7, 23}, {2021, 2, 10}, 3, 5, accentColor},
    {"停泊轨道", {2021, 2, 24}, {2021, 5, 15}, 2, 5, RGB(46, 125, 82)},
    {"中继轨道", {2021, 5, 17}, {2021, 11, 8}, 4, 5, RGB(140, 82, 160)},
    {"着陆平台检查", {2021, 5, 15}, {2021, 5, 22}, 1, 5, RGB(190, 120, 20)},
    {"巡视探测", {2021, 5, 22}, {2021, 8, 15}, 101, 10, inkColor},
};

struct Event {
    const char* name;
    Day day;
};
constexpr Event events[] = {
    {"发射", {2020, 7, 23}},     {"第一次修正", {2020, 8, 2}},   {"第二次修正", {2020, 9, 20}},
    {"深空机动", {2020, 10, 9}}, {"第三次修正", {2020, 10, 28}}, {"第四次修正", {2021, 2, 5}},
    {"火星捕获", {2021, 2, 10}}, {"着陆", {2021, 5, 15}},        {"驶上火星", {2021, 5, 22}},
    {"影像发布", {2021, 6, 11}}, {"九十火星日", {2021, 8, 15}},
};

struct ScaleRow {
    int unit, style;
};
struct Scale {
    const char* title;
    Day first, last; // the columns that hold them included
    ScaleRow rows[rowsOfScale];
};
constexpr Scale scales[] = {
    {"年、月、旬  year, month, ten days", {2020, 7, 11}, {2021, 6, 30}, {{0, 1}, {2, 20}, {3, 61}}},
    {"年、季度、周  year, quarter, week", {2020, 11, 29}, {2021, 11, 13}, {{0, 0}, {1, 37}, {4, 81}}},
    {"月、周、日  month, week, day", {2021, 5, 9}, {2021, 6, 26}, {{2, 16}, {4, 77}, {5, 106}}},
};

class TimeScaleSheet {
public:
    explicit TimeScaleSheet(CDC& dc) : m_dc(dc) {}

    void draw();

private:
    void scale(const Scale& scale);
    void scaleRow(const ScaleRow& row, int top, bool finest);
    void lanes();
    void lane(const Phase& phase);
    void eventLane();
    void eventMark(int x, int y);

    double columnOf(double date) const;
    int xOf(double date) const;
    void text(Label& label, COLORREF color, int x, int y, const CString& text) {
        label.draw(m_dc, color, x, y, text);
    }
    void rule(int x1, int y1, int x2, int y2) {
        m_dc.FillSolidRect(x1, y1, std::max(x2 - x1, 1), std::max(y2 - y1, 1), ruleColor);
    }

    CDC& m_dc;
    Label m_name{20};
    Label m_text{14};
    LineStyles m_styles;
    CORVDateFormat m_format;
    int m_top = 128; // of what is drawn next
    // The scale in hand.
    int m_unit = 0; // of the columns
    double m_first = 0;
    double m_behind = 0; // the beginning behind the last column
    int m_columns = 0;
    int m_columnWidth = 0;
};

// Whole columns before the date, and the part of its own column.
double TimeScaleSheet::columnOf(double date) const {
    const double begin = m_format.GetBeginDate(m_unit, 1, date);
    const double next = CORVDateFormat::GetNextScale(m_unit, 1, date);
    return CORVDateFormat::GetDateRanges(m_unit, m_first, begin) + (date - begin) / (next - begin);
}

int TimeScaleSheet::xOf(double date) const {
    const double column = columnOf(std::clamp(date, m_first, m_behind));
    return leftEdge + static_cast<int>(column * m_columnWidth + 0.5);
}

// One row: a label over every unit that has room for it.
void TimeScaleSheet::scaleRow(const ScaleRow& row, int top, bool finest) {
    const int bottom = top + rowHeight;
    double next = 0;
    for (double tick = m_first; tick < m_behind; tick = next) {
        next = CORVDateFormat::GetNextScale(row.unit, 1, tick);
        const int left = xOf(tick);
        const int right = xOf(next);
        const CString label = CORVDateFormat::GetDateString(row.unit, row.style, tick, m_first, m_behind - 1);
        const CSize size = m_text.extent(label);
        rule(left, top, left, bottom);
        if (size.cx + 2 <= right - left)
            text(m_text, finest ? noteColor : inkColor, left + (right - left - size.cx) / 2,
                 top + (rowHeight - size.cy) / 2, label);
    }
    rule(leftEdge, bottom, xOf(m_behind), bottom);
}

void TimeScaleSheet::eventMark(int x, int y) {
    const CPoint corners[] = {{x, y - 7}, {x + 7, y}, {x, y + 7}, {x - 7, y}};
    CBrush brush(markColor);
    CPen pen(PS_SOLID, 1, markColor);
    CBrush* previousBrush = m_dc.SelectObject(&brush);
    CPen* previousPen = m_dc.SelectObject(&pen);
    m_dc.Polygon(corners, 4);
    m_dc.SelectObject(previousPen);
    m_dc.SelectObject(previousBrush);
}

// Marks with name and date; a name that would run into the one before it goes below the marks.
void TimeScaleSheet::eventLane() {
    int ends[] = {leftEdge, leftEdge}; // of the texts above and below
    const int middle = m_top + 30;
    for (const Event& event : events) {
        const double date = event.day.date();
        if (date < m_first || date >= m_behind)
            continue;
        const int x = xOf(date);
        eventMark(x, middle);
        const CString label = CString(event.name) + " " + CORVDateFormat::GetDateString(78, date);
        const int width = m_text.extent(label).cx;
        const int right = xOf(m_behind);
        const int left = std::max(leftEdge, std::min(x - width / 2, right - width));
        const int below = left < ends[0] + 8 && left >= ends[1];
        ends[below] = left + width;
        text(m_text, markColor, left, below ? middle + 9 : m_top, label);
    }
    m_top += 62;
}

void TimeScaleSheet::lane(const Phase& phase) {
    const double from = phase.from.date();
    const double to = phase.to.date();
    if (to <= m_first || from >= m_behind)
        return;
    const int left = xOf(from);
    const int right = xOf(to);
    const int y = m_top + 26;
    m_dc.BeginPath();
    m_dc.MoveTo(left, y);
    m_dc.LineTo(right, y);
    m_dc.EndPath();
    m_styles.draw(m_dc, phase.type, phase.width, phase.color);
    CString label;
    label.Format("%s  %d 天", phase.name, CORVDateFormat::GetDateRangleDays(from, to));
    const int width = m_text.extent(label).cx;
    text(m_text, phase.color, std::clamp(left, leftEdge + 4, xOf(m_behind) - width), m_top, label);
    m_top += laneHeight;
}

void TimeScaleSheet::lanes() {
    const int top = m_top;
    m_top += 6;
    eventLane();
    for (const Phase& phase : phases)
        lane(phase);
    rule(leftEdge, top, leftEdge, m_top);
    rule(xOf(m_behind), top, xOf(m_behind), m_top);
    rule(leftEdge, m_top, xOf(m_behind), m_top);
}

void TimeScaleSheet::scale(const Scale& scale) {
    const ScaleRow& finest = scale.rows[rowsOfScale - 1];
    m_unit = finest.unit;
    m_first = m_format.GetBeginDate(m_unit, 1, scale.first.date());
    m_behind = CORVDateFormat::GetNextScale(m_unit, 1, scale.last.date());
    m_columns = CORVDateFormat::GetDateRangleCounts(m_unit, 1, m_first, scale.last.date());
    m_columnWidth = m_text.extent(m_format.GetWidthText(finest.unit, finest.style)).cx + 2 * columnPadding;

    CString title;
    title.Format("%s: styles %d, %d, %d; %d columns of %d pixels", scale.title, scale.rows[0].style,
                 scale.rows[1].style, finest.style, m_columns, m_columnWidth);
    text(m_name, inkColor, leftEdge, m_top, title);
    m_top += 32;
    m_dc.FillSolidRect(leftEdge, m_top, m_columns * m_columnWidth, rowsOfScale * rowHeight, headColor);
    rule(leftEdge, m_top, xOf(m_behind), m_top);
    for (const ScaleRow& row : scale.rows) {
        scaleRow(row, m_top, &row == &finest);
        m_top += rowHeight;
    }
    rule(xOf(m_behind), m_top - rowsOfScale * rowHeight, xOf(m_behind), m_top);
    lanes();
    m_top += 26;
}

void TimeScaleSheet::draw() {
    drawTitle(m_dc, "时间刻度  Time scales");
    text(m_text, noteColor, leftEdge, 88,
         "天问一号 2020-2021: one plan under three scales. Columns are as wide as the widest label of their "
         "style.");
    for (const Scale& each : scales)
        scale(each);
}

} // namespace

void drawTimeScaleSheet(CDC& dc) {
    TimeScaleSheet(dc).draw();
}

} // namespace gallery
