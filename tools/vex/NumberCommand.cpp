// vex number: a value as the suite's number formatting shows it, in feet
// and inches on request, and the decimals it carries.
#include "Command.h"
#include "Console.h"
#include "ExitCode.h"

#include <base/framework/Format.h>
#include <base/strings/FormatString.h>

#include <memory>

namespace vextool {
namespace {

struct NumberOptions {
    double value = 0;
    int feetMode = 0;
    int decimals = -1;
};

int RunNumber(const NumberOptions& o) {
    const int decimals = o.decimals >= 0 ? o.decimals : vex::GetDoublePrecision(o.value);
    PrintLine(vex::FormatDouble(o.value, decimals, o.feetMode));
    return kSuccess;
}

}  // namespace

void AddNumberCommand(CLI::App& app, Action& run) {
    auto o = std::make_shared<NumberOptions>();
    CLI::App* cmd = app.add_subcommand("number", "Format a number as the suite shows it");
    cmd->add_option("value", o->value, "the value (feet for the feet modes)")->required();
    cmd->add_option("--feet-mode", o->feetMode,
                    "0/1 plain, 2 feet and whole inches, 3 the same, 4+ with sixteenths of an inch")
        ->check(CLI::Range(0, 9))
        ->capture_default_str();
    cmd->add_option("--decimals", o->decimals, "decimals (default: as many as the value carries)")
        ->check(CLI::Range(0, 15));
    cmd->footer("Example: vex number 5.53125 --feet-mode 4 --decimals 1\n  5' 6 3/8\"");
    cmd->callback([o, &run] { run = [o] { return RunNumber(*o); }; });
}

}  // namespace vextool
