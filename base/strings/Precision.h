// Precision.h - how many decimals a number is worth showing, rounding to
// decimals, and the 1-2-5 steps of axes and grids.
//
// Every number text of the library takes its decimals from here, so a value
// shows the decimals it really carries: GetDoublePrecision(2.5) is 1,
// GetDoublePrecision(3.0) is 0. All functions are pure and thread-safe.
//
//   double v = 12.125;
//   vex::CString text = vex::FormatDouble(v, vex::GetDoublePrecision(v), 0);  // u"12.125"
#pragma once

#include <base/Export.h>

namespace vex {

// value rounded half away from zero to `decimals` decimals: the integer part
// of value * 10^decimals + 0.5 (- 0.5 when that product is negative), divided
// by 10^decimals. Round(-2.25, 1) is -2.3; negative decimals round to tens,
// hundreds ...
VEXBASE_API double Round(double value, int decimals);

// The double machine epsilon scaled to x: |x * 2.220446049250313e-16|.
VEXBASE_API double Epsilon(double x);

// The number of decimals that x carries, 0 to 16: the number of times |x|
// must be multiplied by 10 before its fraction is within 100 epsilons (of
// the scaled value) of a whole number. 0.1 gives 1, 1e-20 gives 16 (it never
// gets there), NaN and infinities give 16.
VEXBASE_API int GetDoublePrecision(double x);

// As GetDoublePrecision, in single precision with the float epsilon
// 1.1920929e-7 and at most 7 decimals.
VEXBASE_API int GetFloatPrecision(float x);

// The decimals worth showing for value when its tolerance is `percent` % of
// `reference`: the number of decimals that brings that tolerance to 1 or more
// (0 when it is 1 or more already, at most 16), but never more than value
// carries (GetDoublePrecision). 1.25 against 1 % of 5 gives 2.
VEXBASE_API int GetSensiblePrecision(double value, double reference, double percent);

// A step of the 1-2-5 series for the magnitude of x, for axis and grid steps:
// with m the power of ten at or below |x| and r = |x| / m, r above 7 gives
// 10m, above 3 gives 5m, above 1.5 gives 2m, otherwise m. 0 gives 1; the
// result is never negative. Double125(-0.004) is 0.005, Double125(15) is 10.
VEXBASE_API double Double125(double x);

}  // namespace vex
