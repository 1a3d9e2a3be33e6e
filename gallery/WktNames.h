#pragma once

#include "Wkt.h"

#include <string>

namespace gallery {

// A point of a well-known text and the comment behind it.
struct WktName {
    WktPoint point;
    std::string_view name; // of the text
};

// The lines "POINT(x y) # name" of a text; all others are passed over.
std::vector<WktName> namedPoints(std::string_view text);

} // namespace gallery
