#include <base/strings/GeographicAngles.h>

#include <tests/framework/CodePageGuard.h>
#include "CStringPrinter.h"

#include <gtest/gtest.h>

namespace vex {
namespace {

TEST(GeographicAngles, DegreesSplitIntoMinutesAndSeconds) {
    int degrees = 0;
    int minutes = 0;
    double fraction = 0.0;
    DegToDm(-12.5, degrees, fraction);
    EXPECT_EQ(degrees, -12);
    EXPECT_DOUBLE_EQ(fraction, 30.0);
    DegToDms(-12.51, degrees, minutes, fraction);
    EXPECT_EQ(degrees, -12);
    EXPECT_EQ(minutes, 30);
    EXPECT_NEAR(fraction, 36.0, 1e-9);
    DegToDms(4.0 + 1.0 / 3600, degrees, minutes, fraction);
    EXPECT_EQ(degrees, 4);
    EXPECT_EQ(minutes, 0);
    EXPECT_NEAR(fraction, 1.0, 1e-9);
    DegToDm(-0.5, degrees, fraction);  // the sign of a zero degree is lost
    EXPECT_EQ(degrees, 0);
    EXPECT_DOUBLE_EQ(fraction, 30.0);
}

TEST(GeographicAngles, DmsToDegTakesTheSignFromTheDegrees) {
    EXPECT_DOUBLE_EQ(DmsToDeg(-12, 30, 36), -12.51);
    EXPECT_DOUBLE_EQ(DmsToDeg(12, 30, 36), 12.51);
    EXPECT_DOUBLE_EQ(DmsToDeg(0, 30, 0), 0.5);  // even when meant as south
    for (double angle = -179.75; angle < 180.0; angle += 2.3) {
        int d = 0;
        int m = 0;
        double s = 0.0;
        DegToDms(angle, d, m, s);
        if (d != 0) {
            EXPECT_NEAR(DmsToDeg(d, m, s), angle, 1e-12) << angle;
        }
    }
}

// Texts worked out by hand from the rounding: count = floor(|v| * 10^d * 60
// (or 3600) + 0.5), then degrees, minutes and seconds of (count + 0.01) /
// (10^d * 60 (or 3600)).
TEST(GeographicAngles, FormatGeogsPrintsTheThreeStyles) {
    const struct {
        double value;
        int style, decimals, axis;
        bool after, signs;
        const char16_t* text;
        bool lettered;
    } cases[] = {
        {-12.5, GEOGS_DM, 3, GEOGS_LATITUDE, true, true, u"012\u00B030.000'S", true},
        {4.5, GEOGS_D, 6, GEOGS_LONGITUDE, false, true, u"E 004.500000\u00B0", true},
        {-4.6, GEOGS_D, 0, GEOGS_LONGITUDE, true, true, u"005\u00B0W", true},
        {-12.5, GEOGS_DMS, 3, GEOGS_LATITUDE, true, true, u"012\u00B030'00.000\"S", true},
        {52.123456, GEOGS_DMS, 2, GEOGS_LATITUDE, false, true, u"N 052\u00B007'24.44\"", true},
        {-179.99, GEOGS_DM, 1, GEOGS_LONGITUDE, true, true, u"179\u00B059.4'W", true},
        // Without signs a space stands for each sign.
        {12.5, GEOGS_DMS, 0, GEOGS_LATITUDE, true, false, u"012 30 00 N", true},
        {12.5, GEOGS_DM, 2, GEOGS_LATITUDE, false, false, u"N 012 30.00 ", true},
        {12.5, GEOGS_D, 1, GEOGS_LATITUDE, true, false, u"012.5 N", true},
        // Another axis: the number alone.
        {-12.5, GEOGS_DM, 3, 0, true, true, u"012\u00B030.000'", false},
        // Negative zero is north; a value that rounds to zero keeps its side.
        {-0.0, GEOGS_DM, 3, GEOGS_LATITUDE, true, true, u"000\u00B000.000'N", true},
        {-0.000001, GEOGS_DM, 3, GEOGS_LATITUDE, true, true, u"000\u00B000.000'S", true},
        // Decimals are clamped to 0 .. 15.
        {1.25, GEOGS_D, -3, GEOGS_LATITUDE, true, true, u"001\u00B0N", true},
    };
    for (const auto& c : cases) {
        CString text = u"old";
        EXPECT_EQ(FormatGeogs(c.value, c.style, c.decimals, c.axis, text, c.after, c.signs),
                  c.lettered)
            << c.value;
        EXPECT_EQ(text, c.text) << c.value << " style " << c.style;
    }
}

TEST(GeographicAngles, RoundingCarriesIntoMinutesAndDegrees) {
    const struct {
        double value;
        int style, decimals;
        const char16_t* text;
    } cases[] = {
        // 59.99999 * 60 = 3599.9994: rounds to 3600 minutes, a whole 60 deg.
        {59.99999, GEOGS_DM, 0, u"060\u00B000'"},
        // 779999.4 rounds down to 779999 thousandths: 59.999' stays.
        {12.99999, GEOGS_DM, 3, u"012\u00B059.999'"},
        {12.9999999, GEOGS_DM, 3, u"013\u00B000.000'"},
        // 467999.964 tenths of seconds round to 468000: 13 degrees.
        {12.999999, GEOGS_DMS, 1, u"013\u00B000'00.0\""},
        // 5999.976 hundredths of seconds round to 6000: exactly one minute.
        {0.0166666, GEOGS_DMS, 2, u"000\u00B001'00.00\""},
        // 59.6 seconds at 0 decimals round to the next minute.
        {1.0 + 59.6 / 3600, GEOGS_DMS, 0, u"001\u00B001'00\""},
        {1.0 + 59.4 / 3600, GEOGS_DMS, 0, u"001\u00B000'59\""},
    };
    for (const auto& c : cases) {
        CString text;
        FormatGeogs(c.value, c.style, c.decimals, 0, text, true, true);
        EXPECT_EQ(text, c.text) << c.value;
    }
}

TEST(GeographicAngles, UnknownStyleWritesNothing) {
    CString text = u"old";
    EXPECT_FALSE(FormatGeogs(12.5, 5, 2, GEOGS_LATITUDE, text, true, true));
    EXPECT_EQ(text, u"old");
}

TEST(GeographicAngles, NarrowTextUsesTheActiveCodePage) {
    CStringA text;
    const test::CodePageGuard page(CodePage::Utf8);
    EXPECT_TRUE(FormatGeogsA(-12.5, GEOGS_DM, 3, GEOGS_LATITUDE, text, true, true));
    EXPECT_EQ(text,
              "012\xC2\xB0"
              "30.000'S");
    SetActiveCodePage(CodePage::Windows1252);  // the guard restores the old one
    EXPECT_TRUE(FormatGeogsA(4.5, GEOGS_D, 6, GEOGS_LONGITUDE, text, false, true));
    EXPECT_EQ(text, "E 004.500000\xB0");
}

}  // namespace
}  // namespace vex
