// Console.h - what a command-line program of the suite needs of the OS to
// speak UTF-8: arguments as UTF-8, a console that shows UTF-8 output, and
// standard input read as bytes.
#pragma once

#include <base/Export.h>

#include <string>
#include <vector>

namespace vex::platform {

// The program's arguments as UTF-8, the program name first. On Windows they
// are taken from the wide command line (argv there is in the ANSI code
// page); elsewhere argv is returned as it is.
VEXBASE_API std::vector<std::string> CommandLineUtf8(int argc, char** argv);
// Makes a Windows console show UTF-8 output; nothing elsewhere.
VEXBASE_API void UseUtf8Console();
// Switches standard input to binary mode (no CR LF translation on Windows).
VEXBASE_API void SetBinaryStdin();
// True when standard output is a terminal that takes ANSI escape sequences
// (on Windows a console, switched to processing them); false for files and pipes.
VEXBASE_API bool StdoutTakesEscapes();

}  // namespace vex::platform
