#pragma once

#include <afxwin.h>
#include <orvfc/OrvApi.h>

// Keys and sections of one INI file, through the system's private-profile functions: names are found whatever
// their case, the first of several equal ones wins, a name without a path is looked for in the Windows
// directory, and whether a section directly behind a byte order mark is found differs between systems.
// Nothing reports an error but the values themselves: a missing file gives empty texts and lists.
//
// In GetKeyValue and SetKey the section comes last.
class ORVFC_API COrvIniReader {
public:
    COrvIniReader();
    COrvIniReader(CString strFileName); // a path may stand where a reader is asked for
    // Copies have lists of their own.
    COrvIniReader(const COrvIniReader& other);
    COrvIniReader& operator=(const COrvIniReader& other);
    ~COrvIniReader();

    void SetINIFileName(CString strFileName);

    // Empty when the key is not there. Values are cut at 254 bytes, never inside a character.
    CString GetKeyValue(CString strKey, CString strSection);
    // Writes the key, making file and section when they are not there. Non-zero for success.
    LONG SetKey(CString strValue, CString strKey, CString strSection);
    // A section without keys counts as absent.
    BOOL SectionExists(CString strSection);
    // Names of all sections, or the lines of one ("key=value"), in file order, as far as 1998 bytes go; one
    // that does not fit whole is left out. The list stays this object's and holds until the same function is
    // called again.
    CStringList* GetSectionNames();
    CStringList* GetSectionData(CString strSection);

    void Dump(CDumpContext& dc) const;

    CStringList* m_pSectionData;  // owned, never null
    CStringList* m_pSectionNames; // owned, never null
    CString m_strFileName;
    LONG m_lRetValue; // what the last profile call returned: bytes, or non-zero for success
};
