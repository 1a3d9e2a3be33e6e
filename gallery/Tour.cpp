#include "Tasks.h"

#include "Picture.h"
#include "Sheets.h"

#include <cstdio>

namespace gallery {
namespace {

bool isFolder(const CString& name) {
    const DWORD attributes = ::GetFileAttributesA(name);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

} // namespace

ExitStatus runTour(const Options& options) {
    const CString folder(options.tourFolder.c_str());
    if (!::CreateDirectoryA(folder, NULL) && !isFolder(folder)) {
        std::fprintf(stderr, "%s: the folder cannot be made\n", options.tourFolder.c_str());
        return exitNoPicture;
    }
    for (const Sheet& sheet : sheets()) {
        const CString name = folder + "\\" + sheet.name + ".png";
        CString message = name + ": not enough memory for the picture";
        Picture picture;
        bool saved = false;
        if (picture.create(sheet.width, sheet.height)) {
            sheet.draw(picture.dc());
            saved = picture.save(name, message);
        }
        if (!saved) {
            std::fprintf(stderr, "%s\n", static_cast<LPCSTR>(message));
            return exitNoPicture;
        }
        if (sheet.writeBeside != NULL && !sheet.writeBeside(folder)) {
            std::fprintf(stderr, "%s: a file beside it cannot be written\n", static_cast<LPCSTR>(name));
            return exitNoPicture;
        }
        std::printf("%s\n", static_cast<LPCSTR>(name));
    }
    return exitDone;
}

} // namespace gallery
