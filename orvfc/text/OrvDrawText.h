#pragma once

#include <afxwin.h>

#include <orvfc/OrvApi.h>
#include <orvfc/geometry/FourPointRect.h>
#include <orvfc/text/OrvFont.h>

namespace orv {
enum class BreakKind;
class LineBreaker;
class TextMeasurer;
} // namespace orv

// A block of text in a rectangle that may be turned: broken into lines, aligned, with a background, a border
// and a drop shade.
//
// Lengths are logical units of the device context, y grows downwards, angles are radians, counter-clockwise
// as seen. The rectangle's angle is the direction of the lines; one that is not finite counts as 0. Texts are
// code page 936: a byte with the high bit set and the byte behind it, whichever it is, are one character and
// never parted; at the end of the text such a byte stands alone. A text ends at its first zero byte. A
// carriage return ends a line, with or without a line feed behind it; a line feed alone is text.
//
// A text with automatic line feed is broken before the character that would reach beyond the rectangle's
// width; a character that is wider than that stands alone on its line. A rectangle narrower than one
// character ("中" when the text begins with a character of two bytes or a control code, "a" otherwise) is
// taken for as wide as that character.
//
// A device context comes back as it was: every attribute, its objects and its current position. Every
// operation on one asserts that it and its handle are there, and without them does nothing. Nothing else is
// an error. Objects copy by value; each has a GDI font of its own.
class ORVFC_API COrvDrawText : public CObject {
    DECLARE_SERIAL(COrvDrawText)

public:
    // As after init(), draw mode 0.
    COrvDrawText();
    COrvDrawText(const COrvDrawText& text);
    ~COrvDrawText() override;
    COrvDrawText& operator=(const COrvDrawText& text);

    // Single line, line feed on, transparent, black, top left, 4 pixels between rows, content "显示内容", an
    // empty rectangle, COrvFont::init. The draw mode stays.
    void init();
    // The same for a label: "宋体" at 9 points, no line feed, no pixels between rows. Besides the draw mode
    // the font-line and auto-bound flags, the shade's numbers, the single row height and the content stay.
    void InitSingleText();

    UINT LGetBkMode() const; // of GDI: TRANSPARENT (1), else the background is filled
    void LSetBkMode(UINT nBkMode);
    COLORREF LGetBkColor() const;
    void LSetBkColor(COLORREF cr);
    COLORREF LGetBorderColor() const;
    void LSetBorderColor(COLORREF cr);
    UINT LGetRop2() const; // R2_..., for background, border and shade; others than 1 to 16 are not applied
    void LSetRop2(UINT nRop2);
    UINT LGetDrawMode() const; // 0: everything; otherwise the text alone
    void LSetDrawMode(UINT nDrawMode);
    COLORREF LGetTextColor() const; // the font's own colour is not used
    void LSetTextColor(COLORREF cr);
    COrvFont* LGetOrvFont(); // belongs to this object
    void LSetOrvFont(const COrvFont& font);
    LONG LGetRowDist() const; // added between lines
    void LSetRowDist(LONG nDist);
    LONG LGetCharDist() const; // added behind each character
    void LSetCharDist(LONG nDist);
    UINT LGetRowAlign() const; // of each line: 1 centre, 2 right, all others (3, distributed, too) left
    void LSetRowAlign(UINT nAlign);
    UINT LGetColAlign() const; // of the block: 6 centre, 7 bottom, all others top
    void LSetColAlign(UINT nAlign);
    UINT LGetTabCountSpace() const; // kept and stored; tabs are drawn as GDI draws them
    void LSetTabCountSpace(UINT nCount);
    BOOL LGetDrawBorder() const;
    void LSetDrawBorder(BOOL bDraw);
    BOOL LGetAutoLinefeed() const; // break lines that are wider than the rectangle
    void LSetAutoLinefeed(BOOL bLinefeed);
    BOOL LGetAutoClip() const; // stop at the rectangle's bottom and right side
    void LSetAutoClip(BOOL bClip);
    BOOL LGetDrawShade() const;
    void LSetDrawShade(BOOL bDraw);
    BOOL LGetbDrawClearanceShade() const; // kept and stored
    void LSetDrawClearanceShade(BOOL bDraw);
    BOOL LGetSingleline() const;
    void LSetSingleline(BOOL bSingle);
    BOOL LGetDrawFontLine() const; // kept and stored
    void LSetDrawFontLine(BOOL bDraw);
    BOOL LGetAutoCacuBound() const; // fit the rectangle to the text before it is drawn
    void LSetAutoCacuBound(BOOL bAuto);
    const CFPRect& LGetFPRect() const;
    void LSetFPRect(const CFPRect& rect);
    int LGetSingleRowHeight() const; // from line to line, whatever the font, when positive
    void LSetSingleRowHeight(int nHeight);
    CString GetShowContent() const; // what Draw(CDC*) draws
    void SetShowContent(CString strContent);

    void SetShowRect(const CRect& rect); // not turned
    // The font's direction: the rectangle's angle in whole degrees, cut toward zero. What is less than a
    // millionth of a degree short of a whole one counts as that, since the angle of 30 degrees is.
    void SetFontAngle(const FPRECT* pRect); // null is asserted and changes nothing

    // With auto bound on GetAutoRect(the rectangle, text), else nothing and FALSE.
    int AutoCacuBound(CDC* pDC, CString strText);
    // The four give rect, or the content's size, the width of the widest line and the height of all: lines
    // are broken at the width that rect has, measured on the screen. Left, top and angle stay. A single line
    // is measured whole, carriage returns with it. An empty text has one empty line on a single line, else
    // none. The size is that of the content in this object's rectangle. All answer TRUE.
    int GetAutoRect(CFPRect& rect, CString strText);
    int GetAutoRect(CFPRect& rect);
    int GetAutoRect(CSize& size);
    int GetAutoRect2(CFPRect& rect, CString strText); // lines as GetSingleText breaks them
    // A frame as large as the content on one line, its left top w/2 away from the point in the direction
    // opposite to the angle, y counted downwards: callers rely on this. It does not centre the content for
    // other angles than 0 (and there beside, not above, the point); for a centred label at any angle set the
    // slope centre of a rectangle of GetAutoRect's size.
    int GetAutoRect(CFPRect& rect, CPoint& point, double angle);
    int AddNewRow(); // the rectangle's right side goes one line pitch further out; TRUE

    // The turned rectangle becomes the path of the device context. FALSE without a path.
    int SetDCPath(CDC* pDC);
    int CreateFontFromDialog(); // COrvFont::CreateFontFromDialog of the font

    // Draws the text into the rectangle, whose angle the font takes over.
    //
    // - A single line ends at a carriage return, or runs on to the end of the text, however wide, when it is
    //   wider than the rectangle; clipping keeps what fits.
    // - Without line feed the first line that is too wide runs on to the end of the text (clipping keeps what
    //   fits) and is the last: what stands behind it on lines of its own is not drawn. Callers rely on it.
    // - With clipping a rectangle narrower than one character draws nothing, background and border included,
    //   and lines end where the next one's bottom would lie below the rectangle's, which is looked at as if
    //   it were not turned.
    // - The block's alignment moves the top of the rectangle straight down or up, not along a turned side.
    //   Background, border and shade show the rectangle with that top; then it is as it was. But an empty
    //   text draws nothing and leaves the top moved. Centred blocks lie half the font's height below the
    //   middle. Callers rely on all three.
    // - The shade is what shows of the rectangle, moved 6 to the right and down, in COLOR_3DDKSHADOW, and
    //   lies over the border's right and lower sides.
    // - Background, border and shade of a rectangle more than a million pixels wide or high are left out, the
    //   shade also of one of more than a million units.
    // - The line pitch is the font's height, its external leading and the row distance.
    void Draw(CDC* pDC, const CString& strText);
    void Draw(CDC* pDC);
    // The same with lines as GetSingleText breaks them, between carriage returns; a backspace that ends a
    // line is not drawn. Without line feed and clipping no line is too wide.
    void Draw2(CDC* pDC, const CString& strText);

    // What of the text fits into a line of size.cx (size.cy is not looked at), measured with the font that
    // the device context has; count is its length in bytes. A backspace ends a line before it. On a single
    // line, and without line feed and clipping, everything fits. With line feed the line ends before the
    // character that is too wide; clipping alone keeps it. A first character that is too wide is taken alone,
    // with clipping it is not.
    CString GetSingleText(CDC* pDC, CString strText, CSize size, int& count);
    // One line from (rc.left, rc.top), aligned within rc's width along the angle of this object's rectangle,
    // with the font and the attributes that the device context has.
    void DrawSingleText(CDC* pDC, CString strText, CRect rc);
    // A prompt, as in an empty field: one upright grey line in the object's font, aligned by the row
    // alignment, half-way up the rectangle and cut with dots where it is too long.
    void DrawClueText(CDC* pDC, CRect rect, CString strText);

    // Background mode, shade flag, single row height and auto bound are not stored; a loaded object keeps
    // its own. A load that throws leaves the object as it was.
    void Serialize(CArchive& ar) override;
    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;

private:
    struct Fields {
        UINT nBkMode;
        COLORREF crBk;
        COLORREF crBorder;
        UINT nRop2;
        UINT nDrawMode;
        COLORREF crText;
        LONG nRowDist;
        LONG nCharDist;
        UINT nRowAlign;
        UINT nColAlign;
        UINT nTabCountSpace;
        BOOL bDrawBorder;
        BOOL bAutoLinefeed;
        BOOL bAutoClip;
        BOOL bDrawShade;
        BOOL bDrawClearanceShade;
        BOOL bSingleline;
        BOOL bDrawFontLine;
        BOOL bAutoCacuBound;
        LONG nShadeOffset;
        int nSingleRowHeight;
        double dShadeDist;
    };
    void InitFields();
    void RealiseFont();
    void PrepareMeasuring(CDC& dc);
    void PrepareDrawing(CDC& dc);
    double Angle() const;
    LONG Pitch(const CDC& dc) const;
    LONG Step(LONG nPitch) const;
    LONG LeastWidth(orv::TextMeasurer& measurer, const CString& strText) const;
    orv::LineBreaker Breaker(orv::TextMeasurer& measurer, const CString& strText, LONG nWidth,
                             orv::BreakKind kind) const;
    int MeasureBlock(CFPRect& rect, const CString& strText, orv::BreakKind kind);
    void AlignBlock(CDC& dc, const CString& strText, orv::BreakKind kind);
    void DrawBlock(CDC* pDC, const CString& strText, orv::BreakKind kind);
    void DrawPrepared(CDC& dc, const CString& strText, orv::BreakKind kind);
    void DrawLines(CDC& dc, orv::LineBreaker& lines, const CString& strText, LONG nWidth) const;
    void DrawAligned(CDC& dc, LPCTSTR pszText, int nCount, LONG nSpare, CPoint origin) const;
    void FillBackground(CDC& dc) const;
    void DrawBorder(CDC& dc) const;
    void DrawShade(CDC& dc) const;

    Fields m_fields;
    COrvFont m_font;
    CFPRect m_rect;
    CString m_strContent;
};
