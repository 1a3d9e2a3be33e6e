#pragma once

#include <afxwin.h>

#include <orvfc/text/FontAppFile.h>

namespace orv::test {

// A text with no field as it was, and hardly one as a control could show it.
inline void fill(COrvDrawText& text) {
    text.LSetAutoClip(21);
    text.LSetAutoLinefeed(22);
    text.LSetDrawBorder(23);
    text.LSetDrawClearanceShade(24);
    text.LSetBkColor(25);
    text.LSetBorderColor(26);
    text.LSetSingleline(27);
    text.LSetCharDist(28);
    text.LSetColAlign(29);
    text.LSetDrawMode(30);
    text.LSetRop2(31);
    text.LSetRowAlign(32);
    text.LSetRowDist(33);
    text.LSetTabCountSpace(34);
    text.LSetTextColor(35);
    text.LSetDrawFontLine(36);
    text.SetShowContent("内容");
    text.LGetOrvFont()->SetFontHeight(-31, "黑体", TRUE);
    text.LSetFPRect(CFPRect(1, 2, 3, 4, 0.5));
    text.LSetBkMode(37);
    text.LSetDrawShade(38);
    text.LSetSingleRowHeight(39);
    text.LSetAutoCacuBound(40);
}

} // namespace orv::test
