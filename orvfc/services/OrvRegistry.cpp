#include "OrvRegistry.h"

#include <new>
#include <string.h>

#include "StoredStreams.h"

COrvRegistry::COrvRegistry(int, int bReadOnly) : COrvRegStore(HKEY_LOCAL_MACHINE, bReadOnly) {}

BOOL COrvRegistry::Open(const char* lpszPath, int bCreate) {
    if (OpenKey(lpszPath))
        return TRUE;
    return bCreate && CreateMissing(lpszPath);
}

BOOL COrvRegistry::Write(const char* lpszName, const char* lpszText) {
    if (!MayWrite(lpszName))
        return FALSE;
    ASSERT(lpszText != NULL);
    if (lpszText == NULL)
        return FALSE;
    try {
        const size_t nLength = strlen(lpszText) + 1;
        return SetValue(lpszName, REG_SZ, orv::pointerBytes(lpszText, nLength).data(), nLength, REG_SZ);
    } catch (const std::bad_alloc&) {
        return FALSE;
    }
}
