#include "gallery/Fit.h"

#include <gtest/gtest.h>

using gallery::Bounds;
using gallery::Fit;
using gallery::Projection;
using enum gallery::Projection;

namespace {

Bounds boundsOf(double minX, double minY, double maxX, double maxY) {
    Bounds bounds;
    bounds.add(gallery::WktPoint{minX, minY});
    bounds.add(gallery::WktPoint{maxX, maxY});
    return bounds;
}

struct PixelRow {
    const char* name;
    Bounds bounds;
    Projection projection;
    int width, height, margin;
    double x, y;
    int pixelX, pixelY;
};

const PixelRow pixelRows[] = {
    {"lower left corner", boundsOf(0, 0, 100, 100), plane, 101, 101, 0, 0, 0, 0, 100},
    {"y runs up", boundsOf(0, 0, 100, 100), plane, 101, 101, 0, 0, 100, 0, 0},
    {"margin", boundsOf(0, 0, 80, 80), plane, 101, 101, 10, 0, 0, 10, 90},
    {"wide picture: centred, one scale", boundsOf(0, 0, 100, 100), plane, 301, 101, 0, 0, 0, 100, 100},
    {"wide world: centred, one scale", boundsOf(0, 0, 300, 100), plane, 301, 301, 0, 0, 0, 0, 200},
    {"degrees at 60 north: half as wide", boundsOf(0, 50, 40, 70), degrees, 101, 201, 0, 40, 70, 100, 50},
    {"the same as a plane", boundsOf(0, 50, 40, 70), plane, 101, 201, 0, 40, 70, 100, 75},
    {"one point", boundsOf(7, 7, 7, 7), plane, 101, 51, 5, 7, 7, 50, 25},
    {"upright line", boundsOf(7, 0, 7, 40), plane, 101, 51, 5, 7, 40, 50, 5},
    {"level line", boundsOf(0, 7, 90, 7), plane, 101, 51, 5, 90, 7, 95, 25},
    {"margin larger than the picture", boundsOf(0, 0, 10, 10), plane, 5, 5, 100, 10, 10, 2, 2},
    {"a single pixel", boundsOf(0, 0, 10, 10), plane, 1, 1, 10, 10, 10, 0, 0},
    {"outside the bounds", boundsOf(0, 0, 10, 10), plane, 11, 11, 0, 1e15, -1e15, 10, 10},
    {"largest coordinates", boundsOf(-1e15, -1e15, 1e15, 1e15), plane, 101, 101, 0, 1e15, 1e15, 100, 0},
    {"span near nothing", boundsOf(0, 0, 5e-324, 5e-324), plane, 101, 101, 0, 5e-324, 0, 50, 50},
    {"pole", boundsOf(-180, 90, 180, 90), degrees, 101, 101, 0, 180, 90, 100, 50},
};

TEST(Fit, Pixels) {
    for (const PixelRow& row : pixelRows) {
        SCOPED_TRACE(row.name);
        const Fit fit(row.bounds, row.projection, row.width, row.height, row.margin);
        const POINT pixel = fit.toPixel({row.x, row.y});
        EXPECT_EQ(pixel.x, row.pixelX);
        EXPECT_EQ(pixel.y, row.pixelY);
    }
}

TEST(Fit, DropsRepeatedPixels) {
    struct {
        const char* text;
        size_t pixels;
    } const rows[] = {
        {"LINESTRING(0 0,0.1 0.1,0.4 0,50 50,50.2 50,100 100,100 100)", 3},
        {"LINESTRING(0 0,0.1 0.1)", 1},
        {"LINESTRING(0 0,50 0,0 0)", 3}, // there and back is no repetition
        {"POLYGON((0 0,50 0,50 50,0.2 0.2,0 0))", 3},
        {"POLYGON((0 0,0.1 0,0.1 0.1,0 0))", 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        gallery::WktLines lines;
        gallery::WktError error;
        ASSERT_TRUE(gallery::parseWkt(row.text, lines, error));
        const Fit fit(boundsOf(0, 0, 100, 100), plane, 101, 101, 0);
        EXPECT_EQ(fit.toPixels(lines, lines.figures.front()).size(), row.pixels);
    }
}

TEST(Fit, DegreesAreKnownByTheirRange) {
    EXPECT_TRUE(couldBeDegrees(boundsOf(-180, -90, 180, 90)));
    EXPECT_FALSE(couldBeDegrees(boundsOf(0, 0, 180.1, 10)));
    EXPECT_FALSE(couldBeDegrees(boundsOf(0, -90.1, 10, 10)));
}

} // namespace
