#include <base/strings/Precision.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vex {
namespace {

// Expected decimals worked out by following the multiply-by-ten loop by hand:
// the tolerance is 100 epsilons of the scaled value, so the noise of decimal
// fractions in binary (0.1 + 0.2 is 0.30000000000000004) is absorbed.
TEST(Precision, DoublePrecisionCountsTheDecimalsAValueCarries) {
    const struct {
        double x;
        int decimals;
    } cases[] = {
        {0.0, 0},
        {3.0, 0},
        {-3.0, 0},
        {1e300, 0},
        {0.1, 1},
        {2.5, 1},
        {-2.5, 1},
        {0.1 + 0.2, 1},
        {0.125, 3},
        {12.345, 3},
        {1.23456, 5},
        {123456789.123, 3},
        {1e-5, 5},
        {1e-15, 15},
        // 1/3 scaled by 10^14 is 3.3e13, whose tolerance (0.74) exceeds any
        // fraction below it; at 10^13 the tolerance is only 0.074.
        {1.0 / 3.0, 14},
        {2.0 / 3.0, 14},
        // Tiny values never reach a whole number within 16 steps.
        {1e-16, 16},
        {1e-20, 16},
        {std::numeric_limits<double>::quiet_NaN(), 16},
        {std::numeric_limits<double>::infinity(), 16},
    };
    for (const auto& c : cases)
        EXPECT_EQ(GetDoublePrecision(c.x), c.decimals) << c.x;
}

TEST(Precision, FloatPrecisionStopsAtSevenDecimals) {
    const struct {
        float x;
        int decimals;
    } cases[] = {
        {3.0f, 0},
        {0.5f, 1},
        {0.1f, 1},
        {1e-4f, 4},
        // 123456.0f has a tolerance of 1.47, above any fraction.
        {123.456f, 3},
        // 33333.33f has a tolerance of 0.397 > 0.333; 3333.33f only 0.0397.
        {1.0f / 3.0f, 5},
        {1e-10f, 7},
    };
    for (const auto& c : cases)
        EXPECT_EQ(GetFloatPrecision(c.x), c.decimals) << c.x;
}

TEST(Precision, SensiblePrecisionIsBoundByTheToleranceAndTheValue) {
    const struct {
        double value, reference, percent;
        int decimals;
    } cases[] = {
        {1.25, 5.0, 1.0, 2},       // tolerance 0.05: two decimals reach 5
        {1.25, 5.0, 0.01, 2},      // tolerance 0.0005 wants 4, the value has 2
        {1.23456, 5.0, 0.01, 4},   // the value has 5, the tolerance wants 4
        {1.23456, -5.0, 1.0, 2},   // the tolerance is taken as magnitude
        {1.23456, 100.0, 1.0, 0},  // tolerance 1: whole numbers
        {3.14159, 0.99, 100.0, 1},
        {1.23456, 0.0, 1.0, 5},  // no tolerance: the value's own decimals
    };
    for (const auto& c : cases) {
        EXPECT_EQ(GetSensiblePrecision(c.value, c.reference, c.percent), c.decimals)
            << c.value << " " << c.reference << " " << c.percent;
    }
}

TEST(Precision, Double125StepsThroughOneTwoFive) {
    // x, step: r = |x| / 10^floor(log10 |x|) above 7, 3, 1.5 gives 10, 5, 2.
    const double cases[][2] = {
        {0.0, 1.0},  {1.0, 1.0},      {1.5, 1.0},  // 1.5 is not above 1.5
        {1.6, 2.0},  {3.0, 2.0},      {3.1, 5.0},           {7.0, 5.0},
        {7.1, 10.0}, {15.0, 10.0},    {16.0, 20.0},         {250.0, 200.0},
        {0.9, 1.0},  {-0.004, 0.005}, {259200.0, 200000.0},
    };
    for (const auto& c : cases)
        EXPECT_DOUBLE_EQ(Double125(c[0]), c[1]) << c[0];
}

TEST(Precision, RoundTakesHalvesAwayFromZero) {
    // value, decimals, expected
    const double cases[][3] = {
        {2.5, 0, 3.0},
        {-2.5, 0, -3.0},
        {-2.25, 1, -2.3},
        {123.456, 2, 123.46},
        // 1.005 is 1.00499999999999989... in binary: no half to round up.
        {1.005, 2, 1.0},
        {1234.5, -2, 1200.0},
        {-0.4, 0, 0.0},
    };
    for (const auto& c : cases)
        EXPECT_DOUBLE_EQ(Round(c[0], static_cast<int>(c[1])), c[2]) << c[0] << ", " << c[1];
}

TEST(Precision, EpsilonScalesTheMachineEpsilon) {
    EXPECT_EQ(Epsilon(1.0), 2.220446049250313e-16);
    EXPECT_EQ(Epsilon(-2.0), 4.440892098500626e-16);
    EXPECT_EQ(Epsilon(0.0), 0.0);
}

}  // namespace
}  // namespace vex
