// Bitmaps in mapped files.

#include "host.h"
#include "second.h"
#include "support/driven_program.h"

#include <process.h>

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

// What a second program, run now, can do with the file.
int secondProgram(const CString& path) {
    const std::string program = programBeside("bitmap_second.exe");
    return int(_spawnl(_P_WAIT, program.c_str(), "second", ("\"" + path + "\"").GetString(), NULL));
}

TEST(BitmapMapping, TwoProgramsOnOneFile) {
    const ScratchFolder folder;
    const CString path = folder.path("a.bmp");
    writeFile(path, makeFile({}));
    COrvDib dib;
    ASSERT_TRUE(dib.AttachMapFile(path, 0));
    EXPECT_EQ(secondNothing, secondProgram(path));
    ASSERT_TRUE(dib.AttachMapFile(path, 1));
    ASSERT_TRUE(dib.SetPiexelIndex(0, 0, secondPixel));
    EXPECT_EQ(secondReads, secondProgram(path));
    EXPECT_EQ(secondPixel, dib.GetPixelIndex(0, 0));
    dib.Empty();
    EXPECT_EQ(secondReads | secondAttaches | secondReplaces, secondProgram(path));
}

TEST(BitmapMapping, CopiesIntoAFileAtEveryDepth) {
    const ScratchFolder folder;
    const CString path = folder.path("copy.bmp");
    for (const Depth& depth : depths()) {
        SCOPED_TRACE(depth.name);
        COrvDib dib = ReadDib(pictureFile(depth, 7, 5)), again;
        dib.m_dRadian = 0.25;
        const DWORD length = dib.GetFileLength();
        ASSERT_TRUE(dib.CopyToMapFile(path));
        EXPECT_EQ(0.25, dib.GetRadian());
        EXPECT_TRUE(dib.m_pMapView);
        for (COrvDib* one : {&dib, &again}) {
            expectPicture(*one, depth, 7, 5);
            // It works in the file now.
            dib.SetPiexelIndex(0, 0, dib.GetPixelIndex(0, 0));
            dib.Empty();
            const Bytes bytes = readFile(path);
            EXPECT_EQ(length, bytes.size());
            EXPECT_EQ(length, *reinterpret_cast<const DWORD*>(&bytes[2]));
            ASSERT_TRUE(readBytes(again, bytes));
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
