#pragma once

// The plane-math functions once more, with the same formulas and rules as somebody would write them down
// without further thought: plain functions in a DLL of their own, to measure the library's against.

#include <orvmathfunc/orvmathfunc.h>

#if defined(BENCHPEER_BUILD)
#define PEER extern "C" __declspec(dllexport) decltype
#else
#define PEER extern "C" __declspec(dllimport) decltype
#endif

PEER(GetDistance) peerDistance;
PEER(GetAngleToXAxis) peerAngleToXAxis;
PEER(GetLineMid) peerLineMid;
PEER(GetDistFromPointToLineSegment) peerDistToSegment;
PEER(GetDistFromPointToLinePer) peerDistToLine;
PEER(GetPerpendicularPoint) peerPerpendicular;
PEER(IsArcAngleInBounds) peerArcAngle;
PEER(PointRotateDou) peerRotateDou;
PEER(PointRotateInt) peerRotateInt;
PEER(PointMirrorDou) peerMirrorDou;
PEER(PointMirrorInt) peerMirrorInt;
PEER(BetweenDistance) peerBetween;
PEER(BetweenDistanceInt) peerBetweenInt;
PEER(douIntersectRect) peerIntersect;
PEER(douUnionRect) peerUnion;
PEER(douSubtractRect) peerSubtract;
PEER(GetCrossPointBetweenLineAndLineInBounds) peerCrossLine;
PEER(GetCrossPointBetweenLineAndBox) peerCrossBox;
PEER(GetCrossPointBetweenLineAndArcInBounds) peerCrossArc;
PEER(GetPerHalveLineFromLineDist) peerPerHalve;
PEER(ConvertFromRadianToAngle) peerDegrees;
PEER(GetNearestValue) peerNearest;

#undef PEER
