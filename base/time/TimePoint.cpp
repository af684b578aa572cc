#include <base/time/TimePoint.h>

namespace vex {

// Out of line, so that the class's virtual table lives in the library.
TimePoint::~TimePoint() = default;

}  // namespace vex
