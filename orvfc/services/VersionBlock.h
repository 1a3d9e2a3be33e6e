#pragma once

// A module's version block, before the system's query function walks in it: that one believes every length it
// finds.

#include <afx/wintypes.h>

#include <span>

namespace orv {

// Whether every node of the block (16 or 32-bit form) lies within the bytes and holds a closed key. Lengths
// that are merely wrong, as some resource compilers write them, are no fault.
bool isSoundVersionBlock(std::span<const BYTE> block);

// Bytes that the query function may touch of a sound block: it writes its translations of texts behind the
// block, and reads texts up to a zero.
size_t versionBlockRoom(std::span<const BYTE> block);

} // namespace orv
