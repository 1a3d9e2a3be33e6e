#include "ResizeShares.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace orv {
namespace {

using std::int64_t;

int saturated(int64_t value) {
    constexpr int64_t lowest = std::numeric_limits<int>::min();
    constexpr int64_t highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, lowest, highest));
}

bool sharesFit(int place, int extent, int parts) {
    return place >= 0 && extent >= 0 && static_cast<int64_t>(place) + extent <= parts;
}

} // namespace

bool areShares(const ResizeFour& shares, int parts) {
    return sharesFit(shares.left, shares.width, parts) && sharesFit(shares.top, shares.height, parts);
}

bool calcValue(int delta, int share, int parts, int& remainder, int& value, bool isSize) {
    if (share < 1) {
        return false;
    }
    const int64_t total = static_cast<int64_t>(delta) * share + remainder;
    if (total == 0) {
        // The remainder is used up. Left standing it would eat the same step again and again.
        remainder = 0;
        return false;
    }
    int64_t moved = value + total / parts;
    int64_t rest = total % parts;
    if (isSize && moved < 0) {
        rest += moved * parts;
        moved = 0;
    }
    value = saturated(moved);
    remainder = saturated(rest);
    return true;
}

bool moveByShares(int dx, int dy, const ResizeFour& shares, int parts, ResizeFour& remainders,
                  ResizeFour& box) {
    // Each of the four takes its share, whatever the others did.
    bool changed = calcValue(dx, shares.left, parts, remainders.left, box.left, false);
    changed |= calcValue(dx, shares.width, parts, remainders.width, box.width, true);
    changed |= calcValue(dy, shares.top, parts, remainders.top, box.top, false);
    changed |= calcValue(dy, shares.height, parts, remainders.height, box.height, true);
    return changed;
}

} // namespace orv
