#include <base/platform/Clock.h>

#include <sys/time.h>
#include <time.h>

#include <cerrno>
#include <fstream>
#include <string>

#if defined(__x86_64__) && (defined(__GNUC__) || defined(__clang__))
#include <cpuid.h>
#include <x86intrin.h>
#define VEX_CLOCK_TSC 1
#endif

namespace vex::platform {
namespace {

std::int64_t MonotonicNs() {
    timespec ts{};
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return static_cast<std::int64_t>(ts.tv_sec) * 1000000000LL + ts.tv_nsec;
}

#ifdef VEX_CLOCK_TSC

// The time-stamp counter. No fence before it: a fence doubles the cost
// here, and the few cycles by which the reading may run ahead of earlier
// instructions are far below the resolution of a time value (a quarter of
// a microsecond in a double of ms since 1970).
std::int64_t TscNow() {
    return static_cast<std::int64_t>(__rdtsc());
}

// The counter is used only where it is invariant (constant rate, running
// in every power state) and the kernel itself keeps time with it, which
// the kernel allows only after finding it in step on every processor.
bool TscUsable() {
    unsigned eax = 0, ebx = 0, ecx = 0, edx = 0;
    if (static_cast<unsigned>(__get_cpuid_max(0x80000000u, nullptr)) < 0x80000007u) return false;
    __cpuid(0x80000007u, eax, ebx, ecx, edx);
    if ((edx & (1u << 8)) == 0) return false;
    std::ifstream source("/sys/devices/system/clocksource/clocksource0/current_clocksource");
    std::string name;
    return static_cast<bool>(source >> name) && name == "tsc";
}

// A counter reading and the monotonic clock at the same moment: the tightest
// of a few brackets of two counter readings around one clock reading, so
// that a pre-emption in between does not skew it.
struct Pair {
    double tsc = 0.0;
    double ns = 0.0;
};

Pair ReadPair() {
    Pair best;
    std::int64_t bestWidth = -1;
    for (int i = 0; i < 7; ++i) {
        const std::int64_t before = TscNow();
        const std::int64_t ns = MonotonicNs();
        const std::int64_t after = TscNow();
        if (after < before) continue;
        if (bestWidth < 0 || after - before < bestWidth) {
            bestWidth = after - before;
            best.tsc = 0.5 * (static_cast<double>(before) + static_cast<double>(after));
            best.ns = static_cast<double>(ns);
        }
    }
    return best;
}

// Ticks per second of the counter, measured against the monotonic clock
// over 20 ms (a few parts per million; the synchronisation fits the rest);
// 0 when the counter is not to be used.
std::int64_t MeasureTscFrequency() {
    if (!TscUsable()) return 0;
    const Pair start = ReadPair();
    const timespec pause{0, 20000000};
    nanosleep(&pause, nullptr);
    const Pair end = ReadPair();
    if (!(end.ns - start.ns > 1e7) || !(end.tsc > start.tsc)) return 0;
    return static_cast<std::int64_t>((end.tsc - start.tsc) * 1e9 / (end.ns - start.ns) + 0.5);
}

// Measured once, on first use.
std::int64_t TscFrequency() {
    static const std::int64_t frequency = MeasureTscFrequency();
    return frequency;
}

#endif

}  // namespace

std::int64_t CounterNow() {
#ifdef VEX_CLOCK_TSC
    if (TscFrequency() != 0) return TscNow();
#endif
    return MonotonicNs();
}

std::int64_t CounterFrequency() {
#ifdef VEX_CLOCK_TSC
    if (const std::int64_t frequency = TscFrequency(); frequency != 0) return frequency;
#endif
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
