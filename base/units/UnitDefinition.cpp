#include <base/units/UnitDefinition.h>

#include <base/framework/StringResources.h>
#include <base/units/StaticFormats.h>

#include <array>
#include <numbers>
#include <span>

namespace vex {
namespace {

// Defining constants of the units below.
constexpr double kFoot = 0.3048;                             // international foot, m
constexpr double kUsSurveyFoot = 1200.0 / 3937.0;            // m
constexpr double kNauticalMile = 1852.0;                     // m
constexpr double kPound = 0.45359237;                        // kg
constexpr double kGravity = 9.80665;                         // standard gravity, m/s2
constexpr double kInch = 0.0254;                             // m
constexpr double kUsGallon = 231.0 * kInch * kInch * kInch;  // m3

struct Unit {
    const char16_t* key;
    const char16_t* displayName;
    const char16_t* mnemonic;
    double factor;
    double offset;
};

// The edge of a cube of the given volume: the factor of a volume unit.
// Newton's iteration, so that the whole catalogue is constant data and
// ready before any code runs.
constexpr double Edge(double cubicMetres) {
    double edge = 1.0;
    for (int i = 0; i < 100; ++i) {
        edge = (2.0 * edge + cubicMetres / (edge * edge)) / 3.0;
    }
    return edge;
}

// Lengths, in metres.
constexpr Unit kMetre{u"m", u"Metre", u"m", 1.0, 0.0};
constexpr Unit kFootUnit{u"ft", u"International foot", u"ft", kFoot, 0.0};
constexpr Unit kUsFootUnit{u"ftUS", u"US survey foot", u"ftUS", kUsSurveyFoot, 0.0};
constexpr Unit kFathom{u"fm", u"Fathom", u"fm", 6.0 * kFoot, 0.0};
constexpr Unit kYard{u"yd", u"Yard", u"yd", 3.0 * kFoot, 0.0};
constexpr Unit kKilometre{u"km", u"Kilometre", u"km", 1000.0, 0.0};
constexpr Unit kNauticalMileUnit{u"NM", u"Nautical mile", u"NM", kNauticalMile, 0.0};
constexpr Unit kMillimetre{u"mm", u"Millimetre", u"mm", 0.001, 0.0};

// Speeds, in metres per second.
constexpr Unit kMetrePerSecond{u"m/s", u"Metres per second", u"m/s", 1.0, 0.0};
constexpr Unit kKnot{u"kn", u"Knot", u"kn", kNauticalMile / 3600.0, 0.0};
constexpr Unit kKilometrePerHour{u"km/h", u"Kilometres per hour", u"km/h", 1000.0 / 3600.0, 0.0};
constexpr Unit kFootPerSecond{u"ft/s", u"Feet per second", u"ft/s", kFoot, 0.0};

// Volumes, as the edge of the unit cube in metres.
constexpr Unit kCubicMetre{u"m3", u"Cubic metre", u"m\u00B3", 1.0, 0.0};
constexpr Unit kLitre{u"l", u"Litre", u"l", 0.1, 0.0};
constexpr Unit kCubicYard{u"yd3", u"Cubic yard", u"yd\u00B3", 3.0 * kFoot, 0.0};
constexpr Unit kCubicFoot{u"ft3", u"Cubic foot", u"ft\u00B3", kFoot, 0.0};
constexpr Unit kUsGallonUnit{u"galUS", u"US gallon", u"gal", Edge(kUsGallon), 0.0};

// Densities: a kilogram per litre is a tonne per cubic metre.
constexpr Unit kTonnePerCubicMetre{u"t/m3", u"Tonnes per cubic metre", u"T/m\u00B3", 1.0, 0.0};
constexpr Unit kKilogramPerLitre{u"kg/l", u"Kilograms per litre", u"kg/l", 1.0, 0.0};

// Pressures, in bar (100 kPa).
constexpr Unit kBar{u"bar", u"Bar", u"Bar", 1.0, 0.0};
constexpr Unit kKilopascal{u"kPa", u"Kilopascal", u"kPa", 0.01, 0.0};
constexpr Unit kPsi{u"psi", u"Pounds per square inch", u"psi",
                    kPound* kGravity / (kInch * kInch) / 1e5, 0.0};

// Powers, in kilowatts; the horsepower is 550 foot pounds-force per second.
constexpr Unit kKilowatt{u"kW", u"Kilowatt", u"KW", 1.0, 0.0};
constexpr Unit kHorsepower{u"hp", u"Horsepower", u"hp", 550.0 * kFoot* kPound* kGravity / 1000.0,
                           0.0};
constexpr Unit kMetricHorsepower{u"PS", u"Metric horsepower", u"PS", 75.0 * kGravity / 1000.0, 0.0};

// Weights, in tonnes.
constexpr Unit kTonne{u"t", u"Tonne", u"Ton", 1.0, 0.0};
constexpr Unit kShortTon{u"tonUS", u"Short ton", u"sh tn", 2000.0 * kPound / 1000.0, 0.0};
constexpr Unit kLongTon{u"tonUK", u"Long ton", u"LT", 2240.0 * kPound / 1000.0, 0.0};

// Angles, in degrees.
constexpr Unit kDegree{u"deg", u"Degree", u"\u00B0", 1.0, 0.0};
constexpr Unit kGon{u"gon", u"Gon", u"gon", 0.9, 0.0};
constexpr Unit kRadian{u"rad", u"Radian", u"rad", 180.0 / std::numbers::pi, 0.0};

// Temperatures, in degrees Celsius: shown = stored / factor + offset.
constexpr Unit kCelsius{u"C", u"Degrees Celsius", u"\u00B0C", 1.0, 0.0};
constexpr Unit kFahrenheit{u"F", u"Degrees Fahrenheit", u"\u00B0F", 5.0 / 9.0, 32.0};
constexpr Unit kKelvin{u"K", u"Kelvin", u"K", 1.0, 273.15};

struct GroupInfo {
    int titleId;
    std::vector<const Unit*> units;
    std::vector<int> kinds;
};

const std::array<GroupInfo, UnitDefinition::numGroups>& Groups() {
    static const std::array<GroupInfo, UnitDefinition::numGroups> groups{{
        {IDS_UNITS_SYSTEM, {&kMetre, &kFootUnit, &kUsFootUnit}, {1}},
        {IDS_UNITS_SPEED, {&kMetrePerSecond, &kKnot, &kKilometrePerHour, &kFootPerSecond}, {2, 7}},
        {IDS_UNITS_DISTANCE,
         {&kMetre, &kKilometre, &kNauticalMileUnit, &kFootUnit, &kUsFootUnit, &kYard, &kMillimetre},
         {4, 9}},
        {IDS_UNITS_DEPTH, {&kMetre, &kFootUnit, &kUsFootUnit, &kFathom}, {3}},
        {IDS_UNITS_VOLUME, {&kCubicMetre, &kLitre, &kCubicYard, &kCubicFoot, &kUsGallonUnit}, {5}},
        {IDS_UNITS_DENSITY, {&kTonnePerCubicMetre, &kKilogramPerLitre}, {6}},
        {IDS_UNITS_PRESSURE, {&kBar, &kKilopascal, &kPsi}, {10}},
        {IDS_UNITS_POWER, {&kKilowatt, &kHorsepower, &kMetricHorsepower}, {11}},
        {IDS_UNITS_WEIGHT, {&kTonne, &kShortTon, &kLongTon}, {13}},
        {IDS_UNITS_ANGLE, {&kDegree, &kGon, &kRadian}, {19}},
        {IDS_UNITS_TEMPERATURE, {&kCelsius, &kFahrenheit, &kKelvin}, {21}},
    }};
    return groups;
}

const GroupInfo* FindGroup(int group) {
    if (group < 0 || group >= UnitDefinition::numGroups) return nullptr;
    return &Groups()[static_cast<std::size_t>(group)];
}

UnitItem ToItem(const Unit& u) {
    return UnitItem{u.key, u.displayName, u.mnemonic, u.factor, u.offset};
}

bool ItemAt(int group, int position, CString& key) {
    const GroupInfo* g = FindGroup(group);
    if (g == nullptr || position < 0 || static_cast<std::size_t>(position) >= g->units.size()) {
        return false;
    }
    key = g->units[static_cast<std::size_t>(position)]->key;
    return true;
}

}  // namespace

CString UnitDefinition::GetGroupName(int group) {
    const GroupInfo* g = FindGroup(group);
    return LoadStringResource(g ? g->titleId : IDS_UNITS_NONE);
}

int UnitDefinition::GetGroupNumItems(int group) {
    const GroupInfo* g = FindGroup(group);
    return g ? static_cast<int>(g->units.size()) : 0;
}

bool UnitDefinition::GetFirstGroupItem(int group, int& position, CString& key) {
    if (!ItemAt(group, 0, key)) return false;
    position = 0;
    return true;
}

bool UnitDefinition::GetNextGroupItem(int group, int& position, CString& key) {
    if (!ItemAt(group, position + 1, key)) return false;
    ++position;
    return true;
}

bool UnitDefinition::GetGroupItemData(int group, const CString& key, UnitItem& item) {
    const GroupInfo* g = FindGroup(group);
    if (g == nullptr) return false;
    for (const Unit* u : g->units) {
        if (key == CString(u->key)) {
            item = ToItem(*u);
            return true;
        }
    }
    return false;
}

int UnitDefinition::GetUnitFormatByName(const CString& groupName) {
    for (int group = 0; group < numGroups; ++group) {
        if (groupName == GetGroupName(group)) {
            return CVexUnitCnv::ConvertUNITtoFMT(
                Groups()[static_cast<std::size_t>(group)].kinds[0]);
        }
    }
    return 0;
}

std::vector<UnitItem> UnitDefinition::GetGroupItems(int group) {
    std::vector<UnitItem> items;
    if (const GroupInfo* g = FindGroup(group)) {
        for (const Unit* u : g->units)
            items.push_back(ToItem(*u));
    }
    return items;
}

std::vector<int> UnitDefinition::GetGroupKinds(int group) {
    const GroupInfo* g = FindGroup(group);
    return g ? g->kinds : std::vector<int>();
}

int UnitDefinition::GetGroupOfKind(int kind) {
    for (int group = 0; group < numGroups; ++group) {
        for (int k : Groups()[static_cast<std::size_t>(group)].kinds) {
            if (k == kind) return group;
        }
    }
    return -1;
}

bool UnitDefinition::FindUnit(int kind, const CString& key, UnitItem& item) {
    return GetGroupItemData(GetGroupOfKind(kind), key, item);
}

bool UnitDefinition::SelectUnit(CVexUnitCnv& units, int kind, const CString& key) {
    UnitItem item;
    if (!FindUnit(kind, key, item)) return false;
    return units.SetUnit(kind, item.factor, item.offset, item.mnemonic, item.key, item.displayName);
}

}  // namespace vex
