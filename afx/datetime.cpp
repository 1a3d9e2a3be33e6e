#include "afxdisp.h"

#include <math.h>

// COleDateTime: the calendar and the arithmetic.

namespace {

const double nMinDay = -657434;  // 1 January 100
const double nMaxDay = 2958465;  // 31 December 9999
const double nMaxSpan = 3615897; // days between them, and a little
const int nSecondsPerDay = 86400;

bool isLeap(int nYear) {
    return nYear % 4 == 0 && (nYear % 100 != 0 || nYear % 400 == 0);
}

int daysBefore(int nYear, int nMonth) {
    static const int days[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334, 365};
    return days[nMonth - 1] + (nMonth > 2 && isLeap(nYear) ? 1 : 0);
}

int daysIn(int nYear, int nMonth) {
    return nMonth == 12 ? 31 : daysBefore(nYear, nMonth + 1) - daysBefore(nYear, nMonth);
}

// Days from 30 December 1899 to the first day of the year.
int yearStart(int nYear) {
    const int n = nYear - 1;
    return n * 365 + n / 4 - n / 100 + n / 400 - 693593;
}

int dayNumber(int nYear, int nMonth, int nDay) {
    return yearStart(nYear) + daysBefore(nYear, nMonth) + nDay - 1;
}

void civilFromDay(int nDay, SYSTEMTIME& st) {
    int nYear = 1899 + (int)floor(nDay / 365.2425);
    while (yearStart(nYear) > nDay)
        nYear--;
    while (yearStart(nYear + 1) <= nDay)
        nYear++;
    const int nOfYear = nDay - yearStart(nYear);
    int nMonth = 12;
    while (daysBefore(nYear, nMonth) > nOfYear)
        nMonth--;
    st.wYear = (WORD)nYear;
    st.wMonth = (WORD)nMonth;
    st.wDay = (WORD)(nOfYear - daysBefore(nYear, nMonth) + 1);
    st.wDayOfWeek = (WORD)(((nDay - 1) % 7 + 7) % 7); // day 1, 31 December 1899, was a Sunday
}

// From a straight line of time to the form in which the time of day carries no sign, and back.
double dateFromLine(double line) {
    if (line >= 0)
        return line;
    const double day = floor(line);
    return day - (line - day);
}

double lineFromDate(double date) {
    if (date >= 0)
        return date;
    const double day = ceil(date);
    return day + (day - date);
}

bool isInRange(double date) {
    return date > nMinDay - 1 && date < nMaxDay + 1; // also false for what is not a number
}

template <class STATUS>
STATUS worse(STATUS a, STATUS b) {
    return a == STATUS::null || b == STATUS::null         ? STATUS::null
           : a == STATUS::invalid || b == STATUS::invalid ? STATUS::invalid
                                                          : STATUS::valid;
}

} // namespace

COleDateTime::COleDateTime(DATE dtSrc) : m_dt(dtSrc), m_status(valid) {
    CheckRange();
}

COleDateTime::COleDateTime(const SYSTEMTIME& systimeSrc)
    : COleDateTime(systimeSrc.wYear, systimeSrc.wMonth, systimeSrc.wDay, systimeSrc.wHour, systimeSrc.wMinute,
                   systimeSrc.wSecond) {}

void COleDateTime::CheckRange() {
    if (m_status == valid && !isInRange(m_dt))
        m_status = invalid;
}

int COleDateTime::SetDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec) {
    const bool bGood = nYear >= 100 && nYear <= 9999 && nMonth >= 1 && nMonth <= 12 && nDay >= 1 &&
                       nDay <= daysIn(nYear, nMonth) && nHour >= 0 && nHour <= 23 && nMin >= 0 &&
                       nMin <= 59 && nSec >= 0 && nSec <= 59;
    m_status = bGood ? valid : invalid;
    m_dt = 0;
    if (bGood) {
        const int nDays = dayNumber(nYear, nMonth, nDay);
        const double time = (nHour * 3600 + nMin * 60 + nSec) / (double)nSecondsPerDay;
        m_dt = nDays < 0 ? nDays - time : nDays + time;
    }
    return m_status;
}

bool COleDateTime::GetAsSystemTime(SYSTEMTIME& sysTime) const {
    SYSTEMTIME st = {};
    sysTime = st;
    if (m_status != valid || !isInRange(m_dt))
        return false;
    int nDay = (int)m_dt;
    int nSecond = (int)floor(fabs(m_dt - nDay) * nSecondsPerDay + 0.5);
    if (nSecond >= nSecondsPerDay) {
        if (nDay < (int)nMaxDay) {
            nDay++;
            nSecond = 0;
        } else {
            nSecond = nSecondsPerDay - 1; // the last second of all
        }
    }
    civilFromDay(nDay, st);
    st.wHour = (WORD)(nSecond / 3600);
    st.wMinute = (WORD)(nSecond / 60 % 60);
    st.wSecond = (WORD)(nSecond % 60);
    sysTime = st;
    return true;
}

int COleDateTime::Part(WORD SYSTEMTIME::*pPart) const {
    SYSTEMTIME st;
    return GetAsSystemTime(st) ? st.*pPart : (int)error;
}

int COleDateTime::GetDayOfWeek() const {
    SYSTEMTIME st;
    return GetAsSystemTime(st) ? st.wDayOfWeek + 1 : (int)error;
}

int COleDateTime::GetDayOfYear() const {
    SYSTEMTIME st;
    return GetAsSystemTime(st) ? daysBefore(st.wYear, st.wMonth) + st.wDay : (int)error;
}

double COleDateTime::Days() const {
    return lineFromDate(m_dt);
}

COleDateTime COleDateTime::operator+(COleDateTimeSpan span) const {
    COleDateTime date;
    date.m_status = worse(m_status, (DateTimeStatus)span.m_status);
    if (date.m_status == valid)
        date.m_dt = dateFromLine(Days() + span.m_span);
    date.CheckRange();
    return date;
}

COleDateTimeSpan COleDateTime::operator-(const COleDateTime& date) const {
    COleDateTimeSpan span;
    span.m_status = (COleDateTimeSpan::DateTimeSpanStatus)worse(m_status, date.m_status);
    if (span.m_status == COleDateTimeSpan::valid)
        span.m_span = Days() - date.Days();
    return span;
}

COleDateTimeSpan::COleDateTimeSpan(double dblSpanSrc) : m_span(dblSpanSrc), m_status(valid) {
    if (!(fabs(dblSpanSrc) <= nMaxSpan))
        m_status = invalid;
}

void COleDateTimeSpan::SetDateTimeSpan(LONG lDays, int nHours, int nMins, int nSecs) {
    *this = COleDateTimeSpan(lDays + nHours / 24.0 + nMins / (24.0 * 60) + nSecs / (double)nSecondsPerDay);
}

COleDateTimeSpan COleDateTimeSpan::operator+(const COleDateTimeSpan& b) const {
    COleDateTimeSpan span(m_span + b.m_span);
    span.m_status = worse(span.m_status, worse(m_status, b.m_status));
    return span;
}

COleDateTimeSpan COleDateTimeSpan::operator-() const {
    COleDateTimeSpan span(*this);
    span.m_span = -m_span;
    return span;
}

double COleDateTimeSpan::Total(int nPerDay) const {
    // Whole units come out whole in spite of the fraction's last bit.
    const double total = m_span * nPerDay, whole = floor(total + 0.5);
    return fabs(total - whole) < 1e-7 * nPerDay / 24 ? whole : total;
}

LONGLONG COleDateTimeSpan::Seconds() const {
    const double seconds = m_span * nSecondsPerDay;
    if (!(fabs(seconds) < 9e15))
        return 0;
    return (LONGLONG)(seconds < 0 ? ceil(seconds - 0.5) : floor(seconds + 0.5));
}

CArchive& operator<<(CArchive& ar, const COleDateTime& date) {
    return ar << (LONG)date.m_status << date.m_dt;
}

CArchive& operator>>(CArchive& ar, COleDateTime& date) {
    LONG status;
    double dt;
    ar >> status >> dt;
    date.m_dt = dt;
    date.m_status = status == COleDateTime::valid || status == COleDateTime::null
                        ? (COleDateTime::DateTimeStatus)status
                        : COleDateTime::invalid;
    return ar;
}

CArchive& operator<<(CArchive& ar, const COleDateTimeSpan& span) {
    return ar << (LONG)span.m_status << span.m_span;
}

CArchive& operator>>(CArchive& ar, COleDateTimeSpan& span) {
    LONG status;
    double days;
    ar >> status >> days;
    span.m_span = days;
    span.m_status = status == COleDateTimeSpan::valid || status == COleDateTimeSpan::null
                        ? (COleDateTimeSpan::DateTimeSpanStatus)status
                        : COleDateTimeSpan::invalid;
    return ar;
}
