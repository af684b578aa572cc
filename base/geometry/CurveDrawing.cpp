// The drawing members of Curve.
#include <base/framework/CDC.h>
#include <base/geodesy/CoordinateSystem.h>
#include <base/geometry/Curve.h>
#include <base/geometry/DrawingSupport.h>
#include <base/geometry/Math.h>

#include <algorithm>
#include <cmath>

namespace vex {
namespace {

// Renderers keep coordinates in fixed point (cairo: 24 integer bits), so a
// circle is drawn whole only while its box stays well inside that range.
constexpr double kLargestArcPixels = 1.0e6;
// Rays of the device context's arc are taken this far from the centre so
// that their integer ends still give the angle to a few hundredths of a degree.
constexpr double kRayLength = 4096.0;

// The box of the arc on the view (the box of its world extents' four
// corners, which holds it also in a rotated view) meets the view.
bool MayBeSeen(const Curve& arc, const CoordinateSystem& cs, const detail::ViewBox& view) {
    const Extents3D box = arc.GetExtents();
    const Point corners[4] = {
        {box.xmin, box.ymin}, {box.xmax, box.ymin}, {box.xmax, box.ymax}, {box.xmin, box.ymax}};
    double left = HUGE_VAL, right = -HUGE_VAL, top = HUGE_VAL, bottom = -HUGE_VAL;
    for (const Point& corner : corners) {
        const detail::ViewPos p = detail::ToViewPos(cs, corner);
        left = std::min(left, p.x);
        right = std::max(right, p.x);
        top = std::min(top, p.y);
        bottom = std::max(bottom, p.y);
    }
    return left <= view.right && right >= view.left && top <= view.bottom && bottom >= view.top;
}

bool DrawAsPolyline(const Curve& arc, const CoordinateSystem& cs, CDC& dc, double radiusPixels) {
    // The step whose chord strays a quarter pixel from the circle.
    double step = 1.0;
    if (radiusPixels > 0.25) {
        step = 2.0 * std::acos(1.0 - 0.25 / radiusPixels) / D_TO_R;
    }
    const std::vector<Point> points = arc.GetAsPoints(std::clamp(step, 0.01, 1.0));
    return detail::DrawClippedPolyline(cs, dc, points.data(), points.size());
}

// The end of a ray from pixel `centre` towards view position `towards`.
CPoint RayEnd(const CPoint& centre, const detail::ViewPos& from, const detail::ViewPos& towards) {
    const double dx = towards.x - from.x;
    const double dy = towards.y - from.y;
    const double length = std::hypot(dx, dy);
    return CPoint(centre.x + std::lround(dx / length * kRayLength),
                  centre.y + std::lround(dy / length * kRayLength));
}

}  // namespace

bool Curve::DrawCurve(const CoordinateSystem& cs, CDC& dc) const {
    const double sector = SectorAngle();
    if (!(sector > 0.0)) {
        return false;
    }
    const detail::ViewBox view = detail::MakeViewBox(cs, detail::PenMargin(dc));
    if (!MayBeSeen(*this, cs, view)) {
        return false;
    }
    const double rx = std::fabs(radius_ * cs.GetScale().x);
    const double ry = std::fabs(radius_ * cs.GetScale().y);
    const double largest = std::max(rx, ry);
    const detail::ViewPos c = detail::ToViewPos(cs, centre_);
    // A rotated view turns a circle into an ellipse the device context cannot
    // draw unless both scales are equal.
    const bool staysUpright = !cs.IsRotated() || std::fabs(rx - ry) <= 1e-9 * largest;
    const bool centreNear =
        std::fabs(c.x) < kLargestArcPixels && std::fabs(c.y) < kLargestArcPixels;
    if (!staysUpright || !centreNear || largest > kLargestArcPixels) {
        return DrawAsPolyline(*this, cs, dc, largest);
    }

    const CPoint centre = detail::ToPixel(c);
    const long radiusX = std::lround(rx);
    const long radiusY = std::lround(ry);
    if (radiusX < 1 || radiusY < 1) {
        // Smaller than a pixel: the arc is its centre's pixel.
        if (!view.Contains(c)) {
            return false;
        }
        dc.SetPixel(static_cast<int>(centre.x), static_cast<int>(centre.y), dc.GetPenColor());
        return true;
    }
    CPoint rayStart(centre.x + static_cast<long>(kRayLength), centre.y);
    CPoint rayEnd = rayStart;
    if (!IsFullCircle() && sector < 360.0) {
        rayStart = RayEnd(centre, c, detail::ToViewPos(cs, AngleToPoint(startAngle_)));
        rayEnd = RayEnd(centre, c, detail::ToViewPos(cs, AngleToPoint(endAngle_)));
        if (rayStart == rayEnd) {
            // Too short a sweep for the rays to tell apart: equal rays would
            // draw the whole circle.
            return DrawAsPolyline(*this, cs, dc, largest);
        }
    }
    // Turning clockwise in the world is clockwise on the screen unless the
    // view mirrors it (both scales of one sign).
    const bool worldClockwise = radius_ >= 0.0;
    const bool mirrored = cs.GetScale().x * cs.GetScale().y > 0.0;
    const detail::DcStateGuard keep(dc);
    dc.SetArcDirection(worldClockwise != mirrored ? AD_CLOCKWISE : AD_COUNTERCLOCKWISE);
    return dc.Arc(static_cast<int>(centre.x - radiusX), static_cast<int>(centre.y - radiusY),
                  static_cast<int>(centre.x + radiusX + 1),
                  static_cast<int>(centre.y + radiusY + 1), static_cast<int>(rayStart.x),
                  static_cast<int>(rayStart.y), static_cast<int>(rayEnd.x),
                  static_cast<int>(rayEnd.y));
}

bool Curve::DrawSegment(const CoordinateSystem& cs, CDC& dc) const {
    bool drawn = DrawCurve(cs, dc);
    if (!IsFullCircle() && SectorAngle() > 0.0 && SectorAngle() < 360.0) {
        const Point radii[3] = {AngleToPoint(startAngle_), centre_, AngleToPoint(endAngle_)};
        drawn = detail::DrawClippedPolyline(cs, dc, radii, 3) || drawn;
    }
    return drawn;
}

}  // namespace vex
