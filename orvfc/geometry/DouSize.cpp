#include "planentity.h"

#include <math.h>

#include "Truncate.h"

CDouSize::CDouSize() : CDouSize(0, 0) {}

CDouSize::CDouSize(double cx, double cy) : DOUSIZE{cx, cy} {}

CDouSize::CDouSize(DOUSIZE size) : DOUSIZE(size) {}

CDouSize::CDouSize(DOUPOINT p) : CDouSize(p.x, p.y) {}

CDouSize::CDouSize(CSize size) : CDouSize(size.cx, size.cy) {}

void CDouSize::Init() {
    Set(0, 0);
}

void CDouSize::Set(double newCx, double newCy) {
    cx = newCx;
    cy = newCy;
}

CDouSize& CDouSize::operator+=(DOUSIZE size) {
    Set(cx + size.cx, cy + size.cy);
    return *this;
}

CDouSize& CDouSize::operator-=(DOUSIZE size) {
    Set(cx - size.cx, cy - size.cy);
    return *this;
}

CDouSize& CDouSize::operator*=(double scale) {
    Set(cx * scale, cy * scale);
    return *this;
}

CDouSize CDouSize::operator+(CDouSize size) const {
    return CDouSize(cx + size.cx, cy + size.cy);
}

CDouSize CDouSize::operator-(CDouSize size) const {
    return CDouSize(cx - size.cx, cy - size.cy);
}

CDouSize CDouSize::operator-() const {
    return CDouSize(-cx, -cy);
}

CPosition CDouSize::operator+(DOUPOINT p) const {
    return CPosition(cx + p.x, cy + p.y);
}

CPosition CDouSize::operator-(DOUPOINT p) const {
    return CPosition(cx - p.x, cy - p.y);
}

CDouRect CDouSize::operator+(const DOURECT* r) const {
    return CDouRect(r) + *this;
}

CDouRect CDouSize::operator-(const DOURECT* r) const {
    return CDouRect(r) - *this;
}

CDouSize CDouSize::Offset(const double& dx, const double& dy) const {
    return CDouSize(cx + dx, cy + dy);
}

CDouSize CDouSize::Offset(const CPosition& d) const {
    return Offset(d.x, d.y);
}

int CDouSize::IsSame(CDouSize size, double tol) const {
    return fabs(cx - size.cx) < tol && fabs(cy - size.cy) < tol;
}

CSize CDouSize::ConvertInt() const {
    return CSize(orv::truncToInt(cx), orv::truncToInt(cy));
}

void CDouSize::Serialize(CArchive& ar) {
    if (ar.IsStoring()) {
        ar << cx << cy;
        return;
    }
    CDouSize loaded;
    ar >> loaded.cx >> loaded.cy;
    *this = loaded;
}

void CDouSize::Dump(CDumpContext& dc) const {
    CString str;
    str.Format(_T("CDouSize (%.17g, %.17g)"), cx, cy);
    dc << str;
}
