// vex ports: the serial ports present on this machine, one per line, as a
// device driver's settings would name them.
#include "Command.h"
#include "Console.h"
#include "ExitCode.h"

#include <base/config/CSerialSettings.h>

#include <vector>

namespace vextool {
namespace {

int RunPorts() {
    std::vector<vex::CString> ports;
    vex::CSerialSettings::GetAvailableComPorts(ports);
    // No ports is an answer, not a failure: many machines have none.
    for (const vex::CString& port : ports)
        PrintLine(port);
    return kSuccess;
}

}  // namespace

void AddPortsCommand(CLI::App& app, Action& run) {
    CLI::App* cmd = app.add_subcommand("ports", "List the serial ports present");
    cmd->footer(
        "Ports are listed as COM1 ... COM255 on Windows (busy ports included) and as device\n"
        "paths elsewhere. Nothing is printed when there are none.\n"
        "Example: vex ports\n  /dev/ttyS0\n  /dev/ttyUSB0");
    cmd->callback([&run] { run = [] { return RunPorts(); }; });
}

}  // namespace vextool
