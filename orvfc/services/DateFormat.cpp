#include "DateFormat.h"

#include <algorithm>
#include <limits.h>
#include <string_view>

#include "DateLabels.h"
#include "OwnedRows.h"

namespace {

using orv::DateUnit;
using orv::isDate;
using orv::isDateUnit;
using orv::kNoDate;

struct UnitRow {
    int nDays;     // nominal
    int nMaxCount; // highest count that a scale's dialogs offer
    int nLarger;   // the unit that nPerLarger of this one make; -1: none
    int nPerLarger;
};
constexpr UnitRow kUnits[orv::kDateUnits] = {
    {365, 9999, -1, 1}, {91, 3, 0, 4}, {30, 11, 1, 3}, {10, 2, 2, 3}, {7, 6, -1, 1}, {1, 28, 4, 7},
};

constexpr int kDay = 5;
constexpr int kGeneralStyle = 101;

CString label(const orv::DateStyle& style, const orv::DateValues& values) {
    char text[orv::kLabelRoom];
    const int nLength = orv::formatLabel(style, values, text);
    return CString(text, nLength);
}

double step(int unit, int64_t steps, double date, double failure) {
    const bool bDate = isDate(date);
    ASSERT(bDate);
    if (!bDate || !isDateUnit(unit))
        return failure;
    return orv::stepBoundary(static_cast<DateUnit>(unit), steps, date);
}

std::string_view trimmed(const CString& strText) {
    return orv::trimBlanks({strText.GetString(), static_cast<size_t>(strText.GetLength())});
}

} // namespace

void ORVDateUnitSingleStruct::Dump(CDumpContext& dc) const {
    dc << "ORVDateUnitSingleStruct nUnit = " << nUnit << ", nStyle = " << nStyle << "\n";
}

CORVDateFormat::CORVDateFormat() = default;

CORVDateFormat::CORVDateFormat(const CORVDateFormat& other) {
    for (int i = 0; i < other.GetStyleCount(); ++i)
        orv::addNew<ORVDateUnitSingleStruct>(m_rows, *other.GetStyle(i));
}

CORVDateFormat& CORVDateFormat::operator=(const CORVDateFormat& other) {
    CORVDateFormat copy(other);
    m_rows.TakeFrom(copy.m_rows);
    return *this;
}

CORVDateFormat::~CORVDateFormat() = default;

void CORVDateFormat::AddStyle(int unit, int style) {
    orv::addNew<ORVDateUnitSingleStruct>(m_rows, ORVDateUnitSingleStruct{unit, style});
}

int CORVDateFormat::GetStyleCount() const {
    return m_rows.GetSize();
}

const ORVDateUnitSingleStruct* CORVDateFormat::GetStyle(int nIndex) const {
    return m_rows.GetAt(nIndex);
}

int CORVDateFormat::GetStyleStringArray(int unit, CStringArray& texts, CWordArray& ids) {
    int nCount = 0;
    for (const orv::DateStyle& style : orv::dateStyles()) {
        if (style.unit != unit)
            continue;
        texts.Add(style.list);
        ids.Add(static_cast<WORD>(style.id));
        ++nCount;
    }
    return nCount;
}

int CORVDateFormat::GetStyleStringArray(CStringArray& texts, CWordArray& ids) {
    return GetStyleStringArray(kDay, texts, ids);
}

CString CORVDateFormat::GetSampleText(int, int style) {
    const orv::DateStyle* pStyle = orv::findDateStyle(style);
    return pStyle ? CString(pStyle->list) : CString();
}

CString CORVDateFormat::GetWidthText(int, int style) const {
    const orv::DateStyle* pStyle = orv::findDateStyle(style);
    return pStyle ? CString(pStyle->width) : CString();
}

CString CORVDateFormat::GetDateString(int unit, int style, double date, double start, double end) {
    const bool bDate = isDate(date);
    ASSERT(bDate);
    const orv::DateStyle* pStyle = orv::findDateStyle(style);
    if (!bDate || !isDateUnit(unit) || !pStyle)
        return CString();
    orv::DateValues values(orv::dayOf(date));
    if (pStyle->counts()) {
        // Without a start there is no number to the end either.
        const bool bToEnd = pStyle->arguments[0] == orv::DateField::Ne;
        if (!isDate(start) || (bToEnd && !isDate(end)))
            return CString();
        const DateUnit counted = static_cast<DateUnit>(unit);
        if (bToEnd)
            values.set(orv::DateValue::fromEnd, orv::numberFromEnd(counted, end, date));
        else
            values.set(orv::DateValue::fromStart, orv::numberFromStart(counted, start, date));
    }
    return label(*pStyle, values);
}

CString CORVDateFormat::GetDateString(int style, double date) {
    const orv::DateStyle* pStyle = orv::findDateStyle(style);
    return GetDateString(pStyle ? pStyle->unit : -1, style, date, kNoDate, kNoDate);
}

CString CORVDateFormat::GetDateStringGer(double date) {
    return GetDateString(kGeneralStyle, date);
}

double CORVDateFormat::GetBeginDate(int unit, int, double date) const {
    if (!isDateUnit(unit) || !isDate(date))
        return kNoDate;
    const double begin = orv::stepBoundary(static_cast<DateUnit>(unit), 0, date);
    if (begin == -kNoDate)
        return kNoDate;
    if (unit != static_cast<int>(DateUnit::week) && unit != kDay)
        return begin;
    return orv::addDays(date, orv::dayOf(begin) - orv::dayOf(date));
}

int CORVDateFormat::GetUnitDays(int unit, int n, double) {
    if (!isDateUnit(unit))
        return 0;
    const int64_t days = static_cast<int64_t>(n) * kUnits[unit].nDays;
    return static_cast<int>(std::clamp<int64_t>(days, INT_MIN, INT_MAX));
}

int CORVDateFormat::GetUnitMaxCount(int unit) const {
    return isDateUnit(unit) ? kUnits[unit].nMaxCount : 0;
}

double CORVDateFormat::GetPrevScale(int unit, int n, double date) {
    return step(unit, -static_cast<int64_t>(n), date, -kNoDate);
}

double CORVDateFormat::GetNextScale(int unit, int n, double date) {
    return step(unit, n, date, kNoDate);
}

int CORVDateFormat::GetDateRanges(int unit, double a, double b) {
    if (!isDateUnit(unit) || !isDate(a) || !isDate(b))
        return 0;
    return orv::countBoundaries(static_cast<DateUnit>(unit), a, b);
}

int CORVDateFormat::GetDateRangleCounts(int unit, int n, double a, double b) {
    if (!isDateUnit(unit) || n < 1 || GetDateRangleDays(a, b) == 0)
        return 0;
    const int nFurtherUnits = orv::countBoundaries(static_cast<DateUnit>(unit), orv::dayOf(a), orv::dayOf(b));
    return nFurtherUnits / n + 1; // (nFurtherUnits + 1) / n, rounded up
}

int CORVDateFormat::GetDateRangleDays(double a, double b) {
    if (!isDate(a) || !isDate(b))
        return 0;
    return std::max(orv::dayOf(b) - orv::dayOf(a) + 1, 0);
}

int CORVDateFormat::GetLargeUnitCount(int& unit, int& n) {
    if (!isDateUnit(unit) || n == 0)
        return 0;
    int nChanged = 0;
    while (kUnits[unit].nLarger >= 0 && n % kUnits[unit].nPerLarger == 0) {
        n /= kUnits[unit].nPerLarger;
        unit = kUnits[unit].nLarger;
        nChanged = 1;
    }
    return nChanged;
}

int CORVDateFormat::GetDataFromFormatString(CString strText, double& date) {
    int nDay = 0;
    if (!orv::readLabel(trimmed(strText), nDay))
        return 0;
    date = nDay;
    return 1;
}

int CORVDateFormat::GetDataFromDouString(CString strText, double& date) {
    return orv::readDateNumber(trimmed(strText), date);
}

void CORVDateFormat::Dump(CDumpContext& dc) const {
    dc << "CORVDateFormat with " << GetStyleCount() << " rows\n";
    for (int i = 0; i < GetStyleCount(); ++i)
        GetStyle(i)->Dump(dc);
}
