#include "DateStyles.h"

#include <array>
#include <iterator>
#include <string_view>

namespace orv {
namespace {

using enum DateField;

// Digits, quarters, months and days in Chinese.
constexpr const char* kNumerals[] = {
    "零",     "一",     "二",     "三",     "四",     "五",     "六",     "七",     "八",   "九",    "十",
    "十一",   "十二",   "十三",   "十四",   "十五",   "十六",   "十七",   "十八",   "十九", "二十",  "二十一",
    "二十二", "二十三", "二十四", "二十五", "二十六", "二十七", "二十八", "二十九", "三十", "三十一"};
constexpr const char* kWeekdays[] = {"", "日", "一", "二", "三", "四", "五", "六"};
constexpr const char* kTenDays[] = {"上旬", "中旬", "下旬"};
constexpr const char* kTenDaysFirst[] = {"1", "11", "21"};

constexpr DateFieldRow kFields[] = {
    {DateValue::year1, nullptr, 0, 0}, // none
    {DateValue::year1, kNumerals, 0, 9},   {DateValue::year2, kNumerals, 0, 9},
    {DateValue::year3, kNumerals, 0, 9},   {DateValue::year4, kNumerals, 0, 9},
    {DateValue::year1, nullptr, 0, 9},     {DateValue::year2, nullptr, 0, 9},
    {DateValue::year3, nullptr, 0, 9},     {DateValue::year4, nullptr, 0, 9},
    {DateValue::month, kNumerals, 1, 12},  {DateValue::month, nullptr, 1, 12},
    {DateValue::day, kNumerals, 1, 31},    {DateValue::day, nullptr, 1, 31},
    {DateValue::quarter, kNumerals, 1, 4}, {DateValue::quarter, nullptr, 1, 4},
    {DateValue::tenDays, kTenDays, 0, 2},  {DateValue::tenDays, kTenDaysFirst, 0, 2},
    {DateValue::weekday, kWeekdays, 1, 7}, {DateValue::week, nullptr, 1, 53},
    {DateValue::fromStart, nullptr, 0, 0}, {DateValue::fromEnd, nullptr, 0, 0},
};
static_assert(std::size(kFields) == static_cast<size_t>(Ne) + 1);

// The texts are those that plans have been drawn with for years, their inconsistencies included.
// clang-format off
constexpr DateStyle kStyles[] = {
    {0, 0, "二零零零年,二零零一年,...", "二零零零年", "%s%s%s%s年", {CY1, CY2, CY3, CY4}},
    {1, 0, "2000年,2001年,...", "2000年", "%d%d%d%d年", {Y1, Y2, Y3, Y4}},
    {2, 0, "2000,2001,...", "2000", "%d%d%d%d", {Y1, Y2, Y3, Y4}},
    {3, 0, "第1年,第2年,...(从开始)", "第999年", "第%d年", {Ns}},
    {4, 0, "第1,第2,...(从开始)", "第999", "第%d", {Ns}},
    {5, 0, "1,2,...(从开始)", "999", "%d", {Ns}},
    {6, 0, "第2年,第1年,...(从结束)", "第999年", "第%d年", {Ne}},
    {7, 0, "第2,第1,...(从结束)", "第999", "第%d", {Ne}},
    // The width text is the only one here of four digits.
    {8, 0, "2,1,...(从结束)", "9999", "%d", {Ne}},
    {15, 2, "二零零零年一月,二零零零年二月,...", "二零零零年十二月", "%s%s%s%s年%s月",
     {CY1, CY2, CY3, CY4, CM}},
    {16, 2, "2000年1月,2000年2月,...", "2000年12月", "%d%d%d%d年%d月", {Y1, Y2, Y3, Y4, M}},
    {17, 2, "2000-1,2000-2,...", "2000-12", "%d%d%d%d-%d", {Y1, Y2, Y3, Y4, M}},
    {18, 2, "2000/1,2000/2,...", "2000/12", "%d%d%d%d/%d", {Y1, Y2, Y3, Y4, M}},
    {19, 2, "一月,二月,...", "十二月", "%s月", {CM}},
    {20, 2, "1月,2月,...", "12月", "%d月", {M}},
    {21, 2, "1,2,...", "12", "%d", {M}},
    {22, 2, "第1月,第2月,...(从开始)", "第999月", "第%d月", {Ns}},
    {23, 2, "第1,第2,...(从开始)", "第999", "第%d", {Ns}},
    {24, 2, "1,2,...(从开始)", "999", "%d", {Ns}},
    {25, 2, "第2月,第1月,...(从结束)", "第999月", "第%d月", {Ne}},
    {26, 2, "第2,第1,...(从结束)", "第999", "第%d", {Ne}},
    {27, 2, "2,1,...(从结束)", "999", "%d", {Ne}},
    // The list text loses its second 第.
    {35, 1, "二零零零年第一季度,二零零零年二季度,...", "二零零零年第一季度", "%s%s%s%s年第%s季度",
     {CY1, CY2, CY3, CY4, CQ}},
    // The list text loses its second 第, the format has none.
    {36, 1, "2000年第1季度,2000年2季度,...", "2000年第1季度", "%d%d%d%d年%d季度", {Y1, Y2, Y3, Y4, Q}},
    {37, 1, "第一季度,第二季度,...", "第一季度", "第%s季度", {CQ}},
    {38, 1, "第1季度,第2季度,...", "第4季度", "第%d季度", {Q}},
    {39, 1, "1季度,2季度,...", "1季度", "%d季度", {Q}},
    {40, 1, "1,2,...", "4", "%d", {Q}},
    {41, 1, "第1季度,第2季度,...(从开始)", "第999季度", "第%d季度", {Ns}},
    {42, 1, "第1,第2,...(从开始)", "第999", "第%d", {Ns}},
    {43, 1, "1,2,...(从开始)", "999", "%d", {Ns}},
    {44, 1, "第2季度,第1季度,...(从结束)", "第999季度", "第%d季度", {Ne}},
    {45, 1, "第2,第1,...(从结束)", "第999", "第%d", {Ne}},
    {46, 1, "2,1,...(从结束)", "999", "%d", {Ne}},
    {55, 3, "一月上旬,一月中旬,...", "十二月上旬", "%s月%s", {CM, X}},
    // The list text begins with 月.
    {56, 3, "月上旬,1月中旬,...", "12月上旬", "%d月%s", {M, X}},
    // Without the 日 that list and width texts have.
    {57, 3, "1月1日,1月11日,...", "12月21日", "%d月%s", {M, XS}},
    {58, 3, "1-1,1-11,...", "12-21", "%d-%s", {M, XS}},
    {59, 3, "2000年1月上旬,2001年1月中旬,...", "2000年12月上旬", "%d%d%d%d年%d月%s", {Y1, Y2, Y3, Y4, M, X}},
    {60, 3, "2000-1-1,2001-1-11,...", "2000-12-21", "%d%d%d%d-%d-%s", {Y1, Y2, Y3, Y4, M, XS}},
    {61, 3, "上旬,中旬,...", "上旬", "%s", {X}},
    {70, 4, "二零零零年一月二日,二零零零年一月九日,...", "二零零零年十二月三十一日", "%s%s%s%s年%s月%s日",
     {CY1, CY2, CY3, CY4, CM, CD}},
    {71, 4, "2000年1月2日,2000年1月9日,...", "2000年12月31日", "%d%d%d%d年%d月%d日", {Y1, Y2, Y3, Y4, M, D}},
    // Weeks begin on Sundays: the weekday is part of the format. Four dots end the list text.
    {72, 4, "2000年1月2日星期日,2000年1月9日星期日,....", "2000年12月31日星期日", "%d%d%d%d年%d月%d日星期日",
     {Y1, Y2, Y3, Y4, M, D}},
    {73, 4, "2001-1-2,2001-1-9,...", "2001-12-21", "%d%d%d%d-%d-%d", {Y1, Y2, Y3, Y4, M, D}},
    {74, 4, "2001-1-2(日),2001-1-9(日),...", "2001-12-21(日)", "%d%d%d%d-%d-%d(日)", {Y1, Y2, Y3, Y4, M, D}},
    {75, 4, "一月二日,一月九日,...", "十二月三十一日", "%s月%s日", {CM, CD}},
    {76, 4, "1月2日,1月9日,...", "12月31日", "%d月%d日", {M, D}},
    {77, 4, "1月2日(日),1月9日(日),...", "12月31日(日)", "%d月%d日(日)", {M, D}},
    {78, 4, "1-2,1-9,...", "12-31", "%d-%d", {M, D}},
    {79, 4, "1-2(日),1-9(日),...", "12-31(日)", "%d-%d(日)", {M, D}},
    {80, 4, "1周,2周,...", "60周", "%d周", {K}},
    {81, 4, "1,2,...", "60", "%d", {K}},
    {82, 4, "第1周,第2周,...(从开始)", "第999周", "第%d周", {Ns}},
    {83, 4, "第1,第2,...(从开始)", "第999", "第%d", {Ns}},
    {84, 4, "1,2,...(从开始)", "9999", "%d", {Ns}},
    {85, 4, "第2周,第1周,...(从结束)", "第999周", "第%d周", {Ne}},
    {86, 4, "第2,第1,...(从结束)", "第999", "第%d", {Ne}},
    {87, 4, "2,1,...(从结束)", "999", "%d", {Ne}},
    // The list text is that of the weeks.
    {95, 5, "二零零零年一月二日,二零零零年一月九日,...", "二零零零年十二月三十一日", "%s%s%s%s年%s月%s日",
     {CY1, CY2, CY3, CY4, CM, CD}},
    {96, 5, "2000年1月1日,2000年1月2日...", "2000年12月31日", "%d%d%d%d年%d月%d日", {Y1, Y2, Y3, Y4, M, D}},
    {97, 5, "2000年1月1日周一,2000年1月2日周二...", "2000年12月31日周一", "%d%d%d%d年%d月%d日周%s",
     {Y1, Y2, Y3, Y4, M, D, WD}},
    {98, 5, "一月一日,一月二日...", "十二月三十一日", "%s月%s日", {CM, CD}},
    {99, 5, "1月1日,1月2日...", "12月31日", "%d月%d日", {M, D}},
    {100, 5, "1月1日周一,1月2日周二...", "12月31日周一", "%d月%d日周%s", {M, D, WD}},
    {101, 5, "2000-1-1,2000-1-2,...", "2000-12-31", "%d%d%d%d-%d-%d", {Y1, Y2, Y3, Y4, M, D}},
    // The list text has parentheses, the format has none, and it shows the same date twice.
    {102, 5, "2000-1-1(周一),2000-1-1(周二)...", "2000-12-31(周一)", "%d%d%d%d-%d-%d周%s",
     {Y1, Y2, Y3, Y4, M, D, WD}},
    {103, 5, "周一,周二...", "周一", "周%s", {WD}},
    {104, 5, "星期一,星期二...", "星期一", "星期%s", {WD}},
    {105, 5, "1日,2日...", "31日", "%d日", {D}},
    {106, 5, "1,2...", "31", "%d", {D}},
    {107, 5, "第1日,第2日,...(从开始)", "第999日", "第%d日", {Ns}},
    {108, 5, "第1,第2,...(从开始)", "第999", "第%d", {Ns}},
    {109, 5, "1,2,...(从开始)", "999", "%d", {Ns}},
    {110, 5, "第2日,第1日,...(从结束)", "第999日", "第%d日", {Ne}},
    {111, 5, "第2,第1,...(从结束)", "第999", "第%d", {Ne}},
    {112, 5, "2,1,...(从结束)", "999", "%d", {Ne}},
};
// clang-format on
static_assert(std::size(kStyles) == 77);

// Every format asks for what its arguments are, and for no more of them.
constexpr bool formatFits(const DateStyle& style) {
    const std::string_view format = style.format;
    size_t used = 0;
    for (size_t i = 0; i < format.size(); ++i) {
        if (format[i] != '%')
            continue;
        const DateField field = used < std::size(style.arguments) ? style.arguments[used++] : none;
        const bool named = kFields[static_cast<size_t>(field)].names != nullptr;
        if (field == none || i + 1 == format.size() || format[i + 1] != (named ? 's' : 'd'))
            return false;
    }
    return used == std::size(style.arguments) || style.arguments[used] == none;
}

constexpr bool stylesFit() {
    int last = -1;
    for (const DateStyle& style : kStyles) {
        if (style.id <= last || !formatFits(style))
            return false;
        last = style.id;
    }
    return true;
}
static_assert(stylesFit());

// Rows by id, -1 in the gaps.
constexpr auto kRowOfId = [] {
    std::array<int8_t, kStyles[std::size(kStyles) - 1].id + 1> rows{};
    rows.fill(-1);
    for (size_t i = 0; i < std::size(kStyles); ++i)
        rows[kStyles[i].id] = static_cast<int8_t>(i);
    return rows;
}();

} // namespace

const DateFieldRow& dateField(DateField field) {
    return kFields[static_cast<size_t>(field)];
}

std::span<const DateStyle> dateStyles() {
    return kStyles;
}

const DateStyle* findDateStyle(int id) {
    if (id < 0 || id >= static_cast<int>(kRowOfId.size()) || kRowOfId[id] < 0)
        return nullptr;
    return &kStyles[kRowOfId[id]];
}

} // namespace orv
