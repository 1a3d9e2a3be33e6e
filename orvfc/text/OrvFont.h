#pragma once

#include <afxwin.h>

#include <orvfc/OrvApi.h>

// A font description: a LOGFONT, a colour, a size in points and a zoom factor, with the GDI font that is made
// from the LOGFONT.
//
// A setter's last argument, nRecreate, makes the GDI font anew when it is not 0. With 0 only the description
// changes, and GetFont() is out of date until ReCreateFont().
//
// Heights are in pixels of the screen, negative as GDI takes them for the height of the characters without
// their leading. Angles are whole degrees, counter-clockwise as seen.
//
// Nothing is asked of the values: those that GDI cannot take (heights beyond 32,767) are kept as they are and
// limited for the GDI font alone. Objects copy by value, and each has a GDI font of its own.
class ORVFC_API COrvFont : public CObject {
    DECLARE_SERIAL(COrvFont)

public:
    // As after init().
    COrvFont();
    COrvFont(const COrvFont& font);
    ~COrvFont() override;
    COrvFont& operator=(const COrvFont& font);
    COrvFont& operator=(CFont& font); // the LOGFONT alone; nothing happens when the font holds no GDI font

    // "宋体" at 15 points, upright, neither bold nor italic nor underlined, black, zoom 1. GetFontSize()
    // answers 20 until a size is set, though the height is that of 15 points: callers know both.
    void init();

    CString GetFontName() const;
    // Names of more than 31 bytes are cut at the last whole character.
    void SetFontName(CString strName, int nRecreate);
    // The size in points last given to SetFontSize; other ways to the height (zoom, the dialog) leave it.
    int GetFontSize() const;
    void SetFontSize(int nSize, int nRecreate);
    int GetFontAngle() const; // cut toward zero
    void SetFontAngle(int nDegrees, int nRecreate);
    int GetFontBold() const; // 1 from a weight of 700 on
    void SetFontBold(int bBold, int nRecreate);
    // The low byte of the argument is kept as it is, also in SetFontUnderline.
    int GetFontItalic() const;
    void SetFontItalic(int bItalic, int nRecreate);
    int GetFontUnderline() const;
    void SetFontUnderline(int bUnderline, int nRecreate);
    int GetFontHeight() const;
    void SetFontHeight(int nHeight, CString strName, int nRecreate); // GetFontSize() stays
    double GetZoomModu() const;
    // Multiplies the height as it is now, cut toward zero: 2 given twice is four times the height. To zoom
    // absolutely set the size again first. A zoom that is not a number is kept and leaves the height.
    void SetZoomModu(double dZoom, int nRecreate);
    COLORREF GetFontColor() const;
    void SetFontColor(COLORREF cr);
    // The steps in this order, each making the GDI font anew, and once more with nRecreate. The shorter forms
    // set the name and the size, and the name, the size and the angle.
    void SetFontAttribute(CString strName, int nSize, int nAngle, int bBold, int bItalic, int bUnderline,
                          int nRecreate);
    void SetFontAttribute(CString strName, int nSize, int nRecreate);
    void SetFontAttribute(CString strName, int nSize, int nAngle, int nRecreate);

    // bDescription not 0: the description; 0: what the GDI font says of itself. FALSE without a GDI font.
    int GetLogFontFont(LOGFONT& lf, int bDescription) const;
    int SetLogFont(const LOGFONT& lf, int nRecreate); // TRUE
    CFont* GetFont();                                 // belongs to this object
    // The LOGFONT of the font given, which stays the caller's. Null: a trace, and nothing happens.
    void SetFont(CFont* pFont);
    // The target gets a GDI font of this description, in place of its own. FALSE for null (asserted).
    int CopytoFont(CFont* pFont) const;
    int Set(CFont* pFont) const;
    int Set(LOGFONT* pLogFont) const; // FALSE for null (asserted)
    void ReCreateFont();

    // The extent of one line of text on the screen, in pixels, tabs not expanded. (0, 0) without a screen.
    CSize GetTextRect(CString strText);
    int GetTextHeight();
    // "宋体 15   ": the face, the points of the height, "粗体" or a blank, each with a blank behind it.
    CString GetSubscrible() const;
    // The system's font dialog over the active window. FALSE when it was left without OK: nothing has
    // changed.
    int CreateFontFromDialog();

    // Points of a height, cut toward zero (-13 at 96 pixels an inch: 9), and the height for points, rounded.
    static int ConvertSizeFromHeight(int nHeight);
    static int ConvertHeightFromSize(int nSize);
    // A new font, which the caller deletes: the system's status-bar font with this size or height and, unless
    // it is empty or null, this face. Null when the system makes none.
    static CFont* CreateFontFromSize(int nSize, const char* pszFace);
    static CFont* CreateFontFromHieght(int nHeight, const char* pszFace);

    // The description is taken from the GDI font first, so that what was set with a recreate flag of 0 is not
    // stored. Loading leaves the GDI font: call ReCreateFont(). A load that throws leaves the object as it
    // was.
    void Serialize(CArchive& ar) override;
    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;

private:
    struct Stored;
    void Recreate(int nRecreate) {
        if (nRecreate)
            ReCreateFont();
    }

    CFont m_font;
    LOGFONT m_lf;
    double m_dZoomModu;
    int m_nFontSize;
    COLORREF m_crFont;
    double m_dNominalSize; // points; only copied and stored
    int m_nVersion;
};
