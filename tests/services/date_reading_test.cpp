// Dates read back from texts, and the rows that a scale's object holds.

#include <orvfc/services/DateFormat.h>

#include <gtest/gtest.h>

#include <string>

#include "afx/afx_test.h"
#include "dates.h"

namespace {

using orv::test::day;
using Format = CORVDateFormat;

constexpr double kUntouched = 12345.5;

TEST(DateReading, ReadsEveryLabelThatTellsTheYear) {
    const struct {
        int unit; // whose beginning is told; weeks are told by a day of theirs
        std::vector<int> styles;
    } rows[] = {{0, {0, 1, 2}},
                {1, {35, 36}},
                {2, {15, 16, 17, 18}},
                {3, {59, 60}},
                {5, {70, 71, 72, 73, 74, 95, 96, 97, 101, 102}}};
    for (const auto& row : rows)
        for (int style : row.styles)
            for (double written = day(1000101); written <= day(99991231); written += 997) {
                const CString label = Format::GetDateString(style, written);
                double read = kUntouched;
                ASSERT_EQ(1, Format::GetDataFromFormatString(label, read)) << style << " " << label;
                ASSERT_EQ(Format::GetNextScale(row.unit, 0, written), read) << style << " " << label;
            }
}

using Reader = int (*)(CString, double&);

void expectRead(Reader read, const CString& text, double expected) {
    double date = kUntouched;
    EXPECT_EQ(1, read(text, date)) << text;
    EXPECT_EQ(expected, date) << text;
}

void expectRefused(Reader read, const CString& text) {
    double date = kUntouched;
    EXPECT_EQ(0, read(text, date)) << text;
    EXPECT_EQ(kUntouched, date) << text;
}

TEST(DateReading, Labels) {
    const struct {
        const char* text;
        int date;
    } rows[] = {{"  2000-02-29\r\n", 20000229},
                {"2000年02月09日", 20000209},
                {"二零零零年十二月三十一日", 20001231},
                {"2000-1-1周六", 20000101},
                {"2000-12-11", 20001211},
                {"2000-12-12", 20001212},
                {"2000年4季度", 20001001},
                {"0100", 1000101},
                {"9999年12月下旬", 99991221}};
    for (const auto& row : rows)
        expectRead(Format::GetDataFromFormatString, row.text, day(row.date));
    // A Saturday, days and months that are none, a text cut inside a character, nothing.
    for (const char* text :
         {"2000-1-1周一", "二零零零年十月三十二日", "二零零零年零月", "\xB6\xFE\xC1", "", "   "})
        expectRefused(Format::GetDataFromFormatString, text);
    for (const char* text :
         {"2001-2-29", "1900年2月29日", "2000-4-31", "2000-0-1", "2000-1-0", "2000-13-1", "2000-1-32",
          "2000-001-1", "0099-12-31", "10000-1-1", "200-1-1", "2000-1-1 ,", "2000- 1-1", "2000年5季度",
          "2000年十三月", "二千年", "第3年", "12月31日", "%d%d%d%d"})
        expectRefused(Format::GetDataFromFormatString, text);
}

TEST(DateReading, Numbers) {
    const struct {
        const char* text;
        double date;
    } rows[] = {{"36526", 36526},
                {" +36526.25\t", 36526.25},
                {"-1.25", -1.25},
                {"3.6526e4", 36526},
                {"0", 0},
                {"-657434", -657434},
                {"2958465.5", 2958465.5},
                {"1.7976931348623157e308", DBL_MAX}};
    for (const auto& row : rows)
        expectRead(Format::GetDataFromDouString, row.text, row.date);
    for (const char* text :
         {"-1.7976931348623157e+308", "-657435", "2958466", "1e999", "nan", "inf", "-infinity", "0x10",
          "36526,5", "36526 5", "+-1", "++1", "e5", ".", "2000-1-1", ""})
        expectRefused(Format::GetDataFromDouString, text);
    CString text;
    text.Format("%f", DBL_MAX); // 309 digits
    expectRead(Format::GetDataFromDouString, text, DBL_MAX);
    for (double date : {0.1, -36526.123456789, 2958465.999, 1.0 / 3}) {
        text.Format("%.17g", date);
        expectRead(Format::GetDataFromDouString, text, date);
    }
}

// A zero byte ends no text: what stands behind it is not overlooked.
TEST(DateReading, ZeroBytes) {
    expectRefused(Format::GetDataFromFormatString, CString("2000-1-1\0x", 10));
    expectRefused(Format::GetDataFromDouString, CString("36526\0x", 7));
}

TEST(DateFormatRows, CopiesHaveRowsOfTheirOwn) {
    Format scale;
    scale.AddStyle(0, 1);
    scale.AddStyle(-7, INT_MAX);
    Format copy(scale);
    Format assigned;
    assigned.AddStyle(5, 101);
    assigned = scale;
    scale.AddStyle(2, 20);
    scale = *&scale;
    ASSERT_EQ(3, scale.GetStyleCount());
    for (const Format* format : {&copy, &assigned}) {
        ASSERT_EQ(2, format->GetStyleCount());
        EXPECT_NE(scale.GetStyle(0), format->GetStyle(0));
        EXPECT_EQ(1, format->GetStyle(0)->nStyle);
        EXPECT_EQ(-7, format->GetStyle(1)->nUnit);
        EXPECT_EQ(INT_MAX, format->GetStyle(1)->nStyle);
    }
    orv::test::PassedAssertions assertions;
    EXPECT_EQ(NULL, copy.GetStyle(2));
    EXPECT_EQ(NULL, copy.GetStyle(-1));
#if defined(_DEBUG)
    EXPECT_EQ(2, assertions.count());
#endif
}

TEST(DateFormatRows, Dump) {
    Format scale;
    scale.AddStyle(0, 1);
    scale.AddStyle(2, 20);
    const std::string text = orv::test::dumped(scale);
    EXPECT_NE(text.npos, text.find("2 rows")) << text;
    EXPECT_NE(text.npos, text.find("nUnit = 2, nStyle = 20")) << text;
}

static_assert(sizeof(ORVDateUnitSingleStruct) == 8 && ORVDateUnitSingleStruct{1, 2}.nUnit == 1);
static_assert(offsetof(ORVDateUnitSingleStruct, nStyle) == 4);

} // namespace
