// Bitmap files and archives, copies, pixels.

#include "host.h"

#include "afx/afx_test.h"

#include <psapi.h>

using namespace orv::test;

namespace {

bool isEmpty(const COrvDib& dib) {
    return dib.m_pInfoHeader == NULL && dib.m_pBits == NULL && dib.m_hPal == NULL &&
           dib.m_pColorTable == NULL && dib.GetSizeImage() == 0 && dib.GetFileLength() == 0 &&
           dib.GetDimensions() == CSize(0, 0);
}

Bytes written(const COrvDib& dib) {
    CMemFile file;
    EXPECT_TRUE(dib.Write(&file));
    const std::string bytes = contentsOf(file);
    return Bytes(bytes.begin(), bytes.end());
}

TEST(BitmapFile, Kinds) {
    for (const KindRow& row : kindRows()) {
        SCOPED_TRACE(row.name);
        DebugEvents events;
        ReadDib dib(makeFile({.bitCount = 4}));
        EXPECT_EQ(row.good, readBytes(dib, makeFile(row.spec)) != FALSE);
        EXPECT_EQ(!row.good, isEmpty(dib));
        EXPECT_EQ(0, events.assertions());
        const bool otherHeader = row.spec.headerSize != 40;
        EXPECT_EQ(otherHeader,
                  events.text().find("Not a valid Windows bitmap -- probably an OS/2 bitmap\n") !=
                      std::string::npos);
    }
    EXPECT_EQ(Messages(), takeMessages());
}

// Written back as it came, but for the gap, what stood behind, and the size field of the file header.
TEST(BitmapFile, RoundTrips) {
    for (const KindRow& row : kindRows()) {
        if (!row.good)
            continue;
        SCOPED_TRACE(row.name);
        const Bytes file = makeFile(row.spec);
        ReadDib dib(file);
        const size_t headers = 14 + dib.GetSizeHeader();
        Bytes expected(file.begin(), file.begin() + headers);
        expected.insert(expected.end(), file.begin() + headers + row.spec.gap,
                        file.begin() + headers + row.spec.gap + dib.GetSizeImage());
        const DWORD rowsAt = DWORD(headers);
        memcpy(&expected[10], &rowsAt, 4);
        EXPECT_EQ(expected, written(dib));
        EXPECT_EQ(expected.size(), dib.GetFileLength());
        COrvDib section;
        ReadDib again(expected);
        EXPECT_EQ(expected, written(again));
        // A section holds plain rows only, and says so.
        CMemFile memory(const_cast<BYTE*>(file.data()), UINT(file.size()));
        ASSERT_TRUE(section.ReadSection(&memory, NULL));
        EXPECT_TRUE(readBytes(again, written(section)));
    }
}

// Sizes on both sides of the row padding at every depth: each pixel is where it belongs.
TEST(BitmapFile, PixelsOfEverySizeAndDepth) {
    for (const Depth& depth : depths()) {
        for (int width : {1, 2, 3, 4, 5, 7, 8, 9, 31, 32, 33}) {
            SCOPED_TRACE(testing::Message() << depth.name << ", " << width << " wide");
            ReadDib up(pictureFile(depth, width, 3));
            ReadDib down(pictureFile(depth, width, -3));
            for (const COrvDib* dib : {&up, &down}) {
                EXPECT_EQ(width, dib->m_dWidth);
                EXPECT_EQ(3, dib->m_dHeight);
                expectPicture(*dib, depth, width, 3);
            }
        }
    }
}

TEST(BitmapPixelCalls, OutsideThePictureAnswerNothing) {
    ReadDib dib(makeFile({.width = 3, .height = 2, .rowsBytes = 8}));
    ASSERT_TRUE(dib.SetPiexelIndex(2, 1, 0x1AB));
    EXPECT_EQ(0xABu, dib.GetPixelIndex(2, 1));
    const Bytes before = written(dib);
    const struct {
        int x, y;
    } places[] = {{-1, 0}, {3, 0}, {0, -1}, {0, 2}, {INT_MAX, INT_MAX}, {INT_MIN, INT_MIN}, {0, INT_MAX}};
    for (const auto& place : places) {
        EXPECT_EQ(0u, dib.GetPixelIndex(place.x, place.y));
        EXPECT_FALSE(dib.SetPiexelIndex(place.x, place.y, 0xFF));
    }
    EXPECT_EQ(before, written(dib));
    // A host that changes the header gets no more rows than there are, and no pixels of other sizes.
    dib.m_pInfoHeader->biWidth = 11;
    dib.m_pInfoHeader->biBitCount = 2;
    EXPECT_FALSE(dib.SetPiexelIndex(10, 0, 3));
    dib.m_pInfoHeader->biBitCount = 8;
    dib.m_pInfoHeader->biHeight = 1000000;
    EXPECT_EQ(0u, dib.GetPixelIndex(0, 999999));
    EXPECT_FALSE(dib.SetPiexelIndex(0, 999999, 1));
    Paper paper(4, 4);
    EXPECT_FALSE(dib.Draw(&paper.dc, CPoint(0, 0), CSize(4, 4)));
    COrvDib empty;
    EXPECT_EQ(0u, empty.GetPixelIndex(0, 0));
    EXPECT_FALSE(empty.SetPiexelIndex(0, 0, 1));
}

TEST(BitmapPixelCalls, RunLengthRowsHaveNoPixelsOfTheirOwn) {
    ReadDib dib(runsFile());
    EXPECT_EQ(0u, dib.GetPixelIndex(1, 0));
    EXPECT_FALSE(dib.SetPiexelIndex(1, 0, 3));
    ASSERT_TRUE(dib.Compress(NULL, FALSE));
    EXPECT_EQ(9u, dib.GetPixelIndex(1, 0));
    EXPECT_EQ(8u, dib.GetSizeImage());
}

// Palette entry i is colour table entry i, red first.
TEST(BitmapPalette, FollowsTheColourTable) {
    DebugEvents events;
    ReadDib dib(makeFile({.colorsUsed = 5}));
    EXPECT_EQ("COrvDib::MakePalette -- m_nColorTableEntries = 5\n", events.text());
    PALETTEENTRY entries[6];
    ASSERT_EQ(5u, ::GetPaletteEntries(dib.m_hPal, 0, 6, entries));
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(tableEntry(i), RGB(entries[i].peRed, entries[i].peGreen, entries[i].peBlue));
        EXPECT_EQ(0, entries[i].peFlags);
    }
    ReadDib plain(makeFile({.bitCount = 24}));
    EXPECT_FALSE(plain.MakePalette());
    EXPECT_EQ(NULL, plain.m_hPal);
}

// Of files made by ImageMagick.
TEST(BitmapFile, OfAnotherProgram) {
    static const COLORREF few[] = {RGB(255, 0, 0),     RGB(0, 255, 0), RGB(0, 0, 255),
                                   RGB(255, 255, 255), RGB(0, 0, 0),   RGB(255, 255, 0)};
    const struct {
        const char* name;
        int width;
        COLORREF (*color)(int x, int y);
    } rows[] = {
        {"depth1.bmp", 7, [](int x, int y) { return (x + y * y) % 3 == 0 ? kWhite : RGB(0, 0, 0); }},
        {"depth4.bmp", 7, [](int x, int y) { return few[(x * x + y) % 6]; }},
        {"depth8.bmp", 7, [](int x, int y) { return RGB(x * 40, y * 50, x * y * 10); }},
        {"depth24.bmp", 7, [](int x, int y) { return RGB(x * 40, y * 50, x * y * 10); }},
        {"runs8.bmp", 37, [](int x, int y) { return few[x / (y + 2) % 6]; }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        COrvDib dib;
        CFile file((std::string(BITMAP_DATA "/") + row.name).c_str(), CFile::modeRead | CFile::shareDenyNone);
        ASSERT_TRUE(dib.Read(&file));
        ASSERT_EQ(CSize(row.width, 5), dib.GetDimensions());
        ASSERT_TRUE(dib.Compress(NULL, FALSE));
        for (int y = 0; y < 5; ++y)
            for (int x = 0; x < row.width; ++x)
                ASSERT_EQ(row.color(x, y), colorOf(dib, x, y)) << x << ", " << y;
    }
}

TEST(BitmapFile, FailuresOfWriting) {
    const ScratchFolder folder;
    writeFile(folder.path("x.bmp"), {});
    COrvDib empty;
    ReadDib dib(makeFile({}));
    CFile file(folder.path("x.bmp"), CFile::modeRead);
    EXPECT_FALSE(dib.Write(&file));
    EXPECT_EQ(Messages({"write error"}), takeMessages());
    CMemFile memory;
    EXPECT_FALSE(empty.Write(&memory));
    EXPECT_EQ(0u, memory.GetLength());
    EXPECT_EQ(Messages(), takeMessages());
}

// A second copy, even for a moment, would show in the peak.
TEST(BitmapFile, IsReadIntoMemoryOnce) {
    const ScratchFolder folder;
    const CString path = folder.path("large.bmp");
    constexpr DWORD rows = 4096 * 4096 * 4;
    writeFile(path, makeFile({.width = 4096, .height = 4096, .bitCount = 32, .rowsBytes = 0}));
    CFile file(path, CFile::modeReadWrite);
    file.SetLength(54 + rows);
    file.SeekToBegin();
    PROCESS_MEMORY_COUNTERS before = {}, after = {};
    ASSERT_TRUE(::GetProcessMemoryInfo(::GetCurrentProcess(), &before, sizeof(before)));
    COrvDib dib;
    ASSERT_TRUE(dib.Read(&file));
    ASSERT_TRUE(::GetProcessMemoryInfo(::GetCurrentProcess(), &after, sizeof(after)));
    EXPECT_GE(after.PeakWorkingSetSize - before.WorkingSetSize, rows / 10 * 9);
    EXPECT_LE(after.PeakWorkingSetSize - before.WorkingSetSize, rows / 10 * 12);
}

// In an archive, between other things; through pointers, too.
TEST(BitmapArchive, KeepsAngleAndPicture) {
    ReadDib dib(pictureFile(depths()[1], 5, 4));
    dib.m_dRadian = 0.75;
    DebugEvents events;
    const std::string bytes = stored([&](CArchive& ar) {
        ar << 11;
        dib.Serialize(ar);
        ar << &dib << 12;
    });
    EXPECT_EQ(0u, events.text().find("COrvDib::Serialize -- pos = 12\nCOrvDib::Serialize -- pos = 146\n"));
    int before = 0, after = 0;
    COrvDib in;
    COrvDib* pointed = NULL;
    loaded(bytes, [&](CArchive& ar) {
        ar >> before;
        in.Serialize(ar);
        ar >> pointed >> after;
    });
    EXPECT_EQ(11, before);
    EXPECT_EQ(12, after);
    EXPECT_EQ(0.75, in.GetRadian());
    EXPECT_EQ(written(dib), written(in));
    ASSERT_TRUE(pointed);
    EXPECT_EQ(written(dib), written(*pointed));
    EXPECT_EQ(0.75, pointed->GetRadian());
    delete pointed;
}

TEST(BitmapArchive, ThrowsWhenItIsCutAnywhere) {
    ReadDib dib(makeFile({.bitCount = 1}));
    const std::string bytes = serialized(dib);
    for (size_t cut = 0; cut < bytes.size(); ++cut) {
        COrvDib in(dib);
        int cause = CArchiveException::none;
        const bool byTheFile =
            throws<CFileException>([&] { cause = deserialized(in, bytes.substr(0, cut)); });
        EXPECT_TRUE(byTheFile || cause != CArchiveException::none) << cut;
        EXPECT_TRUE(isEmpty(in)) << cut;
    }
    CMemFile none;
    CArchive ar(&none, CArchive::store);
    EXPECT_THROW(COrvDib().Serialize(ar), CArchiveException*);
}

} // namespace
