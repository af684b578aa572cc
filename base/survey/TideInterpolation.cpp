#include <base/survey/TideInterpolation.h>

#include <cmath>

namespace vex {

bool InterpolateTide(TideFile& tide, double time, double& height) {
    double before = time;
    double beforeHeight = 0;
    // GetValueOnOrBefore answers a later pair when none is earlier: outside.
    if (!tide.GetValueOnOrBefore(before, beforeHeight) || before > time) return false;
    if (before == time) {
        height = beforeHeight;
        return true;
    }
    double after = time;
    double afterHeight = 0;
    if (!tide.GetValueAfter(after, afterHeight)) return false;
    if (!std::isfinite(before) || !std::isfinite(after)) return false;
    height = beforeHeight + (afterHeight - beforeHeight) * ((time - before) / (after - before));
    return true;
}

}  // namespace vex
