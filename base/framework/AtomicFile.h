// AtomicFile.h - saving a file so that it is either wholly replaced or not
// touched at all, even if the process dies or the disk fills midway.
//
// The new content goes to a temporary file in the target's folder (see
// platform::CreateTemporaryBeside); Commit() brings it to disk and renames
// it over the target in one step. Until then the old file is untouched,
// and without Commit() (or after any failure) the temporary is removed.
// Writes are unbuffered: write large pieces, or put a CArchive in front.
//
//   vex::AtomicFile save;
//   if (!save.Open(u"vex.ini")) return false;
//   save.Write(text.data(), text.size());
//   return save.Commit();
#pragma once

#include <base/Export.h>
#include <base/framework/ByteStream.h>
#include <base/framework/CString.h>
#include <base/framework/FileStream.h>

#include <cstddef>
#include <span>

namespace vex {

class VEXBASE_API AtomicFile final : public ByteStream {
  public:
    AtomicFile() = default;
    // Discards an uncommitted save: the temporary is removed, the target kept.
    ~AtomicFile() override;
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    // Starts a save of targetPath: creates the temporary beside it. False,
    // with nothing created, when the target is a folder or its folder is
    // missing or not writable. Discards a save already started.
    bool Open(const CString& targetPath);
    bool IsOpen() const { return temporary_.IsOpen(); }

    // Makes the written content the target's: flushes it to disk, closes
    // the temporary and renames it over the target. False when that fails
    // or when any earlier write or seek of this save failed; the target is
    // then unchanged and the temporary removed. Either way the save ends.
    bool Commit();
    // Ends the save without touching the target; removes the temporary.
    void Discard();

    const CString& GetTargetPath() const { return target_; }
    // The temporary's path while a save is open; empty otherwise.
    const CString& GetTemporaryPath() const { return temporary_.GetFilePath(); }

    std::size_t Read(void* buffer, std::size_t size) override;
    bool Write(const void* data, std::size_t size) override;
    bool Seek(std::int64_t offset, CFile::SeekPosition from) override;
    std::uint64_t GetPosition() const override;
    std::uint64_t GetLength() const override;
    // Waits until the temporary's content is on disk; the target is unchanged.
    bool Flush() override;

  private:
    // Records a failure of the temporary; the save can no longer commit.
    bool Spoil(const FileIoError& error);

    FileStream temporary_;
    CString target_;
    bool spoiled_ = false;
};

// Replaces the file at path by content in one step; false, with the old
// file unchanged and no temporary left behind, when that is not possible.
VEXBASE_API bool AtomicWriteFile(const CString& path, std::span<const std::byte> content,
                                 FileIoError* error = nullptr);

}  // namespace vex
