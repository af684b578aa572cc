#include <base/data/IdFields.h>

#include <base/framework/Scan.h>

#include <cmath>

namespace vex::detail {

bool ReadUnsignedField(std::u16string_view field, std::uint32_t maxValue, std::uint32_t& value) {
    if (field.empty()) return false;
    std::uint64_t read = 0;
    for (const char16_t c : field) {
        if (c < u'0' || c > u'9') return false;
        read = read * 10 + static_cast<std::uint64_t>(c - u'0');
        if (read > maxValue) return false;  // also keeps read far from overflowing
    }
    value = static_cast<std::uint32_t>(read);
    return true;
}

bool ReadUInt16Field(std::u16string_view field, std::uint16_t& value) {
    std::uint32_t read = 0;
    if (!ReadUnsignedField(field, 0xFFFF, read)) return false;
    value = static_cast<std::uint16_t>(read);
    return true;
}

bool ReadDoubleField(std::u16string_view field, double& value) {
    if (field.empty()) return false;
    const char16_t first = field.front();
    const bool numberStart = (first >= u'0' && first <= u'9') || first == u'+' || first == u'-' ||
                             first == u'.' || first == u'i' || first == u'I' || first == u'n' ||
                             first == u'N';
    if (!numberStart) return false;
    double read = 0.0;
    int consumed = 0;
    if (Scan(field, u"%lf%n", &read, &consumed) != 1) return false;
    if (consumed < 0 || static_cast<std::size_t>(consumed) != field.size()) return false;
    if (std::isinf(read) && field.find_first_of(u"iI") == std::u16string_view::npos) return false;
    value = read;
    return true;
}

int ReadUInt16Fields(std::u16string_view text, std::span<std::uint16_t> values) {
    std::size_t pos = 0;
    int count = 0;
    for (std::uint16_t& value : values) {
        std::size_t end = pos;
        while (end < text.size() && text[end] >= u'0' && text[end] <= u'9')
            ++end;
        std::uint16_t read = 0;
        if (!ReadUInt16Field(text.substr(pos, end - pos), read)) return -1;
        value = read;
        ++count;
        if (end == text.size()) return count;
        if (text[end] != u',') return -1;
        pos = end + 1;
    }
    return count;
}

}  // namespace vex::detail
