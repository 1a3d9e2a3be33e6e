#pragma once

// Walking text of code page 936 byte by byte: a byte with the high bit set begins a character of two bytes,
// unless nothing follows it.

#include <string_view>

namespace orv {

constexpr size_t characterBytes(std::string_view text, size_t at) {
    return (static_cast<unsigned char>(text[at]) & 0x80) != 0 && at + 1 < text.size() ? 2 : 1;
}

// As many of the first `most` bytes as make whole characters.
constexpr size_t wholeCharacters(std::string_view text, size_t most) {
    size_t kept = 0;
    while (kept < text.size() && kept + characterBytes(text, kept) <= most)
        kept += characterBytes(text, kept);
    return kept;
}

} // namespace orv
