#pragma once

#include <cmath>
#include <cstdint>

// What the functions share: vectors relative to a local origin, directions on the screen, rounding, outputs.

#if defined(__GNUC__)
#define ORV_RARE __attribute__((noinline, cold))
#else
#define ORV_RARE __declspec(noinline)
#endif

namespace orv {

constexpr double pi = 3.14159265358979323846;
constexpr double wholeTurn = 2 * pi;

struct Vec {
    double x, y;
};

inline Vec operator-(Vec a, Vec b) {
    return {a.x - b.x, a.y - b.y};
}

inline double dot(Vec a, Vec b) {
    return a.x * b.x + a.y * b.y;
}

inline double cross(Vec a, Vec b) {
    return a.x * b.y - a.y * b.x;
}

inline double length(Vec v) {
    return std::sqrt(dot(v, v));
}

// p + t (q - p), reckoned from the nearer end so that both ends come out exactly.
inline Vec along(Vec p, Vec q, double t) {
    const Vec d = q - p;
    return t <= 0.5 ? Vec{p.x + t * d.x, p.y + t * d.y} : Vec{q.x - (1 - t) * d.x, q.y - (1 - t) * d.y};
}

inline double distanceToSegment(Vec p, Vec a, Vec b) {
    const Vec d = b - a, w = p - a;
    const double reach = dot(w, d), square = dot(d, d);
    if (reach <= 0 || square == 0)
        return length(w);
    if (reach >= square)
        return length(p - b);
    return std::fabs(cross(w, d)) / std::sqrt(square);
}

// The same direction in [0, 2 pi); infinite angles become not-a-number.
inline double withinTurn(double angle) {
    if (angle < 0 && angle >= -wholeTurn)
        angle += wholeTurn;
    else if (!(angle >= 0 && angle < wholeTurn))
        angle = std::fmod(angle, wholeTurn) + (angle < 0 ? wholeTurn : 0);
    return angle >= wholeTurn ? 0 : angle;
}

inline bool isOnArc(double angle, double start, double end, double tolerance) {
    constexpr double same = 1e-12; // an arc that short is below 1e-6 for every radius up to a million
    double sweep = withinTurn(end - start);
    if (sweep <= same || sweep >= wholeTurn - same)
        sweep = wholeTurn;
    sweep += 2 * tolerance;
    if (sweep >= wholeTurn)
        return angle - angle == 0; // every direction, but no infinite one
    const double past = withinTurn(angle - start + tolerance);
    return past <= sweep;
}

// Half-way cases away from zero; for |value| < 2^52.
inline double roundHalfAway(double value) {
    const double whole = static_cast<double>(static_cast<std::int64_t>(value));
    const double rest = value - whole;
    return whole + (rest >= 0.5) - (rest <= -0.5);
}

inline int roundToInt(double value) {
    if (value >= INT32_MAX)
        return INT32_MAX;
    if (value <= INT32_MIN)
        return INT32_MIN;
    return value == value ? static_cast<int>(roundHalfAway(value)) : 0;
}

template <class T>
void put(T* out, T value) {
    if (out)
        *out = value;
}

inline void putPoint(double* x, double* y, Vec p) {
    put(x, p.x);
    put(y, p.y);
}

} // namespace orv
