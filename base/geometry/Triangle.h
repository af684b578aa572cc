// Triangle.h - Triangle, three survey points A, B, C, as in a terrain model.
//
// Distances, angles, the height and PointInTriangle work in the plane (x
// east, y north); z is the height of each corner, used by GetExtents and by
// the clipping, which treats the triangle as a piece of a plane. Angles are
// degrees.
//
//   vex::Triangle t({0, 0, 0}, {4, 0, 0}, {0, 3, 6});
//   t.GetDistanceBC();             // 5
//   vex::Triangle pieces[2];
//   int n = t.ZMinClip(3.0, pieces);   // 1 piece: the corner of C, z >= 3
#pragma once

#include <base/Export.h>
#include <base/geometry/Extents3D.h>
#include <base/geometry/Point.h>

namespace vex {

class VEXBASE_API Triangle {
  public:
    Triangle() = default;
    Triangle(const Point& a, const Point& b, const Point& c) : a_(a), b_(b), c_(c) {}

    friend bool operator==(const Triangle&, const Triangle&) = default;

    void SetPointA(const Point& a) { a_ = a; }
    void SetPointB(const Point& b) { b_ = b; }
    void SetPointC(const Point& c) { c_ = c; }
    const Point& GetPointA() const { return a_; }
    const Point& GetPointB() const { return b_; }
    const Point& GetPointC() const { return c_; }
    void SetPoints(const Point& a, const Point& b, const Point& c);
    void GetPoints(Point& a, Point& b, Point& c) const;

    // Side lengths in the plane.
    double GetDistanceAB() const { return a_.Dist2D(b_); }
    double GetDistanceBC() const { return b_.Dist2D(c_); }
    double GetDistanceCA() const { return c_.Dist2D(a_); }

    // Interior angles in the plane, degrees in [0, 180]; 0 at a corner that
    // coincides with one of the others.
    double GetAngleA() const;
    double GetAngleB() const;
    double GetAngleC() const;

    // The height of the triangle on its base AB: the plane distance from C
    // to the line through A and B (from C to A when A and B coincide).
    double GetHeight() const;
    // The plane distance from C to the middle of the opposite side AB (the
    // median from C).
    double GetDistToMiddleOfOppositeSide() const;

    // The 3-D box of the three corners.
    Extents3D GetExtents() const;

    // Cuts the triangle at height zMin and writes the part at or above it
    // into out as 0, 1 or 2 triangles; returns their number. The pieces keep
    // the corners' heights, the cut points lie exactly at zMin, and they
    // keep the triangle's winding. A part that only touches zMin (a corner
    // or an edge) gives no piece; a triangle lying flat at zMin is kept.
    int ZMinClip(double zMin, Triangle out[2]) const;
    // As ZMinClip for the part between zMin and zMax (both included): up to
    // 3 pieces. Returns 0 when zMin > zMax.
    int ZMinMaxClip(double zMin, double zMax, Triangle out[3]) const;

    // True when p lies inside the triangle in the plane, its edges included.
    bool PointInTriangle(Point p) const;

  private:
    Point a_;
    Point b_;
    Point c_;
};

}  // namespace vex
