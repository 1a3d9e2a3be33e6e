#pragma once

// The numbered fillings of areas.

#include <afxwin.h>

namespace orv {

// Fills in the brush of a figure (-1 to 6) and gives its name; an unknown figure is solid and has none
// (null).
const char* brushFigure(int nType, COLORREF crColor, LOGBRUSH& brush);

// -1 and 0 to 6, in their order.
constexpr int kFirstFigure = -1;
constexpr int kLastFigure = 6;

} // namespace orv
