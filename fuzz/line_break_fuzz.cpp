// Lines of any bytes: those of prefixes measured one by one, every byte at most once, and an end.

#include <stdint.h>
#include <stdlib.h>

#include "tests/text/plain_break.h"

namespace {

void check(bool good) {
    if (!good)
        abort();
}

void checkOrder(std::string_view text, orv::BreakKind kind, const orv::BreakRules& rules) {
    orv::test::MadeUpFont font;
    orv::LineBreaker breaker(text, kind, rules, font.measure());
    size_t behind = 0, lines = 0;
    for (orv::TextLine line; breaker.next(line); ++lines) {
        check(line.start >= behind && line.start + line.count <= text.size());
        behind = line.start + line.count;
        check(line.extent == font.extent(text.substr(line.start, line.count)));
    }
    check(lines <= text.size() && font.measured <= 8 * text.size() + 200 * lines);
}

} // namespace

// The first byte is the rules, the second the width in sevenths; the rest is the text.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 2)
        return 0;
    const orv::BreakRules rules = {data[1] * 7 - 14, (data[0] & 1) != 0, (data[0] & 2) != 0,
                                   (data[0] & 4) != 0};
    const std::string_view text(reinterpret_cast<const char*>(data + 2), size - 2);
    for (const orv::BreakKind kind : {orv::BreakKind::runs, orv::BreakKind::singleTexts})
        checkOrder(text, kind, rules);
    orv::test::MadeUpFont font;
    orv::LineBreaker breaker(text, orv::BreakKind::runs, rules, font.measure());
    orv::TextLine line;
    for (const orv::TextLine& expected : orv::test::plainLines(text.substr(0, 600), rules)) {
        if (text.size() > 600)
            break;
        check(breaker.next(line) && line.start == expected.start && line.count == expected.count &&
              line.extent == expected.extent);
    }
    return 0;
}
