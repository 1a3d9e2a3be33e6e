#include "SheetStyle.h"
#include "Sheets.h"

// One paragraph in every way that COrvDrawText has: turned, aligned, spaced, framed, broken and not.

namespace gallery {
namespace {

constexpr COLORREF frameColor = RGB(206, 210, 218);
constexpr COLORREF paperColor = RGB(252, 246, 226);

const char paragraph[] = "京沪铁路 runs from 北京 to 上海,\r\n1318 kilometres 经天津、济南、南京。";
const char shortParagraph[] = "北京 Beijing\r\n上海 Shanghai";

class TextSheet {
public:
    explicit TextSheet(CDC& dc) : m_dc(dc) {}
    void draw();

private:
    void heading(int y, const char* title);
    void note(int x, int y, const CString& text) { m_note.draw(m_dc, noteColor, x, y, text); }
    void frame(const CFPRect& rect);
    void turned();
    void aligned();
    void styled();

    COrvDrawText block(int height) const;

    CDC& m_dc;
    Label m_heading{20};
    Label m_note{14};
};

COrvDrawText TextSheet::block(int height) const {
    COrvDrawText text;
    Label::setFace(*text.LGetOrvFont(), height);
    text.LSetSingleline(FALSE);
    text.LSetTextColor(inkColor);
    return text;
}

void TextSheet::heading(int y, const char* title) {
    m_dc.FillSolidRect(leftEdge, y, rightEdge - leftEdge, 1, frameColor);
    m_heading.draw(m_dc, inkColor, leftEdge, y + 12, title);
}

// The rectangle as it was given, for the eye to compare with.
void TextSheet::frame(const CFPRect& rect) {
    const CPoint corners[] = {rect.GetSlopeLeftTop(), rect.GetSlopeLeftBottom(), rect.GetSlopeRightBottom(),
                              rect.GetSlopeRightTop(), rect.GetSlopeLeftTop()};
    CPen pen(PS_SOLID, 1, frameColor);
    CPen* previous = m_dc.SelectObject(&pen);
    m_dc.Polyline(corners, 5);
    m_dc.SelectObject(previous);
}

void TextSheet::turned() {
    heading(130, "转角  The rectangle turned about its left top corner");
    int x = leftEdge;
    for (const int degrees : {0, 30, 90, 200}) {
        COrvDrawText text = block(18);
        CFPRect rect(0, 0, 236, 118, degrees * degree);
        rect.SetSlopeCentre(CPoint(x + 140, 330));
        text.LSetFPRect(rect);
        text.LSetDrawBorder(TRUE);
        text.LSetBorderColor(accentColor);
        text.Draw(&m_dc, paragraph);
        CString title;
        title.Format("%d degrees", degrees);
        note(x + 110, 480, title);
        x += 300;
    }
}

void TextSheet::aligned() {
    heading(520,
            "对齐  Rows to the left, centred, to the right; the block at the top, centred, at the bottom");
    const char* const rows[] = {"row 0", "row 1", "row 2"};
    const UINT columns[] = {5, 6, 7};
    for (int column = 0; column < 3; ++column)
        for (UINT row = 0; row < 3; ++row) {
            COrvDrawText text = block(18);
            const CPoint corner(leftEdge + int(row) * 400, 572 + column * 116);
            const CFPRect rect(CRect(corner, CSize(270, 96)));
            frame(rect);
            text.LSetFPRect(rect);
            text.LSetRowAlign(row);
            text.LSetColAlign(columns[column]);
            text.Draw(&m_dc, shortParagraph);
            CString title;
            title.Format("%s, column %d", rows[row], columns[column]);
            note(corner.x + 278, corner.y + 36, title);
        }
}

struct Style {
    const char* title;
    void (*set)(COrvDrawText& text);
};

const Style styles[] = {
    {"as it is", [](COrvDrawText&) {}},
    {"4 pixels between characters", [](COrvDrawText& t) { t.LSetCharDist(4); }},
    {"12 pixels between rows", [](COrvDrawText& t) { t.LSetRowDist(12); }},
    {"single row height 38", [](COrvDrawText& t) { t.LSetSingleRowHeight(38); }},
    {"border", [](COrvDrawText& t) { t.LSetDrawBorder(TRUE); }},
    {"border, shade and background",
     [](COrvDrawText& t) {
         t.LSetDrawBorder(TRUE);
         t.LSetDrawShade(TRUE);
         t.LSetBkMode(OPAQUE);
         t.LSetBkColor(paperColor);
     }},
    {"the same, fitted to the text",
     [](COrvDrawText& t) {
         t.LSetDrawBorder(TRUE);
         t.LSetDrawShade(TRUE);
         t.LSetBkMode(OPAQUE);
         t.LSetBkColor(paperColor);
         t.LSetAutoCacuBound(TRUE);
     }},
    {"clipped at the bottom",
     [](COrvDrawText& t) {
         CFPRect rect = t.LGetFPRect();
         rect.SetHeight(60);
         t.LSetFPRect(rect);
         t.LSetDrawBorder(TRUE);
         t.LSetAutoClip(TRUE);
     }},
    {"single line: one line however wide",
     [](COrvDrawText& t) {
         t.LSetSingleline(TRUE);
         t.LSetDrawBorder(TRUE);
     }},
    {"single line, clipped",
     [](COrvDrawText& t) {
         t.LSetSingleline(TRUE);
         t.LSetAutoClip(TRUE);
         t.LSetDrawBorder(TRUE);
     }},
    {"no line feed: all behind the first too wide is its line",
     [](COrvDrawText& t) {
         t.LSetAutoLinefeed(FALSE);
         t.LSetDrawBorder(TRUE);
     }},
    {"no line feed, clipped",
     [](COrvDrawText& t) {
         t.LSetAutoLinefeed(FALSE);
         t.LSetAutoClip(TRUE);
         t.LSetDrawBorder(TRUE);
     }},
};

void TextSheet::styled() {
    heading(936, "样式  Spacing, frame and breaking");
    int cell = 0;
    for (const Style& style : styles) {
        COrvDrawText text = block(18);
        const bool wide = cell >= 8; // lines that leave their box
        const CPoint corner = wide ? CPoint(leftEdge + (cell - 8) % 2 * 600, 1416 + (cell - 8) / 2 * 92)
                                   : CPoint(leftEdge + cell % 4 * 300, 986 + cell / 4 * 214);
        const CFPRect rect(CRect(corner, CSize(wide ? 200 : 230, wide ? 40 : 156)));
        frame(rect);
        text.LSetFPRect(rect);
        text.LSetBorderColor(accentColor);
        style.set(text);
        text.Draw(&m_dc, paragraph);
        note(corner.x, corner.y + (wide ? 46 : 166), style.title);
        ++cell;
    }
}

void TextSheet::draw() {
    drawTitle(m_dc, "文本  Texts");
    note(leftEdge, 88,
         "One paragraph of Chinese and Latin in turned rectangles. Grey: the rectangle as it was given.");
    turned();
    aligned();
    styled();
}

} // namespace

void drawTextSheet(CDC& dc) {
    TextSheet(dc).draw();
}

} // namespace gallery
