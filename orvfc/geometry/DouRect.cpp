#include "planentity.h"

#include <utility>

#include <orvmathfunc/orvmathfunc.h>

#include "Truncate.h"

// What a rectangle is and how it is moved; DouRectRelations.cpp holds what it is to other figures.

namespace {

// A null pointer reads as zeros.
DOURECT valueOf(const DOURECT* r) {
    ASSERT(r != NULL);
    return r ? *r : DOURECT{};
}

} // namespace

CDouRect::CDouRect() : CDouRect(0, 0, 0, 0) {}

CDouRect::CDouRect(double l, double t, double r, double b) : DOURECT{l, t, r, b} {}

CDouRect::CDouRect(const DOURECT& r) : DOURECT(r) {}

CDouRect::CDouRect(const DOURECT* r) : DOURECT(valueOf(r)) {}

CDouRect::CDouRect(DOUPOINT tl, DOUSIZE size) : CDouRect(tl.x, tl.y, tl.x + size.cx, tl.y + size.cy) {}

CDouRect::CDouRect(DOUPOINT tl, DOUPOINT br) : CDouRect(tl.x, tl.y, br.x, br.y) {}

CDouRect::CDouRect(CRect rect) : CDouRect(rect.left, rect.top, rect.right, rect.bottom) {}

CDouRect& CDouRect::operator=(const DOURECT& r) {
    Set(r.left, r.top, r.right, r.bottom);
    return *this;
}

void CDouRect::Init() {
    Set(0, 0, 0, 0);
}

void CDouRect::SetRectEmpty() {
    Init();
}

void CDouRect::Set(double l, double t, double r, double b) {
    left = l;
    top = t;
    right = r;
    bottom = b;
}

void CDouRect::SetRect(double l, double t, double r, double b) {
    Set(l, t, r, b);
}

void CDouRect::SetRect(DOUPOINT tl, DOUPOINT br) {
    Set(tl.x, tl.y, br.x, br.y);
}

void CDouRect::CopyRect(const DOURECT* r) {
    *this = valueOf(r);
}

double CDouRect::Width() const {
    return right - left;
}

double CDouRect::Height() const {
    return bottom - top;
}

CDouSize CDouRect::Size() const {
    return CDouSize(Width(), Height());
}

CPosition CDouRect::TopLeft() const {
    return CPosition(left, top);
}

CPosition CDouRect::TopRight() const {
    return CPosition(right, top);
}

CPosition CDouRect::BottomRight() const {
    return CPosition(right, bottom);
}

CPosition CDouRect::BottomLeft() const {
    return CPosition(left, bottom);
}

CPosition CDouRect::TopMid() const {
    return CPosition(left + (right - left) / 2, top);
}

CPosition CDouRect::RightMid() const {
    return CPosition(right, top + (bottom - top) / 2);
}

CPosition CDouRect::BottomMid() const {
    return CPosition(left + (right - left) / 2, bottom);
}

CPosition CDouRect::LeftMid() const {
    return CPosition(left, top + (bottom - top) / 2);
}

CPosition CDouRect::CenterPoint() const {
    return CPosition(left + Width() / 2, top + Height() / 2);
}

int CDouRect::SetCentrePoint(const CPosition& c) {
    const double width = Width(), height = Height(), l = c.x - width / 2, t = c.y - height / 2;
    Set(l, t, l + width, t + height);
    return TRUE;
}

void CDouRect::SwapLeftRight() {
    std::swap(left, right);
}

void CDouRect::SwapLeftRight(DOURECT* r) {
    ASSERT(r != NULL);
    if (r)
        std::swap(r->left, r->right);
}

void CDouRect::NormalizeRect() {
    if (left > right)
        std::swap(left, right);
    if (top > bottom)
        std::swap(top, bottom);
}

void CDouRect::NormalizeRectNotY() {
    if (left > right)
        std::swap(left, right);
    if (top < bottom)
        std::swap(top, bottom);
}

void CDouRect::InflateRect(double d) {
    InflateRect(d, d, d, d);
}

void CDouRect::InflateRect(double dx, double dy) {
    InflateRect(dx, dy, dx, dy);
}

void CDouRect::InflateRect(DOUSIZE size) {
    InflateRect(size.cx, size.cy);
}

void CDouRect::InflateRect(double l, double t, double r, double b) {
    Set(left - l, top - t, right + r, bottom + b);
}

void CDouRect::InflateRect(const DOURECT* r) {
    const DOURECT by = valueOf(r);
    InflateRect(by.left, by.top, by.right, by.bottom);
}

void CDouRect::DeflateRect(double d) {
    InflateRect(-d);
}

void CDouRect::DeflateRect(double dx, double dy) {
    InflateRect(-dx, -dy);
}

void CDouRect::DeflateRect(DOUSIZE size) {
    DeflateRect(size.cx, size.cy);
}

void CDouRect::DeflateRect(double l, double t, double r, double b) {
    InflateRect(-l, -t, -r, -b);
}

void CDouRect::DeflateRect(const DOURECT* r) {
    const DOURECT by = valueOf(r);
    DeflateRect(by.left, by.top, by.right, by.bottom);
}

void CDouRect::OffsetRect(double dx, double dy) {
    Set(left + dx, top + dy, right + dx, bottom + dy);
}

void CDouRect::OffsetRect(DOUSIZE size) {
    OffsetRect(size.cx, size.cy);
}

void CDouRect::OffsetRect(DOUPOINT p) {
    OffsetRect(p.x, p.y);
}

CDouRect CDouRect::Offset(double dx, double dy) const {
    CDouRect moved(*this);
    moved.OffsetRect(dx, dy);
    return moved;
}

CDouRect CDouRect::Offset(DOUSIZE size) const {
    return Offset(size.cx, size.cy);
}

CDouRect CDouRect::Offset(DOUPOINT p) const {
    return Offset(p.x, p.y);
}

CDouRect& CDouRect::operator+=(DOUPOINT p) {
    OffsetRect(p);
    return *this;
}

CDouRect& CDouRect::operator+=(DOUSIZE size) {
    OffsetRect(size);
    return *this;
}

CDouRect& CDouRect::operator+=(const DOURECT* r) {
    InflateRect(r);
    return *this;
}

CDouRect& CDouRect::operator-=(DOUPOINT p) {
    OffsetRect(-p.x, -p.y);
    return *this;
}

CDouRect& CDouRect::operator-=(DOUSIZE size) {
    OffsetRect(-size.cx, -size.cy);
    return *this;
}

CDouRect& CDouRect::operator-=(const DOURECT* r) {
    DeflateRect(r);
    return *this;
}

CDouRect CDouRect::operator+(DOUPOINT p) const {
    return CDouRect(*this) += p;
}

CDouRect CDouRect::operator+(DOUSIZE size) const {
    return CDouRect(*this) += size;
}

CDouRect CDouRect::operator+(const DOURECT* r) const {
    return CDouRect(*this) += r;
}

CDouRect CDouRect::operator-(DOUPOINT p) const {
    return CDouRect(*this) -= p;
}

CDouRect CDouRect::operator-(DOUSIZE size) const {
    return CDouRect(*this) -= size;
}

CDouRect CDouRect::operator-(const DOURECT* r) const {
    return CDouRect(*this) -= r;
}

CDouRect& CDouRect::operator*=(double scale) {
    const CPosition c = CenterPoint();
    const double halfWidth = Width() * scale / 2, halfHeight = Height() * scale / 2;
    Set(c.x - halfWidth, c.y - halfHeight, c.x + halfWidth, c.y + halfHeight);
    return *this;
}

CDouRect CDouRect::Rotate(CPosition& centre, double angle) const {
    return CDouRect(TopLeft().Rotate(centre, angle), BottomRight().Rotate(centre, angle));
}

CDouRect CDouRect::Mirror(CPosition& a, CPosition& b) const {
    return CDouRect(TopLeft().Mirror(a, b), BottomRight().Mirror(a, b));
}

CRect CDouRect::ConvertInt() const {
    return CRect(TopLeft().ConvertInt(), BottomRight().ConvertInt());
}

void CDouRect::Serialize(CArchive& ar) {
    if (ar.IsStoring()) {
        ar << left << top << right << bottom;
        return;
    }
    CDouRect loaded;
    ar >> loaded.left >> loaded.top >> loaded.right >> loaded.bottom;
    *this = loaded;
}

void CDouRect::Dump(CDumpContext& dc) const {
    CString str;
    str.Format(_T("CDouRect (%.17g, %.17g, %.17g, %.17g)"), left, top, right, bottom);
    dc << str;
}
