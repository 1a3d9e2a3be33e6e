// The catalogue of colours.

#include <afx.h>

#include <orvfc/pickers/ColorSet.h>

#include <gtest/gtest.h>

#include "afx/afx_test.h"

using namespace orv::test;

namespace {

TEST(ColorSet, BuiltInRows) {
    const struct {
        const char* name;
        int red, green, blue;
    } rows[] = {
        {"黑色", 0, 0, 0},         {"白色", 255, 255, 255},   {"红色", 255, 0, 0},
        {"绿色", 0, 255, 0},       {"蓝色", 0, 0, 255},       {"蓝绿", 0, 255, 128},
        {"粉红", 255, 0, 255},     {"青色", 0, 128, 255},     {"绿色", 0, 128, 0},
        {"紫色", 128, 0, 128},     {"紫红色", 255, 0, 255},   {"深红", 128, 64, 0},
        {"浅红色", 255, 128, 128}, {"黄色", 255, 255, 0},     {"灰色-50%", 128, 128, 128},
        {"银色", 192, 192, 192},   {"深银色", 142, 142, 142}, {"浅银色", 227, 227, 227},
        {"亮蓝色", 0, 255, 255},   {"其它...", 0, 0, 0},
    };
    CColorSet set;
    ASSERT_EQ(20, set.GetSize());
    for (int i = 0; i < 20; ++i) {
        EXPECT_STREQ(rows[i].name, set.GetElement(i)->strName);
        EXPECT_EQ(COLORREF(rows[i].red | rows[i].green << 8 | rows[i].blue << 16),
                  set.GetElement(i)->crColor);
    }
    set.AddGerColors();
    EXPECT_EQ(40, set.GetSize());
    set.Init();
    EXPECT_EQ(20, set.GetSize());
    set.EmptyAllColors();
    EXPECT_EQ(0, set.GetSize());
}

TEST(ColorSet, Lookups) {
    CColorSet set;
    const struct {
        COLORREF color;
        const char* name;
    } names[] = {{0x123456, " 86 , 52 , 18 "}, {0xFF00FF, "粉红"},   {0, "黑色"},
                 {0x008000, "绿色"},           {0xFFFF00, "亮蓝色"}, {0xFF123456, " 86 , 52 , 18 "}};
    for (const auto& row : names)
        EXPECT_STREQ(row.name, set.GetColorName(row.color));
    const struct {
        const char* name;
        COLORREF color;
    } colors[] = {{"绿色", 0x00FF00}, {"紫红色", 0xFF00FF}, {"亮蓝色", 0xFFFF00},
                  {"其它...", 0},     {"无此色", 0},        {"", 0},
                  {"绿色 ", 0}};
    for (const auto& row : colors) {
        EXPECT_EQ(row.color, set.GetColorIndex(row.name)) << row.name;
        EXPECT_EQ(row.color, CColorSet::GetColorByName(row.name)) << row.name;
    }
    set.EmptyAllColors();
    EXPECT_EQ(0u, set.GetColorIndex("红色"));
    EXPECT_STREQ(" 255 , 0 , 0 ", set.GetColorName(0x0000FF));
    EXPECT_EQ(0x0000FFu, CColorSet::GetColorByName("红色"));
    set.AddItem("其它...", 7);
    EXPECT_EQ(7u, set.GetColorIndex("其它..."));
}

TEST(ColorSet, Rows) {
    ColorSetStruct row("青色", 0xFF8000);
    EXPECT_EQ("04 C7 E0 C9 AB 00 80 FF 00", toHex(serialized(row)));
    ColorSetStruct loaded("前", 1);
    EXPECT_EQ(CArchiveException::endOfFile, deserialized(loaded, serialized(row).substr(0, 7)));
    EXPECT_TRUE(loaded == ColorSetStruct("前", 1));
    EXPECT_EQ(0, deserialized(loaded, serialized(row)));
    EXPECT_TRUE(loaded == row);
    loaded.init("青色", 0xFF8001);
    EXPECT_FALSE(loaded == row);
    loaded.init(&row);
    EXPECT_TRUE(loaded == row);
}

} // namespace
