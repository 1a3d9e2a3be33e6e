#include "atltypes.h"

// The rectangle functions, with the results of the system's own.

CPoint CSize::operator+(POINT pt) const {
    return CPoint(pt) + *this;
}

CPoint CSize::operator-(POINT pt) const {
    return CPoint(*this) - CSize(pt);
}

CRect CSize::operator+(const RECT* pRect) const {
    return CRect(pRect) + *this;
}

// The rectangle moved back by the size, not the other way round: MFC's meaning.
CRect CSize::operator-(const RECT* pRect) const {
    return CRect(pRect) - *this;
}

CRect CPoint::operator+(const RECT* pRect) const {
    return CRect(pRect) + *this;
}

CRect CPoint::operator-(const RECT* pRect) const {
    return CRect(pRect) - *this;
}

CPoint CRect::CenterPoint() const {
    return CPoint((int)(((LONGLONG)left + right) >> 1), (int)(((LONGLONG)top + bottom) >> 1));
}

void CRect::SwapLeftRight() {
    SwapLeftRight(this);
}

void CRect::SwapLeftRight(LPRECT lpRect) {
    const LONG l = lpRect->left;
    lpRect->left = lpRect->right;
    lpRect->right = l;
}

void CRect::NormalizeRect() {
    SetRect(left < right ? left : right, top < bottom ? top : bottom, left < right ? right : left,
            top < bottom ? bottom : top);
}

BOOL CRect::EqualRect(LPCRECT lpRect) const {
    return left == lpRect->left && top == lpRect->top && right == lpRect->right && bottom == lpRect->bottom;
}

BOOL CRect::IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) {
    const CRect a(lpRect1), b(lpRect2);
    SetRect(a.left > b.left ? a.left : b.left, a.top > b.top ? a.top : b.top,
            a.right < b.right ? a.right : b.right, a.bottom < b.bottom ? a.bottom : b.bottom);
    if (IsRectEmpty()) {
        SetRectEmpty();
        return FALSE;
    }
    return TRUE;
}

BOOL CRect::UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) {
    const CRect a(lpRect1), b(lpRect2);
    if (a.IsRectEmpty() && b.IsRectEmpty()) {
        SetRectEmpty();
        return FALSE;
    }
    if (a.IsRectEmpty())
        *this = b;
    else if (b.IsRectEmpty())
        *this = a;
    else
        SetRect(a.left < b.left ? a.left : b.left, a.top < b.top ? a.top : b.top,
                a.right > b.right ? a.right : b.right, a.bottom > b.bottom ? a.bottom : b.bottom);
    return TRUE;
}

BOOL CRect::SubtractRect(LPCRECT lpRectSrc1, LPCRECT lpRectSrc2) {
    const CRect a(lpRectSrc1), b(lpRectSrc2);
    if (a.IsRectEmpty()) {
        SetRectEmpty();
        return FALSE;
    }
    *this = a;
    CRect both;
    if (both.IntersectRect(&a, &b)) {
        if (both == a) {
            SetRectEmpty();
            return FALSE;
        }
        // Only a cut from side to side leaves a rectangle.
        if (both.top == a.top && both.bottom == a.bottom) {
            if (both.left == a.left)
                left = both.right;
            else if (both.right == a.right)
                right = both.left;
        } else if (both.left == a.left && both.right == a.right) {
            if (both.top == a.top)
                top = both.bottom;
            else if (both.bottom == a.bottom)
                bottom = both.top;
        }
    }
    return TRUE;
}

CRect CRect::operator+(POINT pt) const {
    CRect rect(*this);
    rect += pt;
    return rect;
}

CRect CRect::operator-(POINT pt) const {
    CRect rect(*this);
    rect -= pt;
    return rect;
}

CRect CRect::operator+(SIZE size) const {
    return *this + CPoint(size);
}

CRect CRect::operator-(SIZE size) const {
    return *this - CPoint(size);
}

CRect CRect::operator+(LPCRECT lpRect) const {
    CRect rect(*this);
    rect += lpRect;
    return rect;
}

CRect CRect::operator-(LPCRECT lpRect) const {
    CRect rect(*this);
    rect -= lpRect;
    return rect;
}

CRect CRect::operator&(const RECT& rect2) const {
    CRect rect;
    rect.IntersectRect(this, &rect2);
    return rect;
}

CRect CRect::operator|(const RECT& rect2) const {
    CRect rect;
    rect.UnionRect(this, &rect2);
    return rect;
}

namespace {

// As the system's MulDiv: half away from zero, -1 when the result does not fit or the divisor is zero.
int scaled(int n, int nMultiplier, int nDivisor) {
    if (nDivisor == 0)
        return -1;
    const LONGLONG product = (LONGLONG)n * nMultiplier, divisor = nDivisor;
    const LONGLONG half = (divisor < 0 ? -divisor : divisor) / 2;
    const LONGLONG result = (product < 0 ? product - half : product + half) / divisor;
    return result < -INT_MAX || result > INT_MAX ? -1 : (int)result;
}

} // namespace

CRect CRect::MulDiv(int nMultiplier, int nDivisor) const {
    return CRect(scaled(left, nMultiplier, nDivisor), scaled(top, nMultiplier, nDivisor),
                 scaled(right, nMultiplier, nDivisor), scaled(bottom, nMultiplier, nDivisor));
}
