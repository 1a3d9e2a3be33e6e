#include "FaceName.h"

#include <string.h>

#include "TextBytes.h"

namespace orv {

void copyFaceName(char (&field)[LF_FACESIZE], std::string_view name) {
    name = name.substr(0, name.find('\0'));
    const size_t kept = wholeCharacters(name, LF_FACESIZE - 1);
    const std::string_view cut = name.substr(0, kept);
    memmove(field, cut.data(), cut.size()); // the name may be the field's own
    memset(field + cut.size(), 0, sizeof field - cut.size());
}

void endFaceName(char (&field)[LF_FACESIZE]) {
    const std::string_view whole(field, LF_FACESIZE);
    if (whole.find('\0') == whole.npos)
        copyFaceName(field, whole);
}

} // namespace orv
