#include <base/framework/CArchive.h>

#include <utility>

namespace vex {

CArchive::CArchive(ByteStream& stream, Mode mode, textencoding::type encoding)
    : stream_(&stream), mode_(mode), encoding_(encoding), buffer_(kBufferSize) {}

CArchive::~CArchive() {
    Close();
}

bool CArchive::Fail(FileIoError error) {
    error_ = error;
    if (!error_.IsError()) error_.cause = FileErrorCause::generic;
    return false;
}

// Resets the error; false (with the error set) when the archive is closed
// or the operation belongs to the other mode.
bool CArchive::Usable(Mode wanted) {
    error_ = {};
    if (stream_ == nullptr) return Fail({FileErrorCause::invalidFile, 0});
    if (mode_ != wanted) return Fail({FileErrorCause::generic, 0});
    return true;
}

std::size_t CArchive::Read(void* buffer, std::size_t size) {
    if (!Usable(load)) return 0;
    const std::size_t count = buffer_.Read(*stream_, buffer, size);
    if (buffer_.GetError().IsError()) Fail(buffer_.GetError());
    return count;
}

bool CArchive::Write(const void* data, std::size_t size) {
    if (!Usable(store)) return false;
    return buffer_.Write(*stream_, data, size) || Fail(buffer_.GetError());
}

bool CArchive::ReadString(CString& line) {
    if (!Usable(load)) return false;
    std::u16string text;
    if (!buffer_.ReadLine(*stream_, encoding_, text)) {
        return buffer_.GetError().IsError() ? Fail(buffer_.GetError()) : false;
    }
    line = CString(std::move(text));
    return true;
}

bool CArchive::WriteString(const CString& text) {
    if (!Usable(store)) return false;
    return buffer_.WriteText(*stream_, encoding_, text.View()) || Fail(buffer_.GetError());
}

bool CArchive::Flush() {
    if (!Usable(mode_)) return false;
    return buffer_.Sync(*stream_) || Fail(buffer_.GetError());
}

bool CArchive::Close() {
    if (stream_ == nullptr) return true;
    const bool flushed = Flush();
    buffer_.Discard();
    stream_ = nullptr;
    return flushed;
}

}  // namespace vex
