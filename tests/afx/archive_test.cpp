#include "shapes.h"

#include "afx_test.h"

#include <afxdisp.h>

// The stream byte by byte, and the buffer between it and the file.

using orv::test::bytesOf;
using orv::test::contentsOf;
using orv::test::CopiedMemFile;
using orv::test::fromHex;
using orv::test::loaded;
using orv::test::stored;
using orv::test::toHex;

TEST(Archive, StoredForms) {
    Dot dot(5), second(6);
    second.m_pLink = &second;
    const struct {
        const char* what;
        std::function<void(CArchive&)> store;
        const char* hex;
    } rows[] = {
        {"bytes and words",
         [](CArchive& ar) { ar << (BYTE)1 << (WORD)0x203 << (DWORD)0x4050607 << (LONG)-2; },
         "01 03 02 07 06 05 04 FE FF FF FF"},
        {"small types", [](CArchive& ar) { ar << 'A' << (short)-2 << true << false; }, "41 FE FF 01 00"},
        {"floats", [](CArchive& ar) { ar << 1.0f << -2.0; }, "00 00 80 3F 00 00 00 00 00 00 00 C0"},
        {"64 bits", [](CArchive& ar) { ar << (LONGLONG)-2 << (ULONGLONG)1; },
         "FE FF FF FF FF FF FF FF 01 00 00 00 00 00 00 00"},
        {"coordinates", [](CArchive& ar) { ar << CPoint(1, 2) << CSize(3, 4); },
         "01 00 00 00 02 00 00 00 03 00 00 00 04 00 00 00"},
        {"rectangle", [](CArchive& ar) { ar << CRect(1, 2, 3, -1); },
         "01 00 00 00 02 00 00 00 03 00 00 00 FF FF FF FF"},
        {"date", [](CArchive& ar) { ar << COleDateTime(1899, 12, 31, 12, 0, 0); },
         "00 00 00 00 00 00 00 00 00 00 F8 3F"},
        {"text", [](CArchive& ar) { ar << CString("a誠"); }, "03 61 D5 5C"},
        {"text alone", [](CArchive& ar) { ar.WriteString("ab\n"); }, "61 62 0A"},
        {"counts",
         [](CArchive& ar) {
             ar.WriteCount(0xFFFE);
             ar.WriteCount(0xFFFF);
         },
         "FE FF FF FF FF FF 00 00"},
        {"large counts",
         [](CArchive& ar) {
             ar.WriteCount(0xFFFFFFFE);
             ar.WriteCount(0xFFFFFFFF);
         },
         "FF FF FE FF FF FF FF FF FF FF FF FF FF FF FF FF 00 00 00 00"},
        {"no object", [](CArchive& ar) { ar << (CObject*)NULL; }, "00 00"},
        {"object, class once, back reference", [&](CArchive& ar) { ar << &dot << &second << &dot; },
         "FF FF 01 00 03 00 44 6F 74 05 00 00 00 00 00 01 80 06 00 00 00 03 00 02 00"},
        {"object in place",
         [&](CArchive& ar) {
             ar.MapObject(&dot);
             dot.Serialize(ar);
             ar << &dot;
         },
         "05 00 00 00 00 00 01 00"},
        {"class alone",
         [](CArchive& ar) {
             ar.SerializeClass(RUNTIME_CLASS(Grown));
             ar.WriteClass(RUNTIME_CLASS(Grown));
         },
         "FF FF 02 00 05 00 47 72 6F 77 6E 01 80"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(row.hex, toHex(stored(row.store)));
        EXPECT_EQ(row.hex, toHex(stored<CopiedMemFile>(row.store, 128)));
    }
}

TEST(Archive, TextLengths) {
    const struct {
        int nLength;
        const char* prefix;
    } rows[] = {
        {0, "00"},
        {0xFE, "FE"},
        {0xFF, "FF FF 00"},
        {0xFFFD, "FF FD FF"},
        {0xFFFE, "FF FF FF FE FF 00 00"},
        {0xFFFF, "FF FF FF FF FF 00 00"},
        {0x10000, "FF FF FF 00 00 01 00"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.nLength);
        const CString text('x', row.nLength);
        const std::string stream = stored([&](CArchive& ar) { ar << text << (BYTE)0xEE; });
        EXPECT_EQ(fromHex(row.prefix) + std::string((size_t)row.nLength, 'x') + "\xEE", stream);
        CString back;
        BYTE mark = 0;
        EXPECT_EQ(CArchiveException::none,
                  loaded<CopiedMemFile>(stream, [&](CArchive& ar) { ar >> back >> mark; }));
        EXPECT_TRUE(back == text && mark == 0xEE);
    }
}

TEST(Archive, TextsOfUnicodePrograms) {
    CString text, second;
    // Mark, two units: 誠 and A; then a long one of 0x100 units.
    std::string stream = "FF FE FF 02 A0 8A 41 00 FF FE FF FF 00 01";
    for (int i = 0; i < 0x100; i++)
        stream += " 42 00";
    EXPECT_EQ(CArchiveException::none, loaded(fromHex(stream), [&](CArchive& ar) { ar >> text >> second; }));
    EXPECT_EQ("誠A", bytesOf(text));
    EXPECT_EQ(std::string(0x100, 'B'), bytesOf(second));
    // Half a surrogate pair between two letters.
    EXPECT_EQ(CArchiveException::none,
              loaded(fromHex("FF FE FF 03 41 00 00 D8 42 00"), [&](CArchive& ar) { ar >> text; }));
    EXPECT_EQ("A?B", bytesOf(text));
}

TEST(Archive, Lines) {
    CString line;
    std::string lines;
    loaded(fromHex("61 62 0D 0A 0A 63 0D 64 0A 65"), [&](CArchive& ar) {
        while (ar.ReadString(line))
            lines += bytesOf(line) + "|";
    });
    EXPECT_EQ("ab||c\rd|e|", lines);
    char buffer[4];
    loaded("abcdef\r\ng", [&](CArchive& ar) {
        for (const char* expected : {"abc", "def", "", "g", (const char*)NULL})
            EXPECT_STREQ(expected, ar.ReadString(buffer, 3));
    });
}

TEST(Archive, NumbersPastTheSmallTags) {
    const int nDots = 0x7FFE; // with their class they take the numbers up to 0x7FFF
    Dot* dots = new Dot[nDots];
    Grown grown;
    const std::string stream = stored([&](CArchive& ar) {
        for (int i = 0; i < nDots; i++)
            ar << &dots[i];
        ar << &dots[nDots - 2] << &dots[nDots - 1]; // 0x7FFE, 0x7FFF
        ar << &grown << &grown;                     // 0x8001 behind its class
        ar.WriteClass(RUNTIME_CLASS(Grown));        // 0x8000
    });
    const std::string tail = fromHex("FE 7F  FF 7F FF 7F 00 00  FF FF 02 00 05 00 47 72 6F 77 6E "
                                     "00 00 00 00 00 00 00 00  FF 7F 01 80 00 00  FF 7F 00 80 00 80");
    EXPECT_EQ(toHex(tail), toHex(stream.substr(stream.size() - tail.size())));
    delete[] dots;

    CObArray read;
    CObject *before = NULL, *last = NULL, *sameGrown = NULL;
    Grown* readGrown = NULL;
    EXPECT_EQ(CArchiveException::none, loaded(stream, [&](CArchive& ar) {
                  for (int i = 0; i < nDots; i++)
                      read.Add(ar.ReadObject(RUNTIME_CLASS(Dot)));
                  ar >> before >> last >> readGrown >> sameGrown;
                  EXPECT_EQ(RUNTIME_CLASS(Grown), ar.ReadClass());
              }));
    EXPECT_EQ(read[nDots - 2], before);
    EXPECT_EQ(read[nDots - 1], last);
    EXPECT_EQ(readGrown, sameGrown);
    delete readGrown;
    for (INT_PTR i = 0; i < read.GetSize(); i++)
        delete read[i];
}

TEST(Archive, SelfReferencesWhileHalfRead) {
    Dot* dot = NULL;
    loaded(fromHex("FF FF 01 00 03 00 44 6F 74 05 00 00 00 02 00"), [&](CArchive& ar) { ar >> dot; });
    ASSERT_NE(nullptr, dot);
    EXPECT_EQ(dot, dot->m_pLink);
    delete dot;
}

TEST(Archive, OlderSchemas) {
    const struct {
        const char* hex;
        UINT nSchema;
        LONG nNew;
    } rows[] = {
        {"FF FF 01 00 05 00 47 72 6F 77 6E 07 00 00 00 08 00 00 00", 1, 0},
        {"FF FF 02 00 05 00 47 72 6F 77 6E 07 00 00 00 08 00 00 00", 2, 8},
    };
    for (const auto& row : rows) {
        Grown* grown = NULL;
        loaded(fromHex(row.hex), [&](CArchive& ar) {
            ar.SetObjectSchema(9); // of an object around it, not asked for yet
            ar >> grown;
            EXPECT_EQ(9u, ar.GetObjectSchema());
            EXPECT_EQ((UINT)-1, ar.GetObjectSchema());
        });
        ASSERT_NE(nullptr, grown);
        EXPECT_TRUE(grown->m_nSchema == row.nSchema && grown->m_nOld == 7 && grown->m_nNew == row.nNew);
        delete grown;
    }
}

template <class FILE>
void flushing() {
    FILE file;
    {
        CArchive ar(&file, CArchive::store, 128);
        ar << (LONG)1;
        ar.Flush();
        EXPECT_EQ(4u, file.GetLength());
        file.Write("raw", 3); // the host writes on, behind the archive's back but after a flush
        ar << (LONG)2;
        ar.Close();
    }
    EXPECT_EQ("01 00 00 00 72 61 77 02 00 00 00", toHex(contentsOf(file)));
    file.SeekToBegin();
    CArchive ar(&file, CArchive::load, 128);
    LONG n;
    ar >> n;
    ar.Flush();
    EXPECT_EQ(4u, file.GetPosition());
    char raw[3];
    EXPECT_EQ(3u, file.Read(raw, 3));
    ar >> n;
    EXPECT_EQ(2, n);
    EXPECT_TRUE(ar.IsBufferEmpty());
    ar.Close();
    EXPECT_EQ(11u, file.GetPosition());
}

TEST(Archive, FlushGoesBothWays) {
    flushing<CMemFile>();
    flushing<CopiedMemFile>();
}

// Lets the tests look at the buffer as a derived class may.
class OpenArchive : public CArchive {
public:
    using CArchive::CArchive;
    BYTE* current() const { return m_lpBufCur; }
    void fill(UINT n) { FillBuffer(n); }
};

TEST(Archive, FillingABufferKeepsWhatIsUnread) {
    CMemFile direct;
    CopiedMemFile copied;
    for (CMemFile* file : {&direct, (CMemFile*)&copied}) {
        for (int i = 0; i < 300; i++) {
            const BYTE b = (BYTE)i;
            file->Write(&b, 1);
        }
        file->SeekToBegin();
        BYTE own[200], read[100];
        OpenArchive ar(file, CArchive::load, file == &copied ? sizeof(own) : 128,
                       file == &copied ? own : NULL);
        ar.fill(128);
        const BYTE* start = ar.current();
        ar.EnsureRead(read, 100);
        EXPECT_EQ(start + 100, ar.current());
        ar.fill(150);
        EXPECT_EQ(file == &copied ? own : start + 100, ar.current()); // moved to the front, or no copy at all
        EXPECT_TRUE(ar.current()[0] == 100 && ar.current()[149] == (BYTE)249);
        BYTE rest[200];
        ar.EnsureRead(rest, 200);
        EXPECT_TRUE(rest[0] == 100 && rest[199] == (BYTE)299);
    }
}

TEST(Archive, FixedBlocksTakeWhatFits) {
    BYTE block[16] = {};
    CMemFile file(block, sizeof(block));
    CArchive ar(&file, CArchive::store);
    ar << (ULONGLONG)-1 << (ULONGLONG)-1;
    ar.Close();
    EXPECT_EQ(0xFF, block[15]);
    CMemFile small(block, 4);
    CArchive full(&small, CArchive::store | CArchive::bNoFlushOnDelete);
    EXPECT_TRUE(orv::test::throws<CMemoryException>([&] { full << (ULONGLONG)0; }));
}

TEST(Archive, NoFlushOnDelete) {
    CopiedMemFile file;
    {
        CArchive ar(&file, CArchive::store | CArchive::bNoFlushOnDelete);
        ar << (LONG)1;
    }
    EXPECT_EQ(0u, file.GetLength());
}
