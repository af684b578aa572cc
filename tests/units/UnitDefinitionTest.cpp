#include <base/units/StaticFormats.h>
#include <base/units/UnitDefinition.h>

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>

namespace vex {
namespace {

// value in unit `from` of group, expressed in unit `to` of the same group,
// through a unit table with the system length in metres. System lengths go
// through a distance kind, as the system kind itself is always shown as
// stored.
double Convert(int group, const char16_t* from, const char16_t* to, double value) {
    const int kind =
        group == UnitDefinition::groupSystem ? 4 : UnitDefinition::GetGroupKinds(group)[0];
    CVexUnitCnv units;
    UnitItem item;
    EXPECT_TRUE(UnitDefinition::GetGroupItemData(group, from, item)) << CString(from).ToUtf8();
    units.SetUnit(kind, item.factor, item.offset, item.mnemonic, item.key, item.displayName);
    const double stored = units.ConvertFromUnit(kind, value);
    EXPECT_TRUE(UnitDefinition::GetGroupItemData(group, to, item)) << CString(to).ToUtf8();
    units.SetUnit(kind, item.factor, item.offset, item.mnemonic, item.key, item.displayName);
    return units.ConvertUnit(kind, stored);
}

TEST(UnitDefinition, CatalogueFactorsAgreeWithPublishedConversions) {
    using G = UnitDefinition::Group;
    struct Case {
        int group;
        const char16_t* from;
        const char16_t* to;
        double value;
        double expected;  // from NIST SP 811 appendix B unless noted
    };
    const Case cases[] = {
        {G::groupDistance, u"NM", u"ft", 1.0, 6076.115485564304},
        {G::groupDistance, u"yd", u"m", 1.0, 0.9144},
        {G::groupDistance, u"km", u"mm", 1.5, 1.5e6},
        // The US survey mile of 5280 survey feet.
        {G::groupDistance, u"ftUS", u"m", 5280.0, 1609.347218694437},
        {G::groupDepth, u"fm", u"ft", 1.0, 6.0},
        {G::groupDepth, u"ftUS", u"ft", 1.0, 1.000002000004},
        {G::groupSystem, u"ft", u"m", 1.0, 0.3048},
        {G::groupSpeed, u"kn", u"km/h", 1.0, 1.852},
        {G::groupSpeed, u"m/s", u"kn", 1.0, 1.9438444924406},
        {G::groupSpeed, u"ft/s", u"m/s", 1.0, 0.3048},
        {G::groupVolume, u"galUS", u"l", 1.0, 3.785411784},
        {G::groupVolume, u"yd3", u"m3", 1.0, 0.764554857984},
        {G::groupVolume, u"ft3", u"l", 1.0, 28.316846592},
        {G::groupVolume, u"yd3", u"ft3", 1.0, 27.0},
        {G::groupDensity, u"kg/l", u"t/m3", 1.025, 1.025},
        {G::groupPressure, u"psi", u"kPa", 1.0, 6.894757293168361},
        {G::groupPressure, u"bar", u"psi", 1.0, 14.503773773022},
        {G::groupPower, u"hp", u"kW", 1.0, 0.74569987158227},
        {G::groupPower, u"PS", u"kW", 1.0, 0.73549875},
        {G::groupWeight, u"tonUS", u"t", 1.0, 0.90718474},
        {G::groupWeight, u"tonUK", u"t", 1.0, 1.0160469088},
        {G::groupAngle, u"rad", u"deg", 3.141592653589793, 180.0},
        {G::groupAngle, u"gon", u"deg", 400.0, 360.0},
        {G::groupTemperature, u"C", u"F", 100.0, 212.0},
        {G::groupTemperature, u"F", u"C", -40.0, -40.0},
        {G::groupTemperature, u"K", u"F", 0.0, -459.67},
    };
    for (const Case& c : cases) {
        EXPECT_NEAR(Convert(c.group, c.from, c.to, c.value), c.expected,
                    1e-11 * std::abs(c.expected))
            << CString(c.from).ToUtf8() << " -> " << CString(c.to).ToUtf8();
    }
}

TEST(UnitDefinition, GroupsAreListsOfDistinctUnits) {
    for (int group = 0; group < UnitDefinition::numGroups; ++group) {
        std::set<std::string> keys;
        for (const UnitItem& item : UnitDefinition::GetGroupItems(group)) {
            EXPECT_GT(item.factor, 0.0) << item.key.ToUtf8();
            keys.insert(item.key.ToUtf8());
        }
        EXPECT_EQ(static_cast<int>(keys.size()), UnitDefinition::GetGroupNumItems(group));
    }
    const int outside = UnitDefinition::numGroups;
    EXPECT_EQ(UnitDefinition::GetGroupName(outside).ToUtf8(), "No Units");
    EXPECT_EQ(UnitDefinition::GetGroupNumItems(-1), 0);
    int position = 0;
    CString key = u"keep";
    EXPECT_FALSE(UnitDefinition::GetFirstGroupItem(outside, position, key));
    EXPECT_EQ(key.ToUtf8(), "keep");
    EXPECT_EQ(UnitDefinition::GetGroupOfKind(16), -1);
}

TEST(UnitDefinition, UnitsAreSelectedOnlyForKindsTheirGroupServes) {
    CVexUnitCnv units;
    EXPECT_TRUE(UnitDefinition::SelectUnit(units, 7, u"kn"));
    EXPECT_EQ(units.GetUnitMnem(7).ToUtf8(), "kn");
    EXPECT_EQ(units.GetUnitDispName(7).ToUtf8(), "Knot");
    EXPECT_FALSE(UnitDefinition::SelectUnit(units, 3, u"kn"));    // a speed is no depth
    EXPECT_FALSE(UnitDefinition::SelectUnit(units, 3, u"foot"));  // keys are exact
    EXPECT_FALSE(UnitDefinition::SelectUnit(units, 16, u"m"));
    EXPECT_EQ(units.GetUnitMnem(3).ToUtf8(), "m");

    EXPECT_EQ(UnitDefinition::GetUnitFormatByName(u"Depth Units"), FMT_DEPTH);
    EXPECT_EQ(UnitDefinition::GetUnitFormatByName(u"System Units"), FMT_LENGTH);
    EXPECT_EQ(UnitDefinition::GetUnitFormatByName(u"Speed Units"), FMT_SPEED);
    EXPECT_EQ(UnitDefinition::GetUnitFormatByName(u"Furlong Units"), 0);
}

}  // namespace
}  // namespace vex
