#include "GerNer.h"

#if defined(_WIN32)
#include <io.h>
#else
#include <sys/stat.h>
#endif

#include "FileNameParts.h"

namespace {

// Up to the first zero byte, as the runtime's functions see it.
std::string_view textOf(const CString& str) {
    return str.GetString();
}

CString stringOf(const std::string& text) {
    return CString(text.data(), static_cast<int>(text.size()));
}

} // namespace

CString GetFileNameNoExtend(CString strPath) {
    return stringOf(orv::splitFileName(textOf(strPath)).name);
}

CString GetFileNameExistExtend(CString strPath) {
    const orv::FileNameParts parts = orv::splitFileName(textOf(strPath));
    return stringOf(parts.name + parts.extension);
}

CString GetFileNamePath(CString strPath) {
    const orv::FileNameParts parts = orv::splitFileName(textOf(strPath));
    return stringOf(parts.drive + parts.directory);
}

CString GetFileNameExend(CString strPath) {
    return stringOf(orv::splitFileName(textOf(strPath)).extension);
}

CString GetFileNameValidate(CString strName) {
    return stringOf(orv::cleanFileName(textOf(strName)));
}

BOOL IsFileNameValidateChar(char c) {
    return orv::isFileNameCharacter(c);
}

#if defined(_WIN32)

BOOL IsFileExist(CString strPath) {
    return _access(strPath, 0) == 0;
}

BOOL IsDirectoryExist(CString strPath) {
    return IsFileExist(strPath) && (::GetFileAttributesA(strPath) & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

#else

BOOL IsFileExist(CString strPath) {
    struct stat status;
    return stat(strPath, &status) == 0;
}

BOOL IsDirectoryExist(CString strPath) {
    struct stat status;
    return stat(strPath, &status) == 0 && S_ISDIR(status.st_mode);
}

#endif
