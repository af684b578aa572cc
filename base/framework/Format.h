// Format.h - printf-style formatting of narrow and UTF-16 text.
//
// The output is exactly what C's printf prints for the same format and
// values, always with the "C" locale's decimal point. Arguments
// are captured with their types (FormatArgs.h), so a mismatched argument is
// converted as described at FormatAppend, never undefined behaviour.
//
//   std::u16string s = vex::Format(u"%-8s|%6.2f", u"depth", 12.345);  // u"depth   | 12.35"
#pragma once

#include <base/Export.h>
#include <base/framework/FormatArgs.h>

#include <span>
#include <string>
#include <string_view>

namespace vex {

// Appends the formatted text to out.
//
// C semantics for flags ("-+ #0"), width, precision ("*" takes an argument),
// the conversions d i u o x X c s f F e E g G a A p n % and the size prefixes
// hh h l ll L q j z t I32 I64 I w (l is the platform's long; ll, I64 and j
// are 64 bits; z, t and I pointer-sized; w, Windows' wide-text mark, changes
// nothing). Where the types do not match:
// - an integer is cut to the width that the conversion reads, as C's
//   argument passing would cut it ("%d" of 5000000000LL prints 705032704,
//   "%hd" of 70000 prints 4464);
// - a floating value given to an integer conversion counts as the integer
//   it truncates to, saturated to 64 bits, NaN as 0 ("%d" of 2.7 prints 2);
//   an integer given to a floating conversion is converted ("%f" of 3
//   prints 3.000000); values are doubles, so "L" changes nothing;
// - a string given to a numeric conversion prints as "%s" would, without
//   precision; a number given to "%s" prints as "%d", "%u", "%g" or "%p".
// "%s" takes text of either width and converts it to the width of the
// format (narrow text is in the active code page, char8_t text is UTF-8);
// its precision counts code units of the output; a null pointer prints
// "(null)", or nothing when the precision is below 6, as glibc does. "%c" of
// a char is that byte (decoded from the active code page in UTF-16 text); a
// larger code (char16_t, char32_t, int) is that character (encoded in the
// active code page in narrow text). "%#g" keeps its zeros as C asks even
// where rounding adds a digit ("1.00000e+06" for 999999.5, where glibc
// prints "1.e+06"). "%p" prints as
// glibc prints it on every platform ("0x" and hex digits, "(nil)" for null).
// "%n" takes its argument and writes nothing. A conversion with no argument
// left, or an unknown one, is copied to the output as written. Widths and
// precisions above 2^20 are clamped.
VEXBASE_API void FormatAppend(std::string& out, std::string_view format,
                              std::span<const FormatArg> args);
VEXBASE_API void FormatAppend(std::u16string& out, std::u16string_view format,
                              std::span<const FormatArg> args);

template <class... Args>
std::string Format(std::string_view format, const Args&... args) {
    const FormatArg captured[] = {FormatArg{}, ToFormatArg(args)...};
    std::string out;
    FormatAppend(out, format, std::span<const FormatArg>(captured + 1, sizeof...(Args)));
    return out;
}

template <class... Args>
std::u16string Format(std::u16string_view format, const Args&... args) {
    const FormatArg captured[] = {FormatArg{}, ToFormatArg(args)...};
    std::u16string out;
    FormatAppend(out, format, std::span<const FormatArg>(captured + 1, sizeof...(Args)));
    return out;
}

}  // namespace vex
