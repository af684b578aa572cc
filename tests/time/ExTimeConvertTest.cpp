// Conversions that do not depend on the time zone. Expected values from
// Python's datetime and calendar modules unless said otherwise.
#include <base/time/ExTime.h>

#include <gtest/gtest.h>

#include <bit>
#include <climits>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

namespace vex {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

TEST(CExTime, FileTimesConvertToTheTenthOfAMicrosecond) {
    const struct {
        unsigned long long fileTime;
        double ms;
    } cases[] = {
        {116444736000000000ULL, 0.0},
        {0ULL, -11644473600000.0},                   // 1601-01-01
        {134398244960000000ULL, 1795350896000.0},    // 2026-11-22 12:34:56
        {134398244967891250ULL, 1795350896789.125},  // a double near 2026 resolves 0.24 us
        {116444736000000001ULL, 0.0001},
        {116444735999990000ULL, -1.0},
    };
    for (const auto& c : cases) {
        EXPECT_DOUBLE_EQ(CExTime::FileTimeToVexTime(c.fileTime), c.ms) << c.fileTime;
        EXPECT_EQ(CExTime::VexTimeToFileTime(c.ms), c.fileTime) << c.fileTime;
    }
    const double refused[] = {kNaN, kInf, -kInf, -11644473600000.5, 1e300};
    for (double t : refused)
        EXPECT_EQ(CExTime::VexTimeToFileTime(t), 0ULL) << t;

    std::mt19937_64 random(7);
    for (int i = 0; i < 10000; ++i) {
        const double t = (static_cast<double>(random() >> 11) * 0x1p-53 - 0.5) * 2e13;
        // The nearest tick, within half a tick and the rounding of t itself.
        const double tolerance = 0.5e-4 + std::fabs(t) * 0x1p-51;
        EXPECT_NEAR(CExTime::FileTimeToVexTime(CExTime::VexTimeToFileTime(t)), t, tolerance) << t;
    }
}

TEST(CExTime, CTimesAreWholeSecondsCutTowardZero) {
    const struct {
        double ms;
        std::time_t seconds;
    } cases[] = {
        {1795350896789.0, 1795350896},
        {999.9, 0},
        {-1500.0, -1},
        {kNaN, 0},
        {1e300, std::numeric_limits<std::time_t>::max()},
        {-1e300, std::numeric_limits<std::time_t>::min()},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(CExTime::ConvertToCTime(c.ms), c.seconds) << c.ms;
        EXPECT_EQ(CExTime::MsecToCTime(c.ms), c.seconds) << c.ms;
    }
    EXPECT_EQ(CExTime::ConvertCTime(1795350896), 1795350896000.0);
}

TEST(CExTime, UtcDatesConvertToSecondsAndBack) {
    const struct {
        int fields[6];
        std::time_t seconds;
    } cases[] = {
        {{2026, 11, 22, 12, 34, 56}, 1795350896},  {{1970, 1, 1, 0, 0, 1}, 1},
        {{2000, 2, 29, 0, 0, 0}, 951782400},       {{2100, 3, 1, 0, 0, 0}, 4107542400},
        {{3000, 12, 31, 23, 59, 59}, 32535215999},
    };
    for (const auto& c : cases) {
        const int* f = c.fields;
        EXPECT_EQ(CExTime::UtcDateToTime(f[0], f[1], f[2], f[3], f[4], f[5]), c.seconds);
        int back[6] = {};
        ASSERT_TRUE(CExTime::TimeToUtcDate(c.seconds, back[0], back[1], back[2], back[3], back[4],
                                           back[5]));
        for (int i = 0; i < 6; ++i)
            EXPECT_EQ(back[i], f[i]) << c.seconds;
    }
    // A day past the month's end counts on: 31 February 2001 is 3 March.
    EXPECT_EQ(CExTime::UtcDateToTime(2001, 2, 31, 0, 0, 0), 983577600);

    const int refused[][6] = {
        {1969, 12, 31, 23, 59, 59}, {3001, 1, 1, 0, 0, 0},  {2026, 0, 1, 0, 0, 0},
        {2026, 13, 1, 0, 0, 0},     {2026, 1, 0, 0, 0, 0},  {2026, 1, 32, 0, 0, 0},
        {2026, 1, 1, 24, 0, 0},     {2026, 1, 1, -1, 0, 0}, {2026, 1, 1, 0, 60, 0},
        {2026, 1, 1, 0, 0, 60},     {1970, 1, 1, 0, 0, 0}};
    for (const auto& f : refused) {
        EXPECT_EQ(CExTime::UtcDateToTime(f[0], f[1], f[2], f[3], f[4], f[5]), 0)
            << f[0] << "-" << f[1] << "-" << f[2] << " " << f[3] << ":" << f[4] << ":" << f[5];
    }

    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
    ASSERT_TRUE(CExTime::TimeToUtcDate(-1, year, month, day, hour, minute, second));
    EXPECT_EQ(year * 10000 + month * 100 + day, 19691231);
    EXPECT_EQ(hour * 10000 + minute * 100 + second, 235959);
    EXPECT_FALSE(CExTime::TimeToUtcDate(std::numeric_limits<std::time_t>::max(), year, month, day,
                                        hour, minute, second));
    EXPECT_EQ(year, 1969);  // unchanged
}

// The leap rule shows in day 60: 29 February or 1 March.
TEST(CExTime, DayOfYearGivesMonthAndDay) {
    const struct {
        int year, dayOfYear;
        bool ok;
        int month, day;
    } cases[] = {
        {2026, 1, true, 1, 1},     {2026, 31, true, 1, 31},  {2026, 32, true, 2, 1},
        {2026, 59, true, 2, 28},   {2026, 60, true, 3, 1},   {2024, 60, true, 2, 29},
        {1900, 60, true, 3, 1},    {2000, 60, true, 2, 29},  {2026, 365, true, 12, 31},
        {2024, 366, true, 12, 31}, {2026, 366, false, 0, 0}, {2026, 0, false, 0, 0},
        {2024, 367, false, 0, 0},  {2026, -5, false, 0, 0},
    };
    for (const auto& c : cases) {
        int month = 0, day = 0;
        EXPECT_EQ(CExTime::JulianDate(c.year, c.dayOfYear, month, day), c.ok) << c.dayOfYear;
        EXPECT_EQ(month, c.month) << c.year << " " << c.dayOfYear;
        EXPECT_EQ(day, c.day) << c.year << " " << c.dayOfYear;
    }
}

// Julian day numbers from Python: date.toordinal() + 1721425.
TEST(CExTime, JulianDayNumbersCountDaysAcrossYears) {
    const struct {
        int year, dayOfYear;
        long julian;
    } cases[] = {
        {2000, 1, 2451545},   {1970, 1, 2440588}, {1858, 321, 2400001},  // MJD 0's day
        {2026, 326, 2461367}, {1, 1, 1721426},    {2024, 366, 2460676},
        {0, 60, 1721119},     {-4713, 329, 1},  // 4714 BC, 25 November
    };
    for (const auto& c : cases) {
        EXPECT_EQ(CExTime::ConvertToJulian(c.dayOfYear, c.year), c.julian) << c.year;
        int dayOfYear = 0, year = 0;
        ASSERT_TRUE(CExTime::ConvertFromJulian(c.julian, dayOfYear, year));
        EXPECT_EQ(year, c.year) << c.julian;
        EXPECT_EQ(dayOfYear, c.dayOfYear) << c.julian;
    }
    // Days past the year's end carry on into the next.
    EXPECT_EQ(CExTime::ConvertToJulian(367, 2024), 2460677);
    EXPECT_EQ(CExTime::ConvertToJulian(1, 2000001), 0);
    // A day count far out of range is counted, not overflowed.
    EXPECT_EQ(CExTime::ConvertToJulian(INT_MIN, 2000), 2451544L + INT_MIN);
    EXPECT_DOUBLE_EQ(CExTime::ConvertToJulianFrac(1.5, 2000), 2451545.5);
    EXPECT_DOUBLE_EQ(CExTime::ConvertToJulianFrac(326.25, 2026), 2461367.25);
    EXPECT_EQ(CExTime::ConvertToJulianFrac(kNaN, 2026), 0.0);
}

TEST(CExTime, TimeStampStringsHoldTheExactBits) {
    // Bit patterns from Python: struct.pack('>d', value).hex().upper().
    const struct {
        double t;
        const char* text;
    } cases[] = {
        {1.5e12, "<0x4275D3EF79800000>"}, {1795350896789.0, "<0x427A20340A095000>"},
        {0.0, "<0x0000000000000000>"},    {-0.0, "<0x8000000000000000>"},
        {kInf, "<0x7FF0000000000000>"},   {-kInf, "<0xFFF0000000000000>"},
        {5e-324, "<0x0000000000000001>"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(CExTime::GetTimeStampString(c.t), CStringA(c.text));
        EXPECT_EQ(std::bit_cast<std::uint64_t>(CExTime::TimeStampStringToTime(c.text)),
                  std::bit_cast<std::uint64_t>(c.t))
            << c.text;
    }
    // Every pattern, NaNs with their payloads included, comes back as it was.
    std::mt19937_64 random(42);
    for (int i = 0; i < 100000; ++i) {
        std::uint64_t bits = random();
        if (i % 4 == 0) bits |= 0x7FF0000000000000ULL;  // many NaNs and infinities
        const double t = std::bit_cast<double>(bits);
        const CStringA text = CExTime::GetTimeStampString(t);
        ASSERT_EQ(std::bit_cast<std::uint64_t>(CExTime::TimeStampStringToTime(text.GetString())),
                  bits)
            << text.GetString();
    }
    const char* malformed[] = {"",       "0x4275D3EF79800000",  "<4275D3EF79800000>", "<0x>",
                               "<0xZZ>", "[0x4275D3EF79800000]"};
    for (const char* text : malformed)
        EXPECT_EQ(CExTime::TimeStampStringToTime(text), 0.0) << text;
    // The field is up to 16 digits; shorter ones are read as they stand.
    EXPECT_EQ(std::bit_cast<std::uint64_t>(CExTime::TimeStampStringToTime("<0x1F>")), 0x1FULL);
}

}  // namespace
}  // namespace vex
