// Bitmaps in mapped files.

#include "host.h"

using namespace orv::test;

namespace {

struct AttachRow {
    const char* name;
    Bytes bytes;
    const char* message; // NULL: attached
};

const AttachRow attachRows[] = {
    {"good", makeFile({}), NULL},
    {"with a gap", makeFile({.gap = 9}), NULL},
    {"impossible place of the rows: behind the colour table", makeFile({.offset = 20}), NULL},
    {"place of the rows behind the end", makeFile({.offset = 0x7FFFFFFF}), NULL},
    {"empty", {}, "Empty bitmap file"},
    {"one byte", {'B'}, "Invalid bitmap file"},
    {"another kind", makeFile({.type = 0x4242}), "Invalid bitmap file"},
    {"two bytes", {'B', 'M'}, "AttachMemory error"},
    {"OS/2", makeFile({.headerSize = 12}), "AttachMemory error"},
    {"more rows than the file holds", makeFile({.rowsBytes = 23}), "AttachMemory error"},
    {"height beyond all files", makeFile({.height = 0x7FFFFFFF, .rowsBytes = 24}), "AttachMemory error"},
    {"a run outside", makeFile({.compression = BI_RLE8, .runs = {9, 1, 0, 1}}), "AttachMemory error"},
};

TEST(BitmapMapping, AttachesWhatIsWhole) {
    const ScratchFolder folder;
    const CString path = folder.path("a.bmp");
    for (const AttachRow& row : attachRows) {
        SCOPED_TRACE(row.name);
        writeFile(path, row.bytes);
        COrvDib dib;
        EXPECT_EQ(row.message == NULL, dib.AttachMapFile(path, 0) != FALSE);
        EXPECT_EQ(row.message == NULL ? Messages() : Messages({row.message}), takeMessages());
        EXPECT_EQ(row.message == NULL ? 7u : 0u, dib.GetPixelIndex(0, 0));
        EXPECT_EQ(row.message == NULL, dib.m_hMapFile != NULL);
        dib.Empty();
        // Nothing holds the file any longer.
        EXPECT_TRUE(::DeleteFileA(path));
    }
    COrvDib dib;
    EXPECT_FALSE(dib.AttachMapFile(path, 0));
    EXPECT_EQ(Messages(), takeMessages());
    EXPECT_TRUE(folder.names().empty());
}

TEST(BitmapMapping, ChangesTheFile) {
    const ScratchFolder folder;
    const CString path = folder.path("a.bmp");
    const Bytes before = makeFile({.gap = 3});
    writeFile(path, before);
    COrvDib dib;
    ASSERT_TRUE(dib.AttachMapFile(path, 0));
    EXPECT_EQ(0, dib.m_nHeaderOwner);
    ASSERT_TRUE(dib.SetPiexelIndex(1, 0, 200));
    dib.Empty();
    Bytes after = readFile(path);
    EXPECT_EQ(200, after[54 + 1024 + 3 + 1]);
    after[54 + 1024 + 3 + 1] = before[54 + 1024 + 3 + 1];
    EXPECT_EQ(before, after);
}

TEST(BitmapMapping, AReadOnlyFileIsLeftAlone) {
    const ScratchFolder folder;
    const CString path = folder.path("a.bmp");
    writeFile(path, makeFile({}));
    ::SetFileAttributesA(path, FILE_ATTRIBUTE_READONLY);
    COrvDib dib, other;
    EXPECT_FALSE(dib.AttachMapFile(path, 1));
    CFile file(path, CFile::modeRead | CFile::shareDenyWrite);
    EXPECT_TRUE(other.Read(&file));
    EXPECT_FALSE(other.CopyToMapFile(path));
    file.Close();
    EXPECT_EQ(7u, other.GetPixelIndex(0, 0));
    EXPECT_EQ(makeFile({}), readFile(path));
    EXPECT_EQ(Messages(), takeMessages());
    ::SetFileAttributesA(path, FILE_ATTRIBUTE_NORMAL);
}

TEST(BitmapMapping, HoldsTheFileAsItIsTold) {
    const ScratchFolder folder;
    const CString path = folder.path("a.bmp");
    writeFile(path, makeFile({}));
    // What somebody else can do with the file meanwhile: read it, map it, replace it.
    const auto others = [&] {
        COrvDib read, attached, copy(CSize(1, 1), 24);
        CFile file;
        std::string can;
        if (file.Open(path, CFile::modeRead | CFile::shareDenyNone)) {
            can += read.Read(&file) && read.GetPixelIndex(0, 0) == 99 ? "read " : "";
            file.Close();
        }
        can += attached.AttachMapFile(path, 1) ? "attach " : "";
        attached.Empty();
        can += copy.CreateSection() != NULL && copy.CopyToMapFile(path) ? "replace " : "";
        return can;
    };
    COrvDib dib;
    ASSERT_TRUE(dib.AttachMapFile(path, 0));
    ASSERT_TRUE(dib.SetPiexelIndex(0, 0, 99));
    EXPECT_EQ("", others());
    ASSERT_TRUE(dib.AttachMapFile(path, 1));
    EXPECT_EQ("read ", others());
    EXPECT_EQ(99u, dib.GetPixelIndex(0, 0));
    dib.Empty();
    EXPECT_EQ("read attach replace ", others());
    EXPECT_EQ(Messages(), takeMessages());
}

TEST(BitmapMapping, CopiesIntoAFileAtEveryDepth) {
    const ScratchFolder folder;
    const CString path = folder.path("copy.bmp");
    for (const Depth& depth : depths()) {
        for (const int height : {5, -5}) {
            SCOPED_TRACE(testing::Message() << depth.name << " " << height);
            ReadDib dib(pictureFile(depth, 7, height));
            dib.m_dRadian = 0.25;
            const DWORD length = dib.GetFileLength();
            ASSERT_TRUE(dib.CopyToMapFile(path));
            EXPECT_EQ(0.25, dib.GetRadian());
            EXPECT_TRUE(dib.m_pMapView);
            expectPicture(dib, depth, 7, 5);
            // It works in the file now.
            dib.SetPiexelIndex(0, 0, dib.GetPixelIndex(0, 0));
            dib.Empty();
            const Bytes bytes = readFile(path);
            EXPECT_EQ(length, bytes.size());
            EXPECT_EQ(length, *reinterpret_cast<const DWORD*>(&bytes[2]));
            expectPicture(ReadDib(bytes), depth, 7, 5);
            if (height < 0)
                continue;
            // The system's own reader, which takes no rows from the top down, sees the same.
            CBitmap loaded;
            ASSERT_TRUE(loaded.Attach(
                ::LoadImageA(NULL, path, IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION)));
            CDC dc;
            dc.CreateCompatibleDC(NULL);
            CBitmap* const old = dc.SelectObject(&loaded);
            for (int y = 0; y < 5; ++y)
                for (int x = 0; x < 7; ++x)
                    EXPECT_EQ(pictureColor(depth, x, y), dc.GetPixel(x, y)) << x << ", " << y;
            dc.SelectObject(old);
        }
    }
    COrvDib empty;
    EXPECT_FALSE(empty.CopyToMapFile(folder.path("empty.bmp")));
    ReadDib dib(makeFile({}));
    EXPECT_FALSE(dib.CopyToMapFile(folder.path("no folder\\x.bmp")));
    EXPECT_EQ(7u, dib.GetPixelIndex(0, 0));
    ASSERT_TRUE(dib.CopyToMapFile(path));
    EXPECT_FALSE(dib.CopyToMapFile(path)); // its own file
    EXPECT_EQ(7u, dib.GetPixelIndex(0, 0));
    EXPECT_EQ(1u, folder.names().size());
}

} // namespace
