/* Every function of the header is there for C: this file must compile and link. */

#include <orvmathfunc/orvmathfunc.h>

typedef void (*Function)(void);

extern const Function functionsFromC[];
const Function functionsFromC[] = {(Function)GetDistance,
                                   (Function)GetAngleToXAxis,
                                   (Function)GetLineMid,
                                   (Function)GetDistFromPointToLineSegment,
                                   (Function)GetDistFromPointToLinePer,
                                   (Function)GetPerpendicularPoint,
                                   (Function)IsArcAngleInBounds,
                                   (Function)PointRotateDou,
                                   (Function)PointRotateInt,
                                   (Function)PointMirrorDou,
                                   (Function)PointMirrorInt,
                                   (Function)BetweenDistance,
                                   (Function)BetweenDistanceInt,
                                   (Function)douIntersectRect,
                                   (Function)douUnionRect,
                                   (Function)douSubtractRect,
                                   (Function)GetCrossPointBetweenLineAndLineInBounds,
                                   (Function)GetCrossPointBetweenLineAndBox,
                                   (Function)GetCrossPointBetweenLineAndArcInBounds,
                                   (Function)GetPerHalveLineFromLineDist,
                                   (Function)ConvertFromRadianToAngle,
                                   (Function)GetNearestValue};
