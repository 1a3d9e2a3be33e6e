#pragma once

#include <afxwin.h>

namespace orv {

// The description of the font, with what the shape adds to it; an unknown shape adds nothing.
LOGFONT shaped(LOGFONT lf, UINT nShape);

// The description of the font that a device context has; the interface's font where there is none.
LOGFONT fontOf(CDC* pDC);

// Does the selected font show this face's name in a row? A symbol face has signs where others have letters;
// for a face that is not there another stands in; a vertical one ("@...") has its characters lying, and in
// one whose lines are far higher than its characters a row shows a part of them at most.
bool showsItsName(CDC* pDC, const CString& strFace);

} // namespace orv
