// Time.h - the time subsystem in one include: the suite's time value
// (milliseconds since 1970-01-01 00:00:00 UTC) and its clock (CExTime,
// CExTimeSync), sonar time records, time-stamped points, duration texts and
// time-axis steps.
#pragma once

#include <base/time/ClockSource.h>
#include <base/time/ExTime.h>
#include <base/time/ExTimeSync.h>
#include <base/time/TimeMq.h>
#include <base/time/TimePoint.h>
#include <base/time/TimeSpan.h>
