// NumberScan.h - the library's readers of numbers at the start of a text,
// shared by from_str, the fixed-column fields and atof/atoi. Internal: not
// installed.
//
// They read as scanf's %d, %u, %x and %lf read (leading white space, a
// sign, the digits; text after the number is ignored), with one difference:
// where scanf would store a value cut to the target's width or an overflow
// to infinity, these refuse the text and leave the output unchanged.
#pragma once

#include <base/framework/Scan.h>
#include <base/framework/TextEncoding.h>

#include <cmath>
#include <limits>
#include <string_view>
#include <type_traits>

namespace vex::detail {

template <class Ch>
constexpr int AsciiDigitValue(Ch c) {
    if (c >= Ch('0') && c <= Ch('9')) return static_cast<int>(c - Ch('0'));
    if (c >= Ch('a') && c <= Ch('z')) return static_cast<int>(c - Ch('a')) + 10;
    if (c >= Ch('A') && c <= Ch('Z')) return static_cast<int>(c - Ch('A')) + 10;
    return 99;
}

template <class Ch>
constexpr bool IsTextSpace(Ch c) {
    return IsSpaceChar(static_cast<char32_t>(static_cast<std::make_unsigned_t<Ch>>(c)));
}

// Reads an integer in base 10 or 16 (16 takes an optional "0x"). False,
// with value unchanged, when there are no digits or the number does not
// fit T; an unsigned T refuses a minus sign (scanf would negate modulo 2^n).
template <class T, class Ch>
bool ScanInteger(std::basic_string_view<Ch> text, int base, T& value) {
    static_assert(std::is_integral_v<T> && !std::is_same_v<T, bool>);
    std::size_t i = 0;
    const std::size_t n = text.size();
    while (i < n && IsTextSpace(text[i]))
        ++i;
    bool negative = false;
    if (i < n && (text[i] == Ch('+') || text[i] == Ch('-'))) {
        negative = text[i] == Ch('-');
        ++i;
    }
    if (base == 16 && i + 1 < n && text[i] == Ch('0') &&
        (text[i + 1] == Ch('x') || text[i + 1] == Ch('X'))) {
        // "0x" must be followed by a hex digit, as current scanf requires.
        if (i + 2 >= n || AsciiDigitValue(text[i + 2]) >= 16) return false;
        i += 2;
    }
    const std::size_t first = i;
    unsigned long long magnitude = 0;
    bool overflow = false;
    const auto b = static_cast<unsigned long long>(base);
    for (int d; i < n && (d = AsciiDigitValue(text[i])) < base; ++i) {
        const auto digit = static_cast<unsigned long long>(d);
        if (magnitude > (std::numeric_limits<unsigned long long>::max() - digit) / b) {
            overflow = true;  // keep reading: the digits all belong to this number
        } else {
            magnitude = magnitude * b + digit;
        }
    }
    if (i == first || overflow) return false;
    if constexpr (std::is_signed_v<T>) {
        using U = std::make_unsigned_t<T>;
        const auto limit =
            static_cast<unsigned long long>(std::numeric_limits<T>::max()) + (negative ? 1u : 0u);
        if (magnitude > limit) return false;
        // Negation in the unsigned type, so that the minimum does not overflow.
        const U bits =
            negative ? static_cast<U>(U(0) - static_cast<U>(magnitude)) : static_cast<U>(magnitude);
        value = static_cast<T>(bits);
    } else {
        if (negative && magnitude != 0) return false;
        if (magnitude > std::numeric_limits<T>::max()) return false;
        value = static_cast<T>(magnitude);
    }
    return true;
}

// Reads a floating-point number as scanf's %lf does (decimal or hex
// digits, "inf", "nan"). False, with value unchanged, when there is none or
// it overflows T.
template <class T, class Ch>
bool ScanFloating(std::basic_string_view<Ch> text, T& value) {
    static_assert(std::is_floating_point_v<T>);
    T read = 0;
    const Ch format[] = {Ch('%'), Ch('l'), Ch('f'), Ch(0)};
    if (Scan(text, std::basic_string_view<Ch>(format), &read) != 1) return false;
    if (std::isinf(read)) {
        // Only a written infinity may give one; digits that overflow may not.
        std::size_t i = 0;
        while (i < text.size() &&
               (IsTextSpace(text[i]) || text[i] == Ch('+') || text[i] == Ch('-')))
            ++i;
        if (i >= text.size() || (text[i] != Ch('i') && text[i] != Ch('I'))) return false;
    }
    value = read;
    return true;
}

// Reads a decimal number as C's atof does: the longest leading text that
// is a number ("1e" reads as 1, where scanf fails), 0 when there is none.
double LeadingDouble(std::u16string_view text);

}  // namespace vex::detail
