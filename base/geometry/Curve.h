// Curve.h - Curve, a circular arc given by centre, radius and the bearings
// of its two ends.
//
// Angles are bearings in degrees clockwise from north. The sign of the
// radius gives the sweep: zero or positive runs clockwise (increasing
// bearing) from the start angle to the end angle, negative runs
// anticlockwise; lengths and points use |radius|. The angle pair (0, 360)
// is the full circle, in either direction.
//
//   vex::Curve arc(vex::Point(0, 0), 10.0, 350.0, 10.0);   // 20 degrees through north
//   arc.AngleInCurve(0.0);    // true
//   arc.Bow();                // 3.49 (arc length)
#pragma once

#include <base/Export.h>
#include <base/geometry/Extents3D.h>
#include <base/geometry/Point.h>

#include <vector>

namespace vex {

class CDC;
class CoordinateSystem;

class VEXBASE_API Curve {
  public:
    Curve() = default;
    Curve(const Point& centre, double radius, double startAngle, double endAngle) {
        Set(centre, radius, startAngle, endAngle);
    }

    // Stores the arc with both angles reduced into [0, 360) (a negative
    // remainder gets + 360): (-90, 450) is stored as (270, 90). The pair
    // (0, 360) is kept as given and means the full circle.
    void Set(const Point& centre, double radius, double startAngle, double endAngle);

    const Point& GetCentre() const { return centre_; }
    double GetRadius() const { return radius_; }
    double GetStartAngle() const { return startAngle_; }
    double GetEndAngle() const { return endAngle_; }
    bool IsFullCircle() const { return startAngle_ == 0.0 && endAngle_ == 360.0; }

    // The angle swept from start to end in the arc's direction, degrees:
    // 360 for the full circle, 0 when the two angles are equal within
    // |start x end x EPSILON|.
    double SectorAngle() const;

    // True when `bearing` (any value; reduced into [0, 360)) lies on the arc,
    // both ends included. An arc whose two angles are equal contains nothing.
    bool AngleInCurve(double bearing) const;

    // The point of the circle at `bearing`, with the centre's z.
    Point AngleToPoint(double bearing) const;

    // The arc length: SectorAngle() x D_TO_R x |radius|.
    double Bow() const;

    // True when the bearing from the centre to p lies on the arc; p's
    // distance from the centre is not looked at.
    bool PointInSegment(const Point& p) const;

    // The point at fraction `ratio` of the arc, measured along it from the
    // start angle (0 gives the start point, 1 the end point, 0.5 the middle
    // of the arc). Ratios outside [0, 1] continue round the circle.
    Point PointInCurveRatio(double ratio) const;

    // The true bounding box of the arc: its two ends and every compass
    // point (0, 90, 180, 270) it passes; z is the centre's.
    Extents3D GetExtents() const;

    // The arc as a polyline from the start point to the end point, with
    // steps of equal angle no larger than maxStep degrees. A maxStep that is
    // not a positive number means 1 degree; steps below 0.01 degrees are
    // raised to it (at most 36000 steps). An arc whose two angles are equal
    // gives its one point.
    std::vector<Point> GetAsPoints(double maxStep = 1.0) const;

    // Drawing on a view: the arc mapped through cs and drawn on dc with its
    // current pen, as an arc of the device context (a true curve, turning on
    // the screen the way the arc turns in the world). Where the view would
    // not keep it a circle or an ellipse (a rotated view with unequal
    // scales) or the circle is too large to draw whole (a close view of a
    // long arc), it is drawn as a polyline clipped to the view, with steps
    // short enough that it strays less than a quarter of a pixel. False, with
    // nothing drawn, when the arc lies off the pixel window or has no sweep.
    bool DrawCurve(const CoordinateSystem& cs, CDC& dc) const;
    // The arc and, unless it is the full circle, the two radii from its
    // ends to the centre: the outline of the sector.
    bool DrawSegment(const CoordinateSystem& cs, CDC& dc) const;

  private:
    bool AnglesEqual() const;
    // +1 for the clockwise sweep, -1 for the anticlockwise one.
    double Direction() const { return radius_ < 0.0 ? -1.0 : 1.0; }

    Point centre_;
    double radius_ = 0.0;
    double startAngle_ = 0.0;
    double endAngle_ = 0.0;
};

}  // namespace vex
