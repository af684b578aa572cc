// Format.h - printf-style formatting of narrow and UTF-16 text.
//
// C semantics for flags ("-+ #0"), width, precision ("*" taken from the
// arguments), the conversions d i u x X o c s f F e E g G p % and the size
// prefixes hh h l ll L z j t I32 I64. Numbers always use the "C" locale's
// decimal point, whatever the process locale is. "%s" takes a string of
// either width and converts it to the width of the format (narrow text is in
// the active code page); "%c" takes a character code. Arguments are captured
// with their types (see FormatArgs.h), so a mismatch is converted rather
// than undefined: "%d" given 2.7 prints 2, "%f" given 3 prints 3.000000.
// A conversion with no argument left is copied to the output as written.
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
