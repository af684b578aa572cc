// TideText.h - the texts of tide series in the tool: UTC time texts, and
// the text tide tables that `vex tide import` reads (one line per value:
// a date, a time in one of the forms of vex::TideTimeFormats, a height).
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vextool {

// "YYYY-MM-DD HH:MM:SS" of a time value in UTC, with ".mmm" when it has a
// fraction of a second; outside 1970-3000 the time value itself
// ("%.17g ms").
std::string UtcText(double t);
// The same as ISO 8601: "YYYY-MM-DDTHH:MM:SS[.mmm]Z"; outside 1970-3000
// the bare number of milliseconds.
std::string IsoUtcText(double t);

// Which time forms a tide table may use.
enum class TimeForm { either, hoursMinutes, hoursMinutesSeconds };
// "HM" or "HMS" (any case), the names of vex::TideTimeFormats.
bool ParseTimeForm(std::string_view name, TimeForm& form);
// "HM (HH:MM) or HMS (HH:MM:SS)".
std::string TimeFormNames();

// Reads a tide table: per line a date YYYY-MM-DD, a UTC time HH:MM or
// HH:MM:SS (as form allows) and a finite height, separated by spaces, tabs,
// commas or semicolons. Blank lines and lines whose first non-blank
// character is # are skipped; CR LF and LF both end lines. rows receive
// (time value, height) in file order. False with badLine set to the
// 1-based number of the first malformed line (rows then incomplete).
bool ParseTideTable(std::string_view text, TimeForm form,
                    std::vector<std::pair<double, double>>& rows, int& badLine);

}  // namespace vextool
