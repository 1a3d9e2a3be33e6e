// Steps on the calendar of time scales, and the counts that stand for them.

#include <orvfc/services/CalendarSteps.h>
#include <orvfc/services/DateFormat.h>

#include <gtest/gtest.h>

#include <random>

#include "afx/afx_test.h"
#include "dates.h"

namespace {

using orv::test::day;
using orv::test::kNoDates;
using Format = CORVDateFormat;

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
    for (int number = orv::kFirstDay; number <= orv::kLastDay; number += 13) {
        expectSame(number);
        expectSame(number < 0 ? number - 0.75 : number + 0.75);
    }
    for (int year : {100, 400, 1900, 2000, 2004, 2100, 9999}) {
        for (int number = 0; number < 365; ++number)
            expectSame(day(10000 * year + 101) + number);
    }
    for (double date : {2.9999999, -2.9999999, 2.99999, -2.99999, -0.9999999, orv::kLastDay + 0.9999999,
                        orv::kFirstDay - 0.9999999})
        expectSame(date);
    for (double date : kNoDates)
        EXPECT_FALSE(orv::isDate(date)) << date;
}

constexpr int kAfter = 99999999; // all dates
constexpr int kBefore = 0;

// As GetNextScale and GetPrevScale say it.
double answer(int digits) {
    return digits == kAfter ? DBL_MAX : digits == kBefore ? -DBL_MAX : day(digits);
}

const struct {
    int unit;
    double from;
    int begin, next, next3, prev, prev3;
} stepRows[] = {
    // A date that begins its unit, and dates inside one.
    {0, day(20000101), 20000101, 20010101, 20030101, 19990101, 19970101},
    {0, day(20001231), 20000101, 20010101, 20030101, 20000101, 19980101},
    {1, day(20000401), 20000401, 20000701, 20010101, 20000101, 19990701},
    {1, day(20000331), 20000101, 20000401, 20001001, 20000101, 19990701},
    {2, day(20000101), 20000101, 20000201, 20000401, 19991201, 19991001},
    {2, day(20000131), 20000101, 20000201, 20000401, 20000101, 19991101},
    {3, day(20000221), 20000221, 20000301, 20000321, 20000211, 20000121},
    {3, day(20000131), 20000121, 20000201, 20000221, 20000121, 20000101},
    {3, day(20000110), 20000101, 20000111, 20000201, 20000101, 19991211},
    {3, day(20000120), 20000111, 20000121, 20000211, 20000111, 19991221},
    {4, day(20001231), 20001231, 20010107, 20010121, 20001224, 20001210},
    {4, day(20000229), 20000227, 20000305, 20000319, 20000227, 20000213},
    {4, day(18991230), 18991224, 18991231, 19000114, 18991224, 18991210},
    {5, day(20000228), 20000228, 20000229, 20000302, 20000227, 20000225},
    {5, day(19000228) + 0.5, 19000228, 19000301, 19000303, 19000228, 19000226},
    // 29 December 1899, 6:00; and a quarter of a second before 1 January 2001.
    {5, -1.25, 18991229, 18991230, 19000101, 18991229, 18991227},
    {0, day(20010101) - 0.25 / 86400, 20010101, 20020101, 20040101, 20000101, 19980101},
    // The ends of the calendar. 1 January 100 was a Friday.
    {0, day(99970505), 99970101, 99980101, kAfter, 99970101, 99950101},
    {1, day(99991231), 99991001, kAfter, kAfter, 99991001, 99990401},
    {2, day(1000201), 1000201, 1000301, 1000501, 1000101, kBefore},
    {3, day(1000101), 1000101, 1000111, 1000201, kBefore, kBefore},
    {4, day(1000102), kBefore, 1000103, 1000117, kBefore, kBefore},
    {5, day(99991231), 99991231, kAfter, kAfter, 99991230, 99991228},
};

TEST(DateSteps, Table) {
    for (const auto& row : stepRows) {
        SCOPED_TRACE(testing::Message() << "unit " << row.unit << ", from " << row.from);
        EXPECT_EQ(answer(row.begin), Format::GetNextScale(row.unit, 0, row.from));
        EXPECT_EQ(answer(row.begin), Format::GetPrevScale(row.unit, 0, row.from));
        EXPECT_EQ(answer(row.next), Format::GetNextScale(row.unit, 1, row.from));
        EXPECT_EQ(answer(row.next3), Format::GetNextScale(row.unit, 3, row.from));
        EXPECT_EQ(answer(row.next3), Format::GetPrevScale(row.unit, -3, row.from));
        EXPECT_EQ(answer(row.prev), Format::GetPrevScale(row.unit, 1, row.from));
        EXPECT_EQ(answer(row.prev3), Format::GetPrevScale(row.unit, 3, row.from));
        EXPECT_EQ(answer(row.prev3), Format::GetNextScale(row.unit, -3, row.from));
        EXPECT_EQ(DBL_MAX, Format::GetNextScale(row.unit, INT_MAX, row.from));
        EXPECT_EQ(DBL_MAX, Format::GetPrevScale(row.unit, INT_MIN, row.from));
        EXPECT_EQ(-DBL_MAX, Format::GetPrevScale(row.unit, INT_MAX, row.from));
        EXPECT_EQ(-DBL_MAX, Format::GetNextScale(row.unit, INT_MIN, row.from));
    }
}

TEST(DateSteps, BeginOfUnit) {
    const Format format;
    const double evening = day(20001229) + 0.75; // a Friday
    const double expected[] = {day(20000101), day(20001001),        day(20001201),
                               day(20001221), day(20001224) + 0.75, evening};
    for (int unit = 0; unit < 6; ++unit)
        EXPECT_EQ(expected[unit], format.GetBeginDate(unit, 7, evening)) << unit;
    EXPECT_EQ(day(20001224), format.GetBeginDate(4, 1, day(20001224)));
    // The evenings of Saturday, 30, and of Sunday, 24 December 1899.
    EXPECT_EQ(-6.75, format.GetBeginDate(4, 1, 0.75));
    EXPECT_EQ(DBL_MAX, format.GetBeginDate(4, 1, day(1000102)));
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
    expectSame(day(1000101), day(10000101));
}

TEST(DateSteps, CountsOverARange) {
    const double first = day(20000131);
    const struct {
        int unit, n;
        double last;
        int columns;
    } rows[] = {{5, 1, first, 1},          {5, 1, first + 0.9, 1},   {5, 1, first + 6, 7},
                {5, 2, first + 6, 4},      {5, 2, first + 7, 4},     {2, 1, first + 1, 2},
                {2, 2, first + 1, 1},      {2, 2, first + 30, 2},    {3, 1, first + 1, 2},
                {4, 1, first + 5, 1},      {4, 1, first + 6, 2},     {1, 1, day(20000401), 2},
                {0, 1, day(20090101), 10}, {0, 3, day(20090101), 4}, {0, INT_MAX, day(20090101), 1},
                {5, 1, first - 1, 0},      {5, 0, first + 6, 0},     {5, -1, first + 6, 0},
                {5, INT_MIN, first, 0},    {6, 1, first, 0},         {-1, 1, first, 0}};
    for (const auto& row : rows)
        EXPECT_EQ(row.columns, Format::GetDateRangleCounts(row.unit, row.n, first, row.last))
            << row.unit << " " << row.n << " " << row.last - first;
    EXPECT_EQ(1, Format::GetDateRangleDays(first + 0.75, first + 0.25));
    EXPECT_EQ(366, Format::GetDateRangleDays(day(20000101), day(20001231)));
    EXPECT_EQ(3, Format::GetDateRangleDays(-1.75, 1.25));
    EXPECT_EQ(0, Format::GetDateRangleDays(first, first - 1));
    EXPECT_EQ(3615900, Format::GetDateRangleDays(day(1000101), day(99991231)));
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
    const int least = INT_MIN;
    EXPECT_EQ(INT_MAX, Format::GetUnitDays(4, INT_MAX, 0));
    EXPECT_EQ(least, Format::GetUnitDays(0, least, 0));
    const struct {
        int unit, n, largerUnit, largerN;
    } rows[] = {{5, 14, 4, 2},   {5, 15, 5, 15},   {5, 365, 5, 365},     {4, 52, 4, 52},
                {3, 36, 0, 1},   {3, 9, 1, 1},     {3, 6, 2, 2},         {2, 30, 1, 10},
                {2, -24, 0, -2}, {1, 4, 0, 1},     {0, 8, 0, 8},         {2, 0, 2, 0},
                {6, 12, 6, 12},  {-1, 12, -1, 12}, {2, least, 2, least}, {1, least, 0, least / 4}};
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
