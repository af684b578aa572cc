#include <base/strings/FeetInch.h>

#include "CStringPrinter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace vex {
namespace {

// Expected texts worked out by hand: feet = the whole part, inches = the
// fraction * 12 truncated, sixteenths = floor(rest * 16 + 0.5) reduced.
TEST(FeetInch, FormatSplitsFeetInchesAndSixteenths) {
    const struct {
        double value;
        const char16_t* format;
        int mode;
        const char16_t* text;
    } cases[] = {
        {5.5, u"%.1f", 0, u"5.5"},
        {5.5, u"%.1f", 1, u"5.5"},
        {5.5, u"%.1f", -1, u"5.5"},
        {5.5, u"%.1f", 2, u"5' 6\""},
        {5.5, u"%.1f", 4, u"5' 6\""},
        {5.53125, u"%.1f", 2, u"5' 6\""},
        {5.53125, u"%.1f", 4, u"5' 6 3/8\""},  // 6.375 inches
        {5.53125, u"%.1f", 9, u"5' 6 3/8\""},  // modes above 4 are 4
        {5.0, u"%.1f", 4, u"5'"},
        {-2.25, u"%.1f", 2, u"-2' 3\""},
        {0.75, u"%.1f", 4, u"0' 9\""},
        {0.99, u"%.1f", 4, u"0' 11 7/8\""},  // 11.88 in: 0.88 * 16 = 14.08
        {3.0 + 0.0625 / 12, u"%.1f", 4, u"3' 1/16\""},
        {1234.5, u"%.1f", 2, u"1234' 6\""},
        // The feet are the whole part, not the rounded value: "%.0f" of 5.75
        // alone would print 6.
        {5.75, u"%.0f", 2, u"5' 9\""},
        {5.5, u"%6.2f", 2, u"  5' 6\""},
        {5.5, u"%f", 4, u"5' 6\""},
        // The sign stays on the feet, even on zero feet.
        {-0.5, u"%.1f", 2, u"-0' 6\""},
        {-0.0, u"%.1f", 4, u"-0'"},
        {std::numeric_limits<double>::infinity(), u"%.1f", 4, u"inf'"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(FormatDoubleW(c.value, c.format, c.mode), c.text)
            << c.value << " mode " << c.mode;
    }
}

TEST(FeetInch, ModeThreeTruncatesTheInchesLikeModeTwo) {
    // 5.99 ft is 11.88 in: mode 3 still prints 11, not 12.
    EXPECT_EQ(FormatDoubleW(5.99, u"%.1f", 3), u"5' 11\"");
    EXPECT_EQ(FormatDoubleW(5.99, u"%.1f", 2), u"5' 11\"");
}

TEST(FeetInch, SixteenSixteenthsArePrintedAsOneOverOne) {
    // 1.999 ft: 11.988 in, the rest 0.988 * 16 + 0.5 = 16.3, so 16/16 = 1/1;
    // it is not carried into the inches.
    EXPECT_EQ(FormatDoubleW(1.999, u"%.1f", 4), u"1' 11 1/1\"");
    // 0.01 ft is 0.12 in: 0.12 * 16 + 0.5 = 2.42, 2/16 = 1/8.
    EXPECT_EQ(FormatDoubleW(0.01, u"%.1f", 4), u"0' 1/8\"");
}

TEST(FeetInch, NarrowFormatMatchesTheWideOne) {
    EXPECT_EQ(FormatDoubleA(5.53125, "%.1f", 4), "5' 6 3/8\"");
    EXPECT_EQ(FormatDoubleA(-2.25, "%.1f", 2), "-2' 3\"");
    EXPECT_EQ(FormatDoubleA(2.25, "%.3f", 0), "2.250");
}

TEST(FeetInch, ParseReadsFeetInchesAndFractions) {
    const struct {
        const char16_t* text;
        double value;
    } cases[] = {
        {u"5' 6 1/2\"", 5.0 + 6.5 / 12},
        {u"-3' 6\"", -3.5},
        {u"6 1/2\"", 6.5 / 12},  // one space and a slash: all inches
        {u"5'", 5.0},
        {u"5", 5.0},
        {u"5 6", 5.5},  // a space without a slash ends the feet
        {u"2 3 1/4", 2.0 + 3.25 / 12},
        {u"-2' 3 1/4\"", -(2.0 + 3.25 / 12)},
        {u"  5'   6  \"", 5.5},  // runs of blanks count as one
        {u"6\"", 0.5},
        {u"1/2\"", 0.5 / 12},
        {u"3/4", 0.75 / 12},
        {u"5' 1/1\"", 5.0 + 1.0 / 12},
        {u"5' 6 1/0\"", 5.5},  // a zero denominator adds nothing
        {u"-0' 6\"", -0.5},    // the sign of the zero feet is kept
        {u"-6\"", 0.5},        // inches alone carry no sign
        {u"abc", 0.0},
        {u"", 0.0},
    };
    for (const auto& c : cases) {
        double value = 99.0;
        EXPECT_TRUE(StringToValue(c.text, value, 2));
        EXPECT_NEAR(value, c.value, 1e-12) << std::u16string_view(c.text).size();
    }
}

TEST(FeetInch, ParseOfAPlainNumberLeavesTheValueOnFailure) {
    double value = 7.25;
    EXPECT_TRUE(StringToValue(u"abc", value, 0));
    EXPECT_EQ(value, 7.25);
    EXPECT_TRUE(StringToValue(u"", value, 1));
    EXPECT_EQ(value, 7.25);
    EXPECT_TRUE(StringToValue(u" 12.5xyz", value, 0));
    EXPECT_EQ(value, 12.5);
    EXPECT_TRUE(StringToValue(u"5' 6\"", value, 0));
    EXPECT_EQ(value, 5.0);
}

TEST(FeetInch, EverySixteenthOfAnInchReadsBackExactly) {
    // k / 192 ft is k sixteenths of an inch: the text names it exactly.
    for (int k = -4000; k <= 4000; ++k) {
        const double value = k / 192.0;
        const CString text = FormatDoubleW(value, u"%.1f", 4);
        double back = 0.0;
        StringToValue(text, back, 4);
        ASSERT_NEAR(back, value, 1e-9) << k;
    }
}

TEST(FeetInch, RandomValuesReadBackWithinHalfASixteenth) {
    std::mt19937 random(20240611);
    std::uniform_real_distribution<double> feet(-300.0, 300.0);
    for (int i = 0; i < 5000; ++i) {
        const double value = feet(random);
        double back = 0.0;
        StringToValue(FormatDoubleW(value, u"%.1f", 4), back, 4);
        ASSERT_NEAR(back, value, 1.0 / 384 + 1e-9) << value;
        // Whole inches only: the text is short of the value by under an inch.
        StringToValue(FormatDoubleW(value, u"%.1f", 2), back, 2);
        ASSERT_LE(std::fabs(back), std::fabs(value) + 1e-9) << value;
        ASSERT_LT(std::fabs(value) - std::fabs(back), 1.0 / 12) << value;
    }
}

}  // namespace
}  // namespace vex
