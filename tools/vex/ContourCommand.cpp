// vex contour: show a vessel contour file's outlines, draw all its view
// sides into one SVG, and pack an outline into its binary string (as hex)
// or unpack one into a contour file.
#include "Command.h"
#include "Console.h"
#include "ExitCode.h"
#include "IniFiles.h"

#include <base/VexBase.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace vextool {
namespace {

using vex::CString;
using vex::VesselContour;

struct ContourOptions {
    std::string file;
    std::string output;
    std::string hex;
    int side = VesselContour::viewPlan;
};

constexpr std::array<const char*, 6> kSideNames = {"plan",  "bottom", "left",
                                                   "right", "front",  "back"};

std::string SideTitle(int side) {
    return std::string(kSideNames[static_cast<std::size_t>(side)]) + " (" +
           VesselContour::GetSectionName(side).ToUtf8() + ")";
}

// Opens path as a contour on side. The settings file is checked first so
// that a missing, binary or malformed file is named as such, rather than
// quietly replaced by the default hull.
std::optional<int> LoadContour(const std::string& path, int side, VesselContour& contour) {
    vex::FileObject check;
    if (auto failed = LoadSettings(path, check)) return failed;
    if (!contour.Create(CString::FromUtf8(path), side, false))
        return Fail(kInputOutput, path, "cannot be read as a contour file");
    return std::nullopt;
}

std::string FlagText(const vex::VesselPoint& point) {
    std::string text;
    if (point.GetFlagA()) text += 'A';
    if (point.GetFlagB()) text += 'B';
    return text.empty() ? "-" : text;
}

int Show(const ContourOptions& o) {
    VesselContour contour;
    if (auto failed = LoadContour(o.file, o.side, contour)) return *failed;
    if (!contour.IsLoaded()) {
        return Fail(kInputOutput, o.file,
                    "no [" + VesselContour::GetSectionName(o.side).ToUtf8() + "] section");
    }
    const auto colour =
        static_cast<unsigned long>(static_cast<std::uint32_t>(contour.GetPenColor()));
    PrintLine("side    " + SideTitle(o.side));
    PrintLine(vex::Format("pen     width %d, colour %d (red %lu, green %lu, blue %lu)",
                          contour.GetPenWidth(), contour.GetPenColor(), colour & 0xFF,
                          (colour >> 8) & 0xFF, (colour >> 16) & 0xFF));
    PrintLine(vex::Format("points  %d", contour.GetSize()));
    vex::Page extents;
    if (contour.GetBoundingPage(extents)) {
        PrintLine(vex::Format("extents x %.3f to %.3f, y %.3f to %.3f", extents.x1, extents.x2,
                              extents.y1, extents.y2));
    } else {
        PrintLine("extents none");
    }
    int index = 1;
    for (const vex::VesselPoint& point : contour.GetPoints()) {
        PrintLine(vex::Format("%5d %12.3f %12.3f  %-2s %lu", index++, point.GetPoint().x,
                              point.GetPoint().y, FlagText(point),
                              static_cast<unsigned long>(point.GetValue())));
    }
    return kSuccess;
}

// All six sides in a grid of three by two panels, each fitted to its panel.
int Svg(const ContourOptions& o) {
    constexpr int kPanelWidth = 320;
    constexpr int kPanelHeight = 260;
    constexpr int kLabelHeight = 28;
    constexpr int kMargin = 12;
    VesselContour contour;
    if (auto failed = LoadContour(o.file, VesselContour::viewPlan, contour)) return *failed;

    vex::SvgDC dc(3 * kPanelWidth, 2 * kPanelHeight);
    dc.SetFontSize(15);
    for (int side = 0; side < 6; ++side) {
        const int left = (side % 3) * kPanelWidth;
        const int top = (side / 3) * kPanelHeight;
        dc.SetPen(1, vex::RGB(200, 200, 200));
        dc.SetNullBrush();
        dc.Rectangle(left + 2, top + 2, left + kPanelWidth - 2, top + kPanelHeight - 2);
        dc.SetTextColor(vex::RGB(0, 0, 0));
        dc.SetTextAlign(vex::TA_LEFT | vex::TA_TOP);
        contour.SetViewSide(side);
        dc.TextOut(
            left + 10, top + 8,
            CString::FromUtf8(SideTitle(side) + vex::Format(", %d points", contour.GetSize())));

        vex::Page extents;
        if (!contour.GetBoundingPage(extents)) {
            dc.SetTextAlign(vex::TA_CENTER | vex::TA_BASELINE);
            dc.SetTextColor(vex::RGB(128, 128, 128));
            dc.TextOut(left + kPanelWidth / 2, top + kPanelHeight / 2,
                       CString(contour.IsLoaded() ? u"no points" : u"no outline in the file"));
            continue;
        }
        vex::CoordinateSystem view;
        view.SetPixelWindow(left + kMargin, top + kLabelHeight + kMargin,
                            left + kPanelWidth - kMargin, top + kPanelHeight - kMargin);
        view.CenterWorldAreaOnPixelWindow(extents, 1.0);
        contour.Draw(dc, view);
    }
    if (!dc.Save(CString::FromUtf8(o.output)))
        return Fail(kInputOutput, o.output, "cannot be written");
    return kSuccess;
}

int Pack(const ContourOptions& o) {
    VesselContour contour;
    if (auto failed = LoadContour(o.file, o.side, contour)) return *failed;
    if (!contour.IsLoaded()) {
        return Fail(kInputOutput, o.file,
                    "no [" + VesselContour::GetSectionName(o.side).ToUtf8() + "] section");
    }
    std::string bytes;
    contour.SaveToString(bytes);
    PrintLine(std::string(vex::Ascii2Hex(bytes).GetString()));
    return kSuccess;
}

bool IsHexText(const std::string& text) {
    if (text.size() % 2 != 0) return false;
    for (const char c : text) {
        if (vex::HexVal(static_cast<unsigned char>(c)) > 15) return false;
    }
    return true;
}

int Unpack(const ContourOptions& o) {
    if (!IsHexText(o.hex))
        return Fail(kUsage, "the contour string must be pairs of hexadecimal digits");
    const vex::CStringA raw = vex::Hex2Ascii(o.hex);
    const std::string bytes(raw.GetString(), static_cast<std::size_t>(raw.GetLength()));
    VesselContour contour;
    // Into an existing file the outline replaces one side and keeps the rest.
    std::error_code ec;
    if (std::filesystem::exists(
            std::filesystem::path(std::u8string(o.output.begin(), o.output.end())), ec)) {
        if (auto failed = LoadContour(o.output, o.side, contour)) return *failed;
    } else {
        contour.SetViewSide(o.side);
    }
    if (!contour.LoadFromString(bytes)) {
        return Fail(kInputOutput,
                    vex::Format("the contour string holds %d bytes; a contour needs 9 or more",
                                static_cast<int>(bytes.size())));
    }
    if (!contour.Save(CString::FromUtf8(o.output))) {
        return Fail(kInputOutput, o.output,
                    "cannot be written (the previous file, if any, is unchanged)");
    }
    PrintLine(vex::Format("%d points written to ", contour.GetSize()) + o.output + " [" +
              VesselContour::GetSectionName(o.side).ToUtf8() + "]");
    return kSuccess;
}

CLI::App* Sub(CLI::App& parent, const char* name, const char* help, const char* example,
              const std::shared_ptr<ContourOptions>& o, int (*fn)(const ContourOptions&),
              Action& run) {
    CLI::App* cmd = parent.add_subcommand(name, help);
    cmd->footer(std::string("Example: ") + example);
    cmd->callback([o, fn, &run] { run = [o, fn] { return fn(*o); }; });
    return cmd;
}

void AddSideOption(CLI::App& cmd, ContourOptions& o, bool required) {
    CLI::Option* side =
        cmd.add_option("--side", o.side,
                       "view side: 0 plan, 1 bottom, 2 left, 3 right, 4 front, 5 back")
            ->check(CLI::Range(0, 5));
    if (required) side->required();
}

}  // namespace

void AddContourCommand(CLI::App& app, Action& run) {
    auto o = std::make_shared<ContourOptions>();
    CLI::App* contour =
        app.add_subcommand("contour", "Vessel contour files: show, svg, pack, unpack");
    contour->require_subcommand(1);

    CLI::App* show = Sub(*contour, "show", "Print the pen, extents and points of one view side",
                         "vex contour show dredger-contour.ini --side 2", o, Show, run);
    show->add_option("file", o->file, "contour file")->required();
    AddSideOption(*show, *o, false);

    CLI::App* svg = Sub(*contour, "svg", "Draw all six view sides of a contour file into one SVG",
                        "vex contour svg dredger-contour.ini -o dredger.svg", o, Svg, run);
    svg->add_option("file", o->file, "contour file")->required();
    svg->add_option("-o,--output", o->output, "the SVG file to write")->required();

    CLI::App* pack = Sub(*contour, "pack", "Print one view side as its binary string, in hex",
                         "vex contour pack dredger-contour.ini --side 0", o, Pack, run);
    pack->add_option("file", o->file, "contour file")->required();
    AddSideOption(*pack, *o, true);

    CLI::App* unpack =
        Sub(*contour, "unpack",
            "Write a binary string (hex) as one view side of a contour file, keeping "
            "the file's other sides",
            "vex contour unpack 0000800002000000... -o hull.ini --side 0", o, Unpack, run);
    unpack->add_option("hex", o->hex, "the binary string as hex digits (from vex contour pack)")
        ->required();
    unpack->add_option("-o,--output", o->output, "contour file to write")->required();
    AddSideOption(*unpack, *o, false);
}

}  // namespace vextool
