#include "gallery/Options.h"

#include <gtest/gtest.h>

#include <sstream>

using gallery::Options;

namespace {

// The words of a command line, split at blanks; "''" is an empty one.
bool parse(const std::string& commandLine, Options& options, std::string& message) {
    std::istringstream stream("gallery " + commandLine);
    std::vector<std::string> words;
    for (std::string word; stream >> word;) {
        words.push_back(word == "''" ? "" : word);
    }
    std::vector<char*> argv;
    for (std::string& word : words) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);
    return gallery::parseOptions(int(words.size()), argv.data(), options, message);
}

TEST(Options, RefusesWithAReason) {
    struct {
        const char* commandLine;
        const char* part; // of the message
    } const rows[] = {
        {"--draw a", "needs --out"},
        {"--out a.png", "nothing to do"},
        {"--type 3", "nothing to do"},
        {"--tour d --draw a --out a.png", "stands alone"},
        {"--tour d --out a.png", "stands alone"},
        {"--window --tour d", "stands alone"},
        {"--draw a --out a.png --window", "stands alone"},
        {"--tour ''", "name of a folder"},
        {"--draw '' --out a.png", "name of a file"},
        {"--draw a --out a.jpg", ".png or .bmp"},
        {"--draw a --out .png", ".png or .bmp"},
        {"--draw a --out a.png --type 5", "one of 0"},
        {"--draw a --out a.png --type 100", "one of 0"},
        {"--draw a --out a.png --type 3x", "one of 0"},
        {"--draw a --out a.png --type ''", "one of 0"},
        {"--draw a --out a.png --width 0", "1 to 200"},
        {"--draw a --out a.png --width 201", "1 to 200"},
        {"--draw a --out a.png --width 99999999999", "1 to 200"},
        {"--draw a --out a.png --color red", "hexadecimal"},
        {"--draw a --out a.png --color #12345", "hexadecimal"},
        {"--draw a --out a.png --color #1234567", "hexadecimal"},
        {"--draw a --out a.png --color #-12345", "hexadecimal"},
        {"--draw a --out a.png --size 100", "width and a height"},
        {"--draw a --out a.png --size 0x100", "width and a height"},
        {"--draw a --out a.png --size 16385x1", "width and a height"},
        {"--draw a --out a.png --size 1x16385", "width and a height"},
        {"--draw a --out a.png --size 10x10x10", "width and a height"},
        {"--draw a --out a.png b", "not an option: b"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.commandLine);
        Options options;
        std::string message;
        EXPECT_FALSE(parse(row.commandLine, options, message));
        EXPECT_NE(message.find(row.part), std::string::npos) << message;
    }
}

TEST(Options, WithoutArgumentsIsHelp) {
    for (const char* commandLine : {"", "--help", "--draw a --out a.png --help"}) {
        Options options;
        std::string message;
        EXPECT_TRUE(parse(commandLine, options, message)) << commandLine;
        EXPECT_EQ(options.task, Options::Task::help) << commandLine;
    }
}

TEST(Options, TheWindowNeedsNoMore) {
    Options options;
    std::string message;
    EXPECT_TRUE(parse("--window", options, message)) << message;
    EXPECT_EQ(options.task, Options::Task::window);
}

TEST(Options, ReadsThePicture) {
    Options options;
    std::string message;
    ASSERT_TRUE(parse("--draw a --out b.BMP --size 16384X1 --plane", options, message)) << message;
    EXPECT_EQ(options.task, Options::Task::draw);
    EXPECT_EQ(options.picture, "b.BMP");
    EXPECT_EQ(options.pictureWidth, 16384);
    EXPECT_EQ(options.pictureHeight, 1);
    EXPECT_TRUE(options.plane);
    EXPECT_EQ(options.layers.front().type, 3);
}

TEST(Options, StylesBelongToTheirLayer) {
    Options options;
    std::string message;
    ASSERT_TRUE(
        parse("--color #102030 --draw a --draw b --type 101 --width 8 --draw c --color aBcDeF --out p.png",
              options, message))
        << message;
    struct {
        const char* file;
        int type;
        int width;
        COLORREF color;
    } const rows[] = {{"a", 3, 0, 0x302010}, {"b", 101, 8, 0x302010}, {"c", 3, 0, 0xEFCDAB}};
    ASSERT_EQ(options.layers.size(), std::size(rows));
    for (size_t i = 0; i < std::size(rows); ++i) {
        EXPECT_EQ(options.layers[i].file, rows[i].file);
        EXPECT_EQ(options.layers[i].type, rows[i].type);
        EXPECT_EQ(options.layers[i].width, rows[i].width);
        EXPECT_EQ(options.layers[i].color, rows[i].color);
    }
}

} // namespace
