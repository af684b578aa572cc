// NumberFormat.h - printf formats for numbers and the texts of integers and
// doubles, the latter with the feet-inch modes of FeetInch.h.
//
// Watch the overloads: the second int argument of FormatDouble(value, mode)
// is the feet-inch mode, not the decimals; decimals come with a mode,
// FormatDouble(value, decimals, mode). Numbers use the "C" decimal point.
//
//   vex::FormatDouble(2.5, 3, 0);         // u"2.500"
//   vex::FormatDouble(2.5, 8, 2, 0);      // u"    2.50"
//   vex::FormatDouble(-2.25, u"%.1f", 2);  // u"-2' 3\""
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>
#include <base/strings/FeetInch.h>

#include <string_view>

namespace vex {

// "%f".
VEXBASE_API CString GetFormatStringDouble();
// "%.<decimals>f": 3 gives "%.3f".
VEXBASE_API CString GetFormatStringDouble(int decimals);
// "%<width>.<decimals>f": (8, 2) gives "%8.2f".
VEXBASE_API CString GetFormatStringDouble(int width, int decimals);
// "%d".
VEXBASE_API CString GetFormatStringInt();
// "%<width>d": 5 gives "%5d".
VEXBASE_API CString GetFormatStringInt(int width);

// value printed with "%d".
VEXBASE_API CString FormatInt(int value);
// value printed with "%<width>d", right-aligned in width characters.
VEXBASE_API CString FormatInt(int value, int width);
// value printed with the caller's printf format.
VEXBASE_API CString FormatInt(int value, std::u16string_view format);
VEXBASE_API CString FormatIntW(int value, std::u16string_view format);
VEXBASE_API CStringA FormatIntA(int value, std::string_view format);

// FormatDoubleW(value, "%f", mode): 2.5 gives "2.500000".
VEXBASE_API CString FormatDouble(double value, int mode = 0);
// FormatDoubleW(value, "%.<decimals>f", mode).
VEXBASE_API CString FormatDouble(double value, int decimals, int mode);
// FormatDoubleW(value, "%<width>.<decimals>f", mode).
VEXBASE_API CString FormatDouble(double value, int width, int decimals, int mode);
// FormatDoubleW(value, format, mode).
VEXBASE_API CString FormatDouble(double value, std::u16string_view format, int mode = 0);

}  // namespace vex
