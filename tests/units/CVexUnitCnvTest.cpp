#include <base/units/CVexUnitCnv.h>

#include <gtest/gtest.h>

#include <cmath>

namespace vex {
namespace {

constexpr double kFoot = 0.3048;

std::string Mnemonic(const CVexUnitCnv& units, int kind) {
    return units.GetUnitMnem(kind).ToUtf8();
}

TEST(CVexUnitCnv, FreshTableShowsStoredValuesExceptTrimWhichIsNegated) {
    const CVexUnitCnv units;
    for (int kind = 0; kind < CVexUnitCnv::kNumKinds; ++kind) {
        const double expected = kind == 14 ? -12.5 : 12.5;
        EXPECT_EQ(units.ConvertUnit(kind, 12.5), expected) << "kind " << kind;
        EXPECT_EQ(units.ConvertFromUnit(kind, expected), 12.5) << "kind " << kind;
    }
    EXPECT_EQ(Mnemonic(units, 14), "\u00B0BU+");  // non-ASCII text comes out as UTF-8
}

TEST(CVexUnitCnv, KindsOutsideTheTableFailOrPassValuesThrough) {
    CVexUnitCnv units;
    for (int kind : {-1, 27, 1000}) {
        EXPECT_EQ(units.ConvertUnit(kind, 7.25), 7.25);
        EXPECT_EQ(units.ConvertFromUnit(kind, 7.25), 7.25);
        EXPECT_EQ(units.ToInternalUnit(kind, 7.25, 2.0, 1.0), 7.25);
        EXPECT_EQ(units.ToExternalUnit(kind, 7.25, 2.0, 1.0), 7.25);
        EXPECT_TRUE(units.GetUnitMnem(kind).IsEmpty());
        EXPECT_TRUE(units.GetUnitKey(kind).IsEmpty());
        EXPECT_TRUE(units.GetUnitDispName(kind).IsEmpty());
        EXPECT_FALSE(units.SetUnit(kind, 2.0, 0, u"x", u"X", u"Ex"));
        double factor = 9, offset = 9;
        CString mnemonic = u"keep", key, name;
        EXPECT_FALSE(units.GetUnit(kind, factor, offset, mnemonic, key, name));
        EXPECT_EQ(factor, 9.0);
        EXPECT_EQ(mnemonic.ToUtf8(), "keep");
    }
}

TEST(CVexUnitCnv, SystemLengthInFeetRescalesEveryLengthRelativeKind) {
    CVexUnitCnv units;
    units.SetUnit(26, 0.1, 0, u"l", u"l", u"l");
    units.SetUnit(1, kFoot, 0, u"ft", u"ft", u"International foot");
    struct Case {
        int kind;
        double multiplier;
    };
    const Case cases[] = {
        {1, 1.0},  // the system length is shown as stored, whatever its unit
        {3, kFoot},
        {2, kFoot},
        {20, kFoot * kFoot},
        {5, kFoot * kFoot * kFoot},
        {26, 3.048 * 3.048 * 3.048},  // about 28.3 litres in a cubic foot
        {10, 1.0},                    // pressure does not depend on length
        {13, 1.0},
        {14, -1.0},
    };
    for (const Case& c : cases) {
        EXPECT_NEAR(units.GetMultiplier(c.kind), c.multiplier, 1e-12 * std::abs(c.multiplier))
            << "kind " << c.kind;
    }
    EXPECT_NEAR(units.ConvertUnit(3, 10.0), 3.048, 1e-12);
    // The entries themselves are untouched.
    double factor = 0, offset = 0;
    CString mnemonic, key, name;
    ASSERT_TRUE(units.GetUnit(3, factor, offset, mnemonic, key, name));
    EXPECT_EQ(factor, 1.0);
    EXPECT_EQ(mnemonic.ToUtf8(), "m");

    // Back to metres: every multiplier follows.
    units.SetUnit(1, 1.0, 0, u"m", u"m", u"m");
    EXPECT_NEAR(units.GetMultiplier(5), 1.0, 1e-15);
    EXPECT_NEAR(units.GetMultiplier(26), 1000.0, 1e-9);
}

TEST(CVexUnitCnv, ZeroFactorMeansNoConversionAndOffsetsShiftTheZero) {
    CVexUnitCnv units;
    units.SetUnit(3, 0.0, 0, u"?", u"", u"");
    EXPECT_EQ(units.GetMultiplier(3), 1.0);
    units.SetUnit(21, 5.0 / 9.0, 32.0, u"\u00B0F", u"F", u"Degrees Fahrenheit");
    EXPECT_NEAR(units.ConvertUnit(21, 100.0), 212.0, 1e-12);
    EXPECT_NEAR(units.ConvertUnit(21, -40.0), -40.0, 1e-12);
    EXPECT_NEAR(units.ConvertFromUnit(21, 32.0), 0.0, 1e-12);
}

TEST(CVexUnitCnv, ToInternalAndToExternalUnitAreInversesRelativeToTheSystemLength) {
    CVexUnitCnv units;
    units.SetUnit(1, kFoot, 0, u"ft", u"ft", u"International foot");
    // 10 m in stored feet; 1 m3 in stored cubic feet; 1 bar stays 1 bar.
    EXPECT_NEAR(units.ToInternalUnit(3, 10.0, 1.0, 0.0), 10.0 / kFoot, 1e-12);
    EXPECT_NEAR(units.ToInternalUnit(5, 1.0, 1.0, 0.0), 35.31466672148859, 1e-11);
    EXPECT_NEAR(units.ToInternalUnit(10, 1.0, 0.01, 0.0), 0.01, 1e-15);
    // The addend comes after scaling; the kind's offset is taken off first.
    EXPECT_NEAR(units.ToInternalUnit(3, 10.0, 1.0, 2.0), 10.0 / kFoot + 2.0, 1e-12);
    units.SetUnit(21, 1.0, 273.15, u"K", u"K", u"K");
    EXPECT_NEAR(units.ToInternalUnit(21, 373.15, 1.0, 0.0), 100.0, 1e-12);
    for (int kind : {3, 5, 10, 20, 21, 26}) {
        for (double value : {-3.5, 0.0, 1.0, 1234.5678}) {
            const double stored = units.ToInternalUnit(kind, value, 0.9144, 0.5);
            EXPECT_NEAR(units.ToExternalUnit(kind, stored, 0.9144, 0.5), value, 1e-9)
                << "kind " << kind << " value " << value;
        }
    }
}

TEST(CVexUnitCnv, FormatTableMapsBothWaysAndUnitlessFormatsToKindZero) {
    const int formatKinds[][2] = {{2, 3}, {5, 1}, {12, 18}, {35, 9}, {47, 19}, {48, 21}, {53, 26}};
    for (const auto& fk : formatKinds) {
        EXPECT_EQ(CVexUnitCnv::ConvertFMTtoUNIT(fk[0]), fk[1]) << "format " << fk[0];
        EXPECT_EQ(CVexUnitCnv::ConvertUNITtoFMT(fk[1]), fk[0]) << "kind " << fk[1];
    }
    for (int format : {-1, 0, 1, 10, 13, 46, 54}) {
        EXPECT_EQ(CVexUnitCnv::ConvertFMTtoUNIT(format), 0) << "format " << format;
    }
    for (int kind : {0, 20, 27, -1}) {
        EXPECT_EQ(CVexUnitCnv::ConvertUNITtoFMT(kind), 0) << "kind " << kind;
    }
}

TEST(CVexUnitCnv, ChainageMnemonicFollowsTheSystemLengthForKilometresAndStations) {
    CVexUnitCnv units;
    units.SetUnit(1, kFoot, 0, u"ft", u"ft", u"International foot");
    struct Case {
        const char16_t* key;
        const char* mnemonic;
    };
    const Case cases[] = {
        {u"Kilometer", "Kft"},
        {u"Station", "ft"},
        {u"kilometer", "own"},  // keys compare exactly
        {u"", "own"},
    };
    for (const Case& c : cases) {
        units.SetUnit(24, 1.0, 0, u"own", c.key, u"");
        EXPECT_EQ(Mnemonic(units, 24), c.mnemonic) << CString(c.key).ToUtf8();
    }
    // Only kind 24 has the rule.
    units.SetUnit(4, 1.0, 0, u"own", u"Station", u"");
    EXPECT_EQ(Mnemonic(units, 4), "own");
}

TEST(CVexUnitCnv, CopiesKeepTheChosenUnits) {
    CVexUnitCnv units;
    units.SetUnit(1, kFoot, 0, u"ft", u"ft", u"International foot");
    const CVexUnitCnv copy = units;
    units.SetDefaults();
    EXPECT_EQ(units.GetMultiplier(3), 1.0);
    EXPECT_NEAR(copy.GetMultiplier(3), kFoot, 1e-15);
}

}  // namespace
}  // namespace vex
