// CivilCalendar.h - day counts of the proleptic Gregorian calendar, for the
// time subsystem's own sources (not installed).
//
// Days are counted from 1970-01-01 (day 0), negative before it; the
// arithmetic is exact for any year that fits in 32 bits.
#pragma once

#include <cstdint>

namespace vex::detail {

struct CivilDate {
    std::int64_t year;
    int month;  // 1..12
    int day;    // 1..31
};

// Days from 1970-01-01 to year-month-day; a day beyond the month's end
// counts on into the next month.
constexpr std::int64_t DaysFromCivil(std::int64_t year, int month, int day) {
    // Years begin on 1 March here, so that the leap day ends the year.
    year -= month <= 2 ? 1 : 0;
    const std::int64_t era = (year >= 0 ? year : year - 399) / 400;
    const std::int64_t yearOfEra = year - era * 400;
    const std::int64_t dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5 + day - 1;
    const std::int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - 719468;
}

// The date of a day count from 1970-01-01.
constexpr CivilDate CivilFromDays(std::int64_t days) {
    days += 719468;
    const std::int64_t era = (days >= 0 ? days : days - 146096) / 146097;
    const std::int64_t dayOfEra = days - era * 146097;
    const std::int64_t yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t monthFromMarch = (5 * dayOfYear + 2) / 153;
    const int day = static_cast<int>(dayOfYear - (153 * monthFromMarch + 2) / 5 + 1);
    const int month =
        static_cast<int>(monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9);
    return {yearOfEra + era * 400 + (month <= 2 ? 1 : 0), month, day};
}

// Floor division and its remainder (0 <= remainder < divisor), for splitting
// counts that may be negative.
constexpr std::int64_t FloorDiv(std::int64_t value, std::int64_t divisor) {
    const std::int64_t q = value / divisor;
    return (value % divisor != 0 && value < 0) ? q - 1 : q;
}
constexpr std::int64_t FloorMod(std::int64_t value, std::int64_t divisor) {
    return value - FloorDiv(value, divisor) * divisor;
}

static_assert(DaysFromCivil(1970, 1, 1) == 0);
static_assert(DaysFromCivil(2000, 3, 1) == 11017);
static_assert(CivilFromDays(-1).year == 1969 && CivilFromDays(-1).day == 31);

}  // namespace vex::detail
