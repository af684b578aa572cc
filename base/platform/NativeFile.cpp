// The parts of NativeFile that are the same on every system: ownership of
// the handle moves, and the destructor closes it.
#include <base/platform/FileSystem.h>

#include <utility>

namespace vex::platform {

NativeFile::~NativeFile() {
    Close();
}

NativeFile::NativeFile(NativeFile&& other) noexcept
    : handle_(std::exchange(other.handle_, kClosed)), error_(other.error_) {}

NativeFile& NativeFile::operator=(NativeFile&& other) noexcept {
    if (this != &other) {
        Close();
        handle_ = std::exchange(other.handle_, kClosed);
        error_ = other.error_;
    }
    return *this;
}

}  // namespace vex::platform
