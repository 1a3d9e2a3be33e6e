// The members that CFPDRect and CFPRect both have and define alike. Each of the two sources includes this
// once, after it has said which Frame it is for.

using Number = orv::FourPoint<Frame>::Number;
using Point = orv::FourPoint<Frame>::Point;

void Frame::Init() {
    SetRect(0, 0, 0, 0, 0);
}

void Frame::SetRect(Number l, Number t, Number r, Number b, double newAngle) {
    left = l;
    top = t;
    right = r;
    bottom = b;
    angle = newAngle;
}

void Frame::SetRectWH(Number l, Number t, Number w, Number h, double newAngle) {
    SetRect(l, t, l, t, newAngle);
    orv::setSize(*this, w, h);
}

void Frame::SetRectFourPoint(Number x1, Number y1, Number x2, Number y2, Number, Number, Number x4,
                             Number y4) {
    const Number w = orv::FourPoint<Frame>::fit(GetDistance(x1, y1, x4, y4));
    const Number h = orv::FourPoint<Frame>::fit(GetDistance(x1, y1, x2, y2));
    SetRectWH(x1, y1, w, h, GetAngleToXAxis(x1, y1, x4, y4));
}

void Frame::SetRectFourPoint(const Point& lt, const Point& lb, const Point& rb, const Point& rt) {
    SetRectFourPoint(lt.x, lt.y, lb.x, lb.y, rb.x, rb.y, rt.x, rt.y);
}

void Frame::SetRectTwoPoint(Number x1, Number y1, Number x2, Number y2, Number w, Number h) {
    SetRectWH(x1, y1, w, h, GetAngleToXAxis(x1, y1, x2, y2));
}

void Frame::SetRectLeftTop(Number x, Number y) {
    left = x;
    top = y;
}

void Frame::SetRectRightBottom(Number x, Number y) {
    right = x;
    bottom = y;
}

Number Frame::GetLeft() const {
    return left;
}

Number Frame::GetTop() const {
    return top;
}

Number Frame::GetRight() const {
    return right;
}

Number Frame::GetBottom() const {
    return bottom;
}

double Frame::GetAngle() const {
    return angle;
}

void Frame::SetLeft(Number l) {
    left = l;
}

void Frame::SetTop(Number t) {
    top = t;
}

void Frame::SetRight(Number r) {
    right = r;
}

void Frame::SetBottom(Number b) {
    bottom = b;
}

void Frame::SetAngle(double newAngle) {
    angle = newAngle;
}

Number Frame::GetWidth() const {
    return orv::FourPoint<Frame>::fit(orv::width(*this));
}

Number Frame::GetHeight() const {
    return orv::FourPoint<Frame>::fit(orv::height(*this));
}

void Frame::SetWidth(Number w) {
    orv::setSize(*this, w, orv::height(*this));
}

void Frame::SetHeight(Number h) {
    orv::setSize(*this, orv::width(*this), h);
}

void Frame::SetCentreWidth(Number w) {
    const double centre = GetCentre().x, half = w / 2; // of a whole number: cut
    left = orv::FourPoint<Frame>::fit(centre - half);
    right = orv::FourPoint<Frame>::fit(centre + half);
}

void Frame::SetCentreHeight(Number h) {
    const double centre = GetCentre().y, half = h / 2;
    top = orv::FourPoint<Frame>::fit(centre - half);
    bottom = orv::FourPoint<Frame>::fit(centre + half);
}

double Frame::GetDiagonalLength() const {
    return GetDistance(left, top, right, bottom);
}

double Frame::GetArea() const {
    return fabs(orv::width(*this) * orv::height(*this));
}

double Frame::GetPerimeter() const {
    return 2 * (fabs(orv::width(*this)) + fabs(orv::height(*this)));
}

#define ORV_MEMBERS(name)                                                                                    \
    Point Frame::Get##name() const {                                                                         \
        return orv::uprightPoint(*this, orv::place::name);                                                   \
    }                                                                                                        \
    Point Frame::GetSlope##name() const {                                                                    \
        return orv::slopePoint(*this, orv::place::name);                                                     \
    }                                                                                                        \
    void Frame::SetSlope##name(const Point& p) {                                                             \
        orv::putAt(*this, orv::place::name, p, orv::slope(*this));                                           \
    }
ORV_FOUR_POINT_PLACES(ORV_MEMBERS)
#undef ORV_MEMBERS

#define ORV_MEMBERS(name)                                                                                    \
    void Frame::Position##name(const Point& p) {                                                             \
        orv::putAt(*this, orv::place::name, p, 0);                                                           \
    }                                                                                                        \
    void Frame::PositionSlope##name(const Point& p) {                                                        \
        SetSlope##name(p);                                                                                   \
    }
ORV_MEMBERS(LeftMid)
ORV_MEMBERS(BottomMid)
ORV_MEMBERS(RightMid)
ORV_MEMBERS(TopMid)
#undef ORV_MEMBERS

void Frame::GetRectFourPoint(Point& lt, Point& lb, Point& rb, Point& rt) const {
    lt = GetLeftTop();
    lb = GetLeftBottom();
    rb = GetRightBottom();
    rt = GetRightTop();
}

void Frame::SetLeftTop(Number x, Number y) {
    const double w = orv::width(*this), h = orv::height(*this);
    left = x;
    top = y;
    right = orv::FourPoint<Frame>::fit(x + w);
    bottom = orv::FourPoint<Frame>::fit(bottom + h); // not top + h: callers rely on the growth
}

void Frame::SetLeftBottom(Number x, Number y) {
    left = x;
    bottom = y;
}

void Frame::SetRightTop(Number x, Number y) {
    right = x;
    top = y;
}

void Frame::SetRightBottom(Number x, Number y) {
    SetRectRightBottom(x, y);
}

void Frame::SetLeftMid(Number x, Number y) {
    left = x;
    bottom = orv::FourPoint<Frame>::fit(top + 2 * (static_cast<double>(y) - top));
}

void Frame::SetTopMid(Number x, Number y) {
    top = y;
    right = orv::FourPoint<Frame>::fit(left + 2 * (static_cast<double>(x) - left));
}

void Frame::SetRightMid(Number x, Number y) {
    right = x;
    bottom = orv::FourPoint<Frame>::fit(top + 2 * (static_cast<double>(y) - top));
}

void Frame::SetBottomMid(Number x, Number y) {
    bottom = y;
    right = orv::FourPoint<Frame>::fit(left + 2 * (static_cast<double>(x) - left));
}

void Frame::SetCentre(Number x, Number y) {
    orv::putAt(*this, orv::place::Centre, Point(x, y), 0);
}

void Frame::Rotate(const Point& c, double a) {
    orv::rotate(*this, c, a);
}

void Frame::Mirror(const Point& a, Point b) {
    orv::mirror(*this, a, b);
}

void Frame::Move(const Point& from, const Point& to) {
    if (orv::isFinite(from) && orv::isFinite(to))
        orv::moveAnchor(*this, left + (static_cast<double>(to.x) - from.x),
                        top + (static_cast<double>(to.y) - from.y));
}

void Frame::Serialize(CArchive& ar) {
    if (ar.IsStoring()) {
        ar << left << top << right << bottom << angle;
        return;
    }
    Frame loaded;
    ar >> loaded.left >> loaded.top >> loaded.right >> loaded.bottom >> loaded.angle;
    *this = loaded;
}
