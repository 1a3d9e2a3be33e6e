#include "afx.h"

#include <errno.h>
#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

// CFile over file descriptors, for the native tests. There is no sharing between programs here.

namespace {

[[noreturn]] void throwErrno(LPCTSTR lpszFileName) {
    const int error = errno;
    AfxThrowFileException(CFileException::ErrnoToException(error), error, lpszFileName);
}

int descriptor(HANDLE hFile) {
    return (int)(INT_PTR)hFile;
}

CString fullPath(LPCTSTR lpszFileName) {
    char* resolved = realpath(lpszFileName, NULL);
    CString path(resolved != NULL ? resolved : lpszFileName);
    free(resolved);
    return path;
}

int posixFlags(UINT nOpenFlags) {
    static const int access[] = {O_RDONLY, O_WRONLY, O_RDWR, O_RDONLY};
    int flags = access[nOpenFlags & 3] | O_CLOEXEC;
    if ((nOpenFlags & CFile::modeCreate) != 0)
        flags |= O_CREAT | ((nOpenFlags & CFile::modeNoTruncate) != 0 ? 0 : O_TRUNC);
    return flags;
}

FILETIME fileTime(const timespec& t) {
    // From 1970 to the system's 1601, in steps of 100 ns.
    const ULONGLONG n = (ULONGLONG)(t.tv_sec + 11644473600LL) * 10000000 + (ULONGLONG)t.tv_nsec / 100;
    return {(DWORD)n, (DWORD)(n >> 32)};
}

} // namespace

BOOL CFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    ASSERT(lpszFileName != NULL);
    ASSERT(m_hFile == hFileNull);
    if (m_bCloseOnDelete)
        Abort();
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
    int fd = open(lpszFileName != NULL ? lpszFileName : "", posixFlags(nOpenFlags), 0666);
    struct stat info;
    if (fd >= 0 && fstat(fd, &info) == 0 && S_ISDIR(info.st_mode)) {
        close(fd);
        fd = -1;
        errno = EISDIR;
    }
    if (fd < 0) {
        if (pError != NULL) {
            pError->m_lOsError = errno;
            pError->m_cause = CFileException::ErrnoToException(errno);
            pError->m_strFileName = lpszFileName;
        }
        return FALSE;
    }
    m_hFile = (HANDLE)(INT_PTR)fd;
    m_strFileName = fullPath(lpszFileName);
    m_bCloseOnDelete = TRUE;
    return TRUE;
}

UINT CFile::Read(void* lpBuf, UINT nCount) {
    ASSERT(m_hFile != hFileNull);
    UINT nDone = 0;
    while (nDone < nCount) {
        const ssize_t n = read(descriptor(m_hFile), (BYTE*)lpBuf + nDone, nCount - nDone);
        if (n < 0 && errno != EINTR)
            throwErrno(m_strFileName);
        if (n == 0)
            break;
        nDone += n > 0 ? (UINT)n : 0;
    }
    return nDone;
}

void CFile::Write(const void* lpBuf, UINT nCount) {
    ASSERT(m_hFile != hFileNull);
    for (UINT nDone = 0; nDone < nCount;) {
        const ssize_t n = write(descriptor(m_hFile), (const BYTE*)lpBuf + nDone, nCount - nDone);
        if (n < 0 && errno != EINTR)
            throwErrno(m_strFileName);
        nDone += n > 0 ? (UINT)n : 0;
    }
}

ULONGLONG CFile::Seek(LONGLONG lOff, UINT nFrom) {
    ASSERT(m_hFile != hFileNull);
    const off_t position = lseek(descriptor(m_hFile), lOff, (int)nFrom);
    if (position < 0) {
        const int error = errno;
        AfxThrowFileException(error == EINVAL ? CFileException::badSeek
                                              : CFileException::ErrnoToException(error),
                              error, m_strFileName);
    }
    return (ULONGLONG)position;
}

ULONGLONG CFile::GetPosition() const {
    return const_cast<CFile*>(this)->CFile::Seek(0, current);
}

ULONGLONG CFile::GetLength() const {
    struct stat info;
    if (fstat(descriptor(m_hFile), &info) != 0)
        throwErrno(m_strFileName);
    return (ULONGLONG)info.st_size;
}

void CFile::SetLength(ULONGLONG dwNewLen) {
    Seek((LONGLONG)dwNewLen, begin);
    if (ftruncate(descriptor(m_hFile), (off_t)dwNewLen) != 0)
        throwErrno(m_strFileName);
}

void CFile::LockRange(ULONGLONG, ULONGLONG) {
    AfxThrowNotSupportedException();
}

void CFile::UnlockRange(ULONGLONG, ULONGLONG) {
    AfxThrowNotSupportedException();
}

void CFile::Flush() {
    // Writes are not held back in this process.
}

void CFile::Close() {
    const HANDLE hFile = m_hFile;
    const CString name = m_strFileName;
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
    if (hFile != hFileNull && close(descriptor(hFile)) != 0)
        throwErrno(name);
}

void CFile::Abort() {
    m_bCloseOnDelete = FALSE;
    if (m_hFile != hFileNull)
        close(descriptor(m_hFile));
    m_hFile = hFileNull;
    m_strFileName.Empty();
}

CFile* CFile::Duplicate() const {
    ASSERT(m_hFile != hFileNull);
    const int fd = dup(descriptor(m_hFile));
    if (fd < 0)
        throwErrno(m_strFileName);
    CFile* pCopy = new CFile((HANDLE)(INT_PTR)fd);
    pCopy->m_bCloseOnDelete = m_bCloseOnDelete;
    pCopy->m_strFileName = m_strFileName;
    return pCopy;
}

void PASCAL CFile::Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName) {
    // As on Windows, an existing file is not replaced.
    if (access(lpszNewName, F_OK) == 0)
        errno = EEXIST;
    else if (rename(lpszOldName, lpszNewName) == 0)
        return;
    throwErrno(lpszOldName);
}

void PASCAL CFile::Remove(LPCTSTR lpszFileName) {
    if (unlink(lpszFileName) != 0)
        throwErrno(lpszFileName);
}

BOOL PASCAL CFile::GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus) {
    memset((void*)&rStatus, 0, sizeof(rStatus));
    struct stat info;
    if (lpszFileName == NULL || stat(lpszFileName, &info) != 0)
        return FALSE;
    const CString path = fullPath(lpszFileName);
    if (path.GetLength() < _MAX_PATH)
        memcpy(rStatus.m_szFullName, path.GetString(), path.GetLength());
    rStatus.m_ctime = fileTime(info.st_ctim);
    rStatus.m_mtime = fileTime(info.st_mtim);
    rStatus.m_atime = fileTime(info.st_atim);
    rStatus.m_size = info.st_size;
    rStatus.m_attribute =
        (BYTE)((S_ISDIR(info.st_mode) ? directory : 0) | ((info.st_mode & 0222) == 0 ? readOnly : 0));
    return TRUE;
}
