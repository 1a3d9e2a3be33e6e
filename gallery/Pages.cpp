#include "Pages.h"

namespace gallery {

std::span<const Page> pages() {
    static const Page all[] = {
        {"线型", createLinePage},
    };
    return all;
}

} // namespace gallery
