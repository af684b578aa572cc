#include <base/framework/CStdioFile.h>

#include <utility>

namespace vex {

namespace {

// The C runtime's stdio buffer size; lines of any length still work.
constexpr std::size_t kBufferSize = 4096;

}  // namespace

CStdioFile::CStdioFile() : buffer_(kBufferSize) {}

CStdioFile::~CStdioFile() {
    Close();
}

CStdioFile::CStdioFile(CStdioFile&&) noexcept = default;

CStdioFile& CStdioFile::operator=(CStdioFile&& other) noexcept {
    if (this != &other) {
        Close();
        ByteStream::operator=(std::move(other));
        file_ = std::move(other.file_);
        buffer_ = std::move(other.buffer_);
        encoding_ = other.encoding_;
    }
    return *this;
}

bool CStdioFile::Checked(bool ok, const FileIoError& error) {
    return ok || Fail(error);
}

bool CStdioFile::Open(const CString& path, unsigned flags, textencoding::type encoding) {
    Close();
    ClearError();
    encoding_ = encoding;
    buffer_.Discard();
    return Checked(file_.Open(path, flags), file_.GetError());
}

bool CStdioFile::Close() {
    ClearError();
    if (!file_.IsOpen()) return true;
    const bool written = buffer_.Sync(file_);
    const FileIoError writeError = buffer_.GetError();
    buffer_.Discard();
    const bool closed = file_.Close();
    if (!written) return Fail(writeError);
    return Checked(closed, file_.GetError());
}

bool CStdioFile::ReadString(CString& line) {
    ClearError();
    std::u16string text;
    if (!buffer_.ReadLine(file_, encoding_, text)) {
        return buffer_.GetError().IsError() ? Fail(buffer_.GetError()) : false;
    }
    line = CString(std::move(text));
    return true;
}

bool CStdioFile::WriteString(const CString& text) {
    ClearError();
    return Checked(buffer_.WriteText(file_, encoding_, text.View()), buffer_.GetError());
}

std::size_t CStdioFile::Read(void* buffer, std::size_t size) {
    ClearError();
    const std::size_t count = buffer_.Read(file_, buffer, size);
    if (buffer_.GetError().IsError()) Fail(buffer_.GetError());
    return count;
}

bool CStdioFile::Write(const void* data, std::size_t size) {
    ClearError();
    return Checked(buffer_.Write(file_, data, size), buffer_.GetError());
}

bool CStdioFile::Seek(std::int64_t offset, CFile::SeekPosition from) {
    ClearError();
    if (!buffer_.Sync(file_)) return Fail(buffer_.GetError());
    return Checked(file_.Seek(offset, from), file_.GetError());
}

std::uint64_t CStdioFile::GetPosition() const {
    ClearError();
    const std::uint64_t position = buffer_.Position(file_);
    if (file_.GetError().IsError()) Fail(file_.GetError());
    return position;
}

std::uint64_t CStdioFile::GetLength() const {
    ClearError();
    const std::uint64_t length = buffer_.Length(file_);
    if (file_.GetError().IsError()) Fail(file_.GetError());
    return length;
}

bool CStdioFile::Flush() {
    ClearError();
    if (!buffer_.Sync(file_)) return Fail(buffer_.GetError());
    return Checked(file_.Flush(), file_.GetError());
}

}  // namespace vex
