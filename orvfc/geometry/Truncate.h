#pragma once

#include <limits.h>

namespace orv {

// The one way from a coordinate to a whole unit: truncation toward zero. Values beyond the range of int
// (infinities included) stop at its ends, not-a-number gives 0, so that no input is undefined behaviour.
constexpr int truncToInt(double value) {
    if (value >= INT_MAX)
        return INT_MAX;
    if (value <= INT_MIN)
        return INT_MIN;
    return value == value ? static_cast<int>(value) : 0;
}

} // namespace orv
