// PolylineOffset.h - internal: one segment of profile points moved sideways
// in plan, the work of OffsetLineData::ApplyOffset (see there for the rules).
#pragma once

#include <base/survey/LineData.h>

#include <span>
#include <vector>

namespace vex::detail {

// The points of one segment moved by offset to the right of the direction
// of increasing chainage; points within tolerance of the previous kept one
// are dropped. The first returned point has segmentStart set. Points with a
// non-finite x or y are left out; a segment without plan length, or a
// non-finite offset, gives no points.
std::vector<ProfilePoint> OffsetSegment(std::span<const ProfilePoint> segment, double offset,
                                        double tolerance);

}  // namespace vex::detail
