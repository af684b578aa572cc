// The typed items of the file object: numbers, flags, colours and narrow
// text read from and written to the stored wide text.
#include <base/config/FileObject.h>

#include <base/framework/Scan.h>
#include <base/framework/TextEncoding.h>
#include <base/strings/Precision.h>

namespace vex {
namespace {

bool IsHex(const CString& text) {
    return text.Find(u"0x") >= 0 || text.Find(u"0X") >= 0;
}

// Reads exactly one field of text by format into value; value is unchanged
// on failure.
template <class T>
bool ScanOne(const CString& text, std::u16string_view format, T& value) {
    T read{};
    if (Scan(text.View(), format, &read) != 1) return false;
    value = read;
    return true;
}

}  // namespace

bool FileObject::GetItem(const CString& section, const CString& key, std::string& value) const {
    CString text;
    if (!GetItem(section, key, text)) return false;
    value = Utf16ToAnsi(text.View());
    return true;
}

bool FileObject::GetItem(const CString& section, const CString& key, int& value) const {
    CString text;
    if (!GetItem(section, key, text)) return false;
    return ScanOne(text, IsHex(text) ? u"%x" : u"%d", value) || ConversionFailed(section, key);
}

bool FileObject::GetItem(const CString& section, const CString& key, unsigned int& value) const {
    CString text;
    if (!GetItem(section, key, text)) return false;
    return ScanOne(text, IsHex(text) ? u"%x" : u"%u", value) || ConversionFailed(section, key);
}

// "%ld" rather than "%d": SetItem writes a long with "%ld", and where long
// has 64 bits a value written must read back the same. Where it has 32
// bits, as on Windows, both read alike.
bool FileObject::GetItem(const CString& section, const CString& key, long& value) const {
    CString text;
    if (!GetItem(section, key, text)) return false;
    return ScanOne(text, IsHex(text) ? u"%lx" : u"%ld", value) || ConversionFailed(section, key);
}

bool FileObject::GetItem(const CString& section, const CString& key, COLORREF& value) const {
    CString text;
    if (!GetItem(section, key, text)) return false;
    int red = 0;
    int green = 0;
    int blue = 0;
    if (Scan(text.View(), u"%d, %d, %d", &red, &green, &blue) != 3) {
        return ConversionFailed(section, key);
    }
    value =
        RGB(static_cast<unsigned>(red), static_cast<unsigned>(green), static_cast<unsigned>(blue));
    return true;
}

bool FileObject::GetItem(const CString& section, const CString& key, bool& value) const {
    CString text;
    if (!GetItem(section, key, text)) return false;
    int number = 0;
    if (!ScanOne(text, u"%d", number)) return ConversionFailed(section, key);
    value = number != 0;
    return true;
}

bool FileObject::GetItem(const CString& section, const CString& key, double& value) const {
    CString text;
    if (!GetItem(section, key, text)) return false;
    return ScanOne(text, u"%lf", value) || ConversionFailed(section, key);
}

bool FileObject::GetItem(const CString& section, const CString& key, float& value) const {
    CString text;
    if (!GetItem(section, key, text)) return false;
    return ScanOne(text, u"%f", value) || ConversionFailed(section, key);
}

bool FileObject::GetItem(const CString& section, const CString& key, long long& value) const {
    CString text;
    if (!GetItem(section, key, text)) return false;
    return ScanOne(text, u"%I64d", value) || ConversionFailed(section, key);
}

bool FileObject::GetItem(const CString& section, const CString& key,
                         unsigned long long& value) const {
    CString text;
    if (!GetItem(section, key, text)) return false;
    return ScanOne(text, u"%I64u", value) || ConversionFailed(section, key);
}

bool FileObject::SetItem(const CString& section, const CString& key, const char16_t* value,
                         bool createSection) {
    return SetItem(section, key, CString(value), createSection);
}

bool FileObject::SetItem(const CString& section, const CString& key, const wchar_t* value,
                         bool createSection) {
    return SetItem(section, key, CString(value), createSection);
}

bool FileObject::SetItem(const CString& section, const CString& key, const char* value,
                         bool createSection) {
    return SetItem(section, key, CString(value), createSection);
}

bool FileObject::SetItem(const CString& section, const CString& key, const std::string& value,
                         bool createSection) {
    return SetItem(section, key, CString(value), createSection);
}

bool FileObject::SetItem(const CString& section, const CString& key, const CStringA& value,
                         bool createSection) {
    return SetItem(section, key, CString(value), createSection);
}

bool FileObject::SetItem(const CString& section, const CString& key, int value,
                         bool createSection) {
    CString text;
    text.Format(u"%d", value);
    return SetItem(section, key, text, createSection);
}

bool FileObject::SetItem(const CString& section, const CString& key, unsigned int value,
                         bool createSection) {
    CString text;
    text.Format(u"%u", value);
    return SetItem(section, key, text, createSection);
}

bool FileObject::SetItem(const CString& section, const CString& key, long value,
                         bool createSection) {
    CString text;
    text.Format(u"%ld", value);
    return SetItem(section, key, text, createSection);
}

bool FileObject::SetItem(const CString& section, const CString& key, COLORREF value,
                         bool createSection) {
    CString text;
    text.Format(u"%d, %d, %d", static_cast<int>(GetRValue(value)),
                static_cast<int>(GetGValue(value)), static_cast<int>(GetBValue(value)));
    return SetItem(section, key, text, createSection);
}

bool FileObject::SetItem(const CString& section, const CString& key, bool value,
                         bool createSection) {
    CString text;
    text.Format(u"%d", value ? 1 : 0);
    return SetItem(section, key, text, createSection);
}

// As many decimals as the value really carries: the format itself is
// formatted first, "%.06lf" for six decimals.
bool FileObject::SetItem(const CString& section, const CString& key, double value,
                         bool createSection) {
    CString format;
    format.Format(u"%%.%2.2dlf", GetDoublePrecision(value));
    CString text;
    text.Format(format, value);
    return SetItem(section, key, text, createSection);
}

bool FileObject::SetItem(const CString& section, const CString& key, long long value,
                         bool createSection) {
    CString text;
    text.Format(u"%I64d", value);
    return SetItem(section, key, text, createSection);
}

bool FileObject::SetItem(const CString& section, const CString& key, unsigned long long value,
                         bool createSection) {
    CString text;
    text.Format(u"%I64u", value);
    return SetItem(section, key, text, createSection);
}

}  // namespace vex
