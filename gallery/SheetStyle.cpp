#include "SheetStyle.h"

namespace gallery {

void drawTitle(CDC& dc, const CString& title) {
    Label(36).draw(dc, inkColor, leftEdge, 34, title);
}

void drawCaption(CDC& dc, CPoint at, const CString& caption) {
    Label(16).draw(dc, noteColor, at.x, at.y, caption);
}

void drawNoScreen(CDC& dc) {
    drawCaption(dc, CPoint(leftEdge, 110), "没有屏幕，控件无法显示");
}

} // namespace gallery
