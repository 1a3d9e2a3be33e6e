// Labels of time scales against the system's own date texts, and counting over a long range against a short
// one.

#include "harness.h"

#include <orvfc/services/DateFormat.h>

#include <afxdisp.h>

namespace {

constexpr int kDates = 1024;

double dateAt(int i) {
    return 36526 + i % kDates * 11;
}

// Every style once, its unit with it.
struct Styles {
    CWordArray ids;
    CWordArray units;

    Styles() {
        CStringArray texts;
        for (int unit = 0; unit < 6; ++unit) {
            for (int i = CORVDateFormat::GetStyleStringArray(unit, texts, ids); i > 0; --i)
                units.Add(static_cast<WORD>(unit));
        }
    }
};

void libraryLabels(int times) {
    static const Styles styles;
    const int count = static_cast<int>(styles.ids.GetSize());
    int length = 0;
    for (int i = 0; i < times; ++i) {
        const int style = i % count;
        length +=
            CORVDateFormat::GetDateString(styles.units[style], styles.ids[style], dateAt(i), 36526, 47788)
                .GetLength();
    }
    orv::bench::keep(length);
}

// Into the same kind of string, in forms of the library's kinds.
void systemLabels(int times) {
    static const char* const formats[] = {"yyyy'年'M'月'd'日'", "yyyy-M-d", "yyyy'年'M'月'", "yyyy", "dddd",
                                          "M'月'd'日'"};
    int length = 0;
    for (int i = 0; i < times; ++i) {
        SYSTEMTIME date;
        char text[64];
        ::VariantTimeToSystemTime(dateAt(i), &date);
        ::GetDateFormatA(LOCALE_USER_DEFAULT, 0, &date, formats[i % 6], text, sizeof(text));
        length += CString(text).GetLength();
    }
    orv::bench::keep(length);
}

void foundationLabels(int times) {
    static const char* const formats[] = {"%Y年%m月%d日", "%Y-%m-%d", "%Y年%m月", "%Y", "%A", "%m月%d日"};
    int length = 0;
    for (int i = 0; i < times; ++i)
        length += COleDateTime(dateAt(i)).Format(formats[i % 6]).GetLength();
    orv::bench::keep(length);
}

struct Range {
    double first, last;
};
constexpr Range kLong = {-511000, 2775000}; // the years 500 to 9497
constexpr Range kShort = {36526, 39813};    // 2000 to 2008

orv::bench::Work counting(int unit, Range range) {
    return [=](int times) {
        double sum = 0;
        for (int i = 0; i < times; ++i)
            sum += CORVDateFormat::GetDateRanges(unit, range.first + i % 100, range.last);
        orv::bench::keep(sum);
    };
}

const orv::bench::Rows rows([](orv::bench::Suite& suite) {
    const char* group = "date labels, all styles";
    suite.add({group, "against GetDateFormatA", 1.0, libraryLabels, systemLabels});
    suite.add({group, "against COleDateTime::Format", 1.0, libraryLabels, foundationLabels});
    group = "GetDateRanges, 9,000 years against 9";
    const char* names[] = {"years", "quarters", "months", "ten days", "weeks", "days"};
    for (int unit = 0; unit < 6; ++unit)
        suite.add({group, names[unit], 1.1, counting(unit, kLong), counting(unit, kShort)});
});

} // namespace
