// Stored forms, byte for byte, and what becomes of streams that are not what they should be.

#include <afx.h>

#include <orvfc/linestyle/LineProperBar.h>

#include <gtest/gtest.h>

#include "afx/afx_test.h"

#include <functional>
#include <memory>

using namespace orv::test;

namespace {

// Tag, draw type, new figure, colour, width, "空类型".
#define BASE_FORM "07000000 01000000 00000000 33221100 03000000 06BFD5C0E0D0CD "

template <class Dash>
Dash baseOf() {
    Dash dash;
    dash.m_nTag = 7;
    dash.m_nDrawType = 1;
    dash.m_bMoveToNew = 0;
    dash.m_crColor = 0x112233;
    dash.m_nWidth = 3;
    return dash;
}

template <class Dash>
void expectForm(Dash& dash, const char* hex) {
    EXPECT_EQ(toHex(fromHex(hex)), toHex(serialized(dash)));
    Dash loaded;
    ASSERT_EQ(0, deserialized(loaded, fromHex(hex)));
    EXPECT_EQ(toHex(fromHex(hex)), toHex(serialized(loaded)));
    // Every shorter stream is refused and leaves no trace.
    Dash untouched;
    const std::string before = serialized(untouched);
    for (size_t size = 0; size < fromHex(hex).size(); ++size) {
        EXPECT_EQ(CArchiveException::endOfFile, deserialized(untouched, fromHex(hex).substr(0, size)));
        EXPECT_EQ(before, serialized(untouched)) << size;
    }
}

TEST(StoredForm, Patterns) {
    auto base = baseOf<COrvDrawBasicDash>();
    expectForm(base, BASE_FORM);

    auto dash = baseOf<COrvDrawDashDash>();
    dash.m_crColor0 = 0x010203;
    dash.m_crColor1 = 0x040506;
    dash.m_nLen0 = 20;
    dash.m_nLen1 = -1;
    dash.m_nWidth0 = 8;
    dash.m_nWidth1 = 9;
    dash.m_nPhase = 1;
    dash.m_dRemain = 1.5;
    dash.m_ptLastA = {10, 11};
    dash.m_ptLastB = {12, 13};
    expectForm(dash,
               BASE_FORM "03020100 06050400 14000000 FFFFFFFF 08000000 09000000 01000000 000000000000F83F"
                         "0A000000 0B000000 0C000000 0D000000");

    auto three = baseOf<COrvDrawDashDotDotTwice>();
    three.m_crColor2 = 0x070809;
    three.m_nWidth2 = 2;
    three.m_nPhase = 4;
    expectForm(three,
               BASE_FORM "00000000 FFFFFF00 09080700 11000000 06000000 05000000 01000000 01000000 02000000"
                         "04000000 0000000000003140 00000000 00000000 00000000 00000000");

    auto railway = baseOf<COrvDrawDashRailway>();
    railway.m_nLen0 = 21;
    railway.m_ptLastE = {1, 2};
    railway.m_ptLastL = {3, 4};
    railway.m_ptLastR = {5, 6};
    expectForm(railway, BASE_FORM "00000000 FFFFFF00 15000000 14000000 0A000000 01000000 0000000000003440"
                                  "01000000 02000000 03000000 04000000 05000000 06000000");

    auto weaver = baseOf<COrvDrawDashWeaver>();
    weaver.m_nAmp2 = 4;
    expectForm(weaver, BASE_FORM "05000000 03000000 04000000 01000000 0000000000001440");
}

TEST(StoredForm, StylesComeBackFromConstructionAndTheDeviceContextStays) {
    COrvDrawDashDash dash;
    dash.m_nStyle1 = 99;
    COrvDrawDashDash loaded(reinterpret_cast<HDC>(1));
    ASSERT_EQ(0, deserialized(loaded, serialized(dash)));
    EXPECT_EQ(0x12200, loaded.m_nStyle0);
    EXPECT_EQ(0x12205, loaded.m_nStyle1);
    EXPECT_EQ(reinterpret_cast<HDC>(1), loaded.m_hDC);
}

TEST(StoredForm, Curve) {
    COrvDrawCurve curve;
    curve.SetDrawName("线");
    curve.m_nIndex = 5;
    curve.m_dCurX = 1.5;
    const std::string head = fromHex("02CFDF 05000000 000000000000F83F 0000000000000000");
    EXPECT_EQ(toHex(head + int32(0)), toHex(serialized(curve)));

    struct {
        std::function<COrvDrawBasicDash*()> make;
        unsigned held, type;
    } const rows[] = {
        {[] { return new COrvDrawDashDash; }, 1, 1},      {[] { return new COrvDrawDashDot; }, 1, 2},
        {[] { return new COrvDrawDashDotDot; }, 1, 3},    {[] { return new COrvDrawDashDotDotTwice; }, 1, 4},
        {[] { return new COrvDrawBasicDash; }, 1, 5},     {[] { return new COrvDrawDashWeaver; }, 1, 101},
        {[] { return new COrvDrawDashRailway; }, 2, 101},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.type << " held " << row.held);
        std::unique_ptr<COrvDrawBasicDash> dash(row.make());
        dash->m_nTag = 77;
        curve.m_pDash = dash.get();
        const std::string stored = serialized(curve);
        EXPECT_EQ(toHex(head + int32(row.held) + int32(row.type) + serialized(*dash)), toHex(stored));

        COrvDrawBasicDash other;
        COrvDrawCurve loaded(&other);
        for (size_t size = 0; size < stored.size(); ++size) {
            EXPECT_EQ(CArchiveException::endOfFile, deserialized(loaded, stored.substr(0, size)));
            EXPECT_EQ(&other, loaded.m_pDash);
            EXPECT_EQ(0, loaded.m_nIndex);
        }
        ASSERT_EQ(0, deserialized(loaded, stored));
        std::unique_ptr<COrvDrawBasicDash> owned(loaded.m_pDash);
        EXPECT_EQ(toHex(stored), toHex(serialized(loaded)));
    }
    for (const std::string& kind : {int32(1) + int32(0), int32(1) + int32(6), int32(2) + int32(1),
                                    int32(3) + int32(1), int32(-1) + int32(101)}) {
        COrvDrawCurve loaded;
        EXPECT_EQ(CArchiveException::badClass, deserialized(loaded, head + kind + std::string(200, '\0')));
        EXPECT_STREQ("", loaded.m_strName);
    }
}

std::string formOf(int type) {
    COrvDrawBasicDash base;
    COrvDrawDashWeaver weaver;
    return int32(type) + (type == 5 ? serialized(base) : type == 101 ? serialized(weaver) : "");
}

TEST(LineTypeFile, StoresTheBuiltInSetInOrder) {
    COrvDrawManage set;
    set.m_nVersion = 3;
    set.m_strName = "线型";
    set.InitToGerApp();
    std::string expected = fromHex("03000000 04CFDFD0CD 05000000");
    for (int type : {101, 1, 2, 3, 4}) {
        ASSERT_TRUE(set.GetDashFromType(type));
        expected += int32(type) + serialized(*set.GetDashFromType(type));
    }
    EXPECT_EQ(toHex(expected), toHex(serialized(set)));
    EXPECT_EQ(NULL, set.GetDashFromType(0));

    // Only the zig-zag comes back; what follows is read out of step.
    COrvDrawManage loaded;
    ASSERT_EQ(0, deserialized(loaded, expected));
    EXPECT_EQ(3, loaded.m_nVersion);
    EXPECT_TRUE(loaded.GetDashFromType(101));
    for (int type : {1, 2, 3, 4, 5})
        EXPECT_EQ(NULL, loaded.GetDashFromType(type));
}

TEST(LineTypeFile, LoadsWhatItKnowsAndStaysAsItWasOtherwise) {
    const std::string head = fromHex("03000000 01 4E"); // version 3, "N"
    struct {
        const char* name;
        std::string bytes;
        int cause;
        unsigned count; // of patterns afterwards
    } const rows[] = {
        {"none", head + int32(0), 0, 0},
        {"fewer than none", head + int32(-7), 0, 0},
        {"both known kinds", head + int32(3) + formOf(5) + formOf(101) + formOf(5), 0, 3},
        {"unknown ones leave nothing", head + int32(2) + int32(6) + int32(-1), 0, 0},
        {"a count beyond the bytes", head + int32(0x7FFFFFFF) + formOf(5), CArchiveException::endOfFile, 5},
        {"an endless name", int32(3) + fromHex("FF FFFF FFFFFFF0 4E"), CArchiveException::endOfFile, 5},
        {"an endless type name",
         head + int32(1) + int32(5) + std::string(20, '\0') + fromHex("FF FFFF FFFFFF7F"),
         CArchiveException::endOfFile, 5},
        {"empty", "", CArchiveException::endOfFile, 5},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        COrvDrawManage set;
        set.InitToGerApp();
        EXPECT_EQ(row.cause, deserialized(set, row.bytes));
        EXPECT_EQ(row.cause ? 0 : 3, set.m_nVersion);
        EXPECT_EQ(row.cause ? "" : "N", std::string(set.m_strName));
        const std::string stored = serialized(set);
        const size_t name = row.cause ? 0 : 1;
        EXPECT_EQ(int32(row.count), stored.substr(4 + 1 + name, 4));
    }
    const std::string good = head + int32(2) + formOf(101) + formOf(5);
    for (size_t size = 0; size < good.size(); ++size) {
        COrvDrawManage set;
        set.InitToGerApp();
        EXPECT_EQ(CArchiveException::endOfFile, deserialized(set, good.substr(0, size)));
        EXPECT_TRUE(set.GetDashFromType(4)) << size;
    }
}

TEST(Manager, FindsPatternsByTypeUntilItIsEmptied) {
    COrvDrawManage set;
    EXPECT_EQ(NULL, set.GetDashFromType(1, 3, 0x0000FF));
    set.InitToGerApp();
    COrvDrawBasicDash* dash = set.GetDashFromType(1, 3, 0x0000FF);
    ASSERT_TRUE(dash);
    EXPECT_EQ(3, static_cast<COrvDrawDashDash*>(dash)->m_nWidth0);
    EXPECT_TRUE(dynamic_cast<COrvDrawDashWeaver*>(set.GetDashFromType(101)));
    set.m_nVersion = 9;
    set.Init();
    EXPECT_EQ(0, set.m_nVersion);
    EXPECT_EQ(NULL, set.GetDashFromType(1));
}

} // namespace
