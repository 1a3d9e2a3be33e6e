#include "BrushFigures.h"

namespace orv {

namespace {

// Figures 1 and 4 bear one name, though they hatch in opposite directions.
constexpr struct {
    const char* lpszName;
    UINT nStyle;
    ULONG_PTR nHatch;
} kFigures[] = {
    {"无填充", BS_NULL, 0},
    {"实背景", BS_SOLID, 0},
    {"45度斜线", BS_HATCHED, HS_BDIAGONAL},
    {"相交线", BS_HATCHED, HS_CROSS},
    {"45度斜交线", BS_HATCHED, HS_DIAGCROSS},
    {"45度斜线", BS_HATCHED, HS_FDIAGONAL},
    {"水平线", BS_HATCHED, HS_HORIZONTAL},
    {"垂直线", BS_HATCHED, HS_VERTICAL},
};

} // namespace

const char* brushFigure(int nType, COLORREF crColor, LOGBRUSH& brush) {
    brush = {BS_SOLID, crColor, 0};
    if (nType < kFirstFigure || nType > kLastFigure)
        return NULL;
    const auto& figure = kFigures[nType - kFirstFigure];
    brush.lbStyle = figure.nStyle;
    brush.lbHatch = figure.nHatch;
    return figure.lpszName;
}

} // namespace orv
