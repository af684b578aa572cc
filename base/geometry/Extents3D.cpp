#include <base/geometry/Extents3D.h>

#include <algorithm>
#include <utility>

namespace vex {

namespace {

// The three axes as (minimum, maximum) reference pairs, so the per-axis
// rules are written once.
struct Axis {
    double& lo;
    double& hi;
    bool Empty() const { return lo > hi; }
    void MakeEmpty() {
        lo = Extents3D::EMPTY_MIN;
        hi = -Extents3D::EMPTY_MIN;
    }
};

template <class F>
void ForEachAxis(Extents3D& e, F f) {
    f(Axis{e.xmin, e.xmax}, 0);
    f(Axis{e.ymin, e.ymax}, 1);
    f(Axis{e.zmin, e.zmax}, 2);
}

template <class F>
void ForEachAxisPair(Extents3D& a, const Extents3D& b, F f) {
    Extents3D copy = b;  // b may be a itself
    f(Axis{a.xmin, a.xmax}, Axis{copy.xmin, copy.xmax});
    f(Axis{a.ymin, a.ymax}, Axis{copy.ymin, copy.ymax});
    f(Axis{a.zmin, a.zmax}, Axis{copy.zmin, copy.zmax});
}

double Component(const Point& p, int axis) {
    return axis == 0 ? p.x : (axis == 1 ? p.y : p.z);
}

}  // namespace

void Extents3D::Set(double xMin, double yMin, double zMin, double xMax, double yMax, double zMax) {
    xmin = xMin;
    ymin = yMin;
    zmin = zMin;
    xmax = xMax;
    ymax = yMax;
    zmax = zMax;
}

void Extents3D::Set(double xMin, double yMin, double xMax, double yMax) {
    Set(xMin, yMin, EMPTY_MIN, xMax, yMax, -EMPTY_MIN);
}

bool Extents3D::IsValid() const {
    return xmax >= xmin && ymax >= ymin && zmax >= zmin;
}

void Extents3D::Invalidate() {
    ForEachAxis(*this, [](Axis a, int) { a.MakeEmpty(); });
}

void Extents3D::Invalidate2D() {
    ForEachAxis(*this, [](Axis a, int axis) {
        if (axis < 2) a.MakeEmpty();
    });
}

void Extents3D::Normalize() {
    ForEachAxis(*this, [](Axis a, int) {
        if (a.Empty()) std::swap(a.lo, a.hi);
    });
}

void Extents3D::Grow(double x, double y, double z) {
    const Point p(x, y, z);
    ForEachAxis(*this, [&p](Axis a, int axis) {
        const double v = Component(p, axis);
        if (a.Empty()) {
            a.lo = a.hi = v;
        } else if (v > a.hi) {
            a.hi = v;
        } else if (v < a.lo) {
            a.lo = v;
        }
    });
}

Point Extents3D::GetCenter() const {
    // Halving before adding cannot overflow, even for the empty state.
    return Point(xmin / 2 + xmax / 2, ymin / 2 + ymax / 2, zmin / 2 + zmax / 2);
}

void Extents3D::SetCenter(const Point& centre) {
    const Point shift = centre - GetCenter();
    ShiftCenter(shift);
}

void Extents3D::ShiftCenter(const Point& offset) {
    ForEachAxis(*this, [&offset](Axis a, int axis) {
        if (a.Empty()) return;
        a.lo += Component(offset, axis);
        a.hi += Component(offset, axis);
    });
}

Extents3D& Extents3D::operator|=(const Extents3D& other) {
    ForEachAxisPair(*this, other, [](Axis a, Axis b) {
        if (b.Empty()) return;
        if (a.Empty()) {
            a.lo = b.lo;
            a.hi = b.hi;
        } else {
            a.lo = std::min(a.lo, b.lo);
            a.hi = std::max(a.hi, b.hi);
        }
    });
    return *this;
}

Extents3D& Extents3D::operator&=(const Extents3D& other) {
    ForEachAxisPair(*this, other, [](Axis a, Axis b) {
        if (a.Empty() || b.Empty()) {
            a.MakeEmpty();
            return;
        }
        a.lo = std::max(a.lo, b.lo);
        a.hi = std::min(a.hi, b.hi);
        if (a.Empty()) a.MakeEmpty();
    });
    return *this;
}

}  // namespace vex
