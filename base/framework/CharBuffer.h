// CharBuffer.h - a growable byte buffer with a read/write position, used to
// put values and text into a compact binary or text form and read them back.
//
// Positions and sizes count bytes. Multi-byte values are written
// little-endian whatever the host. A read that asks for more bytes than
// remain before the high-water mark fails and changes nothing. Not
// thread-safe; one buffer belongs to one thread at a time.
//
//   vex::CharBuffer buffer;
//   buffer.AppendUInt16(7);           // bytes 07 00
//   buffer.Seek(0);
//   std::uint16_t v; buffer.ReadUInt16(v);  // v == 7
#pragma once

#include <base/Export.h>
#include <base/framework/LittleEndian.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace vex {

// The buffer has a base (Data()), a current position, a high-water mark
// (GetSize(): one past the last byte ever written) and an end
// (GetCapacity(): the allocated bytes). Writes go to the position and
// overwrite or extend the content; reads come from the position and stop
// at the high-water mark.
class VEXBASE_API CharBuffer {
  public:
    CharBuffer() = default;
    // An empty buffer with room for capacity bytes before it has to grow.
    explicit CharBuffer(std::size_t capacity);

    // --- content and position ---------------------------------------------
    // The first byte; valid until the next write that grows the buffer.
    const std::byte* Data() const { return storage_.data(); }
    // The bytes written so far (up to the high-water mark).
    std::span<const std::byte> Bytes() const { return {storage_.data(), high_}; }
    // The high-water mark: how many bytes the buffer holds.
    std::size_t GetSize() const { return high_; }
    // The allocated bytes; at least GetSize().
    std::size_t GetCapacity() const { return storage_.size(); }
    std::size_t GetPosition() const { return position_; }
    // The bytes that a read can still take: from the position to the mark.
    std::size_t GetRemaining() const { return high_ - position_; }
    // Moves the position; false, with the position unchanged, beyond the mark.
    bool Seek(std::size_t position);
    // Empties the buffer (position and mark back to 0); keeps the allocation.
    void Clear();
    // Grows the allocation to at least capacity bytes; content unchanged.
    void Reserve(std::size_t capacity);

    // --- writing at the position ----------------------------------------
    // Copies the bytes to the position, growing as needed, and advances the
    // position (and the mark when the position passes it).
    void Append(std::span<const std::byte> bytes);
    // As above; false, with nothing changed, for a null pointer with size > 0.
    bool Append(const void* data, std::size_t size);
    // Narrow text as its bytes, without a terminating NUL.
    void AppendText(std::string_view text);
    // UTF-16 text as little-endian code units, without a terminating NUL.
    void AppendText(std::u16string_view text);

    void AppendUInt8(std::uint8_t value) { AppendValue(value); }
    void AppendUInt16(std::uint16_t value) { AppendValue(value); }
    void AppendUInt32(std::uint32_t value) { AppendValue(value); }
    void AppendUInt64(std::uint64_t value) { AppendValue(value); }
    void AppendInt16(std::int16_t value) { AppendValue(value); }
    void AppendInt32(std::int32_t value) { AppendValue(value); }
    void AppendInt64(std::int64_t value) { AppendValue(value); }
    void AppendDouble(double value) { AppendValue(value); }

    // --- reading at the position ----------------------------------------
    // Fills bytes from the position and advances it; false, with the
    // destination and the position unchanged, when fewer bytes remain.
    bool Read(std::span<std::byte> bytes);
    bool Read(void* data, std::size_t size);

    bool ReadUInt8(std::uint8_t& value) { return ReadValue(value); }
    bool ReadUInt16(std::uint16_t& value) { return ReadValue(value); }
    bool ReadUInt32(std::uint32_t& value) { return ReadValue(value); }
    bool ReadUInt64(std::uint64_t& value) { return ReadValue(value); }
    bool ReadInt16(std::int16_t& value) { return ReadValue(value); }
    bool ReadInt32(std::int32_t& value) { return ReadValue(value); }
    bool ReadInt64(std::int64_t& value) { return ReadValue(value); }
    bool ReadDouble(double& value) { return ReadValue(value); }

  private:
    template <LittleEndianValue T>
    void AppendValue(T value) {
        const auto bytes = ToLittleEndian(value);
        Append(std::span<const std::byte>(bytes));
    }
    template <LittleEndianValue T>
    bool ReadValue(T& value) {
        std::byte bytes[sizeof(T)];
        if (!Read(std::span<std::byte>(bytes))) return false;
        value = FromLittleEndian<T>(std::span<const std::byte, sizeof(T)>(bytes));
        return true;
    }

    std::vector<std::byte> storage_;  // size() is the end of the allocation
    std::size_t position_ = 0;
    std::size_t high_ = 0;
};

}  // namespace vex
