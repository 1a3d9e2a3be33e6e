#include "registry_test.h"

namespace orv::test {

RegistryTest::RegistryTest() : path_("Software\\ORVFC-test-" + std::to_string(::GetCurrentProcessId())) {
    ::RegDeleteTreeA(HKEY_CURRENT_USER, path_.c_str());
    ::RegCreateKeyExA(HKEY_CURRENT_USER, path_.c_str(), 0, NULL, 0, KEY_ALL_ACCESS, NULL, &key_, NULL);
}

RegistryTest::~RegistryTest() {
    ::RegCloseKey(key_);
    EXPECT_EQ(ERROR_SUCCESS, ::RegDeleteTreeA(HKEY_CURRENT_USER, path_.c_str()));
    EXPECT_TRUE(::HeapValidate(::GetProcessHeap(), 0, NULL));
}

RegistryTest::Value RegistryTest::value(const char* name) const {
    DWORD type = REG_NONE, size = 0;
    EXPECT_EQ(ERROR_SUCCESS, ::RegQueryValueExA(key_, name, NULL, &type, NULL, &size)) << name;
    std::vector<BYTE> bytes(size);
    EXPECT_EQ(ERROR_SUCCESS, ::RegQueryValueExA(key_, name, NULL, &type, bytes.data(), &size)) << name;
    bytes.resize(size);
    return {type, bytes};
}

void RegistryTest::setValue(const char* name, DWORD type, const std::vector<BYTE>& bytes) const {
    EXPECT_EQ(ERROR_SUCCESS,
              ::RegSetValueExA(key_, name, 0, type, bytes.data(), static_cast<DWORD>(bytes.size())));
}

size_t RegistryTest::valueCount() const {
    DWORD count = 0;
    EXPECT_EQ(ERROR_SUCCESS,
              ::RegQueryInfoKeyA(key_, NULL, NULL, NULL, NULL, NULL, NULL, &count, NULL, NULL, NULL, NULL));
    return count;
}

} // namespace orv::test
