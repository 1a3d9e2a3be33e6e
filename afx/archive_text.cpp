#include "afx.h"

#if !defined(_WIN32)
#include <iconv.h>
#endif

// Strings and the small value types in an archive.

namespace {

// Read in pieces of this size: a length that lies costs no more than this.
const ULONGLONG nPiece = 0x10000;

// Units of one or two bytes.
struct StringLength {
    ULONGLONG nUnits;
    UINT nUnitBytes;
};

// Escalates: 0xFF announces 16 bits, 0xFFFF then 32, 0xFFFFFFFF then 64. 0xFFFE in 16 bits is the mark of a
// Unicode text, whose length begins anew.
StringLength readLength(CArchive& ar) {
    StringLength length = {0, 1};
    while (true) {
        BYTE b;
        ar >> b;
        if (b != 0xFF)
            return {b, length.nUnitBytes};
        WORD w;
        ar >> w;
        if (w == 0xFFFE && length.nUnitBytes == 1) {
            length.nUnitBytes = 2;
            continue;
        }
        if (w != 0xFFFF)
            return {w, length.nUnitBytes};
        DWORD dw;
        ar >> dw;
        length.nUnits = dw;
        if (dw == 0xFFFFFFFF)
            ar >> length.nUnits;
        return length;
    }
}

CString readBytes(CArchive& ar, ULONGLONG nBytes) {
    // No string is that long, and no stream either.
    if (nBytes > INT_MAX - 64)
        AfxThrowArchiveException(CArchiveException::endOfFile, ar.m_strFileName);
    CString bytes;
    ULONGLONG nLeft = nBytes;
    while (nLeft > 0) {
        const int n = (int)(nLeft < nPiece ? nLeft : nPiece), nOld = bytes.GetLength();
        // The first piece takes what it needs; after it the text doubles while the bytes keep coming.
        if (nOld > 0 && bytes.GetAllocLength() < nOld + n)
            bytes.Preallocate((ULONGLONG)nOld * 2 < nBytes ? nOld * 2 : (int)nBytes);
        ar.EnsureRead(bytes.GetBufferSetLength(nOld + n) + nOld, (UINT)n);
        nLeft -= (ULONGLONG)n;
    }
    return bytes;
}

CString toAnsi(const CString& utf16) {
    CString text;
    if (utf16.IsEmpty())
        return text;
#if defined(_WIN32)
    const LPCWSTR wide = (LPCWSTR)utf16.GetString();
    const int nWide = utf16.GetLength() / 2;
    const int n = ::WideCharToMultiByte(CP_ACP, 0, wide, nWide, NULL, 0, NULL, NULL);
    if (n > 0)
        ::WideCharToMultiByte(CP_ACP, 0, wide, nWide, text.GetBufferSetLength(n), n, NULL, NULL);
#else
    iconv_t converter = iconv_open("GB18030", "UTF-16LE");
    if (converter == (iconv_t)-1)
        AfxThrowNotSupportedException();
    char* from = const_cast<char*>(utf16.GetString());
    size_t nFrom = (size_t)utf16.GetLength();
    while (nFrom > 0) {
        char piece[1024];
        char* to = piece;
        size_t nTo = sizeof(piece);
        const size_t result = iconv(converter, &from, &nFrom, &to, &nTo);
        text.Append(piece, (int)(to - piece));
        // A unit that is no character, such as half a surrogate pair.
        if (result == (size_t)-1 && nTo >= 8 && nFrom >= 2) {
            text += '?';
            from += 2;
            nFrom -= 2;
        }
    }
    iconv_close(converter);
#endif
    return text;
}

} // namespace

CArchive& operator<<(CArchive& ar, const CString& str) {
    const UINT nLength = (UINT)str.GetLength();
    if (nLength < 0xFF)
        ar << (BYTE)nLength;
    else if (nLength < 0xFFFE)
        ar << (BYTE)0xFF << (WORD)nLength;
    else
        ar << (BYTE)0xFF << (WORD)0xFFFF << (DWORD)nLength;
    ar.Write(str.GetString(), nLength);
    return ar;
}

CArchive& operator>>(CArchive& ar, CString& str) {
    const StringLength length = readLength(ar);
    if (length.nUnits > INT_MAX)
        AfxThrowArchiveException(CArchiveException::endOfFile, ar.m_strFileName);
    CString bytes = readBytes(ar, length.nUnits * length.nUnitBytes);
    if (length.nUnitBytes == 2)
        bytes = toAnsi(bytes);
    str = static_cast<CString&&>(bytes);
    return ar;
}

void CArchive::WriteString(LPCTSTR lpsz) {
    ASSERT(lpsz != NULL);
    if (lpsz != NULL)
        Write(lpsz, (UINT)strlen(lpsz));
}

BOOL CArchive::ReadString(CString& rString) {
    rString.Empty();
    bool bAny = false;
    char ch;
    while (Read(&ch, 1) == 1) {
        bAny = true;
        if (ch == '\n') {
            const int nLast = rString.GetLength() - 1;
            if (nLast >= 0 && rString.GetAt(nLast) == '\r')
                rString.Delete(nLast);
            break;
        }
        rString.AppendChar(ch);
    }
    return bAny;
}

LPTSTR CArchive::ReadString(LPTSTR lpsz, UINT nMax) {
    ASSERT(lpsz != NULL);
    if (lpsz == NULL)
        return NULL;
    UINT n = 0;
    bool bAny = false;
    char ch;
    while (n < nMax && Read(&ch, 1) == 1) {
        bAny = true;
        if (ch == '\n') {
            if (n > 0 && lpsz[n - 1] == '\r')
                n--;
            break;
        }
        lpsz[n++] = ch;
    }
    lpsz[n] = 0;
    return bAny || nMax == 0 ? lpsz : NULL;
}

CArchive& operator<<(CArchive& ar, SIZE size) {
    return ar << size.cx << size.cy;
}

CArchive& operator<<(CArchive& ar, POINT point) {
    return ar << point.x << point.y;
}

CArchive& operator<<(CArchive& ar, const RECT& rect) {
    return ar << rect.left << rect.top << rect.right << rect.bottom;
}

CArchive& operator>>(CArchive& ar, SIZE& size) {
    SIZE loaded;
    ar >> loaded.cx >> loaded.cy;
    size = loaded;
    return ar;
}

CArchive& operator>>(CArchive& ar, POINT& point) {
    POINT loaded;
    ar >> loaded.x >> loaded.y;
    point = loaded;
    return ar;
}

CArchive& operator>>(CArchive& ar, RECT& rect) {
    RECT loaded;
    ar >> loaded.left >> loaded.top >> loaded.right >> loaded.bottom;
    rect = loaded;
    return ar;
}
