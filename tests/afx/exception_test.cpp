#include "afx_test.h"

namespace {

std::string messageOf(const CException& e, UINT nMax = 1024) {
    std::string text(nMax + 1, '#');
    e.GetErrorMessage(text.data(), nMax);
    EXPECT_EQ('#', text[nMax]); // nothing behind the buffer
    return text.c_str();
}

// An exception that counts its deletions.
class Counted : public CException {
    DECLARE_DYNAMIC(Counted)

public:
    ~Counted() override { s_nDeleted++; }
    static int s_nDeleted;
};
IMPLEMENT_DYNAMIC(Counted, CException)
int Counted::s_nDeleted = 0;

} // namespace

TEST(Exception, BlocksAreChosenByType) {
    auto thrownBy = [](void (*f)()) {
        TRY {
            f();
        }
        CATCH(CFileException, e) {
            return 1;
        }
        AND_CATCH(CArchiveException, e) {
            return 2;
        }
        AND_CATCH(CException, e) {
            return 3;
        }
        END_CATCH
        return 0;
    };
    EXPECT_EQ(0, thrownBy([] {}));
    EXPECT_EQ(1, thrownBy([] { AfxThrowFileException(CFileException::diskFull); }));
    EXPECT_EQ(2, thrownBy([] { AfxThrowArchiveException(CArchiveException::badClass); }));
    for (const auto thrower : {AfxThrowMemoryException, AfxThrowMemoryException, // the same object once more
                               AfxThrowNotSupportedException, AfxThrowUserException})
        EXPECT_EQ(3, thrownBy(thrower));
}

TEST(Exception, ThrowLastPassesItOn) {
    Counted::s_nDeleted = 0;
    int nInner = 0;
    TRY{TRY{throw new Counted;
}
CATCH(Counted, e) {
    nInner++;
    THROW_LAST();
}
END_CATCH
}
CATCH_ALL(e) {
    EXPECT_EQ(0, Counted::s_nDeleted);
}
END_CATCH_ALL
EXPECT_EQ(1, nInner);
EXPECT_EQ(1, Counted::s_nDeleted);
}

TEST(Exception, MessagesNameTheFileAndTheReason) {
    EXPECT_EQ("读取 甲.lin 时意外到达文件末尾。",
              messageOf(CArchiveException(CArchiveException::endOfFile, "甲.lin")));
    EXPECT_EQ("处理 未命名文件 时发生未知错误。", messageOf(CArchiveException(99)));
    EXPECT_EQ("找不到文件 a。", messageOf(CFileException(CFileException::fileNotFound, -1, "a")));
    const std::string withReason = messageOf(CFileException(CFileException::fileNotFound, 2, "a"));
    EXPECT_EQ(0u, withReason.find("找不到文件 a。（"));
    EXPECT_GT(withReason.size(), strlen("找不到文件 a。（）"));
    EXPECT_NE("", messageOf(CMemoryException()));
    EXPECT_FALSE(CUserException().GetErrorMessage(std::string(9, 0).data(), 9));
}

TEST(Exception, MessagesAreCutBetweenCharacters) {
    const char* const cut[] = {"", "", "找", "找", "找不"};
    for (UINT n = 1; n <= std::size(cut); n++)
        EXPECT_EQ(cut[n - 1], messageOf(CFileException(CFileException::fileNotFound, -1, "a"), n)) << n;
}
