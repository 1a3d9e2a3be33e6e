#pragma once

#include "Options.h"

namespace gallery {

enum ExitStatus { exitDone = 0, exitBadInput = 1, exitBadCommand = 2, exitNoPicture = 4 };

// Draws every sheet into the folder, which is made when it is not there.
ExitStatus runTour(const Options& options);

// Opens the window of pages and runs until it is closed.
ExitStatus runWindow();

// Draws files of line work into one picture.
ExitStatus runDraw(const Options& options);

} // namespace gallery
