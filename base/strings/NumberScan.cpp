#include <base/strings/NumberScan.h>

#include <base/framework/Scan.h>

namespace vex::detail {
namespace {

// True when text at i begins with word, ignoring ASCII case.
bool StartsWithWord(std::u16string_view text, std::size_t i, std::u16string_view word) {
    if (text.size() - i < word.size()) return false;
    for (std::size_t k = 0; k < word.size(); ++k) {
        char16_t c = text[i + k];
        if (c >= u'A' && c <= u'Z') c = static_cast<char16_t>(c - u'A' + u'a');
        if (c != word[k]) return false;
    }
    return true;
}

// Index after the run of digits (of base 10 or 16) that starts at i.
std::size_t SkipDigits(std::u16string_view text, std::size_t i, int base, bool& any) {
    while (i < text.size() && AsciiDigitValue(text[i]) < base) {
        ++i;
        any = true;
    }
    return i;
}

// Length of the number that strtod would read at the start of text: the
// scanner reads the longest text that could begin a number and fails on
// "1e", "0x" or "infin", where strtod stops at the last complete number.
std::size_t NumberLength(std::u16string_view text) {
    std::size_t i = 0;
    while (i < text.size() && IsTextSpace(text[i]))
        ++i;
    if (i < text.size() && (text[i] == u'+' || text[i] == u'-')) ++i;
    if (StartsWithWord(text, i, u"infinity")) return i + 8;
    if (StartsWithWord(text, i, u"inf")) return i + 3;
    if (StartsWithWord(text, i, u"nan")) {
        i += 3;
        // "nan(chars)" counts only when it is closed.
        if (i < text.size() && text[i] == u'(') {
            std::size_t k = i + 1;
            while (k < text.size() && (AsciiDigitValue(text[k]) < 36 || text[k] == u'_'))
                ++k;
            if (k < text.size() && text[k] == u')') return k + 1;
        }
        return i;
    }
    int base = 10;
    char16_t exponent = u'e';
    if (StartsWithWord(text, i, u"0x")) {
        bool any = false;
        std::size_t k = SkipDigits(text, i + 2, 16, any);
        if (k < text.size() && text[k] == u'.') SkipDigits(text, k + 1, 16, any);
        if (any) {
            base = 16;
            exponent = u'p';
            i += 2;
        }
    }
    bool any = false;
    i = SkipDigits(text, i, base, any);
    if (i < text.size() && text[i] == u'.') i = SkipDigits(text, i + 1, base, any);
    if (!any) return 0;
    if (i < text.size() && (text[i] == exponent || text[i] == exponent - (u'a' - u'A'))) {
        std::size_t k = i + 1;
        if (k < text.size() && (text[k] == u'+' || text[k] == u'-')) ++k;
        bool digits = false;
        k = SkipDigits(text, k, 10, digits);
        if (digits) i = k;
    }
    return i;
}

}  // namespace

double LeadingDouble(std::u16string_view text) {
    double value = 0;
    const std::size_t length = NumberLength(text);
    if (length == 0 || Scan(text.substr(0, length), u"%lf", &value) != 1) return 0;
    return value;
}

}  // namespace vex::detail
