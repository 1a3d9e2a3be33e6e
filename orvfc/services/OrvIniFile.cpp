#include "OrvIniFile.h"

namespace orv {

BOOL readLine(CFile* pFile, CString& strLine) {
    ASSERT(pFile != NULL);
    strLine.Empty();
    if (pFile == NULL)
        return FALSE;
    bool bLineFeedSeen = false;
    char c;
    while (pFile->Read(&c, 1) == 1) {
        if (c == '\n' && !bLineFeedSeen)
            bLineFeedSeen = true; // and no end: what follows belongs to the line as well
        else
            strLine.AppendChar(c);
    }
    return TRUE;
}

void writeLine(CFile* pFile, const CString& strLine) {
    ASSERT(pFile != NULL);
    if (pFile == NULL)
        return;
    pFile->Write(strLine.GetString(), static_cast<UINT>(strLine.GetLength()));
    pFile->Write("\r\n", 2);
}

} // namespace orv
