// SimulatedClock.h - a clock source whose counter and system clock the test
// sets, and a guard that puts it in place of the operating system's clocks
// for the life of a test.
#pragma once

#include <base/time/ClockSource.h>
#include <base/time/ExTimeSync.h>

#include <atomic>
#include <cmath>
#include <cstdint>
#include <mutex>

namespace vex::test {

// Both clocks stand still unless the test moves them; Pause does not move
// them either, so a first reading takes the base exactly at the set values.
// Safe to read from the synchronisation worker while a test moves it.
class SimulatedClock final : public ClockSource {
  public:
    explicit SimulatedClock(std::int64_t ticksPerSecond = 1000) : frequency_(ticksPerSecond) {}

    std::int64_t CounterNow() const override { return counter_.load(); }
    std::int64_t CounterFrequency() const override { return frequency_; }
    std::uint64_t SystemFileTime() const override { return fileTime_.load(); }
    bool SetSystemTimeUtc(const platform::UtcCalendarTime& time) override {
        std::lock_guard<std::mutex> lock(setLock_);
        if (!allowSet_) return false;
        lastSet_ = time;
        ++setCount_;
        return true;
    }
    void Pause(int) override {}

    void SetCounterTicks(std::int64_t ticks) { counter_.store(ticks); }
    // Counter in ms, rounded to the nearest tick.
    void SetCounterMs(double ms) {
        counter_.store(std::llround(ms * static_cast<double>(frequency_) / 1000.0));
    }
    // System clock in ms since 1970, to the nearest 100 ns.
    void SetSystemMs(double ms) {
        fileTime_.store(static_cast<std::uint64_t>(
            std::llround(ms * 10000.0) + static_cast<long long>(platform::kFileTimeOf1970)));
    }

    void AllowSettingTheClock(bool allow) {
        std::lock_guard<std::mutex> lock(setLock_);
        allowSet_ = allow;
    }
    platform::UtcCalendarTime LastSet() const {
        std::lock_guard<std::mutex> lock(setLock_);
        return lastSet_;
    }
    int SetCount() const {
        std::lock_guard<std::mutex> lock(setLock_);
        return setCount_;
    }

  private:
    const std::int64_t frequency_;
    std::atomic<std::int64_t> counter_{0};
    std::atomic<std::uint64_t> fileTime_{platform::kFileTimeOf1970};
    mutable std::mutex setLock_;
    bool allowSet_ = true;
    platform::UtcCalendarTime lastSet_;
    int setCount_ = 0;
};

// Installs a clock source (nullptr: the system's) with fresh time state,
// and gives the system's clocks back, again with fresh state, at the end.
class ClockGuard {
  public:
    explicit ClockGuard(ClockSource* source) { detail::TimeSyncDriver::ResetTimeState(source); }
    ~ClockGuard() { detail::TimeSyncDriver::ResetTimeState(nullptr); }
    ClockGuard(const ClockGuard&) = delete;
    ClockGuard& operator=(const ClockGuard&) = delete;
};

}  // namespace vex::test
