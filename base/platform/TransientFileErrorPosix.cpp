#include <base/platform/TransientFileError.h>

namespace vex::platform {

bool IsTransientNetworkError(const FileIoError&) {
    return false;
}

}  // namespace vex::platform
