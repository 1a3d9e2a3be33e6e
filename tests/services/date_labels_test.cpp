// The labels of time scales.

#include <orvfc/services/DateFormat.h>

#include <gtest/gtest.h>

#include <afxdisp.h>
#include <float.h>
#include <iterator>
#include <limits.h>
#include <math.h>
#include <string>

namespace {

double day(int year, int month, int dayOfMonth) {
    return COleDateTime(year, month, dayOfMonth, 0, 0, 0);
}

std::string text(const CString& string) {
    return string.GetString();
}

const double kStart = day(2000, 1, 1);
const double kEnd = day(2011, 12, 31);

// The first and the last day of the calendar, a leap day, a Saturday, a Sunday; days 1, 10, 11, 20, 21,
// 29, 31.
const double kDays[] = {day(100, 1, 1),    day(987, 8, 20),  day(1999, 12, 11), day(2000, 2, 29),
                        day(2004, 10, 10), day(2011, 9, 21), day(9999, 12, 31)};

struct LabelRow {
    int unit;
    int style;
    const char* labels[std::size(kDays)];
};

// Worked out with another program's calendar, running numbers by looking at every day between.
// clang-format off
const LabelRow labelRows[] = {
    {0, 0, {"零一零零年", "零九八七年", "一九九九年", "二零零零年", "二零零四年", "二零一一年", "九九九九年"}},
    {0, 1, {"0100年", "0987年", "1999年", "2000年", "2004年", "2011年", "9999年"}},
    {0, 2, {"0100", "0987", "1999", "2000", "2004", "2011", "9999"}},
    {0, 3, {"第-1900年", "第-1012年", "第1年", "第1年", "第5年", "第12年", "第8000年"}},
    {0, 4, {"第-1900", "第-1012", "第1", "第1", "第5", "第12", "第8000"}},
    {0, 5, {"-1900", "-1012", "1", "1", "5", "12", "8000"}},
    {0, 6, {"第-1912年", "第-1024年", "第-12年", "第-11年", "第-7年", "第1年", "第7988年"}},
    {0, 7, {"第-1912", "第-1024", "第-12", "第-11", "第-7", "第1", "第7988"}},
    {0, 8, {"-1912", "-1024", "-12", "-11", "-7", "1", "7988"}},
    {2, 15, {"零一零零年一月", "零九八七年八月", "一九九九年十二月", "二零零零年二月", "二零零四年十月", "二零一一年九月", "九九九九年十二月"}},
    {2, 16, {"0100年1月", "0987年8月", "1999年12月", "2000年2月", "2004年10月", "2011年9月", "9999年12月"}},
    {2, 17, {"0100-1", "0987-8", "1999-12", "2000-2", "2004-10", "2011-9", "9999-12"}},
    {2, 18, {"0100/1", "0987/8", "1999/12", "2000/2", "2004/10", "2011/9", "9999/12"}},
    {2, 19, {"一月", "八月", "十二月", "二月", "十月", "九月", "十二月"}},
    {2, 20, {"1月", "8月", "12月", "2月", "10月", "9月", "12月"}},
    {2, 21, {"1", "8", "12", "2", "10", "9", "12"}},
    {2, 22, {"第-22800月", "第-12148月", "第1月", "第2月", "第58月", "第141月", "第96000月"}},
    {2, 23, {"第-22800", "第-12148", "第1", "第2", "第58", "第141", "第96000"}},
    {2, 24, {"-22800", "-12148", "1", "2", "58", "141", "96000"}},
    {2, 25, {"第-22944月", "第-12292月", "第-144月", "第-142月", "第-86月", "第-3月", "第95856月"}},
    {2, 26, {"第-22944", "第-12292", "第-144", "第-142", "第-86", "第-3", "第95856"}},
    {2, 27, {"-22944", "-12292", "-144", "-142", "-86", "-3", "95856"}},
    {1, 35, {"零一零零年第一季度", "零九八七年第三季度", "一九九九年第四季度", "二零零零年第一季度", "二零零四年第四季度", "二零一一年第三季度", "九九九九年第四季度"}},
    {1, 36, {"0100年1季度", "0987年3季度", "1999年4季度", "2000年1季度", "2004年4季度", "2011年3季度", "9999年4季度"}},
    {1, 37, {"第一季度", "第三季度", "第四季度", "第一季度", "第四季度", "第三季度", "第四季度"}},
    {1, 38, {"第1季度", "第3季度", "第4季度", "第1季度", "第4季度", "第3季度", "第4季度"}},
    {1, 39, {"1季度", "3季度", "4季度", "1季度", "4季度", "3季度", "4季度"}},
    {1, 40, {"1", "3", "4", "1", "4", "3", "4"}},
    {1, 41, {"第-7600季度", "第-4049季度", "第1季度", "第1季度", "第20季度", "第47季度", "第32000季度"}},
    {1, 42, {"第-7600", "第-4049", "第1", "第1", "第20", "第47", "第32000"}},
    {1, 43, {"-7600", "-4049", "1", "1", "20", "47", "32000"}},
    {1, 44, {"第-7648季度", "第-4097季度", "第-48季度", "第-47季度", "第-28季度", "第-1季度", "第31952季度"}},
    {1, 45, {"第-7648", "第-4097", "第-48", "第-47", "第-28", "第-1", "第31952"}},
    {1, 46, {"-7648", "-4097", "-48", "-47", "-28", "-1", "31952"}},
    {3, 55, {"一月上旬", "八月中旬", "十二月中旬", "二月下旬", "十月上旬", "九月下旬", "十二月下旬"}},
    {3, 56, {"1月上旬", "8月中旬", "12月中旬", "2月下旬", "10月上旬", "9月下旬", "12月下旬"}},
    {3, 57, {"1月1", "8月11", "12月11", "2月21", "10月1", "9月21", "12月21"}},
    {3, 58, {"1-1", "8-11", "12-11", "2-21", "10-1", "9-21", "12-21"}},
    {3, 59, {"0100年1月上旬", "0987年8月中旬", "1999年12月中旬", "2000年2月下旬", "2004年10月上旬", "2011年9月下旬", "9999年12月下旬"}},
    {3, 60, {"0100-1-1", "0987-8-11", "1999-12-11", "2000-2-21", "2004-10-1", "2011-9-21", "9999-12-21"}},
    {3, 61, {"上旬", "中旬", "中旬", "下旬", "上旬", "下旬", "下旬"}},
    {4, 70, {"零一零零年一月一日", "零九八七年八月二十日", "一九九九年十二月十一日", "二零零零年二月二十九日", "二零零四年十月十日", "二零一一年九月二十一日", "九九九九年十二月三十一日"}},
    {4, 71, {"0100年1月1日", "0987年8月20日", "1999年12月11日", "2000年2月29日", "2004年10月10日", "2011年9月21日", "9999年12月31日"}},
    {4, 72, {"0100年1月1日星期日", "0987年8月20日星期日", "1999年12月11日星期日", "2000年2月29日星期日", "2004年10月10日星期日", "2011年9月21日星期日", "9999年12月31日星期日"}},
    {4, 73, {"0100-1-1", "0987-8-20", "1999-12-11", "2000-2-29", "2004-10-10", "2011-9-21", "9999-12-31"}},
    {4, 74, {"0100-1-1(日)", "0987-8-20(日)", "1999-12-11(日)", "2000-2-29(日)", "2004-10-10(日)", "2011-9-21(日)", "9999-12-31(日)"}},
    {4, 75, {"一月一日", "八月二十日", "十二月十一日", "二月二十九日", "十月十日", "九月二十一日", "十二月三十一日"}},
    {4, 76, {"1月1日", "8月20日", "12月11日", "2月29日", "10月10日", "9月21日", "12月31日"}},
    {4, 77, {"1月1日(日)", "8月20日(日)", "12月11日(日)", "2月29日(日)", "10月10日(日)", "9月21日(日)", "12月31日(日)"}},
    {4, 78, {"1-1", "8-20", "12-11", "2-29", "10-10", "9-21", "12-31"}},
    {4, 79, {"1-1(日)", "8-20(日)", "12-11(日)", "2-29(日)", "10-10(日)", "9-21(日)", "12-31(日)"}},
    {4, 80, {"1周", "34周", "50周", "9周", "41周", "38周", "53周"}},
    {4, 81, {"1", "34", "50", "9", "41", "38", "53"}},
    {4, 82, {"第-99137周", "第-52822周", "第-3周", "第10周", "第251周", "第613周", "第417421周"}},
    {4, 83, {"第-99137", "第-52822", "第-3", "第10", "第251", "第613", "第417421"}},
    {4, 84, {"-99137", "-52822", "-3", "10", "251", "613", "417421"}},
    {4, 85, {"第-99763周", "第-53448周", "第-629周", "第-617周", "第-377周", "第-14周", "第416794周"}},
    {4, 86, {"第-99763", "第-53448", "第-629", "第-617", "第-377", "第-14", "第416794"}},
    {4, 87, {"-99763", "-53448", "-629", "-617", "-377", "-14", "416794"}},
    {5, 95, {"零一零零年一月一日", "零九八七年八月二十日", "一九九九年十二月十一日", "二零零零年二月二十九日", "二零零四年十月十日", "二零一一年九月二十一日", "九九九九年十二月三十一日"}},
    {5, 96, {"0100年1月1日", "0987年8月20日", "1999年12月11日", "2000年2月29日", "2004年10月10日", "2011年9月21日", "9999年12月31日"}},
    {5, 97, {"0100年1月1日周五", "0987年8月20日周一", "1999年12月11日周六", "2000年2月29日周二", "2004年10月10日周日", "2011年9月21日周三", "9999年12月31日周五"}},
    {5, 98, {"一月一日", "八月二十日", "十二月十一日", "二月二十九日", "十月十日", "九月二十一日", "十二月三十一日"}},
    {5, 99, {"1月1日", "8月20日", "12月11日", "2月29日", "10月10日", "9月21日", "12月31日"}},
    {5, 100, {"1月1日周五", "8月20日周一", "12月11日周六", "2月29日周二", "10月10日周日", "9月21日周三", "12月31日周五"}},
    {5, 101, {"0100-1-1", "0987-8-20", "1999-12-11", "2000-2-29", "2004-10-10", "2011-9-21", "9999-12-31"}},
    {5, 102, {"0100-1-1周五", "0987-8-20周一", "1999-12-11周六", "2000-2-29周二", "2004-10-10周日", "2011-9-21周三", "9999-12-31周五"}},
    {5, 103, {"周五", "周一", "周六", "周二", "周日", "周三", "周五"}},
    {5, 104, {"星期五", "星期一", "星期六", "星期二", "星期日", "星期三", "星期五"}},
    {5, 105, {"1日", "20日", "11日", "29日", "10日", "21日", "31日"}},
    {5, 106, {"1", "20", "11", "29", "10", "21", "31"}},
    {5, 107, {"第-693960日", "第-369759日", "第-21日", "第60日", "第1745日", "第4282日", "第2921940日"}},
    {5, 108, {"第-693960", "第-369759", "第-21", "第60", "第1745", "第4282", "第2921940"}},
    {5, 109, {"-693960", "-369759", "-21", "60", "1745", "4282", "2921940"}},
    {5, 110, {"第-698343日", "第-374142日", "第-4404日", "第-4324日", "第-2639日", "第-102日", "第2917557日"}},
    {5, 111, {"第-698343", "第-374142", "第-4404", "第-4324", "第-2639", "第-102", "第2917557"}},
    {5, 112, {"-698343", "-374142", "-4404", "-4324", "-2639", "-102", "2917557"}},
};
// clang-format on

TEST(DateLabels, EveryStyle) {
    for (const LabelRow& row : labelRows) {
        for (size_t i = 0; i < std::size(kDays); ++i)
            EXPECT_EQ(row.labels[i],
                      text(CORVDateFormat::GetDateString(row.unit, row.style, kDays[i], kStart, kEnd)))
                << "style " << row.style << ", day " << i;
    }
}

TEST(DateLabels, TheTimeOfDayDoesNotShow) {
    // -1.75 is 29 December 1899, 18:00; a quarter of a second before midnight is midnight.
    EXPECT_EQ("1899-12-29", text(CORVDateFormat::GetDateStringGer(-1.75)));
    EXPECT_EQ("1899-12-30", text(CORVDateFormat::GetDateStringGer(-0.75)));
    EXPECT_EQ("2000-2-29", text(CORVDateFormat::GetDateStringGer(kDays[3] + 0.99)));
    EXPECT_EQ("2000-2-29", text(CORVDateFormat::GetDateStringGer(kDays[3] - 0.25 / 86400)));
    EXPECT_EQ("9999-12-31", text(CORVDateFormat::GetDateStringGer(kDays[6] + 0.9999999)));
}

TEST(DateLabels, TenDaysAndWeeksOfTheYear) {
    const struct {
        int month, day;
        const char* tenDays;
        const char* week;
    } rows[] = {{1, 1, "上旬", "1周"},    {1, 7, "上旬", "1周"},    {1, 8, "上旬", "2周"},
                {1, 10, "上旬", "2周"},   {1, 11, "中旬", "2周"},   {1, 15, "中旬", "3周"},
                {1, 20, "中旬", "3周"},   {1, 21, "下旬", "3周"},   {2, 28, "下旬", "9周"},
                {12, 29, "下旬", "52周"}, {12, 30, "下旬", "53周"}, {12, 31, "下旬", "53周"}};
    for (const auto& row : rows) {
        const double date = day(2000, row.month, row.day);
        EXPECT_EQ(row.tenDays, text(CORVDateFormat::GetDateString(61, date))) << row.month << "-" << row.day;
        EXPECT_EQ(row.week, text(CORVDateFormat::GetDateString(80, date))) << row.month << "-" << row.day;
    }
}

// Running numbers on the ticks of a scale of three years, of which the first one starts in June.
TEST(DateLabels, RunningNumbers) {
    const struct {
        double start;
        const char* fromStart[5];
    } starts[] = {{day(2000, 1, 1), {"-1", "1", "2", "3", "4"}},
                  {day(2000, 6, 15), {"-2", "-1", "2", "3", "4"}}};
    const struct {
        double end;
        const char* fromEnd[5];
    } ends[] = {{day(2002, 12, 31), {"-4", "-3", "-2", "-1", "1"}},
                {day(2002, 6, 15), {"-4", "-3", "-2", "-1", "2"}}};
    for (int i = 0; i < 5; ++i) {
        const double date = day(1999 + i, 1, 1);
        for (const auto& row : starts)
            EXPECT_EQ(row.fromStart[i], text(CORVDateFormat::GetDateString(0, 5, date, row.start, kEnd)));
        for (const auto& row : ends)
            EXPECT_EQ(row.fromEnd[i], text(CORVDateFormat::GetDateString(0, 8, date, kStart, row.end)));
    }
    // A scale may end with the calendar.
    EXPECT_EQ("-1", text(CORVDateFormat::GetDateString(5, 112, kDays[6], kStart, kDays[6])));
    EXPECT_EQ("-1", text(CORVDateFormat::GetDateString(0, 8, day(9999, 1, 1), kStart, kDays[6])));
    // The unit tells what is counted, the style what is printed.
    EXPECT_EQ("第367年", text(CORVDateFormat::GetDateString(5, 3, day(2001, 1, 1), kStart, kEnd)));
}

TEST(DateLabels, NothingToSay) {
    const double date = kDays[3];
    const double noDates[] = {DBL_MAX, -DBL_MAX, HUGE_VAL, -HUGE_VAL, NAN, 2958466, -657435};
    for (double no : noDates) {
        for (int style : {3, 22, 41, 82, 107, 6, 25, 44, 85, 110})
            EXPECT_EQ("", text(CORVDateFormat::GetDateString(5, style, date, no, kEnd))) << no;
        EXPECT_EQ("", text(CORVDateFormat::GetDateString(5, 112, date, kStart, no))) << no;
        EXPECT_EQ("60", text(CORVDateFormat::GetDateString(5, 109, date, kStart, no))) << no;
        EXPECT_EQ("2000-2-29", text(CORVDateFormat::GetDateString(5, 101, date, no, no))) << no;
    }
    for (int style : {-1, 9, 14, 28, 34, 47, 54, 62, 69, 88, 94, 113, INT_MAX, INT_MIN}) {
        EXPECT_EQ("", text(CORVDateFormat::GetDateString(5, style, date, kStart, kEnd))) << style;
        EXPECT_EQ("", text(CORVDateFormat::GetDateString(style, date))) << style;
        EXPECT_EQ("", text(CORVDateFormat::GetSampleText(0, style))) << style;
        EXPECT_EQ("", text(CORVDateFormat().GetWidthText(0, style))) << style;
    }
    for (int unit : {-1, 6, INT_MAX, INT_MIN})
        EXPECT_EQ("", text(CORVDateFormat::GetDateString(unit, 101, date, kStart, kEnd))) << unit;
    EXPECT_EQ("", text(CORVDateFormat::GetDateString(3, date)));
}

// The texts that look like slips, and the two short forms beside the long ones.
TEST(DateLabels, TextsForPickersAndColumns) {
    const struct {
        int style;
        const char* sample;
        const char* width;
    } rows[] = {{8, "2,1,...(从结束)", "9999"},
                {36, "2000年第1季度,2000年2季度,...", "2000年第1季度"},
                {40, "1,2,...", "4"},
                {56, "月上旬,1月中旬,...", "12月上旬"},
                {57, "1月1日,1月11日,...", "12月21日"},
                {72, "2000年1月2日星期日,2000年1月9日星期日,....", "2000年12月31日星期日"},
                {102, "2000-1-1(周一),2000-1-1(周二)...", "2000-12-31(周一)"}};
    for (const auto& row : rows) {
        EXPECT_EQ(row.sample, text(CORVDateFormat::GetSampleText(0, row.style)));
        EXPECT_EQ(row.width, text(CORVDateFormat().GetWidthText(0, row.style)));
    }
}

TEST(DateLabels, ListsOfStyles) {
    const struct {
        int unit, first, last;
    } rows[] = {{0, 0, 8}, {1, 35, 46}, {2, 15, 27}, {3, 55, 61}, {4, 70, 87}, {5, 95, 112}};
    CStringArray texts;
    CWordArray ids;
    int total = 0;
    for (const auto& row : rows) {
        const int count = CORVDateFormat::GetStyleStringArray(row.unit, texts, ids);
        ASSERT_EQ(row.last - row.first + 1, count);
        for (int i = 0; i < count; ++i) {
            EXPECT_EQ(row.first + i, ids[total + i]);
            EXPECT_EQ(CORVDateFormat::GetSampleText(0, row.first + i), texts[total + i]);
            EXPECT_FALSE(texts[total + i].IsEmpty());
        }
        total += count;
    }
    for (int unit : {-1, 6, INT_MIN, INT_MAX})
        EXPECT_EQ(0, CORVDateFormat::GetStyleStringArray(unit, texts, ids));
    EXPECT_EQ(77, ids.GetSize());
    EXPECT_EQ(18, CORVDateFormat::GetStyleStringArray(texts, ids));
    EXPECT_EQ(95, ids[77]);
}

} // namespace
