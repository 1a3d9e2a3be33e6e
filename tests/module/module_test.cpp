// The library and an extension DLL as a host meets them at run time: loaded, found along the chain, unloaded.

#include <afxwin.h>

#include <gtest/gtest.h>

#include "support/debug_events.h"
#include "support/message_boxes.h"

#include <memory>

using namespace orv::test;

namespace {

TEST(Module, TracesItsLoadAndItsUnload) {
    DebugEvents events;
    HMODULE library = ::LoadLibraryA("ORVFC.dll");
    ASSERT_TRUE(library);
    EXPECT_EQ("ORVFC.DLL Initializing!\n", events.text());
    ::FreeLibrary(library);
    EXPECT_EQ("ORVFC.DLL Initializing!\nORVFC.DLL Terminating!\n", events.text());
}

TEST(Module, ResourcesAndClassesAreFoundAlongTheChainWhileItIsLoaded) {
    CString text;
    EXPECT_FALSE(text.LoadString(200));
    EXPECT_EQ(NULL, CRuntimeClass::FromName("CGuest"));
    {
        HMODULE guest = ::LoadLibraryA("guest.dll");
        ASSERT_TRUE(guest);
        ASSERT_TRUE(text.LoadString(200));
        EXPECT_STREQ("客人", text);
        EXPECT_EQ(guest, AfxFindStringResourceHandle(200));
        // The program's own resources come first.
        ASSERT_TRUE(text.LoadString(100));
        EXPECT_STREQ("线型目录", text);
        CRuntimeClass* guestClass = CRuntimeClass::FromName("CGuest");
        ASSERT_TRUE(guestClass);
        std::unique_ptr<CObject> object(guestClass->CreateObject());
        ASSERT_TRUE(object);
        EXPECT_STREQ("CGuest", object->GetRuntimeClass()->m_lpszClassName);
        object.reset();
        ::FreeLibrary(guest);
    }
    EXPECT_FALSE(text.LoadString(200));
    EXPECT_EQ(NULL, CRuntimeClass::FromName("CGuest"));

    HMODULE library = ::LoadLibraryA("ORVFC.dll");
    EXPECT_EQ(library, AfxFindResourceHandle(MAKEINTRESOURCEA(1), RT_VERSION));
    EXPECT_TRUE(CRuntimeClass::FromName("COrvDrawManage"));
    ::FreeLibrary(library);
    EXPECT_EQ(::GetModuleHandleA(NULL), AfxFindResourceHandle(MAKEINTRESOURCEA(1), RT_VERSION));
}

TEST(Module, LoadStringCutsBetweenCharacters) {
    const struct {
        UINT room;
        const char* expected;
    } rows[] = {{0, "#"},  {1, ""},       {2, ""},         {3, "线"},
                {4, "线"}, {8, "线型目"}, {9, "线型目录"}, {20, "线型目录"}};
    for (const auto& row : rows) {
        char buffer[24] = "#";
        const int length = AfxLoadString(100, buffer, row.room);
        EXPECT_STREQ(row.expected, buffer) << row.room;
        EXPECT_EQ(row.room ? static_cast<int>(strlen(row.expected)) : 0, length) << row.room;
    }
}

TEST(Module, MessageBoxesGoThroughTheApplication) {
    EXPECT_EQ(AfxGetApp(), &messageKeepingApp);
    EXPECT_STREQ("module_test", AfxGetAppName());
    messageKeepingApp.answer = IDYES;
    EXPECT_EQ(IDYES, AfxMessageBox("问题", MB_YESNO, 7));
    EXPECT_EQ(UINT(MB_YESNO), messageKeepingApp.type);
    EXPECT_EQ(7u, messageKeepingApp.help);
    AfxMessageBox(100u);
    EXPECT_EQ(Messages({"问题", "线型目录"}), takeMessages());
    EXPECT_EQ(100u, messageKeepingApp.help);
}

TEST(Module, EveryDllCarriesItsVersion) {
    for (const char* name : {"ORVFC.dll", "orvafx.dll", "orvmathfunc.dll"}) {
        DWORD ignored, size = ::GetFileVersionInfoSizeA(name, &ignored);
        ASSERT_GT(size, 0u) << name;
        std::unique_ptr<BYTE[]> block(new BYTE[size]);
        ASSERT_TRUE(::GetFileVersionInfoA(name, 0, size, block.get())) << name;
        void* value = NULL;
        UINT length = 0;
        ASSERT_TRUE(
            ::VerQueryValueA(block.get(), "\\StringFileInfo\\080403a8\\OriginalFilename", &value, &length));
        EXPECT_STRCASEEQ(name, static_cast<char*>(value));
        ASSERT_TRUE(::VerQueryValueA(block.get(), "\\", &value, &length)) << name;
        EXPECT_NE(0u, static_cast<VS_FIXEDFILEINFO*>(value)->dwFileVersionMS) << name;
    }
}

} // namespace
