#include <base/framework/FileStream.h>

#include <utility>

namespace vex {

FileStream::FileStream(platform::NativeFile file, const CString& path)
    : file_(std::move(file)), path_(path) {}

FileStream::~FileStream() = default;

bool FileStream::Open(const CString& path, unsigned flags) {
    ClearError();
    path_ = path;
    return file_.Open(path.View(), flags) || Fail(file_.GetError());
}

bool FileStream::Close() {
    ClearError();
    return file_.Close() || Fail(file_.GetError());
}

bool FileStream::SetLength(std::uint64_t length) {
    ClearError();
    return file_.SetLength(length) || Fail(file_.GetError());
}

std::size_t FileStream::Read(void* buffer, std::size_t size) {
    ClearError();
    std::size_t count = 0;
    if (!file_.Read(buffer, size, count)) Fail(file_.GetError());
    return count;
}

bool FileStream::Write(const void* data, std::size_t size) {
    ClearError();
    return file_.Write(data, size) || Fail(file_.GetError());
}

bool FileStream::Seek(std::int64_t offset, CFile::SeekPosition from) {
    ClearError();
    std::uint64_t position = 0;
    return file_.Seek(offset, from, position) || Fail(file_.GetError());
}

std::uint64_t FileStream::GetPosition() const {
    ClearError();
    std::uint64_t position = 0;
    if (!file_.GetPosition(position)) Fail(file_.GetError());
    return position;
}

std::uint64_t FileStream::GetLength() const {
    ClearError();
    std::uint64_t length = 0;
    if (!file_.GetLength(length)) Fail(file_.GetError());
    return length;
}

bool FileStream::Flush() {
    ClearError();
    return file_.SyncToDisk() || Fail(file_.GetError());
}

}  // namespace vex
