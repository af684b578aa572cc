// vex - look into and change the suite's settings files, compare and patch
// them, seal and verify them, and check times, coordinates and numbers.
#include "Command.h"
#include "Console.h"
#include "ExitCode.h"
#include "Version.h"

#include <base/VexBase.h>
#include <base/platform/Console.h>

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

int main(int argc, char** argv) {
    vex::platform::UseUtf8Console();
    // Arguments as UTF-8 whatever the platform's code page, so paths and
    // values with any characters reach the library intact.
    std::vector<std::string> args = vex::platform::CommandLineUtf8(argc, argv);

    CLI::App app{"vex - settings files, checksums, times and coordinates of the Vex suite", "vex"};
    app.require_subcommand(1);
    app.set_version_flag("--version", vextool::VersionText());
    app.footer(
        "Exit status: 0 success, 1 files differ or verification failed, 2 usage, 3 input/output "
        "error.\n"
        "Files over 512 MiB are refused, not read.\n"
        "Run 'vex COMMAND --help' for a command's options and an example.");

    vextool::Action run;
    vextool::AddIniCommands(app, run);
    vextool::AddCrcCommand(app, run);
    vextool::AddTimeCommand(app, run);
    vextool::AddGeoCommand(app, run);
    vextool::AddNumberCommand(app, run);
    vextool::AddContourCommand(app, run);
    vextool::AddColoursCommand(app, run);
    vextool::AddDemoCommand(app, run);
    vextool::AddUnitsCommand(app, run);
    vextool::AddPortsCommand(app, run);
    vextool::AddDrawCommand(app, run);
    vextool::AddTideCommand(app, run);

    try {
        std::vector<std::string> reversed(args.rbegin(), args.rend() - 1);
        app.parse(reversed);
    } catch (const CLI::CallForHelp& e) {
        return app.exit(e);
    } catch (const CLI::CallForAllHelp& e) {
        return app.exit(e);
    } catch (const CLI::CallForVersion& e) {
        return app.exit(e);
    } catch (const CLI::ParseError& e) {
        app.exit(e);
        return vextool::kUsage;
    }
    return run ? run() : vextool::kUsage;
}
