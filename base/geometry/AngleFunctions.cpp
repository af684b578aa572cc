#include <base/geometry/AngleFunctions.h>

#include <base/geometry/Math.h>

#include <cmath>

namespace vex {

namespace {

// These functions use π/180 from the 16-digit π rather than D_TO_R.
constexpr double kPi = 3.141592653589793;
constexpr double kRadiansPerDegree = kPi / 180.0;
constexpr double kDegreesPerRadian = 180.0 / kPi;

// Offsets smaller than this count as 0 when a bearing is taken.
constexpr double kZeroOffset = 1e-7;

double BearingOf(double x, double y) {
    if (std::fabs(x) < kZeroOffset) x = 0.0;
    if (std::fabs(y) < kZeroOffset) y = 0.0;
    return std::atan2(x, y) * kDegreesPerRadian;
}

}  // namespace

void PolarToXY(double bearing, double dist, double& x, double& y) {
    const double a = bearing * kRadiansPerDegree;
    x = std::sin(a) * dist;
    y = std::cos(a) * dist;
}

void PolarToXY(double bearing, double dist, Point& p) {
    PolarToXY(bearing, dist, p.x, p.y);
}

void XYToPolar(double x, double y, double& bearing, double& dist) {
    dist = std::sqrt(x * x + y * y);
    bearing = TrimAngle(BearingOf(x, y));
}

void XYToPolar(const Point& p, double& bearing, double& dist) {
    XYToPolar(p.x, p.y, bearing, dist);
}

void XYToPolarGeo(double x, double y, double& bearing) {
    bearing = BearingOf(x, y);
}

void XYToPolarGeo(const Point& p, double& bearing) {
    XYToPolarGeo(p.x, p.y, bearing);
}

void Rotation2D(double x0, double y0, double dx, double dy, double angle, double& x, double& y) {
    const double a = angle * D_TO_R;
    const double c = std::cos(a);
    const double s = std::sin(a);
    x = x0 + c * dx + s * dy;
    y = y0 + c * dy - s * dx;
}

double TrimAngle(double a) {
    double r = std::fmod(a, 360.0);
    if (r < 0.0) r += 360.0;
    // A tiny negative remainder plus 360 rounds to 360, which belongs to 0.
    if (r >= 360.0) r = 0.0;
    return r;
}

double modgeo(double a) {
    double r = std::fmod(a, 360.0);
    if (r > 180.0) {
        r -= 360.0;
    } else if (r < -180.0) {
        r += 360.0;
    }
    return r;
}

double InterpolateCircular(double lo, double hi, double a, double b, double t) {
    const double period = hi - lo;
    if (std::fabs(b - a) > period / 2.0) {
        if (a < b) {
            a += period;
        } else {
            b += period;
        }
    }
    double r = a + (b - a) * t;
    if (r < lo) {
        r += period;
    } else if (r >= hi) {
        r -= period;
    }
    return r;
}

}  // namespace vex
