#include "LineBreak.h"

#include <utility>

#include "TextBytes.h"

namespace orv {

namespace {

constexpr char kReturn = '\r';
constexpr char kLinefeed = '\n';
constexpr char kBackspace = '\b';
constexpr size_t kFirstPortion = 64;

// The first place at or behind `at`, on a character, where stop stands or `end` is reached.
size_t findCharacter(std::string_view text, size_t at, size_t end, char stop) {
    while (at < end && text[at] != stop)
        at += characterBytes(text, at);
    return at;
}

} // namespace

LineBreaker::LineBreaker(std::string_view text, BreakKind kind, const BreakRules& rules,
                         MeasurePrefixes measure)
    : m_text(text), m_kind(kind), m_rules(rules), m_measure(std::move(measure)), m_portion(kFirstPortion) {}

int LineBreaker::extentOf(std::string_view text) {
    return text.empty() ? 0 : m_measure(text)[text.size() - 1];
}

// Portions grow twofold and are measured from the line's beginning, as prefixes are.
LineBreaker::Run LineBreaker::measureRun(std::string_view text, char stop) {
    Run run = {};
    size_t end = 0;
    for (size_t portion = m_portion;; portion *= 2) {
        end = findCharacter(text, end, portion < text.size() ? portion : text.size(), stop);
        const int* extents = end > 0 ? m_measure(text.substr(0, end)) : nullptr;
        while (run.count < end) {
            const size_t bytes = characterBytes(text, run.count);
            const int extent = extents[run.count + bytes - 1];
            if (extent > m_rules.width) {
                run.overflow = bytes;
                run.overflowExtent = extent;
                m_portion = run.count + run.count / 4 + 16;
                return run;
            }
            run.count += bytes;
            run.extent = extent;
        }
        if (end >= text.size() || text[end] == stop)
            return run;
    }
}

void LineBreaker::skipLineEnd() {
    if (m_at < m_text.size() && m_text[m_at] == kReturn)
        ++m_at;
    else
        return;
    if (m_at < m_text.size() && m_text[m_at] == kLinefeed)
        ++m_at;
}

TextLine LineBreaker::nextRun() {
    const std::string_view rest = m_text.substr(m_at);
    const Run run = measureRun(rest, kReturn);
    TextLine line = {m_at, run.count, run.extent};
    if (run.overflow == 0) {
        m_at += run.count;
        skipLineEnd();
    } else if (m_rules.autoLinefeed && !m_rules.singleLine) {
        if (run.count == 0) { // wider than the line and alone on it: a return behind it ends this line
            line.count = run.overflow;
            line.extent = run.overflowExtent;
        }
        m_at += line.count;
        skipLineEnd();
    } else {
        // Whatever stands behind the first line that is too wide is part of it or skipped, its line ends too.
        if (!m_rules.autoClip) {
            line.count = rest.size();
            line.extent = extentOf(rest);
        }
        m_at = m_text.size();
    }
    return line;
}

std::string_view LineBreaker::paragraph() {
    if (m_at >= m_paragraphEnd)
        m_paragraphEnd = findCharacter(m_text, m_at, m_text.size(), kReturn);
    return m_text.substr(m_at, m_paragraphEnd - m_at);
}

SingleText LineBreaker::singleText() {
    const std::string_view rest = m_kind == BreakKind::runs ? m_text.substr(m_at) : paragraph();
    if (m_rules.singleLine || (!m_rules.autoLinefeed && !m_rules.autoClip)) {
        const std::string_view whole = rest.substr(0, findCharacter(rest, 0, rest.size(), kBackspace));
        return {whole.size(), extentOf(whole), false};
    }
    const Run run = measureRun(rest, kBackspace);
    if (run.overflow == 0)
        return {run.count, run.extent, false};
    const bool first = run.count == 0;
    if (first && m_rules.autoClip)
        return {0, 0, true};
    if (first || !m_rules.autoLinefeed) // clipping alone keeps the character that crosses the edge
        return {run.count + run.overflow, run.overflowExtent, true};
    return {run.count, run.extent, true};
}

TextLine LineBreaker::nextSingleText() {
    const SingleText part = singleText();
    const TextLine line = {m_at, part.count, part.extent};
    m_at += part.count;
    if (part.tooWide && (part.count == 0 || !m_rules.autoLinefeed))
        m_at = m_text.size();
    else if (m_at < m_paragraphEnd && m_text[m_at] == kBackspace)
        ++m_at;
    else if (m_at >= m_paragraphEnd)
        skipLineEnd();
    return line;
}

bool LineBreaker::next(TextLine& line) {
    if (m_at >= m_text.size())
        return false;
    line = m_kind == BreakKind::runs ? nextRun() : nextSingleText();
    if (m_rules.singleLine)
        m_at = m_text.size();
    return true;
}

} // namespace orv
