#include "SheetStyle.h"
#include "Sheets.h"

#include "LineStyles.h"

#include <orvfc/ORVFC.h>

// One chart at every depth: as it is, stretched, turned, with the colours it has to choose from. The same
// bitmaps are written beside the sheet as files.

namespace gallery {
namespace {

constexpr int bandTop = 156;
constexpr int bandHeight = 222;
const CSize chartSize(208, 120);
const CSize stretchedSize(156, 190);
constexpr int upright = 236, stretched = 470, turnedCell = 652, colors = 920; // left edges of the cells
constexpr int swatches = 190;                                                 // side of all colours together

struct Depth {
    int bits;
    const char* name;
    const char* fileName;
    const char* note;
};
constexpr Depth depths[] = {
    {1, "1 位  1 bit", "bitmap-1.bmp", "2 colours"},
    {4, "4 位  4 bits", "bitmap-4.bmp", "16 colours"},
    {8, "8 位  8 bits", "bitmap-8.bmp", "256 colours"},
    {16, "16 位  16 bits", "bitmap-16.bmp", "5 bits of each colour"},
    {24, "24 位  24 bits", "bitmap-24.bmp", "8 bits of each colour"},
    {32, "32 位  32 bits", "bitmap-32.bmp", "8 of each, 8 unused"},
};

// The chart's own colours; from the ninth on those of its ramp. The first two serve one bit.
constexpr COLORREF chartColors[16] = {
    RGB(255, 255, 255), inkColor,           accentColor,        markColor,
    RGB(46, 125, 80),   RGB(222, 160, 40),  RGB(200, 204, 212), RGB(120, 124, 136),
    RGB(32, 48, 104),   RGB(24, 96, 160),   RGB(32, 144, 176),  RGB(88, 184, 160),
    RGB(152, 208, 128), RGB(216, 216, 104), RGB(240, 168, 72),  RGB(224, 96, 56),
};

RGBQUAD entryOf(COLORREF color) {
    return {GetBValue(color), GetGValue(color), GetRValue(color), 0};
}

// Where the ramp stands at a share of its length, from 0 to 1.
COLORREF rampColor(double share) {
    constexpr int first = 8, last = 15;
    const double place = first + share * (last - first);
    const int i = place < last ? int(place) : last - 1;
    const auto mix = [&](BYTE from, BYTE to) { return BYTE(from + (to - from) * (place - i)); };
    const COLORREF from = chartColors[i], to = chartColors[i + 1];
    return RGB(mix(GetRValue(from), GetRValue(to)), mix(GetGValue(from), GetGValue(to)),
               mix(GetBValue(from), GetBValue(to)));
}

// Behind the chart's own colours a long table has the ramp in small steps.
void fillColorTable(COrvDib& dib) {
    const int count = dib.m_nColorTableEntries;
    for (int i = 0; i < count; ++i)
        dib.m_pColorTable[i] = entryOf(i < 16 ? chartColors[i] : rampColor((i - 16.0) / (count - 17)));
}

void tracePath(CDC& dc, const CPoint* points, int count) {
    dc.BeginPath();
    dc.Polyline(points, count);
    dc.EndPath();
}

void drawChart(CDC& dc) {
    LineStyles styles;
    dc.FillSolidRect(0, 0, chartSize.cx, chartSize.cy, chartColors[0]);
    for (int y = 18; y <= 78; y += 20) {
        const CPoint grid[] = {{20, y}, {200, y}};
        tracePath(dc, grid, 2);
        styles.draw(dc, 2, 1, chartColors[6]);
    }
    constexpr int heights[] = {26, 44, 34, 58, 50};
    for (int i = 0; i < 5; ++i)
        dc.FillSolidRect(30 + i * 34, 88 - heights[i], 20, heights[i], chartColors[2 + i % 4]);
    const CPoint curve[] = {{24, 70}, {62, 36}, {96, 52}, {130, 16}, {164, 28}, {198, 10}};
    tracePath(dc, curve, 6);
    styles.draw(dc, 1, 2, inkColor);
    const CPoint axes[] = {{20, 8}, {20, 88}, {204, 88}};
    tracePath(dc, axes, 3);
    styles.draw(dc, 0, 2, inkColor);
    for (int x = 20; x < 204; ++x)
        dc.FillSolidRect(x, 98, 1, 14, rampColor((x - 20) / 183.0));
}

// The chart, drawn straight into a bitmap of that depth.
BOOL makeChart(COrvDib& dib, int bits) {
    dib = COrvDib(chartSize, bits);
    if (dib.m_pInfoHeader == NULL)
        return FALSE;
    fillColorTable(dib);
    dib.MakePalette();
    CDC dc;
    if (!dc.CreateCompatibleDC(NULL) || dib.CreateSection(&dc) == NULL)
        return FALSE;
    const HGDIOBJ previous = ::SelectObject(dc, dib.m_hSection);
    drawChart(dc);
    ::SelectObject(dc, previous);
    ::GdiFlush();
    return TRUE;
}

class BitmapSheet {
public:
    explicit BitmapSheet(CDC& dc) : m_dc(dc) {}

    void draw();

private:
    void headings();
    void band(const Depth& depth, int top);
    void palette(COrvDib& dib, CPoint corner);
    void frame(CPoint corner, CSize size);
    void text(Label& label, COLORREF color, int x, int y, const CString& text) {
        label.draw(m_dc, color, x, y, text);
    }

    CDC& m_dc;
    Label m_name{25};
    Label m_text{16};
};

void BitmapSheet::headings() {
    drawTitle(m_dc, "位图  Bitmaps");
    text(m_text, noteColor, leftEdge, 86,
         "One chart, drawn by the library into a COrvDib of each depth; the files lie beside this sheet.");
    const struct {
        int left;
        const char* heading;
    } cells[] = {{leftEdge, "深度  depth"},
                 {upright, "原样  as it is"},
                 {stretched, "拉伸  stretched"},
                 {turnedCell, "旋转30度  turned by 30 degrees"},
                 {colors, "调色板  colour table"}};
    for (const auto& cell : cells)
        text(m_text, noteColor, cell.left, 122, cell.heading);
}

void BitmapSheet::frame(CPoint corner, CSize size) {
    CBrush brush(ruleColor);
    CRect around(corner, size);
    around.InflateRect(1, 1);
    m_dc.FrameRect(around, &brush);
}

// Colours by their numbers in the palette that is in use.
void BitmapSheet::palette(COrvDib& dib, CPoint corner) {
    const int count = dib.m_nColorTableEntries;
    if (count == 0) {
        text(m_text, noteColor, corner.x, corner.y + 6, "none: every pixel holds its colour");
        return;
    }
    int across = 1;
    while (across * across < count)
        across *= 2;
    const int side = swatches / across;
    dib.UsePalette(&m_dc, FALSE);
    for (int i = 0; i < count; ++i) {
        CBrush brush;
        brush.CreateSolidBrush(PALETTEINDEX(i));
        const CPoint place(corner.x + i % across * side, corner.y + i / across * side);
        m_dc.FillRect(CRect(place, CSize(side, side)), &brush);
    }
    ::SelectPalette(m_dc, static_cast<HPALETTE>(::GetStockObject(DEFAULT_PALETTE)), FALSE);
    frame(corner, CSize(across * side, (count + across - 1) / across * side));
}

void BitmapSheet::band(const Depth& depth, int top) {
    m_dc.FillSolidRect(leftEdge, top, rightEdge - leftEdge, 1, ruleColor);
    text(m_name, inkColor, leftEdge, top + 16, depth.name);
    text(m_text, noteColor, leftEdge, top + 54, depth.note);
    COrvDib dib;
    if (!makeChart(dib, depth.bits)) {
        text(m_text, noteColor, upright, top + 54, "There was no memory for this one.");
        return;
    }
    CString size;
    size.Format("%u bytes", dib.GetFileLength());
    text(m_text, noteColor, leftEdge, top + 78, size);
    text(m_text, noteColor, leftEdge, top + 102, depth.fileName);

    const CPoint asItIs(upright, top + 16), wide(stretched, top + 16);
    dib.Draw(&m_dc, asItIs, chartSize);
    frame(asItIs, chartSize);
    dib.Draw(&m_dc, wide, stretchedSize);
    frame(wide, stretchedSize);
    // The left-top corner stays; the right one rises by half the width.
    dib.Draw(&m_dc, CPoint(turnedCell, top + 6 + chartSize.cx / 2), chartSize, 30 * degree);
    palette(dib, CPoint(colors, top + 16));
}

void BitmapSheet::draw() {
    headings();
    int top = bandTop;
    for (const Depth& depth : depths) {
        band(depth, top);
        top += bandHeight;
    }
}

} // namespace

void drawBitmapSheet(CDC& dc) {
    BitmapSheet(dc).draw();
}

bool writeBitmapSamples(const CString& folder) {
    for (const Depth& depth : depths) {
        COrvDib dib;
        CFile file;
        if (!makeChart(dib, depth.bits) ||
            !file.Open(folder + "\\" + depth.fileName, CFile::modeCreate | CFile::modeWrite) ||
            !dib.Write(&file))
            return false;
    }
    return true;
}

} // namespace gallery
