#pragma once

// Finding a row by the first characters of its name while they are typed.

#include <afx.h>

namespace orv {

// Bytes of the first character of code page text: 1 or 2, 0 at its end.
int firstCharBytes(const char* lpszText);

// Whether the name begins with the text. Blanks before the name and the case of A to Z do not count.
bool nameBegins(const char* lpszName, const char* lpszText);

// The row that the typed text leads to, -1 when there is none. A longer text stays on the selected row while
// it fits; one character, alone or repeated, goes on to the next row that begins with it. nameAt(i) gives the
// name of row i; nSelected is -1 when no row is selected.
template <class NameAt>
int rowTyped(const CString& strText, int nRows, int nSelected, NameAt nameAt) {
    const auto search = [&](const CString& strBeginning, int nFirst) {
        for (int i = 0; i < nRows; ++i)
            if (nameBegins(nameAt((nFirst + i) % nRows), strBeginning))
                return (nFirst + i) % nRows;
        return -1;
    };
    const int nBytes = firstCharBytes(strText);
    if (nBytes == 0)
        return -1;
    const CString strFirst = strText.Left(nBytes);
    int nFound = -1;
    if (strText != strFirst)
        nFound = search(strText, nSelected < 0 ? 0 : nSelected);
    CString strRest = strText;
    strRest.Replace(strFirst, "");
    if (nFound < 0 && strRest.IsEmpty())
        nFound = search(strFirst, nSelected + 1);
    return nFound;
}

} // namespace orv
