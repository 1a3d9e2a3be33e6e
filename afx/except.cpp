#include "afx.h"

#include "dbcs.h"

#include <stdio.h>

// What exceptions say, and the functions that throw them.

#if defined(_WIN32)
ORVAFX_API int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp);
#endif

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)
IMPLEMENT_DYNAMIC(CArchiveException, CException)
IMPLEMENT_DYNAMIC(CFileException, CException)

namespace {

// By cause; %s is the name of the file or archive.
const char* const archiveTexts[] = {
    "%s 没有错误。",
    "处理 %s 时发生未知错误。",
    "无法写入 %s：它是以读取方式打开的。",
    "读取 %s 时意外到达文件末尾。",
    "无法读取 %s：它是以写入方式打开的。",
    "%s 的格式不正确：其中的对象编号无效。",
    "%s 的格式不正确：其中的对象类型未知或不符。",
    "%s 由不同版本的程序创建，无法读取其中的对象。",
    "%s 的缓冲区已满。",
};

const char* const fileTexts[] = {
    "%s 没有错误。",
    "访问 %s 时发生未知错误。",
    "找不到文件 %s。",
    "%s 中包含无效的路径。",
    "打开的文件太多，无法打开 %s。",
    "拒绝访问 %s。",
    "访问 %s 时使用了无效的文件句柄。",
    "无法删除当前目录 %s。",
    "目录已满，无法创建 %s。",
    "在 %s 中定位失败。",
    "访问 %s 时发生硬件读写错误。",
    "访问 %s 时发生共享冲突。",
    "访问 %s 时发生锁定冲突。",
    "写入 %s 时磁盘已满。",
    "访问 %s 时超过了文件末尾。",
};

template <size_t N>
CString causeText(const char* const (&texts)[N], int nCause, const CString& name) {
    const size_t i = nCause >= 0 && (size_t)nCause < N ? nCause : CFileException::genericException;
    CString text;
    text.Format(texts[i], name.IsEmpty() ? CString("未命名文件") : name);
    return text;
}

// The system's own words for its error number.
CString systemText(LONG lOsError) {
    CString text;
#if defined(_WIN32)
    const DWORD n = ::FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, NULL,
                                     (DWORD)lOsError, 0, text.GetBuffer(1024), 1024, NULL);
    text.ReleaseBuffer((int)n);
#else
    text = strerror(lOsError);
#endif
    return text.TrimRight();
}

} // namespace

void CException::Delete() {
    if (m_bAutoDelete)
        delete this;
}

CString CException::OrvMessage() const {
    return CString();
}

BOOL CException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    ASSERT(lpszError != NULL);
    if (pnHelpContext != NULL)
        *pnHelpContext = 0;
    if (lpszError == NULL || nMaxError == 0)
        return FALSE;
    const CString text = OrvMessage();
    const int nMax = nMaxError - 1 < INT_MAX ? (int)(nMaxError - 1) : INT_MAX;
    const int n = orvafx::wholeCharBytes(text, text.GetLength(), nMax);
    memcpy(lpszError, text.GetString(), n);
    lpszError[n] = 0;
    return !text.IsEmpty();
}

int CException::ReportError(UINT nType, [[maybe_unused]] UINT nMessageID) {
    CString text = OrvMessage();
#if defined(_WIN32)
    if (text.IsEmpty() && nMessageID != 0)
        text.LoadString(nMessageID);
    if (text.IsEmpty())
        text = "发生未知错误。";
    return AfxMessageBox(text, nType, 0);
#else
    UNUSED_ALWAYS(nType);
    fprintf(stderr, "%s\n", text.GetString());
    return IDOK;
#endif
}

CString CMemoryException::OrvMessage() const {
    return "内存不足。";
}

CString CNotSupportedException::OrvMessage() const {
    return "不支持所尝试的操作。";
}

CString CResourceException::OrvMessage() const {
    return "所需的资源不可用。";
}

// The user has been told already.
CString CUserException::OrvMessage() const {
    return CString();
}

CString CInvalidArgException::OrvMessage() const {
    return "参数不正确。";
}

CArchiveException::CArchiveException(int cause, LPCTSTR lpszArchiveName)
    : m_cause(cause), m_strFileName(lpszArchiveName) {}

CString CArchiveException::OrvMessage() const {
    return causeText(archiveTexts, m_cause, m_strFileName);
}

CFileException::CFileException(int cause, LONG lOsError, LPCTSTR lpszArchiveName)
    : m_cause(cause), m_lOsError(lOsError), m_strFileName(lpszArchiveName) {}

CString CFileException::OrvMessage() const {
    CString text = causeText(fileTexts, m_cause, m_strFileName);
    const CString reason = m_lOsError > 0 ? systemText(m_lOsError) : CString();
    if (!reason.IsEmpty())
        text += "（" + reason + "）";
    return text;
}

void PASCAL CFileException::ThrowOsError(LONG lOsError, LPCTSTR lpszFileName) {
    if (lOsError != 0)
        AfxThrowFileException(OsErrorToException(lOsError), lOsError, lpszFileName);
}

void PASCAL CFileException::ThrowErrno(int nErrno, LPCTSTR lpszFileName) {
    if (nErrno != 0)
        AfxThrowFileException(ErrnoToException(nErrno), -1, lpszFileName);
}

void AFXAPI AfxThrowMemoryException() {
    // Made beforehand: there is no memory to make one now.
    static CMemoryException exception(FALSE);
    throw static_cast<CMemoryException*>(&exception);
}

void AFXAPI AfxThrowNotSupportedException() {
    throw new CNotSupportedException;
}

void AFXAPI AfxThrowInvalidArgException() {
    throw new CInvalidArgException;
}

void AFXAPI AfxThrowResourceException() {
    throw new CResourceException;
}

void AFXAPI AfxThrowUserException() {
    throw new CUserException;
}

void AFXAPI AfxThrowArchiveException(int cause, LPCTSTR lpszArchiveName) {
    throw new CArchiveException(cause, lpszArchiveName);
}

void AFXAPI AfxThrowFileException(int cause, LONG lOsError, LPCTSTR lpszFileName) {
    throw new CFileException(cause, lOsError, lpszFileName);
}

AFX_EXCEPTION_LINK::~AFX_EXCEPTION_LINK() {
    if (m_pException != NULL)
        m_pException->Delete();
}
