#include "afxdisp.h"

#include <time.h>

// COleDateTime: texts, and the clock.

namespace {

const char* const dayNames[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
const char* const monthNames[] = {"January", "February", "March",     "April",   "May",      "June",
                                  "July",    "August",   "September", "October", "November", "December"};

CString number(int n, int nDigits, bool bPlain) {
    CString text;
    text.Format("%0*d", bPlain ? 1 : nDigits, n);
    return text;
}

CString formatted(LPCSTR format, const SYSTEMTIME& st, int nDayOfYear);

CString field(char conversion, bool bPlain, const SYSTEMTIME& st, int nDayOfYear) {
    const int nWeekDay = st.wDayOfWeek, nHour12 = st.wHour % 12 == 0 ? 12 : st.wHour % 12;
    switch (conversion) {
    case 'a':
        return CString(dayNames[nWeekDay], 3);
    case 'A':
        return dayNames[nWeekDay];
    case 'b':
        return CString(monthNames[st.wMonth - 1], 3);
    case 'B':
        return monthNames[st.wMonth - 1];
    case 'c':
        return formatted("%m/%d/%y %H:%M:%S", st, nDayOfYear);
    case 'd':
        return number(st.wDay, 2, bPlain);
    case 'H':
        return number(st.wHour, 2, bPlain);
    case 'I':
        return number(nHour12, 2, bPlain);
    case 'j':
        return number(nDayOfYear, 3, bPlain);
    case 'm':
        return number(st.wMonth, 2, bPlain);
    case 'M':
        return number(st.wMinute, 2, bPlain);
    case 'p':
        return st.wHour < 12 ? "AM" : "PM";
    case 'S':
        return number(st.wSecond, 2, bPlain);
    case 'U': // weeks that begin on Sunday
        return number((nDayOfYear + 6 - nWeekDay) / 7, 2, bPlain);
    case 'w':
        return number(nWeekDay, 1, bPlain);
    case 'W': // weeks that begin on Monday
        return number((nDayOfYear + 6 - (nWeekDay + 6) % 7) / 7, 2, bPlain);
    case 'x':
        return formatted("%m/%d/%y", st, nDayOfYear);
    case 'X':
        return formatted("%H:%M:%S", st, nDayOfYear);
    case 'y':
        return number(st.wYear % 100, 2, bPlain);
    case 'Y':
        return number(st.wYear, 4, bPlain);
    case '%':
        return "%";
    default: // time zones, and what is no conversion
        return CString();
    }
}

CString formatted(LPCSTR format, const SYSTEMTIME& st, int nDayOfYear) {
    CString text;
    for (const char* p = format; *p != 0; p++) {
        if (*p != '%') {
            text += *p;
            continue;
        }
        const bool bPlain = p[1] == '#';
        p += bPlain ? 2 : 1;
        if (*p == 0)
            break;
        text += field(*p, bPlain, st, nDayOfYear);
    }
    return text;
}

CString notValidText(bool bNull) {
    return bNull ? "" : "无效的日期时间";
}

#if defined(_WIN32)
COleDateTime localFromFileTime(const FILETIME& utc) {
    FILETIME local;
    SYSTEMTIME st;
    COleDateTime date;
    if (::FileTimeToLocalFileTime(&utc, &local) && ::FileTimeToSystemTime(&local, &st))
        date = COleDateTime(st);
    else
        date.SetStatus(COleDateTime::invalid);
    return date;
}
#endif

} // namespace

CString COleDateTime::Format(LPCTSTR lpszFormat) const {
    ASSERT(lpszFormat != NULL);
    SYSTEMTIME st;
    if (lpszFormat == NULL || !GetAsSystemTime(st))
        return notValidText(m_status == null);
    return formatted(lpszFormat, st, GetDayOfYear());
}

CString COleDateTimeSpan::Format(LPCTSTR pFormat) const {
    ASSERT(pFormat != NULL);
    CString text;
    if (pFormat == NULL || m_status != valid)
        return m_status == valid ? CString() : notValidText(m_status == null);
    for (const char* p = pFormat; *p != 0; p++) {
        if (*p != '%' || p[1] == 0) {
            text += *p;
            continue;
        }
        switch (*++p) {
        case 'D':
            text.AppendFormat("%d", GetDays());
            break;
        case 'H':
            text += number(GetHours(), 2, false);
            break;
        case 'M':
            text += number(GetMinutes(), 2, false);
            break;
        case 'S':
            text += number(GetSeconds(), 2, false);
            break;
        default:
            text += *p;
            break;
        }
    }
    return text;
}

#if defined(_WIN32)

COleDateTime WINAPI COleDateTime::GetCurrentTime() {
    SYSTEMTIME st;
    ::GetLocalTime(&st);
    return COleDateTime(st);
}

COleDateTime::COleDateTime(LONGLONG timeSrc) : COleDateTime() {
    // From 1970 to the system's 1601, in steps of 100 ns.
    const LONGLONG nLimit = 1000000000000;
    m_status = invalid;
    if (timeSrc < -11644473600 || timeSrc > nLimit)
        return;
    const ULONGLONG n = (ULONGLONG)(timeSrc + 11644473600) * 10000000;
    *this = localFromFileTime({(DWORD)n, (DWORD)(n >> 32)});
}

COleDateTime::COleDateTime(const FILETIME& filetimeSrc) : COleDateTime(localFromFileTime(filetimeSrc)) {}

CString COleDateTime::Format(DWORD dwFlags, LCID lcid) const {
    if (m_status != valid)
        return notValidText(m_status == null);
    BSTR wide = NULL;
    CString text;
    if (FAILED(::VarBstrFromDate(m_dt, lcid, dwFlags, &wide)))
        return notValidText(false);
    const int nWide = (int)::SysStringLen(wide);
    const int n = nWide > 0 ? ::WideCharToMultiByte(CP_ACP, 0, wide, nWide, NULL, 0, NULL, NULL) : 0;
    if (n > 0)
        ::WideCharToMultiByte(CP_ACP, 0, wide, nWide, text.GetBufferSetLength(n), n, NULL, NULL);
    ::SysFreeString(wide);
    return text;
}

#else

COleDateTime COleDateTime::GetCurrentTime() {
    return COleDateTime((LONGLONG)time(NULL));
}

COleDateTime::COleDateTime(LONGLONG timeSrc) : COleDateTime() {
    const time_t t = (time_t)timeSrc;
    struct tm local;
    m_status = invalid;
    if (localtime_r(&t, &local) != NULL && local.tm_year < 10000)
        SetDateTime(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                    local.tm_sec < 60 ? local.tm_sec : 59);
}

#endif

CDumpContext& operator<<(CDumpContext& dc, const COleDateTime& date) {
    return dc << "COleDateTime " << date.Format("%Y-%m-%d %H:%M:%S") << " (" << date.m_dt << ")";
}

CDumpContext& operator<<(CDumpContext& dc, const COleDateTimeSpan& span) {
    return dc << "COleDateTimeSpan of " << span.m_span << " days";
}
