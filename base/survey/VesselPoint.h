// VesselPoint.h - VesselPoint, one point of a vessel contour: a position in
// vessel coordinates with two flags and a 32-bit value.
//
// Positions are in the system length unit, x to starboard, y forward, z up.
// The flags are bits 0 (flag A) and 1 (flag B) of a point line's flags
// field; the value is the line's optional fourth field. A VesselPoint is a
// plain value: a copy never shares its position with the original.
//
//   vex::VesselPoint bow(vex::Point(0.0, 55.0), false, true);
//   bow.GetPoint().y += 0.5;        // moves the point
//   bool marked = bow.GetFlagB();   // true
#pragma once

#include <base/Export.h>
#include <base/geometry/Point.h>

#include <cstdint>

namespace vex {

class VEXBASE_API VesselPoint {
  public:
    // At (0, 0, 0), both flags clear, value 0.
    VesselPoint() = default;
    // At point with the two flags and value 0.
    VesselPoint(const Point& point, bool flagA, bool flagB)
        : point_(point), flagA_(flagA), flagB_(flagB) {}

    const Point& GetPoint() const { return point_; }
    Point& GetPoint() { return point_; }

    bool GetFlagA() const { return flagA_; }
    void SetFlagA(bool flag) { flagA_ = flag; }
    bool GetFlagB() const { return flagB_; }
    void SetFlagB(bool flag) { flagB_ = flag; }
    std::uint32_t GetValue() const { return value_; }
    void SetValue(std::uint32_t value) { value_ = value; }

    // The flags field of a point line: flag A + 2 x flag B.
    int GetFlags() const { return (flagA_ ? 1 : 0) + (flagB_ ? 2 : 0); }

    friend bool operator==(const VesselPoint&, const VesselPoint&) = default;

  private:
    Point point_;
    bool flagA_ = false;
    bool flagB_ = false;
    std::uint32_t value_ = 0;
};

}  // namespace vex
