// FeetInch.h - numbers as text with an optional feet-inch rendering, and the
// reading of such texts back into numbers.
//
// The mode says how much of the feet-inch form is wanted: 0 and 1 print the
// plain number; from 2 on the value is feet and the text reads 5' 6 3/8"
// (feet, whole inches, sixteenths reduced). Numbers use the "C" decimal
// point whatever the process locale. Pure functions, thread-safe.
//
//   vex::FormatDoubleW(5.53125, u"%.1f", 4);   // u"5' 6 3/8\""
//   double feet = 0;
//   vex::StringToValue(u"-3' 6\"", feet, 2);  // feet == -3.5
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

#include <string_view>

namespace vex {

// value printed with the printf format `format` (one conversion, which
// receives value), then by mode:
// - 0, 1 (or negative): the printed number, nothing more.
// - 2 and up: value is feet. The whole feet are printed with format and cut
//   at the first '.', then "'" follows. The inches |fraction| * 12 follow
//   as " %d" of the whole inches when they are not 0.
// - 3: the same text as 2; the inches are truncated, not rounded. Callers
//   rely on this output.
// - 4 and up: the rest of the inch in sixteenths, rounded (floor(g*16 +
//   0.5)), reduced while the numerator is even, as " n/d" when not 0; a rest
//   that rounds to 16/16 prints as 1/1 and is not carried into the inches.
// An inch mark '"' closes the text when inches or sixteenths were printed.
// The sign stays on the feet, so -0.5 prints as -0' 6" with format "%.1f".
// Infinities and NaN print as the feet only.
VEXBASE_API CString FormatDoubleW(double value, std::u16string_view format, int mode);
// The same in narrow text.
VEXBASE_API CStringA FormatDoubleA(double value, std::string_view format, int mode);

// Reads the text that FormatDoubleW writes back into value and returns true,
// always.
// - Modes 0 and 1 read one number as sscanf's "%lf" does; when that fails,
//   value keeps what it held.
// - From mode 2 on the text is feet and inches: 5' 6 1/2" is 5.541666...,
//   -3' 6" is -3.5, 6 1/2" (no feet) is 0.541666..., 5 6 is 5.5, and a
//   lone number is feet. Inches and their fraction take the sign of the
//   feet when the feet are below zero: -0' 6" (which FormatDoubleW writes
//   for -0.5) reads as +0.5, as does -6" (no feet). Every part that is not
//   a number reads as 0, so value is always set.
VEXBASE_API bool StringToValue(std::u16string_view text, double& value, int mode);

}  // namespace vex
