#include <base/time/TimePoint.h>
#include <base/time/TimeSpan.h>

#include <gtest/gtest.h>

#include <limits>

namespace vex {
namespace {

TEST(TimeSpan, DurationTextsShowDaysOnlyFromOneDay) {
    const struct {
        double ms;
        bool seconds;
        const char16_t* text;
    } cases[] = {
        {90061000.0, true, u"1 days 01:01:01"},
        {90061000.0, false, u"1 days 01:01"},
        {3723000.0, true, u"01:02:03"},
        {3723999.9, true, u"01:02:03"},  // whole seconds
        {0.0, true, u"00:00:00"},
        {86399999.0, true, u"23:59:59"},
        {86400000.0, false, u"1 days 00:00"},
        {864000000.0, true, u"10 days 00:00:00"},
        {-3723000.0, true, u"-01:02:03"},
        {std::numeric_limits<double>::quiet_NaN(), true, u"00:00:00"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(TimeSpanToString(c.ms, c.seconds), CString(c.text));
}

TEST(TimeSpan, MinuteStepsRoundUpToFives) {
    const int cases[][2] = {{0, 0},   {1, 5},   {5, 5},   {6, 10},  {10, 10}, {11, 15}, {50, 50},
                            {51, 55}, {55, 55}, {56, 55}, {59, 55}, {60, 0},  {90, 0},  {-3, 0}};
    for (const auto& c : cases)
        EXPECT_EQ(MinuteInterval(c[0]), c[1]) << c[0];
}

TEST(TimeSpan, AxisStepsAreRoundClockIntervals) {
    const double cases[][2] = {
        {0, 1},           {0.4, 0.5},     {1, 1},         {3, 2},          {7, 5},
        {8, 10},          {15, 10},       {-5, 5},        {16, 30},        {44.9, 30},
        {45, 60},         {89, 60},       {90, 120},      {179, 120},      {180, 300},
        {449, 300},       {450, 600},     {1199, 600},    {1200, 1800},    {2699, 1800},
        {2700, 3600},     {5399, 3600},   {5400, 7200},   {10799, 7200},   {10800, 14400},
        {17999, 14400},   {18000, 21600}, {25199, 21600}, {25200, 28800},  {32399, 28800},
        {32400, 43200},   {64799, 43200}, {64800, 86400}, {129599, 86400}, {129600, 86400},
        {345600, 432000},  // four days: a step of five
        {864000, 864000},
    };
    for (const auto& c : cases)
        EXPECT_EQ(TimeInterval(c[0]), c[1]) << c[0];
}

TEST(TimePoint, EqualityCountsTheTime) {
    TimePoint fix(Point(1.0, 2.0, 3.0), 1.5e12);
    EXPECT_EQ(fix, TimePoint(1.0, 2.0, 3.0, 1.5e12));
    fix.SetTime(1.6e12);
    EXPECT_FALSE(fix == TimePoint(1.0, 2.0, 3.0, 1.5e12));
}

}  // namespace
}  // namespace vex
