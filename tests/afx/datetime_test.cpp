#include <afxdisp.h>

#include "afx_test.h"

#include <float.h>
#include <math.h>
#include <random>

using orv::test::bytesOf;

namespace {

std::string shown(const COleDateTime& date) {
    return bytesOf(date.Format("%Y-%m-%d %H:%M:%S"));
}

} // namespace

TEST(DateTime, NumbersAndDates) {
    const struct {
        double date;
        const char* text;
        int nDayOfWeek, nDayOfYear;
    } rows[] = {
        {0, "1899-12-30 00:00:00", 7, 364},
        {2.5, "1900-01-01 12:00:00", 2, 1},
        {-1, "1899-12-29 00:00:00", 6, 363},
        {-1.25, "1899-12-29 06:00:00", 6, 363}, // the time of day carries no sign
        {-0.75, "1899-12-30 18:00:00", 7, 364},
        {-657434, "0100-01-01 00:00:00", 6, 1},
        {-657434.5, "0100-01-01 12:00:00", 6, 1},
        {2958465.5, "9999-12-31 12:00:00", 6, 365},
        {2958465.9999999, "9999-12-31 23:59:59", 6, 365},
        {1.9999999, "1900-01-01 00:00:00", 2, 1}, // to the nearest second
        {-1.9999999, "1899-12-30 00:00:00", 7, 364},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.date);
        const COleDateTime date(row.date);
        EXPECT_EQ(COleDateTime::valid, date.GetStatus());
        EXPECT_EQ(row.text, shown(date));
        EXPECT_EQ(row.nDayOfWeek, date.GetDayOfWeek());
        EXPECT_EQ(row.nDayOfYear, date.GetDayOfYear());
    }
}

TEST(DateTime, EveryDayHasItsNumber) {
    int nDay = -657434;
    for (int nYear = 100; nYear <= 9999; nYear++) {
        const bool bLeap = (nYear % 4 == 0 && nYear % 100 != 0) || nYear % 400 == 0;
        const int days[] = {31, bLeap ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        const int nStart = nDay;
        for (int nMonth = 1; nMonth <= 12; nDay += days[nMonth - 1], nMonth++) {
            for (int nOfMonth : {1, days[nMonth - 1]}) {
                const COleDateTime date(nYear, nMonth, nOfMonth, 0, 0, 0);
                ASSERT_EQ(nDay + nOfMonth - 1, date.m_dt);
                ASSERT_TRUE(date.GetYear() == nYear && date.GetMonth() == nMonth &&
                            date.GetDay() == nOfMonth);
                ASSERT_EQ(nDay + nOfMonth - nStart, date.GetDayOfYear());
            }
            ASSERT_EQ(COleDateTime::invalid,
                      COleDateTime(nYear, nMonth, days[nMonth - 1] + 1, 0, 0, 0).GetStatus());
        }
    }
    EXPECT_EQ(2958466, nDay);
}

TEST(DateTime, DatesThatAreNone) {
    for (double bad : {DBL_MAX, -DBL_MAX, (double)NAN, (double)INFINITY, 2958466.0, -657435.0}) {
        const COleDateTime date(bad);
        EXPECT_EQ(COleDateTime::invalid, date.GetStatus());
        EXPECT_EQ(COleDateTime::error, date.GetYear());
        EXPECT_EQ(COleDateTime::error, date.GetDayOfWeek());
    }
    const int bad[][6] = {{99, 1, 1, 0, 0, 0},    {10000, 1, 1, 0, 0, 0}, {2000, 0, 1, 0, 0, 0},
                          {2000, 13, 1, 0, 0, 0}, {2001, 2, 29, 0, 0, 0}, {2000, 1, 0, 0, 0, 0},
                          {2000, 1, 1, 24, 0, 0}, {2000, 1, 1, 0, 60, 0}, {2000, 1, 1, 0, 0, 60},
                          {2000, 1, 1, -1, 0, 0}};
    for (const auto& b : bad) {
        COleDateTime date;
        EXPECT_EQ(1, date.SetDateTime(b[0], b[1], b[2], b[3], b[4], b[5])) << &b - bad;
        EXPECT_EQ(COleDateTime::invalid, date.GetStatus());
    }
    COleDateTime date;
    EXPECT_EQ(0, date.SetTime(6, 0, 0));
    EXPECT_EQ(0.25, date.m_dt);
    date.SetStatus(COleDateTime::null);
    EXPECT_TRUE(date.Format("%Y").IsEmpty());
    EXPECT_EQ(COleDateTime::null, (date + COleDateTimeSpan(1)).GetStatus());
}

TEST(DateTime, ArithmeticCrossesTheZeroDay) {
    const COleDateTime before(1899, 12, 29, 6, 0, 0), after(1899, 12, 31, 18, 0, 0);
    EXPECT_EQ(-1.25, before.m_dt);
    EXPECT_EQ(2.5, (after - before).GetTotalDays());
    EXPECT_EQ("1899-12-31 18:00:00", shown(before + COleDateTimeSpan(2, 12, 0, 0)));
    EXPECT_EQ(-1.25, (after - COleDateTimeSpan(2.5)).m_dt);
    // Later on the same early day is a smaller number and yet a later time.
    EXPECT_TRUE(before < COleDateTime(1899, 12, 29, 7, 0, 0) && before > COleDateTime(1899, 12, 29, 5, 0, 0));
    EXPECT_EQ(COleDateTime::invalid, (COleDateTime(9999, 12, 31, 0, 0, 0) + COleDateTimeSpan(1)).GetStatus());
}

TEST(DateTime, Spans) {
    const COleDateTimeSpan span(3, 4, 5, 6);
    EXPECT_TRUE(span.GetDays() == 3 && span.GetHours() == 4 && span.GetMinutes() == 5 &&
                span.GetSeconds() == 6);
    const COleDateTimeSpan back = -span;
    EXPECT_TRUE(back.GetDays() == -3 && back.GetHours() == -4 && back.GetMinutes() == -5 &&
                back.GetSeconds() == -6);
    EXPECT_EQ(3 * 86400 + 4 * 3600 + 5 * 60 + 6, span.GetTotalSeconds());
    EXPECT_EQ("3 04:05:06 %", bytesOf(span.Format("%D %H:%M:%S %%")));
    EXPECT_EQ(COleDateTimeSpan::invalid, COleDateTimeSpan(1e9).GetStatus());
    EXPECT_EQ(COleDateTimeSpan::invalid, COleDateTimeSpan((double)NAN).GetStatus());
    EXPECT_EQ(1, COleDateTimeSpan(0, 23, 59, 60).GetDays()); // not 23:59:60
}

TEST(DateTime, Formats) {
    const COleDateTime date(1812, 6, 7, 0, 7, 9); // a Sunday
    const struct {
        const char *format, *text;
    } rows[] = {
        {"%a %A %b %B", "Sun Sunday Jun June"},
        {"%y %Y %j %d %#d %#m", "12 1812 159 07 7 6"},
        {"%H %I %p %M %S", "00 12 AM 07 09"},
        {"%U %W %w", "23 22 0"},
        {"%x %X|%c", "06/07/12 00:07:09|06/07/12 00:07:09"},
        {"%%|%Y年|%", "%|1812年|"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.text, bytesOf(date.Format(row.format)));
}

TEST(DateTime, TheClockRuns) {
    const COleDateTime now = COleDateTime::GetCurrentTime(), fromSeconds((LONGLONG)time(NULL));
    EXPECT_EQ(COleDateTime::valid, now.GetStatus());
    EXPECT_LT(fabs((fromSeconds - now).GetTotalSeconds()), 5);
    EXPECT_EQ(COleDateTime::invalid, COleDateTime(LLONG_MAX).GetStatus());
}

#if defined(_WIN32)
TEST(DateTime, AgreesWithTheSystem) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> day(-657434, 2958465), second(0, 86399);
    for (int i = 0; i < 20000; i++) {
        const int nDay = day(random);
        const double time = second(random) / 86400.0;
        const double date = nDay < 0 ? nDay - time : nDay + time;
        SYSTEMTIME theirs = {}, ours = {};
        ASSERT_TRUE(::VariantTimeToSystemTime(date, &theirs));
        ASSERT_TRUE(COleDateTime(date).GetAsSystemTime(ours));
        ASSERT_EQ(0, memcmp(&theirs, &ours, sizeof(ours)))
            << nDay << " " << time << " " << shown(COleDateTime(date));
        double back = 0;
        ASSERT_TRUE(::SystemTimeToVariantTime(&ours, &back));
        ASSERT_NEAR(back, COleDateTime(ours).m_dt, 1e-9);
    }
}

TEST(DateTime, LocaleFormats) {
    const COleDateTime date(2003, 2, 1, 16, 5, 6);
    const LCID english = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);
    EXPECT_EQ("2/1/2003", bytesOf(date.Format(VAR_DATEVALUEONLY | LOCALE_NOUSEROVERRIDE, english)));
    EXPECT_EQ("4:05:06 PM", bytesOf(date.Format(VAR_TIMEVALUEONLY | LOCALE_NOUSEROVERRIDE, english)));
}
#endif
