#pragma once

// What the tests of COrvDib share: files, pictures and their pixels.

#include <orvfc/bitmap/cdib.h>

#include <gtest/gtest.h>

#include "samples.h"
#include "support/message_boxes.h"
#include "support/paper.h"
#include "support/scratch_folder.h"

namespace orv::test {

void writeFile(const char* path, const Bytes& bytes);
Bytes readFile(const char* path);

// The depths with what goes with them.
struct Depth {
    const char* name;
    WORD bitCount;
    DWORD compression;
    std::vector<DWORD> masks;
};
const std::vector<Depth>& depths();

// A picture of that depth, each pixel of which the next function tells; y counts from the top, and rows of a
// negative height are stored from there on.
Bytes pictureFile(const Depth& depth, int width, int height);
COLORREF pictureColor(const Depth& depth, int x, int y);
BOOL readBytes(COrvDib& dib, const Bytes& bytes);
// Read from a good file.
struct ReadDib : COrvDib {
    explicit ReadDib(const Bytes& file);
};

// The colour of a pixel as its stored value says; y counts from the top.
COLORREF colorOf(const COrvDib& dib, int x, int y);
void expectPicture(const COrvDib& dib, const Depth& depth, int width, int height);

// Run-length rows, 4 x 2: 3 5 5 5 above 9 9 9 9. An entry of the colour table of such made files.
Bytes runsFile();
COLORREF tableEntry(int i);

} // namespace orv::test
