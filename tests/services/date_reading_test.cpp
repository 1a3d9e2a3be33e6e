// Dates read back from texts, and the rows that a scale's object holds.

#include <orvfc/services/DateFormat.h>

#include <gtest/gtest.h>

#include <afxdisp.h>
#include <float.h>
#include <string>

#include "afx/afx_test.h"

namespace {

using Format = CORVDateFormat;

double day(int year, int month, int dayOfMonth) {
    return COleDateTime(year, month, dayOfMonth, 0, 0, 0);
}

constexpr double kUntouched = 12345.5;

TEST(DateReading, ReadsEveryLabelThatTellsTheYear) {
    const int styles[] = {0, 1, 2, 15, 16, 17, 18, 35, 36, 59, 60, 70, 71, 72, 73, 74, 95, 96, 97, 101, 102};
    CStringArray texts;
    CWordArray ids;
    int unitOf[113] = {};
    for (int unit = 0; unit < 6; ++unit) {
        ids.RemoveAll();
        Format::GetStyleStringArray(unit, texts, ids);
        for (int i = 0; i < ids.GetSize(); ++i)
            unitOf[ids[i]] = unit;
    }
    for (int style : styles) {
        for (double written = day(100, 1, 1); written <= day(9999, 12, 31); written += 997) {
            const CString label = Format::GetDateString(style, written);
            // Weeks are told by a day of theirs.
            const double told =
                unitOf[style] >= 4 ? written : Format::GetNextScale(unitOf[style], 0, written);
            double read = kUntouched;
            ASSERT_EQ(1, Format::GetDataFromFormatString(label, read)) << style << " " << label.GetString();
            ASSERT_EQ(told, read) << style << " " << label.GetString();
        }
    }
}

struct TextRow {
    const char* text;
    double date; // kUntouched: refused
};

void expectRead(int (*read)(CString, double&), const TextRow& row) {
    double date = kUntouched;
    EXPECT_EQ(row.date != kUntouched, read(row.text, date)) << row.text;
    EXPECT_EQ(row.date, date) << row.text;
}

TEST(DateReading, Labels) {
    const TextRow rows[] = {
        {"  2000-02-29\r\n", day(2000, 2, 29)},
        {"2000年02月09日", day(2000, 2, 9)},
        {"二零零零年十二月三十一日", day(2000, 12, 31)},
        {"2000-1-1周六", day(2000, 1, 1)},
        {"2000-12-11", day(2000, 12, 11)},
        {"2000-12-12", day(2000, 12, 12)},
        {"2000年4季度", day(2000, 10, 1)},
        {"0100", day(100, 1, 1)},
        {"9999年12月下旬", day(9999, 12, 21)},
        {"2000-1-1周一", kUntouched}, // a Saturday
        {"2001-2-29", kUntouched},
        {"1900年2月29日", kUntouched},
        {"2000-4-31", kUntouched},
        {"2000-0-1", kUntouched},
        {"2000-1-0", kUntouched},
        {"2000-13-1", kUntouched},
        {"2000-1-32", kUntouched},
        {"2000-001-1", kUntouched},
        {"0099-12-31", kUntouched},
        {"10000-1-1", kUntouched},
        {"200-1-1", kUntouched},
        {"2000-1-1 ,", kUntouched},
        {"2000- 1-1", kUntouched},
        {"2000年5季度", kUntouched},
        {"2000年十三月", kUntouched},
        {"二零零零年十月三十二日", kUntouched},
        {"二零零零年零月", kUntouched},
        {"二千年", kUntouched},
        {"第3年", kUntouched},
        {"12月31日", kUntouched},
        {"\xB6\xFE\xC1", kUntouched}, // cut inside a character
        {"%d%d%d%d", kUntouched},
        {"", kUntouched},
        {"   ", kUntouched},
    };
    for (const TextRow& row : rows)
        expectRead(Format::GetDataFromFormatString, row);
}

TEST(DateReading, Numbers) {
    const TextRow rows[] = {
        {"36526", 36526},
        {" +36526.25\t", 36526.25},
        {"-1.25", -1.25},
        {"3.6526e4", 36526},
        {"0", 0},
        {"-657434", -657434},
        {"2958465.5", 2958465.5},
        {"1.7976931348623157e+308", DBL_MAX},
        {"-1.7976931348623157e+308", kUntouched},
        {"-657435", kUntouched},
        {"2958466", kUntouched},
        {"1e999", kUntouched},
        {"nan", kUntouched},
        {"inf", kUntouched},
        {"-infinity", kUntouched},
        {"0x10", kUntouched},
        {"36526,5", kUntouched},
        {"36526 5", kUntouched},
        {"+-1", kUntouched},
        {"++1", kUntouched},
        {"e5", kUntouched},
        {".", kUntouched},
        {"2000-1-1", kUntouched},
        {"", kUntouched},
    };
    for (const TextRow& row : rows)
        expectRead(Format::GetDataFromDouString, row);
    CString text;
    text.Format("%f", DBL_MAX); // 309 digits
    expectRead(Format::GetDataFromDouString, {text, DBL_MAX});
    for (double date : {0.1, -36526.123456789, 2958465.999, 1.0 / 3}) {
        text.Format("%.17g", date);
        expectRead(Format::GetDataFromDouString, {text, date});
    }
}

// A zero byte ends no text: what stands behind it is not overlooked.
TEST(DateReading, ZeroBytes) {
    double date = kUntouched;
    EXPECT_EQ(0, Format::GetDataFromFormatString(CString("2000-1-1\0x", 10), date));
    EXPECT_EQ(0, Format::GetDataFromDouString(CString("36526\0x", 7), date));
    EXPECT_EQ(kUntouched, date);
}

TEST(DateFormatRows, CopiesHaveRowsOfTheirOwn) {
    Format scale;
    scale.Init();
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
    CMemFile file;
    {
        CDumpContext dc(&file);
        scale.Dump(dc);
    }
    std::string text(static_cast<size_t>(file.GetLength()), ' ');
    file.SeekToBegin();
    file.Read(text.data(), static_cast<UINT>(text.size()));
    EXPECT_NE(text.npos, text.find("2 rows")) << text;
    EXPECT_NE(text.npos, text.find("nUnit = 2, nStyle = 20")) << text;
}

static_assert(sizeof(ORVDateUnitSingleStruct) == 8 && ORVDateUnitSingleStruct{1, 2}.nUnit == 1);
static_assert(offsetof(ORVDateUnitSingleStruct, nStyle) == 4);

} // namespace
