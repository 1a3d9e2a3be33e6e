#include "COrvVersion.h"

#include <new>
#include <string.h>
#include <vector>

#include "VersionBlock.h"
#include "VersionText.h"

namespace {

// A version block is at most 64 KiB; the system reports some more than twice as much.
constexpr DWORD kLargestBlock = 0x100000;

struct TextKey {
    const char* lpszQuery;
    CString tagVersionInformation::*pText;
};

constexpr TextKey kTextKeys[] = {
    {"\\StringFileInfo\\%04x%04x\\Comments", &tagVersionInformation::strComments},
    {"\\StringFileInfo\\%04x%04x\\CompanyName", &tagVersionInformation::strCompanyName},
    {"\\StringFileInfo\\%04x%04x\\FileDescription", &tagVersionInformation::strFileDescription},
    {"\\StringFileInfo\\%04x%04x\\FileVersion", &tagVersionInformation::strFileVersion},
    {"\\StringFileInfo\\%04x%04x\\InternalName", &tagVersionInformation::strInternalName},
    {"\\StringFileInfo\\%04x%04x\\LegalCopyRight", &tagVersionInformation::strLegalCopyright},
    {"\\StringFileInfo\\%04x%04x\\LegalTrademarks", &tagVersionInformation::strLegalTrademarks},
    {"\\StringFileInfo\\%04x%04x\\OriginalFileName", &tagVersionInformation::strOriginalFileName},
    {"\\StringFileInfo\\%04x%04x\\PrivateBuild", &tagVersionInformation::strPrivateBuild},
    {"\\StringFileInfo\\%04x%04x\\ProductName", &tagVersionInformation::strProductName},
    {"\\StringFileInfo\\%04x%04x\\ProductVersion", &tagVersionInformation::strProductVersion},
    {"\\StringFileInfo\\%04x%04x\\SpecialBuild", &tagVersionInformation::strSpecialBuild},
};

CString runningProgram() {
    char path[MAX_PATH];
    const DWORD nLength = ::GetModuleFileNameA(NULL, path, MAX_PATH);
    return nLength < MAX_PATH ? CString(path, static_cast<int>(nLength)) : CString();
}

// What the query finds in the block: its place and its length, 0 for nothing.
UINT query(unsigned char* pBlock, const char* lpszQuery, void*& pFound) {
    UINT nLength = 0;
    return ::VerQueryValueA(pBlock, lpszQuery, &pFound, &nLength) && pFound != NULL ? nLength : 0;
}

// The length that comes with a text may count its closing zero, and may be wrong.
CString queryText(unsigned char* pBlock, const char* lpszQuery) {
    void* pFound = NULL;
    const UINT nLength = query(pBlock, lpszQuery, pFound);
    if (nLength == 0)
        return CString();
    const char* lpszText = static_cast<const char*>(pFound);
    return CString(lpszText, static_cast<int>(strnlen(lpszText, nLength)));
}

void setText(CString& text, const char* lpszText) {
    if (lpszText != NULL)
        text = lpszText;
}

} // namespace

COrvVersion::COrvVersion() : COrvVersion(CString()) {}

COrvVersion::COrvVersion(CString strPath)
    : m_bVersionRead(0), m_bFileTimeRead(0), m_dwFileVersionMS(0), m_dwFileVersionLS(0),
      m_dwProductVersionMS(0), m_dwProductVersionLS(0), m_FixedInfo(), m_dwTranslation(0), m_ftCreation(),
      m_ftLastAccess(), m_ftLastWrite() {
    m_bVersionRead = ReadVersionInformation(strPath);
    m_bFileTimeRead = ReadFileTime();
}

COrvVersion::~COrvVersion() = default;

BOOL COrvVersion::ReadVersionInformation(CString strPath) {
    if (strPath.IsEmpty())
        strPath = runningProgram();
    if (strPath.IsEmpty())
        return FALSE;
    m_Info.strFilePath = strPath;
    DWORD dwIgnored = 0;
    const DWORD dwSize = ::GetFileVersionInfoSizeA(strPath, &dwIgnored);
    if (dwSize == 0 || dwSize > kLargestBlock)
        return FALSE;
    try {
        std::vector<BYTE> block(dwSize);
        if (!::GetFileVersionInfoA(strPath, 0, dwSize, block.data()) || !orv::isSoundVersionBlock(block))
            return FALSE;
        block.resize(orv::versionBlockRoom(block));
        void* pFixed = NULL;
        if (query(block.data(), "\\", pFixed) < sizeof(m_FixedInfo))
            return FALSE;
        memcpy(&m_FixedInfo, pFixed, sizeof(m_FixedInfo));
        return GetDynamicInfo(block.data()) && GetFixedFileInfo();
    } catch (const std::bad_alloc&) {
        return FALSE;
    }
}

BOOL COrvVersion::GetDynamicInfo(unsigned char* pBlock) {
    void* pTranslation = NULL;
    if (query(pBlock, "\\VarFileInfo\\Translation", pTranslation) < sizeof(m_dwTranslation))
        return FALSE;
    memcpy(&m_dwTranslation, pTranslation, sizeof(m_dwTranslation));
    for (const TextKey& key : kTextKeys) {
        CString strQuery;
        strQuery.Format(key.lpszQuery, LOWORD(m_dwTranslation), HIWORD(m_dwTranslation));
        m_Info.*key.pText = queryText(pBlock, strQuery);
    }
    return TRUE;
}

BOOL COrvVersion::GetFixedFileInfo() {
    m_dwFileVersionMS = m_FixedInfo.dwFileVersionMS;
    m_dwFileVersionLS = m_FixedInfo.dwFileVersionLS;
    m_dwProductVersionMS = m_FixedInfo.dwProductVersionMS;
    m_dwProductVersionLS = m_FixedInfo.dwProductVersionLS;
    setText(m_Info.strFileType, orv::fileTypeText(m_FixedInfo.dwFileType, m_FixedInfo.dwFileSubtype));
    setText(m_Info.strFileOS, orv::targetSystemText(m_FixedInfo.dwFileOS));
    return TRUE;
}

BOOL COrvVersion::ReadFileTime() {
    const HANDLE hFile = ::CreateFileA(m_Info.strFilePath, GENERIC_READ,
                                       FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, NULL,
                                       OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, NULL);
    if (hFile == INVALID_HANDLE_VALUE)
        return FALSE;
    const BOOL bRead = ::GetFileTime(hFile, &m_ftCreation, &m_ftLastAccess, &m_ftLastWrite);
    ::CloseHandle(hFile);
    return bRead != FALSE;
}

int COrvVersion::CompareVersionString(CString strOne, CString strOther) {
    return orv::compareVersions(strOne.GetString(), strOther.GetString());
}

int COrvVersion::CompareVersion(CString strProductVersion, CString strFileVersion, CString strSpecialBuild,
                                CString strPrivateBuild) {
    if (const int n = CompareVersionString(m_Info.strProductVersion, strProductVersion))
        return n;
    if (const int n = CompareVersionString(m_Info.strFileVersion, strFileVersion))
        return n;
    if (const int n = CompareVersionString(m_Info.strSpecialBuild, strSpecialBuild))
        return n;
    return CompareVersionString(m_Info.strPrivateBuild, strPrivateBuild);
}

void COrvVersion::Dump(CDumpContext& dc) const {
    dc << "version of \"" << m_Info.strFilePath << "\": ";
    dc << (m_bVersionRead ? "read" : "not read") << (m_bFileTimeRead ? ", with" : ", without")
       << " file times\n";
    dc << "  file " << m_Info.strFileVersion << ", product " << m_Info.strProductVersion << ", "
       << m_Info.strFileType << ", " << m_Info.strFileOS << "\n";
}
