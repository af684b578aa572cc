// AngleFunctions.h - conversions between grid offsets and bearings, angle
// reduction and interpolation on a circular scale.
//
// Angles are degrees; a bearing is measured clockwise from north (+y), so
// bearing a and distance d give the offset (d sin a, d cos a).
//
//   double x, y;
//   vex::PolarToXY(90.0, 10.0, x, y);       // x = 10, y = 0 (due east)
//   double b = vex::TrimAngle(-30.0);        // 330
#pragma once

#include <base/Export.h>
#include <base/geometry/Point.h>

namespace vex {

// The offset of bearing `bearing` and distance `dist`: x = sin(bearing) dist,
// y = cos(bearing) dist.
VEXBASE_API void PolarToXY(double bearing, double dist, double& x, double& y);
// As above into p.x and p.y; p.z is untouched.
VEXBASE_API void PolarToXY(double bearing, double dist, Point& p);

// The bearing in [0, 360) and the length of the offset (x, y). A component
// whose magnitude is below 1e-7 counts as 0, so (1e-8, -1) is due south (180)
// and (0, 0) has bearing 0.
VEXBASE_API void XYToPolar(double x, double y, double& bearing, double& dist);
VEXBASE_API void XYToPolar(const Point& p, double& bearing, double& dist);

// The bearing of (x, y) as XYToPolar gives it, but in (-180, 180].
VEXBASE_API void XYToPolarGeo(double x, double y, double& bearing);
VEXBASE_API void XYToPolarGeo(const Point& p, double& bearing);

// Turns the ship-frame offset (dx, dy) by the heading `angle` (degrees,
// clockwise) and adds it to (x0, y0): x = x0 + cos(a) dx + sin(a) dy,
// y = y0 + cos(a) dy - sin(a) dx.
VEXBASE_API void Rotation2D(double x0, double y0, double dx, double dy, double angle, double& x,
                            double& y);

// a reduced into [0, 360): TrimAngle(-30) is 330, TrimAngle(720) is 0.
VEXBASE_API double TrimAngle(double a);

// a reduced into [-180, 180]: modgeo(190) is -170, modgeo(-190) is 170.
VEXBASE_API double modgeo(double a);

// The value at fraction t from a to b on a circular scale [lo, hi) of period
// hi - lo, going the short way round: InterpolateCircular(0, 360, 350, 10,
// 0.5) is 0. The result is brought back into [lo, hi) by one period.
VEXBASE_API double InterpolateCircular(double lo, double hi, double a, double b, double t);

}  // namespace vex
