#include "sheet.h"

#include "support/metafile_strokes.h"

namespace orv::test {

Sheet::Sheet() : dc_(::CreateEnhMetaFileA(NULL, NULL, NULL, NULL)) {}

Sheet::~Sheet() {
    take();
}

std::vector<std::string> Sheet::take() {
    if (!dc_)
        return {};
    HENHMETAFILE file = ::CloseEnhMetaFile(dc_);
    dc_ = NULL;
    std::vector<std::string> seen = visibleStrokes(file);
    ::DeleteEnhMetaFile(file);
    return seen;
}

} // namespace orv::test
