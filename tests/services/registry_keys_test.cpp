// Keys of the registry stores: which root, which access, what becomes of m_hKey, and where the two classes
// differ.

#include "registry_test.h"

using orv::test::RegistryTest;

namespace {

class RegistryKeys : public RegistryTest {};

} // namespace

TEST_F(RegistryKeys, Roots) {
    EXPECT_EQ(HKEY_LOCAL_MACHINE, COrvRegister().m_hKey);
    EXPECT_EQ(0, COrvRegister().m_bReadOnly);
    EXPECT_EQ(HKEY_LOCAL_MACHINE, COrvRegister(2, 0).m_hKey);
    EXPECT_EQ(HKEY_CURRENT_USER, COrvRegister(0, 7).m_hKey);
    EXPECT_EQ(7, COrvRegister(0, 7).m_bReadOnly);
    EXPECT_EQ(HKEY_LOCAL_MACHINE, COrvRegistry(0, 0).m_hKey);
    EXPECT_EQ(-1, COrvRegistry(1, -1).m_bReadOnly);
}

TEST_F(RegistryKeys, OpenReplacesTheRoot) {
    COrvRegister store(0, 0);
    store.m_Info = {1, 2, 3};
    ASSERT_TRUE(store.Open(path().c_str(), FALSE));
    expectInfo(store, ERROR_SUCCESS);
    EXPECT_NE(HKEY_CURRENT_USER, store.m_hKey);
    EXPECT_TRUE(store.m_strKeyPath == path().c_str());
    EXPECT_TRUE(store.CreateKey("inner"));
    EXPECT_TRUE(store.m_strKeyPath == "inner");
    EXPECT_TRUE(store.Write("n", 5));
    DWORD n = 0, size = sizeof(n);
    EXPECT_EQ(ERROR_SUCCESS, ::RegGetValueA(key(), "inner", "n", RRF_RT_DWORD, NULL, &n, &size));
    EXPECT_EQ(5u, n);
    store.Close();
    EXPECT_EQ(NULL, store.m_hKey);
}

TEST_F(RegistryKeys, MissingKeys) {
    COrvRegister store(0, 0);
    EXPECT_FALSE(store.Open(path("\\none").c_str(), FALSE));
    expectInfo(store, ERROR_FILE_NOT_FOUND);
    COrvRegister maker(0, 0);
    EXPECT_TRUE(maker.Open(path("\\made").c_str(), TRUE));
    // An opened store makes a key below its own.
    COrvRegister nested = opened<COrvRegister>();
    EXPECT_TRUE(nested.Open("below", TRUE));
    EXPECT_TRUE(opened<COrvRegister>().VerifyKey("below"));
    // By the path that the store itself remembers, the key being gone meanwhile.
    COrvRegister again(0, 0);
    again.m_strKeyPath = path("\\again").c_str();
    EXPECT_TRUE(again.Open(again.m_strKeyPath, TRUE));
    EXPECT_TRUE(again.m_strKeyPath == path("\\again").c_str());
    EXPECT_TRUE(opened<COrvRegister>().VerifyKey("again"));
}

// Second bytes of characters that look like a backslash or a bar part nothing.
TEST_F(RegistryKeys, ChineseNames) {
    COrvRegister store(0, 0);
    ASSERT_TRUE(store.Open(path("\\誠亅\\诚").c_str(), TRUE));
    EXPECT_TRUE(store.Write("亅誠", 5));
    EXPECT_TRUE(store.VerifyValue("亅誠"));
    store.Close();
    EXPECT_TRUE(opened<COrvRegister>().VerifyKey("誠亅\\诚"));
    EXPECT_FALSE(store.DeleteKey(path("\\誠亅").c_str(), 0));
    EXPECT_TRUE(store.DeleteKey(path("\\誠亅\\诚").c_str(), 0));
    EXPECT_TRUE(store.DeleteKey(path("\\誠亅").c_str(), 0));
}

// A failed opening leaves 0; the older class goes on with it, the younger one returns to where it was.
TEST_F(RegistryKeys, ClassesDifferInAFailedOpen) {
    COrvRegistry older = opened<COrvRegistry>();
    EXPECT_FALSE(older.Open("made", TRUE));
    EXPECT_EQ(NULL, older.m_hKey);
    expectInfo(older, ERROR_INVALID_HANDLE);

    COrvRegister younger(0, 0);
    younger.m_hKey = NULL;
    EXPECT_TRUE(younger.Open(path().c_str(), FALSE)); // below the user's key
    COrvRegistry lost(0, 0);
    lost.m_hKey = NULL;
    EXPECT_FALSE(lost.Open(path().c_str(), FALSE));
    expectInfo(lost, ERROR_INVALID_HANDLE);
}

TEST_F(RegistryKeys, AccessFollowsTheFlag) {
    struct {
        int readOnly;
        bool mayDelete;
    } const rows[] = {{0, true}, {1, false}, {5, false}, {-1, true}};
    for (const auto& row : rows) {
        setValue("n", REG_DWORD, {1, 0, 0, 0});
        COrvRegister store = opened<COrvRegister>(row.readOnly);
        EXPECT_TRUE(store.VerifyValue("n")) << row.readOnly;
        EXPECT_EQ(row.mayDelete, store.DeleteValue("n") != 0) << row.readOnly;
        expectInfo(store, row.mayDelete ? ERROR_SUCCESS : ERROR_ACCESS_DENIED);
        EXPECT_EQ(!row.mayDelete, store.VerifyValue("n")) << row.readOnly;
        expectInfo(store, row.mayDelete ? ERROR_FILE_NOT_FOUND : ERROR_SUCCESS);
    }
}

TEST_F(RegistryKeys, DeleteKey) {
    COrvRegister store; // at the machine's key
    HKEY inner = NULL;
    ::RegCreateKeyA(key(), "outer\\inner", &inner);
    ::RegCloseKey(inner);
    EXPECT_FALSE(store.DeleteKey(path("\\outer").c_str(), 0));
    EXPECT_TRUE(store.DeleteKey(path("\\outer\\inner").c_str(), 0));
    expectInfo(store, ERROR_SUCCESS);
    EXPECT_TRUE(store.DeleteKey(path("\\outer").c_str(), 0));
    EXPECT_FALSE(store.DeleteKey(path("\\outer").c_str(), 0));
    EXPECT_FALSE(store.DeleteKey(path().c_str(), 1)); // there is none of the machine's
    EXPECT_EQ(HKEY_LOCAL_MACHINE, store.m_hKey);
}

// The caller's bugs: an assertion each, then 0.
TEST_F(RegistryKeys, Misuse) {
    COrvRegister store = opened<COrvRegister>();
    int before = events_.assertions();
    const auto asserts = [&] {
        const int count = events_.assertions() - before;
        before += count;
        return count > 0;
    };
    int n = 0;
    POINT* point = NULL;
    BYTE byte = 0;
    unsigned size = 0;
    EXPECT_TRUE(!store.CreateKey(NULL) && asserts());
    EXPECT_TRUE(!store.Write(NULL, 5) && asserts());
    EXPECT_TRUE(!store.Write("n", static_cast<const char*>(NULL)) && asserts());
    EXPECT_TRUE(!store.Write("n", static_cast<BYTE*>(NULL), 3) && asserts());
    EXPECT_TRUE(!store.Write("n", point) && asserts());
    EXPECT_TRUE(!store.Read(NULL, n) && asserts());
    EXPECT_TRUE(!store.Read("n", point) && asserts());
    EXPECT_TRUE(!store.Read("n", static_cast<BYTE**>(NULL), &size) && asserts());
    store.Close();
    EXPECT_TRUE(!store.Write("n", 5) && asserts());
    EXPECT_TRUE(!store.Write("n", &byte, 1) && asserts());
    EXPECT_TRUE(!store.Read("n", n) && asserts());
    EXPECT_TRUE(!store.VerifyKey("n") && asserts());
    EXPECT_TRUE(!store.DeleteValue("n") && asserts());
    EXPECT_FALSE(store.VerifyValue("n"));
    EXPECT_EQ(0u, valueCount());
}
