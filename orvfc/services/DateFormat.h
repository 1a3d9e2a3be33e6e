#pragma once

#include <afxcoll.h>
#include <orvfc/OrvApi.h>

#include "DynamicArray.h"

class CDumpContext;

// What one row of a time scale shows.
struct ORVFC_API ORVDateUnitSingleStruct {
    int nUnit = 0;
    int nStyle = 0;

    void Dump(CDumpContext& dc) const;
};

// The labels of a time scale: the text of one tick in one of 77 styles, and the steps from tick to tick.
//
// Units: 0 year, 1 quarter, 2 month, 3 ten days (days 1 to 10, 11 to 20, 21 to the end of a month), 4 week
// (from Sunday), 5 day. Styles: year 0 to 8, month 15 to 27, quarter 35 to 46, ten days 55 to 61, week 70 to
// 87, day 95 to 112. Texts are code page 936.
//
// Dates are those of COleDateTime (<afxdisp.h>), as a double, from 1 January 100 to 31 December 9999; less
// than half a second from midnight is midnight. DBL_MAX marks that there is no date. What is no date (also
// infinities and not-a-number) gives the failure result told below; an assertion only where one is told.
class ORVFC_API CORVDateFormat {
public:
    CORVDateFormat();
    // Copies have rows of their own. When memory is short an assignment changes nothing.
    CORVDateFormat(const CORVDateFormat& other);
    CORVDateFormat& operator=(const CORVDateFormat& other);
    virtual ~CORVDateFormat();

    void Init() {} // there is nothing to do
    // One more row of the scale. Unit and style are taken as they are.
    void AddStyle(int unit, int style);
    int GetStyleCount() const;
    // The row, owned by this object. Out of range: assertion, null.
    const ORVDateUnitSingleStruct* GetStyle(int nIndex) const;

    // Appends the styles of a unit in ascending order, and each one's text for a picker. Returns how many;
    // an unknown unit has none.
    static int GetStyleStringArray(int unit, CStringArray& texts, CWordArray& ids);
    static int GetStyleStringArray(CStringArray& texts, CWordArray& ids); // of the day
    // A style's text for a picker. Empty for an unknown one. The unit is not looked at.
    static CString GetSampleText(int unit, int style);
    // The text to measure a style's column with. Empty for an unknown one. The unit is not looked at.
    CString GetWidthText(int unit, int style) const;

    // The label of the day `date`. Running numbers are counts of GetDateRanges: from the scale's start, where
    // the unit that begins there is 1 and the one before it -1 (there is no 0), or to its end, whose day
    // still belongs to the scale, where the last unit is -1 and printed so ("第-1年"; callers rely on it).
    // Give the start as the beginning of a unit, and start and end without a time of day: the beginning of a
    // unit that holds the start lies before it and reads -1. The unit takes no other part: a style of another
    // one prints the same. Empty for an unknown unit or style, and for running numbers without a start (or,
    // to the end, without an end). No date: assertion, empty.
    static CString GetDateString(int unit, int style, double date, double start, double end);
    // The label of a single date, with neither start nor end. Running numbers are empty.
    static CString GetDateString(int style, double date);
    // In the usual form, year-month-day: "2000-1-31" (style 101).
    static CString GetDateStringGer(double date);

    // The beginning of the unit that holds `date`. Weeks and days keep the time of day. DBL_MAX for an
    // unknown unit, for what is no date, and for the week that begins before 3 January 100.
    double GetBeginDate(int unit, int n, double date) const; // n is not looked at
    // 365, 91, 30, 10, 7 or 1 days times n, stopping at the ends of int. 0 for an unknown unit.
    static int GetUnitDays(int unit, int n, double date); // the date is not looked at
    // 9999, 3, 11, 2, 6, 28. 0 for an unknown unit.
    int GetUnitMaxCount(int unit) const;

    // The beginning of a unit, at midnight, n steps after or before `date`. From inside a unit the first step
    // forwards leads to the next unit, the first step backwards to the beginning of this one. n = 0: the
    // beginning of the unit that holds the date. n < 0: the other function with -n.
    // Behind the calendar's last beginning DBL_MAX, before its first one -DBL_MAX: a loop that compares ends.
    // Unknown unit: GetNextScale DBL_MAX, GetPrevScale -DBL_MAX. No date: assertion, the same.
    static double GetPrevScale(int unit, int n, double date);
    static double GetNextScale(int unit, int n, double date);

    // How many beginnings of units lie in (a, b]; when b is not above a, minus those in [b, a). Exactly what
    // stepping from a by one, until b is passed, counts, but at once. Beginnings and b are compared as
    // numbers: before 1900 a time of day makes the number smaller, so give days there. 0 for an unknown unit
    // or no date.
    static int GetDateRanges(int unit, double a, double b);
    // How many columns of n units a scale needs to show the days from a to b, the units that hold them
    // included whole. 0 when b is an earlier day than a, n is below 1, the unit is unknown, or for no date.
    static int GetDateRangleCounts(int unit, int n, double a, double b);
    // The days from a to b, both included: 1 for twice the same day. 0 when b is an earlier day, or no date.
    static int GetDateRangleDays(double a, double b);
    // Says n units in the largest unit of which they are a whole number: 14 days are 2 weeks, 36 times ten
    // days 1 year (but days are no months, weeks no years). 1 when that changed something, else 0: nothing
    // larger fits, the number is 0, the unit is unknown.
    static int GetLargeUnitCount(int& unit, int& n);

    // Reads back what GetDateString writes in the styles that tell the year (0 to 2, 15 to 18, 35, 36, 59,
    // 60, 70 to 74, 95 to 97, 101, 102): the beginning of the year, quarter, month or ten days, or the day.
    // Zeros before months and days, and blanks around the text, are skipped. Reads back what a format like
    // "%.17g" or "%f" writes, DBL_MAX included: the second one. 1, or 0 and `date` as it was: for a text of
    // any other form, no day of the calendar, another weekday than the day's.
    static int GetDataFromFormatString(CString strText, double& date);
    static int GetDataFromDouString(CString strText, double& date);

    void Dump(CDumpContext& dc) const;

private:
    CDynamicPtrArray<ORVDateUnitSingleStruct> m_rows;
};
