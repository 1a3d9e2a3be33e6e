// The INI reader on real files.

#include <orvfc/services/OrvIniReader.h>

#include <gtest/gtest.h>

#include "support/scratch_folder.h"

using namespace std::string_view_literals;

namespace {

class IniReader : public testing::Test {
protected:
    orv::test::ScratchFolder folder_;
};

std::string joined(const CStringList* list) {
    std::string all;
    for (POSITION pos = list->GetHeadPosition(); pos != NULL;)
        all += std::string(list->GetNext(pos).GetString()) + "|";
    return all;
}

} // namespace

TEST_F(IniReader, ReadsKeysAndSections) {
    COrvIniReader ini(folder_.write(
        "a.ini", "[One]\r\nKey=value\r\nkey=second\r\n[空]\r\n名=誠\r\n[Empty]\r\n[one]\r\nz=1"));
    EXPECT_TRUE(ini.GetKeyValue("KEY", "ONE") == "value");
    EXPECT_EQ(5, ini.m_lRetValue);
    EXPECT_TRUE(ini.GetKeyValue("名", "空") == "誠");
    EXPECT_EQ(2, ini.m_lRetValue);
    EXPECT_TRUE(ini.GetKeyValue("none", "One").IsEmpty());
    EXPECT_EQ(0, ini.m_lRetValue);
    EXPECT_TRUE(ini.SectionExists("one"));
    EXPECT_FALSE(ini.SectionExists("Empty"));
    EXPECT_FALSE(ini.SectionExists("none"));
    for (int twice = 0; twice < 2; ++twice) {
        EXPECT_EQ("One|空|Empty|one|", joined(ini.GetSectionNames()));
        EXPECT_EQ("Key=value|key=second|", joined(ini.GetSectionData("One")));
    }
    EXPECT_EQ(ini.m_pSectionNames, ini.GetSectionNames());
    EXPECT_EQ("", joined(ini.GetSectionData("Empty")));
}

TEST_F(IniReader, WritesKeys) {
    COrvIniReader ini;
    EXPECT_TRUE(ini.m_strFileName.IsEmpty());
    ini.SetINIFileName(folder_.path("亅誠.ini")); // second bytes that look like a bar and a backslash
    EXPECT_NE(0, ini.SetKey("值 1", "键", "节"));
    EXPECT_NE(0, ini.m_lRetValue);
    EXPECT_NE(0, ini.SetKey("2", "键", "节"));
    EXPECT_TRUE(ini.GetKeyValue("键", "节") == "2");
    EXPECT_EQ("键=2|", joined(ini.GetSectionData("节")));
    ini.SetINIFileName(folder_.path("none\\none.ini"));
    EXPECT_FALSE(ini.SectionExists("s"));
    EXPECT_TRUE(ini.GetSectionNames()->IsEmpty());
    EXPECT_EQ(0, ini.SetKey("1", "k", "s"));
    EXPECT_EQ(0, ini.m_lRetValue);
}

// Cut at 254 bytes, but not inside a character.
TEST_F(IniReader, LongValues) {
    const std::string ascii(254, 'x');
    std::string chinese;
    for (int i = 0; i < 150; ++i)
        chinese += "中";
    COrvIniReader ini(folder_.write("a.ini", "[s]\r\na=" + ascii + "\r\nb=" + ascii + "yy\r\nc=" + chinese +
                                                 "\r\nd=x" + chinese + "\r\n"));
    EXPECT_TRUE(ini.GetKeyValue("a", "s") == ascii.c_str());
    EXPECT_TRUE(ini.GetKeyValue("b", "s") == ascii.c_str());
    EXPECT_TRUE(ini.GetKeyValue("c", "s") == chinese.substr(0, 254).c_str());
    EXPECT_TRUE(ini.GetKeyValue("d", "s") == ("x" + chinese.substr(0, 252)).c_str());
}

// Listings hold 1998 bytes; what does not fit whole is left out.
TEST_F(IniReader, LongListings) {
    std::string contents, listed[2];
    const auto write = [&](std::string& whatFits, const std::string& text, const std::string& line) {
        contents += line + "\r\n";
        if (whatFits.size() + text.size() < 1998)
            whatFits += text + "|";
    };
    for (int i = 0; i < 1000; ++i)
        write(listed[0], "section" + std::to_string(i), "[section" + std::to_string(i) + "]");
    contents += "[long]\r\n";
    for (int i = 0; i < 100000; ++i) {
        const std::string line = "key" + std::to_string(i) + "=" + std::to_string(i);
        write(listed[1], line, line);
    }
    COrvIniReader ini(folder_.write("a.ini", contents));
    EXPECT_EQ(listed[0], joined(ini.GetSectionNames()));
    EXPECT_EQ(1998, ini.m_lRetValue);
    EXPECT_EQ(listed[1], joined(ini.GetSectionData("long")));
    EXPECT_EQ(1998, ini.m_lRetValue);
    EXPECT_TRUE(ini.SectionExists("long"));
    EXPECT_TRUE(ini.GetKeyValue("key99999", "long") == "99999");
}

TEST_F(IniReader, OddFiles) {
    // Whether the first section is found behind a byte order mark is the system's affair.
    COrvIniReader ini = folder_.write("bom.ini", "\xEF\xBB\xBF[first]\r\na=1\r\n[second]\r\nb=2");
    EXPECT_NE(std::string::npos, joined(ini.GetSectionNames()).find("second|"));
    EXPECT_TRUE(ini.GetKeyValue("b", "second") == "2"); // no newline at the end
    std::string binary;
    for (int i = 0; i < 70000; ++i)
        binary += static_cast<char>(i * 7 + i / 256);
    ini.SetINIFileName(folder_.write("binary.ini", binary));
    ini.GetSectionNames();
    ini.GetSectionData("s");
    EXPECT_TRUE(ini.GetKeyValue("b", "second").IsEmpty());
    ini.SetINIFileName(folder_.write("zeros.ini", "[s]\r\na=1\0\r\nb=2\r\n"sv));
    ini.GetSectionData("s");
    EXPECT_TRUE(::HeapValidate(::GetProcessHeap(), 0, NULL));
}

TEST_F(IniReader, CopiesHaveTheirOwnLists) {
    COrvIniReader ini(folder_.write("a.ini", "[s]\r\na=1\r\n"));
    ini.GetSectionNames();
    ini.GetSectionData("s");
    COrvIniReader copy(ini), assigned;
    assigned.m_pSectionNames->AddTail("old");
    assigned = ini;
    assigned = *&assigned;
    for (const COrvIniReader* reader : {&copy, &assigned}) {
        EXPECT_NE(ini.m_pSectionNames, reader->m_pSectionNames);
        EXPECT_NE(ini.m_pSectionData, reader->m_pSectionData);
        EXPECT_EQ("s|", joined(reader->m_pSectionNames));
        EXPECT_EQ("a=1|", joined(reader->m_pSectionData));
        EXPECT_TRUE(reader->m_strFileName == ini.m_strFileName);
        EXPECT_EQ(ini.m_lRetValue, reader->m_lRetValue);
    }
}
