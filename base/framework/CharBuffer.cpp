#include <base/framework/CharBuffer.h>

#include <algorithm>
#include <cstring>

namespace vex {

namespace {

// Smallest allocation, so that a run of small appends does not reallocate often.
constexpr std::size_t kMinimumCapacity = 64;

}  // namespace

CharBuffer::CharBuffer(std::size_t capacity) : storage_(capacity) {}

bool CharBuffer::Seek(std::size_t position) {
    if (position > high_) return false;
    position_ = position;
    return true;
}

void CharBuffer::Clear() {
    position_ = 0;
    high_ = 0;
}

void CharBuffer::Reserve(std::size_t capacity) {
    if (capacity > storage_.size()) storage_.resize(capacity);
}

void CharBuffer::Append(std::span<const std::byte> bytes) {
    if (bytes.empty()) return;
    const std::size_t needed = position_ + bytes.size();
    if (needed > storage_.size()) {
        // Doubling keeps a long run of appends linear in the total size. The
        // old storage lives until the copy is done, as bytes may point into it.
        std::vector<std::byte> grown(std::max({needed, storage_.size() * 2, kMinimumCapacity}));
        if (high_ > 0) std::memcpy(grown.data(), storage_.data(), high_);
        std::memcpy(grown.data() + position_, bytes.data(), bytes.size());
        storage_.swap(grown);
    } else {
        std::memmove(storage_.data() + position_, bytes.data(), bytes.size());
    }
    position_ = needed;
    high_ = std::max(high_, position_);
}

bool CharBuffer::Append(const void* data, std::size_t size) {
    if (data == nullptr && size > 0) return false;
    Append(std::span<const std::byte>(static_cast<const std::byte*>(data), size));
    return true;
}

void CharBuffer::AppendText(std::string_view text) {
    Append(std::as_bytes(std::span<const char>(text.data(), text.size())));
}

void CharBuffer::AppendText(std::u16string_view text) {
    Reserve(position_ + 2 * text.size());
    for (const char16_t unit : text) {
        AppendUInt16(static_cast<std::uint16_t>(unit));
    }
}

bool CharBuffer::Read(std::span<std::byte> bytes) {
    if (bytes.size() > GetRemaining()) return false;
    if (!bytes.empty()) std::memcpy(bytes.data(), storage_.data() + position_, bytes.size());
    position_ += bytes.size();
    return true;
}

bool CharBuffer::Read(void* data, std::size_t size) {
    if (data == nullptr && size > 0) return false;
    return Read(std::span<std::byte>(static_cast<std::byte*>(data), size));
}

}  // namespace vex
