// FloatPoint.h - FloatPoint, a survey position in single precision.
//
// The same axes and operations as Point (x east, y north, z up; bearings in
// degrees clockwise from north) for large point sets where 7 significant
// digits suffice. Measurements are computed in double precision.
//
//   vex::FloatPoint p(10.0f, 20.0f);
//   p.Rotate(90.0, vex::FloatPoint());   // (20, -10)
//   vex::Point precise = p;              // widening is implicit
#pragma once

#include <base/Export.h>
#include <base/framework/CPoint.h>
#include <base/framework/CString.h>
#include <base/geometry/Point.h>

namespace vex {

class VEXBASE_API FloatPoint {
  public:
    float x = 0.0f;
    float y = 0.0f;
    float z = 0.0f;

    FloatPoint() = default;
    FloatPoint(float xValue, float yValue, float zValue = 0.0f) : x(xValue), y(yValue), z(zValue) {}
    // Explicit because both conversions may round to single precision.
    explicit FloatPoint(const CPoint& p) : x(static_cast<float>(p.x)), y(static_cast<float>(p.y)) {}
    explicit FloatPoint(const Point& p)
        : x(static_cast<float>(p.x)), y(static_cast<float>(p.y)), z(static_cast<float>(p.z)) {}

    friend bool operator==(const FloatPoint&, const FloatPoint&) = default;

    FloatPoint& operator+=(const FloatPoint& p) {
        x += p.x;
        y += p.y;
        z += p.z;
        return *this;
    }
    FloatPoint& operator-=(const FloatPoint& p) {
        x -= p.x;
        y -= p.y;
        z -= p.z;
        return *this;
    }
    FloatPoint& operator*=(double f) {
        x = static_cast<float>(x * f);
        y = static_cast<float>(y * f);
        z = static_cast<float>(z * f);
        return *this;
    }
    // Divides all three components; a divisor of 0 leaves the point unchanged.
    FloatPoint& operator/=(double d) {
        if (d != 0.0) {
            x = static_cast<float>(x / d);
            y = static_cast<float>(y / d);
            z = static_cast<float>(z / d);
        }
        return *this;
    }
    friend FloatPoint operator+(FloatPoint a, const FloatPoint& b) { return a += b; }
    friend FloatPoint operator-(FloatPoint a, const FloatPoint& b) { return a -= b; }
    friend FloatPoint operator*(FloatPoint a, double f) { return a *= f; }
    friend FloatPoint operator/(FloatPoint a, double d) { return a /= d; }

    // As Point::Rotate, with the result rounded to single precision.
    void Rotate(double angle, const FloatPoint& centre);

    double Dist2D(const FloatPoint& other, bool squared = false) const;
    double Dist3D(const FloatPoint& other, bool squared = false) const;
    double Azimuth(const FloatPoint& to) const;
    double Elevation(const FloatPoint& to) const;

    // "point: x, y, z" with six decimals each.
    CString ToString() const;

    // The drawing members of Point, for the point widened to double.
    bool DrawCross(const CoordinateSystem& cs, CDC& dc, int size = 3) const;
    bool DrawSymbol(const CoordinateSystem& cs, CDC& dc, PointSymbol symbol, int size = 3) const;
    bool DrawPixel(const CoordinateSystem& cs, CDC& dc, COLORREF colour) const;
    bool DrawDot(const CoordinateSystem& cs, CDC& dc, int radius = 2) const;
};

}  // namespace vex
