#pragma once

// Bytes as "0A FF", in both directions.

#include <afx.h>

#include <span>
#include <stdio.h>
#include <stdlib.h>
#include <string>
#include <vector>

namespace orv::test {

inline std::string hex(std::span<const BYTE> bytes) {
    std::string text;
    for (const BYTE byte : bytes) {
        char digits[4];
        snprintf(digits, sizeof(digits), "%s%02X", text.empty() ? "" : " ", byte);
        text += digits;
    }
    return text;
}

inline std::vector<BYTE> bytes(const char* text) {
    std::vector<BYTE> all;
    for (char* end; *text != '\0'; text = end)
        all.push_back(static_cast<BYTE>(strtoul(text, &end, 16)));
    return all;
}

} // namespace orv::test
