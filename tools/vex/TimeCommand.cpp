// vex time: the synchronised time now, or one given time, in every form
// the suite stores or shows: the time value (ms since 1970 UTC), ISO text
// in UTC and local time, Windows file time and the 10-byte sonar record.
#include "Command.h"
#include "Console.h"
#include "ExitCode.h"

#include <base/framework/Format.h>
#include <base/framework/Scan.h>
#include <base/platform/TimeZone.h>
#include <base/time/Time.h>

#include <cmath>
#include <cstring>
#include <memory>
#include <optional>

namespace vextool {
namespace {

struct TimeOptions {
    std::string ms;
    std::string utc;
    std::string local;
    std::string fileTime;
    std::string mq;
};

struct Fields {
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0, millisecond = 0;
};

// "YYYY-MM-DD HH:MM:SS[.mmm]" (a "T" may stand for the space).
std::optional<Fields> ParseIso(std::string text) {
    if (text.size() > 10 && text[10] == 'T') text[10] = ' ';
    Fields f;
    char rest[2] = {};
    const int n = vex::Scan(text, "%4d-%2d-%2d %2d:%2d:%2d.%3d%1s", &f.year, &f.month, &f.day,
                            &f.hour, &f.minute, &f.second, &f.millisecond, rest);
    if (n != 6 && n != 7) return std::nullopt;
    if (f.month < 1 || f.month > 12 || f.day < 1 || f.day > 31 || f.hour > 23 || f.minute > 59 ||
        f.second > 59 || f.millisecond < 0) {
        return std::nullopt;
    }
    return f;
}

std::string UtcIso(double t) {
    const double seconds = std::floor(t / 1000.0);
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
    if (!vex::CExTime::TimeToUtcDate(static_cast<std::time_t>(seconds), year, month, day, hour,
                                     minute, second)) {
        return "(out of range)";
    }
    return vex::Format("%04d-%02d-%02d %02d:%02d:%02d.%03d", year, month, day, hour, minute, second,
                       static_cast<int>(t - seconds * 1000.0));
}

std::string MqHex(const vex::TIME_MQ& record) {
    unsigned char bytes[sizeof(vex::TIME_MQ)];
    std::memcpy(bytes, &record, sizeof bytes);
    std::string hex;
    for (const unsigned char b : bytes)
        hex += vex::Format("%02X", b);
    return hex;
}

std::optional<vex::TIME_MQ> ParseMq(const std::string& hex) {
    if (hex.size() != 2 * sizeof(vex::TIME_MQ)) return std::nullopt;
    unsigned char bytes[sizeof(vex::TIME_MQ)];
    for (std::size_t i = 0; i < sizeof bytes; ++i) {
        unsigned value = 0;
        if (vex::Scan(std::string_view(hex).substr(2 * i, 2), "%2x", &value) != 1)
            return std::nullopt;
        bytes[i] = static_cast<unsigned char>(value);
    }
    vex::TIME_MQ record;
    std::memcpy(&record, bytes, sizeof bytes);
    return record;
}

int RunTime(const TimeOptions& o) {
    const int given =
        !o.ms.empty() + !o.utc.empty() + !o.local.empty() + !o.fileTime.empty() + !o.mq.empty();
    if (given > 1)
        return Fail(kUsage, "give at most one of --ms, --utc, --local, --filetime, --mq");
    double t = 0;
    if (!o.ms.empty()) {
        if (vex::Scan(o.ms, "%lf", &t) != 1 || !std::isfinite(t))
            return Fail(kUsage, "--ms: not a number: " + o.ms);
    } else if (!o.utc.empty() || !o.local.empty()) {
        const auto f = ParseIso(o.utc.empty() ? o.local : o.utc);
        if (!f) return Fail(kUsage, "expected a time as YYYY-MM-DD HH:MM:SS[.mmm]");
        std::time_t seconds = 0;
        if (!o.utc.empty()) {
            seconds = vex::CExTime::UtcDateToTime(f->year, f->month, f->day, f->hour, f->minute,
                                                  f->second);
        } else {
            std::tm fields{};
            fields.tm_year = f->year - 1900;
            fields.tm_mon = f->month - 1;
            fields.tm_mday = f->day;
            fields.tm_hour = f->hour;
            fields.tm_min = f->minute;
            fields.tm_sec = f->second;
            fields.tm_isdst = -1;
            seconds = vex::platform::FromLocalCalendar(fields);
        }
        t = static_cast<double>(seconds) * 1000.0 + f->millisecond;
    } else if (!o.fileTime.empty()) {
        unsigned long long fileTime = 0;
        if (vex::Scan(o.fileTime, "%llu", &fileTime) != 1)
            return Fail(kUsage, "--filetime: not a number");
        t = vex::CExTime::FileTimeToVexTime(fileTime);
    } else if (!o.mq.empty()) {
        const auto record = ParseMq(o.mq);
        if (!record)
            return Fail(kUsage, "--mq: expected 20 hex digits (the 10 bytes of the record)");
        t = vex::TimeFromMq(*record);
    } else {
        t = vex::CExTime::GetCurTime();
    }
    PrintLine(vex::Format("time value  %.3f ms since 1970-01-01 UTC", t));
    PrintLine("UTC         " + UtcIso(t));
    PrintLine("local       " + vex::CExTime::TimeToStringISOFormat(t, true).ToUtf8());
    PrintLine(vex::Format("file time   %llu", vex::CExTime::VexTimeToFileTime(t)));
    PrintLine("sonar (MQ)  " + MqHex(vex::TimeToMq(t)));
    PrintLine("stamp       " + std::string(vex::CExTime::GetTimeStampString(t).GetString()));
    return kSuccess;
}

}  // namespace

void AddTimeCommand(CLI::App& app, Action& run) {
    auto o = std::make_shared<TimeOptions>();
    CLI::App* cmd = app.add_subcommand(
        "time", "The time now (synchronised), or convert a given time between its forms");
    cmd->add_option("--ms", o->ms, "a time value: milliseconds since 1970-01-01 UTC");
    cmd->add_option("--utc", o->utc, "UTC text YYYY-MM-DD HH:MM:SS[.mmm]");
    cmd->add_option("--local", o->local, "local text YYYY-MM-DD HH:MM:SS[.mmm]");
    cmd->add_option("--filetime", o->fileTime, "Windows file time (100 ns since 1601)");
    cmd->add_option("--mq", o->mq, "the 10-byte sonar time record as 20 hex digits");
    cmd->footer("Example: vex time --utc \"2026-11-22 12:34:56.250\"");
    cmd->callback([o, &run] { run = [o] { return RunTime(*o); }; });
}

}  // namespace vextool
