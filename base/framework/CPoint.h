// CPoint.h - an integer point of the graphics interface (pixels: x to the
// right, y down), with the framework's field names.
#pragma once

namespace vex {

struct CPoint {
    long x = 0;
    long y = 0;

    constexpr CPoint() = default;
    constexpr CPoint(long xValue, long yValue) : x(xValue), y(yValue) {}

    constexpr void Offset(long dx, long dy) {
        x += dx;
        y += dy;
    }
    friend constexpr bool operator==(const CPoint&, const CPoint&) = default;
    constexpr CPoint operator+(const CPoint& p) const { return {x + p.x, y + p.y}; }
    constexpr CPoint operator-(const CPoint& p) const { return {x - p.x, y - p.y}; }
};

}  // namespace vex
