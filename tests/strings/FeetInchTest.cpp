#include <base/strings/FeetInch.h>

#include "CStringPrinter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vex {
namespace {

struct FormatCase {
    double value;
    const char16_t* format;
    int mode;
    const char16_t* text;
};

// Texts worked out by hand: feet = the whole part, inches = the fraction * 12
// truncated, sixteenths = floor(rest * 16 + 0.5) reduced. 5.53125 ft is
// 6.375 in; 0.99 ft is 11.88 in (0.88 * 16 = 14.08, 7/8); 5.99 ft is 11.88 in,
// which mode 3 does not round up; 1.999 ft is 11.988 in, whose rest makes
// 16/16 = 1/1 without a carry; 0.01 ft is 0.12 in, 2/16. The feet are the
// whole part, not the rounded value ("%.0f" of 5.75 alone is 6), and keep
// the sign even when they are 0.
TEST(FeetInch, FormatSplitsFeetInchesAndSixteenths) {
    const double inf = std::numeric_limits<double>::infinity();
    const FormatCase cases[] = {{5.5, u"%.1f", 0, u"5.5"},
                                {5.5, u"%.1f", -1, u"5.5"},
                                {5.5, u"%.1f", 2, u"5' 6\""},
                                {5.53125, u"%.1f", 2, u"5' 6\""},
                                {5.53125, u"%.1f", 4, u"5' 6 3/8\""},
                                {5.53125, u"%.1f", 9, u"5' 6 3/8\""},
                                {5.0, u"%.1f", 4, u"5'"},
                                {-2.25, u"%.1f", 2, u"-2' 3\""},
                                {0.75, u"%.1f", 4, u"0' 9\""},
                                {0.99, u"%.1f", 4, u"0' 11 7/8\""},
                                {5.99, u"%.1f", 3, u"5' 11\""},
                                {1.999, u"%.1f", 4, u"1' 11 1/1\""},
                                {0.01, u"%.1f", 4, u"0' 1/8\""},
                                {5.75, u"%.0f", 2, u"5' 9\""},
                                {5.5, u"%6.2f", 2, u"  5' 6\""},
                                {-0.5, u"%.1f", 2, u"-0' 6\""},
                                {-0.0, u"%.1f", 4, u"-0'"},
                                {inf, u"%.1f", 4, u"inf'"}};
    for (const auto& c : cases)
        EXPECT_EQ(FormatDoubleW(c.value, c.format, c.mode), c.text) << c.value << " " << c.mode;
    EXPECT_EQ(FormatDoubleA(5.53125, "%.1f", 4), "5' 6 3/8\"");
    EXPECT_EQ(FormatDoubleA(2.25, "%.3f", 0), "2.250");
}

TEST(FeetInch, ParseReadsFeetInchesAndFractions) {
    // A space ends the feet unless it is the only one and a slash follows
    // ("6 1/2" is all inches); inches alone carry no sign; a zero
    // denominator adds nothing; anything unreadable is 0.
    const struct {
        const char16_t* text;
        double value;
    } cases[] = {{u"5' 6 1/2\"", 5.0 + 6.5 / 12},
                 {u"-3' 6\"", -3.5},
                 {u"6 1/2\"", 6.5 / 12},
                 {u"5'", 5.0},
                 {u"5", 5.0},
                 {u"5 6", 5.5},
                 {u"2 3 1/4", 2.0 + 3.25 / 12},
                 {u"-2' 3 1/4\"", -(2.0 + 3.25 / 12)},
                 {u"  5'   6  \"", 5.5},
                 {u"6\"", 0.5},
                 {u"3/4", 0.75 / 12},
                 {u"5' 1/1\"", 5.0 + 1.0 / 12},
                 {u"5' 6 1/0\"", 5.5},
                 {u"-0' 6\"", 0.5},  // -0 is not below zero: the inches stay positive
                 {u"-6\"", 0.5},
                 {u"abc", 0.0},
                 {u"'", 0.0},
                 {u"/\"", 0.0},
                 {u"- -", 0.0},
                 {u"1/", 0.0},
                 {u"", 0.0}};
    for (const auto& c : cases) {
        double value = 99.0;
        EXPECT_TRUE(StringToValue(c.text, value, 2));
        EXPECT_NEAR(value, c.value, 1e-12) << CString(c.text).ToUtf8();
    }
    // Modes 0 and 1 read one number and keep the value when there is none.
    double value = 7.25;
    EXPECT_TRUE(StringToValue(u"abc", value, 0));
    EXPECT_TRUE(StringToValue(u"", value, 1));
    EXPECT_EQ(value, 7.25);
    EXPECT_TRUE(StringToValue(u"5' 6\"", value, 0));
    EXPECT_EQ(value, 5.0);
}

TEST(FeetInch, EverySixteenthOfAnInchReadsBackExactly) {
    // k / 192 ft is k sixteenths of an inch: mode 4 names it exactly; mode 2
    // drops the sixteenths, which leaves the value short by under an inch.
    // Between -1 ft and 0 the text starts with "-0'", whose inches read as
    // positive, so only the size comes back.
    for (int k = -4000; k <= 4000; ++k) {
        const double value = k / 192.0;
        const double expected = (k > -192 && k < 0) ? -value : value;
        double back = 0.0;
        StringToValue(FormatDoubleW(value, u"%.1f", 4), back, 4);
        ASSERT_NEAR(back, expected, 1e-9) << k;
        StringToValue(FormatDoubleW(value, u"%.1f", 2), back, 2);
        ASSERT_LE(std::fabs(back), std::fabs(value) + 1e-9) << k;
        ASSERT_LT(std::fabs(value) - std::fabs(back), 1.0 / 12) << k;
    }
}

}  // namespace
}  // namespace vex
