#pragma once

// The binary stream that objects are stored in, byte for byte MFC's: little-endian values, length-prefixed
// strings, objects with class tags.

#include "afxfile_.h"

class CDocument;
struct OrvArchiveMap;

// One direction over one file. A loading archive trusts nothing it reads: whatever is wrong becomes a
// CArchiveException, memory grows with the bytes that are really there, and objects nest at most
// nMaxObjectDepth deep (genericException beyond). An object whose Serialize throws is deleted; objects that
// it had read by then are its own to free in its destructor.
class ORVAFX_API CArchive {
public:
    enum Mode { store = 0, load = 1, bNoFlushOnDelete = 2, bNoByteSwap = 4 };
    enum { nMaxObjectDepth = 1000 };

    // The file must stay open until Close. lpBuf: the caller's buffer of nBufSize bytes, else the archive's
    // own (at least 128 bytes). A file that lies in memory is used directly.
    CArchive(CFile* pFile, UINT nMode, int nBufSize = 4096, void* lpBuf = NULL);
    ~CArchive();
    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;

    BOOL IsLoading() const { return (m_nMode & load) != 0; }
    BOOL IsStoring() const { return (m_nMode & load) == 0; }
    BOOL IsByteSwapping() const { return FALSE; }
    BOOL IsBufferEmpty() const { return m_lpBufCur == m_lpBufMax; }
    CFile* GetFile() const { return m_pFile; }
    // Schema number of the object being read, once per object; -1 otherwise.
    UINT GetObjectSchema();
    void SetObjectSchema(UINT nSchema) { m_nObjectSchema = nSchema; }

    UINT Read(void* lpBuf, UINT nMax);         // fewer bytes only at the end
    void EnsureRead(void* lpBuf, UINT nCount); // endOfFile when there are fewer
    void Write(const void* lpBuf, UINT nMax);
    // Storing: everything is in the file. Loading: the file's position is back at the next byte not yet read.
    void Flush();
    void Close();
    void Abort(); // without flushing, without throwing

    void WriteString(LPCTSTR lpsz); // the text alone
    // The text up to a line end, which is taken and left out ("\n" or "\r\n"); at most nMax characters, and a
    // zero behind them. NULL or FALSE at the end of the file.
    LPTSTR ReadString(LPTSTR lpsz, UINT nMax);
    BOOL ReadString(CString& rString);

    // 16 bits; 0xFFFF and 32; 0xFFFFFFFF besides and 64.
    void WriteCount(DWORD_PTR dwCount);
    DWORD_PTR ReadCount();

    CObject* ReadObject(const CRuntimeClass* pClass);
    void WriteObject(const CObject* pOb);
    // Gives an object that is stored in place a number, so that pointers to it can be stored behind it.
    void MapObject(const CObject* pOb);
    void WriteClass(const CRuntimeClass* pClassRef);
    // pObTag: where to put the tag of an object already known, in which case the result is NULL.
    CRuntimeClass* ReadClass(const CRuntimeClass* pClassRefRequested = NULL, UINT* pSchema = NULL,
                             DWORD* pObTag = NULL);
    void SerializeClass(const CRuntimeClass* pClassRef);
    // Sizes of the object map, taken as hints.
    void SetStoreParams(UINT nHashSize = 2053, UINT nBlockSize = 128);
    void SetLoadParams(UINT nGrowBy = 1024);

    CArchive& operator<<(BYTE by) { return Put(&by, sizeof(by)); }
    CArchive& operator<<(WORD w) { return Put(&w, sizeof(w)); }
    CArchive& operator<<(LONG l) { return Put(&l, sizeof(l)); }
    CArchive& operator<<(DWORD dw) { return Put(&dw, sizeof(dw)); }
    CArchive& operator<<(float f) { return Put(&f, sizeof(f)); }
    CArchive& operator<<(double d) { return Put(&d, sizeof(d)); }
    CArchive& operator<<(LONGLONG dwdw) { return Put(&dwdw, sizeof(dwdw)); }
    CArchive& operator<<(ULONGLONG dwdw) { return Put(&dwdw, sizeof(dwdw)); }
    CArchive& operator<<(short w) { return Put(&w, sizeof(w)); }
    CArchive& operator<<(char ch) { return Put(&ch, sizeof(ch)); }
    CArchive& operator<<(signed char ch) { return Put(&ch, sizeof(ch)); }
    CArchive& operator<<(bool b) { return *this << (BYTE)(b ? 1 : 0); }
    // A text pointer would be stored as a bool; what is meant is a CString, or WriteString.
    CArchive& operator<<(LPCSTR) = delete;
    CArchive& operator>>(BYTE& by) { return Get(&by, sizeof(by)); }
    CArchive& operator>>(WORD& w) { return Get(&w, sizeof(w)); }
    CArchive& operator>>(LONG& l) { return Get(&l, sizeof(l)); }
    CArchive& operator>>(DWORD& dw) { return Get(&dw, sizeof(dw)); }
    CArchive& operator>>(float& f) { return Get(&f, sizeof(f)); }
    CArchive& operator>>(double& d) { return Get(&d, sizeof(d)); }
    CArchive& operator>>(LONGLONG& dwdw) { return Get(&dwdw, sizeof(dwdw)); }
    CArchive& operator>>(ULONGLONG& dwdw) { return Get(&dwdw, sizeof(dwdw)); }
    CArchive& operator>>(short& w) { return Get(&w, sizeof(w)); }
    CArchive& operator>>(char& ch) { return Get(&ch, sizeof(ch)); }
    CArchive& operator>>(signed char& ch) { return Get(&ch, sizeof(ch)); }
    CArchive& operator>>(bool& b) {
        BYTE by;
        *this >> by;
        b = by != 0;
        return *this;
    }
#if defined(_WIN32)
    // Off Windows LONG and DWORD are these, and wide characters have another size.
    CArchive& operator<<(int i) {
        return Put(&i, sizeof(i));
    }
    CArchive& operator<<(unsigned u) {
        return Put(&u, sizeof(u));
    }
    CArchive& operator<<(wchar_t ch) {
        return Put(&ch, sizeof(ch));
    }
    CArchive& operator>>(int& i) {
        return Get(&i, sizeof(i));
    }
    CArchive& operator>>(unsigned& u) {
        return Get(&u, sizeof(u));
    }
    CArchive& operator>>(wchar_t& ch) {
        return Get(&ch, sizeof(ch));
    }
#endif

    CDocument* m_pDocument; // for the host's use
    CString m_strFileName;  // named in exceptions

protected:
    CArchive& Put(const void* p, UINT n) {
        Write(p, n);
        return *this;
    }
    CArchive& Get(void* p, UINT n) {
        EnsureRead(p, n);
        return *this;
    }
    // At least nBytesNeeded bytes from m_lpBufCur on, or endOfFile.
    void FillBuffer(UINT nBytesNeeded);

    BOOL m_nMode;
    BOOL m_bUserBuf;
    int m_nBufSize;
    CFile* m_pFile; // NULL once closed
    BYTE* m_lpBufCur;
    BYTE* m_lpBufMax;
    BYTE* m_lpBufStart;
    BOOL m_bDirectBuffer; // the buffer is the file's own memory
    UINT m_nObjectSchema;

private:
    friend struct CRuntimeClass;

    void RequireStoring() const;
    void RequireLoading() const;
    void DrainBuffer();
    void NewBuffer();
    BOOL RefillBuffer();
    CObject* ReadNewObject(CRuntimeClass* pClass, UINT nSchema);
    CObject* KnownObject(DWORD nIndex, const CRuntimeClass* pClass);
    void WriteTag(DWORD nIndex, BOOL bClass);
    OrvArchiveMap& Map();
    [[noreturn]] void Fail(int cause) const;

    OrvArchiveMap* m_pMap; // objects and classes by number
    UINT m_nDepth;
};

inline CArchive& operator<<(CArchive& ar, const CObject* pOb) {
    ar.WriteObject(pOb);
    return ar;
}
inline CArchive& operator>>(CArchive& ar, CObject*& pOb) {
    pOb = ar.ReadObject(NULL);
    return ar;
}

// A length of 1, 3, 7 or 15 bytes, then the bytes. Texts stored by Unicode programs are read too and
// converted to the ANSI code page (GB18030 off Windows).
ORVAFX_API CArchive& operator<<(CArchive& ar, const CString& str);
ORVAFX_API CArchive& operator>>(CArchive& ar, CString& str);
// Coordinates as 32-bit numbers in the order of the fields.
ORVAFX_API CArchive& operator<<(CArchive& ar, SIZE size);
ORVAFX_API CArchive& operator<<(CArchive& ar, POINT point);
ORVAFX_API CArchive& operator<<(CArchive& ar, const RECT& rect);
ORVAFX_API CArchive& operator>>(CArchive& ar, SIZE& size);
ORVAFX_API CArchive& operator>>(CArchive& ar, POINT& point);
ORVAFX_API CArchive& operator>>(CArchive& ar, RECT& rect);
