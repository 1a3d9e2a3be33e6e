// Each plane-math function against the same formula as a plain function in another DLL.

#include "benchpeer.h"
#include "harness.h"

#include <array>
#include <random>

namespace {

constexpr double aim = 1.2;

// Coordinates of one figure, and the same as whole numbers. Units of a drawing, angles and lengths alike.
struct Figure {
    std::array<double, 12> v;
    std::array<int, 8> n;
    double angle, start, end, radius;
};

constexpr unsigned figureCount = 256;

std::array<Figure, figureCount> randomFigures() {
    std::mt19937 engine(4711);
    const auto number = [&](double low, double high) {
        return std::uniform_real_distribution<>(low, high)(engine);
    };
    std::array<Figure, figureCount> figures;
    for (Figure& f : figures) {
        for (double& v : f.v)
            v = number(-100, 100);
        for (unsigned i = 0; i < f.n.size(); ++i)
            f.n[i] = static_cast<int>(10 * f.v[i]);
        f.angle = number(0, 6.28);
        f.start = number(0, 6.28);
        f.end = number(0, 6.28);
        f.radius = number(1, 100);
    }
    return figures;
}

const std::array<Figure, figureCount> figures = randomFigures();

template <class Function, class Call>
orv::bench::Work calling(Function function, Call call) {
    return [=](int times) {
        double sum = 0;
        for (unsigned i = 0; i < static_cast<unsigned>(times); ++i)
            sum += call(function, figures[i % figureCount]);
        orv::bench::keep(sum);
    };
}

// Both sides are called in the same way, through a pointer into their DLL.
template <class Function, class Call>
void compare(orv::bench::Suite& suite, const char* name, Function* subject, Function* reference, Call call) {
    suite.add(
        {"plane math against a plain function", name, aim, calling(subject, call), calling(reference, call)});
}

// Four outputs that start as numbers, since a function that finds nothing writes nothing.
struct Out {
    double a = 0, b = 0, c = 0, d = 0;
    double sum() const { return a + b + c + d; }
};

void addMeasures(orv::bench::Suite& s) {
    const auto four = [](auto f, const Figure& g) { return f(g.v[0], g.v[1], g.v[2], g.v[3]); };
    const auto six = [](auto f, const Figure& g) {
        return f(g.v[0], g.v[1], g.v[2], g.v[3], g.v[4], g.v[5]);
    };
    compare(s, "GetDistance", GetDistance, peerDistance, four);
    compare(s, "GetAngleToXAxis", GetAngleToXAxis, peerAngleToXAxis, four);
    compare(s, "GetLineMid", GetLineMid, peerLineMid, [](auto f, const Figure& g) {
        Out o;
        f(g.v[0], g.v[1], g.v[2], g.v[3], &o.a, &o.b);
        return o.sum();
    });
    compare(s, "GetDistFromPointToLineSegment", GetDistFromPointToLineSegment, peerDistToSegment, six);
    compare(s, "GetDistFromPointToLinePer", GetDistFromPointToLinePer, peerDistToLine, six);
    compare(s, "GetPerpendicularPoint", GetPerpendicularPoint, peerPerpendicular,
            [](auto f, const Figure& g) {
                Out o;
                f(g.v[0], g.v[1], g.v[2], g.v[3], g.v[4], g.v[5], &o.a, &o.b);
                return o.sum();
            });
    compare(s, "GetPerHalveLineFromLineDist", GetPerHalveLineFromLineDist, peerPerHalve,
            [](auto f, const Figure& g) {
                Out o;
                f(g.v[0], g.v[1], g.v[2], g.v[3], g.v[4], g.v[5], &o.a, &o.b, &o.c, &o.d);
                return o.sum();
            });
    compare(s, "BetweenDistance", BetweenDistance, peerBetween, four);
    compare(s, "BetweenDistanceInt", BetweenDistanceInt, peerBetweenInt,
            [](auto f, const Figure& g) { return f(g.n[0], g.n[1], g.n[2], g.n[3]); });
    compare(s, "GetNearestValue", GetNearestValue, peerNearest,
            [](auto f, const Figure& g) { return f(g.v[0], -5); });
}

void addTurns(orv::bench::Suite& s) {
    compare(s, "ConvertFromRadianToAngle", ConvertFromRadianToAngle, peerDegrees,
            [](auto f, const Figure& g) { return f(g.angle); });
    compare(s, "IsArcAngleInBounds", IsArcAngleInBounds, peerArcAngle,
            [](auto f, const Figure& g) { return f(g.angle, g.start, g.end, 1e-6); });
    compare(s, "PointRotateDou", PointRotateDou, peerRotateDou, [](auto f, const Figure& g) {
        Out o;
        f(g.v[0], g.v[1], g.v[2], g.v[3], g.angle, &o.a, &o.b);
        return o.sum();
    });
    compare(s, "PointRotateInt", PointRotateInt, peerRotateInt, [](auto f, const Figure& g) {
        int x = 0, y = 0;
        f(g.n[0], g.n[1], g.n[2], g.n[3], g.angle, &x, &y);
        return x + y;
    });
    compare(s, "PointMirrorDou", PointMirrorDou, peerMirrorDou, [](auto f, const Figure& g) {
        Out o;
        f(g.v[0], g.v[1], g.v[2], g.v[3], g.v[4], g.v[5], &o.a, &o.b);
        return o.sum();
    });
    compare(s, "PointMirrorInt", PointMirrorInt, peerMirrorInt, [](auto f, const Figure& g) {
        int x = 0, y = 0;
        f(g.n[0], g.n[1], g.n[2], g.n[3], g.n[4], g.n[5], &x, &y);
        return x + y;
    });
}

void addRectangles(orv::bench::Suite& s) {
    // Two rectangles with sides in order, overlapping more often than not.
    const auto rects = [](auto f, const Figure& g) {
        Out o;
        f(&o.a, &o.b, &o.c, &o.d, g.v[0], g.v[1], g.v[0] + g.radius, g.v[1] + g.radius, g.v[0] - g.start * 10,
          g.v[1] - g.end * 10, g.v[0] + g.angle * 10, g.v[1] + g.angle * 15);
        return o.sum();
    };
    compare(s, "douIntersectRect", douIntersectRect, peerIntersect, rects);
    compare(s, "douUnionRect", douUnionRect, peerUnion, rects);
    compare(s, "douSubtractRect", douSubtractRect, peerSubtract, rects);
}

void addCrossings(orv::bench::Suite& s) {
    compare(s, "GetCrossPointBetweenLineAndLineInBounds", GetCrossPointBetweenLineAndLineInBounds,
            peerCrossLine, [](auto f, const Figure& g) {
                Out o;
                f(g.v[0], g.v[1], g.v[2], g.v[3], g.v[4], g.v[5], g.v[6], g.v[7], &o.a, &o.b);
                return o.sum();
            });
    compare(s, "GetCrossPointBetweenLineAndBox", GetCrossPointBetweenLineAndBox, peerCrossBox,
            [](auto f, const Figure& g) {
                Out o;
                f(g.v[0], g.v[1], g.v[2], g.v[3], g.v[4], g.v[5], g.v[6], g.v[7], &o.a, &o.b, &o.c, &o.d);
                return o.sum();
            });
    compare(s, "GetCrossPointBetweenLineAndArcInBounds", GetCrossPointBetweenLineAndArcInBounds, peerCrossArc,
            [](auto f, const Figure& g) {
                Out o;
                f(g.v[0], g.v[1], g.v[2], g.v[3], g.v[4], g.v[5], g.radius, g.start, g.end, &o.a, &o.b, &o.c,
                  &o.d);
                return o.sum();
            });
}

const orv::bench::Rows rows([](orv::bench::Suite& suite) {
    addMeasures(suite);
    addTurns(suite);
    addRectangles(suite);
    addCrossings(suite);
});

} // namespace
