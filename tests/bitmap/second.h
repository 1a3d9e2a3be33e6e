#pragma once

// What the second program on a file answers as its exit status. Values that crashes end with are left out.
enum SecondProgram { secondNothing = 0, secondReads = 8, secondAttaches = 16, secondReplaces = 32 };
constexpr DWORD secondPixel = 99; // what it is to see at (0, 0)
