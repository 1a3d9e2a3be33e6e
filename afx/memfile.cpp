#include "afx.h"

#include <stdlib.h>

IMPLEMENT_DYNAMIC(CMemFile, CFile)

namespace {

// Sums of positions and lengths stay far from overflowing.
const SIZE_T nMaxFileSize = (SIZE_T)-1 / 4;

} // namespace

CMemFile::CMemFile(UINT nGrowBytes)
    : m_nGrowBytes(nGrowBytes), m_nPosition(0), m_nBufferSize(0), m_nFileSize(0), m_lpBuffer(NULL),
      m_bAutoDelete(TRUE) {}

CMemFile::CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes) : CMemFile(nGrowBytes) {
    Attach(lpBuffer, nBufferSize, nGrowBytes);
}

CMemFile::~CMemFile() {
    if (m_lpBuffer != NULL && m_bAutoDelete)
        CMemFile::Free(m_lpBuffer);
}

void CMemFile::Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes) {
    ASSERT(m_lpBuffer == NULL);
    if (m_lpBuffer != NULL && m_bAutoDelete)
        Free(m_lpBuffer);
    m_nGrowBytes = nGrowBytes;
    m_nPosition = 0;
    m_nBufferSize = lpBuffer != NULL ? nBufferSize : 0;
    m_nFileSize = nGrowBytes == 0 ? m_nBufferSize : 0;
    m_lpBuffer = lpBuffer;
    m_bAutoDelete = FALSE;
}

BYTE* CMemFile::Detach() {
    BYTE* lpBuffer = m_lpBuffer;
    m_lpBuffer = NULL;
    m_nFileSize = m_nBufferSize = m_nPosition = 0;
    return lpBuffer;
}

BYTE* CMemFile::Alloc(SIZE_T nBytes) {
    return (BYTE*)malloc(nBytes);
}

void CMemFile::Free(BYTE* lpMem) {
    free(lpMem);
}

BYTE* CMemFile::Realloc(BYTE* lpMem, SIZE_T nBytes) {
    return (BYTE*)realloc(lpMem, nBytes);
}

BYTE* CMemFile::Memcpy(BYTE* lpMemTarget, const BYTE* lpMemSource, SIZE_T nBytes) {
    return (BYTE*)memcpy(lpMemTarget, lpMemSource, nBytes);
}

void CMemFile::Memset(BYTE* lpMem, int nValue, SIZE_T nBytes) {
    memset(lpMem, nValue, nBytes);
}

// Makes room for a file of dwNewLen bytes, in whole blocks; large files grow by a quarter at least, so that
// writing one piece by piece stays linear.
void CMemFile::GrowFile(SIZE_T dwNewLen) {
    if (dwNewLen <= m_nBufferSize)
        return;
    if (m_nGrowBytes == 0 || dwNewLen > nMaxFileSize)
        AfxThrowMemoryException();
    SIZE_T nWanted = m_nBufferSize + m_nBufferSize / 4;
    if (nWanted < dwNewLen)
        nWanted = dwNewLen;
    const SIZE_T nRest = nWanted % m_nGrowBytes;
    const SIZE_T nNewSize = nRest == 0 ? nWanted : nWanted + (m_nGrowBytes - nRest);
    BYTE* lpNew = m_lpBuffer == NULL ? Alloc(nNewSize) : Realloc(m_lpBuffer, nNewSize);
    if (lpNew == NULL)
        AfxThrowMemoryException();
    m_lpBuffer = lpNew;
    m_nBufferSize = nNewSize;
}

UINT CMemFile::Read(void* lpBuf, UINT nCount) {
    if (nCount == 0 || m_nPosition >= m_nFileSize)
        return 0;
    const SIZE_T nLeft = m_nFileSize - m_nPosition;
    const UINT nRead = nCount < nLeft ? nCount : (UINT)nLeft;
    Memcpy((BYTE*)lpBuf, m_lpBuffer + m_nPosition, nRead);
    m_nPosition += nRead;
    return nRead;
}

void CMemFile::Write(const void* lpBuf, UINT nCount) {
    if (nCount == 0)
        return;
    void* pTo = NULL;
    if (CMemFile::GetBufferPtr(bufferWrite, nCount, &pTo) < nCount)
        AfxThrowMemoryException();
    Memcpy((BYTE*)pTo, (const BYTE*)lpBuf, nCount);
    CMemFile::GetBufferPtr(bufferCommit, nCount);
}

ULONGLONG CMemFile::Seek(LONGLONG lOff, UINT nFrom) {
    const SIZE_T nBase = nFrom == begin ? 0 : nFrom == current ? m_nPosition : m_nFileSize;
    if (nFrom > end ||
        (lOff < 0 ? (ULONGLONG) - (lOff + 1) + 1 > nBase : (ULONGLONG)lOff > nMaxFileSize - nBase))
        AfxThrowFileException(CFileException::badSeek);
    m_nPosition = (SIZE_T)(nBase + (ULONGLONG)lOff);
    return m_nPosition;
}

ULONGLONG CMemFile::GetPosition() const {
    return m_nPosition;
}

ULONGLONG CMemFile::GetLength() const {
    return m_nFileSize;
}

void CMemFile::SetLength(ULONGLONG dwNewLen) {
    if (dwNewLen > nMaxFileSize)
        AfxThrowMemoryException();
    GrowFile((SIZE_T)dwNewLen);
    if (dwNewLen > m_nFileSize)
        Memset(m_lpBuffer + m_nFileSize, 0, (SIZE_T)dwNewLen - m_nFileSize);
    m_nFileSize = (SIZE_T)dwNewLen;
    m_nPosition = m_nFileSize;
}

void CMemFile::LockRange(ULONGLONG, ULONGLONG) {
    AfxThrowNotSupportedException();
}

void CMemFile::UnlockRange(ULONGLONG, ULONGLONG) {
    AfxThrowNotSupportedException();
}

void CMemFile::Flush() {}

void CMemFile::Close() {
    if (m_lpBuffer != NULL && m_bAutoDelete)
        Free(m_lpBuffer);
    Detach();
    m_nGrowBytes = 0;
}

void CMemFile::Abort() {
    Close();
}

CFile* CMemFile::Duplicate() const {
    AfxThrowNotSupportedException();
}

UINT CMemFile::GetBufferPtr(UINT nCommand, UINT nCount, void** ppBufStart, void** ppBufMax) {
    switch (nCommand) {
    case bufferCheck:
        return bufferDirect;
    case bufferCommit: {
        const SIZE_T nRoom = m_nBufferSize > m_nPosition ? m_nBufferSize - m_nPosition : 0;
        ASSERT(nCount <= nRoom);
        m_nPosition += nCount < nRoom ? nCount : nRoom;
        if (m_nPosition > m_nFileSize)
            m_nFileSize = m_nPosition;
        return 0;
    }
    case bufferWrite:
        // A block that cannot grow gives what it has left.
        if (m_nGrowBytes == 0 && m_nPosition < m_nBufferSize && nCount > m_nBufferSize - m_nPosition)
            nCount = (UINT)(m_nBufferSize - m_nPosition);
        GrowFile(m_nPosition + nCount);
        if (m_nPosition > m_nFileSize) // the gap a seek has left
            Memset(m_lpBuffer + m_nFileSize, 0, m_nPosition - m_nFileSize);
        break;
    case bufferRead:
        if (m_nPosition >= m_nFileSize)
            nCount = 0;
        else if (nCount > m_nFileSize - m_nPosition)
            nCount = (UINT)(m_nFileSize - m_nPosition);
        break;
    default:
        ASSERT(FALSE);
        return 0;
    }
    const bool bAny = m_lpBuffer != NULL && m_nPosition <= m_nBufferSize;
    BYTE* pStart = bAny ? m_lpBuffer + m_nPosition : m_lpBuffer;
    if (ppBufStart != NULL)
        *ppBufStart = pStart;
    if (ppBufMax != NULL)
        *ppBufMax = pStart != NULL ? pStart + nCount : NULL;
    if (nCommand == bufferRead)
        m_nPosition += nCount;
    return nCount;
}

void CMemFile::AssertValid() const {
    CFile::AssertValid();
    ASSERT(m_nFileSize <= m_nBufferSize);
    ASSERT(m_nBufferSize == 0 || m_lpBuffer != NULL);
}

void CMemFile::Dump(CDumpContext& dc) const {
    CObject::Dump(dc);
    dc << "with " << m_nFileSize << " bytes, position " << m_nPosition << ", room for " << m_nBufferSize
       << "\n";
}
