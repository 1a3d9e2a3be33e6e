// Settings against the bare calls: a list of strings in the registry, a key of an INI file.

#include "harness.h"

#include <orvfc/services/OrvIniReader.h>
#include <orvfc/services/OrvRegister.h>

#include <string>
#include <vector>

namespace {

constexpr int kStrings = 100;

// A key and a file of this process's own, made when they are first asked for and gone at the end.
class Settings {
public:
    Settings() : path_("Software\\ORVFC-bench-" + std::to_string(::GetCurrentProcessId())), store_(0, 0) {
        store_.Open(path_.c_str(), TRUE);
        for (int i = 0; i < kStrings; ++i) {
            CString text;
            text.Format("D:\\drawings\\sheet %d.dwg", i);
            list_.AddTail(text);
        }
        store_.Write("list", list_);
        unsigned char* pData = NULL;
        unsigned int nSize = 0;
        if (store_.Read("list", &pData, &nSize))
            bytes_.assign(pData, pData + nSize);
        delete[] pData;

        char folder[MAX_PATH] = "";
        ::GetTempPathA(MAX_PATH, folder);
        iniFile_ = CString(folder) + "orv-bench.ini";
        for (int i = 0; i < kStrings; ++i) {
            CString key;
            key.Format("key%d", i);
            ::WritePrivateProfileStringA("section", key, "the value of a key", iniFile_);
        }
    }
    ~Settings() {
        store_.Close();
        ::RegDeleteTreeA(HKEY_CURRENT_USER, path_.c_str());
        ::DeleteFileA(iniFile_);
    }
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;

    static Settings& the() {
        static Settings settings;
        return settings;
    }

    void writeList(int times) {
        while (times--)
            orv::bench::keep(store_.Write("list", list_));
    }
    void writeBytes(int times) {
        while (times--)
            orv::bench::keep(::RegSetValueExA(store_.m_hKey, "bytes", 0, REG_BINARY, bytes_.data(),
                                              static_cast<DWORD>(bytes_.size())));
    }
    void readList(int times) {
        while (times--) {
            CStringList list;
            store_.Read("list", list);
            orv::bench::keep(static_cast<double>(list.GetCount()));
        }
    }
    void readBytes(int times) {
        while (times--) {
            BYTE block[4096];
            DWORD dwType = 0, dwSize = sizeof(block);
            ::RegQueryValueExA(store_.m_hKey, "list", NULL, &dwType, block, &dwSize);
            orv::bench::keep(block[dwSize - 1]);
        }
    }
    void readKey(int times) {
        COrvIniReader ini(iniFile_);
        const CString key("key50"), section("section");
        while (times--)
            orv::bench::keep(ini.GetKeyValue(key, section).GetLength());
    }
    void readKeyBare(int times) {
        while (times--) {
            char value[255];
            orv::bench::keep(
                ::GetPrivateProfileStringA("section", "key50", "", value, sizeof(value), iniFile_));
        }
    }

private:
    std::string path_;
    COrvRegister store_;
    CStringList list_;
    std::vector<BYTE> bytes_;
    CString iniFile_;
};

orv::bench::Work work(void (Settings::*member)(int)) {
    return [=](int times) { (Settings::the().*member)(times); };
}

const orv::bench::Rows rows([](orv::bench::Suite& suite) {
    const char* group = "settings, against the bare calls";
    suite.add(
        {group, "100 strings to the registry", 1.2, work(&Settings::writeList), work(&Settings::writeBytes)});
    suite.add(
        {group, "100 strings from the registry", 1.2, work(&Settings::readList), work(&Settings::readBytes)});
    suite.add({group, "a key from an INI file", 1.1, work(&Settings::readKey), work(&Settings::readKeyBare)});
});

} // namespace
