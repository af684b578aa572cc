#include <base/framework/AtomicFile.h>

#include <base/platform/FileSystem.h>

#include <string>
#include <utility>

namespace vex {

AtomicFile::~AtomicFile() {
    Discard();
}

bool AtomicFile::Open(const CString& targetPath) {
    Discard();
    ClearError();
    target_ = targetPath;
    spoiled_ = false;
    if (targetPath.IsEmpty()) return Fail(FileErrorCause::badPath);
    // Creating the temporary would succeed, but the final rename could not.
    if (platform::GetPathKind(targetPath.View()) == platform::PathKind::directory) {
        return Fail(FileErrorCause::accessDenied);
    }
    platform::NativeFile file;
    std::u16string temporaryPath;
    FileIoError error;
    if (!platform::CreateTemporaryBeside(targetPath.View(), file, temporaryPath, &error)) {
        return Fail(error);
    }
    temporary_ = FileStream(std::move(file), CString(std::move(temporaryPath)));
    return true;
}

bool AtomicFile::Spoil(const FileIoError& error) {
    spoiled_ = true;
    return Fail(error);
}

void AtomicFile::Discard() {
    if (!temporary_.IsOpen()) return;
    temporary_.Close();
    platform::RemoveFile(temporary_.GetFilePath().View());
    temporary_ = FileStream();
    spoiled_ = false;
}

bool AtomicFile::Commit() {
    ClearError();
    if (!temporary_.IsOpen()) return Fail(FileErrorCause::invalidFile);
    FileIoError error;
    if (spoiled_) {
        error = {FileErrorCause::generic, 0};
    } else if (!temporary_.Flush() || !temporary_.Close()) {
        error = temporary_.GetError();
    } else if (platform::ReplaceFileByRename(temporary_.GetFilePath().View(), target_.View(),
                                             &error)) {
        temporary_ = FileStream();
        return true;
    }
    const CString temporaryPath = temporary_.GetFilePath();
    temporary_.Close();
    platform::RemoveFile(temporaryPath.View());
    temporary_ = FileStream();
    spoiled_ = false;
    return Fail(error);
}

std::size_t AtomicFile::Read(void* buffer, std::size_t size) {
    ClearError();
    const std::size_t count = temporary_.Read(buffer, size);
    if (temporary_.GetError().IsError()) Fail(temporary_.GetError());
    return count;
}

bool AtomicFile::Write(const void* data, std::size_t size) {
    ClearError();
    return temporary_.Write(data, size) || Spoil(temporary_.GetError());
}

bool AtomicFile::Seek(std::int64_t offset, CFile::SeekPosition from) {
    ClearError();
    // A failed seek leaves the caller unsure where later writes land.
    return temporary_.Seek(offset, from) || Spoil(temporary_.GetError());
}

std::uint64_t AtomicFile::GetPosition() const {
    ClearError();
    const std::uint64_t position = temporary_.GetPosition();
    if (temporary_.GetError().IsError()) Fail(temporary_.GetError());
    return position;
}

std::uint64_t AtomicFile::GetLength() const {
    ClearError();
    const std::uint64_t length = temporary_.GetLength();
    if (temporary_.GetError().IsError()) Fail(temporary_.GetError());
    return length;
}

bool AtomicFile::Flush() {
    ClearError();
    return temporary_.Flush() || Spoil(temporary_.GetError());
}

bool AtomicWriteFile(const CString& path, std::span<const std::byte> content, FileIoError* error) {
    AtomicFile save;
    const bool saved =
        save.Open(path) && save.Write(content.data(), content.size()) && save.Commit();
    if (error) *error = save.GetError();
    return saved;
}

}  // namespace vex
