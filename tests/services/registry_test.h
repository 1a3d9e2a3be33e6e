#pragma once

#include <orvfc/services/OrvRegister.h>
#include <orvfc/services/OrvRegistry.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/debug_events.h"

namespace orv::test {

// A key of this process's own, gone at the end. Failed assertions are counted and passed over.
class RegistryTest : public testing::Test {
protected:
    RegistryTest() {
        ::RegDeleteTreeA(HKEY_CURRENT_USER, path_.c_str());
        ::RegCreateKeyExA(HKEY_CURRENT_USER, path_.c_str(), 0, NULL, 0, KEY_ALL_ACCESS, NULL, &key_, NULL);
    }
    ~RegistryTest() override {
        ::RegCloseKey(key_);
        EXPECT_EQ(ERROR_SUCCESS, ::RegDeleteTreeA(HKEY_CURRENT_USER, path_.c_str()));
        EXPECT_TRUE(::HeapValidate(::GetProcessHeap(), 0, NULL));
    }

    std::string path(const char* below = "") const { return path_ + below; }
    HKEY key() const { return key_; }

    // A store on the key; read-only or not.
    template <class Store>
    Store opened(int bReadOnly = 0) const {
        Store store(0, bReadOnly);
        store.m_hKey = HKEY_CURRENT_USER; // one of the two begins at the machine's key
        EXPECT_TRUE(store.Open(path_.c_str(), FALSE));
        Store result(store);
        store.m_hKey = NULL; // the copy closes it
        return result;
    }

    // The value as the bare calls see it.
    struct Value {
        DWORD type;
        std::vector<BYTE> bytes;
    };
    Value value(const char* name) const {
        DWORD type = REG_NONE, size = 0;
        EXPECT_EQ(ERROR_SUCCESS, ::RegQueryValueExA(key_, name, NULL, &type, NULL, &size)) << name;
        std::vector<BYTE> bytes(size);
        EXPECT_EQ(ERROR_SUCCESS, ::RegQueryValueExA(key_, name, NULL, &type, bytes.data(), &size)) << name;
        bytes.resize(size);
        return {type, bytes};
    }
    void setValue(const char* name, DWORD type, const std::vector<BYTE>& bytes) const {
        EXPECT_EQ(ERROR_SUCCESS,
                  ::RegSetValueExA(key_, name, 0, type, bytes.data(), static_cast<DWORD>(bytes.size())));
    }
    size_t valueCount() const {
        DWORD count = 0;
        EXPECT_EQ(ERROR_SUCCESS, ::RegQueryInfoKeyA(key_, NULL, NULL, NULL, NULL, NULL, NULL, &count, NULL,
                                                    NULL, NULL, NULL));
        return count;
    }

    static void expectInfo(const COrvRegStore& store, LONG result, DWORD type = 0, DWORD size = 0) {
        EXPECT_EQ(result, store.m_Info.lResult);
        EXPECT_EQ(type, store.m_Info.dwType);
        EXPECT_EQ(size, store.m_Info.dwSize);
    }

    DebugEvents events_;

private:
    const std::string path_ = "Software\\ORVFC-test-" + std::to_string(::GetCurrentProcessId());
    HKEY key_ = NULL;
};

} // namespace orv::test
