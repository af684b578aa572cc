// StreamBuffer.h - internal: the read/write buffer and the text-line codec
// shared by CStdioFile and CArchive. Installed only because those classes
// hold one; not exported and not for use outside the library.
//
// The buffer sits in front of a ByteStream that the owner passes to every
// call (always the same one), so that the owner stays movable. Its logical
// position is the stream's position less the bytes read ahead, or plus the
// bytes not yet written.
#pragma once

#include <base/framework/ByteStream.h>
#include <base/framework/FileIoError.h>
#include <base/framework/TextEncodingType.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vex::detail {

class StreamBuffer {
  public:
    explicit StreamBuffer(std::size_t capacity) : buffer_(capacity) {}

    std::size_t Read(ByteStream& stream, void* data, std::size_t size);
    bool Write(ByteStream& stream, const void* data, std::size_t size);

    // One line without its LF or CR LF; false at the end of the stream or
    // on a read failure (GetError() tells which).
    bool ReadLine(ByteStream& stream, textencoding::type encoding, std::u16string& line);
    // The text in the encoding, every LF written as CR LF.
    bool WriteText(ByteStream& stream, textencoding::type encoding, std::u16string_view text);

    // Writes what is pending and gives back what was read ahead, so that
    // the stream's position is the logical one again.
    bool Sync(ByteStream& stream);
    // Forgets buffered bytes without any input or output (after a failure).
    void Discard();

    std::uint64_t Position(const ByteStream& stream) const;
    std::uint64_t Length(const ByteStream& stream) const;

    // The failure of the last call; cause none after a success.
    const FileIoError& GetError() const { return error_; }

  private:
    enum class Mode { idle, reading, writing };

    bool Fill(ByteStream& stream);
    bool WritePending(ByteStream& stream);
    bool FailFrom(const ByteStream& stream);

    std::vector<std::byte> buffer_;
    std::size_t readPos_ = 0;  // reading: the next byte to hand out
    std::size_t readEnd_ = 0;  // reading: one past the last byte read ahead
    std::size_t pending_ = 0;  // writing: bytes at the buffer's start not yet written
    Mode mode_ = Mode::idle;
    FileIoError error_;
};

}  // namespace vex::detail
