#include "TypedNumber.h"

#include <charconv>

namespace orv {

bool parseTyped(std::string_view text, double low, double high, double& value) {
    const size_t first = text.find_first_not_of(' ');
    if (first == text.npos)
        return false;
    text = text.substr(first, text.find_last_not_of(' ') + 1 - first);
    if (text.front() == '+' && text.size() > 1 && text[1] != '-')
        text.remove_prefix(1);
    if (text.find_first_not_of("-.0123456789") != text.npos)
        return false; // inf and nan are words
    double typed = 0;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), typed, std::chars_format::fixed);
    if (error != std::errc() || end != text.data() + text.size() || !(typed >= low && typed <= high))
        return false;
    value = typed;
    return true;
}

} // namespace orv
