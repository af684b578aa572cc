#include "Version.h"

#include "BuildCommit.h"

#include <base/VexBase.h>

namespace vextool {

std::string VersionText() {
    std::string text =
        std::string("vex ") + VEX_TOOL_VERSION + " (vexbase " + vex::VersionString() + ")\n";
    const std::string commit = VEX_BUILD_COMMIT;
    if (!commit.empty()) text += "commit " + commit + ", ";
    const std::string buildType = VEX_TOOL_BUILD_TYPE;
    text += buildType.empty() ? "build type not set" : buildType + " build";
    return text;
}

}  // namespace vextool
