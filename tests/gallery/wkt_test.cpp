#include "gallery/Wkt.h"
#include "gallery/WktNames.h"

#include <gtest/gtest.h>

using gallery::parseWkt;
using gallery::WktError;
using gallery::WktLines;
using namespace std::string_view_literals;

namespace {

// One letter a figure: its number of points, 'o' behind it when it is a ring.
std::string figuresOf(const WktLines& lines) {
    std::string text;
    for (const gallery::WktFigure& figure : lines.figures)
        text += std::to_string(figure.count) + (figure.closed ? "o " : " ");
    return text;
}

struct Parsed {
    explicit Parsed(std::string_view text) : good(parseWkt(text, lines, error)) {}
    WktLines lines;
    WktError error;
    bool good;
};

struct AcceptRow {
    const char* text;
    const char* figures;
    double lastX, lastY; // of the last point kept
};

const AcceptRow acceptRows[] = {
    {"LINESTRING(1 2,3 4)", "2 ", 3, 4},
    {"linestring ( 1\t2 , 3  4 ) ", "2 ", 3, 4},
    {"LineString(-1.5e2 +.5,1. 2,7 8)", "3 ", 7, 8},
    {"LINESTRING(0 0,-1e15 1E15)", "2 ", -1e15, 1e15},
    {"LINESTRING Z (1 2 9,3 4 9)", "2 ", 3, 4},
    {"LINESTRINGZM(1 2 9 8,3 4 9 8)", "2 ", 3, 4},
    {"linestring m(1 2 9,3 4 9)", "2 ", 3, 4},
    {"LINESTRING(1 2 9,3 4 9)", "2 ", 3, 4},
    {"MULTILINESTRING((1 2,3 4),(5 6,7 8,9 10))", "2 3 ", 9, 10},
    {"POLYGON((0 0,4 0,4 3,0 0))", "3o ", 4, 3},
    {"POLYGON((0 0,9 0,9 9,0 9,0 0),(1 1,2 1,2 2,1 1))", "4o 3o ", 2, 2},
    {"MULTIPOLYGON(((0 0,4 0,4 3,0 0)),((5 5,6 5,6 6,5 5),(5 5,6 5,6 7,5 5)))", "3o 3o 3o ", 6, 7},
    {"POLYGON Z ((0 0 1,4 0 2,4 3 3,0 0 4))", "3o ", 4, 3},
    {"MULTILINESTRING(EMPTY,(1 2,3 4))", "2 ", 3, 4},
    {"LINESTRING(1 2,3 4)\nPOINT(8 8)\nPOINT Z EMPTY", "2 ", 3, 4},
    {"\xEF\xBB\xBFLINESTRING(1 2,3 4)\r\n\r\n# a comment\r\n  LINESTRING(5 6,7 8) # another\r\n", "2 2 ", 7,
     8},
    {"# \xB1\xB1\xBE\xA9 (((\nLINESTRING(1 2,3 4)", "2 ", 3, 4},
    // The dimension belongs to its geometry alone.
    {"LINESTRING(1 2 9,3 4 9)\nLINESTRING(1 2,3 4)", "2 2 ", 3, 4},
    // A line that ends where it began is a line still.
    {"LINESTRING(0 0,4 0,4 3,0 0)", "4 ", 0, 0},
};

TEST(Wkt, Accepts) {
    for (const AcceptRow& row : acceptRows) {
        SCOPED_TRACE(row.text);
        const Parsed parsed(row.text);
        ASSERT_TRUE(parsed.good) << parsed.error.line << ":" << parsed.error.column << ": "
                                 << parsed.error.text;
        EXPECT_EQ(figuresOf(parsed.lines), row.figures);
        EXPECT_EQ(parsed.lines.points.back().x, row.lastX);
        EXPECT_EQ(parsed.lines.points.back().y, row.lastY);
    }
}

TEST(Wkt, TextsWithoutLinesGiveNone) {
    for (const char* text : {"", "\n\n", "# nothing", "POINT(1 2)", "LINESTRING EMPTY", "multipolygon empty",
                             "POLYGON ZM EMPTY", "\xEF\xBB\xBF", "\r\n"}) {
        const Parsed parsed(text);
        EXPECT_TRUE(parsed.good) << text << parsed.error.text;
        EXPECT_TRUE(parsed.lines.figures.empty()) << text;
    }
}

struct RejectRow {
    std::string_view text;
    size_t line, column;
    const char* part; // of the message
};

const RejectRow rejectRows[] = {
    {"LINESTRING(1 2,3 4", 1, 19, "found the end of the line"},
    {"LINESTRING(1 2,3 4\n)", 1, 19, "found the end of the line"},
    {"LINESTRING(1 2,3 4))", 1, 20, "after the geometry"},
    {"LINESTRING(1 2,3 4) LINESTRING(1 2,3 4)", 1, 21, "after the geometry"},
    {"LINESTRING", 1, 11, "'(' or EMPTY"},
    {"LINESTRING 1 2,3 4", 1, 12, "'(' or EMPTY"},
    {"LINESTRING()", 1, 12, "expected a number, found ')'"},
    {"LINESTRING(1 2)", 1, 15, "at least two points"},
    {"LINESTRING(1,2)", 1, 13, "expected a number, found ','"},
    {"LINESTRING((1 2,3 4))", 1, 12, "expected a number, found '('"},
    {"LINESTRING(1 2 3 4 5,6 7)", 1, 20, "',' or ')'"},
    {"LINESTRING(1 2 3 4, 5 6)", 1, 24, "expected a number"}, // a comma forgotten
    {"LINESTRING(1 2,3 4 5)", 1, 20, "',' or ')'"},
    {"LINESTRING Z (1 2,3 4)", 1, 18, "expected a number"},
    {"LINESTRING ZM (1 2 3,3 4 5)", 1, 21, "expected a number"},
    {"LINESTRING(nan 2,3 4)", 1, 12, "expected a number, found 'n'"},
    {"LINESTRING(1 -inf,3 4)", 1, 15, "expected a digit"},
    {"LINESTRING(1e999 2,3 4)", 1, 12, "out of range"},
    {"LINESTRING(1 2,3 -1.1e15)", 1, 18, "out of range"},
    {"LINESTRING(. 2,3 4)", 1, 12, "expected a number"},
    {"LINESTRING(0x10 2,3 4)", 1, 13, "after the number"},
    {"LINESTRING(1.2.3 2,3 4)", 1, 15, "after the number"},
    {"POLYGON((0 0,4 0,4 3,0 1))", 1, 25, "not closed"},
    {"POLYGON((0 0,4 0,0 0))", 1, 21, "at least four points"},
    {"POLYGON(0 0,4 0,4 3,0 0)", 1, 9, "'(' or EMPTY"},
    {"POLYGON((((0 0,4 0,4 3,0 0))))", 1, 10, "expected a number"},
    {"MULTIPOLYGON((0 0,4 0,4 3,0 0))", 1, 15, "'(' or EMPTY"},
    {"MULTIPOLYGON(((0 0,4 0,4 3,0 0))", 1, 33, "',' or ')'"},
    {"POINT(1)", 1, 8, "expected a number"},
    {"POINT(1 2,3 4)", 1, 10, "expected ')'"},
    {"GEOMETRYCOLLECTION(POINT(1 2))", 1, 1, "not a geometry that can be drawn"},
    {"LINESTRINGX(1 2,3 4)", 1, 1, "not a geometry that can be drawn"},
    {"\n\r\n  42", 3, 3, "expected a geometry, found '4'"},
    {"\xEF\xBB\xBF?", 1, 1, "expected a geometry, found '?'"},
    {"\xFF\xFEL", 1, 1, "byte 0xFF"},
    {"LINESTRING(1 2\0,3 4)"sv, 1, 15, "byte 0x00"},
    {"LINESTRING(1 2,3 4)\nLINESTRING(1 2,3 4)\nLINESTRING(1 2,3 x)", 3, 18, "expected a number"},
};

TEST(Wkt, RejectsAndPointsAtTheFault) {
    for (const RejectRow& row : rejectRows) {
        SCOPED_TRACE(row.text);
        const Parsed parsed(row.text);
        EXPECT_FALSE(parsed.good);
        EXPECT_EQ(parsed.error.line, row.line);
        EXPECT_EQ(parsed.error.column, row.column) << parsed.error.text;
        EXPECT_NE(parsed.error.text.find(row.part), std::string::npos) << parsed.error.text;
        EXPECT_TRUE(parsed.lines.points.empty() && parsed.lines.figures.empty());
    }
}

TEST(Wkt, RejectsEveryTruncation) {
    const std::string whole = "MULTIPOLYGON(((0 0,4 0,4 3,0 0)),((5 5,6 5,6 6,5 5)))";
    for (size_t length = 1; length < whole.size(); ++length) {
        const Parsed parsed(std::string_view(whole).substr(0, length));
        EXPECT_FALSE(parsed.good) << length;
        EXPECT_LE(parsed.error.column, length + 1);
    }
}

TEST(Wkt, TenMegabytesInOneLine) {
    std::string text = "LINESTRING(0 0";
    for (int i = 1; i < 800'000; ++i)
        text += "," + std::to_string(i) + ".25 " + std::to_string(i % 1000);
    ASSERT_GT(text.size(), 10'000'000u);
    const Parsed parsed(text + ")");
    EXPECT_TRUE(parsed.good) << parsed.error.text;
    EXPECT_EQ(parsed.lines.points.size(), 800'000u);
}

TEST(Wkt, LongRunsOfOneByteEndQuickly) {
    // Each would take hours if anything were scanned again from its start.
    for (const char* run : {"(", " ", "1", "A", "\n", "-", "0.", "#", ","}) {
        std::string text = "LINESTRING(";
        while (text.size() < 4'000'000)
            text += run;
        EXPECT_FALSE(Parsed(text).good) << run;
    }
}

TEST(WktNames, AreTheCommentsBehindPoints) {
    const std::string_view text =
        "# POINT(1 2) # none\nPOINT(1.5 -2) # first\r\nPOINT(3 4)\nLINESTRING(1 2,3 4) # no\n"
        "POINT(5) # no\nPOINT(1 2) # \nPOINT(7 8) # last";
    std::string seen;
    for (const gallery::WktName& name : gallery::namedPoints(text))
        seen += std::to_string(int(name.point.x * 10)) + " " + std::to_string(int(name.point.y)) + " " +
                std::string(name.name) + ";";
    EXPECT_EQ(seen, "15 -2 first;70 8 last;");
    EXPECT_TRUE(gallery::namedPoints("").empty());
}

} // namespace
