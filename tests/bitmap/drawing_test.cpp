// Bitmaps drawn, read back pixel by pixel.

#include "host.h"

#include <math.h>

using namespace orv::test;

namespace {

// Each pixel against the definition: turned back about the origin it lies in the picture or is left alone.
void expectTurned(Paper& paper, const Depth& depth, CPoint origin, CSize size, double angle, CRect clip) {
    for (int y = 0; y < paper.height; ++y) {
        for (int x = 0; x < paper.width; ++x) {
            const double dx = x + 0.5 - origin.x, dy = y + 0.5 - origin.y;
            const double across = (dx * cos(angle) - dy * sin(angle)) / size.cx * 7;
            const double down = (dx * sin(angle) + dy * cos(angle)) / size.cy * 5;
            const double hair = 1e-9;
            if (fabs(across - round(across)) < hair || fabs(down - round(down)) < hair)
                continue;
            const bool inside =
                across > 0 && across < 7 && down > 0 && down < 5 && clip.PtInRect(CPoint(x, y));
            const COLORREF expected = inside ? pictureColor(depth, int(across), int(down)) : kWhite;
            ASSERT_EQ(expected, paper.at(x, y)) << x << ", " << y;
        }
    }
}

TEST(BitmapDrawing, StretchedAtEveryDepth) {
    for (const Depth& depth : depths()) {
        SCOPED_TRACE(depth.name);
        Paper paper(40, 40);
        ReadDib dib(pictureFile(depth, 7, 5));
        paper.dc.SetStretchBltMode(BLACKONWHITE);
        for (const CSize size : {CSize(21, 15), CSize(-21, 15), CSize(21, -15), CSize(-21, -15)}) {
            paper.clear();
            ASSERT_TRUE(dib.Draw(&paper.dc, CPoint(size.cx > 0 ? 3 : 24, size.cy > 0 ? 2 : 17), size));
            for (int y = 0; y < 40; ++y) {
                for (int x = 0; x < 40; ++x) {
                    const bool inside = x >= 3 && x < 24 && y >= 2 && y < 17;
                    const int i = size.cx > 0 ? (x - 3) / 3 : (23 - x) / 3;
                    const int j = size.cy > 0 ? (y - 2) / 3 : (16 - y) / 3;
                    ASSERT_EQ(inside ? pictureColor(depth, i, j) : kWhite, paper.at(x, y)) << x << ", " << y;
                }
            }
        }
        // Many pixels for few: those in the middle are shown.
        paper.clear();
        ASSERT_TRUE(dib.Draw(&paper.dc, CPoint(6, 2), CSize(-3, 2)));
        expectTurned(paper, depth, CPoint(6, 2), CSize(-3, 2), 0, CRect(0, 0, 40, 40));
        EXPECT_EQ(BLACKONWHITE, paper.dc.GetStretchBltMode());
        EXPECT_EQ(CPoint(0, 0), paper.dc.GetViewportOrg());
    }
}

TEST(BitmapDrawing, TurnedByAnyAngleAtEveryDepth) {
    for (const Depth& depth : depths()) {
        ReadDib dib(pictureFile(depth, 7, 5));
        for (double angle : {0.0, 1.5707963, 3.1415926, -1.5707963, 0.5235987, 2.0, -0.4, 4.0}) {
            SCOPED_TRACE(testing::Message() << depth.name << " " << angle);
            // Of whole squares for each pixel, and of odd ones.
            for (const CSize size : {CSize(14, 10), CSize(31, 23)}) {
                Paper paper(80, 80);
                ASSERT_TRUE(dib.Draw(&paper.dc, CPoint(37, 41), size, angle));
                expectTurned(paper, depth, CPoint(37, 41), size, angle, CRect(0, 0, 80, 80));
            }
        }
    }
}

// Clipping, a mapping of the host's own and mirrored sizes hold for turned pictures as for others, and the
// device context is left as it was.
TEST(BitmapDrawing, TurnedInTheHostsCoordinates) {
    const Depth& depth = depths()[5];
    ReadDib dib(pictureFile(depth, 7, 5));
    Paper paper(80, 80);
    paper.dc.SetMapMode(MM_ANISOTROPIC);
    paper.dc.SetWindowExt(1, 1);
    paper.dc.SetViewportExt(2, -2);
    paper.dc.SetViewportOrg(10, 70);
    paper.dc.IntersectClipRect(5, 0, 35, 30); // device 20..80, 10..70
    CRect before, after;
    paper.dc.GetClipBox(before);
    // Device (40, 50), 32 to the right, 24 downwards.
    ASSERT_TRUE(dib.Draw(&paper.dc, CPoint(15, 10), CSize(16, -12), 0.5));
    expectTurned(paper, depth, CPoint(40, 50), CSize(32, 24), 0.5, CRect(20, 10, 80, 70));
    paper.dc.GetClipBox(after);
    EXPECT_EQ(before, after);
    EXPECT_EQ(CPoint(10, 70), paper.dc.GetViewportOrg());
    // The same with mirrored sides: the far corner stays where a negative size puts it.
    paper.clear();
    ASSERT_TRUE(dib.Draw(&paper.dc, CPoint(15, 10), CSize(-10, -10), 0));
    EXPECT_EQ(pictureColor(depth, 0, 0), paper.at(39, 51));
    EXPECT_EQ(pictureColor(depth, 6, 4), paper.at(21, 69));
}

TEST(BitmapDrawing, TopDownAndRunsAreTheRightWayUp) {
    Paper paper(20, 10), turned(20, 10);
    ReadDib down(pictureFile(depths()[5], 4, -2));
    ReadDib runs(runsFile());
    down.Draw(&paper.dc, CPoint(0, 0), CSize(4, 2));
    down.Draw(&turned.dc, CPoint(0, 0), CSize(4, 2), 0);
    runs.Draw(&paper.dc, CPoint(10, 0), CSize(4, 2));
    runs.Draw(&turned.dc, CPoint(10, 0), CSize(4, 2), 0);
    for (Paper* one : {&paper, &turned}) {
        EXPECT_EQ(pictureColor(depths()[5], 3, 0), one->at(3, 0));
        EXPECT_EQ(pictureColor(depths()[5], 3, 1), one->at(3, 1));
        EXPECT_EQ(tableEntry(3), one->at(10, 0));
        EXPECT_EQ(tableEntry(5), one->at(11, 0));
        EXPECT_EQ(tableEntry(9), one->at(10, 1));
    }
}

// Indices beyond the colour table are black; what there is to draw in decides how long it takes.
TEST(BitmapDrawing, OddPicturesAndPlaces) {
    Paper paper(20, 20);
    COrvDib empty;
    ReadDib few(makeFile({.colorsUsed = 2}));
    ASSERT_TRUE(few.Draw(&paper.dc, CPoint(0, 0), CSize(5, 3)));
    EXPECT_EQ(RGB(0, 0, 0), paper.at(0, 0));
    ASSERT_TRUE(few.Draw(&paper.dc, CPoint(-500000000, -400000000), CSize(2000000000, 2000000000), 0.1));
    EXPECT_NE(kWhite, paper.at(19, 19));
    EXPECT_FALSE(few.Draw(&paper.dc, CPoint(INT_MAX, INT_MIN), CSize(INT_MAX, INT_MAX), 0.1));
    ASSERT_TRUE(few.Draw(&paper.dc, CPoint(500, 500), CSize(20, 20), 0.1));
    paper.clear();
    for (const CSize size : {CSize(INT_MIN, INT_MAX), CSize(-9, INT_MIN)}) // mirrored
        ASSERT_TRUE(few.Draw(&paper.dc, CPoint(10, 10), size));
    for (const CPoint point : {CPoint(5, 15), CPoint(5, 5)})
        EXPECT_NE(kWhite, paper.at(point.x, point.y));
    EXPECT_EQ(kWhite, paper.at(15, 15));
    EXPECT_EQ(kWhite, paper.at(15, 5));
    EXPECT_FALSE(few.Draw(&paper.dc, CPoint(0, 0), CSize(0, 5)));
    EXPECT_FALSE(few.Draw(&paper.dc, CPoint(0, 0), CSize(0, 5), 0.1));
    EXPECT_FALSE(few.Draw(&paper.dc, CPoint(0, 0), CSize(5, 5), NAN));
    EXPECT_FALSE(few.Draw(NULL, CPoint(0, 0), CSize(5, 5)));
    EXPECT_FALSE(empty.Draw(&paper.dc, CPoint(0, 0), CSize(5, 5)));
    EXPECT_FALSE(empty.Draw(&paper.dc, CPoint(0, 0), CSize(5, 5), 0.1));
}

// A metafile has no clipping box; the record lies where the picture does, and nothing behind it is written.
TEST(BitmapDrawing, TurnedIntoAMetafile) {
    ReadDib dib(pictureFile(depths()[2], 7, 5));
    CMetaFileDC meta;
    meta.CreateEnhanced(NULL, NULL, NULL, NULL);
    ASSERT_TRUE(dib.Draw(&meta, CPoint(10, 30), CSize(14, 10), 0.7));
    const HENHMETAFILE file = meta.CloseEnhanced();
    ENHMETAHEADER header;
    ::GetEnhMetaFileHeader(file, sizeof(header), &header);
    EXPECT_GT(header.nRecords, 4u);
    EXPECT_GE(header.rclBounds.left, 10);
    EXPECT_GE(header.rclBounds.top, 19);
    EXPECT_LE(header.rclBounds.right, 28);
    EXPECT_LE(header.rclBounds.bottom, 39);
    ::DeleteEnhMetaFile(file);
    EXPECT_TRUE(::HeapValidate(::GetProcessHeap(), 0, NULL));
}

// Colours given by number are those of the bitmap's colour table while its palette is used.
TEST(BitmapPalette, UsedInADeviceContext) {
    for (int bitCount : {1, 4, 8, 16, 24, 32}) {
        SCOPED_TRACE(bitCount);
        const int colors = bitCount <= 8 ? 1 << bitCount : 9;
        ReadDib dib(makeFile({.bitCount = WORD(bitCount), .colorsUsed = DWORD(colors)}));
        Paper paper(256, 1);
        dib.UsePalette(&paper.dc, FALSE);
        for (int i = 0; i < colors; ++i) {
            paper.dc.SetPixel(i, 0, PALETTEINDEX(i));
            EXPECT_EQ(tableEntry(i), paper.at(i, 0)) << i;
        }
        ::SelectPalette(paper.dc, static_cast<HPALETTE>(::GetStockObject(DEFAULT_PALETTE)), FALSE);
    }
    Paper paper(2, 2);
    ReadDib plain(makeFile({.bitCount = 24}));
    EXPECT_EQ(0u, plain.UsePalette(&paper.dc, FALSE));
    EXPECT_EQ(::GetStockObject(DEFAULT_PALETTE), ::GetCurrentObject(paper.dc, OBJ_PAL));
}

TEST(BitmapPalette, TheSystemsForPicturesWithoutColourTable) {
    COrvDib empty;
    Paper paper(2, 2);
    ReadDib plain(makeFile({.bitCount = 24}));
    ReadDib table(makeFile({}));
    const HPALETTE own = table.m_hPal;
    EXPECT_TRUE(plain.SetSystemPalette(&paper.dc));
    EXPECT_GT(::GetPaletteEntries(plain.m_hPal, 0, 0, NULL), 15u);
    EXPECT_FALSE(table.SetSystemPalette(&paper.dc));
    EXPECT_EQ(own, table.m_hPal);
    EXPECT_FALSE(empty.SetSystemPalette(&paper.dc));
}

TEST(BitmapDrawing, DeviceBitmapAtEveryDepth) {
    for (const Depth& depth : depths()) {
        SCOPED_TRACE(depth.name);
        Paper paper(10, 10);
        ReadDib dib(pictureFile(depth, 7, 5));
        CBitmap bitmap;
        ASSERT_TRUE(bitmap.Attach(dib.CreateBitmap(&paper.dc)));
        CDC source;
        source.CreateCompatibleDC(&paper.dc);
        CBitmap* old = source.SelectObject(&bitmap);
        paper.dc.BitBlt(0, 0, 7, 5, &source, 0, 0, SRCCOPY);
        source.SelectObject(old);
        for (int y = 0; y < 5; ++y)
            for (int x = 0; x < 7; ++x)
                ASSERT_EQ(pictureColor(depth, x, y), paper.at(x, y)) << x << ", " << y;
    }
    EXPECT_EQ(NULL, COrvDib().CreateBitmap(NULL));
}

} // namespace
