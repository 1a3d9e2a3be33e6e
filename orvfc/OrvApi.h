#pragma once

// ORVFC_API marks what ORVFC.dll exports: exported while the DLL itself is built, imported everywhere else.
// Off Windows the portable sources are built as plain objects for the native tests.
#if !defined(_WIN32)
#define ORVFC_API
#elif defined(ORVFC_BUILD)
#define ORVFC_API __declspec(dllexport)
#else
#define ORVFC_API __declspec(dllimport)
#endif

#if defined(UNICODE) || defined(_UNICODE)
#error ORVFC is a multi-byte library (code page 936): build the host without UNICODE.
#endif
