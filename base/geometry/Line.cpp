#include <base/geometry/Line.h>

#include <base/geometry/AngleFunctions.h>

#include <algorithm>

namespace vex {

namespace {

// The coordinate `u` of the line through (u1, v1) and (u2, v2) at v. The
// caller has checked v1 != v2.
double Interpolate(double u1, double v1, double u2, double v2, double v) {
    return u1 + (v - v1) * (u2 - u1) / (v2 - v1);
}

bool Within(double v, double a, double b) {
    return v >= std::min(a, b) && v <= std::max(a, b);
}

}  // namespace

double Line::Length(bool with3D) const {
    return with3D ? start.Dist3D(end) : start.Dist2D(end);
}

Point Line::GetCenter() const {
    return Point((start.x + end.x) / 2, (start.y + end.y) / 2, (start.z + end.z) / 2);
}

Extents3D Line::Extents() const {
    Extents3D box;
    box.Set(std::min(start.x, end.x), std::min(start.y, end.y), std::max(start.x, end.x),
            std::max(start.y, end.y));
    return box;
}

Line Line::Offset(double d) const {
    double bearing = 0.0;
    double length = 0.0;
    XYToPolar(end.x - start.x, end.y - start.y, bearing, length);
    Point shift;
    PolarToXY(bearing + 90.0, d, shift);
    return Line(start + shift, end + shift);
}

bool Line::GetLineX(double y, double& x, bool& inside) const {
    if (start.y == end.y) return false;
    x = Interpolate(start.x, start.y, end.x, end.y, y);
    inside = Within(y, start.y, end.y);
    return true;
}

bool Line::GetLineY(double x, double& y, bool& inside) const {
    if (start.x == end.x) return false;
    y = Interpolate(start.y, start.x, end.y, end.x, x);
    inside = Within(x, start.x, end.x);
    return true;
}

}  // namespace vex
