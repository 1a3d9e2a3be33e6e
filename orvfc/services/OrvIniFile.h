#pragma once

// Lines of text over a CFile. What the file throws goes to the caller.

#include <afx.h>

namespace orv {

// Deliberately not what its name says: reads all that is left of the file, a byte at a time, and leaves out
// the first line feed only. Answers TRUE, also at the end; FALSE without a file, which is an assertion.
BOOL readLine(CFile* pFile, CString& strLine);

// The text, then CR and LF. Without a file: an assertion, nothing.
void writeLine(CFile* pFile, const CString& strLine);

} // namespace orv
