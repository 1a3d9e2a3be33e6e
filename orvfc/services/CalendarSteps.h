#pragma once

// The calendar of time scales: days, the units that hold them, and the steps from one unit to another.
//
// The calendar is the Gregorian one from 1 January 100 to 31 December 9999. A day is the whole number of days
// since 30 December 1899. A date is a day and a time of day in one double, as COleDateTime stores it: the
// fraction, taken without sign, is the time of day, so that -1.25 is 29 December 1899, 6:00. A time less than
// half a second before or after midnight is midnight. A boundary is the midnight with which a unit begins.

#include <float.h>
#include <stdint.h>

namespace orv {

constexpr double kNoDate = DBL_MAX;
constexpr int kFirstDay = -657434; // 1 January 100
constexpr int kLastDay = 2958465;  // 31 December 9999

// The numbers are those of CORVDateFormat.
enum class DateUnit { year, quarter, month, tenDays, week, day };
constexpr int kDateUnits = 6;
constexpr bool isDateUnit(int unit) {
    return unit >= 0 && unit < kDateUnits;
}

struct CalendarDate {
    int year;
    int month; // 1 to 12
    int day;   // 1 to 31
};

int dayNumber(const CalendarDate& date);
CalendarDate calendarDate(int day);
int daysInMonth(int year, int month);
int dayOfWeek(int day); // 1 Sunday to 7 Saturday
int dayOfYear(int day); // from 1
// 0 for days 1 to 10 of a month, 1 for 11 to 20, 2 for the rest.
int tenDaysOfMonth(int dayOfMonth);

// False for what is no date of the calendar: out of range, infinite, not a number, kNoDate.
bool isDate(double date);
// The day of a date. The date must be one.
int dayOf(double date);
// The same time of day some days later. The date must be one; the result may lie outside the calendar.
double addDays(double date, int days);

// The boundary some steps from a date. Forwards the first step leads to the first boundary after the date,
// backwards to the last one before it, which for a date inside a unit is the beginning of that unit. No step
// at all is the beginning of the unit that holds the date. Where the calendar has no such boundary: kNoDate
// forwards, -kNoDate otherwise, so that comparing with it ends a loop. The date must be one.
double stepBoundary(DateUnit unit, int64_t steps, double date);

// How often stepBoundary can step from a by one before it passes b: a count of the boundaries in (a, b], or,
// negative, of those in [b, a). Boundaries and b are compared as numbers. b must be a date; a may also be one
// day later than the calendar's end.
int countBoundaries(DateUnit unit, double a, double b);

} // namespace orv
