// Typing the beginning of a row's name.

#include <orvfc/pickers/NameSearch.h>

#include <gtest/gtest.h>

namespace {

const char* const kNames[] = {"红色", "绿色", "蓝色",           "蓝绿", "Black", "blue",
                              "11",   "12",   " 86 , 52 , 18 ", "",     "绿色"};

TEST(NameSearch, LeadsToTheRow) {
    const struct {
        const char* text;
        int selected, row;
    } rows[] = {
        {"蓝", -1, 2},    {"蓝", 2, 3},   {"蓝", 3, 2},     {"蓝蓝", 2, 3},  {"蓝绿", 2, 3}, {"蓝绿", 3, 3},
        {"蓝色", 3, 2},   {"绿色", 1, 1}, {"绿", 1, 10},    {"绿", 10, 1},   {"b", 0, 4},    {"B", 4, 5},
        {"bl", 5, 5},     {"bla", 5, 4},  {"1", 0, 6},      {"11", 6, 6},    {"11", 7, 6},   {"111", 6, 7},
        {"8", 0, 8},      {"86 ,", 0, 8}, {" 8", 0, 8},     {"黄", 0, -1},   {"", 0, -1},    {"红蓝", 0, -1},
        {"\xBA", -1, -1}, {"红", 99, 0},  {"blue ", 0, -1}, {"\xC2", 0, -1},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.row, orv::rowTyped(row.text, int(std::size(kNames)), row.selected,
                                         [](int i) { return kNames[i]; }))
            << row.text << " from " << row.selected;
    EXPECT_EQ(-1, orv::rowTyped("a", 0, -1, [](int) { return "a"; }));
}

TEST(NameSearch, SecondBytesAreNoLetters) {
    EXPECT_FALSE(orv::nameBegins("\x81\x61", "\x81\x41")) << "the case of a second byte";
    EXPECT_TRUE(orv::nameBegins("ABC", "ab"));
    EXPECT_FALSE(orv::nameBegins("a", "ab"));
}

} // namespace
