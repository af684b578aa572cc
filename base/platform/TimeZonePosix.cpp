#include <base/platform/TimeZone.h>

#include <stdlib.h>
#include <time.h>

namespace vex::platform {

void RefreshTimeZone() {
    tzset();
}

long TimeZoneOffsetSeconds() {
    tzset();
    return timezone;
}

bool IsDaylightSavingTime(std::time_t when) {
    tm fields{};
    return localtime_r(&when, &fields) != nullptr && fields.tm_isdst > 0;
}

bool LocalCalendar(std::time_t when, std::tm& out) {
    return localtime_r(&when, &out) != nullptr;
}

bool UtcCalendar(std::time_t when, std::tm& out) {
    return gmtime_r(&when, &out) != nullptr;
}

std::time_t FromLocalCalendar(std::tm& fields) {
    return mktime(&fields);
}

std::time_t FromUtcCalendar(std::tm& fields) {
    return timegm(&fields);
}

void SetTimeZoneVariable(const char* value) {
    if (value != nullptr) {
        setenv("TZ", value, 1);
    } else {
        unsetenv("TZ");
    }
    tzset();
}

std::optional<std::string> GetTimeZoneVariable() {
    const char* value = getenv("TZ");
    if (value == nullptr) return std::nullopt;
    return std::string(value);
}

}  // namespace vex::platform
