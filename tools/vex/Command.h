// Command.h - how the tool's commands plug into the command line: each
// Add...Command registers its sub-command with CLI11 and, when chosen,
// leaves the function that does the work in `run`.
#pragma once

#include <CLI/CLI.hpp>

#include <functional>

namespace vextool {

using Action = std::function<int()>;

void AddIniCommands(CLI::App& app, Action& run);
void AddCrcCommand(CLI::App& app, Action& run);
void AddTimeCommand(CLI::App& app, Action& run);
void AddGeoCommand(CLI::App& app, Action& run);
void AddNumberCommand(CLI::App& app, Action& run);
void AddDemoCommand(CLI::App& app, Action& run);
void AddContourCommand(CLI::App& app, Action& run);
void AddUnitsCommand(CLI::App& app, Action& run);
void AddPortsCommand(CLI::App& app, Action& run);
void AddDrawCommand(CLI::App& app, Action& run);
void AddTideCommand(CLI::App& app, Action& run);
void AddColoursCommand(CLI::App& app, Action& run);

}  // namespace vextool
