#pragma once

// TRACE and ASSERT: debug builds only, apart from what VERIFY evaluates.

#include "afxstr.h"

class CObject;

// Text for the debugger (OutputDebugString; standard error off Windows).
ORVAFX_API void OrvTraceArgs(LPCSTR lpszFormat, const OrvFormatArg* pArgs, size_t nArgs);

template <class... ARGS>
inline void AfxTrace(LPCSTR lpszFormat, ARGS... args) {
    const OrvFormatArg list[] = {OrvFormatArg(args)..., OrvFormatArg()};
    OrvTraceArgs(lpszFormat, list, sizeof...(args));
}

// Traces "file(line) : assertion failed" and answers TRUE: the caller then stops in the debugger. The stop is
// an ordinary breakpoint exception (SIGTRAP off Windows) that a handler may continue.
ORVAFX_API BOOL AFXAPI AfxAssertFailedLine(LPCSTR lpszFileName, int nLine);
ORVAFX_API void AfxDebugBreak();
ORVAFX_API void AFXAPI AfxAssertValidObject(const CObject* pOb, LPCSTR lpszFileName, int nLine);
// Only tells null from not null: guessing at memory's readability is no test.
ORVAFX_API BOOL AFXAPI AfxIsValidAddress(const void* lp, UINT_PTR nBytes, BOOL bReadWrite = TRUE);
ORVAFX_API BOOL AFXAPI AfxIsValidString(LPCSTR lpsz, int nLength = -1);

#if defined(_DEBUG)

#define TRACE(...) ::AfxTrace(__VA_ARGS__)
#define ASSERT(f) ((void)((f) || !::AfxAssertFailedLine(__FILE__, __LINE__) || (::AfxDebugBreak(), 0)))
#define VERIFY(f) ASSERT(f)
#define ASSERT_VALID(pOb) (::AfxAssertValidObject(pOb, __FILE__, __LINE__))
#define DEBUG_ONLY(f) (f)

#else

#define TRACE(...) ((void)0)
#define ASSERT(f) ((void)0)
#define VERIFY(f) ((void)(f))
#define ASSERT_VALID(pOb) ((void)0)
#define DEBUG_ONLY(f) ((void)0)

#endif

#define TRACE0(sz) TRACE(_T("%s"), _T(sz))
#define TRACE1(sz, p1) TRACE(_T(sz), p1)
#define TRACE2(sz, p1, p2) TRACE(_T(sz), p1, p2)
#define TRACE3(sz, p1, p2, p3) TRACE(_T(sz), p1, p2, p3)
#define ASSERT_POINTER(p, type) ASSERT(((p) != NULL) && AfxIsValidAddress((p), sizeof(type), FALSE))
#define ASSERT_NULL_OR_POINTER(p, type) ASSERT(((p) == NULL) || AfxIsValidAddress((p), sizeof(type), FALSE))
#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))
#define ENSURE(f) ENSURE_THROW(f, ::AfxThrowInvalidArgException())
#define ENSURE_THROW(f, action)                                                                              \
    do {                                                                                                     \
        if (!(f)) {                                                                                          \
            ASSERT(FALSE);                                                                                   \
            action;                                                                                          \
        }                                                                                                    \
    } while (0)
#define ENSURE_VALID(p) ENSURE((p) != NULL)

#define DEBUG_NEW new
#define UNUSED_ALWAYS(x) ((void)(x))
#if defined(_DEBUG)
#define UNUSED(x)
#else
#define UNUSED(x) ((void)(x))
#endif
