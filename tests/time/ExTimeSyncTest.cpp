// The fitting, driven pass by pass on a simulated clock: no thread, no waits.
#include <base/time/ExTime.h>
#include <base/time/ExTimeSync.h>

#include "SimulatedClock.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>

namespace vex {
namespace {

using test::ClockGuard;
using test::SimulatedClock;

constexpr double kStart = 1795350896000.0;  // 2026-11-22 12:34:56 UTC, ms
constexpr double kCounterStart = 3.6e6;     // the counter an hour after boot, ms

// True time drives both simulated clocks: the counter runs fast by drift
// (1e-6 = 1 ppm), the system clock reads true time plus an error.
class Scenario {
  public:
    explicit Scenario(double drift) : clock_(10'000'000), guard_(&clock_), drift_(drift) {
        Set(kStart);
        CExTime::GetCurTime();  // takes the base
    }
    void Set(double trueTime, double systemError = 0.0) {
        clock_.SetCounterMs(kCounterStart + (trueTime - kStart) * (1.0 + drift_));
        clock_.SetSystemMs(trueTime + systemError);
    }
    // The rate of synchronised time against counter time, over a span long
    // enough that the 0.24 us resolution of times near 2026 does not show.
    static double Slope() {
        const double k = CExTime::GetCurSystemTime();
        return (CExTime::GetExTime(k + 1e6) - CExTime::GetExTime(k)) / 1e6;
    }
    SimulatedClock& Clock() { return clock_; }

  private:
    SimulatedClock clock_;
    ClockGuard guard_;
    double drift_;
};

// Times near 2026 resolve to 0.24 us as doubles; the tolerances allow for it.
TEST(CExTimeSync, SamplesOfAnExactClockGiveItsLine) {
    Scenario scenario(50e-6);
    detail::TimeSyncDriver driver;
    scenario.Set(kStart + 100.0);
    EXPECT_TRUE(driver.RunPass());  // one sample: nothing fitted yet
    EXPECT_NEAR(CExTime::GetCurTime() - kStart, 100.005, 1e-3);
    scenario.Set(kStart + 200.0);
    EXPECT_TRUE(driver.RunPass());
    EXPECT_NEAR(CExTime::GetCurTime() - kStart, 200.0, 1e-3);
    EXPECT_NEAR(Scenario::Slope(), 1.0 / (1.0 + 50e-6), 1e-5);
    for (int i = 3; i <= 60; ++i) {
        scenario.Set(kStart + 100.0 * i);
        EXPECT_TRUE(driver.RunPass());
    }
    EXPECT_NEAR(Scenario::Slope(), 1.0 / (1.0 + 50e-6), 1e-7);
    EXPECT_EQ(CExTime::GetUtcUpdateAge(), 0.0);  // a fit counts as an update
    // An hour on, the line still holds.
    scenario.Set(kStart + 3600e3);
    EXPECT_NEAR(CExTime::GetCurTime() - kStart, 3600e3, 1.0);
}

TEST(CExTimeSync, SlopeIsHeldWithinTenPercent) {
    const struct {
        double drift;
        double slope;
    } cases[] = {{0.2, 0.9}, {-0.2, 1.1}, {0.05, 1.0 / 1.05}};
    for (const auto& c : cases) {
        Scenario scenario(c.drift);
        detail::TimeSyncDriver driver;
        for (int i = 1; i <= 3; ++i) {
            scenario.Set(kStart + 100.0 * i);
            EXPECT_TRUE(driver.RunPass());
        }
        EXPECT_NEAR(Scenario::Slope(), c.slope, 1e-6) << c.drift;
    }
}

TEST(CExTimeSync, AStepOfMoreThanOneSecondEndsTheFitting) {
    const struct {
        double step;  // ms the system clock jumps after 5 good samples
        bool continues;
    } cases[] = {{999.0, true}, {-999.0, true}, {1001.0, false}, {-1001.0, false}};
    for (const auto& c : cases) {
        Scenario scenario(0.0);
        detail::TimeSyncDriver driver;
        for (int i = 1; i <= 5; ++i) {
            scenario.Set(kStart + 100.0 * i);
            ASSERT_TRUE(driver.RunPass());
        }
        scenario.Set(kStart + 600.0, c.step);
        const double before = CExTime::GetCurTime();
        EXPECT_EQ(driver.RunPass(), c.continues) << c.step;
        EXPECT_EQ(driver.IsStopped(), !c.continues) << c.step;
        if (!c.continues) {
            // Nothing is fitted to the stepped clock, now or later.
            EXPECT_EQ(CExTime::GetCurTime(), before);
            scenario.Set(kStart + 700.0);
            EXPECT_FALSE(driver.RunPass());
            EXPECT_NEAR(CExTime::GetCurTime() - kStart, 700.0, 1e-3);
        }
    }
}

TEST(CExTimeSync, AnExternalSourceTakesOverForGood) {
    Scenario scenario(50e-6);
    detail::TimeSyncDriver driver;
    for (int i = 1; i <= 10; ++i) {
        scenario.Set(kStart + 100.0 * i);
        ASSERT_TRUE(driver.RunPass());
    }
    // The receiver's time: 40 ms ahead of the counter mapping, no drift.
    const double p = CExTime::GetVexTime(CExTime::GetCurTime());
    CExTime::SetUtcCoeffs(p + 40.0, 1.0, p);
    EXPECT_GT(CExTime::GetLastUtcUpdate(), 0.0);
    scenario.Set(kStart + 1100.0);
    EXPECT_FALSE(driver.RunPass());
    EXPECT_FALSE(driver.IsStopped());  // ended by the hand-over, not by a step
    // 100 ms of counter (100.005 ms at 50 ppm) after p, 40 ms ahead.
    EXPECT_NEAR(CExTime::GetCurTime() - p, 140.005, 1e-3);
}

// Uniform in [-1, 1), from the generator's bits alone, so that every
// platform draws the same numbers.
double Jitter(std::mt19937_64& random) {
    return static_cast<double>(random() >> 11) * 0x1p-52 - 1.0;
}

// A counter 50 ppm fast, a system clock read with up to 1 ms of error:
// after 60 samples the fit tracks true time to within 1 ms, between the
// passes as well as at them, over ten simulated minutes.
TEST(CExTimeSync, DriftingCounterAndJitteryClockStayWithinAMillisecond) {
    Scenario scenario(50e-6);
    detail::TimeSyncDriver driver;
    std::mt19937_64 random(20260522);
    double worstEarly = 0.0;
    double worstSettled = 0.0;
    double sumSquares = 0.0;
    int settledChecks = 0;
    for (int pass = 1; pass <= 6000; ++pass) {
        const double passTime = kStart + 100.0 * pass;
        scenario.Set(passTime, Jitter(random));
        ASSERT_TRUE(driver.RunPass()) << pass;
        for (double offset : {0.0, 50.0, 99.9}) {
            scenario.Set(passTime + offset, Jitter(random));
            const double error = std::fabs(CExTime::GetCurTime() - (passTime + offset));
            if (pass < 60) {
                worstEarly = std::max(worstEarly, error);
            } else {
                worstSettled = std::max(worstSettled, error);
                sumSquares += error * error;
                ++settledChecks;
            }
        }
    }
    EXPECT_LT(worstSettled, 1.0);
    EXPECT_NEAR(Scenario::Slope(), 1.0 / (1.0 + 50e-6), 2e-5);
    RecordProperty("worstErrorFirst60Ms", std::to_string(worstEarly));
    RecordProperty("worstErrorAfter60Ms", std::to_string(worstSettled));
    RecordProperty("rmsErrorAfter60Ms", std::to_string(std::sqrt(sumSquares / settledChecks)));
    std::printf(
        "fit error: worst %.3f ms in the first 60 samples, then worst %.3f ms, rms %.3f ms\n",
        worstEarly, worstSettled, std::sqrt(sumSquares / settledChecks));
}

}  // namespace
}  // namespace vex
