#pragma once

// What text drawing needs of a device context.

#include <afxwin.h>

#include <string_view>
#include <vector>

#include <orvfc/services/SavedDC.h>

namespace orv {

inline BOOL isUsable(CDC* pDC) {
    ASSERT(pDC != NULL);
    ASSERT(pDC == NULL || pDC->m_hDC != NULL);
    return pDC != NULL && pDC->m_hDC != NULL;
}

// Where attributes are asked: a metafile may have no context of its own for that.
inline HDC attributeDC(const CDC& dc) {
    return dc.m_hAttribDC != NULL ? dc.m_hAttribDC : dc.m_hDC;
}

// Zeros where the context does not tell.
inline TEXTMETRIC textMetrics(const CDC& dc) {
    TEXTMETRIC metrics = {};
    ::GetTextMetricsA(attributeDC(dc), &metrics);
    return metrics;
}

// The code page in which the context takes a text: the program's own, or that of its font's character set
// where the system makes two glyphs of one character's two bytes.
inline UINT codePageOf(HDC hDC) {
    const char szPair[] = "中";
    WORD glyphs[2];
    if (::GetGlyphIndicesA(hDC, szPair, 2, glyphs, 0) != 2)
        return CP_ACP;
    CHARSETINFO info;
    const auto charSet = reinterpret_cast<DWORD*>(static_cast<DWORD_PTR>(::GetTextCharset(hDC)));
    return ::TranslateCharsetInfo(charSet, &info, TCI_SRCCHARSET) ? info.ciACP : CP_ACP;
}

// Extents of all prefixes of a text by one call, in the font that the context has. One that does not tell
// answers zeros.
class TextMeasurer {
public:
    explicit TextMeasurer(const CDC& dc) : m_hDC(attributeDC(dc)), m_codePage(codePageOf(m_hDC)) {}

    // By the wide call: the narrow one may look for lead bytes in another code page than it has taken the
    // text in, and then gives two places to what has one, past the end.
    const int* prefixes(std::string_view text) {
        const int nCount = static_cast<int>(text.size());
        m_wide.resize(text.size());
        const int nWide = ::MultiByteToWideChar(m_codePage, 0, text.data(), nCount, m_wide.data(), nCount);
        m_wideExtents.resize(text.size());
        m_extents.assign(text.size(), 0);
        SIZE size;
        if (nWide > 0 &&
            ::GetTextExtentExPointW(m_hDC, m_wide.data(), nWide, 0, NULL, m_wideExtents.data(), &size))
            spread(text, nWide);
        return m_extents.data();
    }
    int extent(std::string_view text) { return text.empty() ? 0 : prefixes(text)[text.size() - 1]; }

private:
    // Both bytes of a character have its extent.
    void spread(std::string_view text, int nWide) {
        int nAt = 0;
        for (size_t i = 0; i < text.size(); ++i) {
            const int nExtent = m_wideExtents[nAt];
            m_extents[i] = nExtent;
            if (::IsDBCSLeadByteEx(m_codePage, static_cast<BYTE>(text[i])) && i + 1 < text.size())
                m_extents[++i] = nExtent;
            if (nAt + 1 < nWide)
                ++nAt;
        }
    }

    HDC m_hDC;
    UINT m_codePage;
    std::vector<WCHAR> m_wide;
    std::vector<int> m_wideExtents;
    std::vector<int> m_extents;
};

} // namespace orv
