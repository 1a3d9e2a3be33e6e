// The walk along segments, with a pattern of the test's own.

#include <orvfc/linestyle/PathWalk.h>

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

// Pieces of the given lengths in turn; like the patterns of the library it remembers what is left of a piece.
struct Ruler {
    std::vector<double> lengths;
    int drawType = 1;
    int refused = -1; // the piece that DrawDash refuses
    double left = lengths[0];
    int drawn = 0;
    std::string log = {};

    double GetLength(int) const { return left; }
    int GetDrawType() const { return drawType; }
    int DrawDash(double x1, double y1, double x2, double y2, int index) {
        char text[100];
        snprintf(text, sizeof(text), "%d:%g,%g-%g,%g ", index, x1, y1, x2, y2);
        if (++drawn <= 8)
            log += text;
        left -= sqrt((x2 - x1) * (x2 - x1) + (y2 - y1) * (y2 - y1));
        if (left < 0.01)
            left = lengths[(index + 1) % lengths.size()];
        return index != refused;
    }
};

const struct {
    const char* name;
    double piece, gap;
    const char* to;  // the ends of the segments from (0, 0) on
    const char* log; // the pieces; behind them result of the last segment, index, current point
    int drawType = 1, refused = -1;
} walkRows[] = {
    {"two pieces and a part", 18, 5, "30,0", "0:0,0-18,0 1:18,0-23,0 2:23,0-30,0 = 1 2 30,0"},
    {"short of a piece", 18, 5, "10,0", "0:0,0-10,0 = 1 0 10,0"},
    {"a piece bends at a vertex", 18, 5, "10,0 10,20",
     "0:0,0-10,0 0:10,0-10,8 1:10,8-10,13 2:10,13-10,20 = 1 2 10,20"},
    {"exactly one piece, then the next without length", 18, 5, "18,0", "0:0,0-18,0 1:18,0-18,0 = 1 1 18,0"},
    {"slanted", 5, 10, "6,8", "0:0,0-3,4 1:3,4-6,8 = 1 1 6,8"},
    {"another draw type leaves the rest of the segment", 10, 10, "15,0 10,15",
     "0:0,0-10,0 1:10,0-10,10 = 1 2 10,10", 0},
    {"a refused piece", 5, 5, "20,0", "0:0,0-5,0 1:5,0-10,0 = 0 1 10,0", 1, 1},
    {"a refused part", 5, 5, "7,0", "0:0,0-5,0 1:5,0-7,0 = 0 1 5,0", 1, 1},
    {"no length at all", 18, 5, "0,0", "0:0,0-0,0 = 1 0 0,0"},
    {"a gap of no length", 4, 0, "10,0", "0:0,0-4,0 1:4,0-4,0 2:4,0-8,0 3:8,0-8,0 4:8,0-10,0 = 1 4 10,0"},
    {"negative piece", 5, -1, "20,0", "0:0,0-5,0 = 0 1 5,0"},
    {"piece that is not a number", 5, kNaN, "20,0", "0:0,0-5,0 = 0 1 5,0"},
    {"endless piece", kInf, 0, "20,0", "0:0,0-20,0 = 1 0 20,0"},
    {"to infinity", 5, 5, "inf,0", "= 0 0 0,0"},
    {"to nowhere", 5, 5, "nan,0", "= 0 0 0,0"},
};

TEST(Walk, CutsSegmentsIntoPieces) {
    for (const auto& row : walkRows) {
        Ruler ruler = {{row.piece, row.gap}, row.drawType, row.refused};
        double x = 0, y = 0, toX, toY;
        int index = 0, result = -1, used;
        for (const char* to = row.to; sscanf(to, "%lf,%lf%n", &toX, &toY, &used) == 2; to += used)
            result = orv::walkSegment(ruler, x, y, index, toX, toY);
        char end[100];
        snprintf(end, sizeof(end), "= %d %d %g,%g", result, index, x, y);
        EXPECT_EQ(row.log, ruler.log + end) << row.name;
    }
}

TEST(Walk, EndsWhenPiecesLeadNowhere) {
    struct {
        const char* name;
        double length, to;
    } const rows[] = {
        {"no length", 0, 100},
        {"no length on no segment", 0, 0},
        {"a millionth in a thousand pieces", 1e-9, 100},
        {"lost in rounding", 5, 1e100},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Ruler ruler = {{row.length}};
        double x = 0, y = 0;
        int index = 0;
        EXPECT_EQ(0, orv::walkSegment(ruler, x, y, index, row.to, 0));
        EXPECT_EQ(64, ruler.drawn);
    }
    Ruler fine = {{1e-3}};
    double x = 0, y = 0;
    int index = 0;
    EXPECT_EQ(1, orv::walkSegment(fine, x, y, index, 1, 0)) << "small pieces get there";
}

TEST(Walk, PieceNumbersStartOverInStep) {
    for (int phases : {2, 4, 6})
        EXPECT_EQ(0, orv::kPieceNumberLimit % phases);
    Ruler ruler = {{5}};
    double x = 0, y = 0;
    int index = orv::kPieceNumberLimit - 2;
    EXPECT_EQ(1, orv::walkSegment(ruler, x, y, index, 17, 0));
    EXPECT_EQ("2147483638:0,0-5,0 2147483639:5,0-10,0 0:10,0-15,0 1:15,0-17,0 ", ruler.log);
    EXPECT_EQ(0, orv::nextPieceNumber(INT_MAX)) << "a number from a file";
    EXPECT_EQ(-4, orv::nextPieceNumber(-5));
}

} // namespace
