#pragma once

#include <orvfc/ORVFC.h>

namespace gallery {

// Lines of text on a sheet, drawn by COrvDrawText.
class Label {
public:
    // height: pixels of the characters.
    explicit Label(int height);

    // A Chinese face by its character set: the system has its own choice where this one is not installed.
    static void setFace(COrvFont& font, int height);

    void draw(CDC& dc, COLORREF color, int x, int y, const CString& line);
    CSize extent(const CString& line);

private:
    COrvDrawText m_text;
};

} // namespace gallery
