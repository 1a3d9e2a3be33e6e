// Steps on the calendar of time scales, and the counts that stand for them.

#include <orvfc/services/CalendarSteps.h>
#include <orvfc/services/DateFormat.h>

#include <gtest/gtest.h>

#include <afxdisp.h>
#include <math.h>
#include <random>

#include "afx/afx_test.h"

namespace {

using Format = CORVDateFormat;

constexpr double kNoDates[] = {DBL_MAX, -DBL_MAX, HUGE_VAL, -HUGE_VAL, NAN, 2958466, -657435, 1e10};

double day(int year, int month, int dayOfMonth) {
    return COleDateTime(year, month, dayOfMonth, 0, 0, 0);
}

// A random date; half of them have a time of day.
double randomDate(std::mt19937& engine, int first, int last) {
    const int number = std::uniform_int_distribution<>(first, last)(engine);
    const double time = engine() % 2 ? std::uniform_real_distribution<>(0, 0.9999)(engine) : 0;
    return number < 0 ? number - time : number + time;
}

TEST(DateSteps, CalendarAgreesWithTheFoundation) {
    const auto expectSame = [](double date) {
        const COleDateTime foundation(date);
        const int number = orv::dayOf(date);
        const orv::CalendarDate own = orv::calendarDate(number);
        ASSERT_EQ(foundation.GetYear(), own.year) << date;
        ASSERT_EQ(foundation.GetMonth(), own.month) << date;
        ASSERT_EQ(foundation.GetDay(), own.day) << date;
        ASSERT_EQ(foundation.GetDayOfWeek(), orv::dayOfWeek(number)) << date;
        ASSERT_EQ(foundation.GetDayOfYear(), orv::dayOfYear(number)) << date;
        ASSERT_EQ(number, orv::dayNumber(own)) << date;
        ASSERT_LE(own.day, orv::daysInMonth(own.year, own.month)) << date;
    };
    for (int number = orv::kFirstDay; number <= orv::kLastDay; number += 13)
        expectSame(number);
    for (int year : {100, 400, 1900, 2000, 2004, 2100, 9999}) {
        for (int number = 0; number < 365; ++number)
            expectSame(day(year, 1, 1) + number);
    }
    const unsigned seed = std::random_device()();
    SCOPED_TRACE(seed);
    std::mt19937 engine(seed);
    for (int i = 0; i < 2000; ++i)
        expectSame(randomDate(engine, orv::kFirstDay, orv::kLastDay));
    for (double date : {2.9999999, -2.9999999, 2.99999, -2.99999, -0.9999999, orv::kLastDay + 0.9999999,
                        orv::kFirstDay - 0.9999999})
        expectSame(date);
    for (double date : kNoDates)
        EXPECT_FALSE(orv::isDate(date)) << date;
}

struct StepRow {
    int unit;
    double from;
    double begin, next, next3, prev, prev3;
};

const StepRow stepRows[] = {
    // A date that begins its unit, and dates inside one.
    {0, day(2000, 1, 1), day(2000, 1, 1), day(2001, 1, 1), day(2003, 1, 1), day(1999, 1, 1), day(1997, 1, 1)},
    {0, day(2000, 12, 31), day(2000, 1, 1), day(2001, 1, 1), day(2003, 1, 1), day(2000, 1, 1),
     day(1998, 1, 1)},
    {1, day(2000, 4, 1), day(2000, 4, 1), day(2000, 7, 1), day(2001, 1, 1), day(2000, 1, 1), day(1999, 7, 1)},
    {1, day(2000, 3, 31), day(2000, 1, 1), day(2000, 4, 1), day(2000, 10, 1), day(2000, 1, 1),
     day(1999, 7, 1)},
    {2, day(2000, 1, 1), day(2000, 1, 1), day(2000, 2, 1), day(2000, 4, 1), day(1999, 12, 1),
     day(1999, 10, 1)},
    {2, day(2000, 1, 31), day(2000, 1, 1), day(2000, 2, 1), day(2000, 4, 1), day(2000, 1, 1),
     day(1999, 11, 1)},
    {3, day(2000, 2, 21), day(2000, 2, 21), day(2000, 3, 1), day(2000, 3, 21), day(2000, 2, 11),
     day(2000, 1, 21)},
    {3, day(2000, 1, 31), day(2000, 1, 21), day(2000, 2, 1), day(2000, 2, 21), day(2000, 1, 21),
     day(2000, 1, 1)},
    {3, day(2000, 1, 10), day(2000, 1, 1), day(2000, 1, 11), day(2000, 2, 1), day(2000, 1, 1),
     day(1999, 12, 11)},
    {3, day(2000, 1, 20), day(2000, 1, 11), day(2000, 1, 21), day(2000, 2, 11), day(2000, 1, 11),
     day(1999, 12, 21)},
    {4, day(2000, 12, 31), day(2000, 12, 31), day(2001, 1, 7), day(2001, 1, 21), day(2000, 12, 24),
     day(2000, 12, 10)},
    {4, day(2000, 2, 29), day(2000, 2, 27), day(2000, 3, 5), day(2000, 3, 19), day(2000, 2, 27),
     day(2000, 2, 13)},
    {4, day(1899, 12, 30), day(1899, 12, 24), day(1899, 12, 31), day(1900, 1, 14), day(1899, 12, 24),
     day(1899, 12, 10)},
    {5, day(2000, 2, 28), day(2000, 2, 28), day(2000, 2, 29), day(2000, 3, 2), day(2000, 2, 27),
     day(2000, 2, 25)},
    {5, day(1900, 2, 28) + 0.5, day(1900, 2, 28), day(1900, 3, 1), day(1900, 3, 3), day(1900, 2, 28),
     day(1900, 2, 26)},
    // 29 December 1899, 6:00; and a quarter of a second before 1 January 2001.
    {5, -1.25, -1, 0, 2, -1, -3},
    {0, day(2001, 1, 1) - 0.25 / 86400, day(2001, 1, 1), day(2002, 1, 1), day(2004, 1, 1), day(2000, 1, 1),
     day(1998, 1, 1)},
    // The ends of the calendar. 1 January 100 was a Friday.
    {0, day(9997, 5, 5), day(9997, 1, 1), day(9998, 1, 1), DBL_MAX, day(9997, 1, 1), day(9995, 1, 1)},
    {1, day(9999, 12, 31), day(9999, 10, 1), DBL_MAX, DBL_MAX, day(9999, 10, 1), day(9999, 4, 1)},
    {2, day(100, 2, 1), day(100, 2, 1), day(100, 3, 1), day(100, 5, 1), day(100, 1, 1), -DBL_MAX},
    {3, day(100, 1, 1), day(100, 1, 1), day(100, 1, 11), day(100, 2, 1), -DBL_MAX, -DBL_MAX},
    {4, day(100, 1, 2), -DBL_MAX, day(100, 1, 3), day(100, 1, 17), -DBL_MAX, -DBL_MAX},
    {5, day(9999, 12, 31), day(9999, 12, 31), DBL_MAX, DBL_MAX, day(9999, 12, 30), day(9999, 12, 28)},
};

TEST(DateSteps, Table) {
    for (const StepRow& row : stepRows) {
        SCOPED_TRACE(testing::Message() << "unit " << row.unit << ", from " << row.from);
        EXPECT_EQ(row.begin, Format::GetNextScale(row.unit, 0, row.from));
        EXPECT_EQ(row.begin, Format::GetPrevScale(row.unit, 0, row.from));
        EXPECT_EQ(row.next, Format::GetNextScale(row.unit, 1, row.from));
        EXPECT_EQ(row.next3, Format::GetNextScale(row.unit, 3, row.from));
        EXPECT_EQ(row.next3, Format::GetPrevScale(row.unit, -3, row.from));
        EXPECT_EQ(row.prev, Format::GetPrevScale(row.unit, 1, row.from));
        EXPECT_EQ(row.prev3, Format::GetPrevScale(row.unit, 3, row.from));
        EXPECT_EQ(row.prev3, Format::GetNextScale(row.unit, -3, row.from));
        EXPECT_EQ(DBL_MAX, Format::GetNextScale(row.unit, INT_MAX, row.from));
        EXPECT_EQ(DBL_MAX, Format::GetPrevScale(row.unit, INT_MIN, row.from));
        EXPECT_EQ(-DBL_MAX, Format::GetPrevScale(row.unit, INT_MAX, row.from));
        EXPECT_EQ(-DBL_MAX, Format::GetNextScale(row.unit, INT_MIN, row.from));
    }
}

TEST(DateSteps, BeginOfUnit) {
    const Format format;
    const double evening = day(2000, 12, 29) + 0.75; // a Friday
    const double expected[] = {day(2000, 1, 1),   day(2000, 10, 1),         day(2000, 12, 1),
                               day(2000, 12, 21), day(2000, 12, 24) + 0.75, evening};
    for (int unit = 0; unit < 6; ++unit)
        EXPECT_EQ(expected[unit], format.GetBeginDate(unit, 7, evening)) << unit;
    EXPECT_EQ(day(2000, 12, 24), format.GetBeginDate(4, 1, day(2000, 12, 24)));
    // The evenings of Saturday, 30, and of Sunday, 24 December 1899.
    EXPECT_EQ(-6.75, format.GetBeginDate(4, 1, 0.75));
    EXPECT_EQ(DBL_MAX, format.GetBeginDate(4, 1, day(100, 1, 2)));
    for (int unit : {-1, 6, INT_MIN, INT_MAX})
        EXPECT_EQ(DBL_MAX, format.GetBeginDate(unit, 1, evening));
    for (double date : kNoDates)
        EXPECT_EQ(DBL_MAX, format.GetBeginDate(0, 1, date));
}

// What GetDateRanges has to answer, step by step.
int countByStepping(int unit, double a, double b) {
    int count = 0;
    if (b > a) {
        for (double x = Format::GetNextScale(unit, 1, a); x <= b; x = Format::GetNextScale(unit, 1, x))
            ++count;
        return count;
    }
    for (double x = Format::GetPrevScale(unit, 1, a); x >= b; x = Format::GetPrevScale(unit, 1, x))
        --count;
    return count;
}

TEST(DateSteps, RangesCountWhatSteppingCounts) {
    const unsigned seed = std::random_device()();
    SCOPED_TRACE(seed);
    std::mt19937 engine(seed);
    const auto expectSame = [](double a, double b) {
        for (int unit = 0; unit < 6; ++unit) {
            ASSERT_EQ(countByStepping(unit, a, b), Format::GetDateRanges(unit, a, b))
                << unit << " " << a << " " << b;
            ASSERT_EQ(countByStepping(unit, b, a), Format::GetDateRanges(unit, b, a))
                << unit << " " << b << " " << a;
        }
    };
    for (int reach : {1, 30, 400, 5000}) {
        for (int i = 0; i < 300; ++i) {
            const int middle =
                std::uniform_int_distribution<>(orv::kFirstDay + reach, orv::kLastDay - reach)(engine);
            expectSame(middle, randomDate(engine, middle - reach, middle + reach));
            expectSame(randomDate(engine, middle - reach, middle + reach), middle);
            // Around the day 0, and at the ends of the calendar.
            expectSame(randomDate(engine, -reach, reach), randomDate(engine, -reach, reach));
            expectSame(randomDate(engine, orv::kFirstDay, orv::kFirstDay + reach), orv::kFirstDay);
            expectSame(randomDate(engine, orv::kLastDay - reach, orv::kLastDay), orv::kLastDay);
        }
    }
    for (double nearly : {36525.9999999, 36526.0000001, -36525.9999999, -36526.0000001}) {
        for (double guess : {nearly, floor(nearly), ceil(nearly), nearly + 1, nearly - 1})
            expectSame(nearly, guess);
    }
    expectSame(day(100, 1, 1), day(1000, 1, 1));
}

TEST(DateSteps, CountsOverARange) {
    const double first = day(2000, 1, 31);
    const struct {
        int unit, n;
        double last;
        int columns;
    } rows[] = {{5, 1, first, 1},
                {5, 1, first + 0.9, 1},
                {5, 1, first + 6, 7},
                {5, 2, first + 6, 4},
                {5, 2, first + 7, 4},
                {2, 1, first + 1, 2},
                {2, 2, first + 1, 1},
                {2, 2, first + 30, 2},
                {3, 1, first + 1, 2},
                {4, 1, first + 5, 1},
                {4, 1, first + 6, 2},
                {1, 1, day(2000, 4, 1), 2},
                {0, 1, day(2009, 1, 1), 10},
                {0, 3, day(2009, 1, 1), 4},
                {0, INT_MAX, day(2009, 1, 1), 1},
                {5, 1, first - 1, 0},
                {5, 0, first + 6, 0},
                {5, -1, first + 6, 0},
                {5, INT_MIN, first, 0},
                {6, 1, first, 0},
                {-1, 1, first, 0}};
    for (const auto& row : rows)
        EXPECT_EQ(row.columns, Format::GetDateRangleCounts(row.unit, row.n, first, row.last))
            << row.unit << " " << row.n << " " << row.last - first;
    EXPECT_EQ(1, Format::GetDateRangleDays(first + 0.75, first + 0.25));
    EXPECT_EQ(366, Format::GetDateRangleDays(day(2000, 1, 1), day(2000, 12, 31)));
    EXPECT_EQ(3, Format::GetDateRangleDays(-1.75, 1.25));
    EXPECT_EQ(0, Format::GetDateRangleDays(first, first - 1));
    EXPECT_EQ(3615900, Format::GetDateRangleDays(day(100, 1, 1), day(9999, 12, 31)));
    for (double date : kNoDates) {
        EXPECT_EQ(0, Format::GetDateRangleDays(first, date) + Format::GetDateRangleDays(date, first));
        EXPECT_EQ(0, Format::GetDateRangleCounts(5, 1, first, date) +
                         Format::GetDateRangleCounts(5, 1, date, first));
        EXPECT_EQ(0, Format::GetDateRanges(5, first, date));
        EXPECT_EQ(0, Format::GetDateRanges(5, date, first));
    }
    EXPECT_EQ(0, Format::GetDateRanges(6, first, first + 9));
}

TEST(DateSteps, NominalDaysAndLargerUnits) {
    const int days[] = {365, 91, 30, 10, 7, 1, 0};
    const int most[] = {9999, 3, 11, 2, 6, 28, 0};
    for (int unit = 0; unit <= 6; ++unit) {
        EXPECT_EQ(-3 * days[unit], Format::GetUnitDays(unit, -3, NAN));
        EXPECT_EQ(most[unit], Format().GetUnitMaxCount(unit));
    }
    EXPECT_EQ(INT_MAX, Format::GetUnitDays(4, INT_MAX, 0));
    EXPECT_EQ(INT_MIN, Format::GetUnitDays(0, INT_MIN, 0));
    const struct {
        int unit, n, largerUnit, largerN;
    } rows[] = {{5, 14, 4, 2},
                {5, 15, 5, 15},
                {5, 365, 5, 365},
                {4, 52, 4, 52},
                {3, 36, 0, 1},
                {3, 9, 1, 1},
                {3, 6, 2, 2},
                {2, 30, 1, 10},
                {2, -24, 0, -2},
                {1, 4, 0, 1},
                {0, 8, 0, 8},
                {2, 0, 2, 0},
                {6, 12, 6, 12},
                {-1, 12, -1, 12},
                {2, INT_MIN, 2, INT_MIN},
                {1, INT_MIN, 0, INT_MIN / 4}};
    for (const auto& row : rows) {
        int unit = row.unit;
        int n = row.n;
        EXPECT_EQ(row.unit != row.largerUnit, Format::GetLargeUnitCount(unit, n)) << row.unit << " " << row.n;
        EXPECT_EQ(row.largerUnit, unit) << row.unit << " " << row.n;
        EXPECT_EQ(row.largerN, n) << row.unit << " " << row.n;
    }
}

TEST(DateSteps, NoDateIsAsserted) {
    int calls = 0;
    orv::test::PassedAssertions assertions;
    for (double date : kNoDates) {
        EXPECT_TRUE(Format::GetDateString(5, 101, date, 0, 1).IsEmpty());
        EXPECT_TRUE(Format::GetDateString(101, date).IsEmpty());
        EXPECT_EQ(DBL_MAX, Format::GetNextScale(0, 1, date));
        EXPECT_EQ(-DBL_MAX, Format::GetPrevScale(0, 1, date));
        calls += 4;
    }
#if defined(_DEBUG)
    EXPECT_EQ(calls, assertions.count());
#endif
    for (int unit : {-1, 6, INT_MIN, INT_MAX}) {
        EXPECT_EQ(DBL_MAX, Format::GetNextScale(unit, 1, 0));
        EXPECT_EQ(-DBL_MAX, Format::GetPrevScale(unit, 1, 0));
    }
#if defined(_DEBUG)
    EXPECT_EQ(calls, assertions.count());
#endif
}

} // namespace
