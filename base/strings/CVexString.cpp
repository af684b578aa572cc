#include <base/strings/CVexString.h>

#include <base/framework/Scan.h>

#include <algorithm>
#include <stdexcept>
#include <string_view>

namespace vex {

namespace {

// True when exactly one value was read from text with format into target.
template <class T>
bool ReadOne(const CString& text, std::u16string_view format, T& target) {
    T value{};
    if (Scan(text.View(), format, &value) != 1) return false;
    target = value;
    return true;
}

// Reads an int item: "0x1F" and "0X1f" as hexadecimal, anything else as
// decimal.
bool ReadInt(const CString& item, int& out) {
    const std::u16string_view text = item.View();
    if (text.size() > 1 && text[0] == u'0' && (text[1] == u'x' || text[1] == u'X')) {
        return ReadOne(CString(text.substr(2)), u"%x", out);
    }
    return ReadOne(item, u"%d", out);
}

}  // namespace

CVexString::CVexString(char16_t separator) : separator_(separator) {}

CVexString::CVexString(const CString& text, char16_t separator, bool trimItems)
    : separator_(separator), source_(text), trimItems_(trimItems) {
    Split();
}

void CVexString::LoadStringW(const CString& text, bool trimItems) {
    source_ = text;
    trimItems_ = trimItems;
    Split();
}

void CVexString::LoadStringW(const CStringA& text, bool trimItems) {
    LoadStringW(CString(text), trimItems);
}

void CVexString::SetSeparator(char16_t separator) {
    separator_ = separator;
    Split();
}

void CVexString::Split() {
    items_.clear();
    std::u16string text = source_.Str();
    if (separator_ == u' ') {
        // Runs of blanks separate like one blank.
        const auto first = text.find_first_not_of(u' ');
        text.erase(0, first == text.npos ? text.size() : first);
        text.erase(text.find_last_not_of(u' ') + 1);
        const auto bothSpaces = [](char16_t a, char16_t b) { return a == u' ' && b == u' '; };
        text.erase(std::unique(text.begin(), text.end(), bothSpaces), text.end());
    }
    std::size_t start = 0;
    for (std::size_t p; (p = text.find(separator_, start)) != text.npos;) {
        items_.emplace_back(text.substr(start, p - start));
        start = p + 1;
    }
    items_.emplace_back(text.substr(start));
    if (trimItems_) {
        for (CString& item : items_)
            item.Trim();
    }
}

CString& CVexString::operator[](int i) {
    return items_.at(static_cast<std::size_t>(i < 0 ? Size() : i));
}

const CString& CVexString::operator[](int i) const {
    return items_.at(static_cast<std::size_t>(i < 0 ? Size() : i));
}

bool CVexString::GetItem(int i, CString& out) const {
    if (i < 0 || i >= Size()) return false;
    out = items_[static_cast<std::size_t>(i)];
    return true;
}

bool CVexString::GetItem(int i, int& out) const {
    return i >= 0 && i < Size() && ReadInt(items_[static_cast<std::size_t>(i)], out);
}

bool CVexString::GetItem(int i, bool& out) const {
    int value = 0;
    if (!GetItem(i, value)) return false;
    out = value != 0;
    return true;
}

bool CVexString::GetItem(int i, unsigned int& out) const {
    return i >= 0 && i < Size() && ReadOne(items_[static_cast<std::size_t>(i)], u"%u", out);
}

bool CVexString::GetItem(int i, unsigned short& out) const {
    return i >= 0 && i < Size() && ReadOne(items_[static_cast<std::size_t>(i)], u"%hu", out);
}

bool CVexString::GetItem(int i, double& out) const {
    return i >= 0 && i < Size() && ReadOne(items_[static_cast<std::size_t>(i)], u"%lf", out);
}

bool CVexString::GetItem(int i, float& out) const {
    return i >= 0 && i < Size() && ReadOne(items_[static_cast<std::size_t>(i)], u"%f", out);
}

bool CVexString::SetItem(int i, const CString& text) {
    if (i < 0) return false;
    if (i >= Size()) items_.resize(static_cast<std::size_t>(i) + 1);
    items_[static_cast<std::size_t>(i)] = text;
    return true;
}

bool CVexString::Set(int i, const CStringA& text) {
    return SetItem(i, CString(text));
}

void CVexString::AddItem(const CString& text) {
    items_.push_back(text);
}

CVexString& CVexString::operator+=(const CString& text) {
    AddItem(text);
    return *this;
}

CVexString CVexString::operator+(const CString& text) const {
    CVexString result(*this);
    result.AddItem(text);
    return result;
}

void CVexString::Insert(int i, const CString& text) {
    const int at = std::clamp(i, 0, Size());
    items_.insert(items_.begin() + at, text);
}

void CVexString::Erase(int i, int n) {
    const int from = std::clamp(i, 0, Size());
    const int to = n > 0 ? from + std::min(n, Size() - from) : from;
    items_.erase(items_.begin() + from, items_.begin() + to);
}

bool CVexString::HasSubString(const CString& text) const {
    int index = 0;
    return HasSubString(text, index);
}

bool CVexString::HasSubString(const CString& text, int& index) const {
    for (int i = 0; i < Size(); ++i) {
        if (items_[static_cast<std::size_t>(i)].CompareNoCase(text) == 0) {
            index = i;
            return true;
        }
    }
    return false;
}

bool CVexString::GetItemBoundaries(int i, int& start, int& end) const {
    if (i < 0 || i >= Size()) return false;
    int first = 0;
    for (int k = 0; k < i; ++k)
        first += items_[static_cast<std::size_t>(k)].GetLength() + 1;
    const int length = items_[static_cast<std::size_t>(i)].GetLength();
    start = first;
    end = length > 0 ? first + length - 1 : -1;
    return true;
}

CString CVexString::String() const {
    std::u16string joined;
    for (std::size_t k = 0; k < items_.size(); ++k) {
        if (k > 0) joined += separator_;
        joined += items_[k].View();
    }
    return CString(std::move(joined));
}

CString CVexString::Left(int n) const {
    std::u16string text;
    for (int k = 0; k < std::min(n, Size()); ++k)
        (text += items_[static_cast<std::size_t>(k)].View()) += separator_;
    return CString(std::move(text));
}

CString CVexString::Right(int n) const {
    if (n <= 0 || n > Size()) return CString();
    std::u16string text;
    for (int k = Size() - n; k < Size(); ++k)
        (text += items_[static_cast<std::size_t>(k)].View()) += separator_;
    return CString(std::move(text));
}

}  // namespace vex
