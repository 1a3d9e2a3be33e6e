// Version information of real modules, and of modules whose version block is not what it should be.

#include <orvfc/services/COrvVersion.h>

#include <gtest/gtest.h>

#include "afx/afx_test.h"
#include "support/scratch_folder.h"
#include "version_block.h"

using orv::test::versionBlock;
using orv::test::VersionNode;
using orv::test::wideText;

namespace {

class Version : public testing::Test {
protected:
    // A copy of a small module with this version block in place of its own.
    CString moduleWith(const char* name, const std::vector<BYTE>& block) const {
        const CString file = folder_.path(name);
        EXPECT_TRUE(::CopyFileA("orvmathfunc.dll", file, FALSE));
        const HANDLE update = ::BeginUpdateResourceA(file, TRUE);
        EXPECT_TRUE(update != NULL);
        EXPECT_TRUE(::UpdateResourceA(update, reinterpret_cast<LPCSTR>(RT_VERSION), MAKEINTRESOURCEA(1),
                                      0x0804, const_cast<BYTE*>(block.data()),
                                      static_cast<DWORD>(block.size())));
        EXPECT_TRUE(::EndUpdateResourceA(update, FALSE));
        return file;
    }
    COrvVersion versionOf(const std::vector<BYTE>& block) const {
        return COrvVersion(moduleWith("誠.dll", block));
    }

    orv::test::ScratchFolder folder_;
};

} // namespace

TEST_F(Version, OfTheLibrary) {
    const COrvVersion version("ORVFC.dll");
    EXPECT_EQ(1, version.m_bVersionRead);
    EXPECT_EQ(1, version.m_bFileTimeRead);
    EXPECT_TRUE(version.m_Info.strFilePath == "ORVFC.dll");
    EXPECT_TRUE(version.m_Info.strProductName == "ORVFC");
    EXPECT_TRUE(version.m_Info.strOriginalFileName == "ORVFC.dll");
    EXPECT_TRUE(version.m_Info.strFileType == "Dynamic link library");
    EXPECT_TRUE(version.m_Info.strFileOS == "Win32 API on Windows NT");
    EXPECT_TRUE(version.m_Info.strComments.IsEmpty());
    EXPECT_EQ(MAKELONG(0x0804, 936), static_cast<LONG>(version.m_dwTranslation));
    EXPECT_EQ(0xFEEF04BDu, version.m_FixedInfo.dwSignature);
    EXPECT_EQ(version.m_FixedInfo.dwFileVersionMS, version.m_dwFileVersionMS);
    CString numbers;
    numbers.Format("%d.%d.%d", HIWORD(version.m_dwProductVersionMS), LOWORD(version.m_dwProductVersionMS),
                   HIWORD(version.m_dwProductVersionLS));
    EXPECT_TRUE(version.m_Info.strProductVersion == numbers);
}

// The program itself: the path stands there whether or not it has a version resource.
TEST_F(Version, OfTheRunningProgram) {
    char path[MAX_PATH] = "";
    ::GetModuleFileNameA(NULL, path, MAX_PATH);
    const COrvVersion version;
    EXPECT_TRUE(version.m_Info.strFilePath == path);
    EXPECT_EQ(1, version.m_bFileTimeRead);
    EXPECT_TRUE(COrvVersion(CString()).m_Info.strFilePath == path);
}

TEST_F(Version, EveryText) {
    const char* const keys[] = {"Comments",     "CompanyName",    "FileDescription", "FileVersion",
                                "InternalName", "LegalCopyright", "LegalTrademarks", "OriginalFilename",
                                "PrivateBuild", "ProductName",    "ProductVersion",  "SpecialBuild"};
    orv::test::VersionTexts texts;
    for (const char* key : keys)
        texts.push_back({key, std::string(1, static_cast<char>('a' + texts.size()))});
    texts.back().second = "";
    const COrvVersion version = versionOf(versionBlock(0x0409, 1200, texts).bytes());
    ASSERT_EQ(1, version.m_bVersionRead);
    const tagVersionInformation& info = version.m_Info;
    const CString all = info.strComments + info.strCompanyName + info.strFileDescription +
                        info.strFileVersion + info.strInternalName + info.strLegalCopyright +
                        info.strLegalTrademarks + info.strOriginalFileName + info.strPrivateBuild +
                        info.strProductName + info.strProductVersion + info.strSpecialBuild;
    EXPECT_TRUE(all == "abcdefghijk") << all.GetString();
    EXPECT_TRUE(info.strReserved1.IsEmpty() && info.strReserved2.IsEmpty());
    EXPECT_EQ(0x04B00409u, version.m_dwTranslation);
    EXPECT_EQ(0x10002u, version.m_dwFileVersionMS);
    EXPECT_EQ(0x30004u, version.m_dwFileVersionLS);
    EXPECT_EQ(0x50006u, version.m_dwProductVersionMS);
    EXPECT_EQ(0x70008u, version.m_dwProductVersionLS);
}

// As far as the flags tell, and no further.
TEST_F(Version, ModulesThatAreNone) {
    const COrvVersion missing(folder_.path("none.dll"));
    EXPECT_EQ(0, missing.m_bVersionRead);
    EXPECT_EQ(0, missing.m_bFileTimeRead);
    const CString text = folder_.write("text.dll", "MZ this is no module");
    const COrvVersion other(text);
    EXPECT_EQ(0, other.m_bVersionRead);
    EXPECT_EQ(1, other.m_bFileTimeRead);
    EXPECT_TRUE(other.m_Info.strFilePath == text);
    EXPECT_TRUE(other.m_Info.strFileVersion.IsEmpty());
    EXPECT_EQ(0, COrvVersion(folder_.path()).m_bFileTimeRead); // a folder
    EXPECT_EQ(0, COrvVersion(CString('x', 40000)).m_bVersionRead);
}

TEST_F(Version, FileTimes) {
    const CString file = folder_.write("times.txt", "x");
    const FILETIME times[] = {{1, 0x1C00000}, {2, 0x1C10000}, {3, 0x1C20000}};
    const HANDLE handle = ::CreateFileA(file, GENERIC_WRITE, 0, NULL, OPEN_EXISTING, 0, NULL);
    ASSERT_TRUE(::SetFileTime(handle, &times[0], &times[1], &times[2]));
    ::CloseHandle(handle);
    const COrvVersion version(file);
    ASSERT_EQ(1, version.m_bFileTimeRead);
    // As the system keeps them: it may round, and count the reading just done as an access.
    FILETIME kept[3];
    const HANDLE again = ::CreateFileA(file, GENERIC_READ, 0, NULL, OPEN_EXISTING, 0, NULL);
    ASSERT_TRUE(::GetFileTime(again, &kept[0], &kept[1], &kept[2]));
    ::CloseHandle(again);
    EXPECT_EQ(0x1C20000u, version.m_ftLastWrite.dwHighDateTime);
    EXPECT_EQ(0, ::CompareFileTime(&kept[0], &version.m_ftCreation));
    EXPECT_EQ(0, ::CompareFileTime(&kept[1], &version.m_ftLastAccess));
    EXPECT_EQ(0, ::CompareFileTime(&kept[2], &version.m_ftLastWrite));
}

TEST_F(Version, TranslationNamesNoBlock) {
    VersionNode block = versionBlock(0x0804, 936, {{"FileVersion", "1.2"}});
    block.children[1].children[0].value = {0x11, 0x22, 0x33, 0x44};
    const COrvVersion version = versionOf(block.bytes());
    EXPECT_EQ(1, version.m_bVersionRead);
    EXPECT_EQ(0x44332211u, version.m_dwTranslation);
    EXPECT_TRUE(version.m_Info.strFileVersion.IsEmpty());
    EXPECT_TRUE(version.m_Info.strFileType == "Dynamic link library");
}

TEST_F(Version, TranslationMissingOrShort) {
    VersionNode block = versionBlock(0x0804, 936, {{"FileVersion", "1.2"}});
    block.children[1].children[0].value = {0x04, 0x08};
    for (int i = 0; i < 2; ++i) {
        const COrvVersion version = versionOf(block.bytes());
        EXPECT_EQ(0, version.m_bVersionRead) << i;
        EXPECT_EQ(1, version.m_bFileTimeRead) << i;
        EXPECT_EQ(0x10002u, version.m_FixedInfo.dwFileVersionMS) << i;
        EXPECT_EQ(0u, version.m_dwFileVersionMS) << i;
        EXPECT_TRUE(version.m_Info.strFileType.IsEmpty()) << i;
        block.children.pop_back();
    }
}

TEST_F(Version, FixedNumbersMissingOrShort) {
    VersionNode block = versionBlock(0x0804, 936, {{"FileVersion", "1.2"}});
    for (const size_t length : {48, 0}) {
        block.value.resize(length);
        const COrvVersion version = versionOf(block.bytes());
        EXPECT_EQ(0, version.m_bVersionRead) << length;
        EXPECT_EQ(0u, version.m_FixedInfo.dwSignature) << length;
    }
}

TEST_F(Version, UnlistedNumbersHaveNoText) {
    const COrvVersion version = versionOf(
        versionBlock(0x0804, 936, {}, {0xFEEF04BD, 0x10000, 0, 0, 0, 0, 0, 0, 0x50000, 3, 10, 0, 0}).bytes());
    EXPECT_EQ(1, version.m_bVersionRead);
    EXPECT_TRUE(version.m_Info.strFileOS.IsEmpty());
    EXPECT_TRUE(version.m_Info.strFileType.IsEmpty());
}

// The head promises more than is there: the system, which would look there, is not asked.
TEST_F(Version, ABlockThatLies) {
    std::vector<BYTE> block = versionBlock(0x0804, 936, {{"FileVersion", "1.2"}}).bytes();
    EXPECT_EQ(1, versionOf(block).m_bVersionRead);
    block[0] = block[1] = 0xFF;
    EXPECT_EQ(0, versionOf(block).m_bVersionRead);
}

// A text that is not closed, and whose length lies, ends within the block.
TEST_F(Version, TextsThatAreNotClosed) {
    VersionNode block = versionBlock(0x0804, 936, {{"Comments", "x"}});
    std::swap(block.children[0], block.children[1]); // the text at the very end
    block.children[1].children[0].children[0].value = wideText(std::string(50, 'y'), false);
    const COrvVersion version = versionOf(block.bytes());
    EXPECT_EQ(1, version.m_bVersionRead);
    EXPECT_TRUE(version.m_Info.strComments.Left(50) == CString('y', 50));
    EXPECT_LT(version.m_Info.strComments.GetLength(), 60);
}

// The first difference decides, in this order.
TEST_F(Version, Compare) {
    COrvVersion version("ORVFC.dll");
    version.m_Info.strProductVersion = "1.2.10";
    version.m_Info.strFileVersion = "2";
    version.m_Info.strSpecialBuild = "3";
    version.m_Info.strPrivateBuild = "";
    EXPECT_EQ(0, version.CompareVersion("1,2,10", "2", "3", ""));
    EXPECT_GT(version.CompareVersion("1.2.9", "9", "9", "9"), 0);
    EXPECT_LT(version.CompareVersion("1.2.10", "3", "1", ""), 0);
    EXPECT_GT(version.CompareVersion("1.2.10", "2", "1", "9"), 0);
    EXPECT_LT(version.CompareVersion("1.2.10", "2", "3", "1"), 0);
}

TEST_F(Version, CopiesAndDump) {
    const COrvVersion version("ORVFC.dll");
    COrvVersion copy("none.dll");
    copy = version;
    EXPECT_EQ(1, copy.m_bVersionRead);
    EXPECT_TRUE(copy.m_Info.strProductName == "ORVFC");
    EXPECT_NE(std::string::npos, orv::test::dumped(copy).find("ORVFC"));
}
