#pragma once

#include "orvafx.h"

// One argument of Format or TRACE with its kind kept, so that a format text that asks for something else can
// neither crash nor print garbage. A CString comes through as its text, also past "%s".
class OrvFormatArg {
public:
    enum Kind { none, integer, real, pointer };

    OrvFormatArg() : m_kind(none), m_integer(0) {}
    OrvFormatArg(int v) : m_kind(integer), m_integer(v) {}
    OrvFormatArg(unsigned v) : m_kind(integer), m_integer(v) {}
    OrvFormatArg(long v) : m_kind(integer), m_integer(v) {}
    OrvFormatArg(unsigned long v) : m_kind(integer), m_integer((LONGLONG)v) {}
    OrvFormatArg(long long v) : m_kind(integer), m_integer(v) {}
    OrvFormatArg(unsigned long long v) : m_kind(integer), m_integer((LONGLONG)v) {}
    OrvFormatArg(double v) : m_kind(real), m_real(v) {}
    OrvFormatArg(const void* v) : m_kind(pointer), m_pointer(v) {}
    inline OrvFormatArg(const class CStringA& v);

    Kind m_kind;
    union {
        LONGLONG m_integer;
        double m_real;
        const void* m_pointer;
    };
};

// The multi-byte string of MFC: a shared, copy-on-write block of bytes with its length, always followed by a
// zero byte. Bytes are those of the ANSI code page; positions and counts are bytes. Searches, case changes
// and reversals never split or match inside a two-byte character; Left, Mid and Right cut where they are told
// to. Zero bytes inside the text are kept. Copies may be used by different threads; one object may not.
// Arguments out of range are clamped as MFC documents; a bad index is an assertion and harmless in release
// builds.
class ORVAFX_API CStringA {
public:
    CStringA();
    CStringA(const CStringA& strSrc);
    CStringA(CStringA&& strSrc) noexcept; // strSrc is empty then
    CStringA(char ch, int nRepeat = 1);
    CStringA(LPCSTR pszSrc);
    CStringA(const unsigned char* pszSrc);
    CStringA(LPCSTR pch, int nLength);
    ~CStringA();

    int GetLength() const { return Header()->nLength; }
    BOOL IsEmpty() const { return GetLength() == 0; }
    void Empty();
    operator LPCSTR() const { return m_pszData; }
    LPCSTR GetString() const { return m_pszData; }
    // One past the last character is the closing zero; further out is the caller's bug and gives 0.
    char GetAt(int iChar) const;
    char operator[](int iChar) const { return GetAt(iChar); }
    void SetAt(int iChar, char ch);

    CStringA& operator=(const CStringA& strSrc);
    CStringA& operator=(CStringA&& strSrc) noexcept; // strSrc holds the old text or none
    CStringA& operator=(LPCSTR pszSrc);
    CStringA& operator=(const unsigned char* pszSrc);
    CStringA& operator=(char ch);
    void SetString(LPCSTR pszSrc);
    void SetString(LPCSTR pszSrc, int nLength);

    CStringA& operator+=(const CStringA& str);
    CStringA& operator+=(LPCSTR psz);
    CStringA& operator+=(char ch);
    void Append(LPCSTR pszSrc);
    void Append(LPCSTR pszSrc, int nLength);
    void Append(const CStringA& strSrc);
    void AppendChar(char ch);

    // Byte order, up to the first zero byte of either. CompareNoCase folds the letters A to Z and looks into
    // no two-byte character; so do MakeUpper and MakeLower.
    int Compare(LPCSTR psz) const;
    int CompareNoCase(LPCSTR psz) const;

    CStringA Mid(int iFirst) const;
    CStringA Mid(int iFirst, int nCount) const;
    CStringA Left(int nCount) const;
    CStringA Right(int nCount) const;
    // The longest leading part made only of (free of) the characters in the set.
    CStringA SpanIncluding(LPCSTR pszCharSet) const;
    CStringA SpanExcluding(LPCSTR pszCharSet) const;
    // The next piece of the text between delimiters, or an empty string with iStart = -1 at the end.
    CStringA Tokenize(LPCSTR pszTokens, int& iStart) const;

    CStringA& MakeUpper();
    CStringA& MakeLower();
    CStringA& MakeReverse();
    // Without an argument: white space.
    CStringA& Trim();
    CStringA& Trim(char chTarget);
    CStringA& Trim(LPCSTR pszTargets);
    CStringA& TrimLeft();
    CStringA& TrimLeft(char chTarget);
    CStringA& TrimLeft(LPCSTR pszTargets);
    CStringA& TrimRight();
    CStringA& TrimRight(char chTarget);
    CStringA& TrimRight(LPCSTR pszTargets);

    // Byte position of the first (last) match, or -1.
    int Find(char ch, int iStart = 0) const;
    int Find(LPCSTR pszSub, int iStart = 0) const;
    int FindOneOf(LPCSTR pszCharSet) const;
    int ReverseFind(char ch) const;

    // Number of replacements or removals; new length.
    int Replace(char chOld, char chNew);
    int Replace(LPCSTR pszOld, LPCSTR pszNew);
    int Remove(char chRemove);
    int Insert(int iIndex, char ch);
    int Insert(int iIndex, LPCSTR psz);
    int Delete(int iIndex, int nCount = 1);

    // A buffer of at least nMinBufferLength characters and a zero, this object's own; ReleaseBuffer sets the
    // length
    // (-1: up to the first zero) before any other member is used.
    LPSTR GetBuffer();
    LPSTR GetBuffer(int nMinBufferLength);
    LPSTR GetBufferSetLength(int nLength);
    void ReleaseBuffer(int nNewLength = -1);
    void ReleaseBufferSetLength(int nNewLength) { ReleaseBuffer(nNewLength < 0 ? 0 : nNewLength); }
    void FreeExtra();
    void Preallocate(int nLength);
    int GetAllocLength() const;

    // printf formats with the widths of Visual C++ everywhere: int, long and %lx are 32 bits, %I64d and
    // %lld 64. Arguments are checked against the format: a wrong kind is an assertion and prints the value by
    // its own kind (a text asked from a number prints nothing).
    template <class... ARGS>
    void Format(LPCSTR pszFormat, ARGS... args) {
        const OrvFormatArg list[] = {OrvFormatArg(args)..., OrvFormatArg()};
        FormatArgs(pszFormat, list, sizeof...(args));
    }
    template <class... ARGS>
    void AppendFormat(LPCSTR pszFormat, ARGS... args) {
        const OrvFormatArg list[] = {OrvFormatArg(args)..., OrvFormatArg()};
        AppendFormatArgs(pszFormat, list, sizeof...(args));
    }
    void FormatV(LPCSTR pszFormat, va_list args);
    void AppendFormatV(LPCSTR pszFormat, va_list args);
    void FormatArgs(LPCSTR pszFormat, const OrvFormatArg* pArgs, size_t nArgs);
    void AppendFormatArgs(LPCSTR pszFormat, const OrvFormatArg* pArgs, size_t nArgs);

#if defined(_WIN32)
    // Text of a string resource; FALSE leaves the string as it was. Without a module: along the module chain.
    BOOL LoadString(UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID);
    template <class... ARGS>
    void Format(UINT nFormatID, ARGS... args) {
        CStringA format;
        format.LoadString(nFormatID);
        Format(format.GetString(), args...);
    }
#endif

private:
    struct Block {
        LONG nRefs; // counted atomically; the shared empty block is never counted
        int nLength;
        int nCapacity; // characters, without the closing zero
    };

    Block* Header() const {
        return (Block*)m_pszData - 1;
    }
    static LPSTR NewBlock(int nCapacity);
    static LPSTR Nil();
    void AddRef() const;
    void Release();
    LPSTR Own(int nCapacity);
    void SetLength(int nLength);
    void Splice(int iIndex, int nDelete, LPCSTR pszInsert, int nInsert);
    void KeepRange(int iFirst, int iEnd);

    LPSTR m_pszData; // first character, behind its Block
};

typedef CStringA CString;

inline OrvFormatArg::OrvFormatArg(const CStringA& v) : m_kind(pointer), m_pointer(v.GetString()) {}

ORVAFX_API CString operator+(const CString& str1, const CString& str2);
ORVAFX_API CString operator+(const CString& str, LPCSTR psz);
ORVAFX_API CString operator+(LPCSTR psz, const CString& str);
ORVAFX_API CString operator+(const CString& str, char ch);
ORVAFX_API CString operator+(char ch, const CString& str);

// Comparisons are those of Compare.
inline bool operator==(const CString& a, const CString& b) {
    return a.Compare(b) == 0;
}
inline bool operator==(const CString& a, LPCSTR b) {
    return a.Compare(b) == 0;
}
inline bool operator==(LPCSTR a, const CString& b) {
    return b.Compare(a) == 0;
}
inline bool operator!=(const CString& a, const CString& b) {
    return !(a == b);
}
inline bool operator!=(const CString& a, LPCSTR b) {
    return !(a == b);
}
inline bool operator!=(LPCSTR a, const CString& b) {
    return !(a == b);
}
inline bool operator<(const CString& a, const CString& b) {
    return a.Compare(b) < 0;
}
inline bool operator<(const CString& a, LPCSTR b) {
    return a.Compare(b) < 0;
}
inline bool operator<(LPCSTR a, const CString& b) {
    return b.Compare(a) > 0;
}
inline bool operator>(const CString& a, const CString& b) {
    return a.Compare(b) > 0;
}
inline bool operator>(const CString& a, LPCSTR b) {
    return a.Compare(b) > 0;
}
inline bool operator>(LPCSTR a, const CString& b) {
    return b.Compare(a) < 0;
}
inline bool operator<=(const CString& a, const CString& b) {
    return a.Compare(b) <= 0;
}
inline bool operator<=(const CString& a, LPCSTR b) {
    return a.Compare(b) <= 0;
}
inline bool operator<=(LPCSTR a, const CString& b) {
    return b.Compare(a) >= 0;
}
inline bool operator>=(const CString& a, const CString& b) {
    return a.Compare(b) >= 0;
}
inline bool operator>=(const CString& a, LPCSTR b) {
    return a.Compare(b) >= 0;
}
inline bool operator>=(LPCSTR a, const CString& b) {
    return b.Compare(a) <= 0;
}
