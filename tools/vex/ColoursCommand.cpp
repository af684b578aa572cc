// vex colours: colour tables of depth and depth-difference displays - show,
// make, dredge, legend, lookup, and conversion to and from GMT's CPT files.
#include "Command.h"
#include "Console.h"
#include "ExitCode.h"
#include "InputFile.h"

#include <base/colour/ColorLegend.h>
#include <base/colour/ColorTable.h>
#include <base/colour/CptFile.h>
#include <base/colour/NamedPalettes.h>
#include <base/config/FileObject.h>
#include <base/errors/FileObjectError.h>
#include <base/framework/Format.h>
#include <base/framework/Scan.h>
#include <base/framework/SvgDC.h>
#include <base/platform/Console.h>
#include <base/strings/NumberFormat.h>
#include <base/strings/Precision.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vextool {
namespace {

using vex::COLORREF;
using vex::ColorTable;
using vex::CString;

bool IsCptName(const std::string& name) {
    return name.size() > 4 &&
           (name.substr(name.size() - 4) == ".cpt" || name.substr(name.size() - 4) == ".CPT");
}

// Reads a colour table file, or a CPT file by its extension; an exit code on failure.
std::optional<int> LoadTable(const std::string& name, ColorTable& table) {
    if (auto refused = RefuseOversized(name)) return refused;
    if (IsCptName(name)) {
        vex::CptPalette cpt;
        CString error;
        if (!vex::ReadCptFile(CString::FromUtf8(name), cpt, error)) {
            return Fail(kInputOutput, name, error.ToUtf8());
        }
        table = cpt.table;
        return std::nullopt;
    }
    vex::FileObject file;
    if (!file.FileOpen(CString::FromUtf8(name))) {
        return Fail(kInputOutput, name,
                    file.GetErrorStatus() == vex::FileObject::statusNoSections
                        ? "malformed (no section)"
                        : "cannot be read");
    }
    // Throw mode names the section and key of the first unreadable item.
    file.ThrowExceptions(true);
    try {
        if (!table.FileOpen(file)) {
            return Fail(kInputOutput, name, "a value without a colour in section [Colors]");
        }
    } catch (const vex::FileObjectError& e) {
        return Fail(kInputOutput, name,
                    "[" + e.Section().ToUtf8() + "] " + e.Key().ToUtf8() + ": unreadable value");
    }
    return std::nullopt;
}

int SaveTable(const ColorTable& table, const std::string& name) {
    if (IsCptName(name)) {
        vex::CptPalette cpt;
        cpt.table = table;
        return vex::WriteCptFile(CString::FromUtf8(name), cpt)
                   ? kSuccess
                   : Fail(kInputOutput, name, "cannot be written");
    }
    vex::FileObject file;
    table.FileSave(file);
    return file.FileSave(CString::FromUtf8(name)) ? kSuccess
                                                  : Fail(kInputOutput, name, "cannot be written");
}

// "r, g, b" (the table files' form) or any CPT colour text.
bool ParseColour(const std::string& text, COLORREF& colour) {
    int r = 0;
    int g = 0;
    int b = 0;
    if (vex::Scan(text, "%d, %d, %d", &r, &g, &b) == 3 && r >= 0 && r < 256 && g >= 0 && g < 256 &&
        b >= 0 && b < 256 && text.find('/') == std::string::npos) {
        colour =
            vex::RGB(static_cast<unsigned>(r), static_cast<unsigned>(g), static_cast<unsigned>(b));
        return true;
    }
    return vex::ParseCptColor(text, colour);
}

std::string ValueText(double value) {
    return vex::FormatDouble(value, std::min(vex::GetDoublePrecision(value), 6), 0).ToUtf8();
}

std::string ColourText(COLORREF c) {
    return vex::Format("%3u, %3u, %3u  #%02X%02X%02X", vex::GetRValue(c), vex::GetGValue(c),
                       vex::GetBValue(c), vex::GetRValue(c), vex::GetGValue(c), vex::GetBValue(c));
}

std::string Swatch(COLORREF c, bool escapes) {
    if (!escapes) return "";
    return vex::Format("\x1b[48;2;%u;%u;%um    \x1b[0m ", vex::GetRValue(c), vex::GetGValue(c),
                       vex::GetBValue(c));
}

// Swatches only where a terminal shows 24-bit colour: COLORTERM says so.
bool UseEscapes(const std::string& mode) {
    if (mode == "always") return true;
    if (mode == "never") return false;
    const char* colorTerm = std::getenv("COLORTERM");
    const std::string term = colorTerm ? colorTerm : "";
    return (term == "truecolor" || term == "24bit") && vex::platform::StdoutTakesEscapes();
}

struct ShowOptions {
    std::string file;
    std::string colour = "auto";
};

int RunShow(const ShowOptions& o) {
    ColorTable table;
    if (auto failed = LoadTable(o.file, table)) return *failed;
    const bool escapes = UseEscapes(o.colour);
    PrintLine(vex::Format("%d entries, %d locked", table.NumEntries(), table.NumLocked()));
    PrintLine(vex::Format("%5s  %12s  %s%-23s  %-6s  %s", "entry", "from", escapes ? "     " : "",
                          "colour", "locked", "name"));
    PrintLine(vex::Format("%5s  %12s  ", "low", "below") + Swatch(table.LowColor(), escapes) +
              ColourText(table.LowColor()) + "          " + table.LowColorName().ToUtf8());
    for (int i = 0; i < table.NumEntries(); ++i) {
        PrintLine(vex::Format("%5d  %12s  ", i, ValueText(table.EntryValue(i)).c_str()) +
                  Swatch(table.EntryColor(i), escapes) + ColourText(table.EntryColor(i)) +
                  (table.EntryLocked(i) ? "  yes     " : "  no      ") +
                  table.EntryName(i).ToUtf8());
    }
    if (table.HasDredgeDiffSection()) {
        PrintLine(vex::Format("dredge difference: under-dredge limit %s, over-dredge limit %s",
                              ValueText(table.GetUnderDredgeLimit()).c_str(),
                              ValueText(table.GetOverDredgeLimit()).c_str()));
    }
    return kSuccess;
}

struct MakeOptions {
    bool rainbow = false;
    std::vector<std::string> rgb;
    std::string palette;
    bool reverse = false;
    double min = 0;
    double max = 0;
    int count = 0;
    std::string output;
};

int RunMake(const MakeOptions& o) {
    ColorTable table;
    const int chosen = (o.rainbow ? 1 : 0) + (o.rgb.empty() ? 0 : 1) + (o.palette.empty() ? 0 : 1);
    if (chosen != 1) return Fail(kUsage, "choose one of --rainbow, --rgb FROM TO, --palette NAME");
    if (!(o.min < o.max)) return Fail(kUsage, "--min must be below --max");
    if (o.rainbow) {
        table.SetRange(o.min, o.max, o.count, true, o.reverse);
    } else if (!o.rgb.empty()) {
        COLORREF from = 0;
        COLORREF to = 0;
        if (!ParseColour(o.rgb[0], from)) return Fail(kUsage, "not a colour: " + o.rgb[0]);
        if (!ParseColour(o.rgb[1], to)) return Fail(kUsage, "not a colour: " + o.rgb[1]);
        if (o.reverse) std::swap(from, to);
        table.SetRangeRGB(o.min, o.max, o.count, from, to);
    } else {
        CString name = CString::FromUtf8(o.palette);
        if (o.reverse) name += u"_r";
        const auto palette = vex::GetNamedPalette(name);
        if (!palette) {
            std::string known;
            for (const CString& n : vex::GetPaletteNames())
                known += " " + n.ToUtf8();
            return Fail(kUsage, "no palette \"" + o.palette + "\"; known:" + known);
        }
        // A table of count colours uses palette entries 0 .. count - 2 (the
        // first also as LowColor): spread those over the whole palette.
        std::vector<vex::PALETTEENTRY> picked(static_cast<std::size_t>(o.count));
        for (int i = 0; i < o.count; ++i) {
            const int at = std::min(i, o.count - 2) * 255 / (o.count - 2);
            picked[static_cast<std::size_t>(i)] = palette->entries[static_cast<std::size_t>(at)];
        }
        table.SetColorPalette(o.min, o.max, o.count, picked.data());
    }
    return SaveTable(table, o.output);
}

struct DredgeOptions {
    double under = 0.5;
    double over = -0.5;
    unsigned underCount = 5;
    unsigned tolCount = 5;
    unsigned overCount = 5;
    std::string output;
};

int RunDredge(const DredgeOptions& o) {
    ColorTable table;
    COLORREF min = 0;
    COLORREF max = 0;
    unsigned n = 0;
    table.GetUnderDredgeColorRange(min, max, n);
    table.SetUnderDredgeColorRange(min, max, o.underCount);
    table.GetInTolColorRange(min, max, n);
    table.SetInTolColorRange(min, max, o.tolCount);
    table.GetOverDredgeColorRange(min, max, n);
    table.SetOverDredgeColorRange(min, max, o.overCount);
    table.SetUnderDredgeLimit(o.under);
    table.SetOverDredgeLimit(o.over);
    table.SetDredgeDiffColTab(true);
    table.GenerateDredgeDiffColorTable();
    return SaveTable(table, o.output);
}

struct LegendOptions {
    std::string file;
    std::string output;
    int width = 240;
    int height = 480;
    std::string title;
};

int RunLegend(const LegendOptions& o) {
    ColorTable table;
    if (auto failed = LoadTable(o.file, table)) return *failed;
    vex::SvgDC dc(o.width, o.height);
    dc.SetBackground(vex::RGB(255, 255, 255));
    vex::ColorLegendStyle style;
    style.title = CString::FromUtf8(o.title);
    if (!vex::DrawColorLegend(dc, table, vex::CRect(0, 0, o.width, o.height), style)) {
        return Fail(kUsage, "the legend does not fit in " + std::to_string(o.width) + " x " +
                                std::to_string(o.height) + " pixels");
    }
    return dc.Save(CString::FromUtf8(o.output)) ? kSuccess
                                                : Fail(kInputOutput, o.output, "cannot be written");
}

struct ConvertOptions {
    std::string input;
    std::string output;
    int steps = 1;
};

int RunToCpt(const ConvertOptions& o) {
    ColorTable table;
    if (auto failed = LoadTable(o.input, table)) return *failed;
    vex::CptPalette cpt;
    cpt.table = table;
    if (o.output.empty()) {
        Print(vex::FormatCpt(cpt));
        return kSuccess;
    }
    return vex::WriteCptFile(CString::FromUtf8(o.output), cpt)
               ? kSuccess
               : Fail(kInputOutput, o.output, "cannot be written");
}

int RunFromCpt(const ConvertOptions& o) {
    if (auto refused = RefuseOversized(o.input)) return *refused;
    vex::CptPalette cpt;
    CString error;
    if (!vex::ReadCptFile(CString::FromUtf8(o.input), cpt, error, {o.steps})) {
        return Fail(kInputOutput, o.input, error.ToUtf8());
    }
    return SaveTable(cpt.table, o.output);
}

struct LookupOptions {
    std::string file;
    std::vector<double> values;
};

int RunLookup(const LookupOptions& o) {
    ColorTable table;
    if (auto failed = LoadTable(o.file, table)) return *failed;
    for (double v : o.values) {
        PrintLine(ValueText(v) + "  " + ColourText(table.GetColor(v)) + "  " +
                  table.GetName(v).ToUtf8());
    }
    return kSuccess;
}

}  // namespace

void AddColoursCommand(CLI::App& app, Action& run) {
    CLI::App* colours =
        app.add_subcommand("colours", "Colour tables of depth and difference displays");
    colours->require_subcommand(1);
    colours->footer(
        "Tables are the suite's colour table files (sections Colors, Values, Locks, Names, "
        "DredgeDiff); a name ending in .cpt is a GMT colour palette table.");

    auto show = std::make_shared<ShowOptions>();
    CLI::App* cmd = colours->add_subcommand("show", "List the entries of a colour table");
    cmd->add_option("file", show->file, "colour table or .cpt file")->required();
    cmd->add_option("--colour", show->colour, "swatches: auto (24-bit terminals), always, never")
        ->check(CLI::IsMember({"auto", "always", "never"}))
        ->capture_default_str();
    cmd->footer("Example: vex colours show depth-colours.ini");
    cmd->callback([show, &run] { run = [show] { return RunShow(*show); }; });

    auto make = std::make_shared<MakeOptions>();
    cmd = colours->add_subcommand("make", "Make a colour ramp");
    cmd->add_flag("--rainbow", make->rainbow, "hue ramp from blue to red");
    cmd->add_option("--rgb", make->rgb, "straight ramp between two colours (r,g,b #rrggbb name)")
        ->expected(2);
    cmd->add_option("--palette", make->palette, "viridis, cividis or vik");
    cmd->add_flag("--reverse", make->reverse, "run the ramp the other way");
    cmd->add_option("--min", make->min, "value where the ramp starts")->required();
    cmd->add_option("--max", make->max, "value where it ends")->required();
    cmd->add_option("--count", make->count, "number of colours")
        ->required()
        ->check(CLI::Range(3, 100000));
    cmd->add_option("-o,--output", make->output, "table file to write (.cpt for GMT)")->required();
    cmd->footer(
        "Example: vex colours make --palette viridis --min -30 --max 0 --count 16 -o d.ini");
    cmd->callback([make, &run] { run = [make] { return RunMake(*make); }; });

    auto dredge = std::make_shared<DredgeOptions>();
    cmd = colours->add_subcommand("dredge", "Make a dredge-difference table");
    cmd->add_option("--under-limit", dredge->under, "upper tolerance (too shallow above)")
        ->capture_default_str();
    cmd->add_option("--over-limit", dredge->over, "lower tolerance (too deep below)")
        ->capture_default_str();
    cmd->add_option("--under-count", dredge->underCount, "colours above the tolerance")
        ->check(CLI::Range(0, 1000))
        ->capture_default_str();
    cmd->add_option("--tolerance-count", dredge->tolCount, "colours within the tolerance")
        ->check(CLI::Range(0, 1000))
        ->capture_default_str();
    cmd->add_option("--over-count", dredge->overCount, "colours below the tolerance")
        ->check(CLI::Range(0, 1000))
        ->capture_default_str();
    cmd->add_option("-o,--output", dredge->output, "table file to write")->required();
    cmd->footer("Example: vex colours dredge --under-limit 0.3 --over-limit -0.2 -o diff.ini");
    cmd->callback([dredge, &run] { run = [dredge] { return RunDredge(*dredge); }; });

    auto legend = std::make_shared<LegendOptions>();
    cmd = colours->add_subcommand("legend", "Draw a table as a labelled colour bar (SVG)");
    cmd->add_option("file", legend->file, "colour table or .cpt file")->required();
    cmd->add_option("-o,--output", legend->output, "SVG file to write")->required();
    cmd->add_option("--width", legend->width, "pixels")
        ->check(CLI::Range(20, 10000))
        ->capture_default_str();
    cmd->add_option("--height", legend->height, "pixels")
        ->check(CLI::Range(20, 10000))
        ->capture_default_str();
    cmd->add_option("--title", legend->title, "text above the bar, e.g. the unit");
    cmd->footer("Example: vex colours legend depth-colours.ini -o depth.svg --title m");
    cmd->callback([legend, &run] { run = [legend] { return RunLegend(*legend); }; });

    auto toCpt = std::make_shared<ConvertOptions>();
    cmd = colours->add_subcommand("to-cpt", "Write a table as a GMT colour palette table");
    cmd->add_option("file", toCpt->input, "colour table file")->required();
    cmd->add_option("-o,--output", toCpt->output, "CPT file (default: standard output)");
    cmd->footer("Example: vex colours to-cpt depth-colours.ini -o depth.cpt");
    cmd->callback([toCpt, &run] { run = [toCpt] { return RunToCpt(*toCpt); }; });

    auto fromCpt = std::make_shared<ConvertOptions>();
    cmd = colours->add_subcommand("from-cpt", "Read a GMT colour palette table into a table");
    cmd->add_option("file", fromCpt->input, "CPT file")->required();
    cmd->add_option("-o,--output", fromCpt->output, "colour table file to write")->required();
    cmd->add_option("--steps", fromCpt->steps, "bands made of each continuous slice")
        ->check(CLI::Range(1, 256))
        ->capture_default_str();
    cmd->footer(
        "Example: gmt makecpt -Cviridis -T0/100/10 > v.cpt; vex colours from-cpt v.cpt -o v.ini");
    cmd->callback([fromCpt, &run] { run = [fromCpt] { return RunFromCpt(*fromCpt); }; });

    auto lookup = std::make_shared<LookupOptions>();
    cmd = colours->add_subcommand("lookup", "The colours of values");
    cmd->add_option("file", lookup->file, "colour table or .cpt file")->required();
    cmd->add_option("values", lookup->values, "values to colour")->required();
    cmd->footer("Example: vex colours lookup depth-colours.ini -- -12.5 -3");
    cmd->callback([lookup, &run] { run = [lookup] { return RunLookup(*lookup); }; });
}

}  // namespace vextool
