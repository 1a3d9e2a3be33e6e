// Line-type files: names, opening, and telling the user what went wrong.

#include <afxwin.h>

#include "LineProperBar.h"

#include <new>

#include <orvfc/services/FileNameParts.h>
#include <orvfc/services/GerNer.h>
#include <orvfc/services/OwnedRows.h>
#include <orvfc/services/SysInfo.h>

namespace {

bool isDirectoryName(const CString& strFile) {
    return orv::endsInBackslash(strFile.GetString());
}

CString defaultFile() {
    return CSysInfo::GetAppPath() + _T("orvDrawType.lin");
}

void tellUser(const CException& exception) {
    char text[1024] = {};
    exception.GetErrorMessage(text, sizeof(text));
    AfxMessageBox(text);
}

// One whole archive over one open file. Exceptions are told to the user and become 0.
int serializeWhole(COrvDrawManage& set, CFile& file, UINT nMode) {
    try {
        CArchive ar(&file, nMode, 4096);
        try {
            set.Serialize(ar);
            ar.Close();
        } catch (const std::bad_alloc&) {
            ar.Abort();
            AfxThrowMemoryException();
        } catch (...) {
            ar.Abort();
            throw;
        }
        file.Close();
        return 1;
    } catch (CException* pException) {
        file.Abort();
        tellUser(*pException);
        pException->Delete();
        return 0;
    }
}

int serializeFile(COrvDrawManage& set, const CString& strFile, UINT nOpenFlags, UINT nMode) {
    CFile file;
    CFileException exception;
    if (!file.Open(strFile, nOpenFlags, &exception)) {
        tellUser(exception);
        return 0;
    }
    return serializeWhole(set, file, nMode);
}

} // namespace

int COrvDrawManage::LoadFromFile(CString strFile) {
    if (strFile.IsEmpty() || isDirectoryName(strFile))
        strFile = defaultFile();
    return serializeFile(*this, GetFileNameExistExtend(strFile), CFile::modeRead, CArchive::load);
}

int COrvDrawManage::SaveToFile(CString strFile) {
    if (strFile.IsEmpty())
        strFile = defaultFile();
    return serializeFile(*this, strFile, CFile::modeCreate | CFile::modeWrite, CArchive::store);
}

COrvMainDrawManage::COrvMainDrawManage(CString strPath) {
    if (strPath.IsEmpty())
        m_strPathName = CSysInfo::GetAppPath();
    Init();
}

COrvDrawBasicDash* COrvMainDrawManage::GetLineType(int nType, CString strFile) {
    COrvDrawBasicDash* pDash = GetLineType(nType);
    if (pDash || !Load(strFile))
        return pDash;
    return m_sets[m_sets.GetSize() - 1]->GetDashFromType(nType);
}

int COrvMainDrawManage::Save() {
    const CString strFile = isDirectoryName(m_strPathName) ? CString() : m_strPathName;
    int bSaved = 1;
    for (int i = 0; i < m_sets.GetSize(); ++i)
        if (!m_sets[i]->SaveToFile(strFile))
            bSaved = 0;
    return bSaved;
}

int COrvMainDrawManage::Load(CString strFile) {
    auto set = std::make_unique<COrvDrawManage>();
    if (!set->LoadFromFile(strFile))
        return 0;
    orv::addOwned(m_sets, std::move(set));
    return 1;
}
