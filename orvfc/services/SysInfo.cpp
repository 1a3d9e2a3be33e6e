#include "SysInfo.h"

#include <stdlib.h>

#include "FileNameParts.h"

namespace {

struct Release {
    DWORD dwPlatform;
    DWORD dwMajor;
    DWORD dwMinor;
};

// All zero when the system does not tell.
Release runningRelease() {
    OSVERSIONINFOA info = {};
    info.dwOSVersionInfoSize = sizeof(info);
    if (!::GetVersionExA(&info))
        return {};
    return {info.dwPlatformId, info.dwMajorVersion, info.dwMinorVersion};
}

bool isFamily(DWORD dwPlatform, DWORD dwMajor, bool bFirst) {
    const Release release = runningRelease();
    return release.dwPlatform == dwPlatform && release.dwMajor == dwMajor && (release.dwMinor == 0) == bFirst;
}

} // namespace

CSysInfo::~CSysInfo() = default;

BOOL CSysInfo::IsSystemWindows95() {
    return isFamily(VER_PLATFORM_WIN32_WINDOWS, 4, true);
}

BOOL CSysInfo::IsSystemWindows98() {
    return isFamily(VER_PLATFORM_WIN32_WINDOWS, 4, false);
}

BOOL CSysInfo::IsSystemWindows200() {
    return isFamily(VER_PLATFORM_WIN32_NT, 5, true);
}

BOOL CSysInfo::IsSystemWindowsXP() {
    return isFamily(VER_PLATFORM_WIN32_NT, 5, false);
}

BOOL CSysInfo::IsMorethanWin64() {
    return runningRelease().dwMajor > 4;
}

CString CSysInfo::GetAppPath() {
    char file[MAX_PATH];
    const DWORD nLength = ::GetModuleFileNameA(NULL, file, MAX_PATH);
    const std::string_view path(file, nLength < MAX_PATH ? nLength : MAX_PATH);
    const size_t nBackslash = orv::lastBackslash(path);
    if (nBackslash == std::string_view::npos)
        return CString();
    return CString(file, static_cast<int>(nBackslash + 1));
}

CString CSysInfo::GetAppPathAbsolute() {
    return GetAppPath();
}

UINT CSysInfo::GetMouseScrollLines() {
    UINT nLines = 3;
    HKEY hKey = NULL;
    if (::RegOpenKeyExA(HKEY_CURRENT_USER, "Control Panel\\Desktop", 0, KEY_QUERY_VALUE, &hKey) !=
        ERROR_SUCCESS)
        return nLines;
    char text[128 + 1] = {}; // the value may come without its closing zero
    DWORD dwType = REG_NONE;
    DWORD dwSize = sizeof(text) - 1;
    const LONG lResult =
        ::RegQueryValueExA(hKey, "WheelScrollLines", NULL, &dwType, reinterpret_cast<BYTE*>(text), &dwSize);
    // strtoul stops at the largest unsigned long, which is no larger than a UINT here.
    if (lResult == ERROR_SUCCESS && (dwType == REG_SZ || dwType == REG_EXPAND_SZ))
        nLines = strtoul(text, NULL, 10);
    ::RegCloseKey(hKey);
    return nLines;
}
