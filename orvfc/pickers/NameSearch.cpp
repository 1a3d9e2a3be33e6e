#include "NameSearch.h"

namespace orv {

namespace {

unsigned char lower(char ch) {
    return static_cast<unsigned char>(ch >= 'A' && ch <= 'Z' ? ch - 'A' + 'a' : ch);
}

// In code page 936.
bool isLeadByte(char ch) {
    return static_cast<unsigned char>(ch) > 0x80;
}

} // namespace

int firstCharBytes(const char* lpszText) {
    if (!*lpszText)
        return 0;
    return isLeadByte(*lpszText) && lpszText[1] ? 2 : 1;
}

bool nameBegins(const char* lpszName, const char* lpszText) {
    while (*lpszName == ' ' && *lpszText != ' ')
        ++lpszName;
    while (const int nBytes = firstCharBytes(lpszText)) {
        // The second byte of a character may look like a letter; half a character is none.
        if (isLeadByte(*lpszText) ? lpszName[0] != lpszText[0] || lpszName[1] != lpszText[1]
                                  : lower(*lpszName) != lower(*lpszText))
            return false;
        lpszName += nBytes;
        lpszText += nBytes;
    }
    return true;
}

} // namespace orv
