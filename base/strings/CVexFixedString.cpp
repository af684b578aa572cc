#include <base/strings/CVexFixedString.h>

#include <base/strings/NumberScan.h>

namespace vex {

void CVexFixedString::LoadStringW(CStringA::TextArg narrowText) {
    text_ = CString(narrowText.View());
}

bool CVexFixedString::CheckInString(int& column, int& width) const {
    // 64-bit sums: a column or width near the int limits must not overflow.
    const long long index = static_cast<long long>(column) - base_;
    if (index < 0 || index >= Size()) return false;
    if (index + width > Size()) width = static_cast<int>(Size() - index);
    column = static_cast<int>(index);
    return width >= 1;
}

bool CVexFixedString::Field(int column, int width, std::u16string_view& field) const {
    if (!CheckInString(column, width)) return false;
    field = text_.View().substr(static_cast<std::size_t>(column), static_cast<std::size_t>(width));
    return true;
}

bool CVexFixedString::GetItem(int column, int width, CString& out) const {
    std::u16string_view field;
    if (!Field(column, width, field)) return false;
    out = CString(field);
    return true;
}

bool CVexFixedString::GetItem(int column, int width, int& out) const {
    std::u16string_view field;
    return Field(column, width, field) && detail::ScanInteger(field, 10, out);
}

bool CVexFixedString::GetItem(int column, int width, unsigned int& out) const {
    std::u16string_view field;
    return Field(column, width, field) && detail::ScanInteger(field, 10, out);
}

bool CVexFixedString::GetItem(int column, int width, unsigned short& out) const {
    std::u16string_view field;
    return Field(column, width, field) && detail::ScanInteger(field, 10, out);
}

bool CVexFixedString::GetItem(int column, int width, double& out) const {
    std::u16string_view field;
    return Field(column, width, field) && detail::ScanFloating(field, out);
}

bool CVexFixedString::GetItem(int column, int width, float& out) const {
    std::u16string_view field;
    return Field(column, width, field) && detail::ScanFloating(field, out);
}

bool CVexFixedString::GetItem(int column, int width, bool& out) const {
    int value = 0;
    if (!GetItem(column, width, value)) return false;
    out = value != 0;
    return true;
}

bool CVexFixedString::GetHexItem(int column, int width, unsigned int& out) const {
    std::u16string_view field;
    return Field(column, width, field) && detail::ScanInteger(field, 16, out);
}

}  // namespace vex
