#include <base/framework/TextEncoding.h>

#include <base/platform/CodePage.h>

#include <atomic>
#include <cstddef>

namespace vex {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kMaxCodePoint = 0x10FFFF;

constexpr bool IsSurrogate(char32_t c) {
    return c >= 0xD800 && c <= 0xDFFF;
}
constexpr bool IsHighSurrogate(char32_t c) {
    return c >= 0xD800 && c <= 0xDBFF;
}
constexpr bool IsLowSurrogate(char32_t c) {
    return c >= 0xDC00 && c <= 0xDFFF;
}
// c itself when it is a Unicode scalar value, else U+FFFD.
constexpr char32_t ScalarOrReplacement(char32_t c) {
    return c > kMaxCodePoint || IsSurrogate(c) ? kReplacement : c;
}

// Decodes the character at text[i] and moves i past it. An ill-formed
// sequence yields one U+FFFD for its maximal subpart: the longest prefix
// that could still begin a well-formed sequence (at least one byte), so the
// byte that breaks a sequence is read again as the start of the next one.
// The accepted ranges are those of the Unicode Standard's table of
// well-formed UTF-8 byte sequences, which excludes overlong forms,
// surrogates and values above U+10FFFF.
char32_t DecodeUtf8(std::string_view text, std::size_t& i) {
    const unsigned lead = static_cast<unsigned char>(text[i++]);
    if (lead < 0x80) return lead;
    int trailing = 0;
    char32_t c = 0;
    unsigned low = 0x80;  // allowed range of the first trailing byte
    unsigned high = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        trailing = 1;
        c = lead & 0x1F;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        trailing = 2;
        c = lead & 0x0F;
        if (lead == 0xE0) low = 0xA0;   // overlong below U+0800
        if (lead == 0xED) high = 0x9F;  // surrogates
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        trailing = 3;
        c = lead & 0x07;
        if (lead == 0xF0) low = 0x90;   // overlong below U+10000
        if (lead == 0xF4) high = 0x8F;  // above U+10FFFF
    } else {
        return kReplacement;  // a trailing byte, C0, C1 or F5..FF
    }
    for (int k = 0; k < trailing; ++k) {
        if (i >= text.size()) return kReplacement;
        const unsigned byte = static_cast<unsigned char>(text[i]);
        if (byte < low || byte > high) return kReplacement;
        low = 0x80;
        high = 0xBF;
        c = (c << 6) | (byte & 0x3F);
        ++i;
    }
    return c;
}

// Decodes the character at text[i] and moves i past it; a surrogate that is
// not part of a high-low pair yields U+FFFD and only that unit is consumed.
char32_t DecodeUtf16(std::u16string_view text, std::size_t& i) {
    const char32_t unit = text[i++];
    if (!IsSurrogate(unit)) return unit;
    if (IsHighSurrogate(unit) && i < text.size() && IsLowSurrogate(text[i])) {
        const char32_t low = text[i++];
        return 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
    }
    return kReplacement;
}

// Both append a Unicode scalar value (callers have replaced anything else).
void AppendUtf8(std::string& out, char32_t c) {
    const auto byte = [](char32_t b) { return static_cast<char>(b); };
    if (c < 0x80) {
        out.push_back(byte(c));
    } else if (c < 0x800) {
        out.push_back(byte(0xC0 | (c >> 6)));
        out.push_back(byte(0x80 | (c & 0x3F)));
    } else if (c < 0x10000) {
        out.push_back(byte(0xE0 | (c >> 12)));
        out.push_back(byte(0x80 | ((c >> 6) & 0x3F)));
        out.push_back(byte(0x80 | (c & 0x3F)));
    } else {
        out.push_back(byte(0xF0 | (c >> 18)));
        out.push_back(byte(0x80 | ((c >> 12) & 0x3F)));
        out.push_back(byte(0x80 | ((c >> 6) & 0x3F)));
        out.push_back(byte(0x80 | (c & 0x3F)));
    }
}

void AppendUtf16(std::u16string& out, char32_t c) {
    if (c < 0x10000) {
        out.push_back(static_cast<char16_t>(c));
    } else {
        c -= 0x10000;
        out.push_back(static_cast<char16_t>(0xD800 + (c >> 10)));
        out.push_back(static_cast<char16_t>(0xDC00 + (c & 0x3FF)));
    }
}

// --- Windows-1252 ----------------------------------------------------------

// Bytes 0x80..0x9F; the rest of the code page is ISO 8859-1, byte value =
// code point. The five bytes the code page leaves undefined (0x81, 0x8D,
// 0x8F, 0x90, 0x9D) stand for the C1 controls of the same value, as the
// Windows conversion functions treat them, so every byte round-trips.
// Source: unicode.org's mapping file MAPPINGS/VENDORS/MICSFT/WINDOWS/CP1252.TXT.
constexpr char16_t kWindows1252High[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80..87
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  // 88..8F
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90..97
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,  // 98..9F
};

char16_t Windows1252ToUnicode(unsigned char byte) {
    return byte >= 0x80 && byte <= 0x9F ? kWindows1252High[byte - 0x80] : char16_t{byte};
}

// The byte of c in Windows-1252, or -1 when the code page lacks it.
int UnicodeToWindows1252(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<int>(c);
    for (int i = 0; i < 32; ++i) {
        if (kWindows1252High[i] == c) return 0x80 + i;
    }
    return -1;
}

// --- active code page ----------------------------------------------------

// The two code pages the library converts; any other number reads as UTF-8.
CodePage SupportedCodePage(unsigned number) {
    return number == static_cast<unsigned>(CodePage::Windows1252) ? CodePage::Windows1252
                                                                  : CodePage::Utf8;
}

std::atomic<CodePage>& ActiveCodePage() {
    // A function-local static, so that narrow text converted during another
    // translation unit's static initialisation already sees the default.
    static std::atomic<CodePage> page{SupportedCodePage(platform::SystemCodePage())};
    return page;
}

// --- case mapping ----------------------------------------------------------
// Simple case mappings of the Unicode Character Database (UnicodeData.txt,
// fields 12 and 13) for the blocks below. Mappings whose result has no
// single code point in the same script's basic range stay unmapped: ß and
// ŉ have no simple upper case, and µ (whose upper case is Greek capital mu)
// keeps Latin text in Latin.

constexpr bool IsOdd(char16_t c) {
    return (c & 1) != 0;
}

char16_t UpperLatinExtendedA(char16_t c) {  // U+0100..U+017F
    if (c <= 0x012F || (c >= 0x0132 && c <= 0x0137) || (c >= 0x014A && c <= 0x0177)) {
        return IsOdd(c) ? c - 1 : c;
    }
    if ((c >= 0x0139 && c <= 0x0148) || (c >= 0x0179 && c <= 0x017E)) {
        return IsOdd(c) ? c : c - 1;
    }
    if (c == 0x0131) return u'I';  // dotless i
    if (c == 0x017F) return u'S';  // long s
    return c;
}

char16_t LowerLatinExtendedA(char16_t c) {  // U+0100..U+017F
    if (c <= 0x012F || (c >= 0x0132 && c <= 0x0137) || (c >= 0x014A && c <= 0x0177)) {
        return IsOdd(c) ? c : c + 1;
    }
    if ((c >= 0x0139 && c <= 0x0148) || (c >= 0x0179 && c <= 0x017E)) {
        return IsOdd(c) ? c + 1 : c;
    }
    if (c == 0x0130) return u'i';  // capital I with dot above
    if (c == 0x0178) return 0x00FF;
    return c;
}

char16_t UpperGreek(char16_t c) {  // U+0370..U+03FF
    if ((c >= 0x03B1 && c <= 0x03C1) || (c >= 0x03C3 && c <= 0x03CB)) return c - 0x20;
    if (c == 0x03C2) return 0x03A3;  // final sigma
    if (c == 0x03AC) return 0x0386;
    if (c >= 0x03AD && c <= 0x03AF) return c - 0x25;
    if (c == 0x03CC) return 0x038C;
    if (c >= 0x03CD && c <= 0x03CE) return c - 0x3F;
    return c;
}

char16_t LowerGreek(char16_t c) {  // U+0370..U+03FF
    if ((c >= 0x0391 && c <= 0x03A1) || (c >= 0x03A3 && c <= 0x03AB)) return c + 0x20;
    if (c == 0x0386) return 0x03AC;
    if (c >= 0x0388 && c <= 0x038A) return c + 0x25;
    if (c == 0x038C) return 0x03CC;
    if (c >= 0x038E && c <= 0x038F) return c + 0x3F;
    return c;
}

// Pairs of Cyrillic letters where the capital is the even code point.
constexpr bool IsEvenCapitalCyrillic(char16_t c) {
    return (c >= 0x0460 && c <= 0x0481) || (c >= 0x048A && c <= 0x04BF) ||
           (c >= 0x04D0 && c <= 0x04FF);
}

char16_t UpperCyrillic(char16_t c) {  // U+0400..U+04FF
    if (c >= 0x0430 && c <= 0x044F) return c - 0x20;
    if (c >= 0x0450 && c <= 0x045F) return c - 0x50;
    if (IsEvenCapitalCyrillic(c)) return IsOdd(c) ? c - 1 : c;
    if (c >= 0x04C1 && c <= 0x04CE) return IsOdd(c) ? c : c - 1;
    if (c == 0x04CF) return 0x04C0;  // palochka
    return c;
}

char16_t LowerCyrillic(char16_t c) {  // U+0400..U+04FF
    if (c >= 0x0410 && c <= 0x042F) return c + 0x20;
    if (c >= 0x0400 && c <= 0x040F) return c + 0x50;
    if (IsEvenCapitalCyrillic(c)) return IsOdd(c) ? c : c + 1;
    if (c >= 0x04C1 && c <= 0x04CE) return IsOdd(c) ? c + 1 : c;
    if (c == 0x04C0) return 0x04CF;
    return c;
}

// Maps a narrow character through Unicode: the byte of the mapped
// character when the active code page holds it, else c unchanged.
char MapNarrow(char c, char16_t (*map)(char16_t)) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80) return static_cast<char>(map(byte));
    // In UTF-8 a byte above 0x7F is only part of a character.
    if (GetActiveCodePage() != CodePage::Windows1252) return c;
    const int mapped = UnicodeToWindows1252(map(Windows1252ToUnicode(byte)));
    return mapped < 0 ? c : static_cast<char>(static_cast<unsigned char>(mapped));
}

}  // namespace

void SetActiveCodePage(CodePage page) {
    ActiveCodePage().store(SupportedCodePage(static_cast<unsigned>(page)));
}

CodePage GetActiveCodePage() {
    return ActiveCodePage().load();
}

std::u16string Utf8ToUtf16(std::string_view utf8) {
    std::u16string out;
    out.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        AppendUtf16(out, DecodeUtf8(utf8, i));
    }
    return out;
}

std::string Utf16ToUtf8(std::u16string_view utf16) {
    std::string out;
    out.reserve(utf16.size());
    for (std::size_t i = 0; i < utf16.size();) {
        AppendUtf8(out, DecodeUtf16(utf16, i));
    }
    return out;
}

std::u16string Utf32ToUtf16(std::u32string_view utf32) {
    std::u16string out;
    out.reserve(utf32.size());
    for (const char32_t c : utf32) {
        AppendUtf16(out, ScalarOrReplacement(c));
    }
    return out;
}

std::u32string Utf16ToUtf32(std::u16string_view utf16) {
    std::u32string out;
    out.reserve(utf16.size());
    for (std::size_t i = 0; i < utf16.size();) {
        out.push_back(DecodeUtf16(utf16, i));
    }
    return out;
}

// Both wchar_t widths are compiled on every platform; the branch not taken
// is still type-checked, so the other platform's path cannot rot unseen.
std::u16string WideToUtf16(std::wstring_view wide) {
    std::u16string out;
    out.reserve(wide.size());
    for (const wchar_t w : wide) {
        if constexpr (sizeof(wchar_t) == sizeof(char16_t)) {
            out.push_back(static_cast<char16_t>(w));  // already UTF-16
        } else {
            // wchar_t is signed on some platforms: a negative value becomes
            // a huge char32_t, which is replaced like any other.
            AppendUtf16(out, ScalarOrReplacement(static_cast<char32_t>(w)));
        }
    }
    return out;
}

std::wstring Utf16ToWide(std::u16string_view utf16) {
    std::wstring out;
    out.reserve(utf16.size());
    if constexpr (sizeof(wchar_t) == sizeof(char16_t)) {
        for (const char16_t unit : utf16) {
            out.push_back(static_cast<wchar_t>(unit));
        }
    } else {
        for (std::size_t i = 0; i < utf16.size();) {
            out.push_back(static_cast<wchar_t>(DecodeUtf16(utf16, i)));
        }
    }
    return out;
}

std::u16string CodePageToUtf16(std::string_view text, CodePage page) {
    if (page != CodePage::Windows1252) return Utf8ToUtf16(text);
    std::u16string out;
    out.reserve(text.size());
    for (const char c : text) {
        out.push_back(Windows1252ToUnicode(static_cast<unsigned char>(c)));
    }
    return out;
}

std::string Utf16ToCodePage(std::u16string_view text, CodePage page) {
    if (page != CodePage::Windows1252) return Utf16ToUtf8(text);
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const int byte = UnicodeToWindows1252(DecodeUtf16(text, i));
        out.push_back(byte < 0 ? '?' : static_cast<char>(static_cast<unsigned char>(byte)));
    }
    return out;
}

std::u16string AnsiToUtf16(std::string_view text) {
    return CodePageToUtf16(text, GetActiveCodePage());
}

std::string Utf16ToAnsi(std::u16string_view text) {
    return Utf16ToCodePage(text, GetActiveCodePage());
}

char16_t ToUpperChar(char16_t c) {
    if (c < 0x80) return c >= u'a' && c <= u'z' ? c - 0x20 : c;
    if (c < 0x100) {
        if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return c - 0x20;
        return c == 0xFF ? char16_t{0x0178} : c;
    }
    if (c < 0x180) return UpperLatinExtendedA(c);
    if (c >= 0x370 && c < 0x400) return UpperGreek(c);
    if (c >= 0x400 && c < 0x500) return UpperCyrillic(c);
    return c;
}

char16_t ToLowerChar(char16_t c) {
    if (c < 0x80) return c >= u'A' && c <= u'Z' ? c + 0x20 : c;
    if (c < 0x100) return c >= 0xC0 && c <= 0xDE && c != 0xD7 ? c + 0x20 : c;
    if (c < 0x180) return LowerLatinExtendedA(c);
    if (c >= 0x370 && c < 0x400) return LowerGreek(c);
    if (c >= 0x400 && c < 0x500) return LowerCyrillic(c);
    return c;
}

char ToUpperChar(char c) {
    return MapNarrow(c, [](char16_t u) { return ToUpperChar(u); });
}

char ToLowerChar(char c) {
    return MapNarrow(c, [](char16_t u) { return ToLowerChar(u); });
}

}  // namespace vex
