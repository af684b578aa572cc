#include <base/strings/Precision.h>

#include <gtest/gtest.h>

#include <limits>

namespace vex {
namespace {

// Decimals worked out by following the multiply-by-ten loop by hand. The
// tolerance of 100 epsilons absorbs binary noise (0.1 + 0.2 is
// 0.30000000000000004). 1/3 stops at 14: scaled by 10^14 its tolerance is
// 0.74, above any fraction, at 10^13 only 0.074. Values below 1e-15 and NaN
// never reach a whole number and give 16.
TEST(Precision, DoublePrecisionCountsTheDecimalsAValueCarries) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    const double cases[][2] = {{0.0, 0},        {3.0, 0},      {-3.0, 0},    {1e300, 0},
                               {0.1, 1},        {2.5, 1},      {-2.5, 1},    {0.1 + 0.2, 1},
                               {0.125, 3},      {12.345, 3},   {1.23456, 5}, {123456789.123, 3},
                               {1e-5, 5},       {1e-15, 15},   {1e-16, 16},  {1e-20, 16},
                               {1.0 / 3.0, 14}, {2.0 / 3, 14}, {nan, 16},    {inf, 16}};
    for (const auto& c : cases)
        EXPECT_EQ(GetDoublePrecision(c[0]), c[1]) << c[0];
}

// As above in float: 123456.0f has a tolerance of 1.47; 33333.33f one of
// 0.397 > 0.333, where 3333.33f has only 0.0397.
TEST(Precision, FloatPrecisionStopsAtSevenDecimals) {
    const float cases[][2] = {{3.0f, 0},     {0.5f, 1},        {0.1f, 1},  {1e-4f, 4},
                              {123.456f, 3}, {1.0f / 3.0f, 5}, {1e-10f, 7}};
    for (const auto& c : cases)
        EXPECT_EQ(GetFloatPrecision(c[0]), c[1]) << c[0];
}

TEST(Precision, SensiblePrecisionIsBoundByTheToleranceAndTheValue) {
    // value, reference, percent, decimals. 1 % of 5 is 0.05, which two
    // decimals bring to 5; 0.01 % of 5 needs 4, more than 1.25 carries.
    const double cases[][4] = {{1.25, 5.0, 1.0, 2},      {1.25, 5.0, 0.01, 2},
                               {1.23456, 5.0, 0.01, 4},  {1.23456, -5.0, 1.0, 2},
                               {1.23456, 100.0, 1.0, 0}, {3.14159, 0.99, 100.0, 1},
                               {1.23456, 0.0, 1.0, 5}};
    for (const auto& c : cases)
        EXPECT_EQ(GetSensiblePrecision(c[0], c[1], c[2]), c[3]) << c[0] << " " << c[1];
}

TEST(Precision, Double125StepsThroughOneTwoFive) {
    // x, step: r = |x| / 10^floor(log10 |x|) above 7, 3, 1.5 gives 10, 5, 2;
    // 1.5 itself is not above 1.5.
    const double cases[][2] = {{0.0, 1.0},      {1.0, 1.0},          {1.5, 1.0},     {1.6, 2.0},
                               {3.0, 2.0},      {3.1, 5.0},          {7.0, 5.0},     {7.1, 10.0},
                               {15.0, 10.0},    {16.0, 20.0},        {250.0, 200.0}, {0.9, 1.0},
                               {-0.004, 0.005}, {259200.0, 200000.0}};
    for (const auto& c : cases)
        EXPECT_DOUBLE_EQ(Double125(c[0]), c[1]) << c[0];
    // The smallest subnormals, whose power of ten underflows, still get a step.
    EXPECT_GT(Double125(5e-324), 0.0);
    EXPECT_GT(Double125(-1e-323), 0.0);
}

TEST(Precision, RoundTakesHalvesAwayFromZero) {
    // value, decimals, expected. 1.005 is 1.00499999999999989... in binary.
    const double cases[][3] = {{2.5, 0, 3.0},        {-2.5, 0, -3.0}, {-2.25, 1, -2.3},
                               {123.456, 2, 123.46}, {1.005, 2, 1.0}, {1234.5, -2, 1200.0},
                               {-0.4, 0, 0.0}};
    for (const auto& c : cases)
        EXPECT_DOUBLE_EQ(Round(c[0], static_cast<int>(c[1])), c[2]) << c[0] << ", " << c[1];
    EXPECT_EQ(Epsilon(1.0), 2.220446049250313e-16);
    EXPECT_EQ(Epsilon(-2.0), 4.440892098500626e-16);
}

}  // namespace
}  // namespace vex
