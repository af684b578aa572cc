#include <base/time/ExTime.h>

#include "SimulatedClock.h"

#include <base/platform/Clock.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <limits>
#include <thread>
#include <vector>

namespace vex {
namespace {

using test::ClockGuard;
using test::SimulatedClock;

// 2026-11-22 12:34:56 UTC (Python: calendar.timegm), in ms.
constexpr double kNow = 1795350896000.0;

TEST(CExTime, FirstReadingTakesTheBaseFromTheSystemClockThenRunsOnTheCounter) {
    SimulatedClock clock(10'000'000);  // a 10 MHz counter, as Windows has
    ClockGuard guard(&clock);
    clock.SetCounterMs(123456.789);
    clock.SetSystemMs(kNow);

    EXPECT_NEAR(CExTime::GetCurTime(), kNow, 1e-6);
    EXPECT_NEAR(CExTime::GetWin1970BaseTime(), kNow - 123456.789, 1e-6);

    // The system clock no longer matters, only the counter.
    clock.SetCounterMs(123456.789 + 1500.25);
    clock.SetSystemMs(kNow + 99999.0);
    EXPECT_NEAR(CExTime::GetCurTime(), kNow + 1500.25, 1e-6);
    EXPECT_NEAR(CExTime::GetCurSystemTime(), 124957.039, 1e-6);
    EXPECT_EQ(CExTime::GetRawUnsyncedWindowsTime(), kNow + 99999.0);
    EXPECT_NEAR(CExTime::GetUtcUpdateAge(), 1500.25, 1e-6);
    std::time_t seconds = 0;
    int ms = 0;
    CExTime::GetCurTime(seconds, ms);
    EXPECT_EQ(seconds, 1795350897);
    EXPECT_EQ(ms, 500);
    EXPECT_EQ(CExTime::GetLastUtcUpdate(), 0.0);
}

// A 32-bit millisecond counter (GetTickCount style) that wraps at 2^32.
TEST(CExTime, UnwrapsAThirtyTwoBitCounter) {
    SimulatedClock clock(1000);
    ClockGuard guard(&clock);
    clock.SetCounterTicks(4294966296);  // 1000 ms before the wrap
    clock.SetSystemMs(kNow);
    ASSERT_EQ(CExTime::GetCurTime(), kNow);

    struct Step {
        double counterMs;
        double expected;  // ms after kNow
        double base;      // base afterwards, ms after kNow
    };
    const Step steps[] = {
        {4294967000.0, 704, -4294966296.0},  // before the wrap
        {1000.0, 2000, 1000},                // wrapped: the base moves up by 2^32
        {2000.0, 3000, 1000},                // no further correction
        {4294967000.0, 704, -4294966296.0},  // a late reading from before the wrap
        {3000.0, 4000, 1000},
        {0.0, 1000, 1000},  // 0 is no reading: neither unwrapped nor kept
        {3500.0, 4500, 1000},
    };
    for (const Step& s : steps) {
        EXPECT_EQ(CExTime::GetExTime(s.counterMs) - kNow, s.expected) << s.counterMs;
        EXPECT_EQ(CExTime::GetWin1970BaseTime() - kNow, s.base) << s.counterMs;
    }
}

TEST(CExTime, AnOwnBaseTimeUnwrapsEachReadingWithoutMovingTheBase) {
    SimulatedClock clock(1000);
    ClockGuard guard(&clock);
    clock.SetCounterTicks(4294966296);
    const double base = kNow - 4294966296.0;
    EXPECT_TRUE(CExTime::SetBaseTime(base));

    // No base is taken from the system clock after SetBaseTime.
    clock.SetSystemMs(0.0);
    EXPECT_EQ(CExTime::GetCurTime(), kNow);
    const double readings[][2] = {{1000, 2000}, {2000, 3000}, {4294967000.0, 704}, {5000, 6000}};
    for (const auto& r : readings) {
        EXPECT_EQ(CExTime::GetExTime(r[0]) - kNow, r[1]) << r[0];
        EXPECT_EQ(CExTime::GetWin1970BaseTime(), base);
    }
}

TEST(CExTime, ExternalCoefficientsMapCounterTimeBothWays) {
    SimulatedClock clock(1000);
    ClockGuard guard(&clock);
    clock.SetCounterTicks(50'000);
    clock.SetSystemMs(kNow);
    ASSERT_EQ(CExTime::GetCurTime(), kNow);

    // A receiver says: 250 ms ahead at kNow, and our counter runs 1e-4 fast.
    const double a0 = kNow + 250.0, a1 = 1.0 - 1e-4, p0 = kNow;
    clock.SetCounterTicks(60'000);
    EXPECT_TRUE(CExTime::SetUtcCoeffs(a0, a1, p0));
    EXPECT_EQ(CExTime::GetLastUtcUpdate(), 60'000.0);
    clock.SetCounterTicks(70'000);
    EXPECT_EQ(CExTime::GetUtcUpdateAge(), 10'000.0);
    // 20 s of counter after kNow: 250 + 20000 * (1 - 1e-4) = 20248 ms later.
    EXPECT_NEAR(CExTime::GetCurTime() - kNow, 20248.0, 1e-6);
    EXPECT_NEAR(CExTime::GetVexTime(kNow + 20248.0) - kNow, 20000.0, 1e-6);

    const double nan = std::numeric_limits<double>::quiet_NaN();
    CExTime::SetUtcCoeffs(0.0, 2.0, 5.0);  // a0 0: not synchronised, both ways
    EXPECT_EQ(CExTime::GetCurTime(), kNow + 20000.0);
    CExTime::SetUtcCoeffs(nan, 1.0, 0.0);
    EXPECT_EQ(CExTime::GetCurTime(), kNow + 20000.0);
    EXPECT_EQ(CExTime::GetVexTime(123.0), 123.0);
    CExTime::SetUtcCoeffs(1.0, 0.0, 0.0);  // a1 0 has no inverse
    EXPECT_EQ(CExTime::GetVexTime(123.0), 123.0);
}

TEST(CExTime, WinTimeIsTheThirtyTwoBitCounterOfATime) {
    SimulatedClock clock(1000);
    ClockGuard guard(&clock);
    const double base = 1.7e12;
    CExTime::SetBaseTime(base);
    const struct {
        double t;
        std::uint32_t expected;
    } cases[] = {
        {base, 0},
        {base - 1.0, 4294967295u},
        {base - 0.5, 4294967295u},
        {base + 1000.7, 1000},
        {base + 4294967296.0, 0},  // exactly 2^32 is cut to 32 bits
        {base + 4294967296.0 + 5.0, 5},
        {std::numeric_limits<double>::quiet_NaN(), 0},
    };
    for (const auto& c : cases)
        EXPECT_EQ(CExTime::GetWinTime(c.t), c.expected) << c.t - base;
}

TEST(CExTime, AdjustRtcSetsTheSystemClockToTheSynchronisedTimeWhenAllowed) {
    SimulatedClock clock(1000);
    ClockGuard guard(&clock);
    clock.SetCounterTicks(10'000);
    clock.SetSystemMs(kNow + 789.0);
    CExTime::GetCurTime();
    CExTime::SetUtcCoeffs(kNow + 789.0 + 250.0, 1.0, kNow + 789.0);  // 250 ms ahead

    ASSERT_TRUE(CExTime::AdjustRTC());
    const platform::UtcCalendarTime set = clock.LastSet();
    EXPECT_EQ(set.year, 2026);
    EXPECT_EQ(set.month, 11);
    EXPECT_EQ(set.day, 22);
    EXPECT_EQ(set.hour, 12);
    EXPECT_EQ(set.minute, 34);
    EXPECT_EQ(set.second, 57);
    EXPECT_EQ(set.millisecond, 39);

    clock.AllowSettingTheClock(false);
    EXPECT_FALSE(CExTime::AdjustRTC());
    EXPECT_EQ(clock.SetCount(), 1);
}

// Readers do not take the lock: each must see one set of coefficients or
// the other while they change, never a mixture.
TEST(CExTime, ReadersSeeWholeCoefficientSetsWhileTheyChange) {
    SimulatedClock clock(1000);
    ClockGuard guard(&clock);
    clock.SetCounterTicks(10'000);
    clock.SetSystemMs(kNow);
    ASSERT_EQ(CExTime::GetCurTime(), kNow);
    // At the counter reading kNow: 1 s later (set one) or 2 s earlier at
    // half the rate about kNow - 1 s (set two).
    const double one = kNow + 1000.0;
    const double two = (kNow - (kNow - 1000.0)) * 0.5 + kNow - 2000.0;
    std::atomic<bool> stop{false};
    std::atomic<int> mixed{0};
    std::vector<std::thread> readers;
    for (int r = 0; r < 2; ++r) {
        readers.emplace_back([&] {
            while (!stop.load()) {
                const double t = CExTime::GetCurTime();
                if (t != one && t != two && t != kNow) ++mixed;
            }
        });
    }
    for (int i = 0; i < 200000; ++i) {
        CExTime::SetUtcCoeffs(kNow + 1000.0, 1.0, kNow);
        CExTime::SetUtcCoeffs(kNow - 2000.0, 0.5, kNow - 1000.0);
    }
    stop.store(true);
    for (std::thread& t : readers)
        t.join();
    EXPECT_EQ(mixed.load(), 0);
}

// The system counter runs forward in each thread at the rate it claims,
// measured against the system clock (a calibrated counter must agree to
// far better than a tenth of a percent).
TEST(PlatformClock, CounterRunsForwardAtItsStatedRate) {
    const std::int64_t frequency = platform::CounterFrequency();
    ASSERT_GT(frequency, 0);
    EXPECT_EQ(platform::CounterFrequency(), frequency);
    std::int64_t previous = platform::CounterNow();
    for (int i = 0; i < 100000; ++i) {
        const std::int64_t now = platform::CounterNow();
        ASSERT_GE(now, previous);
        previous = now;
    }
    // The shortest of a few 100 ms spans: a pre-emption only lengthens the
    // gap between the two clocks' readings.
    double best = std::numeric_limits<double>::infinity();
    for (int attempt = 0; attempt < 3; ++attempt) {
        const std::uint64_t file0 = platform::SystemTimeAsFileTime();
        const std::int64_t counter0 = platform::CounterNow();
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        const std::int64_t counter1 = platform::CounterNow();
        const std::uint64_t file1 = platform::SystemTimeAsFileTime();
        const double counterMs =
            static_cast<double>(counter1 - counter0) * 1000.0 / static_cast<double>(frequency);
        const double systemMs = static_cast<double>(file1 - file0) / 10000.0;
        best = std::min(best, std::fabs(systemMs - counterMs) / systemMs);
    }
    EXPECT_LT(best, 1e-3);
}

}  // namespace
}  // namespace vex
