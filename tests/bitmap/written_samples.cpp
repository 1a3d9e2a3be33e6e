// written_samples FOLDER: files that COrvDib writes at every depth and in every way, and beside each the
// colours of its pixels, three bytes each from the left top on, for another program's reading to be compared
// with. Names that begin with "sized" have their size field filled in.

#include "host.h"

#include <stdio.h>

using namespace orv::test;

namespace {

constexpr int width = 11, height = 6;

bool writeColors(const CString& name, const Depth& depth) {
    CFile file;
    if (!file.Open(name, CFile::modeCreate | CFile::modeWrite))
        return false;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const COLORREF color = pictureColor(depth, x, y);
            file.Write(&color, 3);
        }
    }
    return true;
}

bool write(const CString& folder, const Depth& depth, bool topDown) {
    COrvDib dib;
    CFile file;
    CString name = depth.name;
    name += topDown ? " down" : "";
    const CString plain = folder + name, sized = folder + "sized " + name;
    return readBytes(dib, pictureFile(depth, width, topDown ? -height : height)) &&
           file.Open(plain + ".bmp", CFile::modeCreate | CFile::modeWrite) && dib.Write(&file) &&
           writeColors(plain + ".rgb", depth) && dib.CopyToMapFile(sized + ".bmp") &&
           writeColors(sized + ".rgb", depth);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2 || !AfxWinInit(::GetModuleHandleA(NULL), NULL, ::GetCommandLineA(), 0))
        return 2;
    for (const Depth& depth : depths()) {
        for (const bool topDown : {false, true}) {
            if (!write(CString(argv[1]) + "/", depth, topDown)) {
                fprintf(stderr, "%s cannot be written\n", depth.name);
                return 1;
            }
        }
    }
    return 0;
}
