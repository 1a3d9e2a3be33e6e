// Numbers typed into the fields of pickers.

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "orvfc/pickers/TypedNumber.h"

namespace {

TEST(TypedNumber, IsADecimalNumberAndNothingElse) {
    const struct {
        const char* text;
        double value; // 7: refused
    } rows[] = {
        {"12", 12},   {" 12.5 ", 12.5}, {"+3", 3},  {".5", 0.5}, {"5.", 5},  {"-2", -2}, {"0", 0},
        {"100", 100}, {"", 7},          {" ", 7},   {"-", 7},    {"+", 7},   {"+-3", 7}, {"1 2", 7},
        {"1.2.3", 7}, {"12pt", 7},      {"1e1", 7}, {"0x10", 7}, {"inf", 7}, {"nan", 7}, {"100.1", 7},
        {"--2", 7},   {"12磅", 7},      {"-11", 7}, {"1,5", 7},
    };
    for (const auto& row : rows) {
        double value = 7;
        EXPECT_EQ(row.value != 7, orv::parseTyped(row.text, -10, 100, value)) << row.text;
        EXPECT_EQ(row.value, value) << row.text;
    }
    double value = 7;
    EXPECT_FALSE(orv::parseTyped(std::string(10000, '9'), 0, HUGE_VAL, value));
    EXPECT_EQ(7, value);
}

TEST(TypedNumber, ValuesAreOneWithinTheLibrarysZero) {
    EXPECT_TRUE(orv::sameValue(0.1 + 0.2, 0.3));
    EXPECT_FALSE(orv::sameValue(1, 1.000002));
    EXPECT_FALSE(orv::sameValue(std::nan(""), std::nan("")));
}

} // namespace
