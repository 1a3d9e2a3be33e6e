#include "afxstr.h"

#include "afx.h"
#include "dbcs.h"

// What CString does with characters: comparing, searching, trimming, replacing. Everything steps from
// character to character, so that the trail byte of a two-byte character, which may be a letter, a backslash
// or a bar, is never taken for one.

namespace {

using orvafx::charBytes;

char lowerLetter(char ch) {
    return ch >= 'A' && ch <= 'Z' ? (char)(ch + ('a' - 'A')) : ch;
}

char upperLetter(char ch) {
    return ch >= 'a' && ch <= 'z' ? (char)(ch - ('a' - 'A')) : ch;
}

// Set of characters that a text holds.
class CharSet {
public:
    explicit CharSet(LPCSTR pszSet)
        : m_begin(pszSet != NULL ? pszSet : ""), m_end(m_begin + strlen(m_begin)) {}

    bool isEmpty() const { return m_begin == m_end; }
    bool holds(const char* p, int nBytes) const {
        for (const char* q = m_begin; q < m_end;) {
            const int n = charBytes(q, m_end);
            if (n == nBytes && memcmp(p, q, n) == 0)
                return true;
            q += n;
        }
        return false;
    }

private:
    const char* m_begin;
    const char* m_end;
};

const char whiteSpace[] = " \t\n\v\f\r";

// First character from p on that is (is not) in the set; end when there is none.
const char* scan(const char* p, const char* end, const CharSet& set, bool bIn) {
    while (p < end && set.holds(p, charBytes(p, end)) != bIn)
        p += charBytes(p, end);
    return p;
}

bool endsWhole(const char* p, size_t nBytes, const char* end) {
    const char* stop = p + nBytes;
    while (p < stop)
        p += charBytes(p, end);
    return p == stop;
}

const char* findText(const char* p, const char* end, LPCSTR pszSub, size_t nSub) {
    for (; p < end && (size_t)(end - p) >= nSub; p += charBytes(p, end)) {
        if (memcmp(p, pszSub, nSub) == 0 && endsWhole(p, nSub, end))
            return p;
    }
    return NULL;
}

} // namespace

int CStringA::Compare(LPCSTR psz) const {
    ASSERT(psz != NULL);
    return strcmp(m_pszData, psz != NULL ? psz : "");
}

int CStringA::CompareNoCase(LPCSTR psz) const {
    ASSERT(psz != NULL);
    const char* p = m_pszData;
    const char* q = psz != NULL ? psz : "";
    while (true) {
        const bool bLead = orvafx::isLeadByte(*p) && orvafx::isLeadByte(*q);
        const int a = (BYTE)lowerLetter(*p), b = (BYTE)lowerLetter(*q);
        if (a != b || a == 0)
            return a - b;
        p++, q++;
        if (bLead) {
            if (*p != *q || *p == 0)
                return (BYTE)*p - (BYTE)*q;
            p++, q++;
        }
    }
}

CStringA CStringA::SpanIncluding(LPCSTR pszCharSet) const {
    return Left((int)(scan(m_pszData, m_pszData + GetLength(), CharSet(pszCharSet), false) - m_pszData));
}

CStringA CStringA::SpanExcluding(LPCSTR pszCharSet) const {
    return Left((int)(scan(m_pszData, m_pszData + GetLength(), CharSet(pszCharSet), true) - m_pszData));
}

CStringA CStringA::Tokenize(LPCSTR pszTokens, int& iStart) const {
    ASSERT(iStart >= 0);
    const CharSet delimiters(pszTokens);
    const char* end = m_pszData + GetLength();
    if (iStart >= 0 && iStart < GetLength()) {
        const char* first = scan(m_pszData + iStart, end, delimiters, false);
        if (first < end) {
            const char* last = scan(first, end, delimiters, true);
            const char* next = last + (last < end ? charBytes(last, end) : 1);
            iStart = (int)(next - m_pszData);
            return CStringA(first, (int)(last - first));
        }
    }
    iStart = -1;
    return CStringA();
}

CStringA& CStringA::MakeUpper() {
    const char* end = Own(GetLength()) + GetLength();
    for (char* p = m_pszData; p < end; p += charBytes(p, end))
        *p = upperLetter(*p);
    return *this;
}

CStringA& CStringA::MakeLower() {
    const char* end = Own(GetLength()) + GetLength();
    for (char* p = m_pszData; p < end; p += charBytes(p, end))
        *p = lowerLetter(*p);
    return *this;
}

CStringA& CStringA::MakeReverse() {
    CStringA reversed;
    char* to = reversed.GetBufferSetLength(GetLength()) + GetLength();
    const char* end = m_pszData + GetLength();
    for (const char* p = m_pszData; p < end;) {
        const int n = charBytes(p, end);
        to -= n;
        memcpy(to, p, n);
        p += n;
    }
    return *this = reversed;
}

CStringA& CStringA::Trim() {
    return TrimRight().TrimLeft();
}

CStringA& CStringA::Trim(char chTarget) {
    return TrimRight(chTarget).TrimLeft(chTarget);
}

CStringA& CStringA::Trim(LPCSTR pszTargets) {
    return TrimRight(pszTargets).TrimLeft(pszTargets);
}

CStringA& CStringA::TrimLeft() {
    return TrimLeft(whiteSpace);
}

CStringA& CStringA::TrimLeft(char chTarget) {
    const char set[] = {chTarget, 0};
    return TrimLeft(set);
}

CStringA& CStringA::TrimLeft(LPCSTR pszTargets) {
    KeepRange((int)(scan(m_pszData, m_pszData + GetLength(), CharSet(pszTargets), false) - m_pszData),
              GetLength());
    return *this;
}

CStringA& CStringA::TrimRight() {
    return TrimRight(whiteSpace);
}

CStringA& CStringA::TrimRight(char chTarget) {
    const char set[] = {chTarget, 0};
    return TrimRight(set);
}

CStringA& CStringA::TrimRight(LPCSTR pszTargets) {
    const CharSet targets(pszTargets);
    const char* end = m_pszData + GetLength();
    const char* keep = m_pszData;
    for (const char* p = m_pszData; p < end;) {
        const int n = charBytes(p, end);
        if (!targets.holds(p, n))
            keep = p + n;
        p += n;
    }
    KeepRange(0, (int)(keep - m_pszData));
    return *this;
}

int CStringA::Find(char ch, int iStart) const {
    return ch != 0 ? Find(CStringA(ch).GetString(), iStart) : -1;
}

int CStringA::Find(LPCSTR pszSub, int iStart) const {
    ASSERT(pszSub != NULL);
    if (pszSub == NULL || iStart < 0 || iStart > GetLength())
        return -1;
    const size_t nSub = strlen(pszSub);
    if (nSub == 0)
        return iStart;
    const char* end = m_pszData + GetLength();
    const char* p = findText(orvafx::charStart(m_pszData, m_pszData + iStart, end), end, pszSub, nSub);
    return p != NULL ? (int)(p - m_pszData) : -1;
}

int CStringA::FindOneOf(LPCSTR pszCharSet) const {
    const char* end = m_pszData + GetLength();
    const char* p = scan(m_pszData, end, CharSet(pszCharSet), true);
    return p < end ? (int)(p - m_pszData) : -1;
}

int CStringA::ReverseFind(char ch) const {
    int iLast = -1;
    const char* end = m_pszData + GetLength();
    for (const char* p = m_pszData; p < end; p += charBytes(p, end)) {
        if (*p == ch && charBytes(p, end) == 1)
            iLast = (int)(p - m_pszData);
    }
    return iLast;
}

int CStringA::Replace(char chOld, char chNew) {
    if (chOld == chNew)
        return 0;
    const char old[] = {chOld, 0}, with[] = {chNew, 0};
    return Replace(old, with);
}

int CStringA::Replace(LPCSTR pszOld, LPCSTR pszNew) {
    const size_t nOld = pszOld != NULL ? strlen(pszOld) : 0;
    if (nOld == 0)
        return 0;
    const CStringA strNew(pszNew);
    int nCount = 0;
    CStringA result;
    const char* end = m_pszData + GetLength();
    const char* from = m_pszData;
    while (const char* hit = findText(from, end, pszOld, nOld)) {
        result.Append(from, (int)(hit - from));
        result.Append(strNew.GetString(), strNew.GetLength());
        from = hit + nOld;
        nCount++;
    }
    if (nCount > 0) {
        result.Append(from, (int)(end - from));
        *this = result;
    }
    return nCount;
}

int CStringA::Remove(char chRemove) {
    return Replace(CStringA(chRemove).GetString(), "");
}
