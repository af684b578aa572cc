// ExTime.h - CExTime: the suite's time value, "now" from the high-resolution
// counter kept in step with a UTC source, and the value's conversions.
//
// A time value is a double of milliseconds since 1970-01-01 00:00:00 UTC.
// Every function is static and thread-safe: the process-wide state (base
// time, previous reading, synchronisation coefficients) is changed under
// one lock and read by GetCurTime without it.
// Local-time functions use the process's time zone (TZ, else the system's).
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>
#include <base/time/TimeMq.h>

#include <cstdint>
#include <ctime>
#include <string_view>

namespace vex {

class ClockSource;
namespace detail {
class TimeSyncDriver;
}  // namespace detail

// The suite's clock and the conversions of its time values.
//
// Synchronised time = (unsynchronised time - p0) * a1 + a0, where the
// unsynchronised time is the counter in ms plus a base taken from the system
// clock on first use. Constructing a CExTime starts CExTimeSync, which fits
// a0, a1, p0 to the system clock every 100 ms until an external UTC source
// takes over with SetUtcCoeffs.
//
//   vex::CExTime clock;                        // starts synchronising
//   double now = vex::CExTime::GetCurTime();   // ms since 1970 UTC
//   vex::CString text = vex::CExTime::TimeToStringISOFormat(now, true);
class VEXBASE_API CExTime {
  public:
    // The first construction in the process starts the synchronisation.
    CExTime();

    // --- now -----------------------------------------------------------
    // Synchronised time of counter reading counterMs (ms of counter time).
    // The first call in the process takes the base from the system clock
    // (after a 5 ms pause). A 32-bit counter that wrapped since the previous
    // reading is unwrapped (jumps of more than 2^31 ms are taken as a wrap;
    // readings within 1 s of the last one kept are not kept themselves, so
    // the jump is measured from a reading up to 1 s older than the latest).
    // Coefficients with a0 0 or NaN mean "not synchronised" and are not
    // applied.
    static double GetExTime(double counterMs);
    // Synchronised time now.
    static double GetCurTime();
    // Synchronised time now as whole seconds since 1970 and 0..999 ms.
    static void GetCurTime(std::time_t& seconds, int& milliseconds);
    // Counter time now: counter ticks / (ticks per second / 1000), ms.
    static double GetCurSystemTime();
    // The system's UTC clock now, ms since 1970, without any synchronisation.
    static double GetRawUnsyncedWindowsTime();
    // The unsynchronised time of synchronised time t (the inverse mapping);
    // t itself when a0 or a1 is NaN or a1 is 0.
    static double GetVexTime(double syncedTime);

    // --- synchronisation -----------------------------------------------
    // Sets the coefficients from an external UTC source (e.g. the time
    // message of a positioning receiver) and records the counter time now
    // as the last update. System-clock fitting ends for good. True.
    static bool SetUtcCoeffs(double a0, double a1, double p0);
    // Counter time (ms) of the last SetUtcCoeffs; 0 when never called.
    static double GetLastUtcUpdate();
    // Ms of counter time since the coefficients last changed (or since the
    // base was taken).
    static double GetUtcUpdateAge();
    // Makes t the base time (counter ms + t = unsynchronised time), for a
    // counter that belongs to another clock; unwrapping then no longer
    // moves the base. True.
    static bool SetBaseTime(double t);
    // The base time: system time at start-up minus the counter then, ms.
    static double GetWin1970BaseTime();
    // The 32-bit millisecond counter reading that corresponds to t.
    static std::uint32_t GetWinTime(double t);
    // Sets the system clock to the synchronised time now. False, with the
    // clock unchanged, when the process may not set it.
    static bool AdjustRTC();
    // Ms to add to local time to get UTC now: the zone's offset west of
    // UTC, an hour less while daylight saving time is in force.
    static long GetTimezone();

    // --- conversions ---------------------------------------------------
    // Whole seconds since 1970 (t / 1000, truncated toward 0; 0 for NaN,
    // saturated beyond the range of time_t).
    static std::time_t ConvertToCTime(double t);
    static std::time_t MsecToCTime(double t);
    // Ms of a C time.
    static double ConvertCTime(std::time_t seconds);
    // Time value of an OLE date (days since 1899-12-30 00:00, fraction =
    // time of day, rounded to the second) read as local time, daylight
    // saving decided by the C runtime. 0 when the date is invalid or before
    // 1900.
    static double ConvertOleTime(double oleDate);
    // OLE date of t's local calendar time, whole seconds; 0 when t cannot
    // be broken down.
    static double ConvertToOleTime(double t);
    // Ms since 1970 of a file time (100 ns units since 1601-01-01 UTC).
    static double FileTimeToVexTime(unsigned long long fileTime);
    // File time of t, to the nearest 100 ns; 0 when t is not finite or
    // before 1601.
    static unsigned long long VexTimeToFileTime(double t);

    // --- calendar ------------------------------------------------------
    // Local time of t as hours * 10000 + minutes * 100 + seconds; -10101
    // (every field -1) when t cannot be broken down.
    static int GetHHMMSS(double t);
    // Whole seconds of t (rounded down); secondsOfDay = local seconds since
    // midnight, with the millisecond fraction. Fields are -1 when t cannot
    // be broken down.
    static std::time_t TimestampToDaytime(double t, double& secondsOfDay);
    // UTC seconds since 1970 of the fields; 0 when a field is out of range
    // (year 1970-3000, month 1-12, day 1-31, hour < 24, minute < 60,
    // second < 60). A day past the month's end counts on into the next.
    static std::time_t UtcDateToTime(int year, int month, int day, int hour, int minute,
                                     int second);
    // UTC fields of seconds since 1970; false, fields unchanged, when the
    // year would not fit an int.
    static bool TimeToUtcDate(std::time_t seconds, int& year, int& month, int& day, int& hour,
                              int& minute, int& second);
    // Gregorian leap year.
    static bool LeapYear(int year);
    // Month (1-12) and day of month of a day of year; false, outputs
    // unchanged, when dayOfYear is outside 1-366 or is 366 of a common year.
    static bool JulianDate(int year, int dayOfYear, int& month, int& day);
    // Julian day number of a day of year (1 = 1 January): 2451545 for
    // 2000-01-01. The day may run past the year's end. 0 when the year is
    // outside -1,000,000 ... 1,000,000.
    static long ConvertToJulian(int dayOfYear, int year);
    // The same with a fraction of a day: day 1.5 of 2000 is 2451545.5.
    static double ConvertToJulianFrac(double dayOfYear, int year);
    // Year and day of year of a Julian day number; false, outputs
    // unchanged, when the year would not fit an int.
    static bool ConvertFromJulian(long julian, int& dayOfYear, int& year);

    // --- sonar records -------------------------------------------------
    // TimeToMq / TimeFromMq through pointers; false for a null record.
    static bool TimeToMqTime(double t, TIME_MQ* record);
    static bool TimeFromMqTime(double& t, const TIME_MQ* record);

    // --- text ----------------------------------------------------------
    // Local time of t as the C runtime's "%x " (with date), then "%X" (with
    // seconds or milliseconds) or "%H:%M"; milliseconds go after the
    // seconds as ".mmm", before a trailing AM/PM suffix if there is one.
    // The C runtime's locale decides the date and time forms: "11/22/26"
    // and "12:34:56" in the "C" locale.
    // Throws std::invalid_argument when t cannot be broken down.
    static CString TimeToString(double t, bool milliseconds = false, bool date = false,
                                bool seconds = true);
    // Local time of t as "2026-11-22 12:34:56", with ".789" when asked;
    // empty when t cannot be broken down.
    static CString TimeToStringISOFormat(double t, bool milliseconds = false);
    // The exact bits of the time value, "<0x41D7E5AD1DC00000>": of now, or
    // of t. Any double, NaN and infinities included, round-trips through
    // TimeStampStringToTime.
    static CStringA GetTimeStampString();
    static CStringA GetTimeStampString(double t);
    // The double of a "<0x%16I64X>" text, read as sscanf reads it: 0 unless
    // one hexadecimal field after "<0x" converts (the closing ">" is not
    // checked).
    static double TimeStampStringToTime(std::string_view text);

  private:
    friend class CExTimeSync;
    friend class detail::TimeSyncDriver;

    // Stores coefficients fitted to the system clock, unless an external
    // source has set its own in the meantime.
    static void StoreFittedCoeffs(double a0, double a1, double p0);
    // Installs source (nullptr: the system's clocks) and forgets the base,
    // the coefficients and every update time.
    static void ResetState(ClockSource* source);
};

namespace detail {

// Adds ".mmm" to a formatted time: at the end, or, when the text ends in
// 'M' (a 12-hour clock's AM/PM suffix), after its last digit.
VEXBASE_API void AppendMilliseconds(CString& text, int milliseconds);

}  // namespace detail

}  // namespace vex
