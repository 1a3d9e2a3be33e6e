#include "afx.h"

// CFile over the Win32 file functions.

namespace {

const DWORD nMaxPath = 32768;

[[noreturn]] void throwLastError(LPCTSTR lpszFileName) {
    const DWORD error = ::GetLastError();
    AfxThrowFileException(CFileException::OsErrorToException((LONG)error), (LONG)error, lpszFileName);
}

CString fullPath(LPCTSTR lpszFileName) {
    CString path;
    const DWORD n = ::GetFullPathNameA(lpszFileName, nMaxPath, path.GetBuffer(nMaxPath), NULL);
    path.ReleaseBuffer(n < nMaxPath ? (int)n : 0);
    path.FreeExtra();
    return path.IsEmpty() ? CString(lpszFileName) : path;
}

DWORD accessOf(UINT nOpenFlags) {
    switch (nOpenFlags & 3) {
    case CFile::modeWrite:
        return GENERIC_WRITE;
    case CFile::modeReadWrite:
        return GENERIC_READ | GENERIC_WRITE;
    default:
        return GENERIC_READ;
    }
}

DWORD sharingOf(UINT nOpenFlags) {
    switch (nOpenFlags & 0x70) {
    case CFile::shareDenyWrite:
        return FILE_SHARE_READ;
    case CFile::shareDenyRead:
        return FILE_SHARE_WRITE;
    case CFile::shareDenyNone:
        return FILE_SHARE_READ | FILE_SHARE_WRITE;
    default: // shareCompat and shareExclusive
        return 0;
    }
}

DWORD creationOf(UINT nOpenFlags) {
    if ((nOpenFlags & CFile::modeCreate) == 0)
        return OPEN_EXISTING;
    return (nOpenFlags & CFile::modeNoTruncate) != 0 ? OPEN_ALWAYS : CREATE_ALWAYS;
}

DWORD attributesOf(UINT nOpenFlags) {
    static const struct {
        UINT flag;
        DWORD attribute;
    } rows[] = {{CFile::osNoBuffer, FILE_FLAG_NO_BUFFERING},
                {CFile::osWriteThrough, FILE_FLAG_WRITE_THROUGH},
                {CFile::osRandomAccess, FILE_FLAG_RANDOM_ACCESS},
                {CFile::osSequentialScan, FILE_FLAG_SEQUENTIAL_SCAN}};
    DWORD attributes = FILE_ATTRIBUTE_NORMAL;
    for (const auto& row : rows) {
        if ((nOpenFlags & row.flag) != 0)
            attributes |= row.attribute;
    }
    return attributes;
}

} // namespace

BOOL CFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    ASSERT(lpszFileName != NULL);
    ASSERT(m_hFile == hFileNull);
    if (m_bCloseOnDelete)
        Abort();
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
    const CString path = fullPath(lpszFileName != NULL ? lpszFileName : "");
    SECURITY_ATTRIBUTES security = {sizeof(security), NULL, (nOpenFlags & modeNoInherit) == 0};
    HANDLE hFile = ::CreateFileA(path, accessOf(nOpenFlags), sharingOf(nOpenFlags), &security,
                                 creationOf(nOpenFlags), attributesOf(nOpenFlags), NULL);
    if (hFile == INVALID_HANDLE_VALUE) {
        if (pError != NULL) {
            pError->m_lOsError = (LONG)::GetLastError();
            pError->m_cause = CFileException::OsErrorToException(pError->m_lOsError);
            pError->m_strFileName = lpszFileName;
        }
        return FALSE;
    }
    m_hFile = hFile;
    m_strFileName = path;
    m_bCloseOnDelete = TRUE;
    return TRUE;
}

UINT CFile::Read(void* lpBuf, UINT nCount) {
    ASSERT(m_hFile != hFileNull);
    DWORD nRead = 0;
    if (nCount != 0 && !::ReadFile(m_hFile, lpBuf, nCount, &nRead, NULL))
        throwLastError(m_strFileName);
    return nRead;
}

void CFile::Write(const void* lpBuf, UINT nCount) {
    ASSERT(m_hFile != hFileNull);
    DWORD nWritten = 0;
    if (nCount == 0)
        return;
    if (!::WriteFile(m_hFile, lpBuf, nCount, &nWritten, NULL))
        throwLastError(m_strFileName);
    if (nWritten != nCount)
        AfxThrowFileException(CFileException::diskFull, -1, m_strFileName);
}

ULONGLONG CFile::Seek(LONGLONG lOff, UINT nFrom) {
    ASSERT(m_hFile != hFileNull);
    LARGE_INTEGER offset, position;
    offset.QuadPart = lOff;
    if (!::SetFilePointerEx(m_hFile, offset, &position, nFrom))
        throwLastError(m_strFileName);
    return (ULONGLONG)position.QuadPart;
}

ULONGLONG CFile::GetPosition() const {
    return const_cast<CFile*>(this)->CFile::Seek(0, current);
}

ULONGLONG CFile::GetLength() const {
    LARGE_INTEGER length;
    if (!::GetFileSizeEx(m_hFile, &length))
        throwLastError(m_strFileName);
    return (ULONGLONG)length.QuadPart;
}

void CFile::SetLength(ULONGLONG dwNewLen) {
    Seek((LONGLONG)dwNewLen, begin);
    if (!::SetEndOfFile(m_hFile))
        throwLastError(m_strFileName);
}

void CFile::LockRange(ULONGLONG dwPos, ULONGLONG dwCount) {
    if (!::LockFile(m_hFile, (DWORD)dwPos, (DWORD)(dwPos >> 32), (DWORD)dwCount, (DWORD)(dwCount >> 32)))
        throwLastError(m_strFileName);
}

void CFile::UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) {
    if (!::UnlockFile(m_hFile, (DWORD)dwPos, (DWORD)(dwPos >> 32), (DWORD)dwCount, (DWORD)(dwCount >> 32)))
        throwLastError(m_strFileName);
}

void CFile::Flush() {
    // A file opened for reading has nothing to flush, and the system refuses.
    if (m_hFile != hFileNull && !::FlushFileBuffers(m_hFile) && ::GetLastError() != ERROR_ACCESS_DENIED)
        throwLastError(m_strFileName);
}

void CFile::Close() {
    HANDLE hFile = m_hFile;
    const CString name = m_strFileName;
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
    if (hFile != hFileNull && !::CloseHandle(hFile))
        throwLastError(name);
}

void CFile::Abort() {
    m_bCloseOnDelete = FALSE;
    if (m_hFile != hFileNull)
        ::CloseHandle(m_hFile);
    m_hFile = hFileNull;
    m_strFileName.Empty();
}

CFile* CFile::Duplicate() const {
    ASSERT(m_hFile != hFileNull);
    HANDLE hCopy = NULL;
    if (!::DuplicateHandle(::GetCurrentProcess(), m_hFile, ::GetCurrentProcess(), &hCopy, 0, FALSE,
                           DUPLICATE_SAME_ACCESS))
        throwLastError(m_strFileName);
    CFile* pCopy = new CFile(hCopy);
    pCopy->m_bCloseOnDelete = m_bCloseOnDelete;
    pCopy->m_strFileName = m_strFileName;
    return pCopy;
}

void PASCAL CFile::Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName) {
    if (!::MoveFileA(lpszOldName, lpszNewName))
        throwLastError(lpszOldName);
}

void PASCAL CFile::Remove(LPCTSTR lpszFileName) {
    if (!::DeleteFileA(lpszFileName))
        throwLastError(lpszFileName);
}

BOOL PASCAL CFile::GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus) {
    memset((void*)&rStatus, 0, sizeof(rStatus));
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (lpszFileName == NULL || !::GetFileAttributesExA(lpszFileName, GetFileExInfoStandard, &data))
        return FALSE;
    const CString path = fullPath(lpszFileName);
    if (path.GetLength() < _MAX_PATH)
        memcpy(rStatus.m_szFullName, path.GetString(), path.GetLength());
    rStatus.m_ctime = data.ftCreationTime;
    rStatus.m_mtime = data.ftLastWriteTime;
    rStatus.m_atime = data.ftLastAccessTime;
    rStatus.m_size = (LONGLONG)(((ULONGLONG)data.nFileSizeHigh << 32) | data.nFileSizeLow);
    rStatus.m_attribute = (BYTE)data.dwFileAttributes;
    return TRUE;
}
