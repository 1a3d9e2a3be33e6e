#include "orvmathfunc.h"

#include "plane.h"

using namespace orv;

namespace {

struct Rect {
    double left, top, right, bottom;
};

struct Outputs {
    double *left, *top, *right, *bottom;
};

// Written so that a not-a-number makes the rectangle empty.
inline bool isEmpty(const Rect& r) {
    return !(r.left < r.right && r.top < r.bottom);
}

inline double smaller(double a, double b) {
    return a < b ? a : b;
}

inline double larger(double a, double b) {
    return a > b ? a : b;
}

int answer(const Outputs& out, const Rect& r) {
    const bool empty = isEmpty(r);
    put(out.left, empty ? 0 : r.left);
    put(out.top, empty ? 0 : r.top);
    put(out.right, empty ? 0 : r.right);
    put(out.bottom, empty ? 0 : r.bottom);
    return !empty;
}

// For two rectangles that are not empty.
inline Rect common(const Rect& a, const Rect& b) {
    return {larger(a.left, b.left), larger(a.top, b.top), smaller(a.right, b.right),
            smaller(a.bottom, b.bottom)};
}

// a without the cut, a part of a; a itself where the rest is no rectangle.
Rect trimmed(Rect a, const Rect& cut) {
    if (cut.top == a.top && cut.bottom == a.bottom) {
        if (cut.left == a.left)
            a.left = cut.right;
        else if (cut.right == a.right)
            a.right = cut.left;
    } else if (cut.left == a.left && cut.right == a.right) {
        if (cut.top == a.top)
            a.top = cut.bottom;
        else if (cut.bottom == a.bottom)
            a.bottom = cut.top;
    }
    return a;
}

} // namespace

int ORVMATH_CALL douIntersectRect(double* left, double* top, double* right, double* bottom, double aLeft,
                                  double aTop, double aRight, double aBottom, double bLeft, double bTop,
                                  double bRight, double bBottom) {
    const Rect a{aLeft, aTop, aRight, aBottom}, b{bLeft, bTop, bRight, bBottom};
    const bool apart = isEmpty(a) || isEmpty(b);
    return answer({left, top, right, bottom}, apart ? Rect{} : common(a, b));
}

int ORVMATH_CALL douUnionRect(double* left, double* top, double* right, double* bottom, double aLeft,
                              double aTop, double aRight, double aBottom, double bLeft, double bTop,
                              double bRight, double bBottom) {
    const Rect a{aLeft, aTop, aRight, aBottom}, b{bLeft, bTop, bRight, bBottom};
    const Outputs out{left, top, right, bottom};
    if (isEmpty(a))
        return answer(out, b);
    if (isEmpty(b))
        return answer(out, a);
    return answer(out, {smaller(a.left, b.left), smaller(a.top, b.top), larger(a.right, b.right),
                        larger(a.bottom, b.bottom)});
}

int ORVMATH_CALL douSubtractRect(double* left, double* top, double* right, double* bottom, double aLeft,
                                 double aTop, double aRight, double aBottom, double bLeft, double bTop,
                                 double bRight, double bBottom) {
    const Rect a{aLeft, aTop, aRight, aBottom}, b{bLeft, bTop, bRight, bBottom};
    const Outputs out{left, top, right, bottom};
    if (isEmpty(a) || isEmpty(b))
        return answer(out, a);
    const Rect cut = common(a, b);
    return answer(out, isEmpty(cut) ? a : trimmed(a, cut));
}
