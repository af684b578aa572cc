// TimeZoneGuard.h - sets TZ for the life of a test and restores the
// previous zone afterwards, even when the test fails.
#pragma once

#include <base/platform/TimeZone.h>

#include <optional>
#include <string>

namespace vex::test {

class TimeZoneGuard {
  public:
    explicit TimeZoneGuard(const char* zone) : saved_(platform::GetTimeZoneVariable()) {
        platform::SetTimeZoneVariable(zone);
    }
    ~TimeZoneGuard() { platform::SetTimeZoneVariable(saved_ ? saved_->c_str() : nullptr); }
    TimeZoneGuard(const TimeZoneGuard&) = delete;
    TimeZoneGuard& operator=(const TimeZoneGuard&) = delete;

  private:
    std::optional<std::string> saved_;
};

// Zones for the tests. Fixed offsets read the same in every C runtime; the
// rule zone (Central Europe: last Sunday of March 01:00 UTC to last Sunday
// of October 01:00 UTC) needs the POSIX TZ rules, which the Windows runtime
// does not read.
inline constexpr const char* kTokyo = "JST-9";
inline constexpr const char* kNewYorkStandard = "EST5";
inline constexpr const char* kCentralEurope = "CET-1CEST,M3.5.0,M10.5.0/3";

}  // namespace vex::test
