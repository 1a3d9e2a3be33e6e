#pragma once

// Splitting file names as the C runtime's _splitpath does, for texts in code page 936: a byte from 0x81 to
// 0xFE takes the next one with it, so that a trail byte is never taken for a backslash, a bar or a dot.

#include <string>
#include <string_view>

namespace orv {

// The room _splitpath has for each part, its closing zero included.
constexpr size_t kDriveRoom = 3;
constexpr size_t kPartRoom = 256;

struct FileNameParts {
    std::string drive;     // "C:" or empty
    std::string directory; // up to and with the last separator
    std::string name;      // up to the last dot behind it
    std::string extension; // from that dot on
};

// Parts that are too long are cut, but never inside a character.
FileNameParts splitFileName(std::string_view path);

// The length of the character that the (not empty) text begins with: 1 or 2 bytes.
size_t characterLength(std::string_view text);

// Position of the last backslash that is a character of its own, or npos.
size_t lastBackslash(std::string_view path);

bool endsInBackslash(std::string_view path);

// Whether a file name may hold the character. Double quotes and control characters may: callers rely on it.
bool isFileNameCharacter(char c);

// The name without the characters that it may not hold.
std::string cleanFileName(std::string_view name);

} // namespace orv
