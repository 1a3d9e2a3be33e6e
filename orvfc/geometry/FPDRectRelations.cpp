#include "FourPointRect.h"

#include "FourPointCore.h"

namespace {

// The slope corners in their order, the first one again at the end.
struct Border {
    CPosition corners[5];
    explicit Border(const CFPDRect& r)
        : corners{r.GetSlopeLeftTop(), r.GetSlopeLeftBottom(), r.GetSlopeRightBottom(), r.GetSlopeRightTop(),
                  r.GetSlopeLeftTop()} {}

    // The number of the side nearest to p, and how near it is.
    int nearest(const CPosition& p, double& distance) const {
        int side = 0;
        distance = INFINITY;
        for (int i = 0; i < 4; ++i) {
            const CPosition &a = corners[i], &b = corners[i + 1];
            const double d = GetDistFromPointToLineSegment(p.x, p.y, a.x, a.y, b.x, b.y);
            if (d < distance) {
                distance = d;
                side = i;
            }
        }
        return side;
    }
};

CPosition nearestPoint(const CPosition& p, const CPosition& a, const CPosition& b) {
    CPosition foot;
    GetPerpendicularPoint(p.x, p.y, a.x, a.y, b.x, b.y, &foot.x, &foot.y);
    // Judged along its longer direction, where rounding cannot push a foot off the side.
    const int onSide = fabs(b.x - a.x) >= fabs(b.y - a.y) ? BetweenDistance(foot.x, a.x, b.x, 0)
                                                          : BetweenDistance(foot.y, a.y, b.y, 0);
    if (onSide)
        return foot;
    return p.GetDistance(a) < p.GetDistance(b) ? a : b;
}

int overlap(const CDouRect& a, const CDouRect& b, double tol) {
    return a.left < b.right + tol && a.right > b.left - tol && a.top < b.bottom + tol &&
           a.bottom > b.top - tol;
}

CDouRect normalised(CDouRect r) {
    r.NormalizeRect();
    return r;
}

} // namespace

int CFPDRect::PtInRect(const CPosition& p, double tol) const {
    return normalised(GetRectangle()).PtInRect(p.Rotate(GetLeftTop(), -orv::slope(*this)), tol);
}

int CFPDRect::PtOnRect(const CPosition& p, double tol) const {
    double distance;
    Border(*this).nearest(p, distance);
    return distance < tol;
}

int CFPDRect::IsPtOnRect(CPosition& p, double tol) const {
    const Border border(*this);
    double distance;
    const int side = border.nearest(p, distance);
    if (!(distance < tol))
        return FALSE;
    p = nearestPoint(p, border.corners[side], border.corners[side + 1]);
    return TRUE;
}

// Two rectangles meet when none of their four directions separates them.
int CFPDRect::RectInRect(const CDouRect& r, double tol, int mode) const {
    if (!orv::isFinite(GetLeftTop()) || !orv::isFinite(GetRightBottom()))
        return FALSE;
    const CDouRect window = normalised(r);
    CDouRect box;
    GetBox(box);
    const int wholly = box.TopLeft().IsInBox(window, tol) && box.BottomRight().IsInBox(window, tol);
    if (mode == 0 || wholly)
        return wholly;
    const CPosition anchor = GetLeftTop();
    const double back = -orv::slope(*this);
    const CPosition corners[] = {
        window.TopLeft().Rotate(anchor, back), window.BottomLeft().Rotate(anchor, back),
        window.BottomRight().Rotate(anchor, back), window.TopRight().Rotate(anchor, back)};
    CDouRect turnedWindow;
    orv::boxAround(turnedWindow, corners);
    return overlap(box, window, tol) && overlap(normalised(GetRectangle()), turnedWindow, tol);
}

void CFPDRect::GetBox(CDouRect& box) const {
    orv::boxAround(box, {GetSlopeLeftTop(), GetSlopeRightTop(), GetSlopeLeftBottom(), GetSlopeRightBottom()});
}

int CFPDRect::IsRectEmpty() const {
    return left < orv::zero && top < orv::zero && right < orv::zero && bottom < orv::zero &&
           angle < orv::zero;
}
