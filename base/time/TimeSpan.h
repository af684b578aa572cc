// TimeSpan.h - texts of durations and the steps of time axes.
//
// Durations are in the units the function names: TimeSpanToString takes
// milliseconds, TimeInterval seconds, MinuteInterval minutes.
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

namespace vex {

// "1 days 01:01:01" for 90,061,000 ms with seconds, "01:01" without; the
// days part only for a day or longer. Whole seconds, cut toward zero; a
// negative span is its magnitude after "-", NaN counts as 0.
VEXBASE_API CString TimeSpanToString(double ms, bool seconds);

// A round step for a time axis spanning about s seconds: 1-2-5 steps up to
// 15 s, then 30 s, 1, 2, 5, 10, 30 min, 1, 2, 4, 6, 8, 12, 24 h, then 1-2-5
// steps of days.
VEXBASE_API double TimeInterval(double s);

// Minutes rounded up to a multiple of 5 for a minute axis: 1-5 give 5,
// 6-10 give 10, ... 46-50 give 50, 51-59 give 55; 0, negative and 60 or
// more give 0.
VEXBASE_API int MinuteInterval(int minutes);

}  // namespace vex
