#pragma once

// Breaking a text of code page 936 into lines of a width, as COrvDrawText draws them. The rule measures the
// prefixes of a line, one character more each time; here one call measures all prefixes of a portion at once,
// so that the cost grows with the text and not with its square.

#include <functional>
#include <string_view>

namespace orv {

// The extents of the prefixes of a text: element i is that of the first i + 1 bytes. There are as many as the
// text has bytes, and they hold until the next call.
using MeasurePrefixes = std::function<const int*(std::string_view text)>;

struct BreakRules {
    int width;
    bool singleLine;
    bool autoLinefeed;
    bool autoClip;
};

struct TextLine {
    size_t start = 0;
    size_t count = 0; // bytes
    int extent = 0;
};

// What ends a line besides its width: a carriage return (with or without a line feed behind it), or a
// carriage return or a backspace, with the rules of COrvDrawText::GetSingleText for lines that are too wide.
enum class BreakKind { runs, singleTexts };

// The text that is drawn: up to its first zero.
constexpr std::string_view drawnText(std::string_view text) {
    return text.substr(0, text.find('\0'));
}

// A line as GetSingleText takes it from the front of the text.
struct SingleText {
    size_t count;
    int extent;
    bool tooWide; // a character went beyond the width
};

// Hands out the lines one by one. The text must outlive it.
class LineBreaker {
public:
    LineBreaker(std::string_view text, BreakKind kind, const BreakRules& rules, MeasurePrefixes measure);

    // False when no text remains. A line is never without a character unless the text has an empty line or
    // nothing of it fits and clipping is on.
    bool next(TextLine& line);

    // The line at the front of what remains; nothing is taken.
    SingleText singleText();

private:
    // The longest run of whole characters within the width, up to the stop character.
    struct Run {
        size_t count;
        int extent;
        size_t overflow;    // bytes of the character behind it that was too wide; 0: there was none
        int overflowExtent; // with that character
    };
    Run measureRun(std::string_view text, char stop);
    std::string_view paragraph();
    TextLine nextRun();
    TextLine nextSingleText();
    void skipLineEnd();
    int extentOf(std::string_view text);

    std::string_view m_text;
    BreakKind m_kind;
    BreakRules m_rules;
    MeasurePrefixes m_measure;
    size_t m_at = 0;
    size_t m_paragraphEnd = 0;
    size_t m_portion; // bytes measured at first: about a line
};

} // namespace orv
