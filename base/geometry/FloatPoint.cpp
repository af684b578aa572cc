#include <base/geometry/FloatPoint.h>

namespace vex {

// The measurements widen to Point, which holds every float exactly.

void FloatPoint::Rotate(double angle, const FloatPoint& centre) {
    Point p(*this);
    p.Rotate(angle, Point(centre));
    *this = FloatPoint(p);
}

double FloatPoint::Dist2D(const FloatPoint& other, bool squared) const {
    return Point(*this).Dist2D(Point(other), squared);
}

double FloatPoint::Dist3D(const FloatPoint& other, bool squared) const {
    return Point(*this).Dist3D(Point(other), squared);
}

double FloatPoint::Azimuth(const FloatPoint& to) const {
    return Point(*this).Azimuth(Point(to));
}

double FloatPoint::Elevation(const FloatPoint& to) const {
    return Point(*this).Elevation(Point(to));
}

CString FloatPoint::ToString() const {
    return Point(*this).ToString();
}

}  // namespace vex
