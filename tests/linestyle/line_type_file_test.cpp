// Line-type files on the disk, and what the user is told.

#include <afxwin.h>

#include <orvfc/linestyle/LineProperBar.h>
#include <orvfc/services/GerNer.h>
#include <orvfc/services/SysInfo.h>

#include <gtest/gtest.h>

#include "afx/afx_test.h"
#include "support/message_boxes.h"
#include "support/scratch_folder.h"

#include <direct.h>

using namespace orv::test;

namespace {

// How many boxes came up since the last question. None is empty.
size_t boxes() {
    const Messages messages = takeMessages();
    for (const std::string& text : messages)
        EXPECT_FALSE(text.empty());
    return messages.size();
}

// An empty current directory of its own, whose name ends in a byte that looks like a backslash.
class LineTypeFiles : public testing::Test {
protected:
    void SetUp() override {
        ::GetCurrentDirectoryA(sizeof(before_), before_);
        const CString own = folder_.path("誠");
        _mkdir(own);
        ASSERT_TRUE(::SetCurrentDirectoryA(own));
        _mkdir("sub");
        takeMessages();
    }
    void TearDown() override {
        remove(defaultFile());
        ::SetCurrentDirectoryA(before_);
    }
    static CString defaultFile() { return CSysInfo::GetAppPath() + "orvDrawType.lin"; }

    static void write(const char* name, const std::string& bytes) {
        std::ofstream(name, std::ios::binary) << bytes;
    }
    static std::string onePattern(int type) {
        COrvDrawBasicDash base;
        return int32(4) + std::string("\x01N") + int32(1) + int32(type) + serialized(base);
    }

private:
    ScratchFolder folder_;
    char before_[MAX_PATH];
};

TEST_F(LineTypeFiles, SavingTakesTheNameAsItIsLoadingItsLastPartOnly) {
    COrvDrawManage set;
    set.InitToGerApp();
    EXPECT_EQ(1, set.SaveToFile("sub\\x.lin"));
    EXPECT_TRUE(IsFileExist("sub\\x.lin"));
    EXPECT_EQ(0, set.LoadFromFile("sub\\x.lin")) << "looked for in the current directory";
    EXPECT_EQ(1u, boxes());
    EXPECT_TRUE(set.GetDashFromType(4)) << "as before";

    EXPECT_EQ(1, set.SaveToFile("x.lin"));
    EXPECT_EQ(1, set.LoadFromFile("C:\\nowhere\\x.lin"));
    EXPECT_EQ(0u, boxes());
    EXPECT_TRUE(set.GetDashFromType(101));
    EXPECT_EQ(NULL, set.GetDashFromType(4)) << "out of step behind the zig-zag";

    EXPECT_EQ(1, set.SaveToFile("誠"));
    EXPECT_EQ(1, set.LoadFromFile("誠")) << "no backslash at the end";
}

TEST_F(LineTypeFiles, DefaultName) {
    COrvDrawManage set;
    EXPECT_EQ(1, set.SaveToFile(""));
    EXPECT_TRUE(IsFileExist(defaultFile()));
    EXPECT_FALSE(IsFileExist("orvDrawType.lin"));
    EXPECT_EQ(0, set.LoadFromFile("")) << "the name alone";
    EXPECT_EQ(1u, boxes());
    write("orvDrawType.lin", onePattern(5));
    for (const char* name : {"", "C:\\nowhere\\", "誠\\"}) {
        set.Init();
        EXPECT_EQ(1, set.LoadFromFile(name)) << name;
        EXPECT_EQ(4, set.m_nVersion);
    }
    EXPECT_EQ(0, set.SaveToFile("nowhere\\")) << "only an empty name is replaced";
    EXPECT_EQ(1u, boxes());
}

TEST_F(LineTypeFiles, ADamagedFileLeavesTheSetAsItWas) {
    COrvDrawManage set;
    set.InitToGerApp();
    const std::string good = onePattern(5);
    write("x.lin", good.substr(0, good.size() - 1));
    EXPECT_EQ(0, set.LoadFromFile("x.lin"));
    EXPECT_EQ(1u, boxes());
    EXPECT_TRUE(set.GetDashFromType(4));
}

TEST_F(LineTypeFiles, TheMainManagerAddsSets) {
    COrvMainDrawManage manager("");
    EXPECT_EQ(NULL, manager.GetLineType(5));
    EXPECT_EQ(NULL, manager.GetLineType(5, "x.lin"));
    EXPECT_EQ(1u, boxes());
    EXPECT_EQ(0, manager.Load("x.lin"));
    EXPECT_EQ(1u, boxes());
    write("x.lin", onePattern(5));
    EXPECT_TRUE(manager.GetLineType(1, "nowhere")) << "known: no file is looked for";
    COrvDrawBasicDash* dash = manager.GetLineType(5, "x.lin");
    ASSERT_TRUE(dash);
    EXPECT_EQ(dash, manager.GetLineType(5)) << "the set stays";
    EXPECT_EQ(1, manager.Load("x.lin"));
    EXPECT_EQ(dash, manager.GetLineType(5)) << "the first one wins";
    EXPECT_EQ(NULL, manager.GetLineType(6, "x.lin"));
    manager.EmptyAll();
    EXPECT_EQ(NULL, manager.GetLineType(1));
    manager.Init();
    EXPECT_TRUE(manager.GetLineType(1));
    EXPECT_EQ(0u, boxes());
}

TEST_F(LineTypeFiles, TheMainManagerSavesAllItsSets) {
    COrvMainDrawManage manager("");
    EXPECT_EQ(1, manager.Save());
    EXPECT_TRUE(IsFileExist(defaultFile())) << "the program's directory to begin with";
    manager.SetPathName("x.lin");
    EXPECT_EQ(1, manager.Save());
    EXPECT_TRUE(IsFileExist("x.lin"));
    manager.SetPathName("誠");
    EXPECT_EQ(1, manager.Save());
    EXPECT_TRUE(IsFileExist("誠")) << "a file, not a directory";
    remove(defaultFile());
    COrvMainDrawManage other("x.lin"); // not kept
    EXPECT_EQ(1, other.Save());
    EXPECT_TRUE(IsFileExist(defaultFile()));
    other.Init();
    other.SetPathName("nowhere\\x.lin");
    EXPECT_EQ(0, other.Save());
    EXPECT_EQ(2u, boxes()) << "every set is tried";
}

} // namespace
