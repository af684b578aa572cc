// Stand-in for the conversions that Format and Scan need until the full
// TextEncoding.cpp lands: UTF-8 and Windows-1252 narrow text only, and only
// the functions the formatter and scanner call. Replace it with the real
// implementation when the two branches meet.
#include <base/framework/TextEncoding.h>

#include <atomic>

namespace vex {
namespace {

std::atomic<CodePage> gActiveCodePage{CodePage::Utf8};

// Windows-1252 bytes 0x80..0x9F; the rest of the page is Latin-1.
constexpr char16_t k1252High[32] = {0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD,
                                    0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

void AppendUtf16(std::u16string& out, char32_t c) {
    if (c >= 0x10000) {
        c -= 0x10000;
        out.push_back(static_cast<char16_t>(0xD800 + (c >> 10)));
        out.push_back(static_cast<char16_t>(0xDC00 + (c & 0x3FF)));
    } else {
        out.push_back(static_cast<char16_t>(c));
    }
}

// The code point at text[i], advancing i; lone surrogates become U+FFFD.
char32_t NextUtf16(std::u16string_view text, std::size_t& i) {
    const char32_t c = text[i++];
    if (c >= 0xD800 && c < 0xDC00 && i < text.size() && text[i] >= 0xDC00 && text[i] < 0xE000) {
        return 0x10000 + ((c - 0xD800) << 10) + (text[i++] - 0xDC00);
    }
    return (c >= 0xD800 && c < 0xE000) ? kReplacementChar : c;
}

}  // namespace

void SetActiveCodePage(CodePage page) {
    gActiveCodePage.store(page);
}
CodePage GetActiveCodePage() {
    return gActiveCodePage.load();
}

std::u16string Utf8ToUtf16(std::string_view utf8) {
    std::u16string out;
    for (std::size_t i = 0; i < utf8.size();) {
        const unsigned char b = static_cast<unsigned char>(utf8[i]);
        const int extra = b < 0x80                ? 0
                          : b >= 0xF0 && b < 0xF5 ? 3
                          : b >= 0xE0             ? 2
                          : b >= 0xC2             ? 1
                                                  : -1;
        char32_t c = extra == 0   ? b
                     : extra == 1 ? (b & 0x1F)
                     : extra == 2 ? (b & 0x0F)
                                  : (b & 0x07);
        std::size_t k = 1;
        bool ok = extra >= 0 && (extra < 3 || b < 0xF5);
        for (; ok && k <= static_cast<std::size_t>(extra); ++k) {
            if (i + k >= utf8.size() || (static_cast<unsigned char>(utf8[i + k]) & 0xC0) != 0x80) {
                ok = false;
                break;
            }
            c = (c << 6) | (static_cast<unsigned char>(utf8[i + k]) & 0x3F);
        }
        static constexpr char32_t kMin[4] = {0, 0x80, 0x800, 0x10000};
        if (ok && (c < kMin[extra] || c > 0x10FFFF || (c >= 0xD800 && c < 0xE000))) ok = false;
        if (!ok) {
            out.push_back(kReplacementChar);
            ++i;
            continue;
        }
        AppendUtf16(out, c);
        i += k;
    }
    return out;
}

std::string Utf16ToUtf8(std::u16string_view utf16) {
    std::string out;
    for (std::size_t i = 0; i < utf16.size();) {
        const char32_t c = NextUtf16(utf16, i);
        if (c < 0x80) {
            out.push_back(static_cast<char>(c));
        } else if (c < 0x800) {
            out.push_back(static_cast<char>(0xC0 | (c >> 6)));
            out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
        } else if (c < 0x10000) {
            out.push_back(static_cast<char>(0xE0 | (c >> 12)));
            out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
        } else {
            out.push_back(static_cast<char>(0xF0 | (c >> 18)));
            out.push_back(static_cast<char>(0x80 | ((c >> 12) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
        }
    }
    return out;
}

std::u16string Utf32ToUtf16(std::u32string_view utf32) {
    std::u16string out;
    for (char32_t c : utf32) {
        AppendUtf16(out, c > 0x10FFFF || (c >= 0xD800 && c < 0xE000) ? kReplacementChar : c);
    }
    return out;
}

std::u16string CodePageToUtf16(std::string_view text, CodePage page) {
    if (page == CodePage::Utf8) return Utf8ToUtf16(text);
    std::u16string out;
    for (char ch : text) {
        const unsigned char b = static_cast<unsigned char>(ch);
        out.push_back(b >= 0x80 && b < 0xA0 ? k1252High[b - 0x80] : char16_t(b));
    }
    return out;
}

std::string Utf16ToCodePage(std::u16string_view text, CodePage page) {
    if (page == CodePage::Utf8) return Utf16ToUtf8(text);
    std::string out;
    for (std::size_t i = 0; i < text.size();) {
        const char32_t c = NextUtf16(text, i);
        char byte = '?';
        if (c < 0x80 || (c >= 0xA0 && c < 0x100)) {
            byte = static_cast<char>(c);
        } else {
            for (int k = 0; k < 32; ++k) {
                if (k1252High[k] == c && c != kReplacementChar) byte = static_cast<char>(0x80 + k);
            }
        }
        out.push_back(byte);
    }
    return out;
}

std::u16string AnsiToUtf16(std::string_view text) {
    return CodePageToUtf16(text, GetActiveCodePage());
}
std::string Utf16ToAnsi(std::u16string_view text) {
    return Utf16ToCodePage(text, GetActiveCodePage());
}

}  // namespace vex
