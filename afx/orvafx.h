#pragma once

// ORVAFX_API marks what orvafx.dll exports: exported while the DLL itself is built, imported everywhere else.
// Off Windows the portable half is a static library.
#if !defined(_WIN32)
#define ORVAFX_API
#elif defined(ORVAFX_BUILD)
#define ORVAFX_API __declspec(dllexport)
#else
#define ORVAFX_API __declspec(dllimport)
#endif

#if defined(UNICODE) || defined(_UNICODE)
#error The foundation is multi-byte only: build without UNICODE.
#endif

#include "wintypes.h"

// Calling convention and storage words that host sources spell out. One set of DLLs, one convention.
#define AFXAPI
#define AFX_CDECL
#define AFX_DATA
#define AFX_API
#define AFX_DATADEF
#define AFX_COMDAT
#define AFX_MSG_CALL
#define AFX_NOVTABLE
