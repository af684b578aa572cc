#include <base/strings/NumberFormat.h>

#include "CStringPrinter.h"

#include <gtest/gtest.h>

namespace vex {
namespace {

TEST(NumberFormat, FormatsAreBuiltFromWidthAndDecimals) {
    EXPECT_EQ(GetFormatStringDouble(3), u"%.3f");
    EXPECT_EQ(GetFormatStringDouble(8, 2), u"%8.2f");
    EXPECT_EQ(GetFormatStringInt(5), u"%5d");
    EXPECT_EQ(FormatInt(-7, 4), u"  -7");
    EXPECT_EQ(FormatInt(255, u"%04X"), u"00FF");
    EXPECT_EQ(FormatIntA(5, "%03d"), "005");
}

TEST(NumberFormat, FormatDoubleOverloadsChooseFormatAndMode) {
    EXPECT_EQ(FormatDouble(2.5), u"2.500000");
    EXPECT_EQ(FormatDouble(2.5, 3, 0), u"2.500");
    EXPECT_EQ(FormatDouble(2.5, 8, 2, 0), u"    2.50");
    EXPECT_EQ(FormatDouble(2.5, u"%.1f"), u"2.5");
    EXPECT_EQ(FormatDouble(-0.0, 1, 0), u"-0.0");
    // The two-argument form takes the mode: "%f" of the feet, cut at the point.
    EXPECT_EQ(FormatDouble(5.5, 2), u"5' 6\"");
    EXPECT_EQ(FormatDouble(5.53125, 1, 4), u"5' 6 3/8\"");
    EXPECT_EQ(FormatDouble(5.53125, 6, 1, 4), u"   5' 6 3/8\"");
    EXPECT_EQ(FormatDouble(5.53125, CString(u"%.2f"), 3), u"5' 6\"");
}

}  // namespace
}  // namespace vex
