// The entry of every Windows test program: a console host of the foundation.

#include <afxwin.h>

#include <gtest/gtest.h>

namespace {

// Texts are code page 936: without it every Chinese expectation below would fail for the wrong reason.
class HostEnvironment : public testing::Environment {
    void SetUp() override {
        ASSERT_EQ(936u, ::GetACP()) << "run with LANG=zh_CN.UTF-8";
        ASSERT_TRUE(AfxWinInit(::GetModuleHandleA(NULL), NULL, ::GetCommandLineA(), 0));
    }
};

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    testing::AddGlobalTestEnvironment(new HostEnvironment);
    return RUN_ALL_TESTS();
}
