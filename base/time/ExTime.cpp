#include <base/time/ExTime.h>

#include <base/framework/Format.h>
#include <base/framework/Scan.h>
#include <base/platform/TimeZone.h>
#include <base/time/CivilCalendar.h>
#include <base/time/ClockSource.h>
#include <base/time/ExTimeSync.h>

#include <algorithm>
#include <atomic>
#include <bit>
#include <cmath>
#include <cwchar>
#include <limits>
#include <mutex>
#include <stdexcept>
#include <string>
#include <thread>
#include <type_traits>

namespace vex {

static_assert(sizeof(std::time_t) == 8, "time values need a 64-bit time_t");

namespace {

constexpr double kTwoTo31 = 2147483648.0;
constexpr double kTwoTo32 = 4294967296.0;
constexpr long long kFileTimeOf1970 = static_cast<long long>(platform::kFileTimeOf1970);
// Days from 1899-12-30, day 0 of OLE dates, to 1970-01-01.
constexpr std::int64_t kOleDayOf1970 = -detail::DaysFromCivil(1899, 12, 30);
// Julian day number of 0000-02-29: the day before day 1 of a count of days
// from 1 March of year 0.
constexpr long kJulianEpochOffset = 1721119;
// Days from 0000-03-01 (day 0) to 1970-01-01.
constexpr std::int64_t kMarchDaysOf1970 = 719468;

// Serialises the writers of the process-wide state. Readers do not take
// it: they read the published values under the version count below. A
// waiter that finds it held for long yields.
class SpinLock {
  public:
    void lock() noexcept {
        for (int spins = 0; locked_.exchange(true, std::memory_order_acquire); ++spins) {
            while (locked_.load(std::memory_order_relaxed)) {
                if (++spins > 64) std::this_thread::yield();
            }
        }
    }
    void unlock() noexcept { locked_.store(false, std::memory_order_release); }

  private:
    std::atomic<bool> locked_{false};
};

// Process-wide state. GetCurTime stamps every data block from any thread,
// so the values it needs are published for reading without a lock: a
// writer holds m_lock and makes m_version odd while it changes them, and a
// reader that sees the same even version before and after its reads has a
// consistent set. The values are atomics read and written relaxed, so that
// a reader racing a writer reads stale values, never torn ones.
struct ExTimeState {
    SpinLock m_lock;
    std::atomic<std::uint32_t> m_version{0};
    std::atomic<double> m_time1970Base{0.0};
    std::atomic<double> m_prevVexTime{0.0};
    std::atomic<double> m_a0{0.0};
    std::atomic<double> m_a1{1.0};
    std::atomic<double> m_p0{0.0};
    std::atomic<bool> m_bTimeSyncDone{false};
    std::atomic<double> m_lastUtcUpdate{0.0};
    double m_lastUtcUpdateCheckTime = 0.0;
    std::atomic<bool> m_firstTimeInit{false};
    bool m_masterClock = true;
    std::atomic<ClockSource*> m_source{nullptr};
    // 1000 / the source's counter frequency; 0 until first needed.
    std::atomic<double> m_msPerTick{0.0};
};

// Constant-initialised and trivially destroyed: the time is readable from
// any static constructor or destructor of the process.
constinit ExTimeState state;
static_assert(std::is_trivially_destructible_v<ExTimeState>);

// Holds the writers' lock and marks the published values as changing.
class Publishing {
  public:
    Publishing() {
        state.m_lock.lock();
        version_ = state.m_version.load(std::memory_order_relaxed);
        state.m_version.store(version_ + 1, std::memory_order_relaxed);
        std::atomic_thread_fence(std::memory_order_release);
    }
    ~Publishing() {
        state.m_version.store(version_ + 2, std::memory_order_release);
        state.m_lock.unlock();
    }
    Publishing(const Publishing&) = delete;
    Publishing& operator=(const Publishing&) = delete;

  private:
    std::uint32_t version_ = 0;
};

double Get(const std::atomic<double>& value) {
    return value.load(std::memory_order_relaxed);
}
void Put(std::atomic<double>& value, double v) {
    value.store(v, std::memory_order_relaxed);
}

// Readings this close to the previous one kept need no unwrapping and need
// not be kept: whichever reading in between was the last, the distance to
// it stays far below 2^31 ms. A reading outside the band takes the lock and
// is kept, so the previous reading is never more than this behind.
constexpr double kQuietBand = 1000.0;

// The synchronised time of counter time counterMs read without the lock;
// false when the lock is needed (first reading, a reading to keep or to
// unwrap, or a writer at work).
bool TryQuickTime(double counterMs, double& t) {
    const std::uint32_t version = state.m_version.load(std::memory_order_acquire);
    const bool done = state.m_bTimeSyncDone.load(std::memory_order_relaxed);
    const double base = Get(state.m_time1970Base);
    const double prev = Get(state.m_prevVexTime);
    const double a0 = Get(state.m_a0);
    const double a1 = Get(state.m_a1);
    const double p0 = Get(state.m_p0);
    std::atomic_thread_fence(std::memory_order_acquire);
    if ((version & 1) != 0 || state.m_version.load(std::memory_order_relaxed) != version || !done) {
        return false;
    }
    t = base + counterMs;
    if (counterMs > 0.0 && !(std::fabs(t - prev) <= kQuietBand)) return false;
    if (!std::isnan(a0) && a0 != 0.0) t = (t - p0) * a1 + a0;
    return true;
}

ClockSource& Clock() {
    ClockSource* source = state.m_source.load(std::memory_order_acquire);
    return source != nullptr ? *source : SystemClockSource();
}

// Counter ticks in ms. The factor is kept, as the frequency is constant, so
// that reading the clock costs one multiplication rather than two divisions.
double CounterMs(const ClockSource& clock) {
    double msPerTick = state.m_msPerTick.load(std::memory_order_relaxed);
    if (msPerTick == 0.0) {
        const double frequency = static_cast<double>(clock.CounterFrequency());
        if (!(frequency > 0.0)) return 0.0;
        msPerTick = 1000.0 / frequency;
        state.m_msPerTick.store(msPerTick, std::memory_order_relaxed);
    }
    return static_cast<double>(clock.CounterNow()) * msPerTick;
}

// The counter now in ms; the system's counter is read directly rather than
// through the source interface, as every GetCurTime does it.
double CounterNowMs() {
    if (state.m_source.load(std::memory_order_acquire) == nullptr) {
        const double msPerTick = state.m_msPerTick.load(std::memory_order_relaxed);
        if (msPerTick != 0.0) return static_cast<double>(platform::CounterNow()) * msPerTick;
    }
    return CounterMs(Clock());
}

// The integer of a floating value, saturated, 0 for NaN: never undefined.
std::int64_t SaturatedInt64(double value) {
    if (std::isnan(value)) return 0;
    if (value >= 0x1p63) return std::numeric_limits<std::int64_t>::max();
    if (value < -0x1p63) return std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(value);
}

// Whole seconds of t rounded down, so that times before 1970 break down
// into the second they lie in.
std::time_t FloorSeconds(double t) {
    return static_cast<std::time_t>(SaturatedInt64(std::floor(t / 1000.0)));
}

// Ms past the whole second of t, 0..999.
int MillisecondsOf(double t, std::time_t seconds) {
    const double ms = t - static_cast<double>(seconds) * 1000.0;
    return std::clamp(static_cast<int>(SaturatedInt64(ms)), 0, 999);
}

bool LocalFields(double t, std::time_t& seconds, std::tm& fields) {
    if (!std::isfinite(t)) return false;
    seconds = FloorSeconds(t);
    return platform::LocalCalendar(seconds, fields);
}

// strftime into a 128-character buffer, as wide text.
CString FormatLocal(const wchar_t* format, const std::tm& fields) {
    wchar_t buffer[128];
    const std::size_t length = std::wcsftime(buffer, 128, format, &fields);
    return CString(std::wstring_view(buffer, length));
}

}  // namespace

CExTime::CExTime() {
    if (!state.m_firstTimeInit.exchange(true)) CExTimeSync::GetExTimeSync()->StartSync();
}

// --- now -----------------------------------------------------------------

double CExTime::GetExTime(double counterMs) {
    double t = 0.0;
    if (TryQuickTime(counterMs, t)) return t;
    ClockSource& clock = Clock();
    const Publishing lock;
    if (!state.m_bTimeSyncDone.load(std::memory_order_relaxed)) {
        // The base is taken after a 5 ms pause, as the suite's clock has
        // always done.
        clock.Pause(5);
        const double systemMs = FileTimeToVexTime(clock.SystemFileTime());
        const double counterNow = CounterMs(clock);
        Put(state.m_time1970Base, systemMs - counterNow);
        Put(state.m_prevVexTime, systemMs);
        state.m_bTimeSyncDone.store(true, std::memory_order_relaxed);
        state.m_lastUtcUpdateCheckTime = counterNow;
    }
    t = Get(state.m_time1970Base) + counterMs;
    if (counterMs > 0.0) {
        const double prev = Get(state.m_prevVexTime);
        double correction = 0.0;
        if (prev - t > kTwoTo31) {
            correction = kTwoTo32;
        } else if (t - prev > kTwoTo31) {
            correction = -kTwoTo32;
        }
        if (correction != 0.0) {
            t += correction;
            if (state.m_masterClock)
                Put(state.m_time1970Base, Get(state.m_time1970Base) + correction);
        }
        Put(state.m_prevVexTime, t);
    }
    const double a0 = Get(state.m_a0);
    if (!std::isnan(a0) && a0 != 0.0) t = (t - Get(state.m_p0)) * Get(state.m_a1) + a0;
    return t;
}

double CExTime::GetCurTime() {
    return GetExTime(CounterNowMs());
}

void CExTime::GetCurTime(std::time_t& seconds, int& milliseconds) {
    const double t = GetCurTime();
    seconds = FloorSeconds(t);
    milliseconds = MillisecondsOf(t, seconds);
}

double CExTime::GetCurSystemTime() {
    return CounterMs(Clock());
}

double CExTime::GetRawUnsyncedWindowsTime() {
    return FileTimeToVexTime(Clock().SystemFileTime());
}

double CExTime::GetVexTime(double syncedTime) {
    double a0 = 0.0, a1 = 0.0, p0 = 0.0;
    {
        std::lock_guard<SpinLock> lock(state.m_lock);
        a0 = Get(state.m_a0);
        a1 = Get(state.m_a1);
        p0 = Get(state.m_p0);
    }
    if (std::isnan(a0) || std::isnan(a1) || a1 == 0.0) return syncedTime;
    return (syncedTime - a0) / a1 + p0;
}

// --- synchronisation -----------------------------------------------------

bool CExTime::SetUtcCoeffs(double a0, double a1, double p0) {
    ClockSource& clock = Clock();
    const Publishing lock;
    Put(state.m_a0, a0);
    Put(state.m_a1, a1);
    Put(state.m_p0, p0);
    const double now = CounterMs(clock);
    state.m_lastUtcUpdate.store(now);
    state.m_lastUtcUpdateCheckTime = now;
    return true;
}

void CExTime::StoreFittedCoeffs(double a0, double a1, double p0) {
    ClockSource& clock = Clock();
    const Publishing lock;
    // An external source may have taken over since the worker looked.
    if (state.m_lastUtcUpdate.load() != 0.0) return;
    Put(state.m_a0, a0);
    Put(state.m_a1, a1);
    Put(state.m_p0, p0);
    state.m_lastUtcUpdateCheckTime = CounterMs(clock);
}

void CExTime::ResetState(ClockSource* source) {
    const Publishing lock;
    state.m_source.store(source, std::memory_order_release);
    state.m_msPerTick.store(0.0, std::memory_order_relaxed);
    Put(state.m_time1970Base, 0.0);
    Put(state.m_prevVexTime, 0.0);
    Put(state.m_a0, 0.0);
    Put(state.m_a1, 1.0);
    Put(state.m_p0, 0.0);
    state.m_lastUtcUpdate.store(0.0);
    state.m_lastUtcUpdateCheckTime = 0.0;
    state.m_bTimeSyncDone.store(false, std::memory_order_relaxed);
    state.m_firstTimeInit.store(false);
    state.m_masterClock = true;
}

double CExTime::GetLastUtcUpdate() {
    return state.m_lastUtcUpdate.load();
}

double CExTime::GetUtcUpdateAge() {
    const double now = CounterMs(Clock());
    std::lock_guard<SpinLock> lock(state.m_lock);
    return now - state.m_lastUtcUpdateCheckTime;
}

bool CExTime::SetBaseTime(double t) {
    const double now = CounterMs(Clock());
    const Publishing lock;
    state.m_bTimeSyncDone.store(true, std::memory_order_relaxed);
    Put(state.m_time1970Base, t);
    state.m_masterClock = false;
    Put(state.m_prevVexTime, now + t);
    return true;
}

double CExTime::GetWin1970BaseTime() {
    return Get(state.m_time1970Base);
}

std::uint32_t CExTime::GetWinTime(double t) {
    double counter = t - GetWin1970BaseTime();
    if (counter < 0.0) {
        counter += kTwoTo32;
    } else if (counter > kTwoTo32) {
        counter -= kTwoTo32;
    }
    // Cut to 32 bits, as the counter register would be.
    return static_cast<std::uint32_t>(static_cast<std::uint64_t>(SaturatedInt64(counter)));
}

bool CExTime::AdjustRTC() {
    const double now = GetCurTime();
    if (!std::isfinite(now)) return false;
    // The UTC breakdown gives directly what local time shifted by the zone
    // offset would, also in the hour around a daylight-saving change.
    const std::time_t seconds = FloorSeconds(now);
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
    if (!TimeToUtcDate(seconds, year, month, day, hour, minute, second)) return false;
    platform::UtcCalendarTime fields;
    fields.year = year;
    fields.month = month;
    fields.day = day;
    fields.hour = hour;
    fields.minute = minute;
    fields.second = second;
    fields.millisecond = MillisecondsOf(now, seconds);
    ClockSource& clock = Clock();
    std::lock_guard<SpinLock> lock(state.m_lock);
    return clock.SetSystemTimeUtc(fields);
}

long CExTime::GetTimezone() {
    const long offset = platform::TimeZoneOffsetSeconds();
    const std::time_t now = FloorSeconds(GetRawUnsyncedWindowsTime());
    return (platform::IsDaylightSavingTime(now) ? offset - 3600 : offset) * 1000;
}

// --- conversions ---------------------------------------------------------

std::time_t CExTime::ConvertToCTime(double t) {
    return static_cast<std::time_t>(SaturatedInt64(t / 1000.0));
}

std::time_t CExTime::MsecToCTime(double t) {
    return ConvertToCTime(t);
}

double CExTime::ConvertCTime(std::time_t seconds) {
    return static_cast<double>(seconds) * 1000.0;
}

double CExTime::ConvertOleTime(double oleDate) {
    // OLE dates run from year 100 to 9999; before 1900 is refused anyway.
    if (!(oleDate >= 2.0 && oleDate < 2958466.0)) return 0.0;
    std::int64_t days = static_cast<std::int64_t>(std::floor(oleDate));
    long long secondOfDay = std::llround((oleDate - static_cast<double>(days)) * 86400.0);
    if (secondOfDay == 86400) {
        ++days;
        secondOfDay = 0;
    }
    const detail::CivilDate date = detail::CivilFromDays(days - kOleDayOf1970);
    if (date.year < 1900 || date.year > 9999) return 0.0;
    std::tm fields{};
    fields.tm_year = static_cast<int>(date.year) - 1900;
    fields.tm_mon = date.month - 1;
    fields.tm_mday = date.day;
    fields.tm_hour = static_cast<int>(secondOfDay / 3600);
    fields.tm_min = static_cast<int>(secondOfDay / 60 % 60);
    fields.tm_sec = static_cast<int>(secondOfDay % 60);
    fields.tm_isdst = -1;
    const std::time_t seconds = platform::FromLocalCalendar(fields);
    if (seconds == static_cast<std::time_t>(-1)) return 0.0;
    return ConvertCTime(seconds);
}

double CExTime::ConvertToOleTime(double t) {
    std::time_t seconds = 0;
    std::tm fields{};
    if (!LocalFields(t, seconds, fields)) return 0.0;
    const std::int64_t days =
        detail::DaysFromCivil(fields.tm_year + 1900LL, fields.tm_mon + 1, fields.tm_mday) +
        kOleDayOf1970;
    const double dayFraction =
        (fields.tm_hour * 3600.0 + fields.tm_min * 60.0 + fields.tm_sec) / 86400.0;
    // Before day 0 the fraction still counts forward from midnight:
    // -1.25 is 1899-12-29 06:00.
    return days >= 0 ? static_cast<double>(days) + dayFraction
                     : static_cast<double>(days) - dayFraction;
}

double CExTime::FileTimeToVexTime(unsigned long long fileTime) {
    // Two's complement wrap gives the signed count for times before 1970.
    const long long ticks = static_cast<long long>(fileTime - platform::kFileTimeOf1970);
    return static_cast<double>(ticks / 10000) + static_cast<double>(ticks % 10000) / 10000.0;
}

unsigned long long CExTime::VexTimeToFileTime(double t) {
    // Whole ms and the fraction apart: t * 10000 would lose the last tick.
    if (!std::isfinite(t)) return 0;
    const double wholeMs = std::floor(t);
    const double lowest = -static_cast<double>(kFileTimeOf1970) / 10000.0;
    const double highest =
        (static_cast<double>(std::numeric_limits<long long>::max()) - kFileTimeOf1970) / 10000.0;
    if (wholeMs < lowest || wholeMs >= highest - 1.0) return 0;
    const long long ticks = static_cast<long long>(wholeMs) * 10000 +
                            static_cast<long long>(std::llround((t - wholeMs) * 10000.0));
    return static_cast<unsigned long long>(ticks + kFileTimeOf1970);
}

// --- calendar ------------------------------------------------------------

int CExTime::GetHHMMSS(double t) {
    std::time_t seconds = 0;
    std::tm fields{};
    if (!LocalFields(t, seconds, fields)) return -10101;
    return fields.tm_hour * 10000 + fields.tm_min * 100 + fields.tm_sec;
}

std::time_t CExTime::TimestampToDaytime(double t, double& secondsOfDay) {
    std::time_t seconds = 0;
    std::tm fields{};
    if (!LocalFields(t, seconds, fields)) {
        fields.tm_hour = fields.tm_min = fields.tm_sec = -1;
    }
    const double fraction =
        std::isfinite(t) ? (t - static_cast<double>(seconds) * 1000.0) / 1000.0 : 0.0;
    secondsOfDay = fields.tm_hour * 3600.0 + fields.tm_min * 60.0 + fields.tm_sec + fraction;
    return seconds;
}

std::time_t CExTime::UtcDateToTime(int year, int month, int day, int hour, int minute, int second) {
    if (year < 1970 || year > 3000 || month < 1 || month > 12 || day < 1 || day > 31 || hour < 0 ||
        hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59) {
        return 0;
    }
    const std::int64_t days = detail::DaysFromCivil(year, month, day);
    return static_cast<std::time_t>(days * 86400 + hour * 3600 + minute * 60 + second);
}

bool CExTime::TimeToUtcDate(std::time_t seconds, int& year, int& month, int& day, int& hour,
                            int& minute, int& second) {
    const std::int64_t days = detail::FloorDiv(seconds, 86400);
    const std::int64_t secondOfDay = detail::FloorMod(seconds, 86400);
    const detail::CivilDate date = detail::CivilFromDays(days);
    if (date.year < std::numeric_limits<int>::min() || date.year > std::numeric_limits<int>::max())
        return false;
    year = static_cast<int>(date.year);
    month = date.month;
    day = date.day;
    hour = static_cast<int>(secondOfDay / 3600);
    minute = static_cast<int>(secondOfDay / 60 % 60);
    second = static_cast<int>(secondOfDay % 60);
    return true;
}

bool CExTime::LeapYear(int year) {
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

bool CExTime::JulianDate(int year, int dayOfYear, int& month, int& day) {
    // Days before each month, and before the next year.
    static constexpr int kCommon[13] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334, 365};
    static constexpr int kLeap[13] = {0, 31, 60, 91, 121, 152, 182, 213, 244, 274, 305, 335, 366};
    const int* before = LeapYear(year) ? kLeap : kCommon;
    if (dayOfYear < 1 || dayOfYear > before[12]) return false;
    int m = 1;
    while (dayOfYear > before[m])
        ++m;
    month = m;
    day = dayOfYear - before[m - 1];
    return true;
}

long CExTime::ConvertToJulian(int dayOfYear, int year) {
    if (year < -1000000 || year > 1000000) return 0;
    // Days counted from 1 March of year 0 (day 1), as the astronomers'
    // algorithm counts them; the Julian day number adds the epoch offset.
    const std::int64_t marchDays =
        detail::DaysFromCivil(year, 1, 1) + kMarchDaysOf1970 + std::int64_t{dayOfYear};
    return static_cast<long>(marchDays + kJulianEpochOffset);
}

double CExTime::ConvertToJulianFrac(double dayOfYear, int year) {
    if (!(std::fabs(dayOfYear) < 1e9)) return 0.0;
    const double wholeDay = std::floor(dayOfYear);
    const long julian = ConvertToJulian(static_cast<int>(wholeDay), year);
    if (julian == 0) return 0.0;
    return static_cast<double>(julian) + (dayOfYear - wholeDay);
}

bool CExTime::ConvertFromJulian(long julian, int& dayOfYear, int& year) {
    const std::int64_t marchDays = static_cast<std::int64_t>(julian) - kJulianEpochOffset - 1;
    const std::int64_t days = marchDays - kMarchDaysOf1970;
    const detail::CivilDate date = detail::CivilFromDays(days);
    if (date.year < std::numeric_limits<int>::min() || date.year > std::numeric_limits<int>::max())
        return false;
    year = static_cast<int>(date.year);
    dayOfYear = static_cast<int>(days - detail::DaysFromCivil(date.year, 1, 1) + 1);
    return true;
}

// --- sonar records -------------------------------------------------------

bool CExTime::TimeToMqTime(double t, TIME_MQ* record) {
    if (record == nullptr) return false;
    *record = TimeToMq(t);
    return true;
}

bool CExTime::TimeFromMqTime(double& t, const TIME_MQ* record) {
    if (record == nullptr) return false;
    t = TimeFromMq(*record);
    return true;
}

// --- text ----------------------------------------------------------------

CString CExTime::TimeToString(double t, bool milliseconds, bool date, bool seconds) {
    std::time_t whole = 0;
    std::tm fields{};
    if (!LocalFields(t, whole, fields)) {
        throw std::invalid_argument("CExTime::TimeToString: the time has no local calendar form");
    }
    std::wstring format = date ? L"%x " : L"";
    format += (seconds || milliseconds) ? L"%X" : L"%H:%M";
    CString text = FormatLocal(format.c_str(), fields);
    if (milliseconds) detail::AppendMilliseconds(text, MillisecondsOf(t, whole));
    return text;
}

CString CExTime::TimeToStringISOFormat(double t, bool milliseconds) {
    std::time_t whole = 0;
    std::tm fields{};
    if (!LocalFields(t, whole, fields)) return CString();
    CString text = FormatLocal(L"%Y-%m-%d %H:%M:%S", fields);
    if (milliseconds) text.AppendFormat(u".%3.3d", MillisecondsOf(t, whole));
    return text;
}

CStringA CExTime::GetTimeStampString() {
    return GetTimeStampString(GetCurTime());
}

CStringA CExTime::GetTimeStampString(double t) {
    return CStringA(Format("<0x%16.16I64X>", std::bit_cast<unsigned long long>(t)));
}

double CExTime::TimeStampStringToTime(std::string_view text) {
    unsigned long long bits = 0;
    if (Scan(text, "<0x%16I64X>", &bits) != 1) return 0.0;
    return std::bit_cast<double>(bits);
}

void detail::AppendMilliseconds(CString& text, int milliseconds) {
    CString digits;
    digits.Format(u".%3.3d", milliseconds);
    const int length = text.GetLength();
    if (length == 0 || text.GetAt(length - 1) != u'M') {
        text += digits;
        return;
    }
    int afterDigits = length;
    const auto isDigit = [&text](int i) { return text.GetAt(i) >= u'0' && text.GetAt(i) <= u'9'; };
    while (afterDigits > 0 && !isDigit(afterDigits - 1))
        --afterDigits;
    if (afterDigits == 0) afterDigits = length;
    text = text.Left(afterDigits) + digits + text.Mid(afterDigits);
}

}  // namespace vex
