// The text `vex --version` prints.
#pragma once

#include <string>

namespace vextool {

// Tool and library versions on the first line (the one help2man reads), then
// the commit the program was built from (when built from a git checkout) and
// the build type.
std::string VersionText();

}  // namespace vextool
