#include <base/VexBase.h>

namespace vex {

const char* VersionString() {
    return VEXBASE_VERSION;
}

}  // namespace vex
