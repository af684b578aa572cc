// Local-time functions under fixed time zones. Expected values from
// Python's datetime with the same offsets and rules; the date and time
// forms are those of the C runtime's "C" locale, in which tests run.
#include <base/time/ExTime.h>

#include "SimulatedClock.h"
#include "TimeZoneGuard.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

namespace vex {
namespace {

using test::TimeZoneGuard;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
// 2026-11-22 12:34:56.789 UTC: 21:34:56 in Tokyo, 07:34:56 in New York.
constexpr double kNow = 1795350896789.0;

TEST(CExTimeLocal, ClockFieldsAreThoseOfTheLocalZone) {
    const struct {
        const char* zone;
        int hhmmss;
        double secondsOfDay;
        long timezoneMs;
    } cases[] = {
        {test::kTokyo, 213456, 77696.789, -32400000},
        {test::kNewYorkStandard, 73456, 27296.789, 18000000},
    };
    for (const auto& c : cases) {
        TimeZoneGuard zone(c.zone);
        EXPECT_EQ(CExTime::GetHHMMSS(kNow), c.hhmmss) << c.zone;
        double secondsOfDay = 0.0;
        EXPECT_EQ(CExTime::TimestampToDaytime(kNow, secondsOfDay), 1795350896) << c.zone;
        EXPECT_NEAR(secondsOfDay, c.secondsOfDay, 1e-9) << c.zone;
        EXPECT_EQ(CExTime::GetTimezone(), c.timezoneMs) << c.zone;
    }
    // A time with no calendar form gives -1 fields.
    double secondsOfDay = 0.0;
    EXPECT_EQ(CExTime::GetHHMMSS(kNaN), -10101);
    CExTime::TimestampToDaytime(kNaN, secondsOfDay);
    EXPECT_EQ(secondsOfDay, -3661.0);
}

TEST(CExTimeLocal, TextsShowLocalTimeInTheAskedParts) {
    TimeZoneGuard zone(test::kTokyo);
    const struct {
        bool milliseconds, date, seconds;
        const char16_t* text;
    } cases[] = {
        {false, false, true, u"21:34:56"},       {false, false, false, u"21:34"},
        {true, false, false, u"21:34:56.789"},  // milliseconds bring the seconds
        {true, false, true, u"21:34:56.789"},    {false, true, true, u"11/22/26 21:34:56"},
        {false, true, false, u"11/22/26 21:34"}, {true, true, true, u"11/22/26 21:34:56.789"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(CExTime::TimeToString(kNow, c.milliseconds, c.date, c.seconds), CString(c.text));
    }
    EXPECT_EQ(CExTime::TimeToString(kNow - 789.0 + 5.0, true), CString(u"21:34:56.005"));
    EXPECT_EQ(CExTime::TimeToStringISOFormat(kNow), CString(u"2026-11-22 21:34:56"));
    EXPECT_EQ(CExTime::TimeToStringISOFormat(kNow, true), CString(u"2026-11-22 21:34:56.789"));
    EXPECT_THROW(CExTime::TimeToString(kNaN), std::invalid_argument);
    EXPECT_TRUE(CExTime::TimeToStringISOFormat(kNaN).IsEmpty());
}

TEST(CExTimeLocal, MillisecondsGoBeforeAnAmPmSuffix) {
    const struct {
        const char16_t* formatted;
        const char16_t* expected;
    } cases[] = {
        {u"21:34:56", u"21:34:56.789"},
        {u"9:34:56 PM", u"9:34:56.789 PM"},
        {u"9:34:56PM", u"9:34:56.789PM"},
        {u"9:34:56 p.m.", u"9:34:56 p.m..789"},  // only a final 'M' marks the suffix
        {u"", u".789"},
    };
    for (const auto& c : cases) {
        CString text(c.formatted);
        detail::AppendMilliseconds(text, 789);
        EXPECT_EQ(text, CString(c.expected));
    }
}

TEST(CExTimeLocal, OleDatesAreLocalCalendarTimes) {
    TimeZoneGuard zone(test::kTokyo);
    const struct {
        double ole;
        double t;
    } cases[] = {
        {46204.5, 1782874800000.0},                // 2026-07-01 12:00 in Tokyo
        {46348.0, 1795273200000.0},                // 2026-11-22 00:00
        {25569.375, 0.0},                          // 1970-01-01 09:00, the epoch
        {46348.899259259259259, 1795350896000.0},  // 21:34:56, to the second
    };
    for (const auto& c : cases) {
        EXPECT_EQ(CExTime::ConvertOleTime(c.ole), c.t) << c.ole;
        EXPECT_NEAR(CExTime::ConvertToOleTime(c.t), c.ole, 1e-9) << c.ole;
    }
    EXPECT_NEAR(CExTime::ConvertToOleTime(kNow), 46348.899259259259259, 1e-9);  // ms dropped
    const double refused[] = {1.99, -5.0, 2958466.0, kNaN};  // before 1900, after 9999
    for (double ole : refused)
        EXPECT_EQ(CExTime::ConvertOleTime(ole), 0.0) << ole;
    EXPECT_EQ(CExTime::ConvertToOleTime(kNaN), 0.0);
}

#ifdef _WIN32
constexpr bool kRuleZones = false;
#else
constexpr bool kRuleZones = true;
#endif
constexpr const char* kNoRuleZones =
    "the Windows C runtime reads TZ only as an offset with U.S. daylight-saving rules";

// Central Europe in 2026: summer time from 29 March 01:00 UTC to 25 October
// 01:00 UTC.
TEST(CExTimeLocal, DaylightSavingChangesMoveTheLocalClock) {
    if (!kRuleZones) GTEST_SKIP() << kNoRuleZones;
    TimeZoneGuard zone(test::kCentralEurope);
    const struct {
        double seconds;
        int hhmmss;
    } cases[] = {
        {1774745999, 15959},  // 01:59:59 CET
        {1774746000, 30000},  // 03:00:00 CEST: the hour from 2 to 3 never happens
        {1792889999, 25959},  // 02:59:59 CEST
        {1792890000, 20000},  // 02:00:00 CET: the hour from 2 to 3 happens twice
    };
    for (const auto& c : cases) {
        EXPECT_EQ(CExTime::GetHHMMSS(c.seconds * 1000.0), c.hhmmss) << c.seconds;
    }
    // Local noon on either side of the change.
    EXPECT_EQ(CExTime::ConvertOleTime(46204.5), 1782900000000.0);  // 2026-07-01 10:00 UTC
    EXPECT_EQ(CExTime::ConvertOleTime(46037.270833333333), 1768455000000.0);  // 01-15 05:30 UTC
    EXPECT_NEAR(CExTime::ConvertToOleTime(1782900000000.0), 46204.5, 1e-9);
    EXPECT_EQ(CExTime::TimeToStringISOFormat(1782900000000.0), CString(u"2026-07-01 12:00:00"));
}

TEST(CExTimeLocal, TimezoneCountsDaylightSavingInForceNow) {
    if (!kRuleZones) GTEST_SKIP() << kNoRuleZones;
    TimeZoneGuard zone(test::kCentralEurope);
    test::SimulatedClock clock;
    test::ClockGuard guard(&clock);
    clock.SetSystemMs(1782900000000.0);  // July
    EXPECT_EQ(CExTime::GetTimezone(), -7200000);
    clock.SetSystemMs(1768455000000.0);  // January
    EXPECT_EQ(CExTime::GetTimezone(), -3600000);
}

}  // namespace
}  // namespace vex
