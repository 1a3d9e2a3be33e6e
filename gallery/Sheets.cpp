#include "Sheets.h"

namespace gallery {

std::span<const Sheet> sheets() {
    static const Sheet all[] = {
        {"lines", 1280, 1160, drawLineSheet},
        {"bitmaps", 1280, 1500, drawBitmapSheet, writeBitmapSamples},
        {"texts", 1280, 1620, drawTextSheet},
        {"stations", 1280, 1500, drawStationSheet},
        {"time-scales", 1280, 1300, drawTimeScaleSheet},
        {"pickers", 1280, 970, drawPickerSheet},
        {"text-page", 1280, 1300, drawTextPropertySheet},
        {"outlook-bar", 1280, 1110, drawOutBarSheet},
        {"about", 1280, 760, drawAboutSheet},
    };
    return all;
}

} // namespace gallery
