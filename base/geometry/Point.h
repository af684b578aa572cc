// Point.h - Point, a survey position in double precision.
//
// x is east, y north, z up, in the system length unit; angles are degrees,
// bearings clockwise from north. A Point is a plain value: copy it freely.
//
//   vex::Point a(100.0, 200.0), b(103.0, 204.0);
//   double d = a.Dist2D(b);          // 5
//   double bearing = a.Azimuth(b);   // 36.87 (north-east)
#pragma once

#include <base/Export.h>
#include <base/framework/CPoint.h>
#include <base/framework/CString.h>
#include <base/framework/ColorRef.h>

namespace vex {

class CDC;
class CoordinateSystem;
class FloatPoint;

// The marks of Point::DrawSymbol, each `size` pixels from the point to its
// edge: an upright cross, a diagonal cross, the outline of a square, of a
// circle, of a triangle standing on its base and of a diamond, and a disc
// filled with the pen colour.
enum PointSymbol : int {
    SYMBOL_CROSS = 0,
    SYMBOL_DIAGONAL_CROSS = 1,
    SYMBOL_SQUARE = 2,
    SYMBOL_CIRCLE = 3,
    SYMBOL_TRIANGLE = 4,
    SYMBOL_DIAMOND = 5,
    SYMBOL_DOT = 6,
};

class VEXBASE_API Point {
  public:
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    Point() = default;
    Point(double xValue, double yValue, double zValue = 0.0) : x(xValue), y(yValue), z(zValue) {}
    // A pixel point of the graphics interface taken as x, y; z = 0.
    Point(const CPoint& p) : x(static_cast<double>(p.x)), y(static_cast<double>(p.y)) {}
    // Widening from single precision loses nothing, so it is implicit.
    Point(const FloatPoint& p);

    // Exact comparison of x, y and z; use MATH::equal for tolerance.
    friend bool operator==(const Point&, const Point&) = default;

    Point& operator+=(const Point& p) {
        x += p.x;
        y += p.y;
        z += p.z;
        return *this;
    }
    Point& operator-=(const Point& p) {
        x -= p.x;
        y -= p.y;
        z -= p.z;
        return *this;
    }
    Point& operator*=(double f) {
        x *= f;
        y *= f;
        z *= f;
        return *this;
    }
    // Divides all three components; a divisor of 0 leaves the point unchanged.
    Point& operator/=(double d) {
        if (d != 0.0) {
            x /= d;
            y /= d;
            z /= d;
        }
        return *this;
    }
    friend Point operator+(Point a, const Point& b) { return a += b; }
    friend Point operator-(Point a, const Point& b) { return a -= b; }
    friend Point operator*(Point a, double f) { return a *= f; }
    friend Point operator*(double f, Point a) { return a *= f; }
    friend Point operator/(Point a, double d) { return a /= d; }

    // Turns x, y clockwise by angle degrees about centre; z is untouched.
    // An angle of 0 leaves the point exactly as it was.
    void Rotate(double angle, const Point& centre);

    // The horizontal distance to other, or its square when squared is true.
    double Dist2D(const Point& other, bool squared = false) const;
    // The distance in space to other, or its square when squared is true.
    double Dist3D(const Point& other, bool squared = false) const;

    // The bearing from this point to `to`, degrees in (-180, 180]; 0 when the
    // two coincide horizontally.
    double Azimuth(const Point& to) const;
    // The angle above the horizontal from this point to `to`, degrees in
    // [-90, 90].
    double Elevation(const Point& to) const;

    // "point: x, y, z" with six decimals each.
    CString ToString() const;

    // Drawing on a view: the point is mapped through cs (CoordinateSystem::
    // WorldToPixel) and marked on dc with its current pen. Each returns false,
    // with nothing drawn, when the mark would lie wholly off the pixel
    // window. Sizes are in pixels, from 0 to 1000; the settings of dc are left
    // as they were.
    //
    // An upright cross with arms of `size` pixels.
    bool DrawCross(const CoordinateSystem& cs, CDC& dc, int size = 3) const;
    // One of the PointSymbol marks; false for a value that is not one of them.
    bool DrawSymbol(const CoordinateSystem& cs, CDC& dc, PointSymbol symbol, int size = 3) const;
    // The one pixel of the point, in `colour` rather than the pen's.
    bool DrawPixel(const CoordinateSystem& cs, CDC& dc, COLORREF colour) const;
    // A disc of `radius` pixels filled with the pen colour.
    bool DrawDot(const CoordinateSystem& cs, CDC& dc, int radius = 2) const;
};

}  // namespace vex
