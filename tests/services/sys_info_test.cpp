// What the system says about itself, and the wheel setting as the registry holds it.

#include <afxwin.h>

#include <orvfc/services/SysInfo.h>

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(SysInfo, TheProgramsDirectory) {
    const std::string path = std::string(CSysInfo::GetAppPath());
    ASSERT_FALSE(path.empty());
    EXPECT_EQ('\\', path.back());
    EXPECT_NE(INVALID_FILE_ATTRIBUTES, ::GetFileAttributesA((path + "services_test.exe").c_str()));
    EXPECT_EQ(path, std::string(CSysInfo::GetAppPathAbsolute()));
}

// None of the old ones runs these tests.
TEST(SysInfo, Releases) {
    EXPECT_FALSE(CSysInfo::IsSystemWindows95() || CSysInfo::IsSystemWindows98() ||
                 CSysInfo::IsSystemWindows200() || CSysInfo::IsSystemWindowsXP());
    EXPECT_TRUE(CSysInfo::IsMorethanWin64());
}

// Changes the setting and puts it back.
class WheelSetting {
public:
    WheelSetting() {
        ::RegCreateKeyExA(HKEY_CURRENT_USER, "Control Panel\\Desktop", 0, NULL, 0, KEY_ALL_ACCESS, NULL,
                          &key_, NULL);
        size_ = sizeof(old_);
        had_ = ::RegQueryValueExA(key_, kName, NULL, &type_, old_, &size_) == ERROR_SUCCESS;
    }
    ~WheelSetting() {
        if (had_)
            ::RegSetValueExA(key_, kName, 0, type_, old_, size_);
        else
            remove();
        ::RegCloseKey(key_);
    }
    void set(DWORD type, const std::string& bytes) {
        ::RegSetValueExA(key_, kName, 0, type, reinterpret_cast<const BYTE*>(bytes.data()),
                         DWORD(bytes.size()));
    }
    void remove() { ::RegDeleteValueA(key_, kName); }

private:
    static constexpr const char* kName = "WheelScrollLines";
    HKEY key_ = NULL;
    bool had_ = false;
    DWORD type_ = REG_SZ;
    BYTE old_[256];
    DWORD size_ = 0;
};

TEST(SysInfo, WheelLines) {
    WheelSetting setting;
    setting.remove();
    EXPECT_EQ(3u, CSysInfo::GetMouseScrollLines());
    struct {
        DWORD type;
        std::string bytes;
        UINT lines;
    } const rows[] = {
        {REG_SZ, std::string("7", 2), 7},
        {REG_SZ, "12", 12},                         // without its closing zero
        {REG_SZ, std::string("-1", 3), 0xFFFFFFFF}, // a page
        {REG_SZ, "99999999999999999999", 0xFFFFFFFF},
        {REG_SZ, std::string("0", 2), 0},
        {REG_SZ, std::string(125, ' ') + "5", 5},     // all but fills the buffer
        {REG_SZ, std::string(300, '5'), 3},           // longer than it
        {REG_DWORD, std::string("\x09\0\0\0", 4), 3}, // no text
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.bytes));
        setting.set(row.type, row.bytes);
        EXPECT_EQ(row.lines, CSysInfo::GetMouseScrollLines());
    }
}

} // namespace
