#include "SheetStyle.h"
#include "Sheets.h"

#include "LineStyles.h"

namespace gallery {
namespace {

constexpr int bandTop = 168;
constexpr int bandHeight = 120;
constexpr int lineStep = 31; // from one line of a cell to the next
constexpr int linesInCell = 3;

struct Stroke {
    int width;
    int gauge; // of the railway
    COLORREF color;
    const char* legend;
};

constexpr Stroke strokes[linesInCell] = {
    {1, 6, inkColor, "width 1"},
    {3, 10, accentColor, "width 3"},
    {6, 16, markColor, "width 6"},
};

// The shapes of a row. number: which of the lines in the cell.
void tracePolyline(CDC& dc, CPoint cell, int number) {
    CPoint points[] = {{0, 20}, {44, 20}, {104, 0}, {168, 24}, {232, 2}, {286, 14}};
    for (CPoint& point : points) {
        point += cell + CPoint(0, number * lineStep);
    }
    dc.Polyline(points, 6);
}

void traceCurve(CDC& dc, CPoint cell, int number) {
    CPoint points[] = {{0, 14}, {60, -14}, {90, -14}, {143, 12}, {196, 38}, {226, 38}, {286, 8}};
    for (CPoint& point : points) {
        point += cell + CPoint(0, number * lineStep);
    }
    dc.PolyBezier(points, 7);
}

void traceClosed(CDC& dc, CPoint cell, int number) {
    constexpr int size = 70;
    constexpr int step = 96;
    const CPoint corner = cell + CPoint(number * step, 8);
    const CPoint triangle[] = {{0, 68}, {35, 4}, {70, 68}};
    const CPoint hexagon[] = {{0, 35}, {17, 5}, {53, 5}, {70, 35}, {53, 65}, {17, 65}};
    if (number == 2) {
        dc.Ellipse(corner.x, corner.y, corner.x + size, corner.y + size);
        return;
    }
    const CPoint* points = number == 0 ? triangle : hexagon;
    const int count = number == 0 ? 3 : 6;
    dc.MoveTo(corner + points[0]);
    for (int i = 1; i < count; ++i) {
        dc.LineTo(corner + points[i]);
    }
    dc.CloseFigure();
}

struct Cell {
    int left;
    const char* heading;
    void (*trace)(CDC& dc, CPoint cell, int number);
};

constexpr Cell cells[] = {
    {328, "折线  polyline", tracePolyline},
    {644, "曲线  curve", traceCurve},
    {960, "闭合图形  closed figure", traceClosed},
};

using Notes = const char* [3]; // the lines under a name

class LineSheet {
public:
    explicit LineSheet(CDC& dc) : m_dc(dc) {}

    void draw();

private:
    void headings();
    void band(int type, const Notes& notes);
    void strokeCells(int type);
    void singleTent(int type);
    void magnify(CPoint from, CPoint to);
    void emptyBand(int type);

    void text(Label& label, COLORREF color, int x, int y, const CString& text) {
        label.draw(m_dc, color, x, y, text);
    }
    CPoint cellOrigin(const Cell& cell) const { return {cell.left, m_bandTop + 16}; }
    template <class Trace>
    void path(Trace trace);

    CDC& m_dc;
    Label m_name{25};
    Label m_text{16};
    LineStyles m_styles;
    CLineTypeSet m_names;
    int m_bandTop = bandTop - bandHeight; // of the band in hand
};

template <class Trace>
void LineSheet::path(Trace trace) {
    m_dc.BeginPath();
    trace();
    m_dc.EndPath();
}

void LineSheet::headings() {
    drawTitle(m_dc, "线型  Line types");
    text(m_text, noteColor, leftEdge, 86,
         "Patterns keep their lengths whatever the width; they run on round every corner.");
    int x = cells[2].left;
    for (const Stroke& stroke : strokes) {
        text(m_text, stroke.color, x, 86, stroke.legend);
        x += 96;
    }
    for (const Cell& cell : cells) {
        text(m_text, noteColor, cell.left, 136, cell.heading);
    }
    text(m_text, noteColor, leftEdge, 136, "名称  name and way");
}

// A new band with its rule and label.
void LineSheet::band(int type, const Notes& notes) {
    m_bandTop += bandHeight;
    m_dc.FillSolidRect(leftEdge, m_bandTop, rightEdge - leftEdge, 1, ruleColor);
    CString name;
    name.Format("%s  %d", m_names.GetLineName(type), type);
    text(m_name, inkColor, leftEdge, m_bandTop + 14, name);
    int y = m_bandTop + 50;
    for (const char* note : notes) {
        text(m_text, noteColor, leftEdge, y, note != NULL ? note : "");
        y += 22;
    }
}

void LineSheet::strokeCells(int type) {
    for (const Cell& cell : cells) {
        for (int i = 0; i < linesInCell; ++i) {
            path([&] { cell.trace(m_dc, cellOrigin(cell), i); });
            const int width = type == 101 ? strokes[i].gauge : strokes[i].width;
            m_styles.draw(m_dc, type, width, strokes[i].color);
        }
    }
}

// Type 101 through the manager: the zig-zag ends the walk with its first piece. The path asked for stands in
// grey.
void LineSheet::singleTent(int type) {
    COrvMainDrawManage manage{CString()};
    int result = 0;
    CPen guide(PS_SOLID, 1, ruleColor);
    CPen* previous = m_dc.SelectObject(&guide);
    for (const Cell& cell : {cells[0], cells[1]}) {
        const auto trace = [&] { cell.trace(m_dc, cellOrigin(cell), 1); };
        trace();
        path(trace);
        result = manage.Draw(&m_dc, type, 1, strokes[2].color);
    }
    m_dc.SelectObject(previous);
    m_dc.AbortPath();
    magnify(cellOrigin(cells[0]) + CPoint(-4, lineStep + 13), {cells[2].left, m_bandTop + 13});
    CString note;
    note.Format("Draw returned %d", result);
    text(m_text, noteColor, cells[2].left + 112, m_bandTop + 28, "the left end");
    text(m_text, noteColor, cells[2].left + 112, m_bandTop + 52, "8 times as large");
    text(m_text, noteColor, cells[2].left + 112, m_bandTop + 76, note);
}

// A small square of the sheet, eight times as large, in a frame.
void LineSheet::magnify(CPoint from, CPoint to) {
    constexpr int side = 12;
    constexpr int zoom = 8;
    CRect frame(to, CSize(side * zoom, side * zoom));
    m_dc.SetStretchBltMode(COLORONCOLOR);
    m_dc.StretchBlt(to.x, to.y, side * zoom, side * zoom, &m_dc, from.x, from.y, side, side, SRCCOPY);
    CBrush brush(noteColor);
    m_dc.FrameRect(frame, &brush);
}

// Type 5 is no line: the path is asked for and nothing comes.
void LineSheet::emptyBand(int type) {
    COrvMainDrawManage manage{CString()};
    path([&] { tracePolyline(m_dc, cellOrigin(cells[0]), 1); });
    const int result = manage.Draw(&m_dc, type, strokes[1].width, strokes[1].color);
    m_dc.AbortPath();
    CString note;
    note.Format("This row is empty on purpose: type 5 is no line. Draw was called and returned %d.", result);
    text(m_text, noteColor, cells[0].left, m_bandTop + 44, note);
}

void LineSheet::draw() {
    struct {
        int type;
        Notes notes;
        void (LineSheet::*fill)(int type);
    } const rows[] = {
        {0, {"COrvDrawManage::Draw", "the system's own pen"}, &LineSheet::strokeCells},
        {1, {"COrvMainDrawManage::Draw", "18 on, 5 off"}, &LineSheet::strokeCells},
        {2, {"COrvMainDrawManage::Draw", "5 on, 5 off"}, &LineSheet::strokeCells},
        {3, {"COrvMainDrawManage::Draw", "17 on, 5 off, 5 on, 5 off"}, &LineSheet::strokeCells},
        {4, {"COrvMainDrawManage::Draw", "17 on, 6 off, twice 5 on, 6 off"}, &LineSheet::strokeCells},
        {5, {"COrvMainDrawManage::Draw", "no line"}, &LineSheet::emptyBand},
        {101,
         {"DrawSpeciaPath", "gauge 6, 10, 16; 20 open, 20 filled", "rails can cross heading due right"},
         &LineSheet::strokeCells},
        {101, {"COrvMainDrawManage::Draw", "a single tent: the walk ends there"}, &LineSheet::singleTent},
    };
    headings();
    for (const auto& row : rows) {
        band(row.type, row.notes);
        (this->*row.fill)(row.type);
    }
}

} // namespace

void drawLineSheet(CDC& dc) {
    LineSheet(dc).draw();
}

} // namespace gallery
