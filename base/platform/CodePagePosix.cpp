#include <base/platform/CodePage.h>

namespace vex::platform {

// POSIX narrow text is taken as UTF-8 whatever the locale says, so that a
// program's output does not depend on how its environment was set up.
unsigned SystemCodePage() {
    return 65001;
}

}  // namespace vex::platform
