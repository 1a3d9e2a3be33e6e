#include "gallery/Options.h"

#include <gtest/gtest.h>

#include <sstream>

using gallery::Options;

namespace {

// The words of a command line, split at blanks; "''" is an empty one.
bool parse(const std::string& commandLine, Options& options, std::string& message) {
    std::istringstream stream("gallery " + commandLine);
    std::vector<std::string> words;
    for (std::string word; stream >> word;)
        words.push_back(word == "''" ? "" : word);
    std::vector<char*> argv;
    for (std::string& word : words)
        argv.push_back(word.data());
    argv.push_back(nullptr);
    return gallery::parseOptions(int(words.size()), argv.data(), options, message);
}

const std::string kDraw = "--draw a --out a.png ";

TEST(Options, RefusesWithAReason) {
    const struct {
        const char* part; // of the message
        std::vector<std::string> commandLines;
    } rows[] = {
        {"needs --out", {"--draw a"}},
        {"nothing to do", {"--out a.png", "--type 3"}},
        {"stands alone",
         {"--tour d --draw a --out a.png", "--tour d --out a.png", "--window --tour d",
          "--draw a --out a.png --window"}},
        {"name of a folder", {"--tour ''"}},
        {"name of a file", {"--draw '' --out a.png"}},
        {".png or .bmp", {"--draw a --out a.jpg", "--draw a --out .png"}},
        {"one of 0", {kDraw + "--type 5", kDraw + "--type 100", kDraw + "--type 3x", kDraw + "--type ''"}},
        {"1 to 200", {kDraw + "--width 0", kDraw + "--width 201", kDraw + "--width 99999999999"}},
        {"hexadecimal",
         {kDraw + "--color red", kDraw + "--color #12345", kDraw + "--color #1234567",
          kDraw + "--color #-12345"}},
        {"width and a height",
         {kDraw + "--size 100", kDraw + "--size 0x100", kDraw + "--size 16385x1", kDraw + "--size 1x16385",
          kDraw + "--size 10x10x10"}},
        {"not an option: b", {kDraw + "b"}},
    };
    for (const auto& row : rows)
        for (const std::string& commandLine : row.commandLines) {
            SCOPED_TRACE(commandLine);
            Options options;
            std::string message;
            EXPECT_FALSE(parse(commandLine, options, message));
            EXPECT_NE(message.find(row.part), std::string::npos) << message;
        }
}

TEST(Options, StylesBelongToTheirLayer) {
    Options options;
    std::string message;
    ASSERT_TRUE(
        parse("--color #102030 --draw a --draw b --type 101 --width 8 --draw c --color aBcDeF --out p.BMP "
              "--size 16384X1 --plane",
              options, message))
        << message;
    EXPECT_EQ(options.task, Options::Task::draw);
    EXPECT_EQ(options.picture, "p.BMP");
    EXPECT_TRUE(options.pictureWidth == 16384 && options.pictureHeight == 1 && options.plane);
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
