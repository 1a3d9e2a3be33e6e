// The readers of dates: what they accept is a date that is written and read back the same, what they refuse
// leaves the date alone.

#include <orvfc/services/DateLabels.h>

#include <stdint.h>
#include <stdlib.h>

namespace {

void check(bool good) {
    if (!good)
        abort();
}

void checkLabel(std::string_view text) {
    int day = INT32_MIN;
    if (!orv::readLabel(text, day)) {
        check(day == INT32_MIN);
        return;
    }
    check(day >= orv::kFirstDay && day <= orv::kLastDay && orv::isDate(day));
    char label[orv::kLabelRoom];
    for (const orv::DateStyle& style : orv::dateStyles()) {
        const int length = orv::formatLabel(style, orv::DateValues(day), label);
        check(length > 0 && length < orv::kLabelRoom);
        int again = INT32_MIN;
        if (style.namesYear())
            check(orv::readLabel({label, static_cast<size_t>(length)}, again) && again <= day);
    }
}

// Steps from any date that can be told, and what they lead to.
void checkNumber(std::string_view text) {
    double date = -0.5;
    if (!orv::readDateNumber(text, date)) {
        check(date == -0.5);
        return;
    }
    check(date == orv::kNoDate || orv::isDate(date));
    if (date == orv::kNoDate)
        return;
    for (int unit = 0; unit < orv::kDateUnits; ++unit) {
        const orv::DateUnit step = static_cast<orv::DateUnit>(unit);
        for (int64_t steps : {INT64_C(0), INT64_C(1), INT64_C(-1), INT64_C(1) << 31, -(INT64_C(1) << 31)}) {
            const double boundary = orv::stepBoundary(step, steps, date);
            check(boundary == orv::kNoDate || boundary == -orv::kNoDate || orv::isDate(boundary));
        }
        for (double other : {-657434.0, 0.0, 2958465.5}) {
            check(orv::countBoundaries(step, date, other) * (other > date ? 1 : -1) >= 0);
            check(orv::countBoundaries(step, other, date) * (date > other ? 1 : -1) >= 0);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view text = orv::trimBlanks({reinterpret_cast<const char*>(data), size});
    checkLabel(text);
    checkNumber(text);
    return 0;
}
