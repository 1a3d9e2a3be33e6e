// Whose memory it is: copies, memory handed over, sections, packed blocks.

#include "host.h"

#include "support/gdi_count.h"

using namespace orv::test;

namespace {

// A packed bitmap is a file without its first 14 bytes.
HGLOBAL globalCopy(const Bytes& file, size_t cut = 0) {
    const HGLOBAL block = ::GlobalAlloc(GHND, file.size() - 14 - cut);
    memcpy(::GlobalLock(block), &file[14], file.size() - 14 - cut);
    return block;
}

TEST(BitmapMemory, BelongsToWhomItIsSaid) {
    const Depth& depth = depths()[2];
    Bytes file = pictureFile(depth, 5, 4);
    COrvDib dib;
    ASSERT_TRUE(dib.AttachMemory(&file[14]));
    EXPECT_EQ(0, dib.m_nHeaderOwner);
    expectPicture(dib, depth, 5, 4);
    ASSERT_TRUE(dib.SetPiexelIndex(0, 0, 77));
    EXPECT_EQ(77, file[14 + 40 + 1024]);

    BYTE* own = static_cast<BYTE*>(::operator new(file.size() - 14));
    memcpy(own, &file[14], file.size() - 14);
    ASSERT_TRUE(dib.AttachMemory(own, TRUE));
    EXPECT_EQ(1, dib.m_nHeaderOwner);

    const HGLOBAL block = globalCopy(file);
    ASSERT_TRUE(dib.AttachMemory(::GlobalLock(block), TRUE, block));
    EXPECT_EQ(2, dib.m_nHeaderOwner);
    EXPECT_EQ(block, dib.m_hMemBlock);
    dib.Empty();
    EXPECT_EQ(0u, ::GlobalSize(block));
}

TEST(BitmapMemory, AGlobalBlockMustHoldWhatItsHeaderPromises) {
    COrvDib dib;
    for (const KindRow& row : kindRows()) {
        const bool fileOnly = row.spec.offset >= 0 || row.spec.gap != 0 || row.spec.type != 0x4D42;
        if (fileOnly)
            continue;
        const HGLOBAL block = globalCopy(makeFile(row.spec));
        EXPECT_EQ(row.good, dib.AttachMemory(::GlobalLock(block), FALSE, block) != FALSE) << row.name;
        EXPECT_EQ(row.good ? Messages() : Messages({"AttachMemory error"}), takeMessages()) << row.name;
        dib.Empty();
        ::GlobalUnlock(block);
        ::GlobalFree(block);
    }
    EXPECT_FALSE(dib.AttachMemory(NULL));
    EXPECT_EQ(Messages({"AttachMemory error"}), takeMessages());
}

// A copy has pixels of its own, whoever owns the original's.
TEST(BitmapCopy, OfEveryOwner) {
    const Depth& depth = depths()[2];
    Bytes file = pictureFile(depth, 5, 4);
    const ScratchFolder folder;
    writeFile(folder.path("a.bmp"), file);
    const HGLOBAL block = globalCopy(file);
    COrvDib read = ReadDib(file), attached, global, section, mapped;
    ASSERT_TRUE(attached.AttachMemory(&file[14]));
    ASSERT_TRUE(global.AttachMemory(::GlobalLock(block), TRUE, block));
    CMemFile memory(file.data(), UINT(file.size()));
    ASSERT_TRUE(section.ReadSection(&memory, NULL));
    ASSERT_TRUE(mapped.AttachMapFile(folder.path("a.bmp"), 0));
    for (COrvDib* original : {&read, &attached, &global, &section, &mapped}) {
        original->m_dRadian = 0.5;
        COrvDib copy(*original), assigned, set;
        assigned = *original;
        EXPECT_TRUE(set.SetDib(*original));
        original->SetPiexelIndex(1, 1, original->GetPixelIndex(1, 1) ^ 3);
        PALETTEENTRY entry;
        EXPECT_EQ(1u, ::GetPaletteEntries(copy.m_hPal, 255, 1, &entry));
        original->Empty();
        for (const COrvDib* one : {&copy, &assigned, &set}) {
            expectPicture(*one, depth, 5, 4);
            EXPECT_EQ(0.5, one->GetRadian());
            EXPECT_EQ(1, one->m_nBitsOwner);
        }
        copy = assigned;
        copy.SetDib(copy);
        expectPicture(copy, depth, 5, 4);
    }
    COrvDib lent;
    ASSERT_TRUE(readBytes(read, pictureFile(depth, 5, 4)));
    ASSERT_TRUE(lent.AttachMemory(read.m_pInfoHeader));
    lent.m_pBits = read.m_pBits;
    read = lent; // what it copies from lies in its own memory
    lent.Empty();
    expectPicture(read, depth, 5, 4);
}

TEST(BitmapSection, MadeForAHeaderAndFilledFromAFile) {
    for (const Depth& depth : depths()) {
        const Bytes file = pictureFile(depth, 7, 5);
        COrvDib dib;
        CMemFile memory(const_cast<BYTE*>(file.data()), UINT(file.size()));
        ASSERT_TRUE(dib.ReadSection(&memory, NULL)) << depth.name;
        EXPECT_TRUE(dib.m_hSection);
        EXPECT_EQ(file.size(), memory.GetPosition());
        expectPicture(dib, depth, 7, 5);
        EXPECT_EQ(NULL, dib.CreateSection());
        // The section is a bitmap to draw into.
        CDC dc;
        dc.CreateCompatibleDC(NULL);
        const HGDIOBJ old = ::SelectObject(dc, dib.m_hSection);
        EXPECT_EQ(pictureColor(depth, 6, 4), dc.GetPixel(6, 4));
        dc.SetPixel(0, 0, pictureColor(depth, 6, 4));
        ::SelectObject(dc, old);
        ::GdiFlush();
        EXPECT_EQ(pictureColor(depth, 6, 4), colorOf(dib, 0, 0)) << depth.name;
    }
    COrvDib made(CSize(5, 3), 8), none;
    EXPECT_EQ(256, made.m_nColorTableEntries);
    EXPECT_FALSE(made.SetPiexelIndex(0, 0, 1));
    ASSERT_TRUE(made.CreateSection());
    EXPECT_TRUE(made.SetPiexelIndex(4, 2, 9));
    EXPECT_EQ(9u, made.GetPixelIndex(4, 2));
    EXPECT_EQ(NULL, none.CreateSection());
}

TEST(BitmapSection, RunLengthRowsComeOutPlain) {
    Bytes file = runsFile();
    CMemFile memory(file.data(), UINT(file.size()));
    COrvDib dib;
    ASSERT_TRUE(dib.ReadSection(&memory, NULL));
    EXPECT_EQ(9u, dib.GetPixelIndex(3, 0));
    EXPECT_EQ(3u, dib.GetPixelIndex(0, 1));
    CMemFile cut(file.data(), UINT(file.size() - 1));
    EXPECT_FALSE(dib.ReadSection(&cut, NULL));
    EXPECT_EQ(Messages({"ReadSection error"}), takeMessages());
    EXPECT_EQ(NULL, dib.m_hSection);
}

// Device bitmaps of every depth, as packed bitmaps and as files of them.
TEST(BitmapPacked, KeepsEveryPixelAtEveryDepth) {
    const ScratchFolder folder;
    const CString path = folder.path("packed.bmp");
    for (const Depth& depth : depths()) {
        SCOPED_TRACE(depth.name);
        const Bytes file = pictureFile(depth, 7, 5);
        CMemFile memory(const_cast<BYTE*>(file.data()), UINT(file.size()));
        COrvDib section;
        ASSERT_TRUE(section.ReadSection(&memory, NULL));
        CBitmap bitmap;
        bitmap.Attach(section.m_hSection);
        const HGLOBAL block = DDBtoDIB(bitmap, depth.compression, NULL);
        bitmap.Detach();
        ASSERT_TRUE(block);
        EXPECT_TRUE(WriteDib(path, block));
        COrvDib packed, read;
        ASSERT_TRUE(packed.AttachMemory(::GlobalLock(block), TRUE, block));
        EXPECT_EQ(depth.bitCount, packed.m_pInfoHeader->biBitCount);
        EXPECT_EQ(depth.compression, packed.m_pInfoHeader->biCompression);
        expectPicture(packed, depth, 7, 5);
        CFile reader(path, CFile::modeRead | CFile::shareDenyWrite);
        ASSERT_TRUE(read.Read(&reader));
        expectPicture(read, depth, 7, 5);
        EXPECT_EQ(reader.GetLength(), *reinterpret_cast<const DWORD*>(&readFile(path)[2]));
    }
}

TEST(BitmapPacked, APaletteGivesDeviceBitmapsTheirColours) {
    for (int bitCount : {4, 8}) {
        COrvDib dib;
        ReadDib table(makeFile({.bitCount = WORD(bitCount), .colorsUsed = 5}));
        CPalette palette;
        palette.Attach(table.m_hPal);
        table.m_hPal = NULL;
        CBitmap bitmap;
        const BYTE rows[] = {BYTE(bitCount == 4 ? 0x34 : 3), 4};
        ASSERT_TRUE(bitmap.CreateBitmap(2, 1, 1, bitCount, rows));
        const HGLOBAL block = DDBtoDIB(bitmap, BI_RGB, &palette);
        ASSERT_TRUE(dib.AttachMemory(::GlobalLock(block), TRUE, block));
        for (int i : {3, 4})
            EXPECT_EQ(tableEntry(i), colorOf(dib, i - 3, 0));
    }
}

TEST(BitmapPacked, DeviceBitmapsAndRefusals) {
    CBitmap mono, none;
    const BYTE rows[] = {0xA0, 0, 0x50, 0};
    ASSERT_TRUE(mono.CreateBitmap(3, 2, 1, 1, rows));
    const HGLOBAL block = DDBtoDIB(mono, BI_RGB, NULL);
    ASSERT_TRUE(block);
    COrvDib dib;
    ASSERT_TRUE(dib.AttachMemory(::GlobalLock(block), TRUE, block));
    EXPECT_EQ(kWhite, colorOf(dib, 0, 0));
    EXPECT_EQ(RGB(0, 0, 0), colorOf(dib, 1, 0));
    EXPECT_EQ(kWhite, colorOf(dib, 1, 1));
    EXPECT_EQ(NULL, DDBtoDIB(mono, BI_BITFIELDS, NULL));
    EXPECT_EQ(NULL, DDBtoDIB(mono, BI_RLE8, NULL)); // the driver here has none
    EXPECT_EQ(NULL, DDBtoDIB(mono, 99, NULL));
    EXPECT_EQ(NULL, DDBtoDIB(none, BI_RGB, NULL));
    BYTE* address = reinterpret_cast<BYTE*>(dib.m_pInfoHeader);
    const ScratchFolder folder;
    EXPECT_TRUE(WriteDib(folder.path("by address.bmp"), address));
    EXPECT_EQ(14 + 48 + 8u, readFile(folder.path("by address.bmp")).size());
    EXPECT_FALSE(WriteDib(folder.path("no folder\\x.bmp"), address));
    const HGLOBAL cut = globalCopy(makeFile({}), 1);
    EXPECT_FALSE(WriteDib(folder.path("cut.bmp"), cut));
    ::GlobalUnlock(cut);
    ::GlobalFree(cut);
    EXPECT_EQ(1u, folder.names().size());
}

// One round of everything that holds a handle.
void useHandles(const ScratchFolder& folder) {
    const Bytes file = pictureFile(depths()[2], 7, 5);
    writeFile(folder.path("m.bmp"), file);
    Paper paper(20, 20);
    COrvDib dib, copy;
    CMemFile memory(const_cast<BYTE*>(file.data()), UINT(file.size()));
    dib.ReadSection(&memory, &paper.dc);
    copy = dib;
    copy.Draw(&paper.dc, CPoint(1, 1), CSize(9, 9), 0.3);
    copy.Draw(&paper.dc, CPoint(1, 1), CSize(9, 9));
    copy.Rotation(0.3);
    copy.MakePalette();
    copy.Compress(&paper.dc, TRUE);
    ::DeleteObject(copy.CreateBitmap(&paper.dc));
    COrvDib mapped, plain;
    mapped.AttachMapFile(folder.path("m.bmp"), 0);
    mapped.CopyToMapFile(folder.path("n.bmp"));
    readBytes(plain, pictureFile(depths()[5], 7, 5));
    plain.SetSystemPalette(&paper.dc);
    plain.SetSystemPalette(&paper.dc);
    CBitmap bitmap;
    bitmap.Attach(dib.m_hSection);
    ::GlobalFree(DDBtoDIB(bitmap, BI_RGB, NULL));
    bitmap.Detach();
    takeMessages();
}

TEST(BitmapMemory, NoHandleIsLost) {
    const ScratchFolder folder;
    useHandles(folder);
    DWORD handlesBefore = 0, handlesAfter = 0;
    const int before = liveGdiHandles();
    ::GetProcessHandleCount(::GetCurrentProcess(), &handlesBefore);
    for (int i = 0; i < 3; ++i)
        useHandles(folder);
    ::GetProcessHandleCount(::GetCurrentProcess(), &handlesAfter);
    EXPECT_EQ(before, liveGdiHandles());
    EXPECT_EQ(handlesBefore, handlesAfter);
}

} // namespace
