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
    RegistryTest();
    ~RegistryTest() override;

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
    Value value(const char* name) const;
    void setValue(const char* name, DWORD type, const std::vector<BYTE>& bytes) const;
    size_t valueCount() const;

    DebugEvents events_;

private:
    std::string path_;
    HKEY key_ = NULL;
};

} // namespace orv::test
