#include <base/geometry/Math.h>

#include <gtest/gtest.h>

namespace vex {
namespace {

TEST(Math, ComparisonsUseARelativeToleranceOfAHundredEpsilons) {
    // a, b, then the expected equal, less, greater, lequal, gequal.
    const double cases[][7] = {{1.0, 1.0 + 1e-15, 1, 0, 0, 1, 1},
                               {1.0, 1.0 + 1e-13, 0, 1, 0, 1, 0},
                               {0.0, 1e-300, 0, 1, 0, 1, 0},  // no slack at zero
                               {1.001, 1.0, 0, 0, 1, 0, 1}};
    for (const auto& c : cases) {
        const bool got[] = {MATH::equal(c[0], c[1]), MATH::less(c[0], c[1]),
                            MATH::greater(c[0], c[1]), MATH::lequal(c[0], c[1]),
                            MATH::gequal(c[0], c[1])};
        for (int k = 0; k < 5; ++k)
            EXPECT_EQ(got[k], c[k + 2] != 0) << c[0] << " vs " << c[1];
    }
}

TEST(Math, RoundTakesHalvesAwayFromZero) {
    // x, decimals, expected
    const double cases[][3] = {{-2.5, 0, -3},       {2.5, 0, 3},        {-0.125, 2, -0.13},
                               {12.3456, 2, 12.35}, {1234.5, -2, 1200}, {-0.04, 1, 0}};
    for (const auto& c : cases) {
        EXPECT_DOUBLE_EQ(MATH::round(c[0], static_cast<int>(c[1])), c[2]) << c[0] << ", " << c[1];
    }
    EXPECT_EQ(D_TO_R, 0.017453292519943);  // 15 decimals, not the exact pi / 180
}

}  // namespace
}  // namespace vex
