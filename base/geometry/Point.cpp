#include <base/geometry/Point.h>

#include <base/geometry/FloatPoint.h>
#include <base/geometry/Math.h>

#include <cmath>

namespace vex {

namespace {
// Radians to degrees with π from its 16-digit form, so that atan2 results
// of exactly ±π map to exactly ±180 (D_TO_R would give 180.000000000003).
constexpr double kDegreesPerRadian = 180.0 / 3.141592653589793;
}  // namespace

Point::Point(const FloatPoint& p) : x(p.x), y(p.y), z(p.z) {}

void Point::Rotate(double angle, const Point& centre) {
    if (angle == 0.0) return;
    const double a = angle * D_TO_R;
    const double c = std::cos(a);
    const double s = std::sin(a);
    const double dx = x - centre.x;
    const double dy = y - centre.y;
    x = centre.x + dx * c + dy * s;
    y = centre.y + dy * c - dx * s;
}

double Point::Dist2D(const Point& other, bool squared) const {
    const double d2 = MATH::sqr(other.x - x) + MATH::sqr(other.y - y);
    return squared ? d2 : std::sqrt(d2);
}

double Point::Dist3D(const Point& other, bool squared) const {
    const double d2 = MATH::sqr(other.x - x) + MATH::sqr(other.y - y) + MATH::sqr(other.z - z);
    return squared ? d2 : std::sqrt(d2);
}

double Point::Azimuth(const Point& to) const {
    double dx = to.x - x;
    // -0.0 (from -0.0 - 0.0) would make a due-south bearing -180 instead of 180.
    if (dx == 0.0) dx = 0.0;
    return std::atan2(dx, to.y - y) * kDegreesPerRadian;
}

double Point::Elevation(const Point& to) const {
    return std::atan2(to.z - z, Dist2D(to)) * kDegreesPerRadian;
}

CString Point::ToString() const {
    CString text;
    text.Format(u"point: %f, %f, %f", x, y, z);
    return text;
}

}  // namespace vex
