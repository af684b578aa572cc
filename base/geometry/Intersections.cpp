#include <base/geometry/Intersections.h>

#include <base/geometry/Math.h>

#include <algorithm>
#include <cmath>

namespace vex {

namespace {

// Tolerances of the line-line crossing.
constexpr double kLineTolerance = 1e-7;
constexpr double kSteepSlope = 1e10;

// Relative tolerance of tangency and of arc ends, against the scale of the
// coordinates involved.
constexpr double kRelativeTolerance = 1e-12;

bool OnSegment(const Line& l, double x, double y) {
    return (l.start.x - x) * (l.end.x - x) < kLineTolerance &&
           (l.start.y - y) * (l.end.y - y) < kLineTolerance;
}

double Slope(const Line& l) {
    return (l.end.y - l.start.y) / (l.end.x - l.start.x);
}

double Scale(const Curve& c) {
    const Point& centre = c.GetCentre();
    return std::max({1.0, std::fabs(c.GetRadius()), std::fabs(centre.x), std::fabs(centre.y)});
}

// True when p, a point of the arc's circle, lies on its sector or within
// the tolerance of one of its ends.
bool OnArc(const Curve& c, const Point& p) {
    if (c.PointInSegment(p)) return true;
    const double tolerance = kRelativeTolerance * Scale(c);
    return p.Dist2D(c.AngleToPoint(c.GetStartAngle())) <= tolerance ||
           p.Dist2D(c.AngleToPoint(c.GetEndAngle())) <= tolerance;
}

// The construction of IntersectP3: on success x, y and the fraction
// a / d of the foot along p1 -> p2.
bool CircleCircle(const Point& p1, const Point& p2, double r1, double r2, bool otherSide, double& x,
                  double& y, double& along) {
    const double dx = p2.x - p1.x;
    const double dy = p2.y - p1.y;
    const double d = std::sqrt(dx * dx + dy * dy);
    if (d == 0.0 || d > r1 + r2 || std::fabs(r1 - r2) > d) return false;
    const double a = (d * d + r1 * r1 - r2 * r2) / (2.0 * d);
    if (std::fabs(a) > r1) return false;
    double h = std::sqrt(r1 * r1 - a * a);
    if (otherSide) h = -h;
    const double ux = dx / d;
    const double uy = dy / d;
    x = p1.x + a * ux - h * uy;
    y = p1.y + a * uy + h * ux;
    along = a / d;
    return true;
}

Line PerpendicularBisector(const Point& p, const Point& q) {
    const Point middle((p.x + q.x) / 2, (p.y + q.y) / 2);
    const double dx = q.x - p.x;
    const double dy = q.y - p.y;
    return Line(middle, Point(middle.x - dy, middle.y + dx));
}

}  // namespace

bool Intersect(const Line& a, const Line& b, Point& out, long& where) {
    const bool aVertical = std::fabs(a.start.x - a.end.x) < kLineTolerance;
    const bool bVertical = std::fabs(b.start.x - b.end.x) < kLineTolerance;
    double x = 0.0;
    double y = 0.0;
    if (aVertical && bVertical) return false;
    if (bVertical) {
        x = b.start.x;
        y = a.start.y + (x - a.start.x) * Slope(a);
    } else if (aVertical) {
        x = a.start.x;
        y = b.start.y + (x - b.start.x) * Slope(b);
    } else {
        const double ma = Slope(a);
        const double mb = Slope(b);
        if (std::fabs(ma - mb) < kLineTolerance) return false;
        const bool aSteep = std::fabs(ma) > kSteepSlope;
        const bool bSteep = std::fabs(mb) > kSteepSlope;
        if (aSteep && bSteep) return false;
        if (aSteep) {
            x = a.start.x;
            y = b.start.y + (x - b.start.x) * mb;
        } else if (bSteep) {
            x = b.start.x;
            y = a.start.y + (x - a.start.x) * ma;
        } else {
            const double ca = a.start.y - a.start.x * ma;
            const double cb = b.start.y - b.start.x * mb;
            x = (cb - ca) / (ma - mb);
            y = x * ma + ca;
        }
    }
    out.x = x;
    out.y = y;
    where = (OnSegment(a, x, y) ? 1 : 0) + (OnSegment(b, x, y) ? 2 : 0);
    return true;
}

long Intersect(const Line& line, const Curve& curve, Point out[2], long where[2]) {
    if (out == nullptr || where == nullptr) return 0;
    const Point& s = line.start;
    const double length = std::hypot(line.end.x - s.x, line.end.y - s.y);
    if (!(length > 0.0)) return 0;
    const double ux = (line.end.x - s.x) / length;
    const double uy = (line.end.y - s.y) / length;

    // The foot of the perpendicular from the centre lies at `foot` along the
    // line, at signed distance `offset` from the centre.
    const Point& c = curve.GetCentre();
    const double radius = std::fabs(curve.GetRadius());
    const double foot = (c.x - s.x) * ux + (c.y - s.y) * uy;
    const double offset = (c.x - s.x) * uy - (c.y - s.y) * ux;
    // A line within the tolerance of touching touches: rounding would
    // otherwise split the one point into two some way apart, or lose it.
    const double gap = std::fabs(offset) - radius;
    double halfChord = 0.0;
    if (std::fabs(gap) > kRelativeTolerance * Scale(curve)) {
        if (gap > 0.0) return 0;
        halfChord = std::sqrt(radius * radius - offset * offset);
    }

    const double along[2] = {foot - halfChord, foot + halfChord};
    const int candidates = halfChord > 0.0 ? 2 : 1;
    long found = 0;
    for (int i = 0; i < candidates; ++i) {
        const Point p(s.x + along[i] * ux, s.y + along[i] * uy, c.z);
        if (!OnArc(curve, p)) continue;
        out[found] = p;
        where[found] = 2 + (OnSegment(line, p.x, p.y) ? 1 : 0);
        ++found;
    }
    return found;
}

long Intersect(const Curve& a, const Curve& b, Point out[2]) {
    if (out == nullptr) return 0;
    const Point& c1 = a.GetCentre();
    const Point& c2 = b.GetCentre();
    const double r1 = std::fabs(a.GetRadius());
    const double r2 = std::fabs(b.GetRadius());
    const double dx = c2.x - c1.x;
    const double dy = c2.y - c1.y;
    const double d = std::hypot(dx, dy);
    if (!(d > 0.0)) return 0;
    const double tolerance = kRelativeTolerance * std::max(Scale(a), Scale(b));
    const double outerGap = d - (r1 + r2);
    const double innerGap = std::fabs(r1 - r2) - d;
    if (outerGap > tolerance || innerGap > tolerance) return 0;

    // As in IntersectP3, but circles within the tolerance of touching meet
    // in exactly one point, not in none or two some way apart.
    const bool touching = std::fabs(outerGap) <= tolerance || std::fabs(innerGap) <= tolerance;
    const double along = (d * d + r1 * r1 - r2 * r2) / (2.0 * d);
    const double h2 = r1 * r1 - along * along;
    const double h = !touching && h2 > 0.0 ? std::sqrt(h2) : 0.0;
    const double ux = dx / d;
    const double uy = dy / d;
    const double bx = c1.x + along * ux;
    const double by = c1.y + along * uy;
    const Point candidates[2] = {Point(bx - h * uy, by + h * ux, c1.z),
                                 Point(bx + h * uy, by - h * ux, c1.z)};
    const int count = h > 0.0 ? 2 : 1;
    long found = 0;
    for (int i = 0; i < count; ++i) {
        if (OnArc(a, candidates[i]) && OnArc(b, candidates[i])) out[found++] = candidates[i];
    }
    return found;
}

bool IntersectP3(const Point& p1, const Point& p2, double r1, double r2, Point& out,
                 bool otherSide) {
    double x = 0.0, y = 0.0, along = 0.0;
    if (!CircleCircle(p1, p2, r1, r2, otherSide, x, y, along)) return false;
    out.x = x;
    out.y = y;
    return true;
}

bool IntersectP3Z(const Point& p1, const Point& p2, double r1, double r2, Point& out,
                  bool otherSide) {
    double x = 0.0, y = 0.0, along = 0.0;
    if (!CircleCircle(p1, p2, r1, r2, otherSide, x, y, along)) return false;
    out.x = x;
    out.y = y;
    out.z = p1.z + (p2.z - p1.z) * along;
    return true;
}

bool CentreCircleFrom3P(const Point& p1, const Point& p2, const Point& p3, Point& centre) {
    if ((p1.x == p2.x && p1.y == p2.y) || (p2.x == p3.x && p2.y == p3.y) ||
        (p1.x == p3.x && p1.y == p3.y)) {
        return false;
    }
    Point crossing;
    long where = 0;
    if (!Intersect(PerpendicularBisector(p1, p2), PerpendicularBisector(p2, p3), crossing, where)) {
        return false;
    }
    centre.x = crossing.x;
    centre.y = crossing.y;
    return true;
}

}  // namespace vex
