#pragma once

#include <afxwin.h>

namespace gallery {

// Lets every window paint, then copies what the screen shows in the rectangle.
void copyScreen(CDC& dc, CPoint to, const CRect& from);

// A combo with its open list, on the screen.
CRect withList(CComboBox& combo);

} // namespace gallery
