// TimeMq.h - TIME_MQ, the 10-byte time record of sonar data, and its
// conversion to and from the library's time value (milliseconds since
// 1970-01-01 00:00:00 UTC).
//
// The record is packed and little-endian, so it can be copied to and from
// sonar files byte for byte. Its fields are UTC; year 0 means "no time".
#pragma once

#include <base/Export.h>

#include <bit>
#include <cstdint>
#include <limits>

namespace vex {

#pragma pack(push, 1)
// A UTC time as sonar records store it.
//
//   vex::TIME_MQ mq = vex::TimeToMq(1.5e12);   // 2017-07-14 02:40:00.000
//   double t = vex::TimeFromMq(mq);            // 1.5e12 to within float seconds
struct tagTIMEMQ {
    std::uint16_t year = 0;    // 0 = no time
    std::uint16_t day = 0;     // day of year, 1..366
    float seconds = 0.0f;      // 0 <= seconds < 60, with fraction
    std::uint8_t hours = 0;    // 0..23
    std::uint8_t minutes = 0;  // 0..59
};
#pragma pack(pop)
using TIME_MQ = tagTIMEMQ;

static_assert(sizeof(TIME_MQ) == 10, "TIME_MQ is a packed record of 10 bytes");
static_assert(std::endian::native == std::endian::little && std::numeric_limits<float>::is_iec559,
              "TIME_MQ is copied byte for byte: the host must store little-endian IEEE values");

// The record of time value t (ms since 1970 UTC). The seconds are a float
// and never round up to 60: such a value carries into the minute. All
// fields are 0 when t is not finite or its year is outside 1..65535.
VEXBASE_API TIME_MQ TimeToMq(double t);
// The time value of a record; 0 for year 0. Fields out of their ranges
// are counted as they stand (day 367 is a day later than day 366).
VEXBASE_API double TimeFromMq(const TIME_MQ& record);

}  // namespace vex
