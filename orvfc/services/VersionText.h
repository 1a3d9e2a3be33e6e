#pragma once

// The texts of version information: what the numbers of a version block mean, and which of two versions is
// later.

#include <afx/wintypes.h>

#include <string_view>

namespace orv {

// Null for a value that has no text.
const char* fileTypeText(DWORD dwType, DWORD dwSubtype);
const char* targetSystemText(DWORD dwSystem);

// Compares part by part: numbers first, in single precision, and the texts of the parts when the numbers are
// equal. Parts end at the first comma of what is left, or without one at the first full stop; spaces do not
// count. What is left of the longer one is compared as text. 1: a is later, -1: b is, 0: neither.
int compareVersions(std::string_view a, std::string_view b);

} // namespace orv
