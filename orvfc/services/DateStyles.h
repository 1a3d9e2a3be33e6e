#pragma once

// The label styles of time scales, as rows, and what the arguments of their formats are.

#include <span>
#include <stdint.h>

namespace orv {

// What a label can tell, each a small number.
enum class DateValue : uint8_t {
    year1, // the four decimal digits of the year
    year2,
    year3,
    year4,
    month,
    day,
    quarter,   // 1 to 4
    tenDays,   // of the month, 0 to 2
    weekday,   // 1 Sunday to 7 Saturday
    week,      // of the year; week 1 is its first seven days
    fromStart, // running numbers
    fromEnd
};
constexpr int kDateValues = 12;

// An argument of a format: a value as a number (%d) or by its name (%s).
enum class DateField : uint8_t {
    none, // behind the last argument
    CY1,
    CY2,
    CY3,
    CY4,
    Y1,
    Y2,
    Y3,
    Y4,
    CM,
    M,
    CD,
    D,
    CQ,
    Q,
    X,
    XS,
    WD,
    K,
    Ns,
    Ne
};

// What an argument prints: from first to last, by the names (numbered from 0) or, without names, as a number.
// Running numbers have no bounds and read 0, 0.
struct DateFieldRow {
    DateValue value;
    const char* const* names;
    int first;
    int last;
};
const DateFieldRow& dateField(DateField field);

struct DateStyle {
    int id;
    int unit;
    const char* list;   // for a picker
    const char* width;  // to measure a column with
    const char* format; // %d and %s, one for each argument
    DateField arguments[7];

    bool counts() const { return arguments[0] == DateField::Ns || arguments[0] == DateField::Ne; }
    bool namesYear() const { return arguments[0] == DateField::CY1 || arguments[0] == DateField::Y1; }
};

// In ascending order of their ids.
std::span<const DateStyle> dateStyles();
// Null for an unknown one.
const DateStyle* findDateStyle(int id);

} // namespace orv
