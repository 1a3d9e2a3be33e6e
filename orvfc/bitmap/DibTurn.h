#pragma once

// Pictures turned and stretched by looking up, for the centre of each target pixel, the source pixel that
// covers it. Coordinates in pixels, y downwards, angles in radians, counter-clockwise as seen.

#include "DibPixels.h"

namespace orv {

struct DibVector {
    double x;
    double y;
};

// v turned by angle.
DibVector turned(DibVector v, double angle);

// Where the target's points come from.
class DibTurn {
public:
    // The source lies as a parallelogram: corner is where its left-top corner comes to lie, across and down
    // are its upper and left edges.
    DibTurn(DibVector corner, DibVector across, DibVector down, int sourceWidth, int sourceHeight);

    // FALSE when the parallelogram has no area or is no finite one: nothing may be asked then.
    bool isDrawable() const { return drawable_; }

    // The target pixels first to last - 1 of row y that the source covers, of those from left to right - 1.
    // FALSE: none.
    bool span(int y, int left, int right, int& first, int& last) const;

    // Writes such a span into a packed row, whose pixel 0 is the target's pixel origin. source has the size
    // that was given, row the source's depth.
    void copy(const DibRows& source, int y, int first, int last, BYTE* row, int origin) const;

private:
    struct Axis { // source coordinate = perX * x + perY * y + start
        double perX, perY, start;
        double size;

        double at(int x, int y) const { return perX * (x + 0.5) + perY * (y + 0.5) + start; }
        bool covers(int x, int y) const {
            const double s = at(x, y);
            return s >= 0 && s < size;
        }
        void narrow(int y, double& from, double& to) const;
    };

    Axis across_;
    Axis down_;
    bool drawable_;
};

// The upright box, from target pixel (0, 0) on, of a picture turned about its centre. A sliver below a
// hundredth of a pixel gets no row or column of its own, so that quarter turns keep the size. FALSE when it
// cannot be: a side beyond 2^31 - 1 or an angle that is not finite.
struct DibBox {
    int width;
    int height;
    DibVector corner; // of the picture inside the box
};
bool turnedBox(int width, int height, double angle, DibBox& box);

} // namespace orv
