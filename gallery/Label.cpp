#include "Label.h"

namespace gallery {

Label::Label(int height) {
    m_text.InitSingleText();
    setFace(*m_text.LGetOrvFont(), height);
}

void Label::setFace(COrvFont& font, int height) {
    LOGFONT lf = {};
    font.GetLogFontFont(lf, TRUE);
    lf.lfHeight = -height;
    lf.lfCharSet = GB2312_CHARSET;
    lf.lfQuality = ANTIALIASED_QUALITY;
    font.SetLogFont(lf, FALSE);
    font.SetFontName("WenQuanYi Zen Hei", TRUE);
}

void Label::draw(CDC& dc, COLORREF color, int x, int y, const CString& line) {
    m_text.LSetTextColor(color);
    m_text.SetShowRect(CRect(x, y, x, y));
    m_text.Draw(&dc, line);
}

CSize Label::extent(const CString& line) {
    CFPRect rect;
    m_text.GetAutoRect(rect, line);
    return CSize(rect.GetWidth(), rect.GetHeight());
}

} // namespace gallery
