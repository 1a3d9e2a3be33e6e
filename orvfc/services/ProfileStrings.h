#pragma once

// What the system's profile functions put into a buffer.

#include <string>
#include <string_view>
#include <vector>

namespace orv {

// The strings of a list, each closed by a zero byte. Empty ones are left out, and so is a last one without
// its zero: the buffer has cut it.
std::vector<std::string> splitProfileStrings(std::string_view buffer);

// The value that a buffer of nRoom bytes holds. When it fills the buffer it may have been cut: then without a
// lead byte at its end whose second half is missing (code page 936).
std::string_view profileValue(std::string_view text, size_t nRoom);

} // namespace orv
