#include "DibPixels.h"

#include <algorithm>

namespace orv {
namespace {

int distanceToWhite(const RGBQUAD& color) {
    const int red = 255 - color.rgbRed, green = 255 - color.rgbGreen, blue = 255 - color.rgbBlue;
    return red * red + green * green + blue * blue;
}

// The pen that runs are written with: from the bottom row up, from left to right.
class RunReader {
public:
    RunReader(const DibLayout& layout, const BYTE* runs, BYTE* rows)
        : layout_(layout),
          lineEnd_(int(std::min<ULONGLONG>(layout.stride * 8ULL / layout.bitCount, INT_MAX))), next_(runs),
          end_(runs + layout.imageBytes), rows_(rows) {}

    bool read();

private:
    enum Escape { endOfLine = 0, endOfPicture = 1, delta = 2 };

    bool encoded(int count, BYTE value);
    bool absolute(int count);
    bool skip();
    bool fits(int count) const { return y_ < layout_.height && count <= lineEnd_ - x_; }
    void put(DWORD value) {
        if (rows_ != NULL && x_ < layout_.width)
            setPixel(rows_ + size_t(layout_.stride) * y_, x_, layout_.bitCount, value);
        ++x_;
    }
    // Pixel i of bytes that hold one or two pixels each.
    DWORD pixelOf(const BYTE* bytes, int i) const {
        return layout_.bitCount == 4 ? bytes[i / 2] >> (i % 2 != 0 ? 0 : 4) & 0xF : bytes[i];
    }

    const DibLayout& layout_;
    const int lineEnd_; // some programs run on over what a row is filled up with
    const BYTE* next_;
    const BYTE* end_;
    BYTE* rows_;
    int x_ = 0;
    int y_ = 0;
};

// A byte repeated; at 4 bits its two pixels take turns.
bool RunReader::encoded(int count, BYTE value) {
    if (!fits(count))
        return false;
    const int perByte = 8 / layout_.bitCount;
    for (int i = 0; i < count; ++i)
        put(pixelOf(&value, i % perByte));
    return true;
}

// Pixels as they are, filled up to a multiple of two bytes.
bool RunReader::absolute(int count) {
    const int bytes = (count * layout_.bitCount + 7) / 8;
    if (!fits(count) || end_ - next_ < bytes)
        return false;
    for (int i = 0; i < count; ++i)
        put(pixelOf(next_, i));
    next_ += bytes;
    // The last filling byte of all may be left out.
    if (bytes % 2 != 0 && next_ != end_)
        ++next_;
    return true;
}

bool RunReader::skip() {
    if (end_ - next_ < 2 || next_[0] > lineEnd_ - x_ || next_[1] > layout_.height - y_)
        return false;
    x_ += next_[0];
    y_ += next_[1];
    next_ += 2;
    return true;
}

bool RunReader::read() {
    while (end_ - next_ >= 2) {
        const BYTE count = next_[0], value = next_[1];
        next_ += 2;
        bool good = true;
        if (count > 0) {
            good = encoded(count, value);
        } else if (value == endOfPicture) {
            return true;
        } else if (value == endOfLine) {
            good = y_ < layout_.height;
            x_ = 0;
            ++y_;
        } else {
            good = value == delta ? skip() : absolute(value);
        }
        if (!good)
            return false;
    }
    return next_ == end_;
}

} // namespace

DWORD whitePixel(const DibLayout& layout, const RGBQUAD* table) {
    constexpr DWORD fiveBitsEach = 0x7FFF, eightBitsEach = 0xFFFFFF;
    if (layout.maskBytes != 0)
        return layout.masks[0] | layout.masks[1] | layout.masks[2];
    if (layout.bitCount > 8)
        return layout.bitCount == 16 ? fiveBitsEach : eightBitsEach;
    const int indices = 1 << layout.bitCount;
    const int reachable = layout.tableEntries < indices ? layout.tableEntries : indices;
    int best = 0;
    for (int i = 1; i < reachable; ++i) {
        if (distanceToWhite(table[i]) < distanceToWhite(table[best]))
            best = i;
    }
    return DWORD(best);
}

bool expandRuns(const DibLayout& layout, const BYTE* runs, BYTE* rows) {
    return RunReader(layout, runs, rows).read();
}

} // namespace orv
