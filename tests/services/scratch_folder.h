#pragma once

// A folder of the test's own, gone with its files at the end.

#include <afxwin.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace orv::test {

class ScratchFolder {
public:
    ScratchFolder() {
        char folder[MAX_PATH] = "";
        ::GetTempPathA(MAX_PATH, folder);
        folder_ = std::string(folder) + "orv-services-" + std::to_string(::GetCurrentProcessId());
        ::CreateDirectoryA(folder_.c_str(), NULL);
    }
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    CString path(const char* name) const { return (folder_ + "\\" + name).c_str(); }

    CString write(const char* name, std::string_view contents) const {
        const CString file = path(name);
        std::ofstream(file.GetString(), std::ios::binary).write(contents.data(), contents.size());
        return file;
    }

private:
    std::string folder_;
};

} // namespace orv::test
