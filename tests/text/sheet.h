#pragma once

#include <afxwin.h>

#include <math.h>

#include <functional>
#include <string>
#include <vector>

#include <orvfc/text/FontAppFile.h>

#include "support/metafile_strokes.h"

namespace orv::test {

using Seen = std::vector<std::string>;

constexpr double kDegree = 3.14159265358979323846 / 180;

// What is drawn on a metafile.
inline Seen drawn(const std::function<void(CDC&)>& draw) {
    CMetaFileDC dc;
    dc.CreateEnhanced(NULL, NULL, NULL, NULL);
    draw(dc);
    HENHMETAFILE file = dc.CloseEnhanced();
    Seen seen = visibleStrokes(file);
    ::DeleteEnhMetaFile(file);
    return seen;
}

inline Seen drawn(COrvDrawText& text, const CString& content) {
    return drawn([&](CDC& dc) { text.Draw(&dc, content); });
}

// Broken lines from (100, 200), the width given, at the angle.
class Block : public COrvDrawText {
public:
    explicit Block(LONG width = 1000, double angle = 0, LONG height = 400) {
        LSetSingleline(FALSE);
        LSetFPRect(CFPRect(100, 200, 100 + width, 200 + height, angle));
    }
};

// The same font on a context of the test's own, measured by the plain calls.
class Ruler {
public:
    explicit Ruler(COrvDrawText& text) {
        dc_.CreateCompatibleDC(NULL);
        text.LGetOrvFont()->CopytoFont(&font_);
        old_ = dc_.SelectObject(&font_);
        dc_.SetTextCharacterExtra(text.LGetCharDist());
    }
    ~Ruler() { dc_.SelectObject(old_); }

    LONG width(const CString& text) { return dc_.GetTextExtent(text).cx; }
    LONG fontHeight() { return metrics().tmHeight; }
    LONG pitch(LONG rowDist) { return metrics().tmHeight + metrics().tmExternalLeading + rowDist; }

private:
    TEXTMETRIC metrics() {
        TEXTMETRIC tm;
        dc_.GetTextMetrics(&tm);
        return tm;
    }
    CDC dc_;
    CFont font_;
    CFont* old_;
};

inline std::string textLine(LONG x, LONG y, const char* text, int escapement = 0, unsigned color = 0) {
    char part[64];
    snprintf(part, sizeof(part), "text %d,%d ", int(x), int(y));
    std::string line = part + std::string(text);
    snprintf(part, sizeof(part), " %06X", color);
    line += part;
    return escapement ? line + " turned " + std::to_string(escapement) : line;
}

} // namespace orv::test
