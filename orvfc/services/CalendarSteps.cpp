#include "CalendarSteps.h"

#include <algorithm>
#include <cmath>

namespace orv {
namespace {

constexpr double kHalfSecond = 0.5 / 86400;
constexpr int kSunday = 1; // 31 December 1899

constexpr int64_t floorDivide(int64_t number, int64_t by) {
    return number / by - (number % by < 0);
}

// On a straight line of time, where -1.25 is -0.75.
double straightTime(double date) {
    const double whole = std::trunc(date);
    return whole + std::fabs(date - whole);
}

double dateOfStraightTime(double time) {
    const double whole = std::floor(time);
    return whole < 0 ? whole - (time - whole) : time;
}

struct Moment {
    int day;
    bool midnight;
};

// The date must lie within a day of the calendar. Its last half second has no next day to go to.
Moment momentOf(double date) {
    const double time = straightTime(date);
    double day = std::floor(time + kHalfSecond);
    if (day > kLastDay && date < kLastDay + 1)
        day = kLastDay;
    return {static_cast<int>(day), time - day < kHalfSecond};
}

// Units are numbered along the calendar, without gaps, so that stepping is adding.
int64_t unitOfDay(DateUnit unit, int day) {
    if (unit == DateUnit::day)
        return day;
    if (unit == DateUnit::week)
        return floorDivide(day - kSunday, 7);
    const CalendarDate date = calendarDate(day);
    const int months = date.year * 12 + date.month - 1;
    switch (unit) {
    case DateUnit::year:
        return date.year;
    case DateUnit::quarter:
        return months / 3;
    case DateUnit::month:
        return months;
    default:
        return months * 3 + tenDaysOfMonth(date.day);
    }
}

// The unit must lie in the years 0 to 10000.
int firstDayOfUnit(DateUnit unit, int number) {
    switch (unit) {
    case DateUnit::year:
        return dayNumber({number, 1, 1});
    case DateUnit::quarter:
        return dayNumber({number / 4, number % 4 * 3 + 1, 1});
    case DateUnit::month:
        return dayNumber({number / 12, number % 12 + 1, 1});
    case DateUnit::tenDays:
        return dayNumber({number / 36, number / 3 % 12 + 1, number % 3 * 10 + 1});
    case DateUnit::week:
        return number * 7 + kSunday;
    default:
        return number;
    }
}

// The unit of the first boundary on the day or after it.
int64_t unitFromDay(DateUnit unit, int day) {
    return unitOfDay(unit, day - 1) + 1;
}

// The unit of the last boundary before the moment.
int64_t unitBefore(DateUnit unit, const Moment& moment) {
    return unitOfDay(unit, moment.midnight ? moment.day - 1 : moment.day);
}

} // namespace

// Years are counted from March, so that the leap day is the last day of its year, in cycles of 400 years or
// 146097 days. The cycle before the year 0 keeps all numbers positive.
int dayNumber(const CalendarDate& date) {
    const int year = date.year + 400 - (date.month <= 2);
    const int month = (date.month + 9) % 12;
    const int days = year * 365 + year / 4 - year / 100 + year / 400 + (153 * month + 2) / 5 + date.day - 1;
    return days - 146097 - 693899; // 1 March of the year 0 lies 693899 days before 30 December 1899
}

CalendarDate calendarDate(int day) {
    const int days = day + 693899 + 146097;
    const int cycle = days / 146097;
    const int inCycle = days % 146097;
    const int yearOfCycle = (inCycle - inCycle / 1460 + inCycle / 36524 - inCycle / 146096) / 365;
    const int inYear = inCycle - (365 * yearOfCycle + yearOfCycle / 4 - yearOfCycle / 100);
    const int month = (5 * inYear + 2) / 153; // 0 is March
    const int year = cycle * 400 + yearOfCycle - 400 + (month >= 10);
    return {year, (month + 2) % 12 + 1, inYear - (153 * month + 2) / 5 + 1};
}

int daysInMonth(int year, int month) {
    if (month == 2)
        return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0) ? 29 : 28;
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

int dayOfWeek(int day) {
    return static_cast<int>(day - kSunday - 7 * floorDivide(day - kSunday, 7)) + 1;
}

int dayOfYear(int day) {
    return day - dayNumber({calendarDate(day).year, 1, 1}) + 1;
}

int tenDaysOfMonth(int dayOfMonth) {
    return std::min((dayOfMonth - 1) / 10, 2);
}

bool isDate(double date) {
    return date > kFirstDay - 1 && date < kLastDay + 1; // also false for what is not a number
}

int dayOf(double date) {
    return momentOf(date).day;
}

double addDays(double date, int days) {
    return dateOfStraightTime(straightTime(date) + days);
}

double stepBoundary(DateUnit unit, int64_t steps, double date) {
    const Moment moment = momentOf(date);
    const int64_t last = unitOfDay(unit, kLastDay);
    const int64_t first = unitFromDay(unit, kFirstDay);
    const int64_t target =
        steps < 0 ? unitBefore(unit, moment) + steps + 1 : unitOfDay(unit, moment.day) + steps;
    if (target > last)
        return kNoDate;
    if (target < first)
        return -kNoDate;
    return firstDayOfUnit(unit, static_cast<int>(target));
}

int countBoundaries(DateUnit unit, double a, double b) {
    const Moment moment = momentOf(a);
    if (b > a) {
        const int last = static_cast<int>(std::floor(b));
        const int64_t count = unitOfDay(unit, last) - unitOfDay(unit, moment.day);
        return static_cast<int>(std::max<int64_t>(count, 0));
    }
    const int first = static_cast<int>(std::ceil(b));
    const int64_t count = unitBefore(unit, moment) - unitFromDay(unit, first) + 1;
    return -static_cast<int>(std::max<int64_t>(count, 0));
}

} // namespace orv
