#include "afx_test.h"

#include <thread>

using orv::test::bytesOf;
using orv::test::PassedAssertions;

// 誠 is D5 5C (its trail byte is a backslash), 亅 is 81 7C (a bar), 乤 is 81 41 (an A).
#define CHENG "\xD5\x5C"
#define JUE "\x81\x7C"
#define XIA "\x81\x41"

TEST(String, LiteralsAreCodePage936) {
    EXPECT_EQ(std::string("誠亅"), CHENG JUE);
}

TEST(String, EditsGiveTheTextsTheyShould) {
    const struct {
        const char* what;
        CString text;
        std::function<void(CString&)> edit;
        const char* expected;
    } rows[] = {
        {"upper leaves trail bytes", "ab" XIA "c|" JUE, [](CString& s) { s.MakeUpper(); }, "AB" XIA "C|" JUE},
        {"lower leaves trail bytes", "AB" XIA "C", [](CString& s) { s.MakeLower(); }, "ab" XIA "c"},
        {"reverse keeps characters", "a" CHENG "b" JUE, [](CString& s) { s.MakeReverse(); },
         JUE "b" CHENG "a"},
        {"reverse of a dangling lead byte", "ab\xD5", [](CString& s) { s.MakeReverse(); },
         "\xD5"
         "ba"},
        {"trim", " \t\r\n a b \v", [](CString& s) { s.Trim(); }, "a b"},
        {"trim right spares a trail byte", "a" CHENG "\\", [](CString& s) { s.TrimRight('\\'); }, "a" CHENG},
        {"trim right of a character", "a\\" CHENG CHENG, [](CString& s) { s.TrimRight(CHENG); }, "a\\"},
        {"trim left of a set", "|x" JUE JUE "y", [](CString& s) { s.TrimLeft("x|" JUE); }, "y"},
        {"trim to nothing", "xxx", [](CString& s) { s.Trim('x'); }, ""},
        {"replace a character", "a\\" CHENG "\\", [](CString& s) { s.Replace('\\', '/'); }, "a/" CHENG "/"},
        {"replace texts", "one two one", [](CString& s) { s.Replace("one", "three"); }, "three two three"},
        {"replace shrinks", "aaa", [](CString& s) { s.Replace("aa", "b"); }, "ba"},
        {"replace nothing", "abc", [](CString& s) { s.Replace("", "x"); }, "abc"},
        {"remove", "a|" JUE "|", [](CString& s) { s.Remove('|'); }, "a" JUE},
        {"insert past the end", "abc", [](CString& s) { s.Insert(99, "d"); }, "abcd"},
        {"insert before the start", "abc", [](CString& s) { s.Insert(-1, 'x'); }, "xabc"},
        {"insert itself", "abcdef", [](CString& s) { s.Insert(3, s); }, "abcabcdefdef"},
        {"append part of itself", "abc", [](CString& s) { s.Append(s.GetString() + 1); }, "abcbc"},
        {"append itself", "abc", [](CString& s) { s += s; }, "abcabc"},
        {"assign part of itself", "abcdef", [](CString& s) { s = s.GetString() + 2; }, "cdef"},
        {"delete past the end", "abcdef", [](CString& s) { s.Delete(4, 99); }, "abcd"},
        {"delete less than nothing", "abc", [](CString& s) { s.Delete(1, -1); }, "abc"},
        {"set a character", "abc", [](CString& s) { s.SetAt(1, 'x'); }, "axc"},
        {"mid out of range", "abc", [](CString& s) { s = s.Mid(7, 2); }, ""},
        {"mid clamped", "abc", [](CString& s) { s = s.Mid(-2, 2); }, "ab"},
        {"left counts bytes", CHENG "x", [](CString& s) { s = s.Left(1); }, "\xD5"},
        {"right clamped", "abc", [](CString& s) { s = s.Right(7); }, "abc"},
        {"left of less than nothing", "abc", [](CString& s) { s = s.Left(-1); }, ""},
        {"span of a set", CHENG "ab" JUE, [](CString& s) { s = s.SpanIncluding("ba" CHENG); }, CHENG "ab"},
        {"span up to a set", CHENG "ab\\", [](CString& s) { s = s.SpanExcluding("\\"); }, CHENG "ab"},
        {"buffer, length found", "abc",
         [](CString& s) {
             strcpy(s.GetBuffer(10), "0123456");
             s.ReleaseBuffer();
         },
         "0123456"},
        {"buffer, length given", "abc",
         [](CString& s) {
             s.GetBuffer();
             s.ReleaseBuffer(2);
         },
         "ab"},
        {"buffer of an empty string", "",
         [](CString& s) {
             s.GetBuffer(4)[0] = 'z';
             s.ReleaseBuffer(1);
         },
         "z"},
        {"joined", "a", [](CString& s) { s = "<" + s + CHENG + '>' + s; }, "<a" CHENG ">a"},
        {"repeated", "", [](CString& s) { s = CString('x', 3); }, "xxx"},
        {"from no text", "a", [](CString& s) { s = (LPCSTR)NULL; }, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        CString text = row.text;
        const CString sharer = text; // an edit must not reach it
        row.edit(text);
        EXPECT_EQ(std::string(row.expected), bytesOf(text));
        EXPECT_EQ(bytesOf(row.text), bytesOf(sharer));
        EXPECT_EQ(0, text.GetString()[text.GetLength()]);
    }
}

TEST(String, MayBeInsertedIntoItselfWhereItLies) {
    CString text = "abcdef";
    text.Preallocate(100);
    const char* place = text.GetString();
    text.Append("x");
    EXPECT_EQ(place, text.GetString());
    text.Insert(1, text.GetString() + 3);
    EXPECT_EQ("adefxbcdefx", bytesOf(text));
    text.Preallocate(100);
    text.SetString(text.GetString() + 8, 3);
    EXPECT_EQ("efx", bytesOf(text));
}

TEST(String, SearchesFindWholeCharactersOnly) {
    struct Row {
        const char* what;
        int found, expected;
    };
    const CString path = "C:\\" CHENG "\\" JUE "|x"; // C : \ D5 5C \ 81 7C | x
    const CString twice = CHENG CHENG "\\";
    const Row rows[] = {
        {"first", path.Find('\\'), 2},
        {"behind the character", path.Find('\\', 3), 5},
        {"from inside the character", path.Find('\\', 4), 5},
        {"bar", path.Find('|'), 8},
        {"last", path.ReverseFind('\\'), 5},
        {"last bar", CString("|" JUE).ReverseFind('|'), 0},
        {"character", path.Find(JUE), 6},
        {"half a character", path.Find("\xD5"), -1},
        {"across characters", CString("\xD5\x5C\xD5\x5C").Find("\x5C\xD5"), -1},
        {"from inside a run of characters", twice.Find('\\', 1), 4},
        {"from inside its second character", twice.Find('\\', 3), 4},
        {"start past the end", path.Find('x', 99), -1},
        {"start before the start", path.Find('x', -1), -1},
        {"nothing", path.Find("", 3), 3},
        {"one of a set", path.FindOneOf("|\\"), 2},
        {"one of a set of characters", path.FindOneOf("|" CHENG), 3},
        {"none of a set", path.FindOneOf("?*"), -1},
        {"behind a zero byte", CString("a\0b", 3).Find('b'), 2},
    };
    for (const Row& row : rows)
        EXPECT_EQ(row.expected, row.found) << row.what;
}

TEST(String, Tokenize) {
    const struct {
        const char *text, *delimiters, *joined;
    } rows[] = {
        {"a,b;c", ",;", "a.b.c."},
        {",,a,,b,,", ",", "a.b."},
        {"", ",", ""},
        {",,", ",", ""},
        {"a" JUE "b|c", "|", "a" JUE "b.c."},
        {"a" JUE "b", JUE, "a.b."},
        {"abc", "", "abc."},
    };
    for (const auto& row : rows) {
        CString joined;
        int iStart = 0;
        for (CString token = CString(row.text).Tokenize(row.delimiters, iStart); iStart != -1;
             token = CString(row.text).Tokenize(row.delimiters, iStart))
            joined += token + ".";
        EXPECT_EQ(std::string(row.joined), bytesOf(joined)) << row.text;
    }
}

TEST(String, Comparisons) {
    EXPECT_EQ(0, CString("aBc" XIA).CompareNoCase("AbC" XIA));
    EXPECT_NE(0, CString("\x81\x41").CompareNoCase("\x81\x61")); // trail bytes that look like A and a
    EXPECT_LT(CString("a").CompareNoCase("B"), 0);
    EXPECT_GT(CString(CHENG).Compare("z"), 0); // bytes are unsigned
    EXPECT_TRUE(CString("a") == "a" && "a" == CString("a") && CString("a") != "b" &&
                CString("a") < CString("b"));
}

TEST(String, KeepsZeroBytes) {
    CString text("a\0b", 3);
    text += CString("\0c", 2);
    const CString copy = text;
    EXPECT_EQ(std::string("a\0b\0c", 5), bytesOf(copy));
    EXPECT_EQ(std::string("b\0", 2), bytesOf(copy.Mid(2, 2)));
    EXPECT_EQ(std::string("c\0b\0a", 5), bytesOf(text.MakeReverse()));
}

TEST(String, IsOnePointer) {
    EXPECT_EQ(sizeof(void*), sizeof(CString));
    const CString a = "shared", b = a;
    EXPECT_EQ(a.GetString(), b.GetString());
}

TEST(String, MovesHandTheBlockOver) {
    CString a = "text", other = "other";
    const LPCSTR block = a.GetString();
    CString b = std::move(a);
    EXPECT_EQ(block, b.GetString());
    EXPECT_TRUE(a.IsEmpty());
    other = std::move(b);
    EXPECT_EQ(block, other.GetString());
    b = "again";
    other = std::move(*&other);
    EXPECT_EQ("text", bytesOf(other));
    EXPECT_EQ("again", bytesOf(b));
}

TEST(String, ABadIndexIsHarmless) {
    PassedAssertions assertions;
    CString text = "abc";
    EXPECT_EQ(0, text.GetAt(4));
    EXPECT_EQ(0, text[-1]);
    text.SetAt(3, 'x');
    EXPECT_EQ(std::string("abc"), bytesOf(text));
#if defined(_DEBUG)
    EXPECT_EQ(3, assertions.count());
#endif
    EXPECT_EQ(0, text[3]); // the closing zero is no mistake
}

TEST(String, CopiesMayMeetInThreads) {
    const CString shared = "a text that several threads copy and let go";
    std::thread threads[4];
    for (std::thread& thread : threads)
        thread = std::thread([&shared] {
            for (int i = 0; i < 20000; i++) {
                CString copy = shared;
                if (i % 100 == 0)
                    copy += "x";
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(43, shared.GetLength());
    CString last = shared;
    EXPECT_NE(shared.GetString(), last.GetBuffer()); // the count is back to two: this one and its copy
}

TEST(String, AppendingPieceByPieceIsLinear) {
    CString text;
    int nMoves = 0;
    const char* place = NULL;
    for (int i = 0; i < 200000; i++) {
        text += 'x';
        nMoves += text.GetString() != place;
        place = text.GetString();
    }
    EXPECT_LT(nMoves, 60);
}
