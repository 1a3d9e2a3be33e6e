#include <afxcoll.h>

#include "shapes.h"

#include "afx_test.h"

#include <list>
#include <memory>
#include <random>

using orv::test::bytesOf;
using orv::test::fromHex;
using orv::test::loaded;
using orv::test::stored;
using orv::test::toHex;

namespace {

std::string shown(const CStringArray& texts) {
    CString all;
    for (INT_PTR i = 0; i < texts.GetSize(); i++)
        all += texts[i] + ".";
    return bytesOf(all);
}

std::string shown(const CStringList& texts) {
    CString all;
    for (POSITION pos = texts.GetHeadPosition(); pos != NULL;)
        all += texts.GetNext(pos) + ".";
    return bytesOf(all);
}

} // namespace

TEST(Arrays, Edits) {
    const struct {
        const char* what;
        std::function<void(CStringArray&)> edit;
        const char* expected;
    } rows[] = {
        {"grow with a gap", [](CStringArray& a) { a.SetAtGrow(4, "e"); }, "a.b.c..e."},
        {"insert", [](CStringArray& a) { a.InsertAt(1, "x", 2); }, "a.x.x.b.c."},
        {"insert past the end", [](CStringArray& a) { a.InsertAt(4, "x"); }, "a.b.c..x."},
        {"insert one of its own", [](CStringArray& a) { a.InsertAt(0, a[2], 9); },
         "c.c.c.c.c.c.c.c.c.a.b.c."},
        {"add one of its own",
         [](CStringArray& a) {
             a.FreeExtra();
             a.Add(a[0]);
         },
         "a.b.c.a."},
        {"insert an array",
         [](CStringArray& a) {
             CStringArray b;
             b.Copy(a);
             a.InsertAt(1, &b);
         },
         "a.a.b.c.b.c."},
        {"remove", [](CStringArray& a) { a.RemoveAt(0, 2); }, "c."},
        {"append itself", [](CStringArray& a) { a.Append(a); }, "a.b.c.a.b.c."},
        {"remove all", [](CStringArray& a) { a.RemoveAll(); }, ""},
    };
    for (const auto& row : rows) {
        CStringArray texts;
        for (const char* text : {"a", "b", "c"})
            texts.Add(text);
        row.edit(texts);
        EXPECT_EQ(row.expected, shown(texts)) << row.what;
    }
}

TEST(Arrays, MistakesAreHarmless) {
    orv::test::PassedAssertions assertions;
    CDWordArray numbers;
    numbers.Add(7);
    numbers.SetAt(1, 9);
    numbers[-1] = 9;
    numbers.RemoveAt(1, 1);
    numbers.RemoveAt(0, -1);
    numbers.InsertAt(-1, 9);
    EXPECT_EQ(0u, numbers.GetAt(1));
    EXPECT_EQ(0u, numbers[-1]);
    numbers.SetSize(-1);
    EXPECT_EQ(0, numbers.GetSize());
#if defined(_DEBUG)
    EXPECT_EQ(8, assertions.count());
#endif
}

TEST(Arrays, NewValuesAreZero) {
    CWordArray words;
    words.SetSize(3);
    words[1] = 5;
    words.SetSize(1);
    words.SetSize(3);
    EXPECT_EQ(0, words[1]);
    CPtrArray pointers;
    pointers.SetSize(1);
    EXPECT_EQ(nullptr, pointers[0]);
}

TEST(Lists, Edits) {
    const struct {
        const char* what;
        std::function<void(CStringList&)> edit;
        const char* expected;
    } rows[] = {
        {"add head", [](CStringList& l) { l.AddHead("x"); }, "x.a.b.c."},
        {"insert after the tail", [](CStringList& l) { l.InsertAfter(l.GetTailPosition(), "x"); },
         "a.b.c.x."},
        {"insert before nothing", [](CStringList& l) { l.InsertBefore(NULL, "x"); }, "x.a.b.c."},
        {"remove both ends",
         [](CStringList& l) {
             l.RemoveHead();
             l.RemoveTail();
         },
         "b."},
        {"add lists at both ends",
         [](CStringList& l) {
             CStringList m;
             m.AddTail("x");
             m.AddTail("y");
             l.AddTail(&m);
             l.AddHead(&m);
         },
         "x.y.a.b.c.x.y."},
        {"set", [](CStringList& l) { l.SetAt(l.GetTailPosition(), "x"); }, "a.b.x."},
        {"find from behind the first",
         [](CStringList& l) {
             l.AddTail("a");
             l.SetAt(l.Find("a", l.GetHeadPosition()), "x");
         },
         "a.b.c.x."},
    };
    for (const auto& row : rows) {
        CStringList texts;
        for (const char* text : {"a", "b", "c"})
            texts.AddTail(text);
        EXPECT_TRUE(texts.Find("z") == NULL && texts.FindIndex(3) == NULL) << row.what;
        row.edit(texts);
        EXPECT_EQ(row.expected, shown(texts)) << row.what;
    }
}

// Elements come and go at random places, the memory of those that went is used again.
TEST(Lists, MemoryInBlocks) {
    const unsigned seed = std::random_device()();
    SCOPED_TRACE(seed);
    std::mt19937 engine(seed);
    for (const int blockSize : {1, 2, 3, 10, 1000}) {
        CList<std::shared_ptr<int>> list(blockSize);
        std::list<std::pair<std::weak_ptr<int>, POSITION>> expected;
        for (int i = 0; i < 2000; i++) {
            // Grows to about a hundred, shrinks to nothing, and again.
            const bool grows = i / 200 % 2 == 0 ? engine() % 4 != 0 : engine() % 4 == 0;
            const auto at = std::next(expected.begin(), engine() % (expected.size() + 1));
            if (grows) {
                const auto element = std::make_shared<int>(i);
                expected.insert(at, {element, at == expected.end() ? list.AddTail(element)
                                                                   : list.InsertBefore(at->second, element)});
            } else if (at != expected.end()) {
                list.RemoveAt(at->second);
                EXPECT_TRUE(at->first.expired());
                expected.erase(at);
            }
            ASSERT_EQ((INT_PTR)expected.size(), list.GetCount());
        }
        POSITION pos = list.GetHeadPosition();
        for (const auto& [element, position] : expected) {
            ASSERT_EQ(position, pos);
            ASSERT_EQ(element.lock(), list.GetNext(pos));
        }
        EXPECT_EQ(nullptr, pos);
        pos = list.GetTailPosition();
        for (auto it = expected.rbegin(); it != expected.rend(); ++it)
            ASSERT_EQ(it->first.lock(), list.GetPrev(pos));
        EXPECT_EQ(nullptr, pos);
        list.RemoveAll();
        for (const auto& [element, position] : expected)
            EXPECT_TRUE(element.expired());
    }
}

// An element whose end empties the list.
TEST(Lists, EmptiedFromWithin) {
    struct Chain {
        ~Chain() {
            if (list != NULL)
                list->RemoveAll();
        }
        CList<std::shared_ptr<Chain>>* list = NULL;
    };
    CList<std::shared_ptr<Chain>> list(2);
    for (int i = 0; i < 5; i++)
        list.AddTail(std::make_shared<Chain>());
    list.GetHead()->list = &list;
    list.RemoveAt(list.GetHeadPosition());
    EXPECT_TRUE(list.IsEmpty());
    list.AddTail(std::make_shared<Chain>());
    list.GetHead()->list = &list;
    list.RemoveAll();
    EXPECT_EQ(0, list.GetCount());
}

TEST(Lists, MistakesAreHarmless) {
    orv::test::PassedAssertions assertions;
    CObList objects;
    EXPECT_EQ(nullptr, objects.GetHead());
    EXPECT_EQ(nullptr, objects.RemoveTail());
    POSITION pos = NULL;
    EXPECT_EQ(nullptr, objects.GetNext(pos));
    objects.RemoveAt(NULL);
    EXPECT_EQ(0, objects.GetCount());
    CStringList noBlocks(-5), hugeBlocks(INTPTR_MAX);
    noBlocks.AddTail("a");
    EXPECT_EQ("a.", shown(noBlocks));
    EXPECT_TRUE(orv::test::throws<CMemoryException>([&] { hugeBlocks.AddTail("a"); }));
    EXPECT_TRUE(hugeBlocks.IsEmpty());
}

TEST(Collections, StoredForms) {
    CByteArray bytes;
    bytes.SetAtGrow(1, 0xFF);
    CWordArray words;
    words.Add(0x1234);
    CDWordArray numbers;
    numbers.Add(0x12345678);
    CStringArray texts;
    texts.SetAtGrow(1, "ab");
    CStringList list;
    list.AddHead("");
    list.AddHead("ab");
    CObArray objects;
    objects.Add(NULL);
    CObList objectList;
    objectList.AddTail(&words);
    objectList.AddTail(&words);
    CArray<CPoint> points;
    points.Add(CPoint(1, -1));
    const struct {
        CObject* object;
        const char* hex;
    } rows[] = {
        {&bytes, "02 00 00 FF"},
        {&words, "01 00 34 12"},
        {&numbers, "01 00 78 56 34 12"},
        {&texts, "02 00 00 02 61 62"},
        {&list, "02 00 02 61 62 00"},
        {&objects, "01 00 00 00"},
        {&objectList, "02 00 FF FF 00 00 0A 00 43 57 6F 72 64 41 72 72 61 79 01 00 34 12 02 00"},
        {&points, "01 00 01 00 00 00 FF FF FF FF"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.hex, toHex(stored([&](CArchive& ar) { row.object->Serialize(ar); })));
}

TEST(Collections, LoadingReplacesArraysAndAppendsToLists) {
    CStringArray texts;
    texts.Add("old");
    CStringList list;
    list.AddTail("old");
    CDWordArray numbers;
    numbers.Add(5);
    CArray<CPoint> points;
    points.Add(CPoint(1, 2));
    // They are as before when loading fails.
    for (CObject* object : {(CObject*)&texts, (CObject*)&list, (CObject*)&numbers, (CObject*)&points})
        EXPECT_EQ(CArchiveException::endOfFile,
                  loaded(fromHex("03 00 02 61 62"), [&](CArchive& ar) { object->Serialize(ar); }));
    EXPECT_EQ("old.", shown(texts));
    EXPECT_EQ("old.", shown(list));
    EXPECT_TRUE(numbers.GetSize() == 1 && numbers[0] == 5);
    EXPECT_TRUE(points.GetSize() == 1 && points[0] == CPoint(1, 2));
    loaded(fromHex("02 00 02 61 62 00 01 00 01 78"), [&](CArchive& ar) {
        texts.Serialize(ar);
        list.Serialize(ar);
    });
    EXPECT_EQ("ab..", shown(texts));
    EXPECT_EQ("old.x.", shown(list));
}

TEST(Collections, ObjectsReadBeforeAFailureAreTheirOwnersToFree) {
    const std::string one = stored([](CArchive& ar) {
        Dot dot(7);
        ar.WriteCount(2);
        ar << &dot;
    });
    CObArray objects;
    EXPECT_EQ(CArchiveException::endOfFile, loaded(one, [&](CArchive& ar) { objects.Serialize(ar); }));
    ASSERT_EQ(1, objects.GetSize());
    delete objects[0];
    EXPECT_EQ(0, Dot::s_nLive);
}

TEST(Collections, PointersCannotBeStored) {
    CPtrArray pointers;
    EXPECT_TRUE(orv::test::throws<CNotSupportedException>(
        [&] { stored([&](CArchive& ar) { pointers.Serialize(ar); }); }));
}
