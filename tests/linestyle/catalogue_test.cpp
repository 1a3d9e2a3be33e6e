// The catalogues of line types and line widths.

#include <afx.h>

#include <orvfc/linestyle/LineTypeSet.h>
#include <orvfc/linestyle/LineWidthSet.h>

#include <gtest/gtest.h>

#include <math.h>

#include "afx/afx_test.h"

#include <string>

using namespace orv::test;

namespace {

template <class Set>
std::string namesOf(const Set& set) {
    std::string names;
    for (int i = 0; i < set.GetSize(); ++i)
        names += std::string(set.GetElement(i)->strName) + " ";
    return names;
}

TEST(LineTypeSet, BuiltInRows) {
    CLineTypeSet set;
    EXPECT_EQ("实线 虚线 点线 虚点线 虚点点线 空线 铁道线 ", namesOf(set));
    const unsigned values[] = {0, 1, 2, 3, 4, 5, 101};
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(values[i], set.GetElement(i)->nValue);
        EXPECT_EQ(values[i], set.GetLineIndex(set.GetElement(i)->strName));
    }
    EXPECT_EQ(1, set.AddGerLineType());
    EXPECT_EQ(14, set.GetSize());
    set.Init();
    EXPECT_EQ(7, set.GetSize());
}

TEST(LineTypeSet, Lookups) {
    CLineTypeSet set;
    EXPECT_STREQ("铁道线", set.GetLineName(101));
    EXPECT_STREQ("自定义线型 7 ", set.GetLineName(7));
    EXPECT_STREQ("自定义线型 4294967295 ", set.GetLineName(0xFFFFFFFF));
    EXPECT_EQ(0xFFFFFFFFu, set.GetLineIndex("虚"));
    EXPECT_EQ(0xFFFFFFFFu, set.GetLineIndex(""));
    set.AddItem("a", 8);
    EXPECT_EQ(0xFFFFFFFFu, set.GetLineIndex("A"));
    set.AddItem("b", 8);
    EXPECT_STREQ("a", set.GetLineName(8)) << "the first one";
}

TEST(LineWidthSet, BuiltInRows) {
    CLineWidthSet set;
    EXPECT_EQ("0.5毫米 1毫米 2毫米 3毫米 4毫米 5毫米 6毫米 8毫米 12毫米 15毫米 20毫米 25毫米 其它... ",
              namesOf(set));
    EXPECT_EQ(0.5, set.GetElement(0)->dValue);
    EXPECT_EQ(25, set.GetElement(11)->dValue);
    EXPECT_EQ(1, set.GetElement(12)->dValue);
    EXPECT_EQ(1, set.AddGerLineWidth(0));
    EXPECT_EQ(25, set.GetSize());
    EXPECT_STREQ("1象素", set.GetElement(13)->strName);
    EXPECT_STREQ("25象素", set.GetElement(23)->strName);
    EXPECT_STREQ("其它...", set.GetElement(24)->strName);
    EXPECT_STREQ("1毫米", set.GetLineName(1.0));
    set.Init();
    EXPECT_EQ(13, set.GetSize());
}

TEST(LineWidthSet, Lookups) {
    CLineWidthSet set;
    EXPECT_STREQ("12毫米", set.GetLineName(12.0000009));
    EXPECT_STREQ("自定义线型12.00", set.GetLineName(12.000002));
    EXPECT_STREQ("自定义线型-1.00", set.GetLineName(-1));
    EXPECT_EQ(1.0, set.GetLineIndex("其它..."));
    EXPECT_EQ(0.5, set.GetLineIndex("0.5毫米"));
    EXPECT_EQ(1.0, set.GetLineIndex("nothing"));
}

TEST(Catalogue, MergingAddsOnlyWhatIsMissing) {
    CLineTypeSet set;
    LineTypeStruct row("新线", 9);
    EXPECT_EQ(0, set.AddItem(static_cast<LineTypeStruct*>(NULL)));
    EXPECT_EQ(1, set.AddItem(&row));
    EXPECT_EQ(1, set.AddItem(&row));
    EXPECT_EQ(9, set.GetSize()) << "single rows may come twice";
    EXPECT_NE(&row, set.GetElement(7));
    EXPECT_EQ(1, set.AddItem(set));
    EXPECT_EQ(9, set.GetSize());
    CLineTypeSet other;
    other.AddItem(set);
    EXPECT_EQ(8, other.GetSize());
    other.AddItem("新线", 10); // the same name alone is another row
    EXPECT_EQ(1, set.AddItem(other));
    EXPECT_EQ(10, set.GetSize());
    CDynamicPtrArray<LineTypeStruct> rows;
    rows.Add(new LineTypeStruct("散", 1));
    EXPECT_EQ(1, set.AddItem(rows));
    EXPECT_EQ(11, set.GetSize());

    CLineWidthSet widths;
    widths.AddItem("no number", NAN); // equals no row, not even itself
    EXPECT_EQ(1, widths.AddItem(widths));
    EXPECT_EQ(14, widths.GetSize());
}

TEST(Catalogue, Rows) {
    LineWidthStruct row("1毫米", 1.0);
    LineWidthStruct copy(&row);
    EXPECT_TRUE(copy == row);
    copy.dValue += 1e-12;
    EXPECT_FALSE(copy == row) << "exactly";
    copy.init("2毫米", 1.0);
    EXPECT_FALSE(copy == row);
    copy.init();
    EXPECT_STREQ("", copy.strName);
    EXPECT_EQ(0, copy.dValue);

    EXPECT_EQ("05 31 BA C1 C3 D7 00 00 00 00 00 00 F0 3F", toHex(serialized(row)));
    LineTypeStruct type("点线", 2);
    EXPECT_EQ("04 B5 E3 CF DF 02 00 00 00", toHex(serialized(type)));
    LineTypeStruct loaded("before", 1);
    EXPECT_EQ(CArchiveException::endOfFile, deserialized(loaded, serialized(type).substr(0, 8)));
    EXPECT_STREQ("before", loaded.strName);
    EXPECT_EQ(0, deserialized(loaded, serialized(type)));
    EXPECT_TRUE(loaded == type);
}

struct Counted {
    static int alive;
    Counted() { ++alive; }
    ~Counted() { --alive; }
};
int Counted::alive = 0;

TEST(DynamicArray, OwnsItsRows) {
    {
        CDynamicPtrArray<Counted> rows;
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(i, rows.Add(new Counted));
        EXPECT_EQ(-1, rows.Add(NULL));
        Counted* second = rows[1];
        rows.RemoveAt(0);
        EXPECT_EQ(second, rows[0]);
        EXPECT_EQ(3, Counted::alive);
        CDynamicPtrArray<Counted> others;
        others.Add(new Counted);
        others.Add(new Counted);
        Counted* first = others[0];
        rows.TakeFrom(others);
        EXPECT_EQ(2, rows.GetSize());
        EXPECT_EQ(first, rows[0]);
        EXPECT_TRUE(others.IsEmpty());
        EXPECT_EQ(2, Counted::alive);
        rows.TakeFrom(others);
        EXPECT_EQ(0, Counted::alive);
        rows.Add(new Counted);
    }
    EXPECT_EQ(0, Counted::alive);
}

} // namespace
