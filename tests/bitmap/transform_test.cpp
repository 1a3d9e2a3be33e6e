// Turning through a file, compressing by the driver.

#include "host.h"

#include <filesystem>
#include <math.h>
#include <thread>

using namespace orv::test;

namespace {

size_t turningFolders() {
    size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::temp_directory_path())) {
        const std::string name = entry.path().filename().string();
        count += name.starts_with("orv") && name.ends_with(".tmp");
    }
    return count;
}

TEST(BitmapRotation, QuartersAtEveryDepth) {
    for (const Depth& depth : depths()) {
        for (int height : {5, -5}) {
            SCOPED_TRACE(testing::Message() << depth.name << " " << height);
            ReadDib dib(pictureFile(depth, 7, height));
            ASSERT_TRUE(dib.Rotation(1.5707963));
            ASSERT_EQ(CSize(5, 7), dib.GetDimensions());
            EXPECT_EQ(height < 0, dib.m_pInfoHeader->biHeight < 0);
            EXPECT_EQ(depth.bitCount, dib.m_pInfoHeader->biBitCount);
            EXPECT_EQ(7, dib.m_dHeight);
            for (int y = 0; y < 5; ++y)
                for (int x = 0; x < 7; ++x)
                    ASSERT_EQ(pictureColor(depth, x, y), colorOf(dib, y, 6 - x)) << x << ", " << y;
            ASSERT_TRUE(dib.Rotation(1.5707963 + 3.1415926));
            EXPECT_NEAR(6.2831852, dib.GetRadian(), 1e-9);
            expectPicture(dib, depth, 7, 5);
        }
    }
}

// A square of one colour turned by an eighth: a diamond, its corners white.
TEST(BitmapRotation, CornersBecomeWhiteAtEveryDepth) {
    for (const Depth& depth : depths()) {
        SCOPED_TRACE(depth.name);
        Bytes file = pictureFile(depth, 20, 20);
        ReadDib dib(file);
        if (depth.bitCount == 1)
            dib.m_pColorTable[1] = {240, 250, 255, 0}; // as white as this one gets
        for (int y = 0; y < 20; ++y)
            for (int x = 0; x < 20; ++x)
                dib.SetPiexelIndex(x, y, 0);
        ASSERT_TRUE(dib.Rotation(0.78539815));
        ASSERT_EQ(CSize(29, 29), dib.GetDimensions());
        const COLORREF white = depth.bitCount == 1 ? RGB(255, 250, 240) : kWhite;
        for (int y = 0; y < 29; ++y) {
            for (int x = 0; x < 29; ++x) {
                const double outward = abs(x - 14) + abs(y - 14) - 20 / sqrt(2);
                if (fabs(outward) < 1)
                    continue;
                ASSERT_EQ(outward > 0 ? white : RGB(0, 0, 0), colorOf(dib, x, y)) << x << ", " << y;
            }
        }
    }
}

TEST(BitmapRotation, RunsAndRefusals) {
    COrvDib empty;
    ReadDib runs(runsFile());
    const HPALETTE palette = runs.m_hPal;
    EXPECT_FALSE(runs.Rotation(NAN));
    EXPECT_EQ(DWORD(BI_RLE8), runs.m_pInfoHeader->biCompression);
    ASSERT_TRUE(runs.Rotation(3.1415926));
    EXPECT_EQ(5u, runs.GetPixelIndex(0, 0));
    EXPECT_EQ(3u, runs.GetPixelIndex(3, 0));
    EXPECT_EQ(9u, runs.GetPixelIndex(0, 1));
    EXPECT_EQ(palette, runs.m_hPal);
    EXPECT_FALSE(empty.Rotation(1));
    EXPECT_EQ(Messages(), takeMessages());
}

TEST(BitmapRotation, WithoutAPlaceForItsFile) {
    char temp[MAX_PATH];
    ::GetEnvironmentVariableA("TMP", temp, MAX_PATH);
    ::SetEnvironmentVariableA("TMP", "C:\\no such folder");
    ReadDib dib(makeFile({}));
    EXPECT_FALSE(dib.Rotation(1));
    ::SetEnvironmentVariableA("TMP", temp);
    const Messages messages = takeMessages();
    ASSERT_EQ(1u, messages.size());
    EXPECT_EQ(0u, messages[0].find("Couldn't open source file: C:\\no such folder\\"));
    EXPECT_NE(std::string::npos, messages[0].find("\\Orvbmp.tmp"));
    EXPECT_EQ(7u, dib.GetPixelIndex(0, 0));
}

// Two at once do not meet in one file, and nothing is left behind.
TEST(BitmapRotation, SeveralAtOnce) {
    const size_t before = turningFolders();
    int good[2] = {};
    const auto turn = [&](int which) {
        for (int round = 0; round < 30; ++round) {
            COrvDib dib;
            readBytes(dib, pictureFile(depths()[5], 40 + which, 30));
            const COLORREF corner = colorOf(dib, 0, 0);
            good[which] += dib.Rotation(1.5707963) && dib.GetDimensions() == CSize(30, 40 + which) &&
                           colorOf(dib, 0, 39 + which) == corner;
        }
    };
    std::thread other(turn, 1);
    turn(0);
    other.join();
    EXPECT_EQ(30, good[0]);
    EXPECT_EQ(30, good[1]);
    EXPECT_EQ(before, turningFolders());
    EXPECT_EQ(Messages(), takeMessages());
}

// The driver here knows no run-length rows, so that only its refusal can be shown.
TEST(BitmapCompression, Refusals) {
    Paper paper(2, 2);
    for (const Depth& depth : depths()) {
        SCOPED_TRACE(depth.name);
        ReadDib dib(pictureFile(depth, 7, 5));
        EXPECT_FALSE(dib.Compress(&paper.dc, TRUE));
        const bool possible = depth.bitCount == 4 || depth.bitCount == 8;
        EXPECT_EQ(Messages({possible ? "Driver can't do compression" : "Unable to compress this DIB"}),
                  takeMessages());
        EXPECT_EQ(pictureColor(depth, 6, 4), colorOf(dib, 6, 4));
        EXPECT_TRUE(dib.Compress(&paper.dc, FALSE));
    }
    COrvDib empty, runs = ReadDib(runsFile()), down = ReadDib(makeFile({.height = -3}));
    for (COrvDib* dib : {&empty, &runs, &down}) {
        EXPECT_FALSE(dib->Compress(&paper.dc, TRUE));
        EXPECT_EQ(Messages({"Unable to compress this DIB"}), takeMessages());
    }
    EXPECT_FALSE(empty.Compress(&paper.dc, FALSE));
}

} // namespace
