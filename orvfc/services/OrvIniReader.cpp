#include "OrvIniReader.h"

#include <memory>

#include "ProfileStrings.h"

namespace {

constexpr INT_PTR kListBlock = 10;
constexpr DWORD kValueRoom = 255;
constexpr DWORD kKeyNamesRoom = 90;
constexpr DWORD kListingRoom = 2000;

void appendAll(CStringList& list, const CStringList& from) {
    for (POSITION pos = from.GetHeadPosition(); pos != NULL;)
        list.AddTail(from.GetNext(pos));
}

void fill(CStringList& list, const char* buffer, LONG nLength) {
    list.RemoveAll();
    for (const std::string& text : orv::splitProfileStrings({buffer, static_cast<size_t>(nLength)}))
        list.AddTail(text.c_str());
}

} // namespace

COrvIniReader::COrvIniReader() : COrvIniReader(CString()) {}

COrvIniReader::COrvIniReader(CString strFileName)
    : m_pSectionData(NULL), m_pSectionNames(NULL), m_strFileName(strFileName), m_lRetValue(0) {
    auto data = std::make_unique<CStringList>(kListBlock);
    m_pSectionNames = new CStringList(kListBlock);
    m_pSectionData = data.release();
}

COrvIniReader::COrvIniReader(const COrvIniReader& other) : COrvIniReader(other.m_strFileName) {
    *this = other;
}

COrvIniReader& COrvIniReader::operator=(const COrvIniReader& other) {
    if (this == &other)
        return *this;
    m_strFileName = other.m_strFileName;
    m_lRetValue = other.m_lRetValue;
    m_pSectionData->RemoveAll();
    m_pSectionNames->RemoveAll();
    appendAll(*m_pSectionData, *other.m_pSectionData);
    appendAll(*m_pSectionNames, *other.m_pSectionNames);
    return *this;
}

COrvIniReader::~COrvIniReader() {
    delete m_pSectionData;
    delete m_pSectionNames;
}

void COrvIniReader::SetINIFileName(CString strFileName) {
    m_strFileName = strFileName;
}

CString COrvIniReader::GetKeyValue(CString strKey, CString strSection) {
    char value[kValueRoom] = "";
    m_lRetValue = ::GetPrivateProfileStringA(strSection, strKey, "", value, kValueRoom, m_strFileName);
    const std::string_view text = orv::profileValue(value, kValueRoom);
    return CString(text.data(), static_cast<int>(text.size()));
}

LONG COrvIniReader::SetKey(CString strValue, CString strKey, CString strSection) {
    m_lRetValue = ::WritePrivateProfileStringA(strSection, strKey, strValue, m_strFileName);
    return m_lRetValue;
}

BOOL COrvIniReader::SectionExists(CString strSection) {
    char keys[kKeyNamesRoom] = "";
    m_lRetValue = ::GetPrivateProfileStringA(strSection, NULL, "", keys, kKeyNamesRoom, m_strFileName);
    return m_lRetValue > 0;
}

CStringList* COrvIniReader::GetSectionNames() {
    char names[kListingRoom] = "";
    m_lRetValue = ::GetPrivateProfileSectionNamesA(names, kListingRoom, m_strFileName);
    fill(*m_pSectionNames, names, m_lRetValue);
    return m_pSectionNames;
}

CStringList* COrvIniReader::GetSectionData(CString strSection) {
    char lines[kListingRoom] = "";
    m_lRetValue = ::GetPrivateProfileSectionA(strSection, lines, kListingRoom, m_strFileName);
    fill(*m_pSectionData, lines, m_lRetValue);
    return m_pSectionData;
}

void COrvIniReader::Dump(CDumpContext& dc) const {
    dc << "INI file \"" << m_strFileName << "\", last result " << m_lRetValue << ", "
       << m_pSectionNames->GetCount() << " section names, " << m_pSectionData->GetCount() << " lines\n";
}
