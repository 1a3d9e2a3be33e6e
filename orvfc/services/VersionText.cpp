#include "VersionText.h"

#include <cfloat>
#include <cmath>
#include <span>
#include <stdlib.h>
#include <string>

namespace orv {

namespace {

struct ValueText {
    DWORD dwValue;
    const char* text;
};

constexpr DWORD kDriver = 3;
constexpr DWORD kFont = 4;

constexpr ValueText kDriverTexts[] = {
    {0, "Unknown driver"},     {1, "Printer driver"}, {2, "Keyboard driver"}, {3, "Language driver"},
    {4, "Display driver"},     {5, "Mouse driver"},   {6, "Network driver"},  {7, "System driver"},
    {8, "Installable driver"}, {9, "Sound driver"},
};
constexpr ValueText kFontTexts[] = {
    {0, "Unknown font"},
    {1, "Raster font"},
    {2, "Vector font"},
    {3, "Truetype font"},
};
constexpr ValueText kTypeTexts[] = {
    {0, "Unknown type"},   {1, "Application"},         {2, "Dynamic link library"},
    {5, "Virtual device"}, {7, "Static link library"},
};
constexpr ValueText kSystemTexts[] = {
    {0x00000, "Unknown OS"},
    {0x10000, "MS-DOS"},
    {0x10001, "16-bit windows running on MS-DOS"},
    {0x10004, "Win32 API running on MS-DOS"},
    {0x20000, "16-bit OS/2"},
    {0x20002, "16-bit Presentation manager running on 16-bit OS/2"},
    {0x30000, "32-bit OS/2"},
    {0x40000, "Windows NT"},
    {0x40004, "Win32 API on Windows NT"},
};

const char* find(std::span<const ValueText> rows, DWORD dwValue) {
    for (const ValueText& row : rows)
        if (row.dwValue == dwValue)
            return row.text;
    return nullptr;
}

int signOf(int n) {
    return (n > 0) - (n < 0);
}

// Takes a version apart from the left.
class Parts {
public:
    explicit Parts(std::string_view text) : rest_(text) {}

    std::string_view rest() const { return rest_; }

    std::string next() {
        if (hasComma_)
            hasComma_ = rest_.find(',') != rest_.npos;
        const size_t nEnd = rest_.find(hasComma_ ? ',' : '.');
        std::string part(rest_.substr(0, nEnd));
        rest_.remove_prefix(nEnd == rest_.npos ? rest_.size() : nEnd + 1);
        std::erase(part, ' ');
        return part;
    }

private:
    std::string_view rest_;
    bool hasComma_ = true; // perhaps
};

// Doubles that a float cannot hold become infinite.
float numberOf(const std::string& part) {
    const double number = atof(part.c_str());
    if (std::fabs(number) > FLT_MAX)
        return std::copysign(HUGE_VALF, static_cast<float>(std::copysign(1.0, number)));
    return static_cast<float>(number);
}

} // namespace

const char* fileTypeText(DWORD dwType, DWORD dwSubtype) {
    if (dwType == kDriver)
        return find(kDriverTexts, dwSubtype);
    if (dwType == kFont)
        return find(kFontTexts, dwSubtype);
    return find(kTypeTexts, dwType);
}

const char* targetSystemText(DWORD dwSystem) {
    return find(kSystemTexts, dwSystem);
}

int compareVersions(std::string_view a, std::string_view b) {
    Parts left(a), right(b);
    while (!left.rest().empty() && !right.rest().empty()) {
        const std::string leftPart = left.next(), rightPart = right.next();
        const float leftNumber = numberOf(leftPart), rightNumber = numberOf(rightPart);
        if (leftNumber > rightNumber)
            return 1;
        if (leftNumber < rightNumber)
            return -1;
        if (const int n = signOf(leftPart.compare(rightPart)))
            return n;
    }
    return signOf(left.rest().compare(right.rest()));
}

} // namespace orv
