#pragma once

#include <afx.h>
#include <atltypes.h>

#include <orvfc/OrvApi.h>

#include "BasicStruct.h"

// Points, sizes and upright rectangles in double coordinates.
//
// The frame is the screen: y grows downwards, angles are radians, counter-clockwise as seen on the screen.
// Tolerances are lengths in the units of the coordinates, and strict: a distance equal to the tolerance
// fails. Yes-or-no answers are TRUE or FALSE. No operation reports an error; a null pointer is asserted in
// debug builds and otherwise harmless: it reads as zeros, or nothing happens and the answer is FALSE.
// Serialize throws what the archive throws; a load that fails leaves the object as it was. Stored values are
// doubles, in the order of the fields.

class CDouRect;

// A point. x and y stand side by side, so that it can be handed out as two doubles.
class ORVFC_API CPosition {
public:
    double x;
    double y;

    CPosition();
    CPosition(double x, double y);
    CPosition(const double* p); // p[0], p[1]; null: (0, 0)
    CPosition(const CPosition& p);
    CPosition(CPoint pt);
    virtual ~CPosition();
    CPosition& operator=(const CPosition& p);
    CPosition& operator=(const CPoint& pt);

    void Init();
    void Set(double x, double y);
    void Set(const double* p);

    // 1 is y; every other index is x, which callers rely on.
    double& operator[](const int& i);
    const double& operator[](const int& i) const; // otherwise a const point's index would go past its fields
    // Any other whole number: without these the compiler hesitates between the index and the pointers below.
    template <orv::WholeNumber T>
    double& operator[](T i) {
        return (*this)[i == 1 ? 1 : 0];
    }
    template <orv::WholeNumber T>
    const double& operator[](T i) const {
        return (*this)[i == 1 ? 1 : 0];
    }

    operator const double*() const;
    operator double*();
    operator DOUPOINT() const;

    CPosition& operator+=(const CPosition& p);
    CPosition& operator-=(const CPosition& p);
    CPosition& operator*=(const double& scale);

    double GetDistance(const CPosition& p) const;
    double GetAngle(const CPosition& from) const; // direction from `from` to this point, in [0, 2 pi)
    CPosition GetMidPos(const CPosition& p) const;

    int IsSame(const CPosition& p, double tol) const;
    // Inside the box widened by tol, all four sides strict. The box is used as it stands: with left > right
    // or top > bottom nothing is inside.
    int IsInBox(const DOURECT& r, double tol) const;
    int IsOnLine(double x1, double y1, double x2, double y2, double tol) const; // on the segment
    int IsOnBox(const DOURECT& r, double tol) const;                            // on one of the four edges
    // On the arc that runs counter-clockwise from the direction of `start` to that of `end`; its radius is
    // the distance of start. Here a distance equal to tol passes; the directions have a tolerance of 1e-6
    // radians.
    int IsOnArc(const CPosition& centre, const CPosition& start, const CPosition& end, double tol) const;

    // New points; this one stays.
    CPosition Offset(const double& dx, const double& dy) const;
    CPosition Offset(const CPosition& d) const;
    CPosition Rotate(const CPosition& centre, double angle) const;
    CPosition Mirror(const CPosition& a, const CPosition& b) const; // in the line through a and b
    CPosition Zoom(const CPosition& centre, double scale) const;    // scale times as far from the centre

    CPoint ConvertInt() const; // truncated toward zero, stops at the ends of the range
    void Serialize(CArchive& ar);
    void Dump(CDumpContext& dc) const;
};

ORVFC_API bool operator==(const CPosition& a, const CPosition& b); // closer than 1e-6
ORVFC_API CPosition operator+(const CPosition& a, const CPosition& b);
ORVFC_API CPosition operator-(const CPosition& a, const CPosition& b);
ORVFC_API CPosition operator*(const CPosition& p, const double& scale);
ORVFC_API CPosition operator*(const double& scale, const CPosition& p);

// An extent; either part may be negative.
class ORVFC_API CDouSize : public DOUSIZE {
public:
    CDouSize();
    CDouSize(double cx, double cy);
    CDouSize(DOUSIZE size);
    CDouSize(DOUPOINT p);
    CDouSize(CSize size);
    CDouSize(const CDouSize&) = default;
    CDouSize& operator=(const CDouSize&) = default;

    void Init();
    void Set(double cx, double cy);

    CDouSize& operator+=(DOUSIZE size);
    CDouSize& operator-=(DOUSIZE size);
    CDouSize& operator*=(double scale);
    CDouSize operator+(CDouSize size) const;
    CDouSize operator-(CDouSize size) const;
    CDouSize operator-() const;
    CPosition operator+(DOUPOINT p) const;
    CPosition operator-(DOUPOINT p) const;      // this less p
    CDouRect operator+(const DOURECT* r) const; // r shifted by this size
    CDouRect operator-(const DOURECT* r) const; // r shifted back by this size

    CDouSize Offset(const double& dx, const double& dy) const;
    CDouSize Offset(const CPosition& d) const;
    int IsSame(CDouSize size, double tol) const;

    CSize ConvertInt() const; // truncated toward zero, stops at the ends of the range
    void Serialize(CArchive& ar);
    void Dump(CDumpContext& dc) const;
};

// An upright rectangle. Corners keep the order they are given; Width and Height may be negative.
class ORVFC_API CDouRect : public DOURECT {
public:
    CDouRect();
    CDouRect(double l, double t, double r, double b);
    CDouRect(const DOURECT& r);
    CDouRect(const DOURECT* r);
    CDouRect(DOUPOINT tl, DOUSIZE size);
    CDouRect(DOUPOINT tl, DOUPOINT br);
    CDouRect(CRect rect);
    CDouRect(const CDouRect&) = default;
    CDouRect& operator=(const CDouRect&) = default;
    CDouRect& operator=(const DOURECT& r);

    void Init();
    void SetRectEmpty(); // all zero
    void Set(double l, double t, double r, double b);
    void SetRect(double l, double t, double r, double b);
    void SetRect(DOUPOINT tl, DOUPOINT br);
    void CopyRect(const DOURECT* r);

    double Width() const;  // right - left
    double Height() const; // bottom - top
    CDouSize Size() const;
    CPosition TopLeft() const;
    CPosition TopRight() const;
    CPosition BottomRight() const;
    CPosition BottomLeft() const;
    CPosition TopMid() const;
    CPosition RightMid() const;
    CPosition BottomMid() const;
    CPosition LeftMid() const;
    CPosition CenterPoint() const;
    int SetCentrePoint(const CPosition& c); // keeps the extents; always TRUE

    void SwapLeftRight();
    static void SwapLeftRight(DOURECT* r);
    void NormalizeRect();     // left <= right, top <= bottom
    void NormalizeRectNotY(); // left <= right, top >= bottom: for frames whose y grows upwards

    // Both extents below 1e-6: a line is not empty, a rectangle with both extents negative is.
    int IsRectEmpty() const;
    int IsRectNull() const; // all four coordinates below 1e-6 in size
    int IsSame(const DOURECT* r, double tol) const;

    // left -= l, top -= t, right += r, bottom += b; one amount for all, one a direction, or four.
    void InflateRect(double d);
    template <orv::WholeNumber T>
    void InflateRect(T d) {
        InflateRect(static_cast<double>(d));
    }
    void InflateRect(double dx, double dy);
    void InflateRect(DOUSIZE size);
    void InflateRect(double l, double t, double r, double b);
    void InflateRect(const DOURECT* r);
    // InflateRect by the negated amounts.
    void DeflateRect(double d);
    template <orv::WholeNumber T>
    void DeflateRect(T d) {
        DeflateRect(static_cast<double>(d));
    }
    void DeflateRect(double dx, double dy);
    void DeflateRect(DOUSIZE size);
    void DeflateRect(double l, double t, double r, double b);
    void DeflateRect(const DOURECT* r);

    void OffsetRect(double dx, double dy); // moves this rectangle
    void OffsetRect(DOUSIZE size);
    void OffsetRect(DOUPOINT p);
    CDouRect Offset(double dx, double dy) const; // a moved copy
    CDouRect Offset(DOUSIZE size) const;
    CDouRect Offset(DOUPOINT p) const;

    // Of a and b, taken as douIntersectRect and its companions take them: empty unless left < right and top <
    // bottom. The result is stored here even when it is empty (four zeros, FALSE). a or b may be this
    // rectangle.
    int IntersectRect(const DOURECT* a, const DOURECT* b);
    int UnionRect(const DOURECT* a, const DOURECT* b);
    int SubtractRect(const DOURECT* a, const DOURECT* b); // a less b
    // Of this rectangle and b; an empty result leaves this rectangle as it was and answers FALSE.
    int IntersetcRect(const DOURECT* b);
    int UnionRect(const DOURECT* b);
    int SubtractRect(const DOURECT* b);

    CDouRect& operator+=(DOUPOINT p); // moves
    CDouRect& operator+=(DOUSIZE size);
    CDouRect& operator+=(const DOURECT* r); // inflates
    CDouRect& operator-=(DOUPOINT p);
    CDouRect& operator-=(DOUSIZE size);
    CDouRect& operator-=(const DOURECT* r); // deflates
    CDouRect operator+(DOUPOINT p) const;
    CDouRect operator+(DOUSIZE size) const;
    CDouRect operator+(const DOURECT* r) const;
    CDouRect operator-(DOUPOINT p) const;
    CDouRect operator-(DOUSIZE size) const;
    CDouRect operator-(const DOURECT* r) const;
    CDouRect operator&(const DOURECT& r) const; // four zeros when nothing is in common
    CDouRect operator|(const DOURECT& r) const;
    CDouRect& operator*=(double scale); // scales the extents about the centre

    int PtInRect(CPosition pt,
                 double tol) const; // as CPosition::IsInBox: with tol 0 no border point is inside
    int IsAllInRect(const CDouRect& r, double tol) const; // TopLeft and BottomRight are in r
    int IsPartInRect(CDouRect r, double tol) const;       // any corner is in r
    // -1 apart, 0 the same, 1 this lies inside r, 2 r lies inside this, 3 overlapping; asked in the order -1,
    // 1, 2, 0, so that equal rectangles with tol > 0 answer 1. Only the top-left corners decide "apart":
    // rectangles that cross like a plus sign are apart. Callers rely on both.
    int GetRalationBox(CDouRect r, double tol) const;
    // 1 when the segment meets the border, or an end lies inside (widened by tol); else 0.
    int IsLineRelationBox(const CPosition& p1, const CPosition& p2, double tol) const;
    // 1 when the arc (see CPosition::IsOnArc) meets the border; tol is not used.
    int IsArcRelationBox(const CPosition& centre, const CPosition& start, const CPosition& end,
                         double tol) const;
    // 1 and the point in out[0] when the segment crosses the top edge or, failing that, the right edge; else
    // 0. The left and the bottom edge are not looked at. 0 for an empty rectangle or a segment without
    // length.
    int IntersectLine(const CPosition& p1, const CPosition& p2, CPosition* const out) const;

    // Copies of which only the corners (left, top) and (right, bottom) are moved: neither normalised nor the
    // box around the turned rectangle.
    CDouRect Rotate(CPosition& centre, double angle) const;
    CDouRect Mirror(CPosition& a, CPosition& b) const;

    CRect ConvertInt() const; // truncated toward zero, stops at the ends of the range
    void Serialize(CArchive& ar);
    void Dump(CDumpContext& dc) const;
};
