#include "shapes.h"

#include "afx_test.h"

#include <afxdisp.h>

// Streams that are broken, cut short or lie: the right exception, nothing leaked, no memory for bytes that
// are not there.

using orv::test::CopiedMemFile;
using orv::test::fromHex;
using orv::test::loaded;
using orv::test::stored;
using orv::test::throws;

namespace {

// A branch without a name as far as its children: class 1, object 2.
#define BRANCH "FF FF 01 00 06 00 42 72 61 6E 63 68 00 00 00 00 00 00 00 00 00 "
#define DOT "FF FF 01 00 03 00 44 6F 74 05 00 00 00 00 00 " // class 1, object 2

// A class that is registered but makes no objects.
class Abstract : public CObject {
public:
    virtual void draw() = 0;
};
const CRuntimeClass abstractClass = {"Abstract", sizeof(Abstract), 1, NULL, &CObject::GetThisClass, NULL,
                                     NULL};
const AFX_CLASSINIT abstractRegistration(&abstractClass);

// The end of an element's life when nobody took it.
void readObjects(CArchive& ar, const CRuntimeClass* pClass) {
    CObject* read[8];
    int n = 0;
    try {
        while (true) {
            CObject* object = ar.ReadObject(pClass);
            bool bNew = object != NULL;
            for (int i = 0; i < n; i++)
                bNew = bNew && read[i] != object;
            if (bNew && n < 8)
                read[n++] = object;
        }
    } catch (...) {
        while (n > 0)
            delete read[--n];
        throw;
    }
}

// Fails at the n-th read.
class FailingFile : public CopiedMemFile {
public:
    UINT Read(void* lpBuf, UINT nCount) override {
        if (m_nLeft-- == 0)
            AfxThrowFileException(CFileException::hardIO);
        return CMemFile::Read(lpBuf, nCount < 7 ? nCount : 7);
    }
    int m_nLeft = INT_MAX;
};

std::string goodStream() {
    Branch* trunk = new Branch;
    trunk->m_n = 7;
    trunk->m_strName = "树干";
    trunk->m_numbers.Add(1);
    trunk->m_numbers.Add(2);
    for (int i = 0; i < 3; i++) {
        Branch* twig = new Branch;
        twig->m_strName = CString('x', 300);
        twig->m_children.Add(new Dot(i));
        trunk->m_children.Add(twig);
    }
    const std::string stream = stored([&](CArchive& ar) { ar << trunk; });
    delete trunk;
    return stream;
}

} // namespace

TEST(HostileArchive, BrokenObjects) {
    using Cause = CArchiveException;
    const struct {
        const char *what, *hex;
        int nCause;
        const CRuntimeClass* pClass = NULL;
    } rows[] = {
        {"object past the last", DOT "05 00", Cause::badIndex},
        {"object number of the next", DOT "03 00", Cause::badIndex},
        {"object number names a class", DOT "01 00", Cause::badIndex},
        {"class number names an object", DOT "02 80", Cause::badIndex},
        {"class number names an object, a class is asked for", DOT "02 80", Cause::badIndex,
         RUNTIME_CLASS(Dot)},
        {"class number 0", "00 80", Cause::badIndex},
        {"class past the last", "07 80", Cause::badIndex},
        {"large class number 0", "FF 7F 00 00 00 80", Cause::badIndex},
        {"largest class number", "FF 7F FF FF FF FF", Cause::badIndex},
        {"largest object number", "FF 7F FF FF FF 7F", Cause::badIndex},
        {"unknown class", "FF FF 01 00 03 00 58 59 5A", Cause::badClass},
        {"class without a name", "FF FF 01 00 00 00", Cause::badClass},
        {"name of 64 KiB", "FF FF 01 00 FF FF 41 41", Cause::badClass},
        {"name with a zero byte", "FF FF 01 00 04 00 44 6F 74 00", Cause::badClass},
        {"class that makes no objects", "FF FF 01 00 08 00 41 62 73 74 72 61 63 74", Cause::badClass},
        {"another class than asked for", DOT, Cause::badClass, RUNTIME_CLASS(Branch)},
        {"known object of another class", DOT "FF FF 00 00 0A 00 43 42 79 74 65 41 72 72 61 79 00 00 04 00",
         Cause::badClass, RUNTIME_CLASS(Dot)},
        {"wrong schema", "FF FF 02 00 03 00 44 6F 74 05 00 00 00 00 00", Cause::badSchema},
        {"half-read object of another class",
         "FF FF 01 00 04 00 4E 65 73 74 FF FF 01 00 03 00 44 6F 74 00 00 00 00 02 00", Cause::badClass},
        {"end behind good objects", DOT "02 00 00 00", Cause::endOfFile, RUNTIME_CLASS(Dot)},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        auto read = [&](CArchive& ar) { readObjects(ar, row.pClass); };
        EXPECT_EQ(row.nCause, loaded(fromHex(row.hex), read));
        EXPECT_EQ(row.nCause, loaded<CopiedMemFile>(fromHex(row.hex), read, 128));
        EXPECT_EQ(0, Dot::s_nLive);
    }
}

// The caller goes on after the failure; the stream then names the object that is gone, or one that it had
// read and owned.
TEST(HostileArchive, ReferencesToAnObjectWhoseLoadingFailed) {
    for (const char* hex : {"FF FF 01 00 03 00 44 6F 74 05 00 00 00 77 00 02 00",
                            BRANCH "02 00 FF FF 01 00 03 00 44 6F 74 09 00 00 00 00 00 99 00 04 00"})
        loaded(fromHex(hex), [](CArchive& ar) {
            EXPECT_TRUE(throws<CArchiveException>([&] { ar.ReadObject(NULL); }));
            EXPECT_TRUE(throws<CArchiveException>([&] { ar.ReadObject(NULL); }));
        });
    EXPECT_EQ(0, Dot::s_nLive);
}

// A branch deletes its children: of a branch that is its own child, and of two that own one dot, nothing is
// deleted when their loading fails.
TEST(HostileArchive, ObjectsWithTwoOwnersStay) {
    const struct {
        const char* hex;
        int nStay;
    } rows[] = {
        {BRANCH "02 00 02 00", 1},
        {BRANCH
         "03 00 01 80 00 00 00 00 00 00 00 00 00 01 00 FF FF 01 00 03 00 44 6F 74 09 00 00 00 00 00 05 00",
         3},
    };
    for (const auto& row : rows) {
        Dot::s_last.clear();
        EXPECT_EQ(CArchiveException::endOfFile,
                  loaded(fromHex(row.hex), [](CArchive& ar) { ar.ReadObject(NULL); }));
        ASSERT_EQ(row.nStay, Dot::s_nLive) << row.hex;
        for (Dot* dot : Dot::s_last)
            if (Branch* branch = DYNAMIC_DOWNCAST(Branch, dot))
                branch->m_children.RemoveAll();
        for (Dot* dot : Dot::s_last)
            delete dot;
    }
}

TEST(HostileArchive, LengthsAndCountsThatLie) {
    CString text = "old";
    CByteArray bytes;
    CWordArray words;
    CDWordArray numbers;
    CStringArray texts;
    CStringList list;
    CObArray objects;
    CArray<CRect> rects;
    CObject* collections[] = {&bytes, &words, &numbers, &texts, &list, &objects, &rects};
    const char* counts[] = {
        "FF FF FE FF FF FF 00",
        "FF FF FF FF FF 7F 00",
        "FF FF FF FF FF FF FF FF FF FF FF FF FF FF 00",
        "FF FF FF FF FF FF 00 00 00 00 00 00 00 20 00",
        "02 00 00",
    };
    for (const char* count : counts) {
        for (CObject* collection : collections)
            EXPECT_EQ(CArchiveException::endOfFile,
                      loaded(fromHex(count), [&](CArchive& ar) { collection->Serialize(ar); }))
                << count << " " << collection->GetRuntimeClass()->m_lpszClassName;
    }
    const char* lengths[] = {
        "05 61",
        "FF 05 00 61",
        "FF FF FF FF FF FF 7F 61",
        "FF FF FF FE FF FF FF 61",
        "FF FF FF FF FF FF FF FF FF FF FF FF FF FF FF 61",
        "FF FF FF FF FF FF FF 00 00 00 00 00 00 00 80 61",
        "FF FE FF FF FF FF FF FF FF 7F 61 00",
        "FF FE FF FF FE FF 00",
        "FF FE FF 02 61 00 62",
    };
    for (const char* length : lengths)
        EXPECT_EQ(CArchiveException::endOfFile, loaded(fromHex(length), [&](CArchive& ar) { ar >> text; }))
            << length;
    EXPECT_EQ("old", orv::test::bytesOf(text));
}

TEST(HostileArchive, NestingIsBounded) {
    auto nested = [](int nDepth) {
        std::string stream = "FF FF 01 00 04 00 4E 65 73 74";
        for (int i = 1; i < nDepth; i++)
            stream += " 01 80";
        return fromHex(stream + " 00 00");
    };
    Nest* nest = NULL;
    auto read = [&](CArchive& ar) { ar >> nest; };
    EXPECT_EQ(CArchiveException::none, loaded(nested(CArchive::nMaxObjectDepth), read));
    EXPECT_EQ(CArchive::nMaxObjectDepth, Dot::s_nLive);
    delete nest;
    EXPECT_EQ(CArchiveException::genericException, loaded(nested(CArchive::nMaxObjectDepth + 1), read));
    EXPECT_EQ(CArchiveException::genericException, loaded(nested(500000), read));
    EXPECT_EQ(0, Dot::s_nLive);
}

TEST(HostileArchive, TruncationAtEveryByte) {
    const std::string good = goodStream();
    Branch* trunk = NULL;
    for (size_t n = 0; n < good.size(); n++) {
        SCOPED_TRACE(n);
        auto read = [&](CArchive& ar) { ar >> trunk; };
        ASSERT_EQ(CArchiveException::endOfFile, loaded(good.substr(0, n), read));
        ASSERT_EQ(CArchiveException::endOfFile, loaded<CopiedMemFile>(good.substr(0, n), read, 128));
        ASSERT_EQ(0, Dot::s_nLive);
    }
    EXPECT_EQ(CArchiveException::none, loaded(good, [&](CArchive& ar) { ar >> trunk; }));
    EXPECT_EQ(7, Dot::s_nLive);
    EXPECT_EQ(good, stored([&](CArchive& ar) { ar << trunk; }));
    delete trunk;
}

TEST(HostileArchive, AReadThatFailsAnyTime) {
    const std::string good = goodStream();
    int nFailures = 0;
    for (bool bFailed = true; bFailed; nFailures++) {
        FailingFile file;
        file.Write(good.data(), (UINT)good.size());
        file.SeekToBegin();
        file.m_nLeft = nFailures;
        CArchive ar(&file, CArchive::load, 128);
        Branch* trunk = NULL;
        bFailed = orv::test::causeOf<CFileException>([&] { ar >> trunk; }) == CFileException::hardIO;
        EXPECT_EQ(bFailed ? 0 : 7, Dot::s_nLive);
        delete trunk;
    }
    EXPECT_GT(nFailures, 100); // the reads come in small pieces
}

TEST(HostileArchive, TheWrongDirection) {
    CMemFile file;
    file.Write("abcd", 4);
    file.SeekToBegin();
    const auto causeOf = orv::test::causeOf<CArchiveException>;
    CArchive loading(&file, CArchive::load);
    EXPECT_EQ(CArchiveException::readOnly, causeOf([&] { loading << (LONG)1; }));
    EXPECT_EQ(CArchiveException::readOnly, causeOf([&] { loading << CString("x"); }));
    EXPECT_EQ(CArchiveException::readOnly, causeOf([&] { loading.WriteObject(NULL); }));
    CMemFile other;
    CArchive storing(&other, CArchive::store);
    LONG n;
    EXPECT_EQ(CArchiveException::writeOnly, causeOf([&] { storing >> n; }));
    EXPECT_EQ(CArchiveException::writeOnly, causeOf([&] { storing.ReadObject(NULL); }));
    CUIntArray plain;
    EXPECT_TRUE(orv::test::throws<CNotSupportedException>([&] { storing << &plain; }));
}

TEST(HostileArchive, TheExceptionNamesTheFile) {
    CMemFile file;
    file.SetFilePath("甲.lin");
    CArchive ar(&file, CArchive::load);
    try {
        LONG n;
        ar >> n;
        FAIL();
    } catch (CArchiveException* e) {
        EXPECT_EQ("甲.lin", orv::test::bytesOf(e->m_strFileName));
        e->Delete();
    }
}

TEST(HostileArchive, DatesWithAWrongStatusAreInvalid) {
    COleDateTime date;
    loaded(fromHex("07 00 00 00 00 00 00 00 00 00 F8 3F"), [&](CArchive& ar) { ar >> date; });
    EXPECT_EQ(COleDateTime::invalid, date.GetStatus());
    // A valid status with no such date behind it.
    loaded(fromHex("00 00 00 00 FF FF FF FF FF FF EF 7F"), [&](CArchive& ar) { ar >> date; });
    EXPECT_EQ(COleDateTime::error, date.GetYear());
}
