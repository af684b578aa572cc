// TideInterpolation.h - the tide height at any time inside a tide series,
// by a straight line between the stored pairs around it.
//
// TideFile itself returns only stored pairs; this is the one place that
// reads between them. Times in ms since 1970 UTC, heights as stored.
//
//   double height = 0;
//   if (vex::InterpolateTide(tide, soundingTime, height)) depth -= height;
#pragma once

#include <base/Export.h>
#include <base/survey/TideFile.h>

namespace vex {

// The height at time: the stored value at exactly that time, else the
// linear interpolation between the last pair before it and the first pair
// after it (GetValueOnOrBefore and GetValueAfter). False, with height
// unchanged, when time lies before the first or after the last stored
// time, when it is NaN, or when a neighbour's time is infinite. Moves the
// tide's current position.
VEXBASE_API bool InterpolateTide(TideFile& tide, double time, double& height);

}  // namespace vex
