#pragma once

// A folder of the test's own, gone with its files at the end.

#include <afx.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <string>
#include <string_view>

namespace orv::test {

class ScratchFolder {
public:
    ScratchFolder() {
        do
            folder_ = std::filesystem::temp_directory_path() /
                      ("orv-test-" + std::to_string(std::random_device()()));
        while (!std::filesystem::create_directory(folder_));
    }
    ~ScratchFolder() {
        std::error_code error;
        std::filesystem::remove_all(folder_, error);
        EXPECT_FALSE(error) << "still in use: " << folder_;
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    CString path(const char* name = "") const { return CString((folder_ / "").string().c_str()) + name; }

    CString write(const char* name, std::string_view contents) const {
        const CString file = path(name);
        std::ofstream(file.GetString(), std::ios::binary) << contents;
        return file;
    }

    std::string read(const char* name) const {
        std::ifstream file(path(name).GetString(), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::set<std::string> names() const {
        std::set<std::string> all;
        for (const auto& entry : std::filesystem::directory_iterator(folder_))
            all.insert(entry.path().filename().string());
        return all;
    }

private:
    std::filesystem::path folder_;
};

} // namespace orv::test
