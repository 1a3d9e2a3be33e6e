// Text bytes and a measure in, lines out.

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "plain_break.h"

using namespace orv;
using orv::test::MadeUpFont;
using orv::test::plainLines;

namespace {

using Lines = std::vector<std::string>;

Lines brokenLines(std::string_view text, BreakKind kind, const BreakRules& rules) {
    MadeUpFont font;
    LineBreaker breaker(text, kind, rules, font.measure());
    Lines lines;
    for (TextLine line; breaker.next(line);)
        lines.push_back(std::string(text.substr(line.start, line.count)));
    return lines;
}

constexpr BreakRules kFeed = {28, false, true, false}, kPlain = {28, false, false, false},
                     kClip = {28, false, false, true}, kSingle = {28, true, true, false};

struct Row {
    const char* name;
    std::string_view text;
    BreakRules rules;
    Lines lines;
};

// The odd ones; all others are those of the plain way, below.
TEST(LineBreak, Runs) {
    const Row rows[] = {
        {"one too many", "abcde", kFeed, {"abcd", "e"}},
        {"a pair is not parted", "abc中d", kFeed, {"abc", "中d"}},
        {"a line feed alone is text", "ab\ncd", kFeed, {"ab\ncd"}},
        {"returns count one by one", "a\r\r\n\nb", kFeed, {"a", "", "\nb"}},
        {"lone lead byte at the end", "ab\xD6", kFeed, {"ab\xD6"}},
        {"a lead byte takes the return behind it", "a\xD6\r\nb", kFeed, {"a\xD6\r\nb"}},
        {"narrower than a character", "a中\r\nb", {5, false, true, false}, {"a", "中", "b"}},
        {"without line feed the rest is one line", "abcdef\r\ngh", kPlain, {"abcdef\r\ngh"}},
        {"clipped, and nothing behind", "ab\rabcdef\rgh", kClip, {"ab", "abcd"}},
        {"a single line that does not runs on", "abcde\rf", kSingle, {"abcde\rf"}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(row.lines, brokenLines(row.text, BreakKind::runs, row.rules)) << row.name;
}

TEST(LineBreak, SingleTexts) {
    const Row rows[] = {
        {"broken", "abcde", kFeed, {"abcd", "e"}},
        {"a backspace ends a line", "ab\bcd", kFeed, {"ab", "cd"}},
        {"backspaces side by side", "a\b\bb", kFeed, {"a", "", "b"}},
        {"returns part texts", "ab\r\ncd\re", kFeed, {"ab", "cd", "e"}},
        {"too wide alone", "中b", {5, false, true, false}, {"中", "b"}},
        {"too wide alone, clipped", "a中b", {8, false, true, true}, {"a", ""}},
        {"clipping keeps the crossing character and nothing behind", "abcdefg\rh", kClip, {"abcde"}},
        {"neither: as wide as it is", "abcdefg\rh\bi", kPlain, {"abcdefg", "h", "i"}},
        {"single", "abcdefg\rh", kSingle, {"abcdefg"}},
        {"single up to a backspace", "abcdef\bg", kSingle, {"abcdef"}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(row.lines, brokenLines(row.text, BreakKind::singleTexts, row.rules)) << row.name;
}

TEST(LineBreak, EndsTheTextAtItsFirstZero) {
    EXPECT_EQ("ab", drawnText(std::string_view("ab\0cd", 5)));
    EXPECT_EQ("", drawnText(std::string_view("\0cd", 3)));
}

std::string randomText(std::mt19937& random, size_t length) {
    static const char pieces[] = "ai\r\n\b\xD6\xD0\x80\x01 ";
    std::string text;
    while (text.size() < length)
        text += pieces[random() % (sizeof(pieces) - 1)];
    return text;
}

TEST(LineBreak, IsThatOfPrefixesMeasuredOneByOne) {
    const unsigned seed = std::random_device()();
    std::mt19937 random(seed);
    for (int round = 0; round < 3000; ++round) {
        const std::string text = randomText(random, random() % 300);
        const BreakRules rules = {int(random() % 900) - 20, random() % 4 == 0, random() % 2 == 0,
                                  random() % 2 == 0};
        MadeUpFont font;
        LineBreaker breaker(text, BreakKind::runs, rules, font.measure());
        TextLine line;
        for (const TextLine& expected : plainLines(text, rules)) {
            ASSERT_TRUE(breaker.next(line)) << "seed " << seed << " round " << round;
            ASSERT_EQ(expected.start, line.start) << "seed " << seed << " round " << round;
            ASSERT_EQ(expected.count, line.count) << "seed " << seed << " round " << round;
            ASSERT_EQ(expected.extent, line.extent) << "seed " << seed << " round " << round;
        }
        ASSERT_FALSE(breaker.next(line)) << "seed " << seed << " round " << round;
    }
}

TEST(LineBreak, MeasuresEachByteAFewTimes) {
    const std::string text(40000, 'a');
    for (const BreakKind kind : {BreakKind::runs, BreakKind::singleTexts})
        for (const int width : {7, 70, 700, 7000, 1000000}) {
            MadeUpFont font;
            LineBreaker breaker(text, kind, {width, false, true, false}, font.measure());
            size_t lines = 0;
            for (TextLine line; breaker.next(line);)
                ++lines;
            EXPECT_LT(font.measured, 4 * text.size() + 40 * lines) << width;
        }
}

} // namespace
