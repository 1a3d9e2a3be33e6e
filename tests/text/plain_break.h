#pragma once

// Line breaking as it is told: one character more each time, every prefix measured alone.

#include <orvfc/text/LineBreak.h>

#include <numeric>
#include <vector>

namespace orv::test {

// A made-up font: pairs are 14 wide, 'i' 3, control codes -2, everything else 7.
class MadeUpFont {
public:
    const int* prefixes(std::string_view text) {
        measured += text.size();
        extents_.assign(text.size(), 0);
        int extent = 0;
        for (size_t i = 0; i < text.size(); ++i) {
            const auto byte = static_cast<unsigned char>(text[i]);
            const bool pair = byte >= 0x80 && i + 1 < text.size();
            extent += pair ? 14 : byte == 'i' ? 3 : byte < 32 ? -2 : 7;
            extents_[i] = extent;
            if (pair)
                extents_[++i] = extent;
        }
        return extents_.data();
    }
    int extent(std::string_view text) { return text.empty() ? 0 : prefixes(text)[text.size() - 1]; }
    MeasurePrefixes measure() {
        return [this](std::string_view text) { return prefixes(text); };
    }

    size_t measured = 0; // bytes

private:
    std::vector<int> extents_;
};

inline std::vector<TextLine> plainLines(std::string_view text, const BreakRules& rules) {
    MadeUpFont font;
    std::vector<TextLine> lines;
    for (size_t at = 0; at < text.size();) {
        size_t end = at, step = 0;
        bool tooWide = false;
        while (end < text.size() && text[end] != '\r' && !tooWide) {
            step = (text[end] & 0x80) != 0 && end + 1 < text.size() ? 2 : 1;
            end += step;
            tooWide = font.extent(text.substr(at, end - at)) > rules.width;
        }
        size_t next = end;
        if (tooWide) {
            const size_t fitting = end - step;
            if (!rules.singleLine && rules.autoLinefeed)
                next = end = fitting > at ? fitting : end;
            else {
                end = rules.autoClip ? fitting : text.size();
                next = text.size();
            }
        }
        if (next < text.size() && text[next] == '\r')
            next += text.substr(next, 2) == "\r\n" ? 2 : 1;
        lines.push_back({at, end - at, font.extent(text.substr(at, end - at))});
        at = rules.singleLine ? text.size() : next;
    }
    return lines;
}

} // namespace orv::test
