// TransientFileError.h - whether a failed file read is one of the brief
// network drops after which opening the file again is worth a try.
//
// Internal to the library (not installed): the tide file loader asks it
// when a read fails, so that a share that blinked does not cut a load short.
#pragma once

#include <base/framework/FileIoError.h>

namespace vex::platform {

// True for the two errors Windows reports when the share of an open file
// dropped for a moment: the network name was deleted, or an unexpected
// network error occurred. POSIX has no such pair (a dropped NFS or SMB
// mount fails reads with EIO or ESTALE, and a new open does not help until
// the mount itself recovers), so there it is always false.
bool IsTransientNetworkError(const FileIoError& error);

}  // namespace vex::platform
