// NumericDetail.h - small numeric helpers shared by the string formatting
// sources. Internal: not installed, not part of the library's interface.
#pragma once

#include <climits>
#include <cmath>

namespace vex::detail {

// 10^n. Built by multiplication so that every power from 10^-22 to 10^22 is
// the correctly rounded value on every C library (10^-n as the division
// 1 / 10^n of an exact power); beyond that std::pow.
inline double PowerOfTen(int n) {
    if (n < -22 || n > 22) return std::pow(10.0, n);
    if (n < 0) return 1.0 / PowerOfTen(-n);
    double p = 1.0;
    for (int i = 0; i < n; ++i)
        p *= 10.0;
    return p;
}

// x truncated toward zero into an int, saturating at the int range; NaN
// gives 0. The plain cast is undefined outside the range.
inline int TruncToInt(double x) {
    if (std::isnan(x)) return 0;
    if (x >= static_cast<double>(INT_MAX)) return INT_MAX;
    if (x <= static_cast<double>(INT_MIN)) return INT_MIN;
    return static_cast<int>(x);
}

}  // namespace vex::detail
