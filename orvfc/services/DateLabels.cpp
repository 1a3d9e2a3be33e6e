#include "DateLabels.h"

#include <charconv>
#include <string.h>

namespace orv {
namespace {

class Label {
public:
    explicit Label(char (&text)[kLabelRoom]) : m_text(text) {}

    int length() const { return m_length; }

    void append(std::string_view text) {
        if (text.size() > static_cast<size_t>(kLabelRoom - m_length))
            return;
        memcpy(m_text + m_length, text.data(), text.size());
        m_length += static_cast<int>(text.size());
    }

    void append(int number) {
        const auto result = std::to_chars(m_text + m_length, m_text + kLabelRoom, number);
        if (result.ec == std::errc())
            m_length = static_cast<int>(result.ptr - m_text);
    }

private:
    char (&m_text)[kLabelRoom];
    int m_length = 0;
};

bool skip(std::string_view& rest, std::string_view text) {
    if (!rest.starts_with(text))
        return false;
    rest.remove_prefix(text.size());
    return true;
}

// The longest name that fits: "十" begins "十一" too.
bool readName(const DateFieldRow& field, std::string_view& rest, int& number) {
    std::string_view best;
    for (int i = field.first; i <= field.last; ++i) {
        const std::string_view name = field.names[i];
        if (name.size() > best.size() && rest.starts_with(name)) {
            best = name;
            number = i;
        }
    }
    return !best.empty() && skip(rest, best);
}

bool readNumber(const DateFieldRow& field, std::string_view& rest, int& number) {
    const size_t digits = field.last > 9 ? 2 : 1;
    size_t length = 0;
    number = 0;
    while (length < digits && length < rest.size() && rest[length] >= '0' && rest[length] <= '9')
        number = number * 10 + rest[length++] - '0';
    rest.remove_prefix(length);
    return length > 0 && number >= field.first && number <= field.last;
}

// Values by DateValue; -1 for those that the label does not tell.
struct LabelReading {
    int values[kDateValues];

    int get(DateValue value, int otherwise) const {
        const int number = values[static_cast<int>(value)];
        return number < 0 ? otherwise : number;
    }
};

// Whether the whole text is a label in this style.
bool readStyle(const DateStyle& style, std::string_view text, LabelReading& reading) {
    for (int& value : reading.values)
        value = -1;
    const DateField* argument = style.arguments;
    for (const char* format = style.format; *format; ++format) {
        if (*format != '%') {
            if (!skip(text, {format, 1}))
                return false;
            continue;
        }
        ++format;
        const DateFieldRow& field = dateField(*argument++);
        int& number = reading.values[static_cast<int>(field.value)];
        if (!(field.names ? readName(field, text, number) : readNumber(field, text, number)))
            return false;
    }
    return text.empty();
}

bool dayOfReading(const LabelReading& reading, int& day) {
    CalendarDate date = {0, 0, 0};
    for (DateValue digit : {DateValue::year1, DateValue::year2, DateValue::year3, DateValue::year4})
        date.year = date.year * 10 + reading.get(digit, 0);
    date.month = reading.get(DateValue::month, reading.get(DateValue::quarter, 1) * 3 - 2);
    date.day = reading.get(DateValue::day, reading.get(DateValue::tenDays, 0) * 10 + 1);
    if (date.year < 100 || date.day > daysInMonth(date.year, date.month))
        return false;
    const int number = dayNumber(date);
    if (reading.get(DateValue::weekday, dayOfWeek(number)) != dayOfWeek(number))
        return false;
    day = number;
    return true;
}

} // namespace

DateValues::DateValues(int day) {
    const CalendarDate date = calendarDate(day);
    set(DateValue::year1, date.year / 1000);
    set(DateValue::year2, date.year / 100 % 10);
    set(DateValue::year3, date.year / 10 % 10);
    set(DateValue::year4, date.year % 10);
    set(DateValue::month, date.month);
    set(DateValue::day, date.day);
    set(DateValue::quarter, (date.month + 2) / 3);
    set(DateValue::tenDays, tenDaysOfMonth(date.day));
    set(DateValue::weekday, dayOfWeek(day));
    set(DateValue::week, (dayOfYear(day) - 1) / 7 + 1);
}

int numberFromStart(DateUnit unit, double start, double date) {
    const int count = countBoundaries(unit, start, date);
    return count >= 0 ? count + 1 : count;
}

// A scale ends with its last day: counting begins on the day behind it. Both negations are undone by a second
// one, so that the last year of a scale reads "第-1年": plans have always been drawn so.
int numberFromEnd(DateUnit unit, double end, double date) {
    const int count = countBoundaries(unit, addDays(end, 1), date);
    if (count >= 0)
        return -(-(count + 1));
    return -(-count);
}

int formatLabel(const DateStyle& style, const DateValues& values, char (&label)[kLabelRoom]) {
    Label text(label);
    const DateField* argument = style.arguments;
    std::string_view rest = style.format;
    for (size_t percent = rest.find('%'); percent != rest.npos; percent = rest.find('%')) {
        text.append(rest.substr(0, percent));
        rest.remove_prefix(percent + 2);
        const DateFieldRow& field = dateField(*argument++);
        const int number = values.get(field.value);
        if (field.names)
            text.append(std::string_view(field.names[number]));
        else
            text.append(number);
    }
    text.append(rest);
    return text.length();
}

bool readLabel(std::string_view label, int& day) {
    LabelReading reading;
    for (const DateStyle& style : dateStyles()) {
        if (style.namesYear() && readStyle(style, label, reading) && dayOfReading(reading, day))
            return true;
    }
    return false;
}

bool readDateNumber(std::string_view text, double& date) {
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    double number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec != std::errc() || result.ptr != text.data() + text.size())
        return false;
    if (number != kNoDate && !isDate(number))
        return false;
    date = number;
    return true;
}

std::string_view trimBlanks(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const size_t first = text.find_first_not_of(blanks);
    if (first == text.npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

} // namespace orv
