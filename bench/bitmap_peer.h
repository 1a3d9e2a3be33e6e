#pragma once

// A pixel's value as somebody would look it up in a bitmap without further thought: a plain function in a DLL
// of its own.

#include <windows.h>

#if defined(BENCHPEER_BUILD)
#define BITMAP_PEER extern "C" __declspec(dllexport)
#else
#define BITMAP_PEER extern "C" __declspec(dllimport)
#endif

BITMAP_PEER DWORD peerPixel(const BITMAPINFOHEADER* header, const BYTE* bits, DWORD imageBytes, int x, int y);

#undef BITMAP_PEER
