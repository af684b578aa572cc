// TimeZone.h - the C runtime's view of the local time zone and the
// breakdown of time_t values into calendar fields, thread-safe on every
// platform (the plain C functions share one static buffer).
//
// The zone is the process's: TZ where set, else the system's. Callers that
// change TZ call RefreshTimeZone() afterwards.
#pragma once

#include <base/Export.h>

#include <ctime>
#include <optional>
#include <string>

namespace vex::platform {

// Re-reads the time-zone settings (tzset).
VEXBASE_API void RefreshTimeZone();
// The zone's standard offset in seconds west of UTC (C's timezone).
VEXBASE_API long TimeZoneOffsetSeconds();
// True when daylight saving time is in force at the given time.
VEXBASE_API bool IsDaylightSavingTime(std::time_t when);
// Local (UTC) breakdown of when; false when the value cannot be broken down.
VEXBASE_API bool LocalCalendar(std::time_t when, std::tm& out);
VEXBASE_API bool UtcCalendar(std::time_t when, std::tm& out);
// The time_t of local (UTC) calendar fields; the fields are normalised as
// mktime does. -1 when the fields cannot be represented.
VEXBASE_API std::time_t FromLocalCalendar(std::tm& fields);
VEXBASE_API std::time_t FromUtcCalendar(std::tm& fields);

// Sets the process's TZ variable (nullptr removes it) and re-reads the zone.
// Changing the environment races with other threads' local-time calls, so
// this is for start-up and tests. The Windows C runtime reads TZ only as
// "tzn[+|-]hh[:mm[:ss]][dzn]" with U.S. daylight-saving rules.
VEXBASE_API void SetTimeZoneVariable(const char* value);
// The TZ variable, or nothing when it is not set.
VEXBASE_API std::optional<std::string> GetTimeZoneVariable();

}  // namespace vex::platform
