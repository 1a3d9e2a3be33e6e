#pragma once

#include <afx.h>

#include <string>
#include <vector>

namespace orv::test {

// Paper for patterns: a device context and what can be seen on it. On Windows a real one that records a
// metafile, natively a stand-in for the drawing calls alone.
class Sheet {
public:
    Sheet();
    ~Sheet();
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;

    HDC dc() const { return dc_; }
    // What was drawn with visible pens since the sheet was made; the sheet is used up.
    //   "0,0 18,0 w1 000000"                        stroke along points, pen width, colour (BBGGRR)
    //   "block 0,0 0,9 9,9 w1 000000 fill FF0000"   polygon
    std::vector<std::string> take();

private:
    HDC dc_;
};

using Seen = std::vector<std::string>;

} // namespace orv::test
