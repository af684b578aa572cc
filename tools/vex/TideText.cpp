#include "TideText.h"

#include <base/framework/Format.h>
#include <base/framework/Scan.h>
#include <base/survey/TideFile.h>
#include <base/time/ExTime.h>

#include <cmath>
#include <ctime>

namespace vextool {
namespace {

// The UTC fields of t and its milliseconds; false outside 1970-3000.
bool Fields(double t, int (&f)[6], int& ms) {
    if (!(t >= 0 && t < 32503680000000.0)) return false;  // 3000-01-01
    const double seconds = std::floor(t / 1000.0);
    ms = static_cast<int>(t - seconds * 1000.0);
    return vex::CExTime::TimeToUtcDate(static_cast<std::time_t>(seconds), f[0], f[1], f[2], f[3],
                                       f[4], f[5]);
}

std::string Text(double t, const char* between, const char* after) {
    int f[6];
    int ms = 0;
    if (!Fields(t, f, ms)) return vex::Format("%.17g%s", t, *after ? "" : " ms");
    std::string text =
        vex::Format("%04d-%02d-%02d%s%02d:%02d:%02d", f[0], f[1], f[2], between, f[3], f[4], f[5]);
    if (t != std::floor(t / 1000.0) * 1000.0) text += vex::Format(".%03d", ms);
    return text + after;
}

bool IsDigits(std::string_view s, std::size_t at, std::size_t count) {
    if (at + count > s.size()) return false;
    for (std::size_t i = at; i < at + count; ++i)
        if (s[i] < '0' || s[i] > '9') return false;
    return true;
}

int Number(std::string_view s, std::size_t at, std::size_t count) {
    int n = 0;
    for (std::size_t i = at; i < at + count; ++i)
        n = n * 10 + (s[i] - '0');
    return n;
}

bool IsSeparator(char c) {
    return c == ' ' || c == '\t' || c == ',' || c == ';' || c == '\r';
}

std::vector<std::string_view> Split(std::string_view line) {
    std::vector<std::string_view> fields;
    std::size_t i = 0;
    while (i < line.size()) {
        while (i < line.size() && IsSeparator(line[i]))
            ++i;
        const std::size_t start = i;
        while (i < line.size() && !IsSeparator(line[i]))
            ++i;
        if (i > start) fields.push_back(line.substr(start, i - start));
    }
    return fields;
}

int DaysInMonth(int year, int month) {
    static const int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && vex::CExTime::LeapYear(year) ? 29 : days[month - 1];
}

bool ParseRow(std::string_view date, std::string_view time, std::string_view height, TimeForm form,
              double& t, double& h) {
    if (date.size() != 10 || !IsDigits(date, 0, 4) || date[4] != '-' || !IsDigits(date, 5, 2) ||
        date[7] != '-' || !IsDigits(date, 8, 2)) {
        return false;
    }
    const int year = Number(date, 0, 4), month = Number(date, 5, 2), day = Number(date, 8, 2);
    const bool hm = time.size() == 5 && form != TimeForm::hoursMinutesSeconds;
    const bool hms = time.size() == 8 && form != TimeForm::hoursMinutes && time[5] == ':' &&
                     IsDigits(time, 6, 2);
    if ((!hm && !hms) || !IsDigits(time, 0, 2) || time[2] != ':' || !IsDigits(time, 3, 2))
        return false;
    const int hour = Number(time, 0, 2), minute = Number(time, 3, 2);
    const int second = hms ? Number(time, 6, 2) : 0;
    if (year < 1970 || year > 2999 || month < 1 || month > 12 || day < 1 ||
        day > DaysInMonth(year, month) || hour > 23 || minute > 59 || second > 59) {
        return false;
    }
    // 0 is also the answer for the epoch itself, which is a valid time.
    const std::time_t seconds = vex::CExTime::UtcDateToTime(year, month, day, hour, minute, second);
    char rest[2] = {};
    if (vex::Scan(height, "%lf%1s", &h, rest) != 1 || !std::isfinite(h)) return false;
    t = static_cast<double>(seconds) * 1000.0;
    return true;
}

}  // namespace

std::string UtcText(double t) {
    return Text(t, " ", "");
}

std::string IsoUtcText(double t) {
    return Text(t, "T", "Z");
}

bool ParseTimeForm(std::string_view name, TimeForm& form) {
    const vex::CString given = vex::CString::FromUtf8(name);
    if (given.CompareNoCase(vex::CString(vex::TideTimeFormats[0])) == 0) {
        form = TimeForm::hoursMinutes;
    } else if (given.CompareNoCase(vex::CString(vex::TideTimeFormats[1])) == 0) {
        form = TimeForm::hoursMinutesSeconds;
    } else {
        return false;
    }
    return true;
}

std::string TimeFormNames() {
    return vex::CString(vex::TideTimeFormats[0]).ToUtf8() + " (HH:MM) or " +
           vex::CString(vex::TideTimeFormats[1]).ToUtf8() + " (HH:MM:SS)";
}

bool ParseTideTable(std::string_view text, TimeForm form,
                    std::vector<std::pair<double, double>>& rows, int& badLine) {
    if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
    int number = 0;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        ++number;
        const auto fields = Split(line);
        if (fields.empty() || fields[0].starts_with('#')) continue;
        double t = 0, h = 0;
        if (fields.size() != 3 || !ParseRow(fields[0], fields[1], fields[2], form, t, h)) {
            badLine = number;
            return false;
        }
        rows.emplace_back(t, h);
    }
    return true;
}

}  // namespace vextool
