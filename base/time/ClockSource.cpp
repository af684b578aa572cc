#include <base/time/ClockSource.h>

#include <chrono>
#include <thread>

namespace vex {
namespace {

class OsClockSource final : public ClockSource {
  public:
    constexpr OsClockSource() = default;
    std::int64_t CounterNow() const override { return platform::CounterNow(); }
    std::int64_t CounterFrequency() const override { return platform::CounterFrequency(); }
    std::uint64_t SystemFileTime() const override { return platform::SystemTimeAsFileTime(); }
    bool SetSystemTimeUtc(const platform::UtcCalendarTime& time) override {
        return platform::SetSystemTimeUtc(time);
    }
    void Pause(int ms) override { std::this_thread::sleep_for(std::chrono::milliseconds(ms)); }
};

// Constant-initialised and never destroyed: the clock stays readable from
// other libraries' exit code.
constinit OsClockSource osClockSource;

}  // namespace

ClockSource& SystemClockSource() {
    return osClockSource;
}

}  // namespace vex
