#pragma once

#include "planentity.h"

// Rectangles that may be turned: the frames of slanted texts, bitmaps and ellipses, in double coordinates
// (CFPDRect) and in whole device units (CFPRect).
//
// Stored are an upright rectangle and an angle. The shape is the upright rectangle turned by the angle about
// its left-top corner, the anchor, which therefore does not move when the angle changes. y grows downwards,
// angles are radians, counter-clockwise as seen on the screen. Four corners are exchanged in the order
// left-top, left-bottom, right-bottom, right-top.
//
// What holds for both classes:
// - "Upright" points ignore the angle, "slope" points are the same points of the turned shape.
// - Nothing is normalised: right < left (bottom < top) is a negative width (height) and the points keep their
//   names. It is what a handle dragged across the opposite side leaves behind.
// - Fields are stored as given. An angle that is not finite turns nothing: the shape then stands upright.
// - Rotate, Mirror, Move, the Zoom family and Offset change nothing when an argument is not finite. The angle
//   changes only in Rotate and Mirror.
// - Tolerances are strict: a distance equal to the tolerance fails.
// - No operation reports an error. Serialize throws what the archive throws, and a load that fails leaves
//   the object as it was.

// The values of a CFPDRect.
struct FPDRECT {
    double left;
    double top;
    double right;
    double bottom;
    double angle;
};

// The values of a CFPRect. The angle is never rounded.
struct FPRECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
    double angle;
};

class ORVFC_API CFPDRect : public FPDRECT {
public:
    CFPDRect(); // all zero
    CFPDRect(double l, double t, double r, double b, double angle);
    CFPDRect(double x1, double y1, double x2, double y2, double x3, double y3, double x4, double y4);
    CFPDRect(const CPosition& lt, const CPosition& lb, const CPosition& rb, const CPosition& rt);
    CFPDRect(const CDouRect& r); // the four fields as they are, angle 0
    CFPDRect(const CFPDRect& r);
    virtual ~CFPDRect();
    CFPDRect& operator=(const CFPDRect& r);
    CFPDRect& operator=(const CDouRect& r);
    CFPDRect& operator=(const CRect& r);

    void Init(); // all zero
    void SetRect(double l, double t, double r, double b, double angle);
    void SetRectWH(double l, double t, double w, double h, double angle);
    // Left-top at point 1, the top side towards point 4, the left side as long as 1 to 2. Point 3 is not
    // looked at: the four are trusted to be a rectangle.
    void SetRectFourPoint(double x1, double y1, double x2, double y2, double x3, double y3, double x4,
                          double y4);
    void SetRectFourPoint(const CPosition& lt, const CPosition& lb, const CPosition& rb, const CPosition& rt);
    // The corners of r as four points: where operator= keeps right < left, this gives the positive width and
    // the angle pi.
    void SetRectRectangle(const CDouRect& r);
    void SetRectTwoPos(const CPosition& lt, const CPosition& rb); // angle 0
    // Left-top at point 1, the top side in the direction of point 2 (angle 0 when they are one point), w wide
    // and h high: a frame of known size laid along a line.
    void SetRectTwoPoint(double x1, double y1, double x2, double y2, double w, double h);
    void SetRectLeftTop(double x, double y);     // left = x, top = y
    void SetRectRightBottom(double x, double y); // right = x, bottom = y

    double GetLeft() const;
    double GetTop() const;
    double GetRight() const;
    double GetBottom() const;
    double GetAngle() const;
    void SetLeft(double l); // one field; the others stay
    void SetTop(double t);
    void SetRight(double r);
    void SetBottom(double b);
    void SetAngle(double angle);
    double GetWidth() const;       // right - left
    double GetHeight() const;      // bottom - top
    void SetWidth(double w);       // keeps left
    void SetHeight(double h);      // keeps top
    void SetCentreWidth(double w); // keeps the upright centre
    void SetCentreHeight(double h);
    double GetDiagonalLength() const;
    double GetArea() const; // these three are never negative
    double GetPerimeter() const;

    CPosition GetLeftTop() const;
    CPosition GetLeftMid() const;
    CPosition GetLeftBottom() const;
    CPosition GetBottomMid() const;
    CPosition GetRightBottom() const;
    CPosition GetRightMid() const;
    CPosition GetRightTop() const;
    CPosition GetTopMid() const;
    CPosition GetCentre() const;
    CDouRect GetRectangle() const; // the upright rectangle
    void GetRectFourPoint(CPosition& lt, CPosition& lb, CPosition& rb, CPosition& rt) const; // upright

    CPosition GetSlopeLeftTop() const; // (left, top) itself
    CPosition GetSlopeLeftMid() const;
    CPosition GetSlopeLeftBottom() const;
    CPosition GetSlopeBottomMid() const;
    CPosition GetSlopeRightBottom() const;
    CPosition GetSlopeRightMid() const;
    CPosition GetSlopeRightTop() const;
    CPosition GetSlopeTopMid() const;
    CPosition GetSlopeCentre() const;

    // Move the rectangle, keeping its size and angle, so that the upright point comes to lie at p.
    void PositionLeftTop(const CPosition& p);
    void PositionLeftMid(const CPosition& p);
    void PositionLeftBottom(const CPosition& p);
    void PositionBottomMid(const CPosition& p);
    void PositionRightBottom(const CPosition& p);
    void PositionRightMid(const CPosition& p);
    void PositionRightTop(const CPosition& p);
    void PositionTopMid(const CPosition& p);
    void PositionCentre(const CPosition& p);

    // The same with the slope point; PositionSlope... and SetSlope... are one.
    void PositionSlopeLeftTop(const CPosition& p);
    void PositionSlopeLeftMid(const CPosition& p);
    void PositionSlopeLeftBottom(const CPosition& p);
    void PositionSlopeBottomMid(const CPosition& p);
    void PositionSlopeRightBottom(const CPosition& p);
    void PositionSlopeRightMid(const CPosition& p);
    void PositionSlopeRightTop(const CPosition& p);
    void PositionSlopeTopMid(const CPosition& p);
    void PositionSlopeCentre(const CPosition& p);
    void SetSlopeLeftTop(const CPosition& p);
    void SetSlopeLeftMid(const CPosition& p);
    void SetSlopeLeftBottom(const CPosition& p);
    void SetSlopeBottomMid(const CPosition& p);
    void SetSlopeRightBottom(const CPosition& p);
    void SetSlopeRightMid(const CPosition& p);
    void SetSlopeRightTop(const CPosition& p);
    void SetSlopeTopMid(const CPosition& p);
    void SetSlopeCentre(const CPosition& p);

    // left = x, top = y, right = x + width, but bottom = the old bottom + height. Callers rely on it.
    void SetLeftTop(double x, double y);
    // The upright corner goes to (x, y), the corner opposite to it stays: the size changes.
    void SetLeftBottom(double x, double y);
    void SetRightTop(double x, double y);
    void SetRightBottom(double x, double y);
    // The upright side goes to x (or y); of the two sides that it joins the left (top) one stays and the
    // other moves, so that (x, y) is the middle of the side.
    void SetLeftMid(double x, double y);
    void SetTopMid(double x, double y);
    void SetRightMid(double x, double y);
    void SetBottomMid(double x, double y);
    void SetCentre(double x, double y); // moves, keeping the size: the upright centre lies at (x, y)

    // As of CDouRect, of the upright rectangle: the anchor moves with left and top.
    void InflateRect(double d);
    template <orv::WholeNumber T>
    void InflateRect(T d) {
        InflateRect(static_cast<double>(d));
    }
    void InflateRect(double dx, double dy);
    void InflateRect(DOUSIZE size);
    void InflateRect(double l, double t, double r, double b);
    void InflateRect(const DOURECT* r);
    void DeflateRect(double d);
    template <orv::WholeNumber T>
    void DeflateRect(T d) {
        DeflateRect(static_cast<double>(d));
    }
    void DeflateRect(double dx, double dy);
    void DeflateRect(DOUSIZE size);
    void DeflateRect(double l, double t, double r, double b);
    void DeflateRect(const DOURECT* r);

    void Rotate(const CPosition& c, double a); // the shape turned about c; the angle grows by a, unbounded
    // The shape's image in the line through a and b; nothing happens when they are one point. Of the two
    // ways to name the corners of the image the one is taken that turns the frame by no more than a quarter
    // turn: a frame without slope mirrored in a vertical or horizontal line has none again. Mirrored twice it
    // is back.
    void Mirror(const CPosition& a, CPosition b);
    void Move(const CPosition& from, const CPosition& to); // by to - from
    // A parallel frame at the distance of p1 and p2, around this one when `side` lies outside, within it when
    // `side` lies inside. FALSE, and nothing happens: no distance (below 1e-6), `side` on the border, or no
    // width or height would be left.
    int Offset(const CPosition& p1, const CPosition& p2, const CPosition& side);

    // Even scaling of the size; a negative scale is a half turn about the same point, told in negative sizes.
    void Zoom(double scale);                          // the slope centre stays
    void Zoom(const CPosition& centre, double scale); // every point moves scale times as far from `centre`
    // Even scaling about the slope centre, for a frame grabbed at `from` and dragged to `to`: by the ratio of
    // their distances from it. FALSE, and nothing happens, when either lies on the centre (1e-6).
    int ZoomCentre(const CPosition& from, const CPosition& to);
    // The turned frame dragged by one of its handles to p. A corner comes to lie at p, and the corner
    // opposite to it stays; the middle of a side takes its side along until p lies on the side's line, and
    // the opposite side stays. Always TRUE, but FALSE, and nothing happens, when p or a side is not finite.
    int ZoomRectLeftTop(const CPosition& p);
    int ZoomRectTopMid(const CPosition& p);
    int ZoomRectRightTop(const CPosition& p);
    int ZoomRectRightMid(const CPosition& p);
    int ZoomRectRightBottom(const CPosition& p);
    int ZoomRectBottomMid(const CPosition& p);
    int ZoomRectLeftBottom(const CPosition& p);
    int ZoomRectLeftMid(const CPosition& p);
    // The same, but the slope centre stays: the opposite corner or side moves the other way.
    int Zoom2RectLeftTop(const CPosition& p);
    int Zoom2RectTopMid(const CPosition& p);
    int Zoom2RectRightTop(const CPosition& p);
    int Zoom2RectRightMid(const CPosition& p);
    int Zoom2RectRightBottom(const CPosition& p);
    int Zoom2RectBottomMid(const CPosition& p);
    int Zoom2RectLeftBottom(const CPosition& p);
    int Zoom2RectLeftMid(const CPosition& p);

    // Inside the turned shape, each side moved outwards by tol: with tol 0 no border point is inside. Without
    // slope the answer of CDouRect::PtInRect for the normalised rectangle.
    int PtInRect(const CPosition& p, double tol) const;
    int PtOnRect(const CPosition& p, double tol) const; // nearer than tol to the turned border
    int IsPtOnRect(CPosition& p, double tol) const;     // then p is also moved to the border's nearest point
    // Is this shape caught by the window r, which may be given by any two opposite corners? mode 0: all of it
    // lies inside; any other mode: any part of it does. The window is widened by tol; touching is not inside.
    int RectInRect(const CDouRect& r, double tol, int mode) const;
    void GetBox(CDouRect& box) const; // the smallest upright rectangle that holds the four slope corners
    // Each of the five values (not their sizes) is below 1e-6: a rectangle wholly at negative coordinates
    // with a negative angle is empty. Callers rely on it.
    int IsRectEmpty() const;

    void Serialize(CArchive& ar); // five doubles, in the order of the fields
    void Dump(CDumpContext& dc) const;
};

// The same in whole units, for callers that work in pixels; its members do what they do in CFPDRect, and only
// the differences are told here. What goes beyond the range of LONG stops at its ends. Halves are cut toward
// zero, slope points are rounded to the nearest whole unit.
class ORVFC_API CFPRect : public FPRECT {
public:
    CFPRect();
    CFPRect(LONG l, LONG t, LONG r, LONG b, double angle);
    CFPRect(LONG x1, LONG y1, LONG x2, LONG y2, LONG x3, LONG y3, LONG x4, LONG y4);
    CFPRect(const CPoint& lt, const CPoint& lb, const CPoint& rb, const CPoint& rt);
    CFPRect(const CRect& r);
    CFPRect(const CFPRect& r);
    virtual ~CFPRect();
    CFPRect& operator=(const CFPRect& r);

    void Init();
    void SetRect(LONG l, LONG t, LONG r, LONG b, double angle);
    void SetRectWH(LONG l, LONG t, LONG w, LONG h, double angle);
    // Both lengths are cut toward zero: slope corners passed in again may come out one unit short.
    void SetRectFourPoint(LONG x1, LONG y1, LONG x2, LONG y2, LONG x3, LONG y3, LONG x4, LONG y4);
    void SetRectFourPoint(const CPoint& lt, const CPoint& lb, const CPoint& rb, const CPoint& rt);
    void SetRectTwoPoint(LONG x1, LONG y1, LONG x2, LONG y2, LONG w, LONG h);
    void SetRectLeftTop(LONG x, LONG y);
    void SetRectRightBottom(LONG x, LONG y);

    LONG GetLeft() const;
    LONG GetTop() const;
    LONG GetRight() const;
    LONG GetBottom() const;
    double GetAngle() const;
    void SetLeft(LONG l);
    void SetTop(LONG t);
    void SetRight(LONG r);
    void SetBottom(LONG b);
    void SetAngle(double angle);
    LONG GetWidth() const;
    LONG GetHeight() const;
    void SetWidth(LONG w);
    void SetHeight(LONG h);
    // Both halves of w (h) are cut: an odd one comes out one unit short.
    void SetCentreWidth(LONG w);
    void SetCentreHeight(LONG h);
    double GetDiagonalLength() const;
    double GetArea() const;
    double GetPerimeter() const;

    CPoint GetLeftTop() const;
    CPoint GetLeftMid() const;
    CPoint GetLeftBottom() const;
    CPoint GetBottomMid() const;
    CPoint GetRightBottom() const;
    CPoint GetRightMid() const;
    CPoint GetRightTop() const;
    CPoint GetTopMid() const;
    CPoint GetCentre() const;
    void GetRectFourPoint(CPoint& lt, CPoint& lb, CPoint& rb, CPoint& rt) const;

    CPoint GetSlopeLeftTop() const;
    CPoint GetSlopeLeftMid() const;
    CPoint GetSlopeLeftBottom() const;
    CPoint GetSlopeBottomMid() const;
    CPoint GetSlopeRightBottom() const;
    CPoint GetSlopeRightMid() const;
    CPoint GetSlopeRightTop() const;
    CPoint GetSlopeTopMid() const;
    CPoint GetSlopeCentre() const;

    // The size stays, odd ones too, and the point reads back as p; the slope points of a frame that reaches
    // across an axis may lie a unit or two beside it, because halves are rounded by the side of zero they are
    // on.
    void PositionLeftMid(const CPoint& p);
    void PositionBottomMid(const CPoint& p);
    void PositionRightMid(const CPoint& p);
    void PositionTopMid(const CPoint& p);
    void PositionSlopeLeftMid(const CPoint& p);
    void PositionSlopeBottomMid(const CPoint& p);
    void PositionSlopeRightMid(const CPoint& p);
    void PositionSlopeTopMid(const CPoint& p);
    void SetSlopeLeftTop(const CPoint& p);
    void SetSlopeLeftMid(const CPoint& p);
    void SetSlopeLeftBottom(const CPoint& p);
    void SetSlopeBottomMid(const CPoint& p);
    void SetSlopeRightBottom(const CPoint& p);
    void SetSlopeRightMid(const CPoint& p);
    void SetSlopeRightTop(const CPoint& p);
    void SetSlopeTopMid(const CPoint& p);
    void SetSlopeCentre(const CPoint& p);

    void SetLeftTop(LONG x, LONG y); // with bottom = the old bottom + height, as in CFPDRect
    void SetLeftBottom(LONG x, LONG y);
    void SetRightTop(LONG x, LONG y);
    void SetRightBottom(LONG x, LONG y);
    void SetLeftMid(LONG x, LONG y);
    void SetTopMid(LONG x, LONG y);
    void SetRightMid(LONG x, LONG y);
    void SetBottomMid(LONG x, LONG y);
    void SetCentre(LONG x, LONG y);

    void Rotate(const CPoint& c, double a);
    void Mirror(const CPoint& a, CPoint b);
    void Move(const CPoint& from, const CPoint& to);
    void Zoom(double scale); // the scaled size is cut toward zero; the slope centre stays as it is displayed

    // Border points are inside here, whatever the tolerance; of the points outside those that are less than
    // tol units beyond the sides. The point is judged after turning it back onto whole units.
    int PtInRect(const CPoint& p, LONG tol) const;
    int PtOnRect(const CPoint& p, LONG tol) const; // of the exact border, not of the rounded corners
    int RectInRect(const CDouRect& r, LONG tol, int mode) const;
    void GetBox(CRect& box) const;

    void Serialize(CArchive& ar); // four 32-bit integers and a double, in the order of the fields
    void Dump(CDumpContext& dc) const;
};
