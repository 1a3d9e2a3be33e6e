#pragma once

#include "orvafx.h"

// Coordinates wrap at 32 bits as the system's own do; a value from a damaged file must not be undefined.
namespace orv {
constexpr int wrapAdd(int a, int b) {
    return (int)((UINT)a + (UINT)b);
}
constexpr int wrapSub(int a, int b) {
    return (int)((UINT)a - (UINT)b);
}
} // namespace orv

// CRect::TopLeft and BottomRight are views of a RECT's corners as points; g++ must not reason that the two
// types never meet.
#if defined(__GNUC__)
#define ORV_MAY_ALIAS __attribute__((__may_alias__))
#else
#define ORV_MAY_ALIAS
#endif

class CPoint;
class CSize;
class CRect;

// A width and a height, over the system's SIZE.
class ORVAFX_API CSize : public tagSIZE {
public:
    CSize() : CSize(0, 0) {}
    CSize(int nX, int nY) {
        cx = nX;
        cy = nY;
    }
    CSize(SIZE size) : CSize(size.cx, size.cy) {}
    CSize(POINT pt) : CSize(pt.x, pt.y) {}
    // The low word is the width, the high word the height, both signed.
    explicit CSize(DWORD dwSize) : CSize((short)LOWORD(dwSize), (short)HIWORD(dwSize)) {}

    BOOL operator==(SIZE size) const { return cx == size.cx && cy == size.cy; }
    BOOL operator!=(SIZE size) const { return !(*this == size); }
    // The same once more, or C++20 finds the comparison of two of them ambiguous.
    BOOL operator==(const CSize& size) const { return *this == static_cast<const SIZE&>(size); }
    BOOL operator!=(const CSize& size) const { return !(*this == size); }
    void operator+=(SIZE size) { SetSize(orv::wrapAdd(cx, size.cx), orv::wrapAdd(cy, size.cy)); }
    void operator-=(SIZE size) { SetSize(orv::wrapSub(cx, size.cx), orv::wrapSub(cy, size.cy)); }
    void SetSize(int nCX, int nCY) {
        cx = nCX;
        cy = nCY;
    }

    CSize operator+(SIZE size) const { return CSize(orv::wrapAdd(cx, size.cx), orv::wrapAdd(cy, size.cy)); }
    CSize operator-(SIZE size) const { return CSize(orv::wrapSub(cx, size.cx), orv::wrapSub(cy, size.cy)); }
    CSize operator-() const { return CSize(orv::wrapSub(0, cx), orv::wrapSub(0, cy)); }
    CPoint operator+(POINT pt) const;
    CPoint operator-(POINT pt) const;
    CRect operator+(const RECT* pRect) const;
    CRect operator-(const RECT* pRect) const;
};

// A point, over the system's POINT.
class ORVAFX_API ORV_MAY_ALIAS CPoint : public tagPOINT {
public:
    CPoint() : CPoint(0, 0) {}
    CPoint(int nX, int nY) { SetPoint(nX, nY); }
    CPoint(POINT pt) : CPoint(pt.x, pt.y) {}
    CPoint(SIZE size) : CPoint(size.cx, size.cy) {}
    // The low word is x, the high word y, both signed: a mouse message's LPARAM.
    explicit CPoint(LPARAM dwPoint) : CPoint((short)LOWORD(dwPoint), (short)HIWORD(dwPoint)) {}

    void Offset(int nX, int nY) { SetPoint(orv::wrapAdd(x, nX), orv::wrapAdd(y, nY)); }
    void Offset(POINT pt) { Offset(pt.x, pt.y); }
    void Offset(SIZE size) { Offset(size.cx, size.cy); }
    void SetPoint(int nX, int nY) {
        x = nX;
        y = nY;
    }

    BOOL operator==(POINT pt) const { return x == pt.x && y == pt.y; }
    BOOL operator!=(POINT pt) const { return !(*this == pt); }
    // The same once more, or C++20 finds the comparison of two of them ambiguous.
    BOOL operator==(const CPoint& pt) const { return *this == static_cast<const POINT&>(pt); }
    BOOL operator!=(const CPoint& pt) const { return !(*this == pt); }
    void operator+=(SIZE size) { Offset(size); }
    void operator-=(SIZE size) { Offset(orv::wrapSub(0, size.cx), orv::wrapSub(0, size.cy)); }
    void operator+=(POINT pt) { Offset(pt); }
    void operator-=(POINT pt) { Offset(orv::wrapSub(0, pt.x), orv::wrapSub(0, pt.y)); }

    CPoint operator+(SIZE size) const { return CPoint(orv::wrapAdd(x, size.cx), orv::wrapAdd(y, size.cy)); }
    CPoint operator-(SIZE size) const { return CPoint(orv::wrapSub(x, size.cx), orv::wrapSub(y, size.cy)); }
    CPoint operator-() const { return CPoint(orv::wrapSub(0, x), orv::wrapSub(0, y)); }
    CPoint operator+(POINT pt) const { return CPoint(orv::wrapAdd(x, pt.x), orv::wrapAdd(y, pt.y)); }
    CSize operator-(POINT pt) const { return CSize(orv::wrapSub(x, pt.x), orv::wrapSub(y, pt.y)); }
    CRect operator+(const RECT* pRect) const;
    CRect operator-(const RECT* pRect) const;
};

// An upright rectangle, over the system's RECT. The left and top edges belong to it, the right and bottom
// ones do not. Unions, intersections, PtInRect and the size operations expect left <= right and top <=
// bottom.
class ORVAFX_API CRect : public tagRECT {
public:
    CRect() : CRect(0, 0, 0, 0) {}
    CRect(int l, int t, int r, int b) { SetRect(l, t, r, b); }
    CRect(const RECT& srcRect) : CRect(srcRect.left, srcRect.top, srcRect.right, srcRect.bottom) {}
    CRect(LPCRECT lpSrcRect) : CRect(*lpSrcRect) {}
    CRect(POINT point, SIZE size)
        : CRect(point.x, point.y, orv::wrapAdd(point.x, size.cx), orv::wrapAdd(point.y, size.cy)) {}
    CRect(POINT topLeft, POINT bottomRight) : CRect(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y) {}

    int Width() const { return orv::wrapSub(right, left); }
    int Height() const { return orv::wrapSub(bottom, top); }
    CSize Size() const { return CSize(Width(), Height()); }
    CPoint& TopLeft() { return *(CPoint*)&left; }
    CPoint& BottomRight() { return *(CPoint*)&right; }
    const CPoint& TopLeft() const { return *(const CPoint*)&left; }
    const CPoint& BottomRight() const { return *(const CPoint*)&right; }
    // The halves are rounded down, also for negative coordinates.
    CPoint CenterPoint() const;
    void SwapLeftRight();
    static void SwapLeftRight(LPRECT lpRect);

    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }

    // Empty: no width or no height. Null: all four are zero.
    BOOL IsRectEmpty() const { return left >= right || top >= bottom; }
    BOOL IsRectNull() const { return left == 0 && top == 0 && right == 0 && bottom == 0; }
    BOOL PtInRect(POINT pt) const { return pt.x >= left && pt.x < right && pt.y >= top && pt.y < bottom; }

    void SetRect(int x1, int y1, int x2, int y2) {
        left = x1;
        top = y1;
        right = x2;
        bottom = y2;
    }
    void SetRect(POINT topLeft, POINT bottomRight) {
        SetRect(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y);
    }
    void SetRectEmpty() { SetRect(0, 0, 0, 0); }
    void CopyRect(LPCRECT lpSrcRect) { *this = *lpSrcRect; }
    BOOL EqualRect(LPCRECT lpRect) const;

    void InflateRect(int x, int y) { InflateRect(x, y, x, y); }
    void InflateRect(SIZE size) { InflateRect(size.cx, size.cy); }
    void InflateRect(LPCRECT lpRect) {
        InflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    void InflateRect(int l, int t, int r, int b) {
        SetRect(orv::wrapSub(left, l), orv::wrapSub(top, t), orv::wrapAdd(right, r), orv::wrapAdd(bottom, b));
    }
    void DeflateRect(int x, int y) { InflateRect(orv::wrapSub(0, x), orv::wrapSub(0, y)); }
    void DeflateRect(SIZE size) { InflateRect(orv::wrapSub(0, size.cx), orv::wrapSub(0, size.cy)); }
    void DeflateRect(LPCRECT lpRect) {
        DeflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    void DeflateRect(int l, int t, int r, int b) {
        InflateRect(orv::wrapSub(0, l), orv::wrapSub(0, t), orv::wrapSub(0, r), orv::wrapSub(0, b));
    }

    void OffsetRect(int x, int y) {
        SetRect(orv::wrapAdd(left, x), orv::wrapAdd(top, y), orv::wrapAdd(right, x), orv::wrapAdd(bottom, y));
    }
    void OffsetRect(SIZE size) { OffsetRect(size.cx, size.cy); }
    void OffsetRect(POINT point) { OffsetRect(point.x, point.y); }
    void NormalizeRect();

    void MoveToY(int y) { OffsetRect(0, orv::wrapSub(y, top)); }
    void MoveToX(int x) { OffsetRect(orv::wrapSub(x, left), 0); }
    void MoveToXY(int x, int y) { OffsetRect(orv::wrapSub(x, left), orv::wrapSub(y, top)); }
    void MoveToXY(POINT point) { MoveToXY(point.x, point.y); }

    // The result replaces this rectangle; FALSE: the result is empty, and the rectangle is all zero (a
    // subtraction leaves the first rectangle unless the second covers it in one direction whole).
    BOOL IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2);
    BOOL UnionRect(LPCRECT lpRect1, LPCRECT lpRect2);
    BOOL SubtractRect(LPCRECT lpRectSrc1, LPCRECT lpRectSrc2);

    void operator=(const RECT& srcRect) { SetRect(srcRect.left, srcRect.top, srcRect.right, srcRect.bottom); }
    CRect(const CRect&) = default;
    CRect& operator=(const CRect&) = default;
    BOOL operator==(const RECT& rect) const { return EqualRect(&rect); }
    BOOL operator!=(const RECT& rect) const { return !EqualRect(&rect); }
    BOOL operator==(const CRect& rect) const { return EqualRect(&rect); }
    BOOL operator!=(const CRect& rect) const { return !EqualRect(&rect); }
    void operator+=(POINT point) { OffsetRect(point); }
    void operator+=(SIZE size) { OffsetRect(size); }
    void operator+=(LPCRECT lpRect) { InflateRect(lpRect); }
    void operator-=(POINT point) { OffsetRect(orv::wrapSub(0, point.x), orv::wrapSub(0, point.y)); }
    void operator-=(SIZE size) { OffsetRect(orv::wrapSub(0, size.cx), orv::wrapSub(0, size.cy)); }
    void operator-=(LPCRECT lpRect) { DeflateRect(lpRect); }
    void operator&=(const RECT& rect) { IntersectRect(this, &rect); }
    void operator|=(const RECT& rect) { UnionRect(this, &rect); }

    CRect operator+(POINT pt) const;
    CRect operator-(POINT pt) const;
    CRect operator+(SIZE size) const;
    CRect operator-(SIZE size) const;
    CRect operator+(LPCRECT lpRect) const;
    CRect operator-(LPCRECT lpRect) const;
    CRect operator&(const RECT& rect2) const;
    CRect operator|(const RECT& rect2) const;
    // nMultiplier * coordinate / nDivisor, rounded, in 64 bits.
    CRect MulDiv(int nMultiplier, int nDivisor) const;
};
