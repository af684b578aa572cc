#include <base/platform/TimeZone.h>

#include <stdlib.h>
#include <time.h>

namespace vex::platform {

void RefreshTimeZone() {
    _tzset();
}

long TimeZoneOffsetSeconds() {
    _tzset();
    return _timezone;  // msvcrt has no _get_timezone
}

bool IsDaylightSavingTime(std::time_t when) {
    tm fields{};
    return localtime_s(&fields, &when) == 0 && fields.tm_isdst > 0;
}

bool LocalCalendar(std::time_t when, std::tm& out) {
    return localtime_s(&out, &when) == 0;
}

bool UtcCalendar(std::time_t when, std::tm& out) {
    return gmtime_s(&out, &when) == 0;
}

std::time_t FromLocalCalendar(std::tm& fields) {
    return mktime(&fields);
}

std::time_t FromUtcCalendar(std::tm& fields) {
    return _mkgmtime(&fields);
}

void SetTimeZoneVariable(const char* value) {
    // "TZ=" removes the variable; the runtime copies the text.
    const std::string assignment = std::string("TZ=") + (value != nullptr ? value : "");
    _putenv(assignment.c_str());
    _tzset();
}

std::optional<std::string> GetTimeZoneVariable() {
    const char* value = getenv("TZ");
    if (value == nullptr) return std::nullopt;
    return std::string(value);
}

}  // namespace vex::platform
