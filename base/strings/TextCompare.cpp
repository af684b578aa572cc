#include <base/strings/TextCompare.h>

#include <base/framework/TextEncoding.h>

#include <type_traits>

namespace vex {
namespace {

// Case folding of one code unit of any width; wide units outside UTF-16's
// range (32-bit wchar_t) have no case here.
template <class Ch>
auto Upper(Ch c) {
    if constexpr (std::is_same_v<Ch, char>) {
        return static_cast<unsigned char>(ToUpperChar(c));
    } else {
        const auto u = static_cast<std::make_unsigned_t<Ch>>(c);
        return u <= 0xFFFF ? static_cast<char32_t>(ToUpperChar(static_cast<char16_t>(u)))
                           : static_cast<char32_t>(u);
    }
}
template <class Ch>
auto Lower(Ch c) {
    if constexpr (std::is_same_v<Ch, char>) {
        return static_cast<unsigned char>(ToLowerChar(c));
    } else {
        const auto u = static_cast<std::make_unsigned_t<Ch>>(c);
        return u <= 0xFFFF ? static_cast<char32_t>(ToLowerChar(static_cast<char16_t>(u)))
                           : static_cast<char32_t>(u);
    }
}

template <class Ch>
bool EqualUpper(std::basic_string_view<Ch> a, std::basic_string_view<Ch> b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (Upper(a[i]) != Upper(b[i])) return false;
    }
    return true;
}

// <0, 0 or >0 as _stricmp: lower-cased code units compared as unsigned.
template <class Ch>
int CompareLower(std::basic_string_view<Ch> a, std::basic_string_view<Ch> b) {
    const std::size_t n = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < n; ++i) {
        const auto x = Lower(a[i]);
        const auto y = Lower(b[i]);
        if (x != y) return x < y ? -1 : 1;
    }
    return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
}

// A C string as a view; null reads as empty.
template <class Ch>
std::basic_string_view<Ch> CText(const Ch* text) {
    return text ? std::basic_string_view<Ch>(text) : std::basic_string_view<Ch>();
}

// A standard string up to its first NUL, as a C function sees it.
template <class Ch>
std::basic_string_view<Ch> CText(const std::basic_string<Ch>& text) {
    return CText(text.c_str());
}

}  // namespace

bool icompareA(const std::string& s1, const std::string& s2) {
    return EqualUpper<char>(s1, s2);
}
bool icompareW(const std::u16string& s1, const std::u16string& s2) {
    return EqualUpper<char16_t>(s1, s2);
}
bool icompareW(const std::wstring& s1, const std::wstring& s2) {
    return EqualUpper<wchar_t>(s1, s2);
}

bool icompareA(const std::string& s1, const char* s2) {
    return CompareLower(CText(s1), CText(s2)) == 0;
}
bool icompareA(const char* s1, const std::string& s2) {
    return CompareLower(CText(s1), CText(s2)) == 0;
}
bool icompareA(const char* s1, const char* s2) {
    return CompareLower(CText(s1), CText(s2)) == 0;
}
bool icompareW(const std::u16string& s1, const char16_t* s2) {
    return CompareLower(CText(s1), CText(s2)) == 0;
}
bool icompareW(const char16_t* s1, const std::u16string& s2) {
    return CompareLower(CText(s1), CText(s2)) == 0;
}
bool icompareW(const char16_t* s1, const char16_t* s2) {
    return CompareLower(CText(s1), CText(s2)) == 0;
}
bool icompareW(const std::wstring& s1, const wchar_t* s2) {
    return CompareLower(CText(s1), CText(s2)) == 0;
}
bool icompareW(const wchar_t* s1, const std::wstring& s2) {
    return CompareLower(CText(s1), CText(s2)) == 0;
}
bool icompareW(const wchar_t* s1, const wchar_t* s2) {
    return CompareLower(CText(s1), CText(s2)) == 0;
}

bool GreaterA(CStringA::TextArg s1, CStringA::TextArg s2) {
    return CompareLower(s1.View(), s2.View()) > 0;
}
bool SmallerA(CStringA::TextArg s1, CStringA::TextArg s2) {
    return CompareLower(s1.View(), s2.View()) < 0;
}
bool GreaterW(CString::TextArg s1, CString::TextArg s2) {
    return CompareLower(s1.View(), s2.View()) > 0;
}
bool SmallerW(CString::TextArg s1, CString::TextArg s2) {
    return CompareLower(s1.View(), s2.View()) < 0;
}
bool GreaterW(std::wstring_view s1, std::wstring_view s2) {
    return CompareLower(s1, s2) > 0;
}
bool SmallerW(std::wstring_view s1, std::wstring_view s2) {
    return CompareLower(s1, s2) < 0;
}
bool GreaterW(const wchar_t* s1, const wchar_t* s2) {
    return CompareLower(CText(s1), CText(s2)) > 0;
}
bool SmallerW(const wchar_t* s1, const wchar_t* s2) {
    return CompareLower(CText(s1), CText(s2)) < 0;
}

}  // namespace vex
