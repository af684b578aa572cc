// FileSystem.h - the operating system's files: open with share modes, read,
// write, seek, flush to disk, and the path operations of an atomic save
// (exclusive temporary files, replace-by-rename, remove, existence).
//
// Paths are UTF-16. On Windows they go to the wide (W) functions as they
// are. On POSIX they are converted to UTF-8 and every backslash is taken
// as a path separator, because the suite's settings hold Windows paths;
// a POSIX file name containing a backslash therefore cannot be named.
// Failures return false and leave a FileIoError; nothing throws.
#pragma once

#include <base/Export.h>
#include <base/framework/CFile.h>
#include <base/framework/FileIoError.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vex::platform {

// An open file of the operating system (file descriptor or HANDLE);
// unbuffered. Move-only; the destructor closes it.
class VEXBASE_API NativeFile {
  public:
    NativeFile() = default;
    ~NativeFile();
    NativeFile(NativeFile&& other) noexcept;
    NativeFile& operator=(NativeFile&& other) noexcept;
    NativeFile(const NativeFile&) = delete;
    NativeFile& operator=(const NativeFile&) = delete;

    // Opens path with CFile flags: modeRead, modeWrite or modeReadWrite;
    // modeCreate creates the file, emptying an existing one unless
    // modeNoTruncate is given; without modeCreate the file must exist. The
    // share flags are honoured on Windows (shareCompat is exclusive there)
    // and ignored elsewhere; modeNoInherit keeps child processes from
    // inheriting the handle (POSIX descriptors are never inherited across
    // exec). A folder cannot be opened. Closes a file already open first.
    bool Open(std::u16string_view path, unsigned flags);
    // Creates path for reading and writing, failing with alreadyExists when
    // it is there; no sharing on Windows.
    bool CreateNew(std::u16string_view path);
    bool IsOpen() const { return handle_ != kClosed; }
    // Closes the file; false when the system reports a failure on closing
    // (the file is closed all the same). True when it was not open.
    bool Close();

    // Reads up to size bytes; count is what was read (fewer only at the end
    // of the file). False on failure.
    bool Read(void* buffer, std::size_t size, std::size_t& count);
    // Writes all size bytes; false when the system refuses part of them.
    bool Write(const void* data, std::size_t size);
    // Moves the file position; position receives the new one.
    bool Seek(std::int64_t offset, CFile::SeekPosition from, std::uint64_t& position);
    bool GetPosition(std::uint64_t& position) const;
    bool GetLength(std::uint64_t& length) const;
    // Cuts or extends (with zero bytes) the file; the position stays.
    bool SetLength(std::uint64_t length);
    // Waits until the content written so far is on the storage device
    // (fsync / FlushFileBuffers).
    bool SyncToDisk();

    // Why the last failing call failed.
    const FileIoError& GetError() const { return error_; }
    // The file descriptor (POSIX) or HANDLE (Windows) as an integer; -1 when closed.
    std::intptr_t NativeHandle() const { return handle_; }

  private:
    static constexpr std::intptr_t kClosed = -1;  // also INVALID_HANDLE_VALUE

    bool Fail() const;  // records the system's last error; returns false

    std::intptr_t handle_ = kClosed;
    mutable FileIoError error_;
};

// What a path names.
enum class PathKind { missing, file, directory, other };

VEXBASE_API PathKind GetPathKind(std::u16string_view path);

// Removes a file (not a folder). False, with error filled when given, if
// it could not be removed (also when it did not exist).
VEXBASE_API bool RemoveFile(std::u16string_view path, FileIoError* error = nullptr);

// Renames source to target in one step, replacing an existing target
// (POSIX rename, then the folder is synced; Windows MoveFileExW with
// MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH). Both must be in the
// same folder or at least on the same volume. On failure neither file changed.
VEXBASE_API bool ReplaceFileByRename(std::u16string_view source, std::u16string_view target,
                                     FileIoError* error = nullptr);

// Creates a new, uniquely named file beside target (in the same folder:
// target's path followed by ".~" + 16 hex digits + ".tmp") and opens it
// for reading and writing. On POSIX it gets the permissions of an existing
// target. False, with nothing created, when the folder is missing or not
// writable.
VEXBASE_API bool CreateTemporaryBeside(std::u16string_view target, NativeFile& file,
                                       std::u16string& temporaryPath, FileIoError* error = nullptr);

// The path converted for the operating system's narrow calls (POSIX:
// UTF-8 with backslashes as slashes); exposed for tests and diagnostics.
VEXBASE_API std::string NarrowNativePath(std::u16string_view path);

}  // namespace vex::platform
