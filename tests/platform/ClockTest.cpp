#include <base/platform/Clock.h>
#include <base/platform/TimeZone.h>

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace vex::platform {
namespace {

TEST(Clock, CounterIsMonotonicAndMeasuresElapsedTime) {
    const std::int64_t frequency = CounterFrequency();
    ASSERT_GT(frequency, 1000);
    const std::int64_t start = CounterNow();
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    const std::int64_t end = CounterNow();
    const double elapsedMs =
        static_cast<double>(end - start) * 1000.0 / static_cast<double>(frequency);
    EXPECT_GE(elapsedMs, 19.0);
    EXPECT_LT(elapsedMs, 5000.0);
}

TEST(Clock, SystemTimeIsFileTimeOfTheStandardClock) {
    const auto now = std::chrono::system_clock::now();
    const auto unixMs =
        std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count();
    const std::uint64_t fileTime = SystemTimeAsFileTime();
    const double fileTimeMs = static_cast<double>(fileTime - kFileTimeOf1970) / 10000.0;
    EXPECT_NEAR(fileTimeMs, static_cast<double>(unixMs), 1000.0);
}

TEST(Clock, SettingTheClockRejectsInvalidFields) {
    UtcCalendarTime bad;
    bad.month = 13;
    EXPECT_FALSE(SetSystemTimeUtc(bad));
}

TEST(TimeZone, UtcBreakdownRoundTrips) {
    std::tm fields{};
    // 2026-11-22 12:34:56 UTC, as Python's calendar.timegm gives it.
    const std::time_t when = 1795350896;
    ASSERT_TRUE(UtcCalendar(when, fields));
    EXPECT_EQ(fields.tm_year, 126);
    EXPECT_EQ(fields.tm_mon, 10);
    EXPECT_EQ(fields.tm_mday, 22);
    EXPECT_EQ(fields.tm_hour, 12);
    EXPECT_EQ(fields.tm_min, 34);
    EXPECT_EQ(fields.tm_sec, 56);
    EXPECT_EQ(FromUtcCalendar(fields), when);
}

}  // namespace
}  // namespace vex::platform
