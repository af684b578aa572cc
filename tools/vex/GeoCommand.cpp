// vex geo: a latitude and longitude as the suite shows them.
#include "Command.h"
#include "Console.h"
#include "ExitCode.h"

#include <base/strings/FormatString.h>

#include <map>
#include <memory>

namespace vextool {
namespace {

struct GeoOptions {
    double latitude = 0;
    double longitude = 0;
    std::string style = "dm";
    int decimals = 3;
    bool noSigns = false;
    std::string hemisphere = "after";
};

constexpr int kLatitudeAxis = 10;
constexpr int kLongitudeAxis = 11;

int RunGeo(const GeoOptions& o) {
    static const std::map<std::string, int> kStyles = {{"d", 1}, {"dm", 3}, {"dms", 7}};
    const int style = kStyles.at(o.style);
    const bool after = o.hemisphere == "after";
    vex::CString lat;
    vex::CString lon;
    vex::FormatGeogs(o.latitude, style, o.decimals, kLatitudeAxis, lat, after, !o.noSigns);
    vex::FormatGeogs(o.longitude, style, o.decimals, kLongitudeAxis, lon, after, !o.noSigns);
    PrintLine(lat.ToUtf8() + "  " + lon.ToUtf8());
    return kSuccess;
}

}  // namespace

void AddGeoCommand(CLI::App& app, Action& run) {
    auto o = std::make_shared<GeoOptions>();
    CLI::App* cmd = app.add_subcommand("geo", "Format a latitude and longitude (decimal degrees)");
    cmd->add_option("lat", o->latitude, "latitude, degrees, north positive")
        ->required()
        ->check(CLI::Range(-90.0, 90.0));
    cmd->add_option("lon", o->longitude, "longitude, degrees, east positive")
        ->required()
        ->check(CLI::Range(-180.0, 180.0));
    cmd->add_option("--style", o->style, "d (degrees), dm (degrees and minutes) or dms")
        ->check(CLI::IsMember({"d", "dm", "dms"}))
        ->capture_default_str();
    cmd->add_option("--decimals", o->decimals, "decimals of the last field")
        ->check(CLI::Range(0, 9))
        ->capture_default_str();
    cmd->add_flag("--no-signs", o->noSigns,
                  "spaces instead of the degree, minute and second signs");
    cmd->add_option("--hemisphere", o->hemisphere, "the letter N/S/E/W before or after the number")
        ->check(CLI::IsMember({"before", "after"}))
        ->capture_default_str();
    cmd->footer(
        "Example: vex geo 51.9225 4.47917 --style dms --decimals 2\n  051\u00B055'21.00\"N  "
        "004\u00B028'45.01\"E");
    cmd->callback([o, &run] { run = [o] { return RunGeo(*o); }; });
}

}  // namespace vextool
