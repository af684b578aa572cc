#include <base/framework/MemFile.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>
#include <stdexcept>
#include <utility>

namespace vex {

MemFile::MemFile(std::vector<std::byte> data) : data_(std::move(data)) {}

void MemFile::Attach(std::vector<std::byte> data) {
    ClearError();
    data_ = std::move(data);
    position_ = 0;
}

std::vector<std::byte> MemFile::Detach() {
    ClearError();
    position_ = 0;
    return std::exchange(data_, {});
}

bool MemFile::SetLength(std::uint64_t length) {
    ClearError();
    if (length > data_.max_size()) return Fail(FileErrorCause::diskFull);
    try {
        data_.resize(static_cast<std::size_t>(length));
    } catch (const std::exception&) {  // out of memory is this file's "disk full"
        return Fail(FileErrorCause::diskFull);
    }
    return true;
}

std::size_t MemFile::Read(void* buffer, std::size_t size) {
    ClearError();
    if (buffer == nullptr && size > 0) {
        Fail(FileErrorCause::generic);
        return 0;
    }
    if (position_ >= data_.size()) return 0;
    const auto from = static_cast<std::size_t>(position_);
    const std::size_t count = std::min(size, data_.size() - from);
    if (count > 0) std::memcpy(buffer, data_.data() + from, count);
    position_ += count;
    return count;
}

bool MemFile::Write(const void* data, std::size_t size) {
    ClearError();
    if (data == nullptr && size > 0) return Fail(FileErrorCause::generic);
    if (size == 0) return true;
    if (position_ > data_.max_size() || size > data_.max_size() - position_) {
        return Fail(FileErrorCause::diskFull);
    }
    const auto end = static_cast<std::size_t>(position_) + size;
    if (end > data_.size()) {
        try {
            // Geometric growth keeps many small writes linear in the total size.
            if (end > data_.capacity()) data_.reserve(std::max(end, 2 * data_.capacity()));
            data_.resize(end);
        } catch (const std::exception&) {
            return Fail(FileErrorCause::diskFull);
        }
    }
    std::memmove(data_.data() + position_, data, size);
    position_ = end;
    return true;
}

bool MemFile::Seek(std::int64_t offset, CFile::SeekPosition from) {
    ClearError();
    std::int64_t base = 0;
    switch (from) {
        case CFile::begin:
            base = 0;
            break;
        case CFile::current:
            base = static_cast<std::int64_t>(position_);
            break;
        case CFile::end:
            base = static_cast<std::int64_t>(data_.size());
            break;
        default:
            return Fail(FileErrorCause::badSeek);
    }
    if ((offset < 0 && base + offset < 0) ||
        (offset > 0 && base > std::numeric_limits<std::int64_t>::max() - offset)) {
        return Fail(FileErrorCause::badSeek);
    }
    position_ = static_cast<std::uint64_t>(base + offset);
    return true;
}

bool MemFile::Flush() {
    ClearError();
    return true;
}

}  // namespace vex
