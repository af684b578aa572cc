#include <base/geometry/DrawingSupport.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace vex::detail {

ViewPos ToViewPos(const CoordinateSystem& cs, const Point& world) {
    // The same steps, in the same order, as CoordinateSystem::WorldToPixel,
    // so that an unclipped end lands on exactly the pixel the view reports.
    double dx = world.x - cs.GetWorldCenter().x;
    double dy = world.y - cs.GetWorldCenter().y;
    cs.RotateWtoP(dx, dy);
    return ViewPos{dx * cs.GetScale().x + 0.5 + cs.GetPixelCenter().x,
                   dy * cs.GetScale().y + 0.5 + cs.GetPixelCenter().y};
}

CPoint ToPixel(const ViewPos& p) {
    return CPoint(static_cast<long>(std::floor(p.x)), static_cast<long>(std::floor(p.y)));
}

ViewBox MakeViewBox(const CoordinateSystem& cs, double margin) {
    const Page& w = cs.GetPixelWindow();
    return ViewBox{std::min(w.x1, w.x2) - margin, std::min(w.y1, w.y2) - margin,
                   std::max(w.x1, w.x2) + margin, std::max(w.y1, w.y2) + margin};
}

bool ClipSegment(double& ax, double& ay, double& bx, double& by, double xMin, double yMin,
                 double xMax, double yMax) {
    const double dx = bx - ax;
    const double dy = by - ay;
    double t0 = 0.0;
    double t1 = 1.0;
    // Each edge as p * t <= q; p == 0 means the segment runs parallel to it.
    const double p[4] = {-dx, dx, -dy, dy};
    const double q[4] = {ax - xMin, xMax - ax, ay - yMin, yMax - ay};
    for (int i = 0; i < 4; ++i) {
        if (!(q[i] == q[i]) || !(p[i] == p[i])) {
            return false;  // not a number: nothing sensible to draw
        }
        if (p[i] == 0.0) {
            if (q[i] < 0.0) {
                return false;
            }
            continue;
        }
        const double t = q[i] / p[i];
        if (p[i] < 0.0) {
            t0 = std::max(t0, t);
        } else {
            t1 = std::min(t1, t);
        }
        if (t0 > t1) {
            return false;
        }
    }
    // Ends that were inside stay bit for bit as they were.
    const double x0 = t0 > 0.0 ? ax + t0 * dx : ax;
    const double y0 = t0 > 0.0 ? ay + t0 * dy : ay;
    const double x1 = t1 < 1.0 ? ax + t1 * dx : bx;
    const double y1 = t1 < 1.0 ? ay + t1 * dy : by;
    // Rounding may leave a cut end a hair outside; hold it on the edge.
    ax = std::clamp(x0, xMin, xMax);
    ay = std::clamp(y0, yMin, yMax);
    bx = std::clamp(x1, xMin, xMax);
    by = std::clamp(y1, yMin, yMax);
    return true;
}

bool ClipSegment(ViewPos& a, ViewPos& b, const ViewBox& box) {
    return ClipSegment(a.x, a.y, b.x, b.y, box.left, box.top, box.right, box.bottom);
}

double PenMargin(const CDC& dc) {
    return 2.0 + dc.GetPenWidth();
}

bool DrawClippedPolyline(const CoordinateSystem& cs, CDC& dc, const Point* points,
                         std::size_t count) {
    if (points == nullptr || count < 2) {
        return false;
    }
    const ViewBox box = MakeViewBox(cs, PenMargin(dc));
    std::vector<CPoint> run;
    bool drawn = false;
    auto flush = [&] {
        if (run.size() >= 2) {
            dc.Polyline(run.data(), static_cast<int>(run.size()));
            drawn = true;
        }
        run.clear();
    };
    ViewPos previous = ToViewPos(cs, points[0]);
    for (std::size_t i = 1; i < count; ++i) {
        const ViewPos next = ToViewPos(cs, points[i]);
        ViewPos a = previous;
        ViewPos b = next;
        if (ClipSegment(a, b, box)) {
            const CPoint start = ToPixel(a);
            // A cut start begins a new run; an uncut one continues the last.
            if (run.empty() || run.back() != start) {
                flush();
                run.push_back(start);
            }
            run.push_back(ToPixel(b));
        } else {
            flush();
        }
        previous = next;
    }
    flush();
    return drawn;
}

DcStateGuard::DcStateGuard(CDC& dc)
    : dc_(dc),
      hasPen_(dc.HasPen()),
      penWidth_(dc.GetPenWidth()),
      penColour_(dc.GetPenColor()),
      hasBrush_(dc.HasBrush()),
      brushColour_(dc.GetBrushColor()),
      textAlign_(dc.GetTextAlign()),
      arcDirection_(dc.GetArcDirection()) {}

DcStateGuard::~DcStateGuard() {
    dc_.SetPen(penWidth_, penColour_);
    if (!hasPen_) {
        dc_.SetNullPen();
    }
    dc_.SetBrush(brushColour_);
    if (!hasBrush_) {
        dc_.SetNullBrush();
    }
    dc_.SetTextAlign(textAlign_);
    dc_.SetArcDirection(arcDirection_);
}

}  // namespace vex::detail
