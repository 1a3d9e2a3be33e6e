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

// A not-a-number makes the rectangle empty. The comparisons are not worth a branch each.
inline bool holdsSomething(const Rect& r) {
    return (r.left < r.right) & (r.top < r.bottom);
}

inline double smaller(double a, double b) {
    return a < b ? a : b;
}

inline double larger(double a, double b) {
    return a > b ? a : b;
}

inline int answer(const Outputs& out, const Rect& r) {
    const bool counts = holdsSomething(r);
    put(out.left, counts ? r.left : 0);
    put(out.top, counts ? r.top : 0);
    put(out.right, counts ? r.right : 0);
    put(out.bottom, counts ? r.bottom : 0);
    return counts;
}

// a without the side that b covers, from..to being the direction across it. Covered whole, it ends up empty.
inline void trim(double& from, double& to, double bFrom, double bTo) {
    if (bFrom <= from && bTo > from)
        from = bTo;
    else if (bTo >= to && bFrom < to)
        to = bFrom;
}

} // namespace

int ORVMATH_CALL douIntersectRect(double* left, double* top, double* right, double* bottom, double aLeft,
                                  double aTop, double aRight, double aBottom, double bLeft, double bTop,
                                  double bRight, double bBottom) {
    const Rect a{aLeft, aTop, aRight, aBottom}, b{bLeft, bTop, bRight, bBottom};
    const Outputs out{left, top, right, bottom};
    if (!holdsSomething(a) || !holdsSomething(b))
        return answer(out, {});
    return answer(
        out, {larger(aLeft, bLeft), larger(aTop, bTop), smaller(aRight, bRight), smaller(aBottom, bBottom)});
}

int ORVMATH_CALL douUnionRect(double* left, double* top, double* right, double* bottom, double aLeft,
                              double aTop, double aRight, double aBottom, double bLeft, double bTop,
                              double bRight, double bBottom) {
    const Rect a{aLeft, aTop, aRight, aBottom}, b{bLeft, bTop, bRight, bBottom};
    const Outputs out{left, top, right, bottom};
    if (!holdsSomething(a))
        return answer(out, b);
    if (!holdsSomething(b))
        return answer(out, a);
    return answer(out, {smaller(a.left, b.left), smaller(a.top, b.top), larger(a.right, b.right),
                        larger(a.bottom, b.bottom)});
}

int ORVMATH_CALL douSubtractRect(double* left, double* top, double* right, double* bottom, double aLeft,
                                 double aTop, double aRight, double aBottom, double bLeft, double bTop,
                                 double bRight, double bBottom) {
    Rect a{aLeft, aTop, aRight, aBottom};
    if (bTop <= a.top && bBottom >= a.bottom)
        trim(a.left, a.right, bLeft, bRight);
    else if (bLeft <= a.left && bRight >= a.right)
        trim(a.top, a.bottom, bTop, bBottom);
    return answer({left, top, right, bottom}, a);
}
