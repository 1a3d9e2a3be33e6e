#pragma once

// Labels from dates, and dates back from labels.

#include <string_view>

#include "CalendarSteps.h"
#include "DateStyles.h"

namespace orv {

// What a day's labels can tell. Running numbers are 0 until they are set.
class DateValues {
public:
    explicit DateValues(int day);

    int get(DateValue value) const { return m_values[static_cast<int>(value)]; }
    void set(DateValue value, int number) { m_values[static_cast<int>(value)] = number; }

private:
    int m_values[kDateValues] = {};
};

// The running numbers of a date's unit on a scale. From the start: 1 for the unit that begins the scale, -1
// for the one before it. From the end: -1 for the last unit of the scale, 1 behind it. All three must be
// dates.
int numberFromStart(DateUnit unit, double start, double date);
int numberFromEnd(DateUnit unit, double end, double date);

constexpr int kLabelRoom = 64; // bytes; the longest label takes 24 in code page 936

// The text, without a closing zero; its length is the result.
int formatLabel(const DateStyle& style, const DateValues& values, char (&label)[kLabelRoom]);

// The first day of the year, quarter, month or ten days, or the day, that a label names in one of the styles
// that tell the year. Months and days may have a leading zero. False, and day unchanged, for every other
// text: one that goes on behind the label, names no day of the calendar or another weekday than the day's.
bool readLabel(std::string_view label, int& day);

// A date written as a number, in decimal or exponential form, or kNoDate. False, and date unchanged, for
// every other text.
bool readDateNumber(std::string_view text, double& date);

// Without the blanks around it.
std::string_view trimBlanks(std::string_view text);

} // namespace orv
