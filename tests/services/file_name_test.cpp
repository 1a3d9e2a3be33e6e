// File names, taken apart and looked for.

#include <afx.h>

#include <orvfc/services/FileNameParts.h>
#include <orvfc/services/GerNer.h>

#include <gtest/gtest.h>

#include <string>

#include "support/scratch_folder.h"

const std::string kLong(300, 'x');

// 誠 is D5 5C, 亅 is 81 7C: second bytes that look like a backslash and a bar.
const struct {
    std::string path, drive, directory, name, extension;
} splitRows[] = {
    {"name.txt", "", "", "name", ".txt"},
    {"C:\\a\\b.txt", "C:", "\\a\\", "b", ".txt"},
    {"C:b", "C:", "", "b", ""},
    {"C:", "C:", "", "", ""},
    {"a/b\\c/d.e", "", "a/b\\c/", "d", ".e"},
    {"archive.tar.gz", "", "", "archive.tar", ".gz"},
    {"README", "", "", "README", ""},
    {"dir.d\\README", "", "dir.d\\", "README", ""},
    {"\\\\server\\share\\f.x", "", "\\\\server\\share\\", "f", ".x"},
    {".profile", "", "", "", ".profile"},
    {"end.", "", "", "end", "."},
    {"a\\", "", "a\\", "", ""},
    {"", "", "", "", ""},
    {"ab:c", "", "", "ab:c", ""},
    {"誠.txt", "", "", "誠", ".txt"},
    {"D:\\誠\\亅.誠", "D:", "\\誠\\", "亅", ".誠"},
    {"誠", "", "", "誠", ""},
    {"\xD5", "", "", "\xD5", ""},         // half a character at the end
    {"\xD5.txt", "", "", "\xD5.txt", ""}, // a lead byte takes what follows
    {kLong, "", "", kLong.substr(0, 255), ""},
    {kLong + "\\" + kLong + "." + kLong, "", kLong.substr(0, 255), kLong.substr(0, 255),
     "." + kLong.substr(0, 254)},
    {std::string(254, 'x') + "誠", "", "", std::string(254, 'x'), ""}, // no half character
    {std::string(253, 'x') + "誠", "", "", std::string(253, 'x') + "誠", ""},
};

TEST(FileNames, Split) {
    for (const auto& row : splitRows) {
        SCOPED_TRACE(testing::PrintToString(row.path));
        const CString path(row.path.c_str());
        EXPECT_EQ(row.drive + row.directory, std::string(GetFileNamePath(path)));
        EXPECT_EQ(row.name, std::string(GetFileNameNoExtend(path)));
        EXPECT_EQ(row.extension, std::string(GetFileNameExend(path)));
        EXPECT_EQ(row.name + row.extension, std::string(GetFileNameExistExtend(path)));
    }
}

TEST(FileNames, BackslashesOfTheirOwn) {
    struct {
        const char* path;
        bool ends;
        size_t last;
    } const rows[] = {{"a\\", true, 1},
                      {"a\\b", false, 1},
                      {"誠", false, std::string::npos},
                      {"誠\\", true, 2},
                      {"", false, std::string::npos},
                      {"a\\誠", false, 1},
                      {"\\", true, 0},
                      {"/", false, std::string::npos}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.path);
        EXPECT_EQ(row.ends, orv::endsInBackslash(row.path));
        EXPECT_EQ(row.last, orv::lastBackslash(row.path));
    }
}

TEST(FileNames, Validate) {
    std::string refused;
    for (int c = 0; c < 256; ++c)
        if (!IsFileNameValidateChar(static_cast<char>(c)))
            refused += static_cast<char>(c);
    EXPECT_EQ("*/:<>?\\|", refused);

    struct {
        const char* name;
        const char* valid;
    } const rows[] = {
        {"a:b*c?.txt", "abc.txt"},
        {"a\"b\x01", "a\"b\x01"},
        {"誠亅|\\誠", "誠亅誠"},
        {"*/:<>?\\|", ""},
    };
    for (const auto& row : rows)
        EXPECT_STREQ(row.valid, GetFileNameValidate(row.name));
}

TEST(FileNames, LooksOnTheDisk) {
    const orv::test::ScratchFolder folder;
    const CString file = folder.write("file", "");
    for (const CString& none : {CString(), folder.path("none")})
        EXPECT_FALSE(IsFileExist(none) || IsDirectoryExist(none)) << none;
    EXPECT_TRUE(IsFileExist(folder.path()));
    EXPECT_TRUE(IsDirectoryExist(folder.path()));
    EXPECT_TRUE(IsFileExist(file));
    EXPECT_FALSE(IsDirectoryExist(file));
}
