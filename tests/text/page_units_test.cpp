// What the text property page shows, and what it keeps.

#include <gtest/gtest.h>

#include <climits>
#include <cmath>

#include "orvfc/text/TextPageUnits.h"

TEST(TextPageUnits, PixelsArePointsOfTheScreen) {
    EXPECT_EQ(3.0, orv::pointsFromPixels(4, 96));
    EXPECT_EQ(0.0, orv::pointsFromPixels(4, 0));
    const struct {
        double points;
        int dpi;
        LONG pixels;
    } rows[] = {{3, 96, 4},    {3.5, 96, 5},         {-3.5, 96, -5},        {4.26, 96, 6},
                {7.5, 96, 10}, {1e300, 96, INT_MAX}, {-1e300, 96, INT_MIN}, {std::nan(""), 96, 0}};
    for (const auto& row : rows)
        EXPECT_EQ(row.pixels, orv::pixelsFromPoints(row.points, row.dpi)) << row.points;
    for (LONG pixels = -200; pixels <= 200; ++pixels)
        for (const int dpi : {72, 96, 120, 600})
            EXPECT_EQ(pixels, orv::pixelsFromPoints(orv::pointsFromPixels(pixels, dpi), dpi));
}

TEST(TextPageUnits, SizesAreWholePointsInTwips) {
    EXPECT_EQ(10, orv::wholePoints(10.99));
    EXPECT_EQ(1, orv::wholePoints(0.2));
    EXPECT_EQ(1, orv::wholePoints(std::nan("")));
    EXPECT_EQ(240, orv::twipsFromPoints(12));
    EXPECT_EQ(INT_MAX, orv::twipsFromPoints(INT_MAX));
}

TEST(TextPageUnits, WholeDegreesStayWhole) {
    for (int degrees = -360; degrees <= 360; ++degrees) {
        const double radians = orv::radiansFromDegrees(degrees);
        EXPECT_NEAR(degrees, orv::degreesFromRadians(radians), 1e-9);
        // As the font cuts it, with the library's own pi.
        EXPECT_EQ(degrees, static_cast<int>(radians * 180 / 3.1415926)) << degrees;
    }
    EXPECT_NEAR(45, orv::degreesFromRadians(orv::radiansFromDegrees(765)), 1e-9);
    EXPECT_NEAR(-45, orv::degreesFromRadians(orv::radiansFromDegrees(-765)), 1e-9);
    EXPECT_EQ(0, orv::degreesFromRadians(1e308)) << "beyond what degrees can count";
    EXPECT_EQ(0, orv::degreesFromRadians(HUGE_VAL));
    EXPECT_EQ(0, orv::degreesFromRadians(std::nan("")));
}
