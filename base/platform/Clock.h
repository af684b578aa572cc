// Clock.h - the operating system's clocks, behind one small interface with
// a POSIX and a Windows implementation.
//
// The counter is monotonic and high-resolution (see CounterNow for which
// counter it is). The system clock is UTC
// in file-time units: 100 ns since 1601-01-01 00:00:00 UTC. Thread-safe.
#pragma once

#include <base/Export.h>

#include <cstdint>

namespace vex::platform {

// Calendar fields of a UTC time, as the set-clock call takes them.
struct UtcCalendarTime {
    int year = 1970;  // e.g. 2026
    int month = 1;    // 1..12
    int day = 1;      // 1..31
    int hour = 0;     // 0..23
    int minute = 0;   // 0..59
    int second = 0;   // 0..59
    int millisecond = 0;
};

// The high-resolution counter now, in ticks of CounterFrequency(). On x86-64
// POSIX systems whose kernel keeps time with an invariant time-stamp counter
// it is that counter (its rate measured once, over 20 ms, on first use);
// otherwise CLOCK_MONOTONIC in ns, or the Windows performance counter.
VEXBASE_API std::int64_t CounterNow();
// Ticks of CounterNow() per second; constant for the life of the process.
VEXBASE_API std::int64_t CounterFrequency();
// The system's UTC clock now in file-time units.
VEXBASE_API std::uint64_t SystemTimeAsFileTime();
// Sets the system clock; false, with the clock unchanged, when the process
// may not set it or the fields are invalid.
VEXBASE_API bool SetSystemTimeUtc(const UtcCalendarTime& time);

// File-time units between 1601-01-01 and 1970-01-01.
inline constexpr std::uint64_t kFileTimeOf1970 = 116444736000000000ULL;

}  // namespace vex::platform
