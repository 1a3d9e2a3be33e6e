#include <orvmathfunc/orvmathfunc.h>

/* Every function of the header, called from C; counts the calls whose answer is right. */
int callAllFromC(void) {
    double a = -1, b = -1, c = -1, d = -1;
    int i = -1, j = -1;
    int right = 0;
    right += GetDistance(0, 0, 3, 4) == 5;
    right += GetAngleToXAxis(0, 0, 1, 0) == 0;
    GetLineMid(0, 0, 2, 4, &a, &b);
    right += a == 1 && b == 2;
    right += GetDistFromPointToLineSegment(-3, 4, 0, 0, 1, 0) == 5;
    right += GetDistFromPointToLinePer(-3, 4, 0, 0, 1, 0) == 4;
    GetPerpendicularPoint(-3, 4, 0, 0, 1, 0, &a, &b);
    right += a == -3 && b == 0;
    right += IsArcAngleInBounds(1, 0, 2, 1e-6) != 0;
    PointRotateDou(1, 2, 1, 2, 1, &a, &b);
    right += a == 1 && b == 2;
    PointRotateInt(1, 2, 1, 2, 1, &i, &j);
    right += i == 1 && j == 2;
    PointMirrorDou(1, 2, 0, 0, 1, 0, &a, &b);
    right += a == 1 && b == -2;
    PointMirrorInt(1, 2, 0, 0, 1, 0, &i, &j);
    right += i == 1 && j == -2;
    right += BetweenDistance(1, 2, 0, 0) != 0;
    right += BetweenDistanceInt(1, 2, 0, 0) != 0;
    right += douIntersectRect(&a, &b, &c, &d, 0, 0, 2, 2, 1, 1, 3, 3) && a == 1 && b == 1 && c == 2 && d == 2;
    right += douUnionRect(&a, &b, &c, &d, 0, 0, 2, 2, 1, 1, 3, 3) && a == 0 && b == 0 && c == 3 && d == 3;
    right += douSubtractRect(&a, &b, &c, &d, 0, 0, 2, 2, 1, -1, 3, 3) && a == 0 && b == 0 && c == 1 && d == 2;
    right += GetCrossPointBetweenLineAndLineInBounds(0, 0, 2, 2, 0, 2, 2, 0, &a, &b) == 1 && a == 1 && b == 1;
    right += GetCrossPointBetweenLineAndBox(-1, 1, 3, 1, 0, 0, 2, 2, &a, &b, &c, &d) == 2 && a == 0 && c == 2;
    right +=
        GetCrossPointBetweenLineAndArcInBounds(-2, 0, 2, 0, 0, 0, 1, 0, 0, &a, &b, &c, &d) == 2 && a == -1;
    GetPerHalveLineFromLineDist(0, 0, 2, 0, 3, 4, &a, &b, &c, &d);
    right += a == 1 && b == -3 && c == 1 && d == 4;
    right += ConvertFromRadianToAngle(0) == 0;
    right += GetNearestValue(14, 1) == 10;
    return right;
}
