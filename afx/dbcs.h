#pragma once

// Characters of the ANSI code page: one byte, or a lead byte and its trail byte. Internal to the foundation.

#include "wintypes.h"

namespace orvafx {

inline bool isLeadByte(char ch) {
    if ((ch & 0x80) == 0)
        return false;
#if defined(_WIN32)
    return ::IsDBCSLeadByte((BYTE)ch) != FALSE;
#else
    return (BYTE)ch >= 0x81 && (BYTE)ch <= 0xFE; // code page 936
#endif
}

// Bytes of the character at p: a lead byte with nothing behind it is a character of its own.
inline int charBytes(const char* p, const char* end) {
    return end - p >= 2 && isLeadByte(*p) ? 2 : 1;
}

// The first character that starts at or behind p, where text starts at begin. Looks back no further than the
// run of lead bytes before p: behind any other byte a character starts.
inline const char* charStart(const char* begin, const char* p, const char* end) {
    const char* run = p;
    while (run > begin && isLeadByte(run[-1]))
        run--;
    return (p - run) % 2 != 0 && p < end ? p + 1 : p;
}

// As many of the first nMax bytes as make whole characters.
inline int wholeCharBytes(const char* text, int nLength, int nMax) {
    if (nLength <= nMax)
        return nLength;
    int n = 0;
    for (int next = charBytes(text, text + nLength); next <= nMax;
         next += charBytes(text + next, text + nLength))
        n = next;
    return n;
}

} // namespace orvafx
