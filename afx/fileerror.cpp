#include "afx.h"

#include <errno.h>

// From the system's error numbers to the causes of CFileException.

namespace {

struct Row {
    LONG error;
    int cause;
};

template <size_t N>
int causeOf(const Row (&rows)[N], LONG error) {
    for (const Row& row : rows) {
        if (row.error == error)
            return row.cause;
    }
    return CFileException::genericException;
}

const Row errnoRows[] = {
    {0, CFileException::none},
    {ENOENT, CFileException::fileNotFound},
    {ENOTDIR, CFileException::badPath},
    {ENAMETOOLONG, CFileException::badPath},
    {EMFILE, CFileException::tooManyOpenFiles},
    {ENFILE, CFileException::tooManyOpenFiles},
    {EACCES, CFileException::accessDenied},
    {EPERM, CFileException::accessDenied},
    {EISDIR, CFileException::accessDenied},
    {EROFS, CFileException::accessDenied},
    {EEXIST, CFileException::accessDenied},
    {EBADF, CFileException::invalidFile},
    {ESPIPE, CFileException::badSeek},
    {EIO, CFileException::hardIO},
    {EBUSY, CFileException::sharingViolation},
    {EAGAIN, CFileException::lockViolation},
    {EDEADLK, CFileException::lockViolation},
    {ENOSPC, CFileException::diskFull},
    {EFBIG, CFileException::diskFull},
};

#if defined(_WIN32)
const Row osRows[] = {
    {NO_ERROR, CFileException::none},
    {ERROR_FILE_NOT_FOUND, CFileException::fileNotFound},
    {ERROR_PATH_NOT_FOUND, CFileException::badPath},
    {ERROR_INVALID_DRIVE, CFileException::badPath},
    {ERROR_INVALID_NAME, CFileException::badPath},
    {ERROR_BAD_PATHNAME, CFileException::badPath},
    {ERROR_BAD_NETPATH, CFileException::badPath},
    {ERROR_FILENAME_EXCED_RANGE, CFileException::badPath},
    {ERROR_DIRECTORY, CFileException::badPath},
    {ERROR_TOO_MANY_OPEN_FILES, CFileException::tooManyOpenFiles},
    {ERROR_SHARING_BUFFER_EXCEEDED, CFileException::tooManyOpenFiles},
    {ERROR_ACCESS_DENIED, CFileException::accessDenied},
    {ERROR_INVALID_ACCESS, CFileException::accessDenied},
    {ERROR_WRITE_PROTECT, CFileException::accessDenied},
    {ERROR_FILE_EXISTS, CFileException::accessDenied},
    {ERROR_ALREADY_EXISTS, CFileException::accessDenied},
    {ERROR_INVALID_HANDLE, CFileException::invalidFile},
    {ERROR_CURRENT_DIRECTORY, CFileException::removeCurrentDir},
    {ERROR_CANNOT_MAKE, CFileException::directoryFull},
    {ERROR_SEEK, CFileException::badSeek},
    {ERROR_NEGATIVE_SEEK, CFileException::badSeek},
    {ERROR_SEEK_ON_DEVICE, CFileException::badSeek},
    {ERROR_CRC, CFileException::hardIO},
    {ERROR_NOT_READY, CFileException::hardIO},
    {ERROR_WRITE_FAULT, CFileException::hardIO},
    {ERROR_READ_FAULT, CFileException::hardIO},
    {ERROR_GEN_FAILURE, CFileException::hardIO},
    {ERROR_SHARING_VIOLATION, CFileException::sharingViolation},
    {ERROR_LOCK_VIOLATION, CFileException::lockViolation},
    {ERROR_NOT_LOCKED, CFileException::lockViolation},
    {ERROR_DISK_FULL, CFileException::diskFull},
    {ERROR_HANDLE_DISK_FULL, CFileException::diskFull},
    {ERROR_HANDLE_EOF, CFileException::endOfFile},
};
#endif

} // namespace

int PASCAL CFileException::ErrnoToException(int nErrno) {
    return causeOf(errnoRows, nErrno);
}

int PASCAL CFileException::OsErrorToException(LONG lOsError) {
#if defined(_WIN32)
    return causeOf(osRows, lOsError);
#else
    return ErrnoToException(lOsError);
#endif
}
