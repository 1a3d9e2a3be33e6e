#include "ShapedFont.h"

#include <algorithm>
#include <vector>

#include "FontShape.h"

namespace {

constexpr LONG kHighestLine = 2; // of its characters' height; mathematical faces have lines of five and more

bool hasAllCharacters(CDC* pDC, const CString& text) {
    std::vector<WORD> glyphs(static_cast<size_t>(text.GetLength()) + 1);
    const DWORD count =
        ::GetGlyphIndicesA(pDC->m_hDC, text, text.GetLength(), glyphs.data(), GGI_MARK_NONEXISTING_GLYPHS);
    if (count == GDI_ERROR)
        return false;
    glyphs.resize(std::min<size_t>(count, glyphs.size()));
    return std::find(glyphs.begin(), glyphs.end(), WORD(0xFFFF)) == glyphs.end();
}

} // namespace

namespace orv {

LOGFONT shaped(LOGFONT lf, UINT nShape) {
    switch (nShape) {
    case ORVSHAPE_ITALIC:
        lf.lfItalic = TRUE;
        break;
    case ORVSHAPE_UNDERLINE:
        lf.lfUnderline = TRUE;
        break;
    case ORVSHAPE_BOLD:
        lf.lfWeight = FW_BOLD;
        break;
    default:
        break;
    }
    return lf;
}

LOGFONT fontOf(CDC* pDC) {
    LOGFONT lf = {};
    const CFont* pFont = pDC != NULL ? pDC->GetCurrentFont() : NULL;
    if (pFont == NULL || !pFont->GetLogFont(&lf))
        ::GetObjectA(::GetStockObject(DEFAULT_GUI_FONT), sizeof lf, &lf);
    return lf;
}

bool showsItsName(CDC* pDC, const CString& name) {
    TEXTMETRIC metrics;
    CString face;
    return name.Left(1) != "@" && pDC->GetTextMetrics(&metrics) && metrics.tmCharSet != SYMBOL_CHARSET &&
           metrics.tmHeight <= kHighestLine * (metrics.tmHeight - metrics.tmInternalLeading) &&
           pDC->GetTextFace(face) && face.CompareNoCase(name) == 0 && hasAllCharacters(pDC, name);
}

} // namespace orv
