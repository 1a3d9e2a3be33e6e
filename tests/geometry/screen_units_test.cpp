#include <afxwin.h>

#include <orvfc/geometry/ScreenUnits.h>

#include <climits>
#include <limits>

#include <gtest/gtest.h>

#include "support/gdi_count.h"

namespace {

int screenDpi() {
    HDC screen = ::GetDC(NULL);
    const int dpi = ::GetDeviceCaps(screen, LOGPIXELSY);
    ::ReleaseDC(NULL, screen);
    return dpi;
}

TEST(ScreenUnits, CentimetresComeInWholeInches) {
    const int dpi = screenDpi();
    ASSERT_GT(dpi, 0);
    const struct {
        int pels;
        double cm;
    } rows[] = {{0, 0},           {dpi - 1, 0},  {dpi, 2.54},  {2 * dpi - 1, 2.54},
                {10 * dpi, 25.4}, {-dpi + 1, 0}, {-dpi, -2.54}};
    for (const auto& r : rows)
        EXPECT_DOUBLE_EQ(GetCMFromPels(NULL, r.pels), r.cm) << r.pels;
}

TEST(ScreenUnits, PixelsAreCut) {
    const int dpi = screenDpi();
    const struct {
        double cm;
        int pels;
    } rows[] = {{0, 0},
                {2.54, dpi},
                {2.54 * (5 + 0.9) / dpi, 5},
                {-2.54 * (5 + 0.9) / dpi, -5},
                {std::numeric_limits<double>::quiet_NaN(), 0}};
    for (const auto& r : rows)
        EXPECT_EQ(GetPelsFromCM(NULL, r.cm), r.pels) << r.cm;
    EXPECT_GT(GetPelsFromCM(NULL, 1e300), 1000000);
}

TEST(ScreenUnits, TheGivenDeviceIsNotAskedAndTheScreenIsGivenBack) {
    CDC scaled;
    ASSERT_TRUE(scaled.CreateCompatibleDC(NULL));
    scaled.SetMapMode(MM_LOMETRIC);
    EXPECT_EQ(GetPelsFromCM(&scaled, 2.54), screenDpi());
    EXPECT_DOUBLE_EQ(GetCMFromPels(&scaled, screenDpi()), 2.54);
    const int before = orv::test::liveGdiHandles();
    for (int i = 0; i < 100; ++i)
        GetPelsFromCM(NULL, GetCMFromPels(NULL, i));
    EXPECT_EQ(orv::test::liveGdiHandles(), before);
}

} // namespace
