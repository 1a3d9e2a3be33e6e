#include "afx_test.h"

using orv::test::bytesOf;
using orv::test::PassedAssertions;

namespace {

template <class... ARGS>
std::string formatted(LPCSTR format, ARGS... args) {
    CString text = "old";
    text.Format(format, args...);
    return bytesOf(text);
}

CString formattedV(LPCSTR format, ...) {
    va_list args;
    va_start(args, format);
    CString text;
    text.FormatV(format, args);
    va_end(args);
    return text;
}

enum Colour { green = 7 };

} // namespace

TEST(Format, WritesWhatVisualCppWrites) {
    const CString name = "誠";
    const struct {
        std::string written;
        const char* expected;
    } rows[] = {
        {formatted("plain 100%%"), "plain 100%"},
        {formatted("%d|%i|%u", -5, 6, 4294967295u), "-5|6|4294967295"},
        {formatted("%5d|%-5d|%05d|%+d", 42, 42, 42, 42), "   42|42   |00042|+42"},
        {formatted("%x %X %04x %#x %o", 255, 255, 10, 255, 8), "ff FF 000a 0xff 10"},
        {formatted("%x %d %ld", -1, (LONGLONG)0x100000001, (LONGLONG)-2), "ffffffff 1 -2"},
        {formatted("%ld %lu %lx", (LONG)-2, (DWORD)4000000000u, (DWORD)0xFFFFFFFF), "-2 4000000000 ffffffff"},
        {formatted("%hd %hu %hhx", 65537, 65537, 0x1FF), "1 1 ff"},
        {formatted("%I64d %I64x %lld", (LONGLONG)-5000000000LL, (ULONGLONG)1 << 40, 7LL),
         "-5000000000 10000000000 7"},
        {formatted("%I32u %zu", 5u, (size_t)9), "5 9"},
        {formatted("%.2f|%8.3f|%g|%e", 3.14159, 2.5, 0.5, 12345.678), "3.14|   2.500|0.5|1.234568e+04"},
        {formatted("%f", 1.0f), "1.000000"},
        {formatted("%s and %s", name, "text"), "誠 and text"},
        {formatted("%6s|%-6s|%.2s|%.*s", "abc", "abc", "abc", 1, "xyz"), "   abc|abc   |ab|x"},
        {formatted("%*d|%-*d|", 4, 7, 4, 7), "   7|7   |"},
        {formatted("%*d|", -4, 7), "7   |"},
        {formatted("%c%c", 'a', 66), "aB"},
        {formatted("%s", (LPCSTR)NULL), "(null)"},
        {formatted("%d %d", green, true), "7 1"},
        {formatted("%p", (void*)0xAB), sizeof(void*) == 8 ? "00000000000000AB" : "000000AB"},
        {formatted("%hs", "narrow"), "narrow"},
        {formatted("end %"), "end "},
#if defined(_WIN32)
        {formatted("%S %ls", L"誠", L"b"), "誠 b"},
#endif
    };
    for (const auto& row : rows)
        EXPECT_EQ(std::string(row.expected), row.written);
    EXPECT_EQ(std::string("-3 誠 2.50 -5000000000"),
              bytesOf(formattedV("%ld %s %.2f %I64d", (LONG)-3, name.GetString(), 2.5, -5000000000LL)));
}

TEST(Format, MismatchesAreHarmless) {
    PassedAssertions assertions;
    EXPECT_EQ("<>", formatted("<%s>", 12345));
    EXPECT_EQ("2", formatted("%d", 2.9));
    EXPECT_EQ("0", formatted("%d", 1e300));
    EXPECT_EQ("3.0", formatted("%.1f", 3));
    EXPECT_EQ("1 0 ", formatted("%d %d %s", 1));
    EXPECT_EQ("", formatted("%n", 1));
    EXPECT_LE(formatted("%999999999d", 1).size(), 65535u);
#if defined(_DEBUG)
    EXPECT_GE(assertions.count(), 5);
#endif
}

TEST(Format, ReadsItselfBeforeItIsReplaced) {
    CString text = "%s-%s";
    text.Format(text, text, "b");
    EXPECT_EQ("%s-%s-b", bytesOf(text));
    text.AppendFormat("+%d", 1);
    EXPECT_EQ("%s-%s-b+1", bytesOf(text));
}
