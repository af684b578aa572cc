#include <base/platform/CodePage.h>

#include <windows.h>

namespace vex::platform {

unsigned SystemCodePage() {
    return static_cast<unsigned>(GetACP());
}

}  // namespace vex::platform
