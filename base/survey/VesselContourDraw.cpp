#include <base/survey/VesselContour.h>

#include <base/framework/CDC.h>
#include <base/geodesy/CoordinateSystem.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <vector>

namespace vex {
namespace {

// Puts back the pen and brush a drawing routine borrowed, so that callers
// drawing several contours keep their own settings.
class DrawingStateGuard {
  public:
    explicit DrawingStateGuard(CDC& dc)
        : dc_(dc),
          hasPen_(dc.HasPen()),
          penWidth_(dc.GetPenWidth()),
          penColour_(dc.GetPenColor()),
          hasBrush_(dc.HasBrush()),
          brushColour_(dc.GetBrushColor()) {}
    ~DrawingStateGuard() {
        if (hasPen_) {
            dc_.SetPen(penWidth_, penColour_);
        } else {
            dc_.SetNullPen();
        }
        if (hasBrush_) {
            dc_.SetBrush(brushColour_);
        } else {
            dc_.SetNullBrush();
        }
    }
    DrawingStateGuard(const DrawingStateGuard&) = delete;
    DrawingStateGuard& operator=(const DrawingStateGuard&) = delete;

  private:
    CDC& dc_;
    bool hasPen_;
    int penWidth_;
    COLORREF penColour_;
    bool hasBrush_;
    COLORREF brushColour_;
};

}  // namespace

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

    const DrawingStateGuard restore(dc);
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
