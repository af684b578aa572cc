// TimePoint.h - TimePoint, a survey position with the time it was taken.
//
// The point is x east, y north, z up in the system length unit; the time is
// a time value (ms since 1970-01-01 00:00:00 UTC). A plain value: copy it.
#pragma once

#include <base/Export.h>
#include <base/geometry/Point.h>

namespace vex {

// A point of a track.
//
//   vex::TimePoint fix(512300.0, 5803100.0, 0.0, vex::CExTime::GetCurTime());
//   double age = vex::CExTime::GetCurTime() - fix.GetTime();
class VEXBASE_API TimePoint : public Point {
  public:
    TimePoint() = default;
    TimePoint(const TimePoint&) = default;
    TimePoint& operator=(const TimePoint&) = default;
    TimePoint(const Point& point, double time) : Point(point), m_time(time) {}
    TimePoint(double x, double y, double z, double time) : Point(x, y, z), m_time(time) {}
    virtual ~TimePoint();

    void SetTime(double time) { m_time = time; }
    double GetTime() const { return m_time; }

    // Equal when the positions and the times are.
    friend bool operator==(const TimePoint& a, const TimePoint& b) {
        return static_cast<const Point&>(a) == static_cast<const Point&>(b) && a.m_time == b.m_time;
    }

  private:
    double m_time = 0.0;  // ms since 1970 UTC
};

}  // namespace vex
