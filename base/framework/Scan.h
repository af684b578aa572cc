// Scan.h - scanf-style reading of narrow and UTF-16 text.
//
// Returns what sscanf returns: the number of fields converted and stored,
// or -1 when the input ends before the first conversion. Its quirks are
// kept because parsers of the library rely on them: leading white space
// is skipped by every conversion but %c and %[, text after the last
// conversion is ignored, %x accepts a "0x" prefix, %u accepts a sign.
// Numbers use the "C" locale's decimal point. Targets are passed as
// pointers (&value) or, for %s, %c and %[, as a std::string / std::u16string
// pointer or a char / char16_t array, whose size bounds what is written.
// The value is stored with the target's own type.
//
//   int n = 0; double v = 0;
//   int fields = vex::Scan(u" 42, 3.5", u"%d,%lf", &n, &v);  // 2
#pragma once

#include <base/Export.h>
#include <base/framework/FormatArgs.h>

#include <span>
#include <string_view>

namespace vex {

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
