#include "ProfileStrings.h"

namespace orv {

namespace {

bool isLeadByte(char c) {
    const unsigned char byte = static_cast<unsigned char>(c);
    return byte >= 0x81 && byte <= 0xFE;
}

} // namespace

std::vector<std::string> splitProfileStrings(std::string_view buffer) {
    std::vector<std::string> strings;
    std::string current;
    for (const char c : buffer) {
        if (c != '\0') {
            current += c;
            continue;
        }
        if (!current.empty())
            strings.push_back(current);
        current.clear();
    }
    return strings;
}

std::string_view profileValue(std::string_view text, size_t nRoom) {
    if (text.size() + 1 < nRoom)
        return text;
    size_t nWhole = 0;
    while (nWhole < text.size()) {
        const size_t nNext = nWhole + (isLeadByte(text[nWhole]) ? 2 : 1);
        if (nNext > text.size())
            break;
        nWhole = nNext;
    }
    return text.substr(0, nWhole);
}

} // namespace orv
