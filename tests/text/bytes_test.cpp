// Face names and the characters they are made of.

#include <gtest/gtest.h>

#include <string>

#include "orvfc/text/FaceName.h"

TEST(FaceName, IsCutBetweenCharacters) {
    const std::string longName(30, 'x');
    const struct {
        std::string name, kept;
    } rows[] = {
        {"", ""},
        {"宋体", "宋体"},
        {longName + "y", longName + "y"},
        {longName + "yz", longName + "y"},
        {longName + "体", longName},
        {longName.substr(1) + "体", longName.substr(1) + "体"},
        {std::string("Arial\0rest", 10), "Arial"},
        {longName + "\x81", longName + "\x81"},
    };
    for (const auto& row : rows) {
        char field[LF_FACESIZE];
        memset(field, '#', sizeof field);
        orv::copyFaceName(field, row.name);
        EXPECT_EQ(row.kept, std::string(field, sizeof field).c_str()) << row.name;
        EXPECT_EQ('\0', field[LF_FACESIZE - 1]);
    }
}

TEST(FaceName, AFieldWithoutItsZeroIsEnded) {
    char field[LF_FACESIZE];
    memset(field, 'a', sizeof field);
    orv::endFaceName(field);
    EXPECT_EQ(std::string(LF_FACESIZE - 1, 'a'), field);
}
