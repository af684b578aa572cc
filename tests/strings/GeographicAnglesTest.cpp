#include <base/strings/GeographicAngles.h>

#include <tests/framework/CodePageGuard.h>
#include "CStringPrinter.h"

#include <gtest/gtest.h>

namespace vex {
namespace {

TEST(GeographicAngles, DegreesSplitIntoMinutesAndSecondsAndBack) {
    int degrees = 0;
    int minutes = 0;
    double rest = 0.0;
    DegToDm(-12.5, degrees, rest);
    EXPECT_EQ(degrees, -12);
    EXPECT_DOUBLE_EQ(rest, 30.0);
    DegToDms(-12.51, degrees, minutes, rest);
    EXPECT_EQ(degrees * 100 + minutes, -1170);  // -12 and 30
    EXPECT_NEAR(rest, 36.0, 1e-9);
    EXPECT_DOUBLE_EQ(DmsToDeg(-12, 30, 36), -12.51);
    EXPECT_DOUBLE_EQ(DmsToDeg(0, 30, 0), 0.5);  // even when meant as south
    for (double angle = -179.75; angle < 180.0; angle += 2.3) {
        DegToDms(angle, degrees, minutes, rest);
        if (degrees != 0) {
            EXPECT_NEAR(DmsToDeg(degrees, minutes, rest), angle, 1e-12) << angle;
        }
    }
}

struct GeogsCase {
    double value;
    int style, decimals, axis;
    bool after, signs;
    const char16_t* text;
};

// Texts worked out by hand from count = floor(|v| * 10^d * 60 (3600) + 0.5)
// and the parts of (count + 0.01) / (10^d * 60 (3600)).
TEST(GeographicAngles, FormatGeogsPrintsTheThreeStyles) {
    const int lat = GEOGS_LATITUDE;
    const int lon = GEOGS_LONGITUDE;
    const GeogsCase cases[] = {
        {-12.5, GEOGS_DM, 3, lat, true, true, u"012\u00B030.000'S"},
        {4.5, GEOGS_D, 6, lon, false, true, u"E 004.500000\u00B0"},
        {-4.6, GEOGS_D, 0, lon, true, true, u"005\u00B0W"},
        {-12.5, GEOGS_DMS, 3, lat, true, true, u"012\u00B030'00.000\"S"},
        {52.123456, GEOGS_DMS, 2, lat, false, true, u"N 052\u00B007'24.44\""},
        {-179.99, GEOGS_DM, 1, lon, true, true, u"179\u00B059.4'W"},
        {12.5, GEOGS_DMS, 0, lat, true, false, u"012 30 00 N"},
        {12.5, GEOGS_DM, 2, lat, false, false, u"N 012 30.00 "},
        {12.5, GEOGS_D, 1, lat, true, false, u"012.5 N"},
        {-0.0, GEOGS_DM, 3, lat, true, true, u"000\u00B000.000'N"},
        {-0.000001, GEOGS_DM, 3, lat, true, true, u"000\u00B000.000'S"},
        {1.25, GEOGS_D, -3, lat, true, true, u"001\u00B0N"}};  // decimals clamped
    for (const auto& c : cases) {
        CString text;
        EXPECT_TRUE(FormatGeogs(c.value, c.style, c.decimals, c.axis, text, c.after, c.signs));
        EXPECT_EQ(text, c.text) << c.value << " style " << c.style;
    }
    CString text = u"old";
    EXPECT_FALSE(FormatGeogs(12.5, 5, 2, lat, text, true, true));  // unknown style
    EXPECT_EQ(text, u"old");
    EXPECT_FALSE(FormatGeogs(-12.5, GEOGS_DM, 3, 0, text, true, true));  // no axis
    EXPECT_EQ(text, u"012\u00B030.000'");
}

TEST(GeographicAngles, RoundingCarriesIntoMinutesAndDegrees) {
    // 59.99999 * 60 = 3599.9994 rounds to 3600 minutes; 12.99999 * 60000 =
    // 779999.4 stays below; 12.999999 * 36000 = 467999.964 and 0.0166666 *
    // 360000 = 5999.976 round up; 59.6 s round up, 59.4 s do not.
    const GeogsCase cases[] = {
        {59.99999, GEOGS_DM, 0, 0, true, true, u"060\u00B000'"},
        {12.99999, GEOGS_DM, 3, 0, true, true, u"012\u00B059.999'"},
        {12.9999999, GEOGS_DM, 3, 0, true, true, u"013\u00B000.000'"},
        {12.999999, GEOGS_DMS, 1, 0, true, true, u"013\u00B000'00.0\""},
        {0.0166666, GEOGS_DMS, 2, 0, true, true, u"000\u00B001'00.00\""},
        {1.0 + 59.6 / 3600, GEOGS_DMS, 0, 0, true, true, u"001\u00B001'00\""},
        {1.0 + 59.4 / 3600, GEOGS_DMS, 0, 0, true, true, u"001\u00B000'59\""}};
    for (const auto& c : cases) {
        CString text;
        FormatGeogs(c.value, c.style, c.decimals, c.axis, text, c.after, c.signs);
        EXPECT_EQ(text, c.text) << c.value;
    }
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
