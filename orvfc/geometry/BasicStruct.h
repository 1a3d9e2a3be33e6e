#pragma once

// The plain records of plane coordinates. The frame is the screen: x grows to the right, y downwards.
// Nothing is normalised: a rectangle keeps whatever order of corners it is given.

namespace orv {

// Differences of coordinates below this count as none, in every comparison of the library.
inline constexpr double zero = 1e-6;

// Any integer type. Overloads that also take a pointer need it: a literal 0 fits double and pointer alike.
template <class T>
concept WholeNumber = requires(T number) {
    number % number;
};

} // namespace orv

struct DOUPOINT {
    double x;
    double y;
};

struct DOUSIZE {
    double cx;
    double cy;
};

// top is normally the smaller y.
struct DOURECT {
    double left;
    double top;
    double right;
    double bottom;
};
