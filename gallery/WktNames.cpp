#include "WktNames.h"

#include <cstdio>

namespace gallery {

std::vector<WktName> namedPoints(std::string_view text) {
    std::vector<WktName> names;
    for (size_t at = 0; at < text.size();) {
        const std::string_view line = text.substr(at, text.find('\n', at) - at);
        at += line.size() + 1;
        const size_t mark = line.find("# ");
        if (mark == std::string_view::npos)
            continue;
        WktName found = {{}, line.substr(mark + 2)};
        if (!found.name.empty() && found.name.back() == '\r')
            found.name.remove_suffix(1);
        const std::string geometry(line.substr(0, mark));
        if (std::sscanf(geometry.c_str(), "POINT(%lf %lf)", &found.point.x, &found.point.y) == 2 &&
            !found.name.empty())
            names.push_back(found);
    }
    return names;
}

} // namespace gallery
