#include "planentity.h"

#include <math.h>

#include <orvmathfunc/orvmathfunc.h>

#include "Truncate.h"

CPosition::CPosition() : x(0), y(0) {}

CPosition::CPosition(double x, double y) : x(x), y(y) {}

CPosition::CPosition(const double* p) {
    Set(p);
}

CPosition::CPosition(const CPosition& p) = default;

CPosition::CPosition(CPoint pt) : x(pt.x), y(pt.y) {}

CPosition::~CPosition() = default;

CPosition& CPosition::operator=(const CPosition& p) = default;

CPosition& CPosition::operator=(const CPoint& pt) {
    Set(pt.x, pt.y);
    return *this;
}

void CPosition::Init() {
    Set(0, 0);
}

void CPosition::Set(double newX, double newY) {
    x = newX;
    y = newY;
}

void CPosition::Set(const double* p) {
    ASSERT(p != NULL);
    p ? Set(p[0], p[1]) : Init();
}

double& CPosition::operator[](const int& i) {
    return i == 1 ? y : x;
}

const double& CPosition::operator[](const int& i) const {
    return i == 1 ? y : x;
}

CPosition::operator const double*() const {
    return &x;
}

CPosition::operator double*() {
    return &x;
}

CPosition::operator DOUPOINT() const {
    return {x, y};
}

CPosition& CPosition::operator+=(const CPosition& p) {
    Set(x + p.x, y + p.y);
    return *this;
}

CPosition& CPosition::operator-=(const CPosition& p) {
    Set(x - p.x, y - p.y);
    return *this;
}

CPosition& CPosition::operator*=(const double& scale) {
    Set(x * scale, y * scale); // both products before the first store: scale may be x itself
    return *this;
}

bool operator==(const CPosition& a, const CPosition& b) {
    return a.GetDistance(b) < orv::zero;
}

CPosition operator+(const CPosition& a, const CPosition& b) {
    return CPosition(a.x + b.x, a.y + b.y);
}

CPosition operator-(const CPosition& a, const CPosition& b) {
    return CPosition(a.x - b.x, a.y - b.y);
}

CPosition operator*(const CPosition& p, const double& scale) {
    return CPosition(p.x * scale, p.y * scale);
}

CPosition operator*(const double& scale, const CPosition& p) {
    return p * scale;
}

double CPosition::GetDistance(const CPosition& p) const {
    return ::GetDistance(x, y, p.x, p.y);
}

double CPosition::GetAngle(const CPosition& from) const {
    return GetAngleToXAxis(from.x, from.y, x, y);
}

CPosition CPosition::GetMidPos(const CPosition& p) const {
    CPosition mid;
    GetLineMid(x, y, p.x, p.y, &mid.x, &mid.y);
    return mid;
}

int CPosition::IsSame(const CPosition& p, double tol) const {
    return GetDistance(p) < tol;
}

int CPosition::IsInBox(const DOURECT& r, double tol) const {
    return r.left - tol < x && x < r.right + tol && r.bottom + tol > y && r.top - tol < y;
}

int CPosition::IsOnLine(double x1, double y1, double x2, double y2, double tol) const {
    return GetDistFromPointToLineSegment(x, y, x1, y1, x2, y2) < tol;
}

int CPosition::IsOnBox(const DOURECT& r, double tol) const {
    return IsOnLine(r.left, r.top, r.left, r.bottom, tol) ||
           IsOnLine(r.left, r.bottom, r.right, r.bottom, tol) ||
           IsOnLine(r.right, r.top, r.right, r.bottom, tol) || IsOnLine(r.left, r.top, r.right, r.top, tol);
}

int CPosition::IsOnArc(const CPosition& centre, const CPosition& start, const CPosition& end,
                       double tol) const {
    const double radius = centre.GetDistance(start);
    if (fabs(GetDistance(centre) - radius) > tol)
        return FALSE;
    const double angle = GetAngle(centre), first = start.GetAngle(centre), last = end.GetAngle(centre);
    return IsArcAngleInBounds(angle, first, last, orv::zero) != 0;
}

CPosition CPosition::Offset(const double& dx, const double& dy) const {
    return CPosition(x + dx, y + dy);
}

CPosition CPosition::Offset(const CPosition& d) const {
    return Offset(d.x, d.y);
}

CPosition CPosition::Rotate(const CPosition& centre, double angle) const {
    CPosition turned;
    PointRotateDou(x, y, centre.x, centre.y, angle, &turned.x, &turned.y);
    return turned;
}

CPosition CPosition::Mirror(const CPosition& a, const CPosition& b) const {
    CPosition image;
    PointMirrorDou(x, y, a.x, a.y, b.x, b.y, &image.x, &image.y);
    return image;
}

CPosition CPosition::Zoom(const CPosition& centre, double scale) const {
    const double angle = GetAngle(centre), distance = GetDistance(centre) * scale;
    return CPosition(centre.x + cos(angle) * distance, centre.y - sin(angle) * distance);
}

CPoint CPosition::ConvertInt() const {
    return CPoint(orv::truncToInt(x), orv::truncToInt(y));
}

void CPosition::Serialize(CArchive& ar) {
    if (ar.IsStoring()) {
        ar << x << y;
        return;
    }
    CPosition loaded;
    ar >> loaded.x >> loaded.y;
    *this = loaded;
}

void CPosition::Dump(CDumpContext& dc) const {
    CString str;
    str.Format(_T("CPosition (%.17g, %.17g)"), x, y);
    dc << str;
}
