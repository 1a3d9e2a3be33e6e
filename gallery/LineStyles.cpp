#include "LineStyles.h"

namespace gallery {

int LineStyles::draw(CDC& dc, int type, int width, COLORREF color) {
    if (type == 0) {
        return m_solid.Draw(&dc, type, width, color);
    }
    return type == 101 ? DrawSpeciaPath(&dc, type, width) : m_main.Draw(&dc, type, width, color);
}

} // namespace gallery
