// ExitCode.h - what the vex tool's exit status means.
#pragma once

namespace vextool {

enum ExitCode : int {
    kSuccess = 0,
    kDiffers = 1,      // files differ, or a file failed verification
    kUsage = 2,        // bad command line
    kInputOutput = 3,  // a file that is missing, unreadable, malformed or unwritable
};

}  // namespace vextool
