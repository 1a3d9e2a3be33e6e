#pragma once

#include <afx.h>
#include <orvfc/OrvApi.h>

// File names, split as the C runtime's _splitpath does: the directory runs to the last "\" or "/", the
// extension starts at the last dot behind it, each part is cut at 255 bytes. Two-byte characters are never
// split, and their second bytes are never taken for separators.

// The name without directory and extension: "archive.tar" of "archive.tar.gz".
ORVFC_API CString GetFileNameNoExtend(CString strPath);
// The name with its extension, without directory.
ORVFC_API CString GetFileNameExistExtend(CString strPath);
// Drive and directory with the separator at the end; empty for a bare name.
ORVFC_API CString GetFileNamePath(CString strPath);
// The extension with its dot; empty when there is none.
ORVFC_API CString GetFileNameExend(CString strPath);
// The name without the characters for which IsFileNameValidateChar is FALSE.
ORVFC_API CString GetFileNameValidate(CString strName);
// FALSE for * / : < > ? \ | alone. Double quotes and control characters pass; callers rely on it. A byte of a
// two-byte character is no character of its own: look at whole names with GetFileNameValidate.
ORVFC_API BOOL IsFileNameValidateChar(char c);
// TRUE for an existing file or directory.
ORVFC_API BOOL IsFileExist(CString strPath);
ORVFC_API BOOL IsDirectoryExist(CString strPath);
