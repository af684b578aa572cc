#include <base/strings/CVexCsvString.h>

#include <base/platform/RegionalSettings.h>
#include <base/strings/NumberFormat.h>

#include <algorithm>
#include <stdexcept>

namespace vex {
namespace {

// The number text before the local decimal symbol goes in.
CString FormatDecimals(double value, int decimals) {
    return FormatDouble(value, std::max(decimals, 0), 0);
}

}  // namespace

CVexCsvString::CVexCsvString() {
    // A setting the system cannot give keeps its default.
    const platform::RegionalSettings settings = platform::UserRegionalSettings();
    if (!settings.decimalSymbol.empty()) decimal_ = CString(settings.decimalSymbol);
    if (!settings.listSeparator.empty()) separator_ = CString(settings.listSeparator);
}

CVexCsvString::CVexCsvString(const CString& decimalSymbol, const CString& separator) {
    if (!decimalSymbol.IsEmpty()) decimal_ = decimalSymbol;
    if (!separator.IsEmpty()) separator_ = separator;
}

CString CVexCsvString::ProtectSeperator(const CString& text) const {
    if (text.Find(separator_) < 0) return text;
    return u'"' + text + u'"';
}

CString CVexCsvString::AdjustToLocalDecimal(const CString& text) const {
    CString adjusted = ProtectSeperator(text);
    if (decimal_ != u".") adjusted.Replace(u".", decimal_);
    return adjusted;
}

void CVexCsvString::AddItem(const CString& text) {
    items_.push_back(ProtectSeperator(text));
}

CVexCsvString& CVexCsvString::operator+=(const CString& text) {
    AddItem(text);
    return *this;
}

CVexCsvString CVexCsvString::operator+(const CString& text) const {
    CVexCsvString record(*this);
    record.AddItem(text);
    return record;
}

bool CVexCsvString::StoreItem(int index, CString item) {
    if (index < 0) return false;
    if (index >= Size()) items_.resize(static_cast<std::size_t>(index) + 1);
    items_[static_cast<std::size_t>(index)] = std::move(item);
    return true;
}

bool CVexCsvString::SetItem(int index, const CString& text) {
    return StoreItem(index, ProtectSeperator(text));
}

void CVexCsvString::Set(int index, CStringA::TextArg narrowText) {
    SetItem(index, CString(narrowText.View()));
}
void CVexCsvString::Set(int index, const char16_t* text) {
    SetItem(index, CString(text));
}
void CVexCsvString::Set(int index, const CString& text) {
    SetItem(index, text);
}

void CVexCsvString::AddItem(double value, int decimals) {
    items_.push_back(AdjustToLocalDecimal(FormatDecimals(value, decimals)));
}

bool CVexCsvString::SetItem(int index, double value, int decimals) {
    return StoreItem(index, AdjustToLocalDecimal(FormatDecimals(value, decimals)));
}

void CVexCsvString::Insert(int index, const CString& text) {
    const auto at = static_cast<std::size_t>(std::clamp(index, 0, Size()));
    items_.insert(items_.begin() + static_cast<std::ptrdiff_t>(at), ProtectSeperator(text));
}

void CVexCsvString::Erase(int first, int count) {
    if (first < 0 || first >= Size() || count < 1) return;
    const int last = first + std::min(count, Size() - first);
    items_.erase(items_.begin() + first, items_.begin() + last);
}

CString& CVexCsvString::operator[](int index) {
    if (index < 0 || index >= Size()) throw std::out_of_range("CVexCsvString: no such item");
    return items_[static_cast<std::size_t>(index)];
}

const CString& CVexCsvString::operator[](int index) const {
    if (index < 0 || index >= Size()) throw std::out_of_range("CVexCsvString: no such item");
    return items_[static_cast<std::size_t>(index)];
}

bool CVexCsvString::HasSubString(const CString& text) const {
    int index = 0;
    return HasSubString(text, index);
}

bool CVexCsvString::HasSubString(const CString& text, int& index) const {
    for (std::size_t i = 0; i < items_.size(); ++i) {
        if (items_[i].CompareNoCase(text) == 0) {
            index = static_cast<int>(i);
            return true;
        }
    }
    return false;
}

CString CVexCsvString::String() const {
    CString line;
    for (std::size_t i = 0; i < items_.size(); ++i) {
        if (i > 0) line += separator_;
        line += items_[i];
    }
    return line;
}

CString CVexCsvString::Left(int n) const {
    CString text;
    const int count = std::min(n, Size());
    for (int i = 0; i < count; ++i) {
        text += items_[static_cast<std::size_t>(i)];
        text += separator_;
    }
    return text;
}

CString CVexCsvString::Right(int n) const {
    CString text;
    if (n < 1 || n > Size()) return text;
    for (int i = Size() - n; i < Size(); ++i) {
        text += items_[static_cast<std::size_t>(i)];
        text += separator_;
    }
    return text;
}

}  // namespace vex
