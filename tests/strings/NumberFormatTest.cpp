#include <base/strings/NumberFormat.h>

#include "CStringPrinter.h"

#include <gtest/gtest.h>

namespace vex {
namespace {

TEST(NumberFormat, FormatStringsAreBuiltFromWidthAndDecimals) {
    EXPECT_EQ(GetFormatStringDouble(), u"%f");
    EXPECT_EQ(GetFormatStringDouble(3), u"%.3f");
    EXPECT_EQ(GetFormatStringDouble(8, 2), u"%8.2f");
    EXPECT_EQ(GetFormatStringInt(), u"%d");
    EXPECT_EQ(GetFormatStringInt(5), u"%5d");
}

TEST(NumberFormat, IntegersArePrintedWithWidthOrTheCallersFormat) {
    EXPECT_EQ(FormatInt(42), u"42");
    EXPECT_EQ(FormatInt(-7, 4), u"  -7");
    EXPECT_EQ(FormatInt(255, u"%04X"), u"00FF");
    EXPECT_EQ(FormatIntW(-3, u"[%d]"), u"[-3]");
    EXPECT_EQ(FormatIntA(5, "%03d"), "005");
}

TEST(NumberFormat, FormatDoubleOverloadsChooseTheFormat) {
    EXPECT_EQ(FormatDouble(2.5), u"2.500000");
    EXPECT_EQ(FormatDouble(2.5, 3, 0), u"2.500");
    EXPECT_EQ(FormatDouble(2.5, 8, 2, 0), u"    2.50");
    EXPECT_EQ(FormatDouble(2.5, u"%.1f"), u"2.5");
    EXPECT_EQ(FormatDouble(2.5, CString(u"%5.1f"), 0), u"  2.5");
    // A negative zero keeps its sign, as printf prints it.
    EXPECT_EQ(FormatDouble(-0.0, 1, 0), u"-0.0");
    // The decimals of FormatDouble pass through printf's rounding: 0.125 is
    // exact in binary, a tie, rounded to even.
    EXPECT_EQ(FormatDouble(0.125, 2, 0), u"0.12");
}

TEST(NumberFormat, FormatDoubleModesGiveFeetAndInches) {
    // The second int of the two-argument form is the mode: "%f" of the feet.
    EXPECT_EQ(FormatDouble(5.5, 2), u"5' 6\"");
    EXPECT_EQ(FormatDouble(5.53125, 1, 4), u"5' 6 3/8\"");
    EXPECT_EQ(FormatDouble(5.53125, 6, 1, 4), u"   5' 6 3/8\"");
    EXPECT_EQ(FormatDouble(5.53125, u"%.2f", 3), u"5' 6\"");
}

}  // namespace
}  // namespace vex
