#pragma once

// Dates as days since 30 December 1899, as automation stores them.

#include "afx.h"

#if defined(_WIN32)
#include <oleauto.h>
#endif

// A length of time in days. valid, invalid (too long) or null (not set).
class ORVAFX_API COleDateTimeSpan {
public:
    enum DateTimeSpanStatus { valid = 0, invalid = 1, null = 2 };

    COleDateTimeSpan() : m_span(0), m_status(valid) {}
    COleDateTimeSpan(double dblSpanSrc);
    COleDateTimeSpan(LONG lDays, int nHours, int nMins, int nSecs) {
        SetDateTimeSpan(lDays, nHours, nMins, nSecs);
    }

    void SetStatus(DateTimeSpanStatus status) { m_status = status; }
    DateTimeSpanStatus GetStatus() const { return m_status; }

    double GetTotalDays() const { return m_span; }
    double GetTotalHours() const { return Total(24); }
    double GetTotalMinutes() const { return Total(24 * 60); }
    double GetTotalSeconds() const { return Total(24 * 60 * 60); }
    // The parts: whole days, then what is left of them, all with the sign of the span.
    LONG GetDays() const { return (LONG)(Seconds() / 86400); }
    LONG GetHours() const { return (LONG)(Seconds() / 3600 % 24); }
    LONG GetMinutes() const { return (LONG)(Seconds() / 60 % 60); }
    LONG GetSeconds() const { return (LONG)(Seconds() % 60); }

    void SetDateTimeSpan(LONG lDays, int nHours, int nMins, int nSecs);
    // %D days, %H %M %S two digits, %% a per cent sign. Empty unless valid.
    CString Format(LPCTSTR pFormat) const;

    COleDateTimeSpan& operator=(double dblSpanSrc) { return *this = COleDateTimeSpan(dblSpanSrc); }
    bool operator==(const COleDateTimeSpan& b) const { return m_status == b.m_status && m_span == b.m_span; }
    bool operator!=(const COleDateTimeSpan& b) const { return !(*this == b); }
    bool operator<(const COleDateTimeSpan& b) const { return m_span < b.m_span; }
    bool operator>(const COleDateTimeSpan& b) const { return m_span > b.m_span; }
    bool operator<=(const COleDateTimeSpan& b) const { return m_span <= b.m_span; }
    bool operator>=(const COleDateTimeSpan& b) const { return m_span >= b.m_span; }
    COleDateTimeSpan operator+(const COleDateTimeSpan& b) const;
    COleDateTimeSpan operator-(const COleDateTimeSpan& b) const { return *this + -b; }
    COleDateTimeSpan& operator+=(const COleDateTimeSpan b) { return *this = *this + b; }
    COleDateTimeSpan& operator-=(const COleDateTimeSpan b) { return *this = *this - b; }
    COleDateTimeSpan operator-() const;
    operator double() const { return m_span; }

    double m_span;
    DateTimeSpanStatus m_status;

private:
    double Total(int nPerDay) const;
    LONGLONG Seconds() const;
};

// A date and time of day, 1 January 100 to 31 December 9999. The whole part of m_dt counts days; its
// fraction, taken without sign, is the time of day: -1.25 is 29 December 1899, 6:00. valid, invalid (no such
// date) or null (not set); parts of a date that is not valid are `error`.
class ORVAFX_API COleDateTime {
public:
    enum DateTimeStatus { error = -1, valid = 0, invalid = 1, null = 2 };

    static COleDateTime WINAPI GetCurrentTime(); // local time

    COleDateTime() : m_dt(0), m_status(valid) {}
    COleDateTime(DATE dtSrc);
    COleDateTime(LONGLONG timeSrc); // seconds since 1970, shown as local time
    COleDateTime(const SYSTEMTIME& systimeSrc);
    COleDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec) {
        SetDateTime(nYear, nMonth, nDay, nHour, nMin, nSec);
    }
#if defined(_WIN32)
    COleDateTime(const FILETIME& filetimeSrc); // UTC, shown as local time
#endif

    void SetStatus(DateTimeStatus status) {
        m_status = status;
    }
    DateTimeStatus GetStatus() const {
        return m_status;
    }
    bool GetAsSystemTime(SYSTEMTIME& sysTime) const; // to the nearest second

    int GetYear() const {
        return Part(&SYSTEMTIME::wYear);
    }
    int GetMonth() const {
        return Part(&SYSTEMTIME::wMonth);
    } // 1 to 12
    int GetDay() const {
        return Part(&SYSTEMTIME::wDay);
    }
    int GetHour() const {
        return Part(&SYSTEMTIME::wHour);
    }
    int GetMinute() const {
        return Part(&SYSTEMTIME::wMinute);
    }
    int GetSecond() const {
        return Part(&SYSTEMTIME::wSecond);
    }
    int GetDayOfWeek() const; // 1 Sunday to 7 Saturday
    int GetDayOfYear() const; // from 1

    // 0, or 1 when there is no such date and the status became invalid.
    int SetDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec);
    int SetDate(int nYear, int nMonth, int nDay) {
        return SetDateTime(nYear, nMonth, nDay, 0, 0, 0);
    }
    int SetTime(int nHour, int nMin, int nSec) {
        return SetDateTime(1899, 12, 30, nHour, nMin, nSec);
    }

    // The formats of strftime with English names, for all years; %#d and the like without leading zeros.
    // Empty when null; a text that says so when invalid.
    CString Format(LPCTSTR lpszFormat) const;
#if defined(_WIN32)
    // As the locale writes dates: VAR_DATEVALUEONLY, VAR_TIMEVALUEONLY, LOCALE_NOUSEROVERRIDE.
    CString Format(DWORD dwFlags = 0, LCID lcid = LANG_USER_DEFAULT) const;
#endif

    COleDateTime& operator=(DATE dtSrc) {
        return *this = COleDateTime(dtSrc);
    }
    bool operator==(const COleDateTime& b) const {
        return m_status == b.m_status && m_dt == b.m_dt;
    }
    bool operator!=(const COleDateTime& b) const {
        return !(*this == b);
    }
    bool operator<(const COleDateTime& b) const {
        return Days() < b.Days();
    }
    bool operator>(const COleDateTime& b) const {
        return b < *this;
    }
    bool operator<=(const COleDateTime& b) const {
        return Days() <= b.Days();
    }
    bool operator>=(const COleDateTime& b) const {
        return b <= *this;
    }
    COleDateTime operator+(COleDateTimeSpan span) const;
    COleDateTime operator-(COleDateTimeSpan span) const {
        return *this + -span;
    }
    COleDateTime& operator+=(COleDateTimeSpan span) {
        return *this = *this + span;
    }
    COleDateTime& operator-=(COleDateTimeSpan span) {
        return *this = *this - span;
    }
    COleDateTimeSpan operator-(const COleDateTime& date) const;
    operator DATE() const {
        return m_dt;
    }

    DATE m_dt;
    DateTimeStatus m_status;

private:
    int Part(WORD SYSTEMTIME::*pPart) const;
    // Days on a straight line of time, where -1.25 is -0.75.
    double Days() const;
    void CheckRange();
};

// A 32-bit status, then the number.
ORVAFX_API CArchive& operator<<(CArchive& ar, const COleDateTime& date);
ORVAFX_API CArchive& operator>>(CArchive& ar, COleDateTime& date);
ORVAFX_API CArchive& operator<<(CArchive& ar, const COleDateTimeSpan& span);
ORVAFX_API CArchive& operator>>(CArchive& ar, COleDateTimeSpan& span);
ORVAFX_API CDumpContext& operator<<(CDumpContext& dc, const COleDateTime& date);
ORVAFX_API CDumpContext& operator<<(CDumpContext& dc, const COleDateTimeSpan& span);
