#pragma once

// The value half of the foundation: strings, points and rectangles, run-time classes, exceptions, files,
// archives.

#include "orvafx.h"
#include "atltypes.h"
#include "afxstr.h"
#include "afxdebug_.h"
#include "afxobject_.h"
#include "afxexcept_.h"
#include "afxfile_.h"
#include "afxarchive_.h"

// Where Dump writes to: a file, or the debugger.
class ORVAFX_API CDumpContext {
public:
    explicit CDumpContext(CFile* pFile = NULL);
    CDumpContext(const CDumpContext&) = delete;
    CDumpContext& operator=(const CDumpContext&) = delete;

    // 0: objects by name and address only; more: their contents too.
    int GetDepth() const { return m_nDepth; }
    void SetDepth(int nNewDepth) { m_nDepth = nNewDepth; }
    void Flush();
    // nWidth bytes a line in hexadecimal, each line behind its label.
    void HexDump(LPCTSTR lpszLine, BYTE* pby, int nBytes, int nWidth);

    CDumpContext& operator<<(LPCTSTR lpsz);
    CDumpContext& operator<<(const CString& str) { return *this << str.GetString(); }
    CDumpContext& operator<<(const void* lp);
    CDumpContext& operator<<(const CObject* pOb);
    CDumpContext& operator<<(const CObject& ob) { return *this << &ob; }
    CDumpContext& operator<<(bool b) { return *this << (b ? "true" : "false"); }
    CDumpContext& operator<<(BYTE by) { return Number("%d", by); }
    CDumpContext& operator<<(WORD w) { return Number("%u", w); }
    CDumpContext& operator<<(int n) { return Number("%d", n); }
    CDumpContext& operator<<(unsigned u) { return Number("%u", u); }
    CDumpContext& operator<<(long l) { return Number("%I64d", l); }
    CDumpContext& operator<<(unsigned long ul) { return Number("%I64u", ul); }
    CDumpContext& operator<<(long long n) { return Number("%I64d", n); }
    CDumpContext& operator<<(unsigned long long n) { return Number("%I64u", n); }
    CDumpContext& operator<<(double d) { return Number("%g", d); }

    int m_nDepth;
    CFile* m_pFile;

protected:
    CDumpContext& Number(LPCSTR lpszFormat, OrvFormatArg arg);
};

ORVAFX_API CDumpContext& operator<<(CDumpContext& dc, SIZE size);
ORVAFX_API CDumpContext& operator<<(CDumpContext& dc, POINT point);
ORVAFX_API CDumpContext& operator<<(CDumpContext& dc, const RECT& rect);

extern ORVAFX_API CDumpContext afxDump;

// A place in a list.
struct __POSITION {};
typedef __POSITION* POSITION;
