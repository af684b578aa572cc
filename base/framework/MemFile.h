// MemFile.h - a file held in memory: a growable byte stream with a position,
// for parsing or rendering a file's content without touching the disk.
//
// The memory file owns its bytes; Detach() hands them to the caller and
// leaves the file empty. Seeking past the end is allowed, and a write there
// fills the gap with zero bytes, as a file on disk does. Not thread-safe.
//
//   vex::MemFile file;
//   file.Write("abc", 3);
//   std::vector<std::byte> bytes = file.Detach();  // 61 62 63
#pragma once

#include <base/Export.h>
#include <base/framework/ByteStream.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace vex {

class VEXBASE_API MemFile final : public ByteStream {
  public:
    MemFile() = default;
    // A memory file holding data, positioned at its start.
    explicit MemFile(std::vector<std::byte> data);

    // Replaces the content by data and moves the position to the start.
    void Attach(std::vector<std::byte> data);
    // Returns the content and leaves the file empty, positioned at 0.
    std::vector<std::byte> Detach();
    // The content; valid until the next write, Attach or Detach.
    std::span<const std::byte> Data() const { return data_; }
    // Cuts the content or extends it with zero bytes; the position stays.
    bool SetLength(std::uint64_t length);

    std::size_t Read(void* buffer, std::size_t size) override;
    bool Write(const void* data, std::size_t size) override;
    bool Seek(std::int64_t offset, CFile::SeekPosition from) override;
    std::uint64_t GetPosition() const override { return position_; }
    std::uint64_t GetLength() const override { return data_.size(); }
    // Nothing to push: always true.
    bool Flush() override;

  private:
    std::vector<std::byte> data_;
    std::uint64_t position_ = 0;  // may lie beyond the end after a seek
};

}  // namespace vex
