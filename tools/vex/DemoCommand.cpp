// vex demo: a short tour on the built-in sample settings of a survey
// vessel: show, diff, patch, seal and verify, a dredger's contour, then a
// position, a depth in feet, a tide table made into a tide file and
// plotted, depth and dredge-difference colours and the time.
#include "Command.h"
#include "Console.h"
#include "EmbeddedSamples.h"
#include "ExitCode.h"
#include "IniFiles.h"
#include "TideText.h"

#include <base/VexBase.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <vector>

namespace vextool {
namespace {

namespace fs = std::filesystem;
using vex::CString;

void Heading(const std::string& text) {
    PrintLine();
    PrintLine("== " + text);
}

int CountItems(const vex::FileObject& file) {
    int items = 0;
    vex::FobjSection handle;
    CString name;
    for (bool more = file.GetFirstSectionEntry(handle, name); more;
         more = file.GetNextSectionEntry(handle, name)) {
        items += file.GetNumItems(name);
    }
    return items;
}

std::string PathText(const fs::path& p) {
    const std::u8string u8 = p.u8string();
    return std::string(u8.begin(), u8.end());
}

// Three days of a harbour's tide: imported, read back, read between its
// stored times and plotted.
int TideTour(const fs::path& folder) {
    std::ifstream in(folder / "tide.txt", std::ios::binary);
    const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    std::vector<std::pair<double, double>> rows;
    int badLine = 0;
    if (!ParseTideTable(text, TimeForm::either, rows, badLine))
        return Fail(kInputOutput, "tide.txt:" + std::to_string(badLine), "malformed line");
    const std::string path = PathText(folder / "tide.tid");
    vex::TideFile tide;
    if (!tide.FileOpen(CString::FromUtf8(path), true))
        return Fail(kInputOutput, path, "cannot be created");
    for (const auto& [time, height] : rows)
        tide.AddTideValue(time, height);
    tide.FileClose(true);
    if (!tide.FileOpen(CString::FromUtf8(path), false))
        return Fail(kInputOutput, path, "cannot be read back");
    double first = 0, last = 0;
    tide.GetTimeSpan(first, last);
    PrintLine(vex::Format("%d values from ", tide.GetNumValues()) + UtcText(first) + " to " +
              UtcText(last) + " UTC");
    const double when = first + 5 * 60000.0;  // between two stored times
    double height = 0;
    if (vex::InterpolateTide(tide, when, height))
        PrintLine("height at " + UtcText(when) + ": " + vex::FormatDouble(height, 3, 0).ToUtf8() +
                  " m (interpolated)");
    vex::SvgDC dc(900, 480);
    vex::DrawTideCurve(dc, tide, vex::CRect(0, 0, 900, 480), u"Sample tide");
    const std::string svg = PathText(folder / "tide.svg");
    if (!dc.Save(CString::FromUtf8(svg))) return Fail(kInputOutput, svg, "cannot be written");
    PrintLine("plot written to tide.svg");
    return kSuccess;
}

int RunDemo(bool keep) {
    std::error_code ec;
    const auto stamp = static_cast<unsigned long long>(
        fs::file_time_type::clock::now().time_since_epoch().count());
    const fs::path folder = fs::temp_directory_path(ec) / ("vex-demo-" + std::to_string(stamp));
    if (ec || !fs::create_directories(folder, ec))
        return Fail(kInputOutput, PathText(folder), "cannot create the demo folder");
    // The folder goes on every way out, a failed step included, unless kept.
    struct RemoveUnlessKept {
        const fs::path& folder;
        bool keep;
        ~RemoveUnlessKept() {
            std::error_code ignored;
            if (!keep) fs::remove_all(folder, ignored);
        }
    } cleanup{folder, keep};
    for (std::size_t i = 0; i < kEmbeddedSampleCount; ++i) {
        std::ofstream out(folder / kEmbeddedSamples[i].name, std::ios::binary);
        out.write(reinterpret_cast<const char*>(kEmbeddedSamples[i].data),
                  static_cast<std::streamsize>(kEmbeddedSamples[i].size));
        if (!out)
            return Fail(kInputOutput, PathText(folder / kEmbeddedSamples[i].name),
                        "cannot be written");
    }
    const std::string v1 = PathText(folder / "vessel.ini");
    const std::string v2 = PathText(folder / "vessel-v2.ini");
    const std::string patched = PathText(folder / "vessel-patched.ini");
    PrintLine("VexBase " + std::string(vex::VersionString()) + " demo, sample files in " +
              PathText(folder) + (keep ? "" : " (removed at the end; --keep keeps them)"));

    vex::FileObject first;
    vex::FileObject second;
    if (auto failed = LoadSettings(v1, first)) return *failed;
    if (auto failed = LoadSettings(v2, second)) return *failed;

    Heading("vex ini show vessel.ini (section Offsets)");
    PrintLine(vex::Format("%d sections, %d items", first.GetNumSections(), CountItems(first)));
    vex::FobjSection handle;
    CString key;
    CString value;
    for (bool more = first.GetFirstMapEntry(handle, u"Offsets", key, value); more;
         more = first.GetNextMapEntry(handle, key, value)) {
        PrintLine("  " + key.ToUtf8() + " = " + value.ToUtf8());
    }

    Heading("vex ini diff vessel.ini vessel-v2.ini");
    vex::FileObject difference;
    first.GetDifference(second, difference);
    Print(RenderSettings(difference));

    Heading("vex ini apply vessel.ini <diff> -o vessel-patched.ini");
    vex::FileObject patchedFile = first;
    patchedFile.ApplyDifference(difference);
    if (const int saved = SaveSettings(patchedFile, patched); saved != kSuccess) return saved;
    vex::FileObject reread;
    if (auto failed = LoadSettings(patched, reread)) return *failed;
    PrintLine(reread.HasDifferences(second) ? "patched copy DIFFERS from vessel-v2.ini"
                                            : "patched copy equals vessel-v2.ini");

    Heading("vex ini seal / verify vessel-patched.ini");
    vex::WriteChecksumSection(reread);
    if (const int saved = SaveSettings(reread, patched); saved != kSuccess) return saved;
    vex::FileObject sealed;
    if (auto failed = LoadSettings(patched, sealed)) return *failed;
    PrintLine(std::string("sealed file verifies: ") +
              (vex::VerifyChecksumSection(sealed) ? "OK" : "FAILED"));
    sealed.SetItem(u"Offsets", u"GPS1.X", CString(u"9.999"), false);
    PrintLine(std::string("after changing Offsets/GPS1.X without sealing: ") +
              (vex::VerifyChecksumSection(sealed) ? "OK" : "FAILED, as it should"));

    Heading("vex contour show / pack dredger-contour.ini --side 4 (a hopper dredger from ahead)");
    vex::VesselContour hull;
    const std::string contourFile = PathText(folder / "dredger-contour.ini");
    if (!hull.Create(CString::FromUtf8(contourFile), vex::VesselContour::viewFront, false))
        return Fail(kInputOutput, contourFile, "cannot be read as a contour file");
    vex::Page extents;
    hull.GetBoundingPage(extents);
    PrintLine(vex::Format("%d points, %.1f m wide, %.1f m high, pen width %d", hull.GetSize(),
                          extents.Width(), extents.Height(), hull.GetPenWidth()));
    std::string packed;
    hull.SaveToString(packed);
    vex::VesselContour unpacked;
    unpacked.LoadFromString(packed);
    PrintLine(vex::Format("binary string of %d bytes; unpacked it gives %d points again",
                          static_cast<int>(packed.size()), unpacked.GetSize()));

    Heading("vex geo 51.9225 4.47917 --style dms --decimals 2");
    CString lat;
    CString lon;
    vex::FormatGeogs(51.9225, 7, 2, 10, lat, true, true);
    vex::FormatGeogs(4.47917, 7, 2, 11, lon, true, true);
    PrintLine(lat.ToUtf8() + "  " + lon.ToUtf8());

    Heading("vex number 12.84 --feet-mode 4 --decimals 1 (a draught in feet and inches)");
    PrintLine(vex::FormatDouble(12.84, 1, 4));

    Heading("vex tide import tide.txt -o tide.tid; vex tide plot tide.tid -o tide.svg");
    if (const int tide = TideTour(folder); tide != kSuccess) return tide;

    Heading("vex colours lookup depth-colours.ini -- -25 -14 -3.5 and dredge-difference.ini");
    for (const char* name : {"depth-colours.ini", "dredge-difference.ini"}) {
        vex::FileObject colourFile;
        if (auto failed = LoadSettings(PathText(folder / name), colourFile)) return *failed;
        vex::ColorTable colours;
        if (!colours.FileOpen(colourFile)) {
            return Fail(kInputOutput, PathText(folder / name), "not a colour table");
        }
        for (double depth : {-25.0, -14.0, -3.5, -0.3, 0.1, 0.4}) {
            const vex::COLORREF c = colours.GetColor(depth);
            const CString band = colours.GetName(depth);
            PrintLine(std::string(name) + "  " + vex::FormatDouble(depth, 1, 0).ToUtf8() +
                      vex::Format("  #%02X%02X%02X", vex::GetRValue(c), vex::GetGValue(c),
                                  vex::GetBValue(c)) +
                      (band.IsEmpty() ? "" : "  " + band.ToUtf8()));
        }
    }

    Heading("vex time");
    const double now = vex::CExTime::GetCurTime();
    PrintLine("now " + vex::CExTime::TimeToStringISOFormat(now, true).ToUtf8() + " local, stamp " +
              std::string(vex::CExTime::GetTimeStampString(now).GetString()));

    return kSuccess;
}

}  // namespace

void AddDemoCommand(CLI::App& app, Action& run) {
    auto keep = std::make_shared<bool>(false);
    CLI::App* cmd = app.add_subcommand("demo", "A short tour on built-in sample settings files");
    cmd->add_flag("--keep", *keep, "keep the sample folder for a look afterwards");
    cmd->footer("Example: vex demo");
    cmd->callback([keep, &run] { run = [keep] { return RunDemo(*keep); }; });
}

}  // namespace vextool
