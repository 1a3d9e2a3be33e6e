#pragma once

#include <afxwin.h>
#include <orvfc/OrvApi.h>

// The texts of a module's version resource.
struct tagVersionInformation {
    CString strFilePath; // as it was read
    CString strFileVersion;
    CString strProductVersion;
    CString strFileOS;    // text for the system the module is made for; empty for an unlisted one
    CString strFileType;  // text for its kind; the same
    CString strReserved1; // never filled
    CString strReserved2;
    CString strComments;
    CString strCompanyName;
    CString strFileDescription;
    CString strInternalName;
    CString strLegalCopyright;
    CString strLegalTrademarks;
    CString strOriginalFileName;
    CString strPrivateBuild;
    CString strProductName;
    CString strSpecialBuild;
};

// Version resource and file times of a module, read once, when the object is made. Nothing reports a failure
// but the two flags; what could be read by then is there. Texts that the resource has not are empty.
class ORVFC_API COrvVersion {
public:
    COrvVersion();                // of the running program
    COrvVersion(CString strPath); // empty: of the running program. A path may stand for its version
    virtual ~COrvVersion();
    COrvVersion(const COrvVersion&) = default;
    COrvVersion& operator=(const COrvVersion&) = default;

    // Whether this module is later (above 0) or earlier (below 0) than the four texts say: product version
    // first, then file version, special build, private build. Versions are compared part by part: as numbers
    // in single precision, and as text when those are equal. Parts end at commas, where there are none at
    // full stops; "1.2" is earlier than "1.2.0".
    int CompareVersion(CString strProductVersion, CString strFileVersion, CString strSpecialBuild,
                       CString strPrivateBuild);

    void Dump(CDumpContext& dc) const;

    int m_bVersionRead;  // 1: the version resource was read completely
    int m_bFileTimeRead; // 1: the three times are there
    tagVersionInformation m_Info;
    DWORD m_dwFileVersionMS; // the two upper of the four numbers, 16 bits each
    DWORD m_dwFileVersionLS;
    DWORD m_dwProductVersionMS;
    DWORD m_dwProductVersionLS;
    VS_FIXEDFILEINFO m_FixedInfo; // as the resource holds it
    DWORD m_dwTranslation;        // of the texts: language in the low, code page in the high 16 bits
    FILETIME m_ftCreation;
    FILETIME m_ftLastAccess;
    FILETIME m_ftLastWrite;

private:
    BOOL ReadVersionInformation(CString strPath);
    BOOL GetDynamicInfo(unsigned char* pBlock);
    BOOL GetFixedFileInfo();
    BOOL ReadFileTime();
    int CompareVersionString(CString strOne, CString strOther);
};
