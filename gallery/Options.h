#pragma once

#include <wintypes.h>

#include <string>
#include <vector>

namespace gallery {

// A file of line work and the style all its lines are drawn in.
struct Layer {
    std::string file;
    int type = 3;
    int width = 0; // pixels; 0: none was given, the type's usual width
    COLORREF color = 0;
};

struct Options {
    enum class Task { help, tour, draw, window };

    Task task = Task::help;
    bool window = false;
    std::string tourFolder;
    std::string picture;
    int pictureWidth = 1200;
    int pictureHeight = 900;
    bool plane = false; // coordinates that look like degrees are none
    std::vector<Layer> layers;
};

// What --help prints.
extern const char* const helpText;

// Reads the command line. On failure returns false with the reason in message.
bool parseOptions(int argc, char** argv, Options& options, std::string& message);

} // namespace gallery
