#include "OrvRegister.h"

#include <string.h>

COrvRegister::COrvRegister() : COrvRegister(TRUE, FALSE) {}

COrvRegister::COrvRegister(int bLocalMachine, int bReadOnly)
    : COrvRegStore(bLocalMachine != 0 ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER, bReadOnly) {}

BOOL COrvRegister::Open(const char* lpszPath, int bCreate) {
    if (m_hKey == NULL)
        m_hKey = HKEY_CURRENT_USER;
    const HKEY hPrevious = m_hKey;
    if (OpenKey(lpszPath))
        return TRUE;
    if (!bCreate)
        return FALSE;
    m_hKey = hPrevious;
    return CreateMissing(lpszPath);
}

BOOL COrvRegister::Write(const char* lpszName, const char* lpszText) {
    if (!MayWrite(lpszName))
        return FALSE;
    ASSERT(lpszText != NULL);
    if (lpszText == NULL)
        return FALSE;
    return SetValue(lpszName, REG_SZ, lpszText, strlen(lpszText) + 1, REG_SZ);
}
