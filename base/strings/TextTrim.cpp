#include <base/strings/TextTrim.h>

#include <base/framework/TextEncoding.h>

#include <cstring>
#include <type_traits>

namespace vex {
namespace {

bool IsContinuation(unsigned char b) {
    return (b & 0xC0) == 0x80;
}

// Length of the well-formed UTF-8 character at the start of bytes, or 0.
std::size_t Utf8CharLength(std::string_view bytes) {
    if (bytes.empty()) return 0;
    const auto b0 = static_cast<unsigned char>(bytes[0]);
    if (b0 < 0x80) return 1;
    std::size_t length = 0;
    unsigned char low = 0x80, high = 0xBF;  // range of the second byte
    if (b0 >= 0xC2 && b0 <= 0xDF) {
        length = 2;
    } else if (b0 >= 0xE0 && b0 <= 0xEF) {
        length = 3;
        if (b0 == 0xE0) low = 0xA0;
        if (b0 == 0xED) high = 0x9F;  // no surrogates
    } else if (b0 >= 0xF0 && b0 <= 0xF4) {
        length = 4;
        if (b0 == 0xF0) low = 0x90;
        if (b0 == 0xF4) high = 0x8F;  // nothing above U+10FFFF
    } else {
        return 0;
    }
    if (bytes.size() < length) return 0;
    const auto b1 = static_cast<unsigned char>(bytes[1]);
    if (b1 < low || b1 > high) return 0;
    for (std::size_t i = 2; i < length; ++i) {
        if (!IsContinuation(static_cast<unsigned char>(bytes[i]))) return 0;
    }
    return length;
}

// The narrow text is cut into characters of the active code page: one byte
// each, or with UTF-8 one well-formed sequence each (a stray byte of an
// ill-formed one counts as a character of its own).
bool Utf8Active() {
    return GetActiveCodePage() == CodePage::Utf8;
}

std::size_t FirstCharLength(std::string_view text, bool utf8) {
    if (!utf8) return 1;
    const std::size_t n = Utf8CharLength(text);
    return n ? n : 1;
}

std::size_t LastCharLength(std::string_view text, bool utf8) {
    if (!utf8) return 1;
    for (std::size_t n = 2; n <= 4 && n <= text.size(); ++n) {
        if (!IsContinuation(static_cast<unsigned char>(text[text.size() - n + 1]))) break;
        if (Utf8CharLength(text.substr(text.size() - n)) == n) return n;
    }
    return 1;
}

// True when the character ch (one or more bytes) is one of the characters
// of set.
bool SetHolds(std::string_view set, std::string_view ch, bool utf8) {
    while (!set.empty()) {
        const std::size_t n = FirstCharLength(set, utf8);
        if (set.substr(0, n) == ch) return true;
        set.remove_prefix(n);
    }
    return false;
}

std::string_view TrimLeftView(std::string_view text, const char* set) {
    if (!set) return text;
    const bool utf8 = Utf8Active();
    while (!text.empty()) {
        const std::size_t n = FirstCharLength(text, utf8);
        if (!SetHolds(set, text.substr(0, n), utf8)) break;
        text.remove_prefix(n);
    }
    return text;
}

std::string_view TrimRightView(std::string_view text, const char* set) {
    if (!set) return text;
    const bool utf8 = Utf8Active();
    while (!text.empty()) {
        const std::size_t n = LastCharLength(text, utf8);
        if (!SetHolds(set, text.substr(text.size() - n), utf8)) break;
        text.remove_suffix(n);
    }
    return text;
}

// Wide text is trimmed code unit by code unit.
template <class Ch>
std::basic_string<Ch>& TrimLeftWide(std::basic_string<Ch>& text, const Ch* set) {
    if (set) text.erase(0, std::min(text.find_first_not_of(set), text.size()));
    return text;
}

template <class Ch>
std::basic_string<Ch>& TrimRightWide(std::basic_string<Ch>& text, const Ch* set) {
    if (set) {
        const std::size_t last = text.find_last_not_of(set);
        text.erase(last == std::basic_string<Ch>::npos ? 0 : last + 1);
    }
    return text;
}

// A single char above 0x7F is only a byte of a character under UTF-8.
template <class Ch>
bool TrimmableChar(Ch ch) {
    if constexpr (std::is_same_v<Ch, char>) {
        return static_cast<unsigned char>(ch) < 0x80 || !Utf8Active();
    } else {
        return true;
    }
}

template <class Ch>
Ch* TrimLeftC(Ch* text, Ch ch) {
    if (!text || !*text || ch == Ch(0) || !TrimmableChar(ch)) return text;
    std::size_t skip = 0;
    while (text[skip] == ch)
        ++skip;
    if (skip > 0) {
        const std::size_t rest = std::char_traits<Ch>::length(text + skip);
        std::memmove(text, text + skip, (rest + 1) * sizeof(Ch));  // with the NUL
    }
    return text;
}

template <class Ch>
Ch* TrimRightC(Ch* text, Ch ch) {
    if (!text || !*text || ch == Ch(0) || !TrimmableChar(ch)) return text;
    std::size_t length = std::char_traits<Ch>::length(text);
    while (length > 0 && text[length - 1] == ch)
        --length;
    text[length] = Ch(0);
    return text;
}

}  // namespace

char* trimleftA(char* text, char ch) {
    return TrimLeftC(text, ch);
}
char* trimrightA(char* text, char ch) {
    return TrimRightC(text, ch);
}
char* trimA(char* text, char ch) {
    return TrimLeftC(TrimRightC(text, ch), ch);
}
char16_t* trimleftW(char16_t* text, char16_t ch) {
    return TrimLeftC(text, ch);
}
char16_t* trimrightW(char16_t* text, char16_t ch) {
    return TrimRightC(text, ch);
}
char16_t* trimW(char16_t* text, char16_t ch) {
    return TrimLeftC(TrimRightC(text, ch), ch);
}
wchar_t* trimleftW(wchar_t* text, wchar_t ch) {
    return TrimLeftC(text, ch);
}
wchar_t* trimrightW(wchar_t* text, wchar_t ch) {
    return TrimRightC(text, ch);
}
wchar_t* trimW(wchar_t* text, wchar_t ch) {
    return TrimLeftC(TrimRightC(text, ch), ch);
}

std::string& trimleftA(std::string& text, const char* set) {
    text.erase(0, text.size() - TrimLeftView(text, set).size());
    return text;
}
std::string& trimrightA(std::string& text, const char* set) {
    text.resize(TrimRightView(text, set).size());
    return text;
}
std::string& trimA(std::string& text, const char* set) {
    return trimleftA(trimrightA(text, set), set);
}
std::u16string& trimleftW(std::u16string& text, const char16_t* set) {
    return TrimLeftWide(text, set);
}
std::u16string& trimrightW(std::u16string& text, const char16_t* set) {
    return TrimRightWide(text, set);
}
std::u16string& trimW(std::u16string& text, const char16_t* set) {
    return TrimLeftWide(TrimRightWide(text, set), set);
}
std::wstring& trimleftW(std::wstring& text, const wchar_t* set) {
    return TrimLeftWide(text, set);
}
std::wstring& trimrightW(std::wstring& text, const wchar_t* set) {
    return TrimRightWide(text, set);
}
std::wstring& trimW(std::wstring& text, const wchar_t* set) {
    return TrimLeftWide(TrimRightWide(text, set), set);
}

std::string_view trim_left(std::string_view text, const char* set) {
    return TrimLeftView(text, set);
}
std::string_view trim_right(std::string_view text, const char* set) {
    return TrimRightView(text, set);
}
std::string_view trim(std::string_view text, const char* set) {
    return TrimRightView(TrimLeftView(text, set), set);
}

}  // namespace vex
