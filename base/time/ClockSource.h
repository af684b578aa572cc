// ClockSource.h - where CExTime reads "now": the high-resolution counter
// and the system's UTC clock, behind an interface that a test or a replay
// can replace with a simulated clock.
//
// The default source is the operating system's clocks. A source that is
// installed must stay alive until it is replaced, and its functions must be
// safe to call from any thread (the synchronisation worker reads it too).
#pragma once

#include <base/Export.h>
#include <base/platform/Clock.h>

#include <cstdint>

namespace vex {

// The clocks CExTime and CExTimeSync read.
//
//   class FixedClock : public vex::ClockSource { ... };
//   FixedClock clock;
//   vex::detail::TimeSyncDriver::ResetTimeState(&clock);  // CExTime reads clock
class VEXBASE_API ClockSource {
  public:
    // The counter now, in ticks of CounterFrequency(); a counter of 32 bits
    // may wrap (CExTime unwraps it).
    virtual std::int64_t CounterNow() const = 0;
    // Ticks per second, above 0 and constant while the source is installed.
    virtual std::int64_t CounterFrequency() const = 0;
    // The system's UTC clock now: 100 ns units since 1601-01-01 00:00 UTC.
    virtual std::uint64_t SystemFileTime() const = 0;
    // Sets the system clock to the UTC fields; false, with the clock as it
    // was, when the process may not set it.
    virtual bool SetSystemTimeUtc(const platform::UtcCalendarTime& time) = 0;
    // Waits about ms milliseconds (a simulated clock may only advance).
    virtual void Pause(int ms) = 0;

  protected:
    // Sources are never deleted through this interface; a trivial
    // destructor also keeps the system source usable during process exit.
    ~ClockSource() = default;
};

// The operating system's clocks.
VEXBASE_API ClockSource& SystemClockSource();

}  // namespace vex
