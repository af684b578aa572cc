#include <base/strings/Precision.h>

#include <base/strings/NumericDetail.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vex {

namespace {

// The machine epsilons, 2^-52 and 2^-23 (written 2.220446049250313e-16 and
// 1.1920929e-7 where the precision rules are described).
constexpr double kDoubleEpsilon = std::numeric_limits<double>::epsilon();
constexpr float kFloatEpsilon = std::numeric_limits<float>::epsilon();

// How many decimals GetSensiblePrecision and GetDoublePrecision give at most.
constexpr int kMaxDoubleDecimals = 16;
constexpr int kMaxFloatDecimals = 7;

}  // namespace

double Round(double value, int decimals) {
    const double f = detail::PowerOfTen(decimals);
    const double scaled = value * f;
    return std::trunc(scaled < 0.0 ? scaled - 0.5 : scaled + 0.5) / f;
}

double Epsilon(double x) {
    return std::fabs(x * kDoubleEpsilon);
}

int GetDoublePrecision(double x) {
    x = std::fabs(x);
    for (int n = 0; n < kMaxDoubleDecimals; ++n) {
        const double tolerance = std::fabs(x * 100.0 * kDoubleEpsilon);
        const double fraction = std::fmod(x, 1.0);
        if (fraction <= tolerance || fraction >= 1.0 - tolerance) return n;
        x *= 10.0;
    }
    return kMaxDoubleDecimals;
}

int GetFloatPrecision(float x) {
    x = std::fabs(x);
    for (int n = 0; n < kMaxFloatDecimals; ++n) {
        const float tolerance = std::fabs(x * 100.0f * kFloatEpsilon);
        const float fraction = std::fmod(x, 1.0f);
        if (fraction <= tolerance || fraction >= 1.0f - tolerance) return n;
        x *= 10.0f;
    }
    return kMaxFloatDecimals;
}

int GetSensiblePrecision(double value, double reference, double percent) {
    const int carried = GetDoublePrecision(value);
    double tolerance = std::fabs(percent / 100.0 * reference);
    if (tolerance >= 1.0) return 0;
    int needed = 0;
    while (tolerance < 1.0 && needed < kMaxDoubleDecimals) {
        tolerance *= 10.0;
        ++needed;
    }
    return std::min(needed, carried);
}

double Double125(double x) {
    if (x == 0.0) return 1.0;
    const double magnitude = std::fabs(x);
    // Below 1e-323 the power of ten would underflow to 0; the smallest
    // subnormals take that step instead, so the result stays positive.
    const int exponent = std::max(detail::TruncToInt(std::floor(std::log10(magnitude))), -323);
    const double m = detail::PowerOfTen(exponent);
    const double r = magnitude / m;
    if (r > 7.0) return 10.0 * m;
    if (r > 3.0) return 5.0 * m;
    if (r > 1.5) return 2.0 * m;
    return m;
}

}  // namespace vex
