#include <base/time/TimeMq.h>

#include <base/time/CivilCalendar.h>

#include <cmath>

namespace vex {

TIME_MQ TimeToMq(double t) {
    TIME_MQ record;
    if (!std::isfinite(t)) return record;
    double minuteStart = std::floor(t / 60000.0) * 60.0;  // whole minutes, in seconds
    float seconds = static_cast<float>(t / 1000.0 - minuteStart);
    // A fraction just below the minute's end can round to 60.0f.
    if (seconds >= 60.0f) {
        seconds -= 60.0f;
        minuteStart += 60.0;
    }
    // Years 1..65535 lie well inside this range of seconds.
    if (!(std::fabs(minuteStart) < 4e12)) return record;
    const auto minutesSince1970 = static_cast<std::int64_t>(minuteStart / 60.0);
    const std::int64_t days = detail::FloorDiv(minutesSince1970, 1440);
    const std::int64_t minuteOfDay = detail::FloorMod(minutesSince1970, 1440);
    const detail::CivilDate date = detail::CivilFromDays(days);
    if (date.year < 1 || date.year > 65535) return record;
    record.year = static_cast<std::uint16_t>(date.year);
    record.day = static_cast<std::uint16_t>(days - detail::DaysFromCivil(date.year, 1, 1) + 1);
    record.seconds = seconds;
    record.hours = static_cast<std::uint8_t>(minuteOfDay / 60);
    record.minutes = static_cast<std::uint8_t>(minuteOfDay % 60);
    return record;
}

double TimeFromMq(const TIME_MQ& record) {
    if (record.year == 0) return 0.0;
    const std::int64_t y = record.year - 1;
    const std::int64_t days = y * 365 + y / 4 - y / 100 + y / 400 + record.day - 719163;
    const std::int64_t wholeSeconds = ((days * 24 + record.hours) * 60 + record.minutes) * 60;
    return (static_cast<double>(wholeSeconds) + static_cast<double>(record.seconds)) * 1000.0;
}

}  // namespace vex
