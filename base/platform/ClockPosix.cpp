#include <base/platform/Clock.h>

#include <sys/time.h>
#include <time.h>

#include <cerrno>

namespace vex::platform {

std::int64_t CounterNow() {
    timespec ts{};
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return static_cast<std::int64_t>(ts.tv_sec) * 1000000000LL + ts.tv_nsec;
}

std::int64_t CounterFrequency() {
    return 1000000000LL;
}

std::uint64_t SystemTimeAsFileTime() {
    timespec ts{};
    clock_gettime(CLOCK_REALTIME, &ts);
    return kFileTimeOf1970 + static_cast<std::uint64_t>(ts.tv_sec) * 10000000ULL +
           static_cast<std::uint64_t>(ts.tv_nsec) / 100U;
}

bool SetSystemTimeUtc(const UtcCalendarTime& t) {
    if (t.month < 1 || t.month > 12 || t.day < 1 || t.day > 31 || t.hour < 0 || t.hour > 23 ||
        t.minute < 0 || t.minute > 59 || t.second < 0 || t.second > 60 || t.millisecond < 0 ||
        t.millisecond > 999) {
        return false;
    }
    tm fields{};
    fields.tm_year = t.year - 1900;
    fields.tm_mon = t.month - 1;
    fields.tm_mday = t.day;
    fields.tm_hour = t.hour;
    fields.tm_min = t.minute;
    fields.tm_sec = t.second;
    const time_t seconds = timegm(&fields);
    if (seconds == static_cast<time_t>(-1)) return false;
    timespec ts{};
    ts.tv_sec = seconds;
    ts.tv_nsec = static_cast<long>(t.millisecond) * 1000000L;
    return clock_settime(CLOCK_REALTIME, &ts) == 0;
}

}  // namespace vex::platform
