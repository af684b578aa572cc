// Scan.h - scanf-style reading of narrow and UTF-16 text.
//
// Returns what sscanf returns: the number of fields converted and stored,
// or -1 when the text ends before the first one. Numbers use the "C"
// locale's decimal point; the text is a view and is never read past its end.
// Targets are pointers (&value), or for %s, %c and %[ a std::string or
// std::u16string pointer or a char / char16_t array, which is never overrun.
//
//   int n = 0; double v = 0;
//   int fields = vex::Scan(u" 42, 3.5", u"%d,%lf", &n, &v);  // 2
#pragma once

#include <base/Export.h>
#include <base/framework/FormatArgs.h>

#include <span>
#include <string_view>

namespace vex {

// Reads text by format into the targets; returns the number of fields
// stored, or -1 when the text ends before any field was stored.
//
// The rules of C's sscanf, as current glibc follows them: white space in the
// format matches any amount, including none; every conversion but %c, %[ and
// %n skips white space first; text after the last conversion is ignored;
// "%*" reads a field without storing or counting it. A conversion reads the
// longest text that is or begins a valid field and fails when that text is
// not one: "0x" without a hex digit, "1e" without exponent digits, a %5c
// field cut short by the end of the text (older glibc accepted these).
// %d %i %u %o %x %p convert as strtoll / strtoull do (64 bits, saturating;
// %u accepts a sign and negates modulo 2^64; %x and %i accept "0x"), then cut
// the value to the size prefix (none = 32 bits, hh = 8, h = 16, l = the
// platform's long, ll L q j I64 = 64, z t I = pointer-sized, I32 = 32; the
// Windows wide-text mark w changes nothing).
// %e %f %g %a read decimal and hex floats, inf, infinity and nan(...).
// Every value is stored with its target's own type: a floating field is
// read at the target's precision whatever the prefix says (on MinGW a long
// double gets double precision), an integer field is converted to a
// floating target, a floating field truncated (saturating) into an integer.
// A %s or %[ field longer than an array is consumed whole, stored cut to
// what fits before the terminating NUL and counted; %c stores at most the
// array's size and adds no NUL; %c into a single char, char16_t or other
// integer stores the character's code. Text into a number, a number into a
// string, or a conversion with no target left is a matching failure. Text
// of the other width is converted through the active code page.
VEXBASE_API int ScanArgs(std::string_view text, std::string_view format,
                         std::span<const ScanArg> targets);
VEXBASE_API int ScanArgs(std::u16string_view text, std::u16string_view format,
                         std::span<const ScanArg> targets);

template <class... Targets>
int Scan(std::string_view text, std::string_view format, Targets&&... targets) {
    const ScanArg captured[] = {ScanArg{}, ToScanArg(targets)...};
    return ScanArgs(text, format, std::span<const ScanArg>(captured + 1, sizeof...(Targets)));
}

template <class... Targets>
int Scan(std::u16string_view text, std::u16string_view format, Targets&&... targets) {
    const ScanArg captured[] = {ScanArg{}, ToScanArg(targets)...};
    return ScanArgs(text, format, std::span<const ScanArg>(captured + 1, sizeof...(Targets)));
}

}  // namespace vex
