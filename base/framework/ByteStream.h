// ByteStream.h - the interface of a seekable stream of bytes: a file on
// disk, a text file, an atomic save or a memory file.
//
// Archives and savers are written against this interface, so they work on
// any of these. Positions and lengths count bytes from the start. No
// operation throws: failures return false (or a short count) and leave a
// FileIoError that GetError() returns until the next operation starts.
#pragma once

#include <base/Export.h>
#include <base/framework/CFile.h>
#include <base/framework/FileIoError.h>

#include <cstddef>
#include <cstdint>

namespace vex {

class VEXBASE_API ByteStream {
  public:
    virtual ~ByteStream();

    // Reads up to size bytes into buffer and advances the position; returns
    // how many were read: fewer at the end of the stream, 0 at its end or on
    // failure (GetError() tells which).
    virtual std::size_t Read(void* buffer, std::size_t size) = 0;
    // Writes all size bytes at the position and advances it; false when not
    // all could be written (some may have been).
    virtual bool Write(const void* data, std::size_t size) = 0;
    // Moves the position relative to CFile::begin, current or end; a position
    // beyond the end is allowed (a write there extends the stream). False,
    // with the position unchanged, for a position before the start.
    virtual bool Seek(std::int64_t offset, CFile::SeekPosition from) = 0;
    virtual std::uint64_t GetPosition() const = 0;
    // The length in bytes, including bytes written but still buffered.
    virtual std::uint64_t GetLength() const = 0;
    // Pushes everything written so far to where it goes; for a file on disk
    // that is the storage device itself.
    virtual bool Flush() = 0;

    bool SeekToBegin() { return Seek(0, CFile::begin); }
    bool SeekToEnd() { return Seek(0, CFile::end); }

    // Why the last operation failed; cause none after a success.
    const FileIoError& GetError() const { return error_; }

  protected:
    ByteStream() = default;
    ByteStream(const ByteStream&) = default;
    ByteStream(ByteStream&&) = default;
    ByteStream& operator=(const ByteStream&) = default;
    ByteStream& operator=(ByteStream&&) = default;

    // Each public operation starts with ClearError() and ends with Fail() on
    // failure, so GetError() always describes the last operation.
    void ClearError() const { error_ = {}; }
    bool Fail(FileIoError error) const {
        error_ = error;
        return false;
    }
    bool Fail(FileErrorCause cause) const { return Fail(FileIoError{cause, 0}); }

  private:
    mutable FileIoError error_;
};

}  // namespace vex
