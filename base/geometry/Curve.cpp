#include <base/geometry/Curve.h>

#include <base/geometry/AngleFunctions.h>
#include <base/geometry/Math.h>

#include <algorithm>
#include <cmath>

namespace vex {

namespace {

constexpr double kDefaultStep = 1.0;
constexpr double kSmallestStep = 0.01;

}  // namespace

void Curve::Set(const Point& centre, double radius, double startAngle, double endAngle) {
    centre_ = centre;
    radius_ = radius;
    if (startAngle == 0.0 && endAngle == 360.0) {
        startAngle_ = startAngle;
        endAngle_ = endAngle;
    } else {
        startAngle_ = TrimAngle(startAngle);
        endAngle_ = TrimAngle(endAngle);
    }
}

bool Curve::AnglesEqual() const {
    return std::fabs(startAngle_ - endAngle_) <= std::fabs(startAngle_ * endAngle_ * EPSILON);
}

double Curve::SectorAngle() const {
    // fmod would turn the full circle's sweep of 360 into 0.
    if (IsFullCircle()) return 360.0;
    if (AnglesEqual()) return 0.0;
    double sector = radius_ < 0.0 ? std::fmod(startAngle_ - endAngle_, 360.0)
                                  : std::fmod(endAngle_ - startAngle_, 360.0);
    if (sector < 0.0) sector += 360.0;
    return sector;
}

bool Curve::AngleInCurve(double bearing) const {
    if (IsFullCircle()) return true;
    if (AnglesEqual()) return false;
    const double b = TrimAngle(bearing);
    const double s = startAngle_;
    const double e = endAngle_;
    if (radius_ >= 0.0) {
        // An arc with end < start passes north.
        return s <= e ? (b >= s && b <= e) : (b >= s || b <= e);
    }
    return e <= s ? (b >= e && b <= s) : (b <= s || b >= e);
}

Point Curve::AngleToPoint(double bearing) const {
    const double r = std::fabs(radius_);
    const double a = bearing * D_TO_R;
    return Point(centre_.x + r * std::sin(a), centre_.y + r * std::cos(a), centre_.z);
}

double Curve::Bow() const {
    return SectorAngle() * D_TO_R * std::fabs(radius_);
}

bool Curve::PointInSegment(const Point& p) const {
    double bearing = 0.0;
    double dist = 0.0;
    XYToPolar(p.x - centre_.x, p.y - centre_.y, bearing, dist);
    return AngleInCurve(bearing);
}

Point Curve::PointInCurveRatio(double ratio) const {
    return AngleToPoint(startAngle_ + Direction() * ratio * SectorAngle());
}

Extents3D Curve::GetExtents() const {
    Extents3D box;
    box.Grow(AngleToPoint(startAngle_));
    box.Grow(AngleToPoint(endAngle_));
    // The compass points are placed exactly rather than through sin/cos.
    const double r = std::fabs(radius_);
    const Point compass[4] = {{0.0, r}, {r, 0.0}, {0.0, -r}, {-r, 0.0}};
    for (int i = 0; i < 4; ++i) {
        if (AngleInCurve(90.0 * i)) box.Grow(centre_ + compass[i]);
    }
    return box;
}

std::vector<Point> Curve::GetAsPoints(double maxStep) const {
    double step = maxStep > 0.0 && std::isfinite(maxStep) ? maxStep : kDefaultStep;
    if (step < kSmallestStep) step = kSmallestStep;
    const double sector = SectorAngle();
    // Also catches a NaN sector, which must not reach the integer conversion.
    if (!(sector > 0.0)) return {AngleToPoint(startAngle_)};

    const int segments = std::max(1, static_cast<int>(std::ceil(sector / step)));
    std::vector<Point> points;
    points.reserve(static_cast<std::size_t>(segments) + 1);
    for (int i = 0; i < segments; ++i) {
        points.push_back(AngleToPoint(startAngle_ + Direction() * sector * i / segments));
    }
    // The last point is the end itself, so consecutive arcs join exactly.
    points.push_back(AngleToPoint(endAngle_));
    return points;
}

}  // namespace vex
