#include "afx.h"

#include "archive_map.h"

#include <stdlib.h>

// The archive's buffer. Storing: [m_lpBufStart, m_lpBufCur) waits to be written. Loading: [m_lpBufCur,
// m_lpBufMax) is yet to be read, and the file's position is that of m_lpBufMax.

namespace {

const int nMinBufSize = 128;

} // namespace

CArchive::CArchive(CFile* pFile, UINT nMode, int nBufSize, void* lpBuf)
    : m_pDocument(NULL), m_nMode((BOOL)nMode), m_bUserBuf(lpBuf != NULL), m_nBufSize(nBufSize),
      m_pFile(pFile), m_lpBufCur(NULL), m_lpBufMax(NULL), m_lpBufStart((BYTE*)lpBuf), m_bDirectBuffer(FALSE),
      m_nObjectSchema((UINT)-1), m_pMap(NULL), m_nDepth(0) {
    ASSERT(pFile != NULL);
    if (pFile != NULL)
        m_strFileName = pFile->GetFilePath();
    if (nBufSize < nMinBufSize) {
        m_nBufSize = nMinBufSize;
        m_bUserBuf = FALSE;
        m_lpBufStart = NULL;
    }
    m_bDirectBuffer =
        !m_bUserBuf && pFile != NULL && (pFile->GetBufferPtr(CFile::bufferCheck) & CFile::bufferDirect) != 0;
    if (!m_bDirectBuffer && m_lpBufStart == NULL)
        m_lpBufStart = (BYTE*)OrvAlloc(m_nBufSize);
    m_lpBufCur = m_lpBufMax = m_lpBufStart;
    if (IsStoring() && !m_bDirectBuffer)
        m_lpBufMax = m_lpBufStart + m_nBufSize;
}

CArchive::~CArchive() {
    if (m_pFile != NULL && (m_nMode & bNoFlushOnDelete) == 0) {
        try {
            Close();
        } catch (CException* e) {
            TRACE("CArchive: the last bytes of %s could not be written.\n", m_strFileName);
            e->Delete();
        }
    }
    Abort();
}

void CArchive::Fail(int cause) const {
    AfxThrowArchiveException(cause, m_strFileName);
}

void CArchive::RequireStoring() const {
    ASSERT(m_pFile != NULL);
    if (m_pFile == NULL)
        Fail(CArchiveException::genericException);
    if (!IsStoring())
        Fail(CArchiveException::readOnly);
}

void CArchive::RequireLoading() const {
    ASSERT(m_pFile != NULL);
    if (m_pFile == NULL)
        Fail(CArchiveException::genericException);
    if (!IsLoading())
        Fail(CArchiveException::writeOnly);
}

// Hands what waits in the buffer to the file.
void CArchive::DrainBuffer() {
    const UINT nWaiting = (UINT)(m_lpBufCur - m_lpBufStart);
    if (m_bDirectBuffer) {
        m_lpBufStart = m_lpBufCur = m_lpBufMax = NULL;
        if (nWaiting > 0)
            m_pFile->GetBufferPtr(CFile::bufferCommit, nWaiting);
    } else if (nWaiting > 0) {
        m_pFile->Write(m_lpBufStart, nWaiting);
        m_lpBufCur = m_lpBufStart;
    }
}

// An empty buffer to store into.
void CArchive::NewBuffer() {
    DrainBuffer();
    if (!m_bDirectBuffer)
        return;
    void *pStart = NULL, *pMax = NULL;
    m_pFile->GetBufferPtr(CFile::bufferWrite, (UINT)m_nBufSize, &pStart, &pMax);
    m_lpBufStart = m_lpBufCur = (BYTE*)pStart;
    m_lpBufMax = (BYTE*)pMax;
    if (m_lpBufCur == m_lpBufMax)
        Fail(CArchiveException::bufferFull);
}

// More bytes behind those not yet read; FALSE at the end of the file.
BOOL CArchive::RefillBuffer() {
    const UINT nUnread = (UINT)(m_lpBufMax - m_lpBufCur);
    if (m_bDirectBuffer) {
        if (nUnread > 0)
            m_pFile->Seek(-(LONGLONG)nUnread, CFile::current);
        m_lpBufStart = m_lpBufCur = m_lpBufMax = NULL;
        void *pStart = NULL, *pMax = NULL;
        const UINT nGot =
            m_pFile->GetBufferPtr(CFile::bufferRead, nUnread + (UINT)m_nBufSize, &pStart, &pMax);
        m_lpBufStart = m_lpBufCur = (BYTE*)pStart;
        m_lpBufMax = (BYTE*)pMax;
        return nGot > nUnread;
    }
    if (nUnread > 0 && m_lpBufCur != m_lpBufStart)
        memmove(m_lpBufStart, m_lpBufCur, nUnread);
    m_lpBufCur = m_lpBufStart;
    m_lpBufMax = m_lpBufStart + nUnread;
    const UINT nGot = m_pFile->Read(m_lpBufMax, (UINT)m_nBufSize - nUnread);
    m_lpBufMax += nGot;
    return nGot > 0;
}

void CArchive::FillBuffer(UINT nBytesNeeded) {
    RequireLoading();
    ASSERT(m_bDirectBuffer || nBytesNeeded <= (UINT)m_nBufSize);
    while ((UINT)(m_lpBufMax - m_lpBufCur) < nBytesNeeded) {
        if (!RefillBuffer())
            Fail(CArchiveException::endOfFile);
    }
}

UINT CArchive::Read(void* lpBuf, UINT nMax) {
    RequireLoading();
    UINT nDone = 0;
    while (nDone < nMax) {
        const UINT nWanted = nMax - nDone;
        UINT nReady = (UINT)(m_lpBufMax - m_lpBufCur);
        if (nReady == 0) {
            if (!m_bDirectBuffer && nWanted >= (UINT)m_nBufSize) { // large pieces need no copy
                const UINT nGot = m_pFile->Read((BYTE*)lpBuf + nDone, nWanted);
                if (nGot == 0)
                    break;
                nDone += nGot;
                continue;
            }
            if (!RefillBuffer())
                break;
            nReady = (UINT)(m_lpBufMax - m_lpBufCur);
        }
        const UINT n = nReady < nWanted ? nReady : nWanted;
        memcpy((BYTE*)lpBuf + nDone, m_lpBufCur, n);
        m_lpBufCur += n;
        nDone += n;
    }
    return nDone;
}

void CArchive::EnsureRead(void* lpBuf, UINT nCount) {
    if (Read(lpBuf, nCount) != nCount)
        Fail(CArchiveException::endOfFile);
}

void CArchive::Write(const void* lpBuf, UINT nMax) {
    RequireStoring();
    for (UINT nDone = 0; nDone < nMax;) {
        const UINT nLeft = nMax - nDone;
        const bool bLarge = !m_bDirectBuffer && nLeft >= (UINT)m_nBufSize;
        if (m_lpBufCur == m_lpBufMax || bLarge)
            NewBuffer();
        if (bLarge) { // large pieces need no copy
            m_pFile->Write((const BYTE*)lpBuf + nDone, nLeft);
            return;
        }
        const UINT nRoom = (UINT)(m_lpBufMax - m_lpBufCur);
        const UINT n = nRoom < nLeft ? nRoom : nLeft;
        memcpy(m_lpBufCur, (const BYTE*)lpBuf + nDone, n);
        m_lpBufCur += n;
        nDone += n;
    }
}

void CArchive::Flush() {
    ASSERT(m_pFile != NULL);
    if (m_pFile == NULL)
        return;
    if (IsStoring()) {
        DrainBuffer();
        return;
    }
    const LONGLONG nUnread = m_lpBufMax - m_lpBufCur;
    m_lpBufCur = m_lpBufMax = m_bDirectBuffer ? NULL : m_lpBufStart;
    if (m_bDirectBuffer)
        m_lpBufStart = NULL;
    if (nUnread > 0)
        m_pFile->Seek(-nUnread, CFile::current);
}

void CArchive::Close() {
    Flush();
    m_pFile = NULL;
}

void CArchive::Abort() {
    if (!m_bUserBuf && !m_bDirectBuffer)
        OrvFree(m_lpBufStart);
    m_lpBufStart = m_lpBufCur = m_lpBufMax = NULL;
    m_pFile = NULL;
    delete m_pMap;
    m_pMap = NULL;
}

UINT CArchive::GetObjectSchema() {
    const UINT nSchema = m_nObjectSchema;
    m_nObjectSchema = (UINT)-1;
    return nSchema;
}

void CArchive::WriteCount(DWORD_PTR dwCount) {
    if (dwCount < 0xFFFF) {
        *this << (WORD)dwCount;
        return;
    }
    *this << (WORD)0xFFFF;
    if (dwCount < 0xFFFFFFFF)
        *this << (DWORD)dwCount;
    else
        *this << (DWORD)0xFFFFFFFF << (ULONGLONG)dwCount;
}

DWORD_PTR CArchive::ReadCount() {
    WORD w;
    *this >> w;
    if (w != 0xFFFF)
        return w;
    DWORD dw;
    *this >> dw;
    if (dw != 0xFFFFFFFF)
        return dw;
    ULONGLONG n;
    *this >> n;
    return n <= (DWORD_PTR)-1 ? (DWORD_PTR)n : (DWORD_PTR)-1;
}
