// FileIoError.h - why a file or stream operation failed.
//
// Every file utility of the library (streams, text files, archives, atomic
// saves) reports failure by a false result and keeps one of these: a
// portable cause to act on and the operating system's own error number
// (errno on POSIX, GetLastError() on Windows) for diagnostics.
#pragma once

namespace vex {

// The portable reason of a file failure.
enum class FileErrorCause : int {
    none = 0,          // the last operation succeeded
    generic,           // a failure with no more specific cause (also invalid arguments)
    fileNotFound,      // the file (or, on POSIX, a folder on its path) does not exist
    badPath,           // the path is malformed, too long or a folder on it is missing
    tooManyOpenFiles,  // the process or system is out of file handles
    accessDenied,      // no permission, read-only medium, or the path is a folder
    alreadyExists,     // an exclusive create found the file present
    sharingViolation,  // another handle's share mode forbids this access (Windows)
    lockViolation,     // a locked region is in the way
    diskFull,          // no space left, quota exhausted or file size limit reached
    hardIO,            // the device reported an input/output error
    badSeek,           // a seek before the start of the stream or on a stream that cannot seek
    invalidFile,       // the stream is not open
    networkError,      // the network share of the file went away
};

// A cause with the operating system's error number (0 when there is none).
struct FileIoError {
    FileErrorCause cause = FileErrorCause::none;
    long osError = 0;

    bool IsError() const { return cause != FileErrorCause::none; }
    friend bool operator==(const FileIoError&, const FileIoError&) = default;
};

}  // namespace vex
