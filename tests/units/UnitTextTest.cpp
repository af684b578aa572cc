#include <base/units/UnitDefinition.h>
#include <base/units/UnitText.h>

#include <gtest/gtest.h>

#include <cmath>
#include <map>

namespace vex {
namespace {

// Every test starts and ends with the process-wide defaults.
class UnitText : public testing::Test {
  protected:
    void SetUp() override { Reset(); }
    void TearDown() override { Reset(); }
    static void Reset() {
        GetVexUnitCnv().SetDefaults();
        SetFeetDisplayMode(0);
        SetFeetInputMode(0);
    }
    static void Select(int kind, const char16_t* key) {
        ASSERT_TRUE(UnitDefinition::SelectUnit(GetVexUnitCnv(), kind, key)) << kind;
    }
};

std::string Text(double value, int formatId, int decimals = -1) {
    return InternalValueToUnitString(value, formatId, decimals).ToUtf8();
}

TEST_F(UnitText, SystemLengthInFeetIsShownInFeetAndInches) {
    Select(1, u"ft");
    SetFeetDisplayMode(2);
    EXPECT_EQ(Text(3.5, FMT_LENGTH), "3' 6\"");
    SetFeetDisplayMode(4);
    EXPECT_EQ(Text(5.53125, FMT_LENGTH), "5' 6 3/8\"");
    // Kinds not shown in "ft" ignore the feet mode.
    EXPECT_EQ(Text(3.5, FMT_PRESSURE), "3.50");
    Select(3, u"ftUS");
    EXPECT_EQ(Text(3.5, FMT_DEPTH), "3.50");
    SetFeetDisplayMode(0);
    EXPECT_EQ(Text(3.5, FMT_LENGTH), "3.50");
}

TEST_F(UnitText, DecimalsComeFromTheCallerTheFormatOrTheValue) {
    Select(3, u"ft");
    struct Case {
        double value;
        int format;
        int decimals;
        const char* text;
    };
    const Case cases[] = {
        {3.048, FMT_DEPTH, -1, "10.00"},  // depth default 2, in feet
        {3.048, FMT_DEPTH, 4, "10.0000"},
        {1.0254, FMT_DENSITY, -1, "1.025"},
        {12.4, FMT_TIME, -1, "12"},          // times are whole seconds
        {12.125, FMT_USER_1, -1, "12.125"},  // no default: the decimals the value carries
        {12.125, FMT_NONE, -1, "12.125"},
        {12.125, 999, -1, "12.125"},   // an unknown format has neither unit nor decimals
        {5.0, FMT_TRIM, -1, "-5.00"},  // trim shows bow up
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Text(c.value, c.format, c.decimals), c.text) << c.value << " format " << c.format;
    }
}

TEST_F(UnitText, TypedTextsBecomeStoredValues) {
    Select(3, u"ft");
    struct Case {
        int inputMode;
        const char16_t* text;
        bool ok;
        double stored;
    };
    const Case cases[] = {
        {0, u"10", true, 3.048},  {0, u" 10.5 ft", true, 3.2004}, {2, u"10' 6\"", true, 3.2004},
        {2, u"10", true, 3.048},  {0, u"", false, 0.0},           {0, u"deep", false, 0.0},
        {2, u"deep", false, 0.0},  // the feet reader alone would read 0
        {0, u"x10", false, 0.0},
    };
    for (const Case& c : cases) {
        SetFeetInputMode(c.inputMode);
        double value = -1.0;
        EXPECT_EQ(UnitStringToInternalValue(c.text, FMT_DEPTH, value), c.ok)
            << CString(c.text).ToUtf8();
        EXPECT_NEAR(value, c.ok ? c.stored : -1.0, 1e-12) << CString(c.text).ToUtf8();
        EXPECT_NEAR(UnitStringToInternalValue(c.text, FMT_DEPTH), c.stored, 1e-12);
    }
}

TEST_F(UnitText, EveryCatalogueUnitRoundTripsThroughItsText) {
    const double values[] = {0.0, 12.345678, -7.5, 1852.0, 0.001};
    for (int group = 0; group < UnitDefinition::numGroups; ++group) {
        int position = 0;
        CString key;
        for (bool more = UnitDefinition::GetFirstGroupItem(group, position, key); more;
             more = UnitDefinition::GetNextGroupItem(group, position, key)) {
            for (int kind : UnitDefinition::GetGroupKinds(group)) {
                Reset();
                Select(kind, key);
                const int format = CVexUnitCnv::ConvertUNITtoFMT(kind);
                for (double value : values) {
                    const CString text = InternalValueToUnitString(value, format, 12);
                    double back = 0;
                    ASSERT_TRUE(UnitStringToInternalValue(text, format, back)) << text.ToUtf8();
                    EXPECT_NEAR(back, value, 1e-9 * (1.0 + std::abs(value)))
                        << key.ToUtf8() << " kind " << kind << " text " << text.ToUtf8();
                }
            }
        }
    }
}

// A dialog of text controls, by id.
struct FakeDialog : CDataExchange {
    std::map<int, CString> controls;
    CString GetControlText(int id) override { return controls[id]; }
    void SetControlText(int id, const CString& text) override { controls[id] = text; }
};

TEST_F(UnitText, DialogExchangeWritesAndReadsTheUsersUnit) {
    Select(3, u"ft");
    FakeDialog dialog;
    double depth = 3.048;
    DDX_SysUnit(&dialog, 101, depth, FMT_DEPTH);
    EXPECT_EQ(dialog.controls[101].ToUtf8(), "10.00");

    dialog.m_bSaveAndValidate = true;
    dialog.controls[101] = u"20";
    DDX_SysUnit(&dialog, 101, depth, FMT_DEPTH);
    EXPECT_NEAR(depth, 6.096, 1e-12);
    EXPECT_FALSE(dialog.Failed());

    dialog.controls[102] = u"shallow";
    DDX_SysUnit(&dialog, 102, depth, FMT_DEPTH);
    EXPECT_NEAR(depth, 6.096, 1e-12);
    EXPECT_TRUE(dialog.Failed());
    EXPECT_EQ(dialog.FailedControl(), 102);
    DDX_SysUnit(nullptr, 101, depth);  // no exchange, no crash
}

}  // namespace
}  // namespace vex
