#include <base/survey/VesselContour.h>

#include <base/framework/CDC.h>
#include <base/geodesy/CoordinateSystem.h>
#include <base/geometry/DrawingSupport.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <vector>

namespace vex {

Point VesselContour::DrawingPosition(const VesselPoint& point) const {
    const Point& p = point.GetPoint();
    if (converted_) {
        if (viewSide_ == viewLeft || viewSide_ == viewRight) return Point(p.y, p.z);
        if (viewSide_ == viewFront || viewSide_ == viewBack) return Point(p.x, p.z);
    }
    return Point(p.x, p.y);
}

bool VesselContour::Draw(CDC& dc, const CoordinateSystem& view) const {
    if (points_.empty()) return false;
    std::vector<CPoint> pixels;
    pixels.reserve(points_.size() + 1);
    for (const VesselPoint& point : points_) {
        pixels.push_back(view.WorldToPixel(DrawingPosition(point)));
    }

    // The caller's pen, brush and other settings come back afterwards.
    const detail::DcStateGuard restore(dc);
    const COLORREF colour = static_cast<COLORREF>(static_cast<std::uint32_t>(penColor_));
    dc.SetPen(penWidth_, colour);
    dc.SetNullBrush();
    if (pixels.size() == 1) {
        dc.SetPixel(static_cast<int>(pixels[0].x), static_cast<int>(pixels[0].y), colour);
    } else {
        if (pixels.back() != pixels.front()) pixels.push_back(pixels.front());
        dc.Polyline(pixels.data(), static_cast<int>(pixels.size()));
    }

    // Marks stay visible beside a thick outline. The corners are worked out
    // wide and held to int: a point far off the view maps to the edge of the
    // pixel range, and a pen width read from a file may be anything.
    const long long reach = std::max(3, std::min(dc.GetPenWidth(), 1000) + 2);
    auto edge = [](long long v) {
        return static_cast<int>(std::clamp<long long>(v, INT_MIN, INT_MAX));
    };
    dc.SetPen(1, colour);
    for (std::size_t i = 0; i < points_.size(); ++i) {
        const long long x = pixels[i].x;
        const long long y = pixels[i].y;
        const int left = edge(x - reach), top = edge(y - reach);
        const int right = edge(x + reach + 1), bottom = edge(y + reach + 1);
        if (points_[i].GetFlagA()) dc.Rectangle(left, top, right, bottom);
        if (points_[i].GetFlagB()) dc.Ellipse(left, top, right, bottom);
    }
    return true;
}

}  // namespace vex
