// What the profile functions put into a buffer, and the line helpers.

#include <orvfc/services/OrvIniFile.h>
#include <orvfc/services/ProfileStrings.h>

#include <gtest/gtest.h>

#include "afx/afx_test.h"

using namespace std::string_view_literals;

TEST(ProfileText, SplitsAtZeros) {
    struct {
        std::string_view buffer;
        std::vector<std::string> strings;
    } const rows[] = {
        {""sv, {}},
        {"\0"sv, {}},
        {"one\0"sv, {"one"}},
        {"one\0two\0"sv, {"one", "two"}},
        {"one\0\0\0two\0\0"sv, {"one", "two"}},
        {"one\0two"sv, {"one"}}, // cut
        {"one"sv, {}},
        {"k=\0 \0"sv, {"k=", " "}},
        {"\xD5\x5C\0\xB0\0"sv, {"\xD5\x5C", "\xB0"}}, // a lead byte takes no zero with it
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.strings, orv::splitProfileStrings(row.buffer)) << row.buffer;
}

TEST(ProfileText, ValuesOfFullBuffers) {
    struct {
        std::string_view text;
        size_t room;
        std::string_view value;
    } const rows[] = {
        {"", 1, ""},
        {"ab", 3, "ab"},
        {"\xD6\xD0", 3, "\xD6\xD0"},
        {"a\xD6\xD0\xCE", 5, "a\xD6\xD0"},
        {"a\xD6\xD0\xCE", 6, "a\xD6\xD0\xCE"}, // not cut: the system gave it so
        {"\xCE", 2, ""},
        {"a\x80", 3, "a\x80"},
        {"a\xFF", 3, "a\xFF"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.value, orv::profileValue(row.text, row.room)) << row.text << " " << row.room;
}

// Not a line but the rest of the file from where it stands, less its first line feed.
TEST(LineHelpers, ReadTheRestOfTheFile) {
    struct {
        std::string_view contents, line;
    } const rows[] = {
        {"", ""},
        {"one", "one"},
        {"one\r\ntwo\r\nthree", "one\rtwo\r\nthree"},
        {"\n", ""},
        {"\n\n", "\n"},
        {"a\rb", "a\rb"},
        {"a\0b"sv, "a\0b"sv},
        {"\xEF\xBB\xBFx\n", "\xEF\xBB\xBFx"},
    };
    for (const auto& row : rows) {
        CMemFile file;
        file.Write("before", 6);
        file.Write(row.contents.data(), static_cast<UINT>(row.contents.size()));
        file.Seek(6, CFile::begin);
        CString line = "old";
        EXPECT_TRUE(orv::readLine(&file, line)) << row.contents;
        EXPECT_EQ(row.line, orv::test::bytesOf(line)) << row.contents;
        EXPECT_TRUE(orv::readLine(&file, line)) << row.contents;
        EXPECT_TRUE(line.IsEmpty()) << row.contents;
    }
}

TEST(LineHelpers, Write) {
    CMemFile file;
    orv::writeLine(&file, "one");
    orv::writeLine(&file, "");
    orv::writeLine(&file, CString("a\0b", 3));
    EXPECT_EQ("one\r\n\r\na\0b\r\n"sv, orv::test::contentsOf(file));
}
