// GeographicAngles.h - latitudes and longitudes as degrees, minutes and
// seconds, and as display texts such as 012°30.000'S.
//
// Angles are decimal degrees, positive north and east. The texts never carry
// a minus sign: the hemisphere letter (N/S, E/W) tells the side. The degree
// sign comes from the library's string table. Thread-safe.
//
//   vex::CString text;
//   vex::FormatGeogs(-12.5, vex::GEOGS_DM, 3, vex::GEOGS_LATITUDE, text, true, true);
//   // text == u"012°30.000'S"
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

namespace vex {

// Styles of FormatGeogs.
inline constexpr int GEOGS_D = 1;    // degrees: 004.500000°
inline constexpr int GEOGS_DM = 3;   // degrees and minutes: 012°30.000'
inline constexpr int GEOGS_DMS = 7;  // degrees, minutes, seconds: 012°30'00.000"

// Axes of FormatGeogs, which choose the hemisphere letters.
inline constexpr int GEOGS_LATITUDE = 10;   // N, S
inline constexpr int GEOGS_LONGITUDE = 11;  // E, W

// Splits degrees into whole degrees (truncated toward zero, so they keep the
// sign) and minutes = |degrees - whole| * 60. Whole degrees beyond the int
// range are clamped to it, NaN gives 0.
VEXBASE_API void DegToDm(double degrees, int& wholeDegrees, double& minutes);
// As DegToDm, the minutes split further into whole minutes (truncated) and
// seconds = the rest * 60.
VEXBASE_API void DegToDms(double degrees, int& wholeDegrees, int& wholeMinutes, double& seconds);
// |degrees| + (seconds / 60 + minutes) / 60, negated when degrees < 0. The
// sign comes from the degrees alone: DmsToDeg(0, 30, 0) is +0.5 even for an
// angle meant to be south or west.
VEXBASE_API double DmsToDeg(double degrees, double minutes, double seconds);

// Writes |value| into text in a style (GEOGS_D, GEOGS_DM or GEOGS_DMS) with
// `decimals` decimals on its last part (clamped to 0 .. 15), then the
// hemisphere letter of the axis (GEOGS_LATITUDE, GEOGS_LONGITUDE): directly
// after the number with hemisphereAfter, else before it and a space. Degrees
// have three digits, minutes and seconds two before the decimals. The last
// part is rounded, carrying into minutes and degrees: 59.99999 in style
// GEOGS_DM with 0 decimals is 060°00'. Without signs, a space stands for each
// of the degree, minute (') and second (") signs.
// Returns true when a hemisphere letter was added. An unknown style leaves
// text as it was; an unknown axis writes the number alone; both return false.
VEXBASE_API bool FormatGeogs(double value, int style, int decimals, int axis, CString& text,
                             bool hemisphereAfter = true, bool signs = true);
// As FormatGeogs, in narrow text of the active code page.
VEXBASE_API bool FormatGeogsA(double value, int style, int decimals, int axis, CStringA& text,
                              bool hemisphereAfter = true, bool signs = true);

}  // namespace vex
