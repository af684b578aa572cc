#include <base/framework/ByteStream.h>

namespace vex {

// Defined here so that the interface's type information has one home.
ByteStream::~ByteStream() = default;

}  // namespace vex
