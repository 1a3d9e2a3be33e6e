// The line sheet, drawn live by the library.

#include "Pages.h"
#include "SheetView.h"

namespace gallery {

CWnd* createLinePage(CWnd& parent, UINT id) {
    return SheetView::make({"lines", 1280, 1160, drawLineSheet}, parent, id);
}

} // namespace gallery
