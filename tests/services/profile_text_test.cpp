// What the profile functions put into a buffer, and the line helpers.

#include <orvfc/services/OrvIniFile.h>
#include <orvfc/services/ProfileStrings.h>

#include <gtest/gtest.h>

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

namespace {

std::string readBack(std::string_view contents) {
    CMemFile file;
    file.Write(contents.data(), static_cast<UINT>(contents.size()));
    file.SeekToBegin();
    CString line = "old";
    EXPECT_TRUE(orv::readLine(&file, line));
    return std::string(line.GetString(), static_cast<size_t>(line.GetLength()));
}

} // namespace

// Not a line but the rest of the file, less its first line feed.
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
    for (const auto& row : rows)
        EXPECT_EQ(row.line, readBack(row.contents)) << row.contents;
}

TEST(LineHelpers, ReadFromWhereTheFileStands) {
    CMemFile file;
    file.Write("one\ntwo\n", 8);
    file.Seek(4, CFile::begin);
    CString line;
    EXPECT_TRUE(orv::readLine(&file, line));
    EXPECT_TRUE(line == "two");
    EXPECT_TRUE(orv::readLine(&file, line));
    EXPECT_TRUE(line.IsEmpty());
}

TEST(LineHelpers, Write) {
    CMemFile file;
    orv::writeLine(&file, "one");
    orv::writeLine(&file, "");
    orv::writeLine(&file, CString("a\0b", 3));
    char written[20] = {};
    file.SeekToBegin();
    const UINT length = file.Read(written, sizeof(written));
    EXPECT_EQ("one\r\n\r\na\0b\r\n"sv, std::string_view(written, length));
}
