#include "Wkt.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace gallery {
namespace {

struct Keyword {
    std::string_view name;
    int depth; // lists around a point: 0 is the point itself
    bool rings;
};

constexpr Keyword keywords[] = {
    {"POINT", 0, false},  {"LINESTRING", 1, false},  {"MULTILINESTRING", 2, false},
    {"POLYGON", 2, true}, {"MULTIPOLYGON", 3, true},
};

struct Dimension {
    std::string_view name;
    int numbers; // numbers in a point; 0: the first point of the geometry decides
};

constexpr Dimension dimensions[] = {{"", 0}, {"Z", 3}, {"M", 3}, {"ZM", 4}};

constexpr int fewestNumbers = 2;
constexpr int mostNumbers = 4;
constexpr size_t fewestLinePoints = 2;
constexpr size_t fewestRingPoints = 4;

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

bool isLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

char upper(char c) {
    return c >= 'a' && c <= 'z' ? char(c - 'a' + 'A') : c;
}

bool equalsIgnoringCase(std::string_view word, std::string_view name) {
    if (word.size() != name.size()) {
        return false;
    }
    for (size_t i = 0; i < word.size(); ++i) {
        if (upper(word[i]) != name[i]) {
            return false;
        }
    }
    return true;
}

const Dimension* findDimension(std::string_view word) {
    for (const Dimension& dimension : dimensions) {
        if (equalsIgnoringCase(word, dimension.name)) {
            return &dimension;
        }
    }
    return nullptr;
}

class Parser {
public:
    Parser(std::string_view text, WktLines& lines, WktError& error)
        : m_text(text), m_lines(lines), m_error(error) {}

    bool parse() {
        constexpr std::string_view mark = "\xEF\xBB\xBF";
        if (m_text.substr(0, mark.size()) == mark) {
            m_text.remove_prefix(mark.size());
        }
        for (; m_pos <= m_text.size(); nextLine()) {
            m_end = std::min(m_text.find('\n', m_pos), m_text.size());
            m_lineStart = m_pos;
            if (!parseLine()) {
                return false;
            }
        }
        return true;
    }

private:
    void nextLine() {
        m_pos = m_end + 1;
        ++m_line;
    }

    bool atEnd() const { return m_pos >= m_end; }

    char peek() const { return atEnd() ? '\n' : m_text[m_pos]; }

    void skipBlanks() {
        while (!atEnd() && isBlank(m_text[m_pos])) {
            ++m_pos;
        }
    }

    bool accept(char c) {
        skipBlanks();
        if (peek() != c) {
            return false;
        }
        ++m_pos;
        return true;
    }

    bool fail(size_t pos, std::string text) {
        m_error = {m_line, pos - m_lineStart + 1, std::move(text)};
        return false;
    }

    // For an error message: what stands where something else was expected.
    std::string found() const {
        if (atEnd()) {
            return "the end of the line";
        }
        const unsigned char c = static_cast<unsigned char>(peek());
        char text[16];
        std::snprintf(text, sizeof text, c > 0x20 && c < 0x7F ? "'%c'" : "byte 0x%02X", c);
        return text;
    }

    bool failExpected(const char* what) {
        return fail(m_pos, std::string("expected ") + what + ", found " + found());
    }

    std::string_view readWord() {
        skipBlanks();
        const size_t start = m_pos;
        while (!atEnd() && isLetter(m_text[m_pos])) {
            ++m_pos;
        }
        return m_text.substr(start, m_pos - start);
    }

    bool acceptWord(std::string_view name) {
        const size_t start = m_pos;
        if (equalsIgnoringCase(readWord(), name)) {
            return true;
        }
        m_pos = start;
        return false;
    }

    bool parseLine() {
        skipBlanks();
        if (!atEnd() && peek() != '#' && !parseGeometry()) {
            return false;
        }
        skipBlanks();
        return atEnd() || peek() == '#' || failExpected("the end of the line after the geometry");
    }

    bool parseGeometry() {
        const size_t start = m_pos;
        const Keyword* keyword = readKeyword();
        if (keyword == nullptr) {
            m_pos = start;
            return isLetter(peek()) ? fail(start, "not a geometry that can be drawn: expected LINESTRING, "
                                                  "MULTILINESTRING, POLYGON, MULTIPOLYGON or POINT")
                                    : failExpected("a geometry");
        }
        m_keyword = keyword;
        return parseList(keyword->depth);
    }

    // The keyword and its dimension, written apart ("POINT Z") or in one ("POINTZ").
    const Keyword* readKeyword() {
        const std::string_view word = readWord();
        for (const Keyword& keyword : keywords) {
            if (!equalsIgnoringCase(word.substr(0, keyword.name.size()), keyword.name)) {
                continue;
            }
            const Dimension* dimension = findDimension(word.substr(keyword.name.size()));
            if (dimension == nullptr) {
                return nullptr;
            }
            m_numbers = dimension->numbers;
            if (m_numbers == 0) {
                readDimension();
            }
            return &keyword;
        }
        return nullptr;
    }

    void readDimension() {
        const size_t start = m_pos;
        if (const Dimension* dimension = findDimension(readWord())) {
            m_numbers = dimension->numbers;
        } else {
            m_pos = start;
        }
    }

    bool parseList(int depth) {
        if (acceptWord("EMPTY")) {
            return true;
        }
        if (!accept('(')) {
            return failExpected("'(' or EMPTY");
        }
        if (depth == 0) {
            WktPoint point;
            return parsePoint(point) && closeList("')'");
        }
        if (depth == 1) {
            return parseFigure();
        }
        do {
            if (!parseList(depth - 1)) {
                return false;
            }
        } while (accept(','));
        return closeList("',' or ')'");
    }

    bool closeList(const char* expected) { return accept(')') || failExpected(expected); }

    bool parseFigure() {
        const size_t first = m_lines.points.size();
        do {
            WktPoint point;
            if (!parsePoint(point)) {
                return false;
            }
            m_lines.points.push_back(point);
        } while (accept(','));
        if (!closeList("',' or ')'")) {
            return false;
        }
        return m_keyword->rings ? endRing(first) : endLine(first);
    }

    bool endLine(size_t first) {
        const size_t count = m_lines.points.size() - first;
        if (count < fewestLinePoints) {
            return fail(m_pos - 1, "a line needs at least two points");
        }
        m_lines.figures.push_back({first, count, false});
        return true;
    }

    bool endRing(size_t first) {
        const size_t count = m_lines.points.size() - first;
        const WktPoint& head = m_lines.points[first];
        const WktPoint& tail = m_lines.points.back();
        if (head.x != tail.x || head.y != tail.y) {
            return fail(m_pos - 1, "the ring is not closed: its last point must repeat its first");
        }
        if (count < fewestRingPoints) {
            return fail(m_pos - 1, "a ring needs at least four points, the last repeating the first");
        }
        m_lines.points.pop_back();
        m_lines.figures.push_back({first, count - 1, true});
        return true;
    }

    bool parsePoint(WktPoint& point) {
        double numbers[mostNumbers] = {};
        const int wanted = m_numbers != 0 ? m_numbers : mostNumbers;
        int count = 0;
        while (count < wanted && (count < fewestNumbers || count < m_numbers || startsNumber())) {
            if (!parseNumber(numbers[count++])) {
                return false;
            }
        }
        m_numbers = count;
        point = {numbers[0], numbers[1]};
        return true;
    }

    bool startsNumber() {
        skipBlanks();
        const char c = peek();
        return isDigit(c) || c == '-' || c == '+' || c == '.';
    }

    bool parseNumber(double& value) {
        if (!startsNumber()) {
            return failExpected("a number");
        }
        const size_t start = m_pos;
        const char* end = m_text.data() + m_end;
        // The sign is taken here: from_chars knows no plus, and would take "inf" after a minus.
        const bool negative = peek() == '-';
        if (negative || peek() == '+') {
            ++m_pos;
        }
        if (!isDigit(peek()) && peek() != '.') {
            return failExpected("a digit");
        }
        const auto [stop, fault] = std::from_chars(m_text.data() + m_pos, end, value);
        if (fault == std::errc::invalid_argument) {
            return failExpected("a number");
        }
        if (fault != std::errc() || std::fabs(value) > wktLargestCoordinate) {
            return fail(start, "the number is out of range: coordinates run to 1e15 either way");
        }
        m_pos = size_t(stop - m_text.data());
        if (!atEnd() && !isBlank(peek()) && peek() != ',' && peek() != ')') {
            return failExpected("a blank, ',' or ')' after the number");
        }
        value = negative ? -value : value;
        return true;
    }

    std::string_view m_text;
    WktLines& m_lines;
    WktError& m_error;
    size_t m_pos = 0;
    size_t m_end = 0; // of the line in hand, before its line feed
    size_t m_lineStart = 0;
    size_t m_line = 1;
    const Keyword* m_keyword = nullptr;
    int m_numbers = 0; // numbers in each point of the geometry in hand; 0 before its first point
};

} // namespace

bool parseWkt(std::string_view text, WktLines& lines, WktError& error) {
    WktLines read;
    lines = {};
    if (!Parser(text, read, error).parse()) {
        return false;
    }
    lines = std::move(read);
    return true;
}

} // namespace gallery
