// FileStream.h - a file on disk as an unbuffered ByteStream: every Read and
// Write goes straight to the operating system.
//
// Open takes the CFile flags (access, create, share). Flush() waits until
// the data is on the storage device. Use CStdioFile for text lines or many
// small reads, or a CArchive in front of this for many small writes.
//
//   vex::FileStream file;
//   if (file.Open(u"tide.dat", vex::CFile::modeRead | vex::CFile::shareDenyWrite)) ...
#pragma once

#include <base/Export.h>
#include <base/framework/ByteStream.h>
#include <base/framework/CString.h>
#include <base/platform/FileSystem.h>

namespace vex {

class VEXBASE_API FileStream final : public ByteStream {
  public:
    FileStream() = default;
    // Takes over an open file of the system; path names it for GetFilePath.
    FileStream(platform::NativeFile file, const CString& path);
    ~FileStream() override;
    FileStream(FileStream&&) noexcept = default;
    FileStream& operator=(FileStream&&) noexcept = default;

    // Opens path with CFile flags (see platform::NativeFile::Open). A file
    // already open is closed first. False when the file cannot be opened.
    bool Open(const CString& path, unsigned flags);
    bool IsOpen() const { return file_.IsOpen(); }
    // False when the system reports a failure on closing; closed all the same.
    bool Close();
    // The path given to Open, as given; kept after Close.
    const CString& GetFilePath() const { return path_; }
    // Cuts or extends (with zero bytes) the file; the position stays.
    bool SetLength(std::uint64_t length);

    std::size_t Read(void* buffer, std::size_t size) override;
    bool Write(const void* data, std::size_t size) override;
    bool Seek(std::int64_t offset, CFile::SeekPosition from) override;
    // 0 when closed.
    std::uint64_t GetPosition() const override;
    // 0 when closed.
    std::uint64_t GetLength() const override;
    bool Flush() override;

  private:
    platform::NativeFile file_;
    CString path_;
};

}  // namespace vex
