#include "ScreenUnits.h"

#include <afxwin.h>

#include "Truncate.h"

namespace {

constexpr double centimetresPerInch = 2.54;

bool openScreen(CDC& dc) {
    return dc.CreateDC(_T("DISPLAY"), NULL, NULL, NULL) && dc.GetDeviceCaps(LOGPIXELSY) > 0;
}

} // namespace

double GetCMFromPels(CDC*, int pels) {
    CDC screen;
    if (!openScreen(screen))
        return 0;
    return pels / screen.GetDeviceCaps(LOGPIXELSY) * centimetresPerInch;
}

int GetPelsFromCM(CDC*, double cm) {
    CDC screen;
    if (!openScreen(screen))
        return 0;
    POINT pt = {orv::truncToInt(cm / centimetresPerInch * screen.GetDeviceCaps(LOGPIXELSY)), 0};
    screen.LPtoDP(&pt);
    return pt.x;
}
