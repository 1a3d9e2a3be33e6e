#include "afx_test.h"

#include "support/scratch_folder.h"

using orv::test::contentsOf;

const auto causeOf = orv::test::causeOf<CFileException>;

namespace {

class FileTest : public testing::Test {
protected:
    orv::test::ScratchFolder m_folder;
};

} // namespace

TEST_F(FileTest, Modes) {
    const CString name = m_folder.write("a.txt", "0123456789");
    {
        CFile file(name, CFile::modeReadWrite);
        EXPECT_EQ(3u, file.Seek(3, CFile::begin));
        file.Write("abc", 3);
        EXPECT_EQ(6u, file.GetPosition());
        EXPECT_EQ(9u, file.Seek(-1, CFile::end));
        char ch = 0;
        EXPECT_EQ(1u, file.Read(&ch, 5)); // fewer at the end
        EXPECT_EQ('9', ch);
        EXPECT_EQ(0u, file.Read(&ch, 1));
        file.SetLength(4);
        EXPECT_EQ(4u, file.GetPosition());
        EXPECT_EQ(4u, file.GetLength());
    }
    EXPECT_EQ("012a", m_folder.read("a.txt"));
    {
        CFile file(name, CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite);
        file.SeekToEnd();
        file.Write("!", 1);
    }
    EXPECT_EQ("012a!", m_folder.read("a.txt"));
    CFile(name, CFile::modeCreate | CFile::modeWrite).Close();
    EXPECT_EQ("", m_folder.read("a.txt"));
}

TEST_F(FileTest, FailuresSayWhy) {
    CFileException failure;
    EXPECT_FALSE(CFile().Open(m_folder.path("missing.txt"), CFile::modeRead, &failure));
    EXPECT_EQ(CFileException::fileNotFound, failure.m_cause);
    EXPECT_GT(failure.m_lOsError, 0);
    EXPECT_EQ(orv::test::bytesOf(m_folder.path("missing.txt")), orv::test::bytesOf(failure.m_strFileName));
    EXPECT_EQ(CFileException::fileNotFound,
              causeOf([this] { CFile(m_folder.path("missing.txt"), CFile::modeRead); }));
    EXPECT_NE(CFileException::none,
              causeOf([this] { CFile(m_folder.path("no/such/folder"), CFile::modeCreate | 1); }));
    EXPECT_EQ(CFileException::accessDenied, causeOf([this] { CFile(m_folder.path(), CFile::modeRead); }));
    EXPECT_NE(CFileException::none, causeOf([this] {
                  CFile readOnly(m_folder.write("r.txt", "x"), CFile::modeRead);
                  readOnly.Write("y", 1);
              }));
    EXPECT_NE(CFileException::none,
              causeOf([this] { CFile(m_folder.write("s.txt", "x"), 0).Seek(-5, CFile::begin); }));
}

TEST_F(FileTest, NamesAndStatus) {
    const CString name = m_folder.write("亅誠.tar.gz", "123");
    CFile file(name, CFile::modeRead);
    // The trail bytes are a bar and a backslash.
    EXPECT_EQ("亅誠.tar.gz", orv::test::bytesOf(file.GetFileName()));
    EXPECT_EQ("亅誠.tar", orv::test::bytesOf(file.GetFileTitle()));
    EXPECT_GT(file.GetFilePath().GetLength(), file.GetFileName().GetLength());
    CFileStatus status;
    ASSERT_TRUE(CFile::GetStatus(name, status));
    EXPECT_EQ(3, status.m_size);
    EXPECT_EQ(0, status.m_attribute & CFile::directory);
    EXPECT_NE(0u, status.m_mtime.dwHighDateTime);
    EXPECT_TRUE(CFile::GetStatus(m_folder.path(), status) && (status.m_attribute & CFile::directory) != 0);
    EXPECT_FALSE(CFile::GetStatus(m_folder.path("missing"), status));
    file.Close();
    CFile::Rename(name, m_folder.path("誠.txt"));
    EXPECT_EQ("123", m_folder.read("誠.txt"));
    m_folder.write("other.txt", "");
    EXPECT_EQ(CFileException::accessDenied,
              causeOf([this] { CFile::Rename(m_folder.path("誠.txt"), m_folder.path("other.txt")); }));
    CFile::Remove(m_folder.path("誠.txt"));
    EXPECT_EQ(CFileException::fileNotFound, causeOf([this] { CFile::Remove(m_folder.path("誠.txt")); }));
}

TEST_F(FileTest, DuplicatesShareTheFile) {
    CFile file(m_folder.write("d.txt", "abc"), CFile::modeRead);
    CFile* copy = file.Duplicate();
    file.Close();
    char ch = 0;
    EXPECT_EQ(1u, copy->Read(&ch, 1));
    EXPECT_EQ('a', ch);
    delete copy; // and with it the handle, or the folder could not be removed
}

#if defined(_WIN32)
TEST_F(FileTest, SharingAndLocking) {
    const CString name = m_folder.write("s.txt", "0123456789");
    CFile file(name, CFile::modeReadWrite | CFile::shareDenyNone);
    CFile second(name, CFile::modeReadWrite | CFile::shareDenyNone);
    file.LockRange(0, 5);
    EXPECT_EQ(CFileException::lockViolation, causeOf([&] { second.LockRange(4, 1); }));
    file.UnlockRange(0, 5);
    second.LockRange(4, 1);
    second.UnlockRange(4, 1);
    second.Close();
    EXPECT_EQ(CFileException::sharingViolation, causeOf([&] { CFile(name, CFile::shareExclusive); }));
}
#endif

TEST(MemFile, GrowsSeeksAndFillsGaps) {
    CMemFile file(16);
    file.Write("abc", 3);
    EXPECT_EQ(20u, file.Seek(20, CFile::begin));
    EXPECT_EQ(3u, file.GetLength()); // a seek alone grows nothing
    file.Write("z", 1);
    EXPECT_EQ(std::string("abc") + std::string(17, '\0') + "z", contentsOf(file));
    file.SetLength(2);
    file.SetLength(5);
    EXPECT_EQ(std::string("ab\0\0\0", 5), contentsOf(file));
    EXPECT_EQ(CFileException::badSeek, causeOf([&] { file.Seek(-6, CFile::end); }));
    EXPECT_EQ(CFileException::badSeek, causeOf([&] { file.Seek(LLONG_MIN, CFile::current); }));
    EXPECT_EQ(CFileException::badSeek, causeOf([&] { file.Seek(LLONG_MAX, CFile::current); }));
}

TEST(MemFile, AttachedBuffers) {
    BYTE buffer[] = "abcdef";
    CMemFile fixed(buffer, 6);
    EXPECT_EQ("abcdef", contentsOf(fixed));
    fixed.Seek(4, CFile::begin);
    fixed.Write("XY", 2);
    EXPECT_STREQ("abcdXY", (char*)buffer);
    EXPECT_TRUE(orv::test::throws<CMemoryException>([&] { fixed.Write("!", 1); }));
    EXPECT_EQ(6u, fixed.GetLength());
    EXPECT_EQ(buffer, fixed.Detach());
    EXPECT_EQ(0u, fixed.GetLength());

    CMemFile growing((BYTE*)malloc(4), 4, 8);
    EXPECT_EQ(0u, growing.GetLength()); // what was in the buffer does not count
    growing.Write("0123456789", 10);
    BYTE* block = growing.Detach();
    EXPECT_EQ(0, memcmp(block, "0123456789", 10));
    free(block);
}

TEST(MemFile, WritingPieceByPieceIsLinear) {
    CMemFile file(16);
    const void* place = NULL;
    int nMoves = 0;
    for (int i = 0; i < 100000; i++) {
        file.Write("0123456789", 10);
        void* start;
        file.SeekToBegin();
        file.GetBufferPtr(CFile::bufferRead, 1, &start);
        file.SeekToEnd();
        nMoves += start != place;
        place = start;
    }
    EXPECT_LT(nMoves, 100);
}
