#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

namespace orv::test {

// What an enhanced metafile shows, in drawing order, one text per visible stroke or polygon (see
// stroke_text.h), however the system chose to record it. A stroked path is the one line "path w3 0000FF", a
// filled region "region 0,0 10,10 fill 0000FF" (its bounds) and a text "text 10,20 ab 0000FF", with "turned
// 300" behind it when its font is turned by that many tenths of a degree.
std::vector<std::string> visibleStrokes(HENHMETAFILE file);

} // namespace orv::test
