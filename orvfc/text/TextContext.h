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

// Extents of all prefixes of a text by one call, in the font that the context has. One that does not tell
// answers zeros.
class TextMeasurer {
public:
    explicit TextMeasurer(const CDC& dc) : m_hDC(attributeDC(dc)) {}

    const int* prefixes(std::string_view text) {
        const int nCount = static_cast<int>(text.size());
        // One more: a lead byte at the end is given two places.
        if (m_extents.size() < text.size() + 1)
            m_extents.resize(text.size() + 1);
        SIZE size;
        if (!::GetTextExtentExPointA(m_hDC, text.data(), nCount, 0, NULL, m_extents.data(), &size))
            m_extents.assign(m_extents.size(), 0);
        return m_extents.data();
    }
    int extent(std::string_view text) { return text.empty() ? 0 : prefixes(text)[text.size() - 1]; }

private:
    HDC m_hDC;
    std::vector<int> m_extents;
};

} // namespace orv
