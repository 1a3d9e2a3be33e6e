#pragma once

#include <afxcmn.h>

namespace gallery {

constexpr int barIcons = 2; // a drawing, a control

// The pictures of the outlook bar, squares with sides of size pixels.
void makeBarIcons(CImageList& list, int size);

} // namespace gallery
