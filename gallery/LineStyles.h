#pragma once

#include <orvfc/ORVFC.h>

namespace gallery {

// Draws the current path of a device context in a line type, each type through the way that has it: 1 to 4
// through the main manager, 0 through a single set, 101 as the railway, whose width is its gauge. The path
// should be one line or one ring: figures of one path are joined by the walk along it.
class LineStyles {
public:
    // 0: nothing was drawn.
    int draw(CDC& dc, int type, int width, COLORREF color);

private:
    COrvMainDrawManage m_main{CString()};
    COrvDrawManage m_solid;
};

} // namespace gallery
