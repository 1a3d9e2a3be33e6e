#pragma once

// The share arithmetic of the resize control: how much of a change of the parent's size each child gets.
// Lengths are pixels; a share is a number of parts, of which the whole change has `parts`.

namespace orv {

// One number for each edge or extent of a child: its shares, or the remainders carried from step to step.
struct ResizeFour {
    int left;
    int top;
    int width;
    int height;
};

// Whether every share lies in 0..parts, and left + width and top + height do not exceed it.
bool areShares(const ResizeFour& shares, int parts);

// Gives value its share of delta; what does not make a whole pixel stays in remainder (its sign is the
// change's). FALSE: value stays as it is. A size does not become negative; what is missing stays in
// remainder, so that growing pays it back first. parts > 0. Beyond the range of int value and remainder stop
// at its ends.
bool calcValue(int delta, int share, int parts, int& remainder, int& value, bool isSize);

// One size step of a child: moves and sizes box (left and top its place, in the parent's client coordinates).
// FALSE: the box stays as it is.
bool moveByShares(int dx, int dy, const ResizeFour& shares, int parts, ResizeFour& remainders,
                  ResizeFour& box);

} // namespace orv
