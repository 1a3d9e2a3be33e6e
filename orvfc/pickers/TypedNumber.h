#pragma once

// Numbers as users type them into the fields of combos.

#include <string_view>

namespace orv {

// A decimal number, with blanks around it and a sign if one likes, and nothing else. False for everything
// else and for a number outside [low, high]; the value is then left alone.
bool parseTyped(std::string_view text, double low, double high, double& value);

// Values of pickers that are one, by the library's zero for doubles. Not-a-number is like nothing.
constexpr bool sameValue(double a, double b) {
    return a - b < 1e-6 && b - a < 1e-6;
}

} // namespace orv
