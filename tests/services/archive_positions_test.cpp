// Positions and skips of COrvArchive over files in memory and files read in stretches.

#include <orvfc/services/OrvArchive.h>

#include <afxcoll.h>

#include <gtest/gtest.h>

#include <memory>

#include "afx/afx_test.h"

namespace {

using orv::test::throws;

constexpr int fileSize = 1000;
constexpr int smallBuffer = 128;

// Byte n of the file is n, modulo 256.
class ArchivePositions : public testing::Test {
protected:
    void SetUp() override {
        for (int i = 0; i < fileSize; ++i)
            contents_[i] = static_cast<BYTE>(i);
    }

    // A memory file is its own buffer unless the caller brings one.
    std::unique_ptr<COrvArchive> overMemory(int bufferSize = 4096) {
        return std::make_unique<COrvArchive>(&file_, CArchive::load, bufferSize);
    }
    std::unique_ptr<COrvArchive> inStretches() {
        return std::make_unique<COrvArchive>(&file_, CArchive::load, smallBuffer, buffer_);
    }

    static int next(COrvArchive& archive) {
        BYTE byte;
        *archive.GetArchive() >> byte;
        return byte;
    }

    BYTE contents_[fileSize];
    BYTE buffer_[smallBuffer];
    CMemFile file_{contents_, fileSize};
};

} // namespace

TEST_F(ArchivePositions, InMemory) {
    const auto archive = overMemory();
    EXPECT_EQ(0, archive->GetCurrentPos());
    EXPECT_EQ(0, archive->GetSize());
    EXPECT_EQ(0, next(*archive));
    EXPECT_EQ(1, archive->GetCurrentPos());
    EXPECT_EQ(fileSize, archive->GetSize());
    EXPECT_EQ(1u, archive->GetRealPos());
    EXPECT_EQ(0, archive->GetSize());
    EXPECT_EQ(1, next(*archive));
    EXPECT_EQ(1, archive->GetCurrentPos());
    EXPECT_EQ(fileSize - 1, archive->GetSize());
}

TEST_F(ArchivePositions, Skips) {
    for (const bool stretches : {false, true}) {
        SCOPED_TRACE(stretches);
        file_.SeekToBegin();
        const auto archive = stretches ? inStretches() : overMemory();
        int at = 0;
        const auto expectNext = [&] {
            EXPECT_EQ(at % 256, next(*archive)) << at;
            ++at;
        };
        expectNext();
        // Within the buffer, to its very end, beyond, and back behind its start.
        for (const int skip : {0, 5, -3, smallBuffer - 6, 300, -200, -1, 0, 1}) {
            archive->SkipPos(skip);
            at += skip;
            EXPECT_EQ(at, static_cast<int>(archive->GetRealPos()));
            archive->SkipPos(0);
            expectNext();
        }
        archive->SkipPos(-at);
        at = 0;
        expectNext();
        EXPECT_TRUE(throws<CFileException>([&] { archive->SkipPos(-5); }));
        archive->SkipPosBegin(0);
        archive->SkipPos(fileSize + 10);
        EXPECT_TRUE(throws<CArchiveException>([&] { next(*archive); }));
    }
}

TEST_F(ArchivePositions, FromHere) {
    const auto archive = inStretches();
    next(*archive);
    archive->SkipPos(9); // inside the buffer, which is kept
    EXPECT_EQ(10, archive->GetCurrentPos());
    EXPECT_EQ(smallBuffer, archive->GetSize());
    archive->SkipPos(-9);
    archive->SeekCurrentPos(400);
    EXPECT_EQ(0, archive->GetCurrentPos());
    EXPECT_EQ(smallBuffer, archive->GetSize());
    EXPECT_EQ(401 % 256, next(*archive));
    archive->SeekCurrentPos(fileSize - 402);
    EXPECT_EQ(0, archive->GetSize());
    EXPECT_TRUE(throws<CArchiveException>([&] { next(*archive); }));
}

// A fresh archive at the same address, which has forgotten its classes and reads from the new place.
TEST_F(ArchivePositions, FreshFromTheBeginning) {
    CMemFile file;
    {
        CStringArray one, two;
        one.Add("a");
        two.Add("b");
        CArchive ar(&file, CArchive::store);
        ar << &one << &two;
    }
    COrvArchive archive(&file, CArchive::load);
    archive.SkipPosBegin(0);
    CArchive* const before = archive.GetArchive();
    CObject *one = NULL, *two = NULL;
    *before >> one;
    const LONG second = static_cast<LONG>(archive.GetRealPos());
    *before >> two;
    EXPECT_TRUE(one != NULL && two != NULL);
    delete one;
    delete two;

    archive.SkipPosBegin(second);
    EXPECT_EQ(before, archive.GetArchive());
    CObject* again = NULL;
    EXPECT_TRUE(throws<CArchiveException>([&] { *before >> again; })); // the class is not known here any more
    archive.SkipPosBegin(0);
    *before >> again;
    ASSERT_TRUE(again != NULL);
    EXPECT_TRUE((*static_cast<CStringArray*>(again))[0] == "a");
    delete again;
    EXPECT_TRUE(throws<CFileException>([&] { archive.SkipPosBegin(-1); }));
}

TEST_F(ArchivePositions, Storing) {
    CMemFile file;
    {
        COrvArchive archive(&file, CArchive::store);
        *archive.GetArchive() << static_cast<DWORD>(1);
        EXPECT_EQ(4, archive.GetCurrentPos());
        EXPECT_EQ(4u, archive.GetRealPos());
        *archive.GetArchive() << static_cast<DWORD>(2);
        archive.SkipPosBegin(0);
        *archive.GetArchive() << static_cast<DWORD>(3);
    }
    EXPECT_EQ("03 00 00 00 02 00 00 00", orv::test::toHex(orv::test::contentsOf(file)));
}
