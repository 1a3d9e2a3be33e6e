#pragma once

#include <afxwin.h>
#include <orvfc/OrvApi.h>

// What a user has typed in quick succession to find a row by its name.
class ORVFC_API COrvTypedText {
public:
    COrvTypedText() = default;
    COrvTypedText(const COrvTypedText&) = default;
    COrvTypedText& operator=(const COrvTypedText&) = default;

    // Takes the character of a WM_CHAR that the window got; a pause of more than a second before it begins
    // anew. FALSE: it is no character to search with (a control key, a blank at the beginning), and the
    // search ends.
    BOOL Add(HWND hWnd, UINT nChar);
    // Empty while the first half of a character waits for its second.
    CString GetText() const { return m_chLead ? CString() : m_str; }

private:
    CString m_str;
    DWORD m_dwLast = 0; // when the last one came, in milliseconds
    char m_chLead = 0;  // first byte of a character, where they come byte by byte
};
