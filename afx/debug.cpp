#include "afx.h"

#include <stdio.h>
#include <stdlib.h>

#if !defined(_WIN32)
#include <signal.h>
#endif

// TRACE, ASSERT and the dump context.

namespace {

void toDebugger(LPCSTR text) {
#if defined(_WIN32)
    ::OutputDebugStringA(text);
#else
    fputs(text, stderr);
#endif
}

} // namespace

void OrvTraceArgs(LPCSTR lpszFormat, const OrvFormatArg* pArgs, size_t nArgs) {
    CString text;
    text.FormatArgs(lpszFormat, pArgs, nArgs);
    toDebugger(text);
}

BOOL AFXAPI AfxAssertFailedLine(LPCSTR lpszFileName, int nLine) {
    // No CString: an assertion inside CString must come out too.
    char text[1024];
    snprintf(text, sizeof(text), "%s(%d) : assertion failed\n", lpszFileName, nLine);
    toDebugger(text);
    return TRUE;
}

void AfxDebugBreak() {
#if defined(_WIN32)
    ::RaiseException((DWORD)EXCEPTION_BREAKPOINT, 0, 0, NULL);
#else
    raise(SIGTRAP);
#endif
}

void AFXAPI AfxAssertValidObject(const CObject* pOb, LPCSTR lpszFileName, int nLine) {
    if (pOb != NULL)
        pOb->AssertValid();
    else if (AfxAssertFailedLine(lpszFileName, nLine))
        AfxDebugBreak();
}

BOOL AFXAPI AfxIsValidAddress(const void* lp, UINT_PTR, BOOL) {
    return lp != NULL;
}

BOOL AFXAPI AfxIsValidString(LPCSTR lpsz, int) {
    return lpsz != NULL;
}

void* OrvAlloc(size_t nSize) {
    void* p = malloc(nSize != 0 ? nSize : 1);
    if (p == NULL)
        AfxThrowMemoryException();
    return p;
}

void OrvFree(void* p) {
    free(p);
}

CDumpContext::CDumpContext(CFile* pFile) : m_nDepth(0), m_pFile(pFile) {}

void CDumpContext::Flush() {
    if (m_pFile != NULL)
        m_pFile->Flush();
}

CDumpContext& CDumpContext::operator<<(LPCTSTR lpsz) {
    if (lpsz == NULL)
        lpsz = "(NULL)";
    if (m_pFile != NULL)
        m_pFile->Write(lpsz, (UINT)strlen(lpsz));
    else
        toDebugger(lpsz);
    return *this;
}

CDumpContext& CDumpContext::operator<<(const void* lp) {
    CString text;
    text.Format("$%p", lp);
    return *this << text.GetString();
}

CDumpContext& CDumpContext::operator<<(const CObject* pOb) {
    if (pOb != NULL)
        pOb->Dump(*this);
    else
        *this << "NULL";
    return *this;
}

CDumpContext& CDumpContext::Number(LPCSTR lpszFormat, OrvFormatArg arg) {
    CString text;
    text.FormatArgs(lpszFormat, &arg, 1);
    return *this << text.GetString();
}

void CDumpContext::HexDump(LPCTSTR lpszLine, BYTE* pby, int nBytes, int nWidth) {
    ASSERT(nBytes >= 0 && nWidth > 0);
    for (int i = 0; i < nBytes; i++) {
        if (i == 0 || (nWidth > 0 && i % nWidth == 0))
            *this << (i == 0 ? "" : "\n") << lpszLine;
        CString text;
        text.Format(" %02X", pby[i]);
        *this << text;
    }
    *this << "\n";
}

CDumpContext& operator<<(CDumpContext& dc, SIZE size) {
    return dc << "(" << size.cx << " x " << size.cy << ")";
}

CDumpContext& operator<<(CDumpContext& dc, POINT point) {
    return dc << "(" << point.x << ", " << point.y << ")";
}

CDumpContext& operator<<(CDumpContext& dc, const RECT& rect) {
    return dc << "(L " << rect.left << ", T " << rect.top << ", R " << rect.right << ", B " << rect.bottom
              << ")";
}

CDumpContext afxDump;
