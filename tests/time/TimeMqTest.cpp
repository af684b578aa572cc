// Sonar record times. Calendar fields from Python's datetime (utcfromtimestamp,
// timetuple().tm_yday).
#include <base/time/ExTime.h>
#include <base/time/TimeMq.h>

#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <random>

namespace vex {
namespace {

struct Fields {
    int year, day;
    float seconds;
    int hours, minutes;
};

void ExpectFields(const TIME_MQ& r, const Fields& f, double t) {
    EXPECT_EQ(r.year, f.year) << t;
    EXPECT_EQ(r.day, f.day) << t;
    EXPECT_FLOAT_EQ(r.seconds, f.seconds) << t;
    EXPECT_EQ(r.hours, f.hours) << t;
    EXPECT_EQ(r.minutes, f.minutes) << t;
}

TEST(TimeMq, TimesBreakIntoUtcRecordFields) {
    const struct {
        double t;
        Fields fields;
    } cases[] = {
        {0.0, {1970, 1, 0.0f, 0, 0}},
        {1.5e12, {2017, 195, 0.0f, 2, 40}},
        {1795350896789.0, {2026, 326, 56.789f, 12, 34}},
        {59999.9999, {1970, 1, 0.0f, 0, 1}},  // 59.9999999 s rounds to 60.0f: carried
        {59999.0, {1970, 1, 59.999f, 0, 0}},
        {-1.0, {1969, 365, 59.999f, 23, 59}},
        {1735689599500.0, {2024, 366, 59.5f, 23, 59}},     // the last second of a leap year
        {-62135596800000.0, {1, 1, 0.0f, 0, 0}},           // 0001-01-01, the first year
        {2005949145540000.0, {65535, 365, 0.0f, 23, 59}},  // the last minute of year 65535
    };
    for (const auto& c : cases)
        ExpectFields(TimeToMq(c.t), c.fields, c.t);

    const double refused[] = {std::numeric_limits<double>::quiet_NaN(),
                              std::numeric_limits<double>::infinity(), 1e300,
                              -62135596800001.0,    // year 0
                              2005949145600000.0};  // 65536-01-01 (Python: day counts)
    for (double t : refused)
        ExpectFields(TimeToMq(t), {0, 0, 0.0f, 0, 0}, t);
}

TEST(TimeMq, RecordsGiveBackTheirTime) {
    const struct {
        Fields fields;
        double t;
    } cases[] = {
        {{1970, 1, 0.0f, 0, 0}, 0.0},         {{0, 200, 12.0f, 3, 4}, 0.0},  // year 0: no time
        {{2017, 195, 0.0f, 2, 40}, 1.5e12},   {{2026, 326, 56.5f, 12, 34}, 1795350896500.0},
        {{1969, 365, 59.5f, 23, 59}, -500.0},
    };
    for (const auto& c : cases) {
        TIME_MQ r;
        r.year = static_cast<std::uint16_t>(c.fields.year);
        r.day = static_cast<std::uint16_t>(c.fields.day);
        r.seconds = c.fields.seconds;
        r.hours = static_cast<std::uint8_t>(c.fields.hours);
        r.minutes = static_cast<std::uint8_t>(c.fields.minutes);
        EXPECT_EQ(TimeFromMq(r), c.t) << c.fields.year << " " << c.fields.day;
    }

    // A float of seconds keeps about 4 us of a minute.
    std::mt19937_64 random(99);
    for (int i = 0; i < 10000; ++i) {
        const double t = static_cast<double>(random() >> 11) * 0x1p-53 * 4e12;
        EXPECT_NEAR(TimeFromMq(TimeToMq(t)), t, 0.01) << t;
    }
}

TEST(TimeMq, RecordIsTenLittleEndianBytes) {
    TIME_MQ r;
    r.year = 2026;
    r.day = 326;
    r.seconds = 56.5f;
    r.hours = 12;
    r.minutes = 34;
    unsigned char bytes[sizeof(TIME_MQ)];
    std::memcpy(bytes, &r, sizeof bytes);
    const unsigned char expected[10] = {0xEA, 0x07, 0x46, 0x01, 0x00, 0x00, 0x62, 0x42, 12, 34};
    EXPECT_EQ(std::memcmp(bytes, expected, sizeof expected), 0);

    TIME_MQ out;
    EXPECT_TRUE(CExTime::TimeToMqTime(1795350896500.0, &out));
    EXPECT_EQ(std::memcmp(&out, expected, sizeof expected), 0);
    double t = 0.0;
    EXPECT_TRUE(CExTime::TimeFromMqTime(t, &out));
    EXPECT_EQ(t, 1795350896500.0);
    EXPECT_FALSE(CExTime::TimeToMqTime(1.0, nullptr));
    EXPECT_FALSE(CExTime::TimeFromMqTime(t, nullptr));
    EXPECT_EQ(t, 1795350896500.0);
}

}  // namespace
}  // namespace vex
