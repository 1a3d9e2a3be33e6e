#pragma once

// The GDI calls of the patterns. Every function makes its pen (and brush), selects it, draws, selects the old
// one back and deletes its own. A null device context, or a pen that the system refuses, draws nothing.

#include "RailwayCorners.h"

namespace orv {

struct StrokePen {
    int nStyle;
    int nWidth; // logical units; negative counts as 0
    COLORREF crColor;
};

// With a geometric pen (ExtCreatePen).
void strokeGeometric(HDC hDC, const StrokePen& pen, POINT from, POINT to);

// With a plain pen (CreatePen).
void strokePlain(HDC hDC, const StrokePen& pen, POINT from, POINT to);

// With a plain pen, from point to point.
void strokePolyline(HDC hDC, const StrokePen& pen, const POINT* pts, int nCount);

// A hollow section of the track: both rails and, where the track starts, the stroke across from L0 to R0.
void strokeRails(HDC hDC, COLORREF crRail, COLORREF crFill, const RailCorners& corners, bool bStart);

// A solid section of the track: a filled block between the rails.
void fillRailBlock(HDC hDC, COLORREF crRail, const RailCorners& corners);

} // namespace orv
