#include "Sheets.h"

namespace gallery {

std::span<const Sheet> sheets() {
    static const Sheet all[] = {
        {"lines", 1280, 1160, drawLineSheet},
    };
    return all;
}

} // namespace gallery
