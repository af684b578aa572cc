// Tide files of any length and content: opening never fails badly, the kept
// records come out in ascending time, and a save of what was read reads
// back to the same series.
#include "FuzzSupport.h"

#include <base/survey/TideFile.h>

#include <cmath>
#include <string>
#include <vector>

namespace {

std::vector<std::pair<double, double>> Series(vex::TideFile& tide) {
    std::vector<std::pair<double, double>> series;
    double time = 0, value = 0;
    for (bool more = tide.GetFirstTideValue(time, value); more;
         more = tide.GetNextTideValue(time, value)) {
        series.emplace_back(time, value);
    }
    return series;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vex;
    const auto input = fuzz::TempPath("input.tid");
    fuzz::WriteFile(input, data, size);
    TideFile tide;
    if (!tide.FileOpen(CString(input.u16string()), false)) return 0;
    const auto series = Series(tide);
    fuzz::Require(static_cast<int>(series.size()) == tide.GetNumValues(), "every value is walked");
    for (std::size_t i = 1; i < series.size(); ++i) {
        fuzz::Require(series[i - 1].first < series[i].first, "times ascend");
    }
    double first = 0, last = 0, time = 0, value = 0;
    tide.GetTimeSpan(first, last);
    for (const auto& [t, v] : series) {
        time = t + 1.0;
        tide.GetValueOnOrBefore(time, value);
        time = t;
        tide.GetValueAfter(time, value);
    }
    // A changed series saves, and the saved file reads back to it.
    if (!series.empty() && std::isfinite(series.back().first)) {
        tide.AddTideValue(series.back().first + 60000.0, 1.25);
        const auto expected = Series(tide);
        fuzz::Require(tide.FileSave(), "a changed series saves");
        tide.FileClose(false);
        TideFile again;
        fuzz::Require(again.FileOpen(CString(input.u16string()), false), "a saved file opens");
        fuzz::Require(Series(again).size() <= expected.size(), "reading back adds nothing");
    }
    return 0;
}
