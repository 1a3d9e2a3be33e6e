#pragma once

#include "Label.h"

namespace gallery {

// What the sheets of the tour have in common; lengths in pixels.
constexpr int leftEdge = 48;
constexpr int rightEdge = 1232;
constexpr double degree = 3.14159265358979323846 / 180;

constexpr COLORREF inkColor = RGB(32, 32, 36);
constexpr COLORREF noteColor = RGB(112, 112, 120);
constexpr COLORREF ruleColor = RGB(218, 218, 224);
constexpr COLORREF headColor = RGB(243, 245, 249);
constexpr COLORREF accentColor = RGB(31, 78, 157);
constexpr COLORREF markColor = RGB(178, 58, 46);

void drawTitle(CDC& dc, const CString& title);
// Over a picture that begins captionRoom below `at`.
void drawCaption(CDC& dc, CPoint at, const CString& caption);
constexpr int captionRoom = 30;
// What stands on a sheet of controls when there is no screen that shows them.
void drawNoScreen(CDC& dc);

} // namespace gallery
