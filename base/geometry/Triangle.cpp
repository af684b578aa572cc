#include <base/geometry/Triangle.h>

#include <cmath>

namespace vex {

namespace {

constexpr double kDegreesPerRadian = 180.0 / 3.141592653589793;

// The plane angle at corner p between the directions to q and r.
double CornerAngle(const Point& p, const Point& q, const Point& r) {
    const double ux = q.x - p.x, uy = q.y - p.y;
    const double vx = r.x - p.x, vy = r.y - p.y;
    return std::atan2(std::fabs(ux * vy - uy * vx), ux * vx + uy * vy) * kDegreesPerRadian;
}

// A convex polygon of at most five corners: a triangle cut by two levels.
struct Polygon {
    static constexpr int kCapacity = 5;
    Point v[kCapacity];
    int n = 0;
    void Add(const Point& p) {
        if (n < kCapacity) v[n++] = p;
    }
};

// The side of `level` that p is on: +1 on the kept side, -1 on the other,
// 0 on the level itself.
int Side(const Point& p, double level, bool keepAbove) {
    const double d = keepAbove ? p.z - level : level - p.z;
    return d > 0.0 ? 1 : (d < 0.0 ? -1 : 0);
}

// One pass of Sutherland-Hodgman: the part of `in` on the kept side of the
// horizontal plane z = level. Heights are linear along each edge, so the
// cut point of an edge lies on the triangle's plane; its z is set to the
// level exactly.
Polygon ClipAtLevel(const Polygon& in, double level, bool keepAbove) {
    Polygon out;
    for (int i = 0; i < in.n; ++i) {
        const Point& s = in.v[i];
        const Point& e = in.v[(i + 1) % in.n];
        const int sideS = Side(s, level, keepAbove);
        const int sideE = Side(e, level, keepAbove);
        if (sideS >= 0) out.Add(s);
        if (sideS * sideE < 0) {
            const double t = (level - s.z) / (e.z - s.z);
            out.Add(Point(s.x + t * (e.x - s.x), s.y + t * (e.y - s.y), level));
        }
    }
    return out;
}

// Splits the polygon into a fan of triangles about its first corner.
int Triangulate(const Polygon& poly, Triangle* out) {
    if (poly.n < 3) return 0;
    for (int i = 0; i + 2 < poly.n; ++i) {
        out[i] = Triangle(poly.v[0], poly.v[i + 1], poly.v[i + 2]);
    }
    return poly.n - 2;
}

// The signed area test of PointInTriangle.
double Sign(const Point& p1, const Point& p2, const Point& p3) {
    return (p1.x - p3.x) * (p2.y - p3.y) - (p2.x - p3.x) * (p1.y - p3.y);
}

}  // namespace

void Triangle::SetPoints(const Point& a, const Point& b, const Point& c) {
    a_ = a;
    b_ = b;
    c_ = c;
}

void Triangle::GetPoints(Point& a, Point& b, Point& c) const {
    a = a_;
    b = b_;
    c = c_;
}

double Triangle::GetAngleA() const {
    return CornerAngle(a_, b_, c_);
}

double Triangle::GetAngleB() const {
    return CornerAngle(b_, c_, a_);
}

double Triangle::GetAngleC() const {
    return CornerAngle(c_, a_, b_);
}

double Triangle::GetHeight() const {
    const double base = a_.Dist2D(b_);
    if (base == 0.0) return c_.Dist2D(a_);
    const double cross = (b_.x - a_.x) * (c_.y - a_.y) - (b_.y - a_.y) * (c_.x - a_.x);
    return std::fabs(cross) / base;
}

double Triangle::GetDistToMiddleOfOppositeSide() const {
    return c_.Dist2D(Point((a_.x + b_.x) / 2, (a_.y + b_.y) / 2));
}

Extents3D Triangle::GetExtents() const {
    Extents3D box;
    box.Grow(a_);
    box.Grow(b_);
    box.Grow(c_);
    return box;
}

int Triangle::ZMinClip(double zMin, Triangle out[2]) const {
    if (out == nullptr) return 0;
    Polygon poly;
    poly.Add(a_);
    poly.Add(b_);
    poly.Add(c_);
    return Triangulate(ClipAtLevel(poly, zMin, true), out);
}

int Triangle::ZMinMaxClip(double zMin, double zMax, Triangle out[3]) const {
    if (out == nullptr || zMin > zMax) return 0;
    Polygon poly;
    poly.Add(a_);
    poly.Add(b_);
    poly.Add(c_);
    return Triangulate(ClipAtLevel(ClipAtLevel(poly, zMin, true), zMax, false), out);
}

bool Triangle::PointInTriangle(Point p) const {
    const double d1 = Sign(p, a_, b_);
    const double d2 = Sign(p, b_, c_);
    const double d3 = Sign(p, c_, a_);
    const bool hasNegative = d1 < 0 || d2 < 0 || d3 < 0;
    const bool hasPositive = d1 > 0 || d2 > 0 || d3 > 0;
    return !(hasNegative && hasPositive);
}

}  // namespace vex
