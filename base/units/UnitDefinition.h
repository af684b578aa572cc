// UnitDefinition.h - the catalogue of units a user may choose, in groups
// ("System Units", "Speed Units", "Depth Units" ...), each group serving one
// or more unit kinds of CVexUnitCnv.
//
// Every unit has a key (stored in settings files, never translated: plain
// ASCII symbols such as "m", "ft", "kn", "m3", "t/m3", "deg", "C"), a
// display name, a mnemonic and the factor and offset that CVexUnitCnv::
// SetUnit takes: for the length-relative groups the unit's linear size in
// metres (for volumes the edge of the unit cube: a litre is 0.1), for the
// other groups its size in the base unit of the kind (bar, kW, tonne,
// degree, degree Celsius). Factors are exact where the unit is defined
// exactly (international foot 0.3048 m, US survey foot 1200/3937 m,
// nautical mile 1852 m, pound 0.45359237 kg, standard gravity 9.80665
// m/s2). The catalogue is constant: thread-safe.
//
//   vex::CVexUnitCnv& units = vex::GetVexUnitCnv();
//   vex::UnitDefinition::SelectUnit(units, 3, u"ft");  // depths in feet
//   vex::UnitItem knot;
//   vex::UnitDefinition::GetGroupItemData(vex::UnitDefinition::groupSpeed, u"kn", knot);
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>
#include <base/units/CVexUnitCnv.h>

#include <vector>

namespace vex {

// One selectable unit: what CVexUnitCnv::SetUnit needs.
struct UnitItem {
    CString key;
    CString displayName;
    CString mnemonic;
    double factor = 1.0;
    double offset = 0.0;
};

class VEXBASE_API UnitDefinition {
  public:
    enum Group : int {
        groupSystem = 0,   // kind 1, the system length
        groupSpeed,        // kinds 2 and 7
        groupDistance,     // kinds 4 and 9
        groupDepth,        // kind 3
        groupVolume,       // kind 5
        groupDensity,      // kind 6
        groupPressure,     // kind 10
        groupPower,        // kind 11
        groupWeight,       // kind 13
        groupAngle,        // kind 19
        groupTemperature,  // kind 21
        numGroups
    };

    // The group's title from the string table ("Speed Units"); "No Units"
    // for a number outside the groups.
    static CString GetGroupName(int group);
    // The number of units in group; 0 for a number outside the groups.
    static int GetGroupNumItems(int group);
    // Walk the keys of group in catalogue order: position starts at the
    // first unit and moves on; false, key unchanged, at the end or for a
    // number outside the groups.
    static bool GetFirstGroupItem(int group, int& position, CString& key);
    static bool GetNextGroupItem(int group, int& position, CString& key);
    // The unit of group with key (exact, case-sensitive); false, item
    // unchanged, when group has no such unit.
    static bool GetGroupItemData(int group, const CString& key, UnitItem& item);
    // The display format of the first kind that the group titled groupName
    // serves (GetUnitFormatByName(u"Depth Units") is FMT_DEPTH); 0 when no
    // group has that title.
    static int GetUnitFormatByName(const CString& groupName);

    // All units of group in catalogue order; empty for a number outside
    // the groups.
    static std::vector<UnitItem> GetGroupItems(int group);
    // The unit kinds group serves; empty for a number outside the groups.
    static std::vector<int> GetGroupKinds(int group);
    // The group serving kind; -1 for kinds without a choice of units.
    static int GetGroupOfKind(int kind);
    // The unit with key in the group serving kind; false, item unchanged,
    // when there is none.
    static bool FindUnit(int kind, const CString& key, UnitItem& item);
    // Sets kind of units to the unit with key; false, units unchanged, when
    // the group of kind has no such unit.
    static bool SelectUnit(CVexUnitCnv& units, int kind, const CString& key);
};

}  // namespace vex
