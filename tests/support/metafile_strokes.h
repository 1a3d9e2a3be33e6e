#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

namespace orv::test {

// What an enhanced metafile shows, in drawing order, one text per visible stroke or polygon (see
// stroke_text.h), however the system chose to record it. A stroked path is the one line "path w3 0000FF".
std::vector<std::string> visibleStrokes(HENHMETAFILE file);

} // namespace orv::test
