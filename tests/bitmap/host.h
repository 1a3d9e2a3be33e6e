#pragma once

// What the tests of COrvDib share: the host that keeps messages, a folder for files, a sheet to draw on.

#include <afxwin.h>

#include <orvfc/bitmap/cdib.h>

#include <gtest/gtest.h>

#include "samples.h"

#include <string>
#include <vector>

namespace orv::test {

// The messages since the last call.
std::vector<std::string> takeMessages();
using Messages = std::vector<std::string>;

// A folder in the temporary one, removed with what it holds.
class Folder {
public:
    Folder();
    ~Folder();
    std::string file(const char* name) const { return path + "\\" + name; }
    std::vector<std::string> names() const;
    std::string path;
};

void writeFile(const std::string& path, const Bytes& bytes);
Bytes readFile(const std::string& path);

// A white sheet of 32 bits in memory.
class Paper {
public:
    Paper(int width, int height);
    ~Paper();
    COLORREF at(int x, int y);
    void clear();
    CDC dc;
    const int width, height;

private:
    DWORD* bits_;
    HBITMAP bitmap_;
    HGDIOBJ old_;
};
inline constexpr COLORREF kWhite = RGB(255, 255, 255);

// The depths with what goes with them.
struct Depth {
    const char* name;
    WORD bitCount;
    DWORD compression;
    std::vector<DWORD> masks;
};
const std::vector<Depth>& depths();

// A picture of that depth, each pixel of which the next function tells; top row first.
Bytes pictureFile(const Depth& depth, int width, int height);
COLORREF pictureColor(const Depth& depth, int x, int y);
BOOL readBytes(COrvDib& dib, const Bytes& bytes);

// The colour of a pixel as its stored value says; y counts from the top.
COLORREF colorOf(const COrvDib& dib, int x, int y);
void expectPicture(const COrvDib& dib, const Depth& depth, int width, int height);

// Run-length rows, 4 x 2: 3 5 5 5 above 9 9 9 9. An entry of the colour table of such made files.
Bytes runsFile();
COLORREF tableEntry(int i);

} // namespace orv::test
