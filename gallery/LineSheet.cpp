#include "Sheets.h"

#include "LineStyles.h"

namespace gallery {
namespace {

constexpr int leftEdge = 48;
constexpr int rightEdge = 1232;
constexpr int bandTop = 168;
constexpr int bandHeight = 112;
constexpr int lineStep = 32; // from one line of a cell to the next
constexpr int linesInCell = 3;

constexpr COLORREF inkColor = RGB(32, 32, 36);
constexpr COLORREF noteColor = RGB(112, 112, 120);
constexpr COLORREF ruleColor = RGB(222, 222, 226);

struct Stroke {
    int width;
    int gauge; // of the railway
    COLORREF color;
    const char* legend;
};

constexpr Stroke strokes[linesInCell] = {
    {1, 6, inkColor, "width 1"},
    {3, 10, RGB(31, 78, 157), "width 3"},
    {6, 16, RGB(178, 58, 46), "width 6"},
};

// The shapes of a row. number: which of the lines in the cell.
void tracePolyline(CDC& dc, CPoint cell, int number) {
    CPoint points[] = {{0, 22}, {62, 2}, {128, 26}, {204, 0}, {286, 18}};
    for (CPoint& point : points) {
        point += cell + CPoint(0, number * lineStep);
    }
    dc.Polyline(points, 5);
}

void traceCurve(CDC& dc, CPoint cell, int number) {
    CPoint points[] = {{0, 16}, {60, -24}, {90, -24}, {143, 11}, {196, 46}, {226, 46}, {286, 6}};
    for (CPoint& point : points) {
        point += cell + CPoint(0, number * lineStep);
    }
    dc.PolyBezier(points, 7);
}

void traceClosed(CDC& dc, CPoint cell, int number) {
    constexpr int size = 76;
    constexpr int step = 90;
    const CPoint corner = cell + CPoint(number * step, 4);
    const CPoint triangle[] = {{0, 70}, {38, 2}, {76, 70}};
    const CPoint hexagon[] = {{0, 38}, {19, 5}, {57, 5}, {76, 38}, {57, 71}, {19, 71}};
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
    {336, "折线  polyline", tracePolyline},
    {656, "曲线  curve", traceCurve},
    {976, "闭合图形  closed figure", traceClosed},
};

class LineSheet {
public:
    explicit LineSheet(CDC& dc) : m_dc(dc) {
        createFont(m_titleFont, 36);
        createFont(m_nameFont, 25);
        createFont(m_textFont, 16);
        dc.SetBkMode(TRANSPARENT);
    }

    void draw();

private:
    void headings();
    void band(int type, const char* caller, const char* pattern);
    void strokeCells(int type);
    void singleTent();
    void magnify(CPoint from, CPoint to);
    void emptyBand();

    void createFont(CFont& font, int height);
    void text(CFont& font, COLORREF color, int x, int y, const CString& text);
    CPoint cellOrigin(const Cell& cell) const { return {cell.left, m_bandTop + 18}; }
    template <class Trace>
    void path(Trace trace);

    CDC& m_dc;
    CFont m_titleFont;
    CFont m_nameFont;
    CFont m_textFont;
    LineStyles m_styles;
    CLineTypeSet m_names;
    int m_bandTop = bandTop - bandHeight; // of the band in hand
};

// A Chinese face by its character set: the system has its own choice where this one is not installed.
void LineSheet::createFont(CFont& font, int height) {
    font.CreateFont(-height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, GB2312_CHARSET, OUT_DEFAULT_PRECIS,
                    CLIP_DEFAULT_PRECIS, ANTIALIASED_QUALITY, VARIABLE_PITCH | FF_SWISS, "WenQuanYi Zen Hei");
}

void LineSheet::text(CFont& font, COLORREF color, int x, int y, const CString& text) {
    CFont* previous = m_dc.SelectObject(&font);
    m_dc.SetTextColor(color);
    m_dc.TextOut(x, y, text);
    m_dc.SelectObject(previous);
}

template <class Trace>
void LineSheet::path(Trace trace) {
    m_dc.BeginPath();
    trace();
    m_dc.EndPath();
}

void LineSheet::headings() {
    text(m_titleFont, inkColor, leftEdge, 34, "线型  Line types");
    text(m_textFont, noteColor, leftEdge, 86,
         "Patterns keep their lengths whatever the width; they run on round every corner.");
    int x = cells[2].left;
    for (const Stroke& stroke : strokes) {
        text(m_textFont, stroke.color, x, 86, stroke.legend);
        x += 90;
    }
    for (const Cell& cell : cells) {
        text(m_textFont, noteColor, cell.left, 136, cell.heading);
    }
    text(m_textFont, noteColor, leftEdge, 136, "名称  name and way");
}

// A new band with its rule and label.
void LineSheet::band(int type, const char* caller, const char* pattern) {
    m_bandTop += bandHeight;
    m_dc.FillSolidRect(leftEdge, m_bandTop, rightEdge - leftEdge, 1, ruleColor);
    CString name;
    name.Format("%s  %d", m_names.GetLineName(type), type);
    text(m_nameFont, inkColor, leftEdge, m_bandTop + 16, name);
    text(m_textFont, noteColor, leftEdge, m_bandTop + 54, caller);
    text(m_textFont, noteColor, leftEdge, m_bandTop + 78, pattern);
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
void LineSheet::singleTent() {
    COrvMainDrawManage manage{CString()};
    int result = 0;
    CPen guide(PS_SOLID, 1, ruleColor);
    CPen* previous = m_dc.SelectObject(&guide);
    for (const Cell& cell : {cells[0], cells[1]}) {
        const auto trace = [&] { cell.trace(m_dc, cellOrigin(cell), 1); };
        trace();
        path(trace);
        result = manage.Draw(&m_dc, 101, 1, strokes[2].color);
    }
    m_dc.SelectObject(previous);
    m_dc.AbortPath();
    magnify(cellOrigin(cells[0]) + CPoint(-4, lineStep + 12), {cells[2].left, m_bandTop + 10});
    CString note;
    note.Format("Draw returned %d", result);
    text(m_textFont, noteColor, cells[2].left + 112, m_bandTop + 30, "the left end");
    text(m_textFont, noteColor, cells[2].left + 112, m_bandTop + 54, "8 times as large");
    text(m_textFont, noteColor, cells[2].left + 112, m_bandTop + 78, note);
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
void LineSheet::emptyBand() {
    COrvMainDrawManage manage{CString()};
    path([&] { tracePolyline(m_dc, cellOrigin(cells[0]), 1); });
    const int result = manage.Draw(&m_dc, 5, strokes[1].width, strokes[1].color);
    m_dc.AbortPath();
    CString note;
    note.Format("This row is empty on purpose: type 5 is no line. Draw was called and returned %d.", result);
    text(m_textFont, noteColor, cells[0].left, m_bandTop + 44, note);
}

void LineSheet::draw() {
    struct {
        int type;
        const char* caller;
        const char* pattern;
    } const rows[] = {
        {1, "COrvMainDrawManage::Draw", "18 on, 5 off"},
        {2, "COrvMainDrawManage::Draw", "5 on, 5 off"},
        {3, "COrvMainDrawManage::Draw", "17 on, 5 off, 5 on, 5 off"},
        {4, "COrvMainDrawManage::Draw", "17 on, 6 off, twice 5 on, 6 off"},
        {0, "COrvDrawManage::Draw", "the system's own pen"},
        {101, "DrawSpeciaPath", "gauge 6, 10, 16; 20 open, 20 filled"},
    };
    headings();
    for (const auto& row : rows) {
        band(row.type, row.caller, row.pattern);
        strokeCells(row.type);
    }
    band(101, "COrvMainDrawManage::Draw", "a single tent: the walk ends there");
    singleTent();
    band(5, "COrvMainDrawManage::Draw", "no line");
    emptyBand();
}

} // namespace

void drawLineSheet(CDC& dc) {
    LineSheet(dc).draw();
}

} // namespace gallery
