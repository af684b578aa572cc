// vex tide: tide files (binary series of time and height) - show a summary,
// export them as CSV, import them from a text tide table, plot them as SVG.
#include "Command.h"
#include "Console.h"
#include "ExitCode.h"
#include "InputFile.h"
#include "TideText.h"

#include <base/framework/AtomicFile.h>
#include <base/framework/Format.h>
#include <base/framework/SvgDC.h>
#include <base/strings/NumberFormat.h>
#include <base/strings/Precision.h>
#include <base/survey/TideFile.h>
#include <base/survey/TidePlot.h>
#include <base/time/TimeSpan.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace vextool {
namespace {

namespace fs = std::filesystem;

struct TideOptions {
    std::string file;
    std::string output;
    std::string timeFormat;
    std::string title;
    int width = 900;
    int height = 480;
};

fs::path PathOf(const std::string& utf8) {
    return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

// Opens the tide file at path; on failure prints why and returns the exit code.
std::optional<int> OpenTide(const std::string& path, vex::TideFile& tide) {
    std::error_code ec;
    if (!fs::is_regular_file(PathOf(path), ec)) return Fail(kInputOutput, path, "no such file");
    if (auto refused = RefuseOversized(path)) return refused;
    if (!tide.FileOpen(vex::CString::FromUtf8(path), false))
        return Fail(kInputOutput, path, "cannot be opened for reading and writing");
    return std::nullopt;
}

// As many decimals as the height carries; huge values (from a damaged
// file) in exponent form rather than hundreds of digits.
std::string Height(double h) {
    if (std::fabs(h) < 1e9) return vex::FormatDouble(h, vex::GetDoublePrecision(h), 0).ToUtf8();
    return vex::FormatDouble(h, u"%.17g").ToUtf8();
}

int Show(const TideOptions& o) {
    vex::TideFile tide;
    if (auto failed = OpenTide(o.file, tide)) return *failed;
    std::error_code ec;
    const auto bytes = fs::file_size(PathOf(o.file), ec);
    const auto& values = tide.GetValues();
    PrintLine("file         " + o.file + " (times in UTC)");
    PrintLine(vex::Format("records      %d loaded of %llu in the file (%llu bytes)",
                          tide.GetNumValues(), static_cast<unsigned long long>(bytes / 16),
                          static_cast<unsigned long long>(bytes)));
    if (values.empty()) return kSuccess;
    PrintLine("first        " + UtcText(values.begin()->first));
    PrintLine("last         " + UtcText(values.rbegin()->first));
    double low = INFINITY, high = -INFINITY, lowAt = 0, highAt = 0;
    double gap = 0, gapFrom = 0;
    int unusable = 0;
    const double* previous = nullptr;
    for (const auto& [time, height] : values) {
        if (!std::isfinite(height)) {
            ++unusable;
        } else {
            if (height < low) {
                low = height;
                lowAt = time;
            }
            if (height > high) {
                high = height;
                highAt = time;
            }
        }
        if (previous && time - *previous > gap) {
            gap = time - *previous;
            gapFrom = *previous;
        }
        previous = &time;
    }
    if (low <= high) {
        PrintLine("lowest       " + Height(low) + " at " + UtcText(lowAt));
        PrintLine("highest      " + Height(high) + " at " + UtcText(highAt));
    }
    if (unusable > 0) PrintLine(vex::Format("unusable     %d heights (NaN or infinite)", unusable));
    if (values.size() > 1 && std::isfinite(gap)) {
        PrintLine("largest gap  " + vex::TimeSpanToString(gap, true).ToUtf8() + " after " +
                  UtcText(gapFrom));
    }
    return kSuccess;
}

int Export(const TideOptions& o) {
    vex::TideFile tide;
    if (auto failed = OpenTide(o.file, tide)) return *failed;
    std::string csv = "time_utc,height\r\n";
    for (const auto& [time, height] : tide.GetValues())
        csv += IsoUtcText(time) + "," + Height(height) + "\r\n";
    if (o.output.empty()) {
        Print(csv);
        return kSuccess;
    }
    if (!vex::AtomicWriteFile(vex::CString::FromUtf8(o.output), std::as_bytes(std::span(csv))))
        return Fail(kInputOutput, o.output, "cannot be written");
    return kSuccess;
}

int Import(const TideOptions& o) {
    TimeForm form = TimeForm::either;
    if (!o.timeFormat.empty() && !ParseTimeForm(o.timeFormat, form))
        return Fail(kUsage, "--time-format: expected " + TimeFormNames());
    std::string text;
    if (auto failed = ReadInputFile(o.file, text)) return *failed;
    std::vector<std::pair<double, double>> rows;
    int badLine = 0;
    if (!ParseTideTable(text, form, rows, badLine)) {
        return Fail(kInputOutput, o.file + ":" + std::to_string(badLine),
                    "malformed line: expected DATE (YYYY-MM-DD), TIME (" + TimeFormNames() +
                        ") and HEIGHT; nothing written");
    }

    // An existing file is replaced in one step by the save; creating it
    // anew would empty it before the values are written.
    vex::TideFile tide;
    const vex::CString target = vex::CString::FromUtf8(o.output);
    std::error_code ec;
    const bool exists = fs::exists(PathOf(o.output), ec);
    if (!tide.FileOpen(target, !exists))
        return Fail(kInputOutput, o.output, "cannot be opened for writing");
    std::vector<double> old;
    for (const auto& pair : tide.GetValues())
        old.push_back(pair.first);
    for (const double time : old)
        tide.DeleteTideValue(time);
    for (const auto& [time, height] : rows)
        tide.AddTideValue(time, height);
    if (!tide.FileSave()) return Fail(kInputOutput, o.output, "cannot be written");
    PrintLine(vex::Format("%d tide values written to ", tide.GetNumValues()) + o.output);
    // Loading thins the series; say so when this one will lose values.
    vex::TideFile reloaded;
    if (reloaded.FileOpen(target, false) && reloaded.GetNumValues() < tide.GetNumValues()) {
        PrintLine(
            vex::Format("warning: loading the file keeps only %d of them: a value is kept "
                        "only 30 s or more after the one kept before it",
                        reloaded.GetNumValues()));
    }
    return kSuccess;
}

int Plot(const TideOptions& o) {
    if (o.width < 200 || o.height < 150 || o.width > 20000 || o.height > 20000)
        return Fail(kUsage, "--width and --height: 200 x 150 to 20000 x 20000 pixels");
    vex::TideFile tide;
    if (auto failed = OpenTide(o.file, tide)) return *failed;
    vex::SvgDC dc(o.width, o.height);
    const std::string title = o.title.empty() ? PathOf(o.file).filename().string() : o.title;
    if (!vex::DrawTideCurve(dc, tide, vex::CRect(0, 0, o.width, o.height),
                            vex::CString::FromUtf8(title))) {
        return Fail(kInputOutput, o.file, "has fewer than two drawable tide values");
    }
    if (!dc.Save(vex::CString::FromUtf8(o.output)))
        return Fail(kInputOutput, o.output, "cannot be written");
    return kSuccess;
}

CLI::App* Sub(CLI::App& tide, const char* name, const char* help, const char* example,
              const std::shared_ptr<TideOptions>& o, int (*fn)(const TideOptions&), Action& run) {
    CLI::App* cmd = tide.add_subcommand(name, help);
    cmd->footer(std::string("Example: ") + example);
    cmd->callback([o, fn, &run] { run = [o, fn] { return fn(*o); }; });
    return cmd;
}

}  // namespace

void AddTideCommand(CLI::App& app, Action& run) {
    auto o = std::make_shared<TideOptions>();
    CLI::App* tide = app.add_subcommand(
        "tide", "Tide files (time and height series): show, export, import, plot");
    tide->require_subcommand(1);

    CLI::App* show = Sub(*tide, "show",
                         "Count, first and last time (UTC), lowest and highest height, largest gap",
                         "vex tide show harbour.tid", o, Show, run);
    show->add_option("file", o->file, "tide file")->required();

    CLI::App* exp = Sub(*tide, "export",
                        "Write the series as CSV: UTC time (ISO 8601), height; times outside "
                        "1970-3000 as the time value in milliseconds",
                        "vex tide export harbour.tid -o harbour.csv", o, Export, run);
    exp->add_option("file", o->file, "tide file")->required();
    exp->add_option("-o,--output", o->output, "CSV file to write instead of standard output");

    CLI::App* imp = Sub(*tide, "import",
                        "Make a tide file from text lines of DATE TIME HEIGHT (UTC; blank lines "
                        "and lines starting with # skipped)",
                        "vex tide import harbour.txt -o harbour.tid", o, Import, run);
    imp->add_option("input", o->file, "text tide table: YYYY-MM-DD HH:MM[:SS] HEIGHT per line")
        ->required();
    imp->add_option("-o,--output", o->output, "tide file to write")->required();
    imp->add_option("--time-format", o->timeFormat,
                    "accept only this time form: " + TimeFormNames() + " (default: either)");

    CLI::App* plot = Sub(*tide, "plot", "Draw the tide curve against time as an SVG picture",
                         "vex tide plot harbour.tid -o harbour.svg", o, Plot, run);
    plot->add_option("file", o->file, "tide file")->required();
    plot->add_option("-o,--output", o->output, "SVG file to write")->required();
    plot->add_option("--width", o->width, "picture width in pixels (default 900)");
    plot->add_option("--height", o->height, "picture height in pixels (default 480)");
    plot->add_option("--title", o->title, "title above the plot (default: the file name)");
}

}  // namespace vextool
