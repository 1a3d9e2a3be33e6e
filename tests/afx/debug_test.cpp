#include "afx_test.h"

using orv::test::contentsOf;

TEST(Debug, AFailedAssertionCanBePassedOver) {
    orv::test::PassedAssertions assertions;
    int nReached = 0;
    ASSERT(nReached == 1);
    VERIFY(++nReached == 1);
    VERIFY(nReached++ == 7); // evaluated in release builds too
    EXPECT_EQ(2, nReached);
#if defined(_DEBUG)
    EXPECT_EQ(2, assertions.count());
#else
    EXPECT_EQ(0, assertions.count());
#endif
}

#if defined(_WIN32) && defined(_DEBUG)
TEST(Debug, TracesReachTheDebugger) {
    orv::test::DebugEvents events;
    TRACE("width %d of %s\n", 3, CString("誠"));
    TRACE0("plain 100%\n");
    TRACE2("%d %s\n", 1, "two");
    EXPECT_EQ("width 3 of 誠\nplain 100%\n1 two\n", events.text());
}
#endif

TEST(Debug, DumpsNameWhatTheyShow) {
    CMemFile file;
    CDumpContext dc(&file);
    dc << "n " << 5 << " " << 2.5 << " " << CPoint(1, 2) << CSize(3, 4) << CRect(1, 2, 3, 4) << CString("誠");
    dc << (const CObject*)NULL << "\n";
    BYTE bytes[] = {0x01, 0xAB, 0x00};
    dc.HexDump("x", bytes, 3, 2);
    CMemFile dumped;
    dc << &dumped;
    const std::string text = contentsOf(file);
    EXPECT_EQ(0u,
              text.find("n 5 2.5 (1, 2)(3 x 4)(L 1, T 2, R 3, B 4)誠NULL\nx 01 AB\nx 00\na CMemFile at $"))
        << text;
}
