// The stream forms of stored values, byte by byte, and what becomes of damaged ones.

#include <orvfc/services/StoredStreams.h>

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <string>

#include "hex.h"
#include "parcel.h"

using namespace orv;
using test::Parcel;

namespace {

CStringList& fill(CStringList& list, std::initializer_list<const char*> texts) {
    for (const char* text : texts)
        list.AddTail(text);
    return list;
}

std::string joined(const CStringList& list) {
    std::string all;
    for (POSITION pos = list.GetHeadPosition(); pos != NULL;)
        all += std::string(list.GetNext(pos).GetString()) + ";";
    return all;
}

} // namespace

TEST(StoredStreams, LayoutOfEachKind) {
    StreamBytes bytes;
    CStringList list;
    storeObject(fill(list, {"ab", ""}), bytes);
    EXPECT_EQ("02 00 02 61 62 00", test::hex(bytes));

    CStringArray texts;
    texts.Add("x");
    storeObject(texts, bytes);
    EXPECT_EQ("01 00 01 78", test::hex(bytes));

    CByteArray raw;
    raw.Add(7);
    raw.Add(255);
    storeObject(raw, bytes);
    EXPECT_EQ("02 00 07 FF", test::hex(bytes));

    CDWordArray numbers;
    numbers.Add(0x01020304);
    storeObject(numbers, bytes);
    EXPECT_EQ("01 00 04 03 02 01", test::hex(bytes));

    CWordArray words;
    words.Add(7);
    words.Add(0x0809);
    storeWords(words, bytes);
    EXPECT_EQ("02 00 00 00 07 00 09 08", test::hex(bytes));

    storeRect({1, -2, 3, INT_MIN}, bytes);
    EXPECT_EQ("01 00 00 00 FE FF FF FF 03 00 00 00 00 00 00 80", test::hex(bytes));

    storePoint({-1, 2}, bytes);
    EXPECT_EQ("05 00 FF FF FF FF 02 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00", test::hex(bytes));
}

// Prefixes of counts and texts where they change their width.
TEST(StoredStreams, LongCountsAndTexts) {
    struct {
        int length;
        const char* head;
    } const rows[] = {{0xFE, "01 00 FE 61"},
                      {0xFF, "01 00 FF FF 00 61"},
                      {0xFFFD, "01 00 FF FD FF 61"},
                      {0xFFFE, "01 00 FF FF FF FE FF 00 00 61"}};
    for (const auto& row : rows) {
        CStringList list, back;
        list.AddTail(CString('a', row.length));
        StreamBytes bytes;
        storeObject(list, bytes);
        EXPECT_EQ(row.head, test::hex(bytes).substr(0, strlen(row.head))) << row.length;
        ASSERT_EQ(StreamOutcome::good, loadStream(bytes, back)) << row.length;
        EXPECT_TRUE(back.GetHead() == list.GetHead()) << row.length;
    }
    CByteArray many, back;
    many.SetSize(0xFFFF);
    StreamBytes bytes;
    storeObject(many, bytes);
    EXPECT_EQ(2u + 4 + 0xFFFF, bytes.size());
    EXPECT_EQ("FF FF FF FF 00 00", test::hex({bytes.data(), 6}));
    EXPECT_EQ(StreamOutcome::good, loadStream(bytes, back));
    EXPECT_EQ(0xFFFF, back.GetSize());
}

// The reader takes the upper half of the count for the first element.
TEST(StoredStreams, WordsComeBackShifted) {
    CWordArray words, back;
    words.Add(7);
    words.Add(8);
    StreamBytes bytes;
    storeWords(words, bytes);
    ASSERT_EQ(StreamOutcome::good, loadStream(bytes, static_cast<CObject&>(back)));
    ASSERT_EQ(2, back.GetSize());
    EXPECT_EQ(0, back[0]);
    EXPECT_EQ(7, back[1]);
}

TEST(StoredStreams, PointsOfShortArrays) {
    struct {
        const char* bytes;
        StreamOutcome outcome;
        LONG x, y;
    } const rows[] = {
        {"02 00 05 00 00 00 FF FF FF FF", StreamOutcome::good, 5, -1},
        {"03 00 05 00 00 00 06 00 00 00 07 00 00 00", StreamOutcome::good, 5, 6},
        {"01 00 05 00 00 00", StreamOutcome::damaged, 70, 80},
        {"00 00", StreamOutcome::damaged, 70, 80},
        {"05 00 05 00 00 00 06 00 00 00 07 00 00 00 08 00 00 00", StreamOutcome::damaged, 70, 80},
        {"", StreamOutcome::damaged, 70, 80},
    };
    for (const auto& row : rows) {
        POINT point = {70, 80};
        EXPECT_EQ(row.outcome, loadStream(test::bytes(row.bytes), point)) << row.bytes;
        EXPECT_EQ(row.x, point.x) << row.bytes;
        EXPECT_EQ(row.y, point.y) << row.bytes;
    }
}

// Good streams cut at every byte leave what was there.
TEST(StoredStreams, CutStreamsChangeNothing) {
    CStringList stored;
    StreamBytes bytes;
    storeObject(fill(stored, {"one", "", "three"}), bytes);
    for (size_t n = 0; n < bytes.size(); ++n) {
        CStringList list;
        fill(list, {"before"});
        EXPECT_EQ(StreamOutcome::damaged, loadStream(StreamView(bytes).first(n), list)) << n;
        EXPECT_EQ("before;", joined(list)) << n;
        CStringArray array;
        array.Add("before");
        EXPECT_EQ(StreamOutcome::damaged, loadStream(StreamView(bytes).first(n), array)) << n;
        ASSERT_EQ(1, array.GetSize()) << n;
        EXPECT_TRUE(array[0] == "before") << n;
    }
    CStringList list;
    fill(list, {"before"});
    EXPECT_EQ(StreamOutcome::good, loadStream(bytes, list));
    EXPECT_EQ("before;one;;three;", joined(list));

    storeRect({1, 2, 3, 4}, bytes);
    for (size_t n = 0; n < bytes.size(); ++n) {
        RECT rect = {5, 6, 7, 8};
        EXPECT_EQ(StreamOutcome::damaged, loadStream(StreamView(bytes).first(n), rect)) << n;
        EXPECT_EQ(5, rect.left) << n;
        EXPECT_EQ(8, rect.bottom) << n;
    }
}

TEST(StoredStreams, CountsThatLie) {
    const char* const streams[] = {"FF FF FF FF FF FF FF FF FF FF FF FF FF FF", "FF FF FF FF FF 7F 01 02",
                                   "FE FF 01", "02 00 FF FF FF FF"};
    for (const char* stream : streams) {
        const StreamBytes bytes = test::bytes(stream);
        CStringList texts;
        CObList objects;
        CDWordArray numbers;
        EXPECT_NE(StreamOutcome::good, loadStream(bytes, texts)) << stream;
        EXPECT_NE(StreamOutcome::good, loadStream(bytes, objects)) << stream;
        EXPECT_NE(StreamOutcome::good, loadStream(bytes, static_cast<CObject&>(numbers))) << stream;
        EXPECT_TRUE(texts.IsEmpty() && objects.IsEmpty() && numbers.IsEmpty()) << stream;
    }
    // A text whose length lies.
    CStringList texts;
    EXPECT_NE(StreamOutcome::good,
              loadStream(test::bytes("01 00 FF FF FF FF FF FF FF FF FF FF FF FF FF 7F"), texts));
    EXPECT_TRUE(texts.IsEmpty());
}

// A class is named once, an object is stored once; its second place in the list is a number.
TEST(StoredStreams, ObjectsAreShared) {
    Parcel one, two;
    one.m_nWeight = 5;
    two.m_nWeight = 6;
    CObList list;
    list.AddTail(&one);
    list.AddTail(&two);
    list.AddTail(&one);
    list.AddTail(static_cast<CObject*>(NULL));
    StreamBytes bytes;
    ASSERT_EQ(StreamOutcome::good, storeObject(list, bytes));
    EXPECT_EQ("04 00 FF FF 03 00 06 00 50 61 72 63 65 6C 05 00 00 00 01 80 06 00 00 00 02 00 00 00",
              test::hex(bytes));

    CObList back;
    ASSERT_EQ(StreamOutcome::good, loadStream(bytes, back));
    ASSERT_EQ(4, back.GetCount());
    auto* first = DYNAMIC_DOWNCAST(Parcel, back.RemoveHead());
    auto* second = DYNAMIC_DOWNCAST(Parcel, back.RemoveHead());
    ASSERT_TRUE(first != NULL && second != NULL);
    EXPECT_EQ(5, first->m_nWeight);
    EXPECT_EQ(6, second->m_nWeight);
    EXPECT_EQ(first, back.RemoveHead());
    EXPECT_TRUE(back.RemoveHead() == NULL);
    delete first;
    delete second;
}

namespace {

// The parcels made since; not deleted by what made them, they are so here, crates without their contents.
class NewParcels {
public:
    NewParcels() : before_(Parcel::all()) {}
    ~NewParcels() {
        const std::set<Parcel*> made = get();
        for (Parcel* parcel : made)
            if (auto* crate = DYNAMIC_DOWNCAST(test::Crate, parcel))
                crate->m_pContent = NULL;
        for (Parcel* parcel : made)
            delete parcel;
    }
    NewParcels(const NewParcels&) = delete;
    NewParcels& operator=(const NewParcels&) = delete;

    std::set<Parcel*> get() const {
        std::set<Parcel*> made = Parcel::all();
        for (Parcel* parcel : before_)
            made.erase(parcel);
        return made;
    }

private:
    std::set<Parcel*> before_;
};

} // namespace

// Cut anywhere, a list of objects is as before. The objects that were read whole live on: some stand in the
// list and in a crate, which deletes its content. One that was read in part is deleted, unless the stream
// has named its content again.
TEST(StoredStreams, CutObjectListsAreUndone) {
    Parcel first, content;
    test::Crate crate, twin;
    crate.m_pContent = twin.m_pContent = &content;
    CObList list;
    for (CObject* object : {static_cast<CObject*>(&first), static_cast<CObject*>(&crate),
                            static_cast<CObject*>(&content), static_cast<CObject*>(&twin)})
        list.AddTail(object);
    StreamBytes bytes;
    ASSERT_EQ(StreamOutcome::good, storeObject(list, bytes));
    crate.m_pContent = twin.m_pContent = NULL;
    Parcel kept;
    for (size_t n = 0; n < bytes.size(); ++n) {
        const NewParcels made;
        CObList back;
        back.AddTail(&kept);
        EXPECT_EQ(StreamOutcome::damaged, loadStream(StreamView(bytes).first(n), back)) << n;
        ASSERT_EQ(1, back.GetCount()) << n;
        EXPECT_EQ(&kept, back.GetHead()) << n;
        // The first one ends at 18, the crate at 39 of 49 bytes; at 45 the twin has been given its content.
        const size_t stay = n < 18 ? 0 : n < 39 ? 1 : n < 45 ? 3 : 4;
        EXPECT_EQ(stay, made.get().size()) << n;
    }
}

TEST(StoredStreams, HostileObjectLists) {
    const char* const streams[] = {
        "01 00 05 00",                                                 // an object that never came
        "01 00 01 80",                                                 // a class that never came
        "01 00 FF FF 03 00 06 00 51 51 51 51 51 51",                   // a class that nobody knows
        "01 00 FF FF 04 00 06 00 50 61 72 63 65 6C 05 00 00 00",       // another schema
        "01 00 FF FF 03 00 FF FF 50 61 72 63 65 6C",                   // a name that goes on and on
        "01 00 FF FF 03 00 00 00",                                     // no name
        "01 00 FF FF 03 00 07 00 43 4F 62 6A 65 63 74 01 00 00 00",    // not a serial class
        "02 00 FF FF 03 00 06 00 50 61 72 63 65 6C 05 00 00 00 01 00", // a class where an object is due
        "01 00 FF 7F FF FF FF FF",
    };
    for (const char* stream : streams) {
        const NewParcels made;
        CObList list;
        EXPECT_EQ(StreamOutcome::damaged, loadStream(test::bytes(stream), list)) << stream;
        EXPECT_TRUE(list.IsEmpty()) << stream;
    }
    // Objects within objects, deeper than any stack.
    StreamBytes deep = test::bytes("01 00 FF FF 00 00 07 00 43 4F 62 4C 69 73 74");
    for (int i = 0; i < 200000; ++i)
        for (const BYTE byte : {1, 0, 1, 0x80})
            deep.push_back(byte);
    CObList list;
    EXPECT_NE(StreamOutcome::good, loadStream(deep, list));
    EXPECT_TRUE(list.IsEmpty());
}

// Whatever a host's object throws stays inside.
TEST(StoredStreams, EverythingThrownIsCaught) {
    struct {
        std::function<void()> thrower;
        StreamOutcome outcome;
    } const rows[] = {
        {[] { AfxThrowArchiveException(CArchiveException::badIndex); }, StreamOutcome::damaged},
        {[] { AfxThrowMemoryException(); }, StreamOutcome::noMemory},
        {[] { throw std::bad_alloc(); }, StreamOutcome::noMemory},
        {[] { AfxThrowUserException(); }, StreamOutcome::failed},
        {[] { AfxThrowFileException(CFileException::diskFull); }, StreamOutcome::failed},
        {[] { throw 5; }, StreamOutcome::failed},
    };
    for (const auto& row : rows) {
        Parcel parcel;
        parcel.m_onSerialize = row.thrower;
        StreamBytes bytes = {1, 2, 3};
        EXPECT_EQ(row.outcome, storeObject(parcel, bytes));
        EXPECT_TRUE(bytes.empty());
        const StreamBytes stream(100);
        EXPECT_EQ(row.outcome, loadStream(stream, parcel));
    }
}

TEST(StoredStreams, PointersAsText) {
    const char* const pointer = "text";
    StreamBytes expected(20, 0);
    memcpy(expected.data(), &pointer, sizeof(pointer));
    expected.push_back(0xFF);
    EXPECT_EQ(expected, pointerBytes(pointer, 20));

    const StreamBytes shortest = pointerBytes(pointer, 1);
    ASSERT_EQ(2u, shortest.size());
    EXPECT_EQ(expected[0], shortest[0]);
}
