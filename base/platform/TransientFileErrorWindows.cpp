#include <base/platform/TransientFileError.h>

#include <windows.h>

namespace vex::platform {

bool IsTransientNetworkError(const FileIoError& error) {
    return error.osError == ERROR_NETNAME_DELETED || error.osError == ERROR_UNEXP_NET_ERR;
}

}  // namespace vex::platform
