#include <base/platform/Clock.h>

#include <windows.h>

namespace vex::platform {

std::int64_t CounterNow() {
    LARGE_INTEGER v;
    QueryPerformanceCounter(&v);
    return v.QuadPart;
}

std::int64_t CounterFrequency() {
    static const std::int64_t frequency = [] {
        LARGE_INTEGER f;
        QueryPerformanceFrequency(&f);
        return f.QuadPart;
    }();
    return frequency;
}

std::uint64_t SystemTimeAsFileTime() {
    FILETIME ft;
    GetSystemTimePreciseAsFileTime(&ft);
    return (static_cast<std::uint64_t>(ft.dwHighDateTime) << 32) | ft.dwLowDateTime;
}

bool SetSystemTimeUtc(const UtcCalendarTime& t) {
    SYSTEMTIME st{};
    st.wYear = static_cast<WORD>(t.year);
    st.wMonth = static_cast<WORD>(t.month);
    st.wDay = static_cast<WORD>(t.day);
    st.wHour = static_cast<WORD>(t.hour);
    st.wMinute = static_cast<WORD>(t.minute);
    st.wSecond = static_cast<WORD>(t.second);
    st.wMilliseconds = static_cast<WORD>(t.millisecond);
    FILETIME check;
    if (!SystemTimeToFileTime(&st, &check)) return false;
    return SetSystemTime(&st) != FALSE;
}

}  // namespace vex::platform
