// Extents3D - an axis-aligned box in x, y and z, grown point by point.
//
// Each axis is empty while its minimum is above its maximum; a new box has
// minimum = DBL_MAX and maximum = -DBL_MAX on all three axes, so the first
// point grown into it sets both. A box built with the 2-D Set keeps z empty,
// and IsValid asks for all three axes.
//
//   vex::Extents3D box;
//   box.Grow(1.0, 2.0, 3.0);
//   box.Grow(4.0, 0.0, 3.0);          // x 1..4, y 0..2, z 3..3
//   double width = box.GetXDiff();    // 3
#pragma once

#include <base/Export.h>
#include <base/geometry/Point.h>

#include <limits>

namespace vex {

class VEXBASE_API Extents3D {
  public:
    // The minimum of an empty axis; its maximum is the negative.
    static constexpr double EMPTY_MIN = std::numeric_limits<double>::max();

    double xmin = EMPTY_MIN;
    double ymin = EMPTY_MIN;
    double zmin = EMPTY_MIN;
    double xmax = -EMPTY_MIN;
    double ymax = -EMPTY_MIN;
    double zmax = -EMPTY_MIN;

    Extents3D() = default;
    Extents3D(double xMin, double yMin, double zMin, double xMax, double yMax, double zMax) {
        Set(xMin, yMin, zMin, xMax, yMax, zMax);
    }

    friend bool operator==(const Extents3D&, const Extents3D&) = default;

    // Stores the six values as given (no swapping; see Normalize).
    void Set(double xMin, double yMin, double zMin, double xMax, double yMax, double zMax);
    // A 2-D box: x and y as given, z empty.
    void Set(double xMin, double yMin, double xMax, double yMax);

    // True when maximum >= minimum on all three axes.
    bool IsValid() const;
    // Empties all three axes.
    void Invalidate();
    // Empties x and y; z is kept.
    void Invalidate2D();
    // Swaps minimum and maximum on each axis where minimum > maximum, so an
    // empty box becomes the whole space.
    void Normalize();

    // Widens the box to take in (x, y, z); an empty axis becomes the single value.
    void Grow(double x, double y, double z);
    void Grow(const Point& p) { Grow(p.x, p.y, p.z); }

    // The midpoint on all three axes (0 on an empty axis).
    Point GetCenter() const;
    // Moves the box so that its centre is `centre`, keeping its size; empty
    // axes stay empty.
    void SetCenter(const Point& centre);
    // Moves the box by `offset`; empty axes stay empty.
    void ShiftCenter(const Point& offset);

    // maximum - minimum; negative on an empty axis.
    double GetXDiff() const { return xmax - xmin; }
    double GetYDiff() const { return ymax - ymin; }
    double GetZDiff() const { return zmax - zmin; }

    // Union: per axis the span of both; an empty axis of one operand takes
    // the other's.
    Extents3D& operator|=(const Extents3D& other);
    // Intersection: per axis the common span; an axis where the two do not
    // overlap (or either is empty) becomes empty.
    Extents3D& operator&=(const Extents3D& other);
    friend Extents3D operator|(Extents3D a, const Extents3D& b) { return a |= b; }
    friend Extents3D operator&(Extents3D a, const Extents3D& b) { return a &= b; }
};

}  // namespace vex
