// DrawingSupport.h - internal helpers shared by the library's drawing
// routines (the geometry types' members, vessel contours): positions on the
// view before rounding, the view's box, segment clipping and putting a
// CDC's settings back. Not installed; include it only from .cpp files.
#pragma once

#include <base/framework/CDC.h>
#include <base/framework/CPoint.h>
#include <base/geodesy/CoordinateSystem.h>
#include <base/geometry/Page.h>
#include <base/geometry/Point.h>

namespace vex::detail {

// A position on the view before rounding: its floor is the pixel that
// CoordinateSystem::WorldToPixel gives, computed with the same arithmetic.
struct ViewPos {
    double x = 0.0;
    double y = 0.0;
};

ViewPos ToViewPos(const CoordinateSystem& cs, const Point& world);

// The whole pixel of a position; call it only for positions inside a
// ViewBox, which keeps the result well inside the range of int.
CPoint ToPixel(const ViewPos& p);

// The pixel window widened by `margin` pixels on every side, in view
// positions (left < right, top < bottom whatever way the window is stored).
struct ViewBox {
    double left = 0.0;
    double top = 0.0;
    double right = 0.0;
    double bottom = 0.0;

    bool Contains(const ViewPos& p) const {
        return p.x >= left && p.x <= right && p.y >= top && p.y <= bottom;
    }
};

ViewBox MakeViewBox(const CoordinateSystem& cs, double margin);

// Cuts the segment a-b to the rectangle [xMin, xMax] x [yMin, yMax]
// (Liang-Barsky). False, with a and b unchanged, when no part lies inside.
bool ClipSegment(double& ax, double& ay, double& bx, double& by, double xMin, double yMin,
                 double xMax, double yMax);
bool ClipSegment(ViewPos& a, ViewPos& b, const ViewBox& box);

// The margin that keeps a pen's stroke whole where lines leave the view.
double PenMargin(const CDC& dc);

// Draws the polyline through world points with the current pen, clipped to
// the view; returns whether any part was drawn.
bool DrawClippedPolyline(const CoordinateSystem& cs, CDC& dc, const Point* points,
                         std::size_t count);

// Restores the pen, brush, text and arc settings of a CDC when it goes.
class DcStateGuard {
  public:
    explicit DcStateGuard(CDC& dc);
    ~DcStateGuard();
    DcStateGuard(const DcStateGuard&) = delete;
    DcStateGuard& operator=(const DcStateGuard&) = delete;

  private:
    CDC& dc_;
    bool hasPen_;
    int penWidth_;
    COLORREF penColour_;
    bool hasBrush_;
    COLORREF brushColour_;
    unsigned textAlign_;
    int arcDirection_;
};

}  // namespace vex::detail
