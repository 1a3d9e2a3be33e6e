#pragma once

// Face names in the fixed field of a LOGFONT (code page 936).

#include <string_view>

#include <wintypes.h>

namespace orv {

// The name, cut at the last whole character that the field holds with a zero behind it. The rest of the field
// is zero.
void copyFaceName(char (&field)[LF_FACESIZE], std::string_view name);

// A field that came from elsewhere may lack its zero. One that is whole keeps all its bytes.
void endFaceName(char (&field)[LF_FACESIZE]);

} // namespace orv
