// Math.h - the geometry constants D_TO_R and EPSILON and the tolerant
// comparisons of MATH.
//
// The comparisons use a relative tolerance of 100 machine epsilons of the
// larger magnitude, so two values near zero are equal only when they are
// (nearly) identical: MATH::equal(0, 1e-300) is false.
//
//   if (vex::MATH::equal(a.x, b.x)) ...
//   double r = vex::MATH::round(12.3456, 2);   // 12.35
#pragma once

#include <algorithm>
#include <cmath>

namespace vex {

// Degrees to radians, written to 15 decimals (the exact π/180 is
// 0.0174532925199433); code that multiplies bearings by it keeps the value.
inline constexpr double D_TO_R = 0.017453292519943;

// The double machine epsilon, 2^-52.
inline constexpr double EPSILON = 2.220446049250313e-16;

namespace detail {
// The tolerance shared by the comparisons: 100 epsilons of the larger magnitude.
inline double MathTolerance(double a, double b) {
    return 100.0 * EPSILON * std::max(std::fabs(a), std::fabs(b));
}
}  // namespace detail

namespace MATH {

inline constexpr double sqr(double x) {
    return x * x;
}

// True when a and b differ by at most 100 epsilons relative to the larger.
inline bool equal(double a, double b) {
    return std::fabs(a - b) <= vex::detail::MathTolerance(a, b);
}
// True when a is below b by more than the tolerance.
inline bool less(double a, double b) {
    return b - a > vex::detail::MathTolerance(a, b);
}
// True when a is above b by more than the tolerance.
inline bool greater(double a, double b) {
    return a - b > vex::detail::MathTolerance(a, b);
}
// less or equal within the tolerance.
inline bool lequal(double a, double b) {
    return less(a, b) || equal(a, b);
}
// greater or equal within the tolerance.
inline bool gequal(double a, double b) {
    return greater(a, b) || equal(a, b);
}

// x rounded to the given number of decimals, halves away from zero
// (round(-2.5, 0) is -3). Negative decimals round to tens, hundreds ...
inline double round(double x, int decimals) {
    const double p = std::pow(10.0, decimals);
    const double scaled = x * p;
    return std::trunc(scaled + (scaled < 0.0 ? -0.5 : 0.5)) / p;
}

}  // namespace MATH
}  // namespace vex
