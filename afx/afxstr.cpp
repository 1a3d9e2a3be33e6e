#include "afxstr.h"

#include "afx.h"

#include <atomic>

// Storage of CString: blocks, sharing, and the one edit that all others are made of.

namespace {

int textLength(LPCSTR psz) {
    if (psz == NULL)
        return 0;
    const size_t n = strlen(psz);
    if (n > INT_MAX)
        AfxThrowMemoryException();
    return (int)n;
}

int clampTo(int n, int nMin, int nMax) {
    return n < nMin ? nMin : n > nMax ? nMax : n;
}

} // namespace

// Every empty string; never written, never counted.
LPSTR CStringA::Nil() {
    static struct {
        Block head;
        char text[4];
    } nil = {{1, 0, 0}, {0, 0, 0, 0}};
    return nil.text;
}

LPSTR CStringA::NewBlock(int nCapacity) {
    Block* pBlock = (Block*)OrvAlloc(sizeof(Block) + (size_t)nCapacity + 1);
    *pBlock = {1, 0, nCapacity};
    LPSTR psz = (LPSTR)(pBlock + 1);
    psz[0] = 0;
    return psz;
}

void CStringA::AddRef() const {
    if (m_pszData != Nil())
        std::atomic_ref<LONG>(Header()->nRefs).fetch_add(1, std::memory_order_relaxed);
}

void CStringA::Release() {
    if (m_pszData == Nil())
        return;
    std::atomic_ref<LONG> refs(Header()->nRefs);
    // A single owner needs no locked subtraction: nobody else can come by the block meanwhile.
    if (refs.load(std::memory_order_acquire) == 1 || refs.fetch_sub(1, std::memory_order_acq_rel) == 1)
        OrvFree(Header());
    m_pszData = Nil();
}

void CStringA::SetLength(int nLength) {
    Header()->nLength = nLength;
    m_pszData[nLength] = 0;
}

// Makes this object the only owner of its block, with room for nCapacity characters.
LPSTR CStringA::Own(int nCapacity) {
    const int nLength = GetLength();
    const bool bShared =
        m_pszData == Nil() || std::atomic_ref<LONG>(Header()->nRefs).load(std::memory_order_acquire) > 1;
    if (bShared || Header()->nCapacity < nCapacity) {
        LPSTR psz = NewBlock(nCapacity > nLength ? nCapacity : nLength);
        memcpy(psz, m_pszData, nLength);
        Release();
        m_pszData = psz;
        SetLength(nLength);
    }
    return m_pszData;
}

// Replaces nDelete bytes at iIndex, both within the text. pszInsert may lie in this very string.
void CStringA::Splice(int iIndex, int nDelete, LPCSTR pszInsert, int nInsert) {
    const int nLength = GetLength(), nTail = nLength - iIndex - nDelete;
    const LONGLONG nNew = (LONGLONG)nLength - nDelete + nInsert;
    if (nNew > INT_MAX - 64)
        AfxThrowMemoryException();
    if (nNew == 0) {
        Empty();
        return;
    }
    const bool bOwn = m_pszData != Nil() &&
                      std::atomic_ref<LONG>(Header()->nRefs).load(std::memory_order_acquire) == 1 &&
                      Header()->nCapacity >= nNew;
    const bool bInside = (UINT_PTR)pszInsert - (UINT_PTR)m_pszData <= (UINT_PTR)nLength;
    if (bOwn && (!bInside || nInsert == 0)) {
        memmove(m_pszData + iIndex + nInsert, m_pszData + iIndex + nDelete, nTail);
        if (nInsert > 0)
            memcpy(m_pszData + iIndex, pszInsert, nInsert);
        SetLength((int)nNew);
        return;
    }
    // Texts that are appended to grow by half, so that building one piece by piece stays linear.
    LONGLONG nCapacity = nNew;
    if (nInsert > 0 && nLength > 0 && nCapacity < (LONGLONG)nLength + nLength / 2)
        nCapacity = (LONGLONG)nLength + nLength / 2;
    LPSTR psz = NewBlock((int)(nCapacity < INT_MAX - 64 ? nCapacity : nNew));
    memcpy(psz, m_pszData, iIndex);
    if (nInsert > 0)
        memcpy(psz + iIndex, pszInsert, nInsert);
    memcpy(psz + iIndex + nInsert, m_pszData + iIndex + nDelete, nTail);
    Release();
    m_pszData = psz;
    SetLength((int)nNew);
}

CStringA::CStringA() : m_pszData(Nil()) {}

CStringA::CStringA(const CStringA& strSrc) : m_pszData(strSrc.m_pszData) {
    AddRef();
}

CStringA::CStringA(CStringA&& strSrc) noexcept : m_pszData(strSrc.m_pszData) {
    strSrc.m_pszData = Nil();
}

CStringA::CStringA(char ch, int nRepeat) : CStringA() {
    if (nRepeat > 0) {
        memset(Own(nRepeat), ch, nRepeat);
        SetLength(nRepeat);
    }
}

CStringA::CStringA(LPCSTR pszSrc) : CStringA() {
    // A number in place of a pointer names a string resource.
    if ((UINT_PTR)pszSrc >> 16 != 0)
        SetString(pszSrc);
#if defined(_WIN32)
    else if (pszSrc != NULL)
        LoadString((UINT)(UINT_PTR)pszSrc);
#endif
}

CStringA::CStringA(const unsigned char* pszSrc) : CStringA((LPCSTR)pszSrc) {}

CStringA::CStringA(LPCSTR pch, int nLength) : CStringA() {
    SetString(pch, nLength);
}

CStringA::~CStringA() {
    Release();
}

void CStringA::Empty() {
    Release();
}

char CStringA::GetAt(int iChar) const {
    ASSERT(iChar >= 0 && iChar <= GetLength());
    return iChar >= 0 && iChar <= GetLength() ? m_pszData[iChar] : 0;
}

void CStringA::SetAt(int iChar, char ch) {
    ASSERT(iChar >= 0 && iChar < GetLength());
    if (iChar >= 0 && iChar < GetLength())
        Own(GetLength())[iChar] = ch;
}

CStringA& CStringA::operator=(const CStringA& strSrc) {
    strSrc.AddRef();
    LPSTR psz = strSrc.m_pszData;
    Release();
    m_pszData = psz;
    return *this;
}

CStringA& CStringA::operator=(CStringA&& strSrc) noexcept {
    LPSTR psz = strSrc.m_pszData;
    strSrc.m_pszData = m_pszData;
    m_pszData = psz;
    return *this;
}

CStringA& CStringA::operator=(LPCSTR pszSrc) {
    return *this = CStringA(pszSrc);
}

CStringA& CStringA::operator=(const unsigned char* pszSrc) {
    return *this = CStringA(pszSrc);
}

CStringA& CStringA::operator=(char ch) {
    SetString(&ch, 1);
    return *this;
}

void CStringA::SetString(LPCSTR pszSrc) {
    SetString(pszSrc, textLength(pszSrc));
}

void CStringA::SetString(LPCSTR pszSrc, int nLength) {
    ASSERT(nLength >= 0 && (nLength == 0 || pszSrc != NULL));
    Splice(0, GetLength(), pszSrc, pszSrc != NULL && nLength > 0 ? nLength : 0);
}

CStringA& CStringA::operator+=(const CStringA& str) {
    Append(str);
    return *this;
}

CStringA& CStringA::operator+=(LPCSTR psz) {
    Append(psz);
    return *this;
}

CStringA& CStringA::operator+=(char ch) {
    AppendChar(ch);
    return *this;
}

void CStringA::Append(LPCSTR pszSrc) {
    Append(pszSrc, textLength(pszSrc));
}

void CStringA::Append(LPCSTR pszSrc, int nLength) {
    ASSERT(nLength >= 0);
    if (pszSrc != NULL && nLength > 0)
        Splice(GetLength(), 0, pszSrc, nLength);
}

void CStringA::Append(const CStringA& strSrc) {
    if (IsEmpty())
        *this = strSrc;
    else
        Append(strSrc.m_pszData, strSrc.GetLength());
}

void CStringA::AppendChar(char ch) {
    Append(&ch, 1);
}

CStringA CStringA::Mid(int iFirst) const {
    return Mid(iFirst, GetLength());
}

CStringA CStringA::Mid(int iFirst, int nCount) const {
    iFirst = clampTo(iFirst, 0, GetLength());
    nCount = clampTo(nCount, 0, GetLength() - iFirst);
    if (nCount == GetLength())
        return *this;
    return CStringA(m_pszData + iFirst, nCount);
}

CStringA CStringA::Left(int nCount) const {
    return Mid(0, nCount);
}

CStringA CStringA::Right(int nCount) const {
    nCount = clampTo(nCount, 0, GetLength());
    return Mid(GetLength() - nCount, nCount);
}

int CStringA::Insert(int iIndex, char ch) {
    Splice(clampTo(iIndex, 0, GetLength()), 0, &ch, 1);
    return GetLength();
}

int CStringA::Insert(int iIndex, LPCSTR psz) {
    if (const int nInsert = textLength(psz))
        Splice(clampTo(iIndex, 0, GetLength()), 0, psz, nInsert);
    return GetLength();
}

int CStringA::Delete(int iIndex, int nCount) {
    iIndex = clampTo(iIndex, 0, GetLength());
    nCount = clampTo(nCount, 0, GetLength() - iIndex);
    if (nCount > 0)
        Splice(iIndex, nCount, NULL, 0);
    return GetLength();
}

void CStringA::KeepRange(int iFirst, int iEnd) {
    if (iEnd < GetLength())
        Splice(iEnd, GetLength() - iEnd, NULL, 0);
    if (iFirst > 0)
        Splice(0, iFirst, NULL, 0);
}

LPSTR CStringA::GetBuffer() {
    return Own(GetLength());
}

LPSTR CStringA::GetBuffer(int nMinBufferLength) {
    return Own(clampTo(nMinBufferLength, GetLength(), INT_MAX - 64));
}

LPSTR CStringA::GetBufferSetLength(int nLength) {
    nLength = clampTo(nLength, 0, INT_MAX - 64);
    const int nOld = GetLength();
    Own(nLength);
    if (nLength > nOld)
        memset(m_pszData + nOld, 0, nLength - nOld);
    SetLength(nLength);
    return m_pszData;
}

void CStringA::ReleaseBuffer(int nNewLength) {
    if (m_pszData == Nil())
        return; // nothing was written: there was no buffer
    const int nCapacity = Header()->nCapacity;
    if (nNewLength < 0)
        nNewLength = (int)strnlen(m_pszData, nCapacity);
    ASSERT(nNewLength <= nCapacity);
    SetLength(clampTo(nNewLength, 0, nCapacity));
}

void CStringA::FreeExtra() {
    if (m_pszData != Nil() && Header()->nCapacity != GetLength())
        *this = CStringA(m_pszData, GetLength());
}

void CStringA::Preallocate(int nLength) {
    Own(nLength);
}

int CStringA::GetAllocLength() const {
    return Header()->nCapacity;
}

namespace {

CString join(LPCSTR psz1, int n1, LPCSTR psz2, int n2) {
    if (n1 > INT_MAX - 64 - n2)
        AfxThrowMemoryException();
    CString str;
    str.Preallocate(n1 + n2);
    str.Append(psz1, n1);
    str.Append(psz2, n2);
    return str;
}

} // namespace

CString operator+(const CString& str1, const CString& str2) {
    return join(str1, str1.GetLength(), str2, str2.GetLength());
}

CString operator+(const CString& str, LPCSTR psz) {
    return join(str, str.GetLength(), psz, textLength(psz));
}

CString operator+(LPCSTR psz, const CString& str) {
    return join(psz, textLength(psz), str, str.GetLength());
}

CString operator+(const CString& str, char ch) {
    return join(str, str.GetLength(), &ch, 1);
}

CString operator+(char ch, const CString& str) {
    return join(&ch, 1, str, str.GetLength());
}
