// The synchronisation worker as a thread, on the real clocks or a simulated
// one. The waits poll for the worker's effect with a generous limit; none
// lasts more than a few tenths of a second when things work.
#include <base/time/ExTime.h>
#include <base/time/ExTimeSync.h>

#include "SimulatedClock.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cmath>
#include <functional>
#include <thread>
#include <vector>

namespace vex {
namespace {

using namespace std::chrono_literals;
using test::ClockGuard;
using test::SimulatedClock;

// Polls condition every 10 ms for up to limit; true when it came true.
bool WaitFor(const std::function<bool()>& condition, std::chrono::milliseconds limit = 5s) {
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) return false;
        std::this_thread::sleep_for(10ms);
    }
    return true;
}

bool Fitted() {
    return CExTime::GetVexTime(1e12) != 1e12;
}

TEST(CExTimeSyncThread, WorkerFitsTheSystemClockUntilAnExternalSourceTakesOver) {
    ClockGuard guard(nullptr);
    CExTime clock;  // the first construction starts the worker
    CExTimeSync* sync = CExTimeSync::GetExTimeSync();
    EXPECT_TRUE(sync->IsSyncRunning());
    ASSERT_TRUE(WaitFor(Fitted));
    // Two readings of two clocks on a busy machine: a loose bound.
    EXPECT_NEAR(CExTime::GetCurTime(), CExTime::GetRawUnsyncedWindowsTime(), 50.0);

    // The receiver: 3 ms later than the fit, at an unsynchronised time p.
    const double now = CExTime::GetCurTime();
    const double p = CExTime::GetVexTime(now);
    CExTime::SetUtcCoeffs(now + 3.0, 1.0, p);
    EXPECT_TRUE(WaitFor([sync] { return !sync->IsSyncRunning(); }));
    const double k = p - CExTime::GetWin1970BaseTime();  // the counter at p
    EXPECT_NEAR(CExTime::GetExTime(k + 10.0) - now, 13.0, 1e-3);
    // A worker that ended is not started again.
    EXPECT_TRUE(sync->StartSync());
    EXPECT_FALSE(sync->IsSyncRunning());
}

TEST(CExTimeSyncThread, WorkerEndsItselfWhenTheSystemClockIsStepped) {
    SimulatedClock simulated(1000);
    ClockGuard guard(&simulated);
    simulated.SetCounterTicks(5000);
    simulated.SetSystemMs(1.7e12);
    CExTime::GetCurTime();
    simulated.SetSystemMs(1.7e12 + 5000.0);  // someone set the clock 5 s on
    CExTime clock;
    CExTimeSync* sync = CExTimeSync::GetExTimeSync();
    EXPECT_TRUE(WaitFor([sync] { return !sync->IsSyncRunning(); }));
    EXPECT_FALSE(Fitted());
}

TEST(CExTimeSyncThread, ClockIsSafeToUseFromManyThreadsWhileTheWorkerFits) {
    ClockGuard guard(nullptr);
    CExTime clock;
    std::atomic<bool> stop{false};
    std::atomic<int> bad{0};
    std::vector<std::thread> readers;
    for (int r = 0; r < 3; ++r) {
        readers.emplace_back([&stop, &bad, r] {
            while (!stop.load()) {
                const double now = CExTime::GetCurTime();
                const double raw = CExTime::GetRawUnsyncedWindowsTime();
                if (!(std::fabs(now - raw) < 1000.0)) ++bad;
                if (CExTime::TimeStampStringToTime(CExTime::GetTimeStampString(now)) != now) ++bad;
                CExTime::GetVexTime(now);
                CExTime::GetUtcUpdateAge();
                CExTime::GetWinTime(now);
                if (r == 0) CExTime::GetExTime(CExTime::GetCurSystemTime());
            }
        });
    }
    EXPECT_TRUE(WaitFor(Fitted));
    std::this_thread::sleep_for(200ms);  // a few more passes under load
    std::thread external([] {
        const double now = CExTime::GetCurTime();
        CExTime::SetUtcCoeffs(now + 0.5, 1.0, CExTime::GetVexTime(now));
    });
    external.join();
    std::this_thread::sleep_for(150ms);
    stop.store(true);
    for (std::thread& t : readers)
        t.join();
    EXPECT_EQ(bad.load(), 0);
    EXPECT_FALSE(CExTimeSync::GetExTimeSync()->IsSyncRunning());
}

TEST(CExTimeSyncThread, ResettingStopsAndJoinsARunningWorkerAtOnce) {
    CExTimeSync* sync = nullptr;
    {
        ClockGuard guard(nullptr);
        CExTime clock;
        sync = CExTimeSync::GetExTimeSync();
        ASSERT_TRUE(sync->IsSyncRunning());
        const auto start = std::chrono::steady_clock::now();
        detail::TimeSyncDriver::ResetTimeState(nullptr);
        // The worker's 100 ms wait is cut short.
        EXPECT_LT(std::chrono::steady_clock::now() - start, 1s);
        EXPECT_FALSE(sync->IsSyncRunning());
    }
    // After a reset the next CExTime starts a worker again.
    CExTime clock;
    EXPECT_TRUE(sync->IsSyncRunning());
    detail::TimeSyncDriver::ResetTimeState(nullptr);
}

// The last thing the program does: start the worker and return from main
// with it running. The singleton's destructor must stop and join it; a
// crash, a hang (the test's time-out) or a leak report fails the suite.
class ExitWithTheWorkerRunning : public ::testing::Environment {
  public:
    void TearDown() override {
        detail::TimeSyncDriver::ResetTimeState(nullptr);
        CExTime clock;
        WaitFor(Fitted);
        EXPECT_TRUE(CExTimeSync::GetExTimeSync()->IsSyncRunning());
    }
};

const auto* const exitEnvironment =
    ::testing::AddGlobalTestEnvironment(new ExitWithTheWorkerRunning);

}  // namespace
}  // namespace vex
