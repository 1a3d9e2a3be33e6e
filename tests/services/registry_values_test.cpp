// Values of the registry stores: what the registry then holds, byte by byte, what comes back, and values that
// others have spoilt.

#include "registry_test.h"

#include <functional>
#include <new>

#include "afx/afx_test.h"
#include "parcel.h"

using orv::test::Parcel;
using orv::test::toHex;

namespace {

template <class Store>
class RegistryValues : public orv::test::RegistryTest {
protected:
    void expectStored(const COrvRegStore& store, const char* name, DWORD type, const std::string& expected) {
        EXPECT_EQ(type, this->value(name).type) << name;
        EXPECT_EQ(expected, toHex(this->value(name).bytes)) << name;
        EXPECT_EQ(0, store.m_Info.lResult) << name;
        EXPECT_EQ(type, store.m_Info.dwType) << name;
        EXPECT_EQ(this->value(name).bytes.size(), store.m_Info.dwSize) << name;
    }
    template <class Value>
    void expectComesBack(Store& store, Value& value, Value& back, const std::string& bytes,
                         DWORD type = REG_BINARY) {
        ASSERT_TRUE(store.Write("value", value));
        expectStored(store, "value", type, bytes);
        ASSERT_TRUE(store.Read("value", back));
        this->expectInfo(store, 0, type, static_cast<DWORD>(this->value("value").bytes.size()));
    }
    template <class Value>
    void expectRefused(Store& store) {
        Value value;
        EXPECT_FALSE(store.Read("bad", value));
        EXPECT_TRUE(value.IsEmpty());
    }
};

using Stores = testing::Types<COrvRegister, COrvRegistry>;
TYPED_TEST_SUITE(RegistryValues, Stores);

} // namespace

TYPED_TEST(RegistryValues, Scalars) {
    TypeParam store = this->template opened<TypeParam>();
    int stored = -2, n = 0;
    this->expectComesBack(store, stored, n, "FE FF FF FF", REG_DWORD);
    EXPECT_EQ(-2, n);
    DWORD storedWord = 0x01020304, word = 0;
    this->expectComesBack(store, storedWord, word, "04 03 02 01", REG_DWORD);
    EXPECT_EQ(0x01020304u, word);
    EXPECT_FALSE(store.Read("none", n));
    EXPECT_EQ(-2, n);
    this->expectInfo(store, ERROR_FILE_NOT_FOUND, 0, 0);
    // Longer and shorter values.
    this->setValue("qword", REG_QWORD, std::vector<BYTE>(8, 1));
    EXPECT_FALSE(store.Read("qword", n));
    EXPECT_EQ(-2, n);
    this->expectInfo(store, ERROR_MORE_DATA, REG_QWORD, 8);
    this->setValue("word", REG_BINARY, {5, 1});
    EXPECT_TRUE(store.Read("word", n));
    EXPECT_EQ(0x105, n);
}

TYPED_TEST(RegistryValues, Blocks) {
    TypeParam store = this->template opened<TypeParam>();
    BYTE data[] = {1, 0, 0xFF};
    ASSERT_TRUE(store.Write("block", data, 3));
    this->expectStored(store, "block", REG_BINARY, "01 00 FF");
    unsigned char* back = NULL;
    unsigned size = 9;
    ASSERT_TRUE(store.Read("block", &back, &size));
    EXPECT_EQ("01 00 FF", toHex(std::string(back, back + size)));
    this->expectInfo(store, 0, REG_BINARY, 3);
    delete[] back;
    ASSERT_TRUE(store.Write("empty", data, 0));
    ASSERT_TRUE(store.Read("empty", &back, &size));
    EXPECT_EQ(0u, size);
    delete[] back;
    back = data;
    EXPECT_FALSE(store.Read("none", &back, &size));
    EXPECT_EQ(NULL, back);
    this->expectInfo(store, ERROR_FILE_NOT_FOUND, REG_BINARY, 0);
    // A value of another type: an assertion, and nothing.
    const int before = this->events_.assertions();
    store.Write("n", 5);
    EXPECT_FALSE(store.Read("n", &back, &size));
    EXPECT_EQ(before + 1, this->events_.assertions());
    EXPECT_EQ(NULL, back);
    EXPECT_EQ(0u, size);
    this->expectInfo(store, 0, REG_BINARY, 0);
    CStringList list;
    EXPECT_FALSE(store.Read("n", list));
    EXPECT_EQ(before + 1, this->events_.assertions());
    this->expectInfo(store, 0, REG_DWORD, 4);
    EXPECT_FALSE(store.Read("none", list));
    this->expectInfo(store, ERROR_FILE_NOT_FOUND, 0, 0);
    POINT point = {}, *pPoint = &point;
    EXPECT_FALSE(store.Read("none", pPoint));
    this->expectInfo(store, ERROR_FILE_NOT_FOUND, 2, 8);
}

TYPED_TEST(RegistryValues, TextsHaveTwoHundredBytes) {
    TypeParam store = this->template opened<TypeParam>();
    CString text = "before";
    this->setValue("long", REG_SZ, std::vector<BYTE>(201, 'x'));
    EXPECT_FALSE(store.Read("long", text));
    EXPECT_EQ(ERROR_MORE_DATA, store.m_Info.lResult);
    EXPECT_TRUE(text == "before");
    // Without a closing zero, and with bytes behind one.
    this->setValue("open", REG_BINARY, std::vector<BYTE>(200, 'y'));
    EXPECT_TRUE(store.Read("open", text));
    EXPECT_EQ(200, text.GetLength());
    this->expectInfo(store, 0, REG_BINARY, 200);
    this->setValue("more", REG_BINARY, {'a', 0, 'b'});
    EXPECT_TRUE(store.Read("more", text));
    EXPECT_TRUE(text == "a");
}

TYPED_TEST(RegistryValues, Collections) {
    TypeParam store = this->template opened<TypeParam>();
    CStringList list, listBack;
    list.AddTail("ab");
    list.AddTail("");
    this->expectComesBack(store, list, listBack, "02 00 02 61 62 00");
    ASSERT_EQ(2, listBack.GetCount());
    EXPECT_TRUE(listBack.GetHead() == "ab");

    CStringArray texts, textsBack;
    texts.Add("中文");
    this->expectComesBack(store, texts, textsBack, "01 00 04 D6 D0 CE C4");
    EXPECT_TRUE(textsBack[0] == "中文");

    CByteArray raw, rawBack;
    raw.Add(9);
    this->expectComesBack(store, raw, rawBack, "01 00 09");
    EXPECT_EQ(9, rawBack[0]);

    CDWordArray numbers, numbersBack;
    numbers.Add(0x01020304);
    this->expectComesBack(store, numbers, numbersBack, "01 00 04 03 02 01");
    EXPECT_EQ(0x01020304u, numbersBack[0]);

    // The reader takes the upper half of the count for the first element.
    CWordArray words, wordsBack;
    words.Add(7);
    words.Add(0x0809);
    this->expectComesBack(store, words, wordsBack, "02 00 00 00 07 00 09 08");
    ASSERT_EQ(2, wordsBack.GetSize());
    EXPECT_EQ(0, wordsBack[0]);
    EXPECT_EQ(7, wordsBack[1]);

    CRect rect(1, -1, 2, INT_MIN), rectBack;
    this->expectComesBack(store, rect, rectBack, "01 00 00 00 FF FF FF FF 02 00 00 00 00 00 00 80");
    EXPECT_TRUE(rect == rectBack);

    Parcel parcel;
    parcel.m_nWeight = 0x0A0B;
    CObList objects, objectsBack;
    objects.AddTail(&parcel);
    objects.AddTail(&parcel);
    this->expectComesBack(store, objects, objectsBack,
                          "02 00 FF FF 03 00 06 00 50 61 72 63 65 6C 0B 0A 00 00 02 00");
    ASSERT_EQ(2, objectsBack.GetCount());
    EXPECT_EQ(objectsBack.GetHead(), objectsBack.GetTail());
    EXPECT_EQ(0x0A0B, static_cast<Parcel*>(objectsBack.GetHead())->m_nWeight);
    delete objectsBack.GetHead();

    // An object of its own has no class tag.
    Parcel other;
    this->template expectComesBack<CObject>(store, parcel, other, "0B 0A 00 00");
    EXPECT_EQ(0x0A0B, other.m_nWeight);
}

TYPED_TEST(RegistryValues, Points) {
    TypeParam store = this->template opened<TypeParam>();
    // Stored in 22 bytes, with an assertion; read from at most 20.
    POINT point = {-1, 2}, pointBack = {7, 8};
    POINT *pPoint = &point, *pBack = &pointBack;
    const int before = this->events_.assertions();
    ASSERT_TRUE(store.Write("point", pPoint));
    EXPECT_EQ(before + 1, this->events_.assertions());
    EXPECT_EQ(REG_BINARY, this->value("point").type);
    EXPECT_EQ("05 00 FF FF FF FF 02 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00",
              toHex(this->value("point").bytes));
    this->expectInfo(store, 0, 2, 22);
    EXPECT_FALSE(store.Read("point", pBack));
    this->expectInfo(store, ERROR_MORE_DATA, 2, 8);
    EXPECT_EQ(7, pointBack.x);
    // Two numbers do fit.
    this->setValue("short", REG_BINARY,
                   orv::test::fromHex<std::vector<BYTE>>("02 00 05 00 00 00 06 00 00 00"));
    EXPECT_TRUE(store.Read("short", pBack));
    this->expectInfo(store, 0, 2, 8);
    EXPECT_EQ(5, pointBack.x);
    EXPECT_EQ(6, pointBack.y);
}

TYPED_TEST(RegistryValues, ReadOnlyStoresRefuse) {
    TypeParam store = this->template opened<TypeParam>(1);
    store.m_Info = {77, 88, 99};
    CRect rect; // one of those that are stored as streams
    POINT point = {}, *pPoint = &point;
    BYTE byte = 0;
    EXPECT_FALSE(store.Write("a", 1));
    EXPECT_FALSE(store.Write("a", "text"));
    EXPECT_FALSE(store.Write("a", static_cast<const char*>(NULL)));
    EXPECT_FALSE(store.Write("a", &byte, 1));
    EXPECT_FALSE(store.Write("a", rect));
    EXPECT_FALSE(store.Write("a", pPoint));
    EXPECT_FALSE(store.CreateKey("a"));
    this->expectInfo(store, 77, 88, 99);
    EXPECT_EQ(0u, this->valueCount());
    EXPECT_FALSE(this->template opened<TypeParam>().VerifyKey("a"));
    EXPECT_EQ(0, this->events_.assertions());
}

// From 4096 bytes on: stored with an assertion; beyond, never read again.
TYPED_TEST(RegistryValues, LongCollections) {
    TypeParam store = this->template opened<TypeParam>();
    for (const int length : {4095, 4096, 4097}) {
        CByteArray raw, back;
        raw.SetSize(length - 2);
        back.Add(5);
        const int before = this->events_.assertions();
        EXPECT_TRUE(store.Write("long", raw)) << length;
        this->expectInfo(store, 0, REG_BINARY, length);
        EXPECT_EQ(before + (length >= 4096 ? 1 : 0), this->events_.assertions()) << length;
        EXPECT_EQ(length <= 4096, store.Read("long", back) != 0) << length;
        EXPECT_EQ(length <= 4096 ? length - 2 : 1, back.GetSize()) << length;
    }
    EXPECT_EQ(ERROR_MORE_DATA, store.m_Info.lResult);
}

// Values of every bad kind, by every way of reading a stream.
TYPED_TEST(RegistryValues, HostileValues) {
    TypeParam store = this->template opened<TypeParam>();
    const std::vector<BYTE> ones(0x10000, 0xFF);
    const struct {
        DWORD type;
        std::vector<BYTE> bytes;
    } rows[] = {
        {REG_BINARY, ones},        {REG_BINARY, {ones.begin(), ones.begin() + 4096}},
        {REG_BINARY, {}},          {REG_BINARY, {5, 0, 1, 1}},
        {REG_SZ, {'0', '0', 0}},   {REG_MULTI_SZ, {0, 0, 0, 0, 0, 0}},
        {REG_DWORD, {0, 0, 0, 0}}, {REG_BINARY, {0xFE, 0xFF, 0, 0, 0, 0, 0}}, // a count that lies
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.type);
        SCOPED_TRACE(row.bytes.size());
        this->setValue("bad", row.type, row.bytes);
        this->template expectRefused<CStringList>(store);
        this->template expectRefused<CStringArray>(store);
        this->template expectRefused<CByteArray>(store);
        this->template expectRefused<CDWordArray>(store);
        this->template expectRefused<CWordArray>(store);
        this->template expectRefused<CObList>(store);
        POINT point = {7, 8}, *pPoint = &point;
        EXPECT_FALSE(store.Read("bad", pPoint));
        EXPECT_EQ(7, point.x);
        CRect rect(1, 2, 3, 4);
        if (row.bytes.size() < sizeof(RECT)) {
            EXPECT_FALSE(store.Read("bad", rect));
            EXPECT_TRUE(rect == CRect(1, 2, 3, 4));
        }
    }
}

// Nothing that an object's own code throws gets out, in either direction; some is told to the debugger.
TYPED_TEST(RegistryValues, EverythingThrownIsCaught) {
    TypeParam store = this->template opened<TypeParam>();
    this->setValue("object", REG_BINARY, std::vector<BYTE>(100));
    Parcel parcel;
    CObject& object = parcel;
    const struct {
        std::function<void()> thrower;
        std::string written, read;
    } rows[] = {
        {[] { AfxThrowArchiveException(CArchiveException::badClass); }, "",
         "CArchiveException exception in CRegistry::Read ()!\n"},
        {[] { AfxThrowMemoryException(); }, "Memory exception in CRegistry::Write ()!\n",
         "Memory exception in CRegistry::Read ()!\n"},
        {[] { throw std::bad_alloc(); }, "Memory exception in CRegistry::Write ()!\n",
         "Memory exception in CRegistry::Read ()!\n"},
        {[] { AfxThrowUserException(); }, "", ""},
        {[] { AfxThrowFileException(CFileException::diskFull); }, "", ""},
        {[] { throw 5; }, "", ""},
    };
    for (const auto& row : rows) {
        parcel.m_onSerialize = row.thrower;
        size_t before = this->events_.text().size();
        EXPECT_FALSE(store.Write("thrown", object));
        EXPECT_EQ(row.written, this->events_.text().substr(before));
        before = this->events_.text().size();
        EXPECT_FALSE(store.Read("object", object));
        EXPECT_EQ(row.read, this->events_.text().substr(before));
    }
    EXPECT_EQ(1u, this->valueCount());
}

namespace {

class RegistryTexts : public orv::test::RegistryTest {};

} // namespace

TEST_F(RegistryTexts, RegisterStoresTheText) {
    COrvRegister store = opened<COrvRegister>();
    for (const std::string text : {"誠 a", ""}) {
        ASSERT_TRUE(store.Write("text", text.c_str())) << text;
        EXPECT_EQ(REG_SZ, value("text").type) << text;
        EXPECT_EQ(toHex(text + '\0'), toHex(value("text").bytes));
        EXPECT_EQ(1u, store.m_Info.dwType) << text;
        EXPECT_EQ(text.size() + 1, store.m_Info.dwSize) << text;
        CString back = "old";
        EXPECT_TRUE(store.Read("text", back)) << text;
        EXPECT_EQ(text, orv::test::bytesOf(back));
    }
}

// The pointer's own bytes, and zeros: an address below 128 byte by byte keeps the code page out of the
// picture.
TEST_F(RegistryTexts, RegistryStoresThePointer) {
    char* const page = static_cast<char*>(::VirtualAlloc(reinterpret_cast<void*>(0x21410000), 0x10000,
                                                         MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
    ASSERT_TRUE(page != NULL);
    char* const text = page + 0x4342;
    strcpy(text, "twelve chars");
    COrvRegistry store = opened<COrvRegistry>();
    ASSERT_TRUE(store.Write("text", text));
    EXPECT_EQ(1u, store.m_Info.dwType);
    EXPECT_EQ(13u, store.m_Info.dwSize);
    EXPECT_EQ(REG_SZ, value("text").type);
    EXPECT_EQ("42 43 41 21 00 00 00 00 00 00 00 00 00", toHex(value("text").bytes));
    // Shorter than the pointer: not closed by the system either.
    strcpy(text, "ab");
    ASSERT_TRUE(store.Write("short", text));
    EXPECT_EQ(3u, store.m_Info.dwSize);
    EXPECT_EQ("42 43 41", toHex(value("short").bytes));
    ::VirtualFree(page, 0, MEM_RELEASE);
}
