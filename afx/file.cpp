#include "afx.h"

#include "dbcs.h"

// What CFile does without the system.

IMPLEMENT_DYNAMIC(CFile, CObject)

const HANDLE CFile::hFileNull = INVALID_HANDLE_VALUE;

CFile::CFile() : m_hFile(hFileNull), m_bCloseOnDelete(FALSE) {}

CFile::CFile(HANDLE hFile) : m_hFile(hFile), m_bCloseOnDelete(FALSE) {}

CFile::CFile(LPCTSTR lpszFileName, UINT nOpenFlags) : CFile() {
    CFileException failure;
    if (!CFile::Open(lpszFileName, nOpenFlags, &failure))
        AfxThrowFileException(failure.m_cause, failure.m_lOsError, failure.m_strFileName);
}

CFile::~CFile() {
    if (m_hFile != hFileNull && m_bCloseOnDelete)
        CFile::Abort();
}

UINT CFile::GetBufferPtr(UINT nCommand, UINT, void**, void**) {
    ASSERT(nCommand == bufferCheck); // not a file in memory
    UNUSED(nCommand);
    return 0;
}

CString CFile::GetFileName() const {
    const CString path = GetFilePath();
    int iName = 0;
    const char* end = path.GetString() + path.GetLength();
    for (const char* p = path; p < end; p += orvafx::charBytes(p, end)) {
        if (*p == '/' || *p == '\\' || *p == ':')
            iName = (int)(p - path.GetString()) + 1;
    }
    return path.Mid(iName);
}

CString CFile::GetFileTitle() const {
    const CString name = GetFileName();
    const int iDot = name.ReverseFind('.');
    return iDot > 0 ? name.Left(iDot) : name;
}

void CFile::SetFilePath(LPCTSTR lpszNewName) {
    m_strFileName = lpszNewName;
}

BOOL CFile::GetStatus(CFileStatus& rStatus) const {
    if (m_strFileName.IsEmpty() || !GetStatus(m_strFileName, rStatus))
        return FALSE;
    if (m_hFile != hFileNull)
        rStatus.m_size = (LONGLONG)GetLength();
    return TRUE;
}

void CFile::AssertValid() const {
    CObject::AssertValid();
}

void CFile::Dump(CDumpContext& dc) const {
    CObject::Dump(dc);
    dc << "with handle " << (const void*)m_hFile << " and name \"" << m_strFileName << "\"\n";
}
