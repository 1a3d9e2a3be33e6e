#include "OrvRegStore.h"

#include <limits.h>
#include <memory>
#include <new>

#include "StoredStreams.h"

namespace {

constexpr DWORD kTextRoom = 200;
constexpr DWORD kStreamRoom = 4096;
constexpr DWORD kPointRoom = 20;
// What m_Info tells of points instead of REG_BINARY; callers may rely on it.
constexpr DWORD kPointType = REG_EXPAND_SZ;

// Writing has no other trace.
BOOL wasStored(orv::StreamOutcome outcome) {
    if (outcome == orv::StreamOutcome::noMemory)
        TRACE("Memory exception in CRegistry::Write ()!\n");
    return outcome == orv::StreamOutcome::good;
}

BOOL wasLoaded(orv::StreamOutcome outcome) {
    if (outcome == orv::StreamOutcome::damaged)
        TRACE("CArchiveException exception in CRegistry::Read ()!\n");
    if (outcome == orv::StreamOutcome::noMemory)
        TRACE("Memory exception in CRegistry::Read ()!\n");
    return outcome == orv::StreamOutcome::good;
}

// False when memory is short; the text is then as before.
bool assign(CString& strText, const char* lpszText) {
    try {
        strText = lpszText;
        return true;
    } catch (CMemoryException* e) {
        e->Delete();
        return false;
    }
}

} // namespace

COrvRegStore::COrvRegStore(HKEY hRoot, int bReadOnly) : m_Info(), m_hKey(hRoot), m_bReadOnly(bReadOnly) {}

COrvRegStore::~COrvRegStore() {
    Close();
}

void COrvRegStore::Close() {
    if (m_hKey != NULL)
        ::RegCloseKey(m_hKey);
    m_hKey = NULL;
}

// --- keys

BOOL COrvRegStore::RecordKey(LONG lResult) {
    m_Info = {lResult, 0, 0};
    return lResult == ERROR_SUCCESS;
}

BOOL COrvRegStore::OpenBelow(const char* lpszPath) {
    // A negative flag refuses writing but opens with full access.
    const REGSAM access = m_bReadOnly > 0 ? KEY_READ : KEY_ALL_ACCESS;
    return RecordKey(::RegOpenKeyExA(m_hKey, lpszPath, 0, access, &m_hKey));
}

BOOL COrvRegStore::OpenKey(const char* lpszPath) {
    if (!assign(m_strKeyPath, lpszPath))
        return RecordKey(ERROR_NOT_ENOUGH_MEMORY);
    return OpenBelow(m_strKeyPath);
}

BOOL COrvRegStore::CreateMissing(const char* lpszPath) {
    if (m_Info.lResult == ERROR_NOT_ENOUGH_MEMORY) // perhaps for the path
        return FALSE;
    // The path was the member's own text, perhaps: it lives on in the member only.
    return CreateKey(lpszPath != NULL ? m_strKeyPath.GetString() : NULL);
}

BOOL COrvRegStore::VerifyKey(const char* lpszPath) {
    ASSERT(m_hKey != NULL);
    return OpenBelow(lpszPath);
}

BOOL COrvRegStore::VerifyValue(const char* lpszName) {
    return RecordKey(::RegQueryValueExA(m_hKey, lpszName, NULL, NULL, NULL, NULL));
}

BOOL COrvRegStore::CreateKey(const char* lpszPath) {
    if (m_bReadOnly != 0)
        return FALSE;
    ASSERT(lpszPath != NULL);
    if (lpszPath == NULL)
        return FALSE;
    if (!assign(m_strKeyPath, lpszPath))
        return RecordKey(ERROR_NOT_ENOUGH_MEMORY);
    DWORD dwDisposition = 0;
    return RecordKey(
        ::RegCreateKeyExA(m_hKey, m_strKeyPath, 0, NULL, 0, KEY_ALL_ACCESS, NULL, &m_hKey, &dwDisposition));
}

BOOL COrvRegStore::DeleteValue(const char* lpszName) {
    ASSERT(m_hKey != NULL);
    return RecordKey(::RegDeleteValueA(m_hKey, lpszName));
}

BOOL COrvRegStore::DeleteKey(const char* lpszPath, int bLocalMachine) {
    return RecordKey(::RegDeleteKeyA(bLocalMachine != 0 ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER, lpszPath));
}

// --- writing

BOOL COrvRegStore::MayWrite(const char* lpszName) const {
    return m_bReadOnly == 0 && IsOpen(lpszName);
}

BOOL COrvRegStore::IsOpen(const char* lpszName) const {
    ASSERT(m_hKey != NULL);
    ASSERT(lpszName != NULL);
    return m_hKey != NULL && lpszName != NULL;
}

BOOL COrvRegStore::SetValue(const char* lpszName, DWORD dwType, const void* pData, size_t nSize,
                            DWORD dwRecordType) {
    if (nSize > UINT_MAX)
        return FALSE;
    const DWORD dwSize = static_cast<DWORD>(nSize);
    const LONG lResult =
        ::RegSetValueExA(m_hKey, lpszName, 0, dwType, static_cast<const BYTE*>(pData), dwSize);
    m_Info = {lResult, dwRecordType, dwSize};
    return lResult == ERROR_SUCCESS;
}

BOOL COrvRegStore::Write(const char* lpszName, int nValue) {
    return Write(lpszName, static_cast<DWORD>(nValue));
}

BOOL COrvRegStore::Write(const char* lpszName, DWORD dwValue) {
    return MayWrite(lpszName) && SetValue(lpszName, REG_DWORD, &dwValue, sizeof(dwValue), REG_DWORD);
}

BOOL COrvRegStore::Write(const char* lpszName, unsigned char* pData, unsigned int nSize) {
    if (!MayWrite(lpszName))
        return FALSE;
    ASSERT(pData != NULL);
    return pData != NULL && SetValue(lpszName, REG_BINARY, pData, nSize, REG_BINARY);
}

template <class StoreValue>
BOOL COrvRegStore::WriteStream(const char* lpszName, StoreValue store) {
    if (!MayWrite(lpszName))
        return FALSE;
    orv::StreamBytes bytes;
    return wasStored(store(bytes)) && !bytes.empty() &&
           SetValue(lpszName, REG_BINARY, bytes.data(), bytes.size(), REG_BINARY);
}

BOOL COrvRegStore::WriteShort(const char* lpszName, CObject& collection) {
    return WriteStream(lpszName, [&](orv::StreamBytes& bytes) {
        const orv::StreamOutcome outcome = orv::storeObject(collection, bytes);
        ASSERT(bytes.size() < kStreamRoom);
        return outcome;
    });
}

BOOL COrvRegStore::Write(const char* lpszName, CStringList& list) {
    return WriteShort(lpszName, list);
}

BOOL COrvRegStore::Write(const char* lpszName, CByteArray& array) {
    return WriteShort(lpszName, array);
}

BOOL COrvRegStore::Write(const char* lpszName, CStringArray& array) {
    return WriteShort(lpszName, array);
}

BOOL COrvRegStore::Write(const char* lpszName, CDWordArray& array) {
    return WriteStream(lpszName, [&](orv::StreamBytes& bytes) { return orv::storeObject(array, bytes); });
}

BOOL COrvRegStore::Write(const char* lpszName, CWordArray& array) {
    return WriteStream(lpszName, [&](orv::StreamBytes& bytes) { return orv::storeWords(array, bytes); });
}

BOOL COrvRegStore::Write(const char* lpszName, const CRect& rect) {
    return WriteStream(lpszName, [&](orv::StreamBytes& bytes) { return orv::storeRect(rect, bytes); });
}

BOOL COrvRegStore::Write(const char* lpszName, CObList& list) {
    return WriteStream(lpszName, [&](orv::StreamBytes& bytes) { return orv::storeObject(list, bytes); });
}

BOOL COrvRegStore::Write(const char* lpszName, CObject& object) {
    return WriteStream(lpszName, [&](orv::StreamBytes& bytes) { return orv::storeObject(object, bytes); });
}

BOOL COrvRegStore::Write(const char* lpszName, POINT*& pPoint) {
    if (!MayWrite(lpszName))
        return FALSE;
    ASSERT(pPoint != NULL);
    orv::StreamBytes bytes;
    if (pPoint == NULL || !wasStored(orv::storePoint(*pPoint, bytes)))
        return FALSE;
    ASSERT(bytes.size() < kPointRoom);
    return SetValue(lpszName, REG_BINARY, bytes.data(), bytes.size(), kPointType);
}

// --- reading

// Up to nRoom bytes of the value, whatever its type; m_Info tells what there is, zeros for nothing.
BOOL COrvRegStore::Query(const char* lpszName, void* pData, DWORD nRoom) {
    DWORD dwType = REG_NONE;
    DWORD dwSize = nRoom;
    const LONG lResult =
        ::RegQueryValueExA(m_hKey, lpszName, NULL, &dwType, static_cast<BYTE*>(pData), &dwSize);
    m_Info = {lResult, 0, 0};
    if (lResult == ERROR_SUCCESS || lResult == ERROR_MORE_DATA)
        m_Info = {lResult, dwType, dwSize};
    return lResult == ERROR_SUCCESS;
}

BOOL COrvRegStore::Read(const char* lpszName, int& nValue) {
    DWORD dwValue = 0;
    if (!Read(lpszName, dwValue))
        return FALSE;
    nValue = static_cast<int>(dwValue);
    return TRUE;
}

BOOL COrvRegStore::Read(const char* lpszName, DWORD& dwValue) {
    DWORD dwRead = 0;
    if (!IsOpen(lpszName) || !Query(lpszName, &dwRead, sizeof(dwRead)))
        return FALSE;
    dwValue = dwRead;
    return TRUE;
}

BOOL COrvRegStore::Read(const char* lpszName, CString& strValue) {
    char text[kTextRoom + 1] = {}; // the value may come without its closing zero
    if (!IsOpen(lpszName) || !Query(lpszName, text, kTextRoom))
        return FALSE;
    return wasLoaded(assign(strValue, text) ? orv::StreamOutcome::good : orv::StreamOutcome::noMemory);
}

// The whole value, which must be binary, in a new block; null for failure.
BYTE* COrvRegStore::QueryBlock(const char* lpszName) {
    if (!Query(lpszName, NULL, 0))
        return NULL;
    ASSERT(m_Info.dwType == REG_BINARY);
    if (m_Info.dwType != REG_BINARY)
        return NULL;
    std::unique_ptr<BYTE[]> block(new (std::nothrow) BYTE[m_Info.dwSize]);
    if (!block) {
        m_Info.lResult = ERROR_NOT_ENOUGH_MEMORY;
        return NULL;
    }
    return Query(lpszName, block.get(), m_Info.dwSize) ? block.release() : NULL;
}

BOOL COrvRegStore::Read(const char* lpszName, unsigned char** ppData, unsigned int* pnSize) {
    ASSERT(ppData != NULL && pnSize != NULL);
    if (ppData == NULL || pnSize == NULL)
        return FALSE;
    *ppData = NULL;
    *pnSize = 0;
    if (!IsOpen(lpszName))
        return FALSE;
    *ppData = QueryBlock(lpszName);
    if (*ppData != NULL)
        *pnSize = m_Info.dwSize;
    m_Info = {m_Info.lResult, REG_BINARY, *pnSize};
    return *ppData != NULL;
}

template <class Value>
BOOL COrvRegStore::ReadShort(const char* lpszName, Value& value) {
    BYTE block[kStreamRoom];
    if (!IsOpen(lpszName) || !Query(lpszName, block, kStreamRoom) || m_Info.dwType != REG_BINARY)
        return FALSE;
    return wasLoaded(orv::loadStream(orv::StreamView(block, m_Info.dwSize), value));
}

BOOL COrvRegStore::Read(const char* lpszName, CStringList& list) {
    return ReadShort(lpszName, list);
}

BOOL COrvRegStore::Read(const char* lpszName, CStringArray& array) {
    return ReadShort<CObject>(lpszName, array);
}

BOOL COrvRegStore::Read(const char* lpszName, CDWordArray& array) {
    return ReadShort<CObject>(lpszName, array);
}

BOOL COrvRegStore::Read(const char* lpszName, CByteArray& array) {
    return ReadShort<CObject>(lpszName, array);
}

BOOL COrvRegStore::Read(const char* lpszName, CWordArray& array) {
    return ReadShort<CObject>(lpszName, array);
}

BOOL COrvRegStore::Read(const char* lpszName, POINT*& pPoint) {
    ASSERT(pPoint != NULL);
    if (pPoint == NULL || !IsOpen(lpszName))
        return FALSE;
    BYTE block[kPointRoom];
    const BOOL bRead = Query(lpszName, block, kPointRoom);
    const REGINFO found = m_Info;
    m_Info = {found.lResult, kPointType, sizeof(POINT)};
    if (!bRead || found.dwType != REG_BINARY)
        return FALSE;
    return wasLoaded(orv::loadStream(orv::StreamView(block, found.dwSize), *pPoint));
}

template <class Value>
BOOL COrvRegStore::ReadAny(const char* lpszName, Value& value) {
    unsigned char* pData = NULL;
    unsigned int nSize = 0;
    if (!Read(lpszName, &pData, &nSize))
        return FALSE;
    const std::unique_ptr<BYTE[]> block(pData);
    return wasLoaded(orv::loadStream(orv::StreamView(pData, nSize), value));
}

BOOL COrvRegStore::Read(const char* lpszName, CRect& rect) {
    return ReadAny<RECT>(lpszName, rect);
}

BOOL COrvRegStore::Read(const char* lpszName, CObList& list) {
    return ReadAny(lpszName, list);
}

BOOL COrvRegStore::Read(const char* lpszName, CObject& object) {
    return ReadAny(lpszName, object);
}

void COrvRegStore::Dump(CDumpContext& dc) const {
    dc << "registry store at " << m_hKey << ", path \"" << m_strKeyPath << "\"";
    dc << (m_bReadOnly != 0 ? ", read-only" : ", writable");
    dc << "; last result " << m_Info.lResult << ", type " << m_Info.dwType << ", size " << m_Info.dwSize
       << "\n";
}
