#include <base/framework/StreamBuffer.h>

#include <base/framework/TextEncoding.h>

#include <algorithm>
#include <cstring>
#include <utility>

namespace vex::detail {

namespace {

// The bytes of text in the encoding, with every LF turned into CR LF.
std::string EncodeText(textencoding::type encoding, std::u16string_view text) {
    std::string bytes;
    if (encoding == textencoding::unicode) {
        bytes.reserve(2 * text.size() + 16);
        for (const char16_t unit : text) {
            if (unit == u'\n') bytes.append("\r\0", 2);
            bytes.push_back(static_cast<char>(unit & 0xFF));
            bytes.push_back(static_cast<char>(unit >> 8));
        }
        return bytes;
    }
    const std::string narrow =
        encoding == textencoding::multibyte ? Utf16ToAnsi(text) : Utf16ToUtf8(text);
    // In UTF-8 and the supported code pages the byte 0A is only ever LF.
    bytes.reserve(narrow.size() + 16);
    for (const char c : narrow) {
        if (c == '\n') bytes.push_back('\r');
        bytes.push_back(c);
    }
    return bytes;
}

std::u16string DecodeText(textencoding::type encoding, const std::string& bytes) {
    if (encoding == textencoding::multibyte) return AnsiToUtf16(bytes);
    if (encoding != textencoding::unicode) return Utf8ToUtf16(bytes);
    std::u16string text;
    text.reserve(bytes.size() / 2 + 1);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        text.push_back(static_cast<char16_t>(static_cast<unsigned char>(bytes[i]) |
                                             (static_cast<unsigned char>(bytes[i + 1]) << 8)));
    }
    // Half a code unit at the end of a file cannot be decoded.
    if (bytes.size() % 2 != 0) text.push_back(kReplacementChar);
    return text;
}

}  // namespace

bool StreamBuffer::FailFrom(const ByteStream& stream) {
    error_ = stream.GetError();
    if (!error_.IsError()) error_.cause = FileErrorCause::generic;
    return false;
}

bool StreamBuffer::Fill(ByteStream& stream) {
    readPos_ = 0;
    readEnd_ = stream.Read(buffer_.data(), buffer_.size());
    if (readEnd_ == 0) {
        if (stream.GetError().IsError()) FailFrom(stream);
        return false;
    }
    return true;
}

bool StreamBuffer::WritePending(ByteStream& stream) {
    const std::size_t size = std::exchange(pending_, 0);
    if (size > 0 && !stream.Write(buffer_.data(), size)) return FailFrom(stream);
    return true;
}

bool StreamBuffer::Sync(ByteStream& stream) {
    error_ = {};
    const Mode mode = std::exchange(mode_, Mode::idle);
    if (mode == Mode::writing) return WritePending(stream);
    if (mode == Mode::reading) {
        const std::size_t ahead = readEnd_ - readPos_;
        readPos_ = readEnd_ = 0;
        if (ahead > 0 && !stream.Seek(-static_cast<std::int64_t>(ahead), CFile::current)) {
            return FailFrom(stream);
        }
    }
    return true;
}

void StreamBuffer::Discard() {
    readPos_ = readEnd_ = pending_ = 0;
    mode_ = Mode::idle;
}

std::uint64_t StreamBuffer::Position(const ByteStream& stream) const {
    const std::uint64_t position = stream.GetPosition();
    if (mode_ == Mode::reading) return position - (readEnd_ - readPos_);
    if (mode_ == Mode::writing) return position + pending_;
    return position;
}

std::uint64_t StreamBuffer::Length(const ByteStream& stream) const {
    return std::max(stream.GetLength(), Position(stream));
}

std::size_t StreamBuffer::Read(ByteStream& stream, void* data, std::size_t size) {
    error_ = {};
    if (data == nullptr && size > 0) {
        error_ = {FileErrorCause::generic, 0};
        return 0;
    }
    if (mode_ == Mode::writing && !Sync(stream)) return 0;
    mode_ = Mode::reading;
    auto* out = static_cast<std::byte*>(data);
    std::size_t done = 0;
    while (done < size) {
        if (readPos_ == readEnd_) {
            // A large request goes straight to the stream instead of through the buffer.
            if (size - done >= buffer_.size()) {
                const std::size_t got = stream.Read(out + done, size - done);
                if (got == 0 && stream.GetError().IsError()) FailFrom(stream);
                return done + got;
            }
            if (!Fill(stream)) break;
        }
        const std::size_t n = std::min(size - done, readEnd_ - readPos_);
        std::memcpy(out + done, buffer_.data() + readPos_, n);
        readPos_ += n;
        done += n;
    }
    return done;
}

bool StreamBuffer::Write(ByteStream& stream, const void* data, std::size_t size) {
    error_ = {};
    if (data == nullptr && size > 0) {
        error_ = {FileErrorCause::generic, 0};
        return false;
    }
    if (mode_ == Mode::reading && !Sync(stream)) return false;
    mode_ = Mode::writing;
    if (size <= buffer_.size() - pending_) {
        if (size > 0) std::memcpy(buffer_.data() + pending_, data, size);
        pending_ += size;
        return true;
    }
    if (!WritePending(stream)) return false;
    if (size >= buffer_.size()) {
        return stream.Write(data, size) || FailFrom(stream);
    }
    std::memcpy(buffer_.data(), data, size);
    pending_ = size;
    return true;
}

bool StreamBuffer::ReadLine(ByteStream& stream, textencoding::type encoding, std::u16string& line) {
    error_ = {};
    if (mode_ == Mode::writing && !Sync(stream)) return false;
    mode_ = Mode::reading;
    const bool wide = encoding == textencoding::unicode;
    std::string bytes;
    bool ended = false;  // an LF ended the line
    while (!ended) {
        if (readPos_ == readEnd_ && !Fill(stream)) break;
        const std::byte* const begin = buffer_.data() + readPos_;
        const std::size_t available = readEnd_ - readPos_;
        if (!wide) {
            const void* lf = std::memchr(begin, '\n', available);
            const std::size_t take =
                lf ? static_cast<std::size_t>(static_cast<const std::byte*>(lf) - begin)
                   : available;
            bytes.append(reinterpret_cast<const char*>(begin), take);
            readPos_ += lf ? take + 1 : take;
            ended = lf != nullptr;
        } else {
            // A code unit may straddle two fills, so look at whole units of bytes.
            std::size_t i = 0;
            while (i < available && !ended) {
                bytes.push_back(static_cast<char>(begin[i++]));
                const std::size_t n = bytes.size();
                if (n % 2 == 0 && bytes[n - 2] == '\n' && bytes[n - 1] == '\0') {
                    bytes.resize(n - 2);
                    ended = true;
                }
            }
            readPos_ += i;
        }
    }
    if (error_.IsError() || (!ended && bytes.empty())) return false;
    if (ended) {
        const std::size_t n = bytes.size();
        if (wide && n >= 2 && n % 2 == 0 && bytes[n - 2] == '\r' && bytes[n - 1] == '\0') {
            bytes.resize(n - 2);
        } else if (!wide && n >= 1 && bytes[n - 1] == '\r') {
            bytes.pop_back();
        }
    }
    line = DecodeText(encoding, bytes);
    return true;
}

bool StreamBuffer::WriteText(ByteStream& stream, textencoding::type encoding,
                             std::u16string_view text) {
    const std::string bytes = EncodeText(encoding, text);
    return Write(stream, bytes.data(), bytes.size());
}

}  // namespace vex::detail
