#include <base/time/TimeSpan.h>

#include <base/strings/Precision.h>

#include <cmath>
#include <cstdint>

namespace vex {

CString TimeSpanToString(double ms, bool seconds) {
    double wholeSeconds = std::trunc(ms / 1000.0);
    if (std::isnan(wholeSeconds)) wholeSeconds = 0.0;
    CString text;
    if (wholeSeconds < 0.0) {
        text = u"-";
        wholeSeconds = -wholeSeconds;
    }
    // Beyond 2^62 s (1.5e14 years) the count is held there.
    const auto span = static_cast<std::int64_t>(std::fmin(wholeSeconds, 0x1p62));
    const std::int64_t days = span / 86400;
    if (days > 0) text.AppendFormat(u"%lld days ", static_cast<long long>(days));
    text.AppendFormat(u"%02d:%02d", static_cast<int>(span / 3600 % 24),
                      static_cast<int>(span / 60 % 60));
    if (seconds) text.AppendFormat(u":%02d", static_cast<int>(span % 60));
    return text;
}

double TimeInterval(double s) {
    if (s <= 15.0) return Double125(s);
    // Steps that a clock face divides evenly, each for the spans up to about
    // one and a half times itself.
    static constexpr struct {
        double below;
        double step;
    } kSteps[] = {{45, 30},       {90, 60},       {180, 120},     {450, 300},     {1200, 600},
                  {2700, 1800},   {5400, 3600},   {10800, 7200},  {18000, 14400}, {25200, 21600},
                  {32400, 28800}, {64800, 43200}, {129600, 86400}};
    for (const auto& row : kSteps) {
        if (s < row.below) return row.step;
    }
    return Double125(s / 86400.0) * 86400.0;
}

int MinuteInterval(int minutes) {
    if (minutes <= 0 || minutes >= 60) return 0;
    if (minutes > 50) return 55;
    return (minutes + 4) / 5 * 5;
}

}  // namespace vex
