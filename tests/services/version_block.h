#pragma once

// Builds version blocks, so that they can be spoilt.

#include <afx/wintypes.h>

#include <string>
#include <stdio.h>
#include <utility>
#include <vector>

namespace orv::test {

struct VersionNode {
    std::string key; // ASCII
    std::vector<BYTE> value;
    bool text;
    std::vector<VersionNode> children;

    std::vector<BYTE> bytes() const {
        std::vector<BYTE> all(4);
        put(all, text ? 1 : 0);
        for (const char c : key)
            put(all, static_cast<BYTE>(c));
        put(all, 0);
        align(all);
        all.insert(all.end(), value.begin(), value.end());
        for (const VersionNode& child : children) {
            align(all);
            const std::vector<BYTE> inner = child.bytes();
            all.insert(all.end(), inner.begin(), inner.end());
        }
        set(all, 0, all.size());
        set(all, 2, text ? value.size() / 2 : value.size());
        return all;
    }

private:
    static void put(std::vector<BYTE>& all, WORD w) { all.insert(all.end(), {LOBYTE(w), HIBYTE(w)}); }
    static void set(std::vector<BYTE>& all, size_t at, size_t w) {
        all[at] = static_cast<BYTE>(w);
        all[at + 1] = static_cast<BYTE>(w >> 8);
    }
    static void align(std::vector<BYTE>& all) { all.resize((all.size() + 3) & ~size_t(3)); }
};

inline std::vector<BYTE> wideText(const std::string& ascii, bool closed = true) {
    std::vector<BYTE> all;
    for (const char c : ascii)
        all.insert(all.end(), {static_cast<BYTE>(c), 0});
    all.resize(all.size() + (closed ? 2 : 0));
    return all;
}

using VersionTexts = std::vector<std::pair<std::string, std::string>>;

// fixed: the 13 numbers. The texts' table is named by the translation.
inline VersionNode versionBlock(WORD language, WORD codePage, const VersionTexts& texts,
                                std::vector<DWORD> fixed = {0xFEEF04BD, 0x10000, 0x10002, 0x30004, 0x50006,
                                                            0x70008, 0x3F, 0, 0x40004, 2, 0, 0, 0}) {
    char name[9];
    snprintf(name, sizeof(name), "%04x%04x", language, codePage);
    VersionNode table{name, {}, true, {}};
    for (const auto& [key, text] : texts)
        table.children.push_back({key, wideText(text), true, {}});
    std::vector<BYTE> numbers;
    for (const DWORD n : fixed)
        for (int shift = 0; shift < 32; shift += 8)
            numbers.push_back(static_cast<BYTE>(n >> shift));
    std::vector<BYTE> translation = {LOBYTE(language), HIBYTE(language), LOBYTE(codePage), HIBYTE(codePage)};
    return {"VS_VERSION_INFO",
            numbers,
            false,
            {{"StringFileInfo", {}, true, {table}},
             {"VarFileInfo", {}, true, {{"Translation", translation, false, {}}}}}};
}

} // namespace orv::test
