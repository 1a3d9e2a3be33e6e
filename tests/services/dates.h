#pragma once

// Dates of the calendar, and numbers that are none.

#include <afxdisp.h>

#include <float.h>
#include <math.h>

namespace orv::test {

constexpr double kNoDates[] = {DBL_MAX, -DBL_MAX, HUGE_VAL, -HUGE_VAL, NAN, 2958466, -657435, 1e10};

// 20000131 is 31 January 2000.
inline double day(int digits) {
    return COleDateTime(digits / 10000, digits / 100 % 100, digits % 100, 0, 0, 0);
}

} // namespace orv::test
