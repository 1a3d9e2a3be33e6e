#pragma once

// Exact comparison and printing of the value types in tests.

#include <ostream>

#include <orvfc/geometry/planentity.h>

struct Xy {
    double x, y;
    Xy(double x, double y) : x(x), y(y) {}
    Xy(const CPosition& p) : x(p.x), y(p.y) {}
    Xy(const DOUSIZE& s) : x(s.cx), y(s.cy) {}
    bool operator==(const Xy&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Xy& p) {
    return out << "(" << p.x << " " << p.y << ")";
}

struct Ltrb {
    double left, top, right, bottom;
    Ltrb(double l, double t, double r, double b) : left(l), top(t), right(r), bottom(b) {}
    Ltrb(const DOURECT& r) : Ltrb(r.left, r.top, r.right, r.bottom) {}
    bool operator==(const Ltrb&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Ltrb& r) {
    return out << "(" << r.left << " " << r.top << " " << r.right << " " << r.bottom << ")";
}
