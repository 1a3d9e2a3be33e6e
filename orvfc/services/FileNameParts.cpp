#include "FileNameParts.h"

namespace orv {

namespace {

bool isLeadByte(char c) {
    const unsigned char byte = static_cast<unsigned char>(c);
    return byte >= 0x81 && byte <= 0xFE;
}

// As much of the part as fits its room, in whole characters.
std::string_view fitting(std::string_view part, size_t nRoom) {
    size_t nFits = 0;
    while (nFits < part.size()) {
        const size_t nNext = nFits + characterLength(part.substr(nFits));
        if (nNext >= nRoom)
            break;
        nFits = nNext;
    }
    return part.substr(0, nFits);
}

} // namespace

size_t characterLength(std::string_view text) {
    return isLeadByte(text[0]) && text.size() > 1 ? 2 : 1;
}

FileNameParts splitFileName(std::string_view path) {
    const size_t nDrive = path.size() > 1 && path[1] == ':' ? 2 : 0;
    size_t nName = nDrive;
    size_t nDot = std::string_view::npos;
    for (size_t i = nDrive; i < path.size(); i += characterLength(path.substr(i))) {
        if (path[i] == '\\' || path[i] == '/') {
            nName = i + 1;
            nDot = std::string_view::npos;
        } else if (path[i] == '.') {
            nDot = i;
        }
    }
    if (nDot == std::string_view::npos)
        nDot = path.size();
    return {
        std::string(fitting(path.substr(0, nDrive), kDriveRoom)),
        std::string(fitting(path.substr(nDrive, nName - nDrive), kPartRoom)),
        std::string(fitting(path.substr(nName, nDot - nName), kPartRoom)),
        std::string(fitting(path.substr(nDot), kPartRoom)),
    };
}

size_t lastBackslash(std::string_view path) {
    size_t nLast = std::string_view::npos;
    for (size_t i = 0; i < path.size(); i += characterLength(path.substr(i)))
        if (path[i] == '\\')
            nLast = i;
    return nLast;
}

bool endsInBackslash(std::string_view path) {
    return !path.empty() && lastBackslash(path) == path.size() - 1;
}

bool isFileNameCharacter(char c) {
    constexpr std::string_view kForbidden = "*/:<>?\\|";
    return kForbidden.find(c) == std::string_view::npos;
}

std::string cleanFileName(std::string_view name) {
    std::string clean;
    for (size_t i = 0; i < name.size();) {
        const std::string_view character = name.substr(i, characterLength(name.substr(i)));
        if (character.size() > 1 || isFileNameCharacter(character[0]))
            clean += character;
        i += character.size();
    }
    return clean;
}

} // namespace orv
