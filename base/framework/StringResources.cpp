#include <base/framework/StringResources.h>

#include <algorithm>
#include <iterator>

namespace vex {
namespace {

struct Resource {
    int id;
    const char16_t* text;
};

// Sorted by number for the binary search below.
constexpr Resource kResources[] = {
    {IDS_DAX_INTERPOLATE, u"Interpolation error \"%s\"."},
    {IDS_DAX_EXTRAPOLATE, u"Extrapolation error \"%s\"."},
    {IDS_DAX_READ, u"Error reading from \"%s\"."},
    {IDS_DAX_COMPUTATION, u"Computation failed \"%s\"."},
    {IDS_UNSPECIFIED_ERROR, u"Unspecified Error"},
    {IDS_FILE_OPEN, u"Error opening \"%s\"."},
    {IDS_FILE_READ, u"Error reading from \"%s\"."},
    {IDS_FILE_WRITE, u"Error writing to \"%s\"."},
    {IDS_UNKNOWN, u"Unknown"},
    {IDS_SECTION_NOT_FOUND, u"Section \"%s\" could not be found in \"%s\"."},
    {IDS_KEY_NOT_FOUND, u"The key \"%s\" could not be found in section \"%s\" of \"%s\"."},
    {IDS_VALUE_NOT_CONVERTED,
     u"The value of key \"%s\" in section \"%s\" of \"%s\" is not of the expected type."},
    {IDS_DEGREE_SIGN, u"\u00B0"},
    // Unit mnemonics by kind; kinds without a mnemonic have no entry.
    {IDS_UNIT_MNEMONIC_0 + 1, u"m"},
    {IDS_UNIT_MNEMONIC_0 + 2, u"m/s"},
    {IDS_UNIT_MNEMONIC_0 + 3, u"m"},
    {IDS_UNIT_MNEMONIC_0 + 4, u"m"},
    {IDS_UNIT_MNEMONIC_0 + 5, u"m\u00B3"},
    {IDS_UNIT_MNEMONIC_0 + 6, u"T/m\u00B3"},
    {IDS_UNIT_MNEMONIC_0 + 7, u"m/s"},
    {IDS_UNIT_MNEMONIC_0 + 8, u"Ton/s"},
    {IDS_UNIT_MNEMONIC_0 + 9, u"m"},
    {IDS_UNIT_MNEMONIC_0 + 10, u"Bar"},
    {IDS_UNIT_MNEMONIC_0 + 11, u"KW"},
    {IDS_UNIT_MNEMONIC_0 + 12, u"T/min"},
    {IDS_UNIT_MNEMONIC_0 + 13, u"Ton"},
    {IDS_UNIT_MNEMONIC_0 + 14, u"\u00B0BU+"},
    {IDS_UNIT_MNEMONIC_0 + 15, u"\u00B0PU+"},
    {IDS_UNIT_MNEMONIC_0 + 18, u"m\u00B3/s"},
    {IDS_UNIT_MNEMONIC_0 + 19, u"\u00B0"},
    {IDS_UNIT_MNEMONIC_0 + 20, u"m\u00B2"},
    {IDS_UNIT_MNEMONIC_0 + 21, u"\u00B0C"},
    {IDS_UNIT_MNEMONIC_0 + 22, u"mm"},
    {IDS_UNIT_MNEMONIC_0 + 23, u"kgf"},
    {IDS_UNIT_MNEMONIC_0 + 24, u"Km"},
    {IDS_UNIT_MNEMONIC_0 + 25, u"l/h"},
    {IDS_UNIT_MNEMONIC_0 + 26, u"l"},
    {IDS_UNITS_NONE, u"No Units"},
    {IDS_UNITS_SYSTEM, u"System Units"},
    {IDS_UNITS_SPEED, u"Speed Units"},
    {IDS_UNITS_DISTANCE, u"Distance Units"},
    {IDS_UNITS_DEPTH, u"Depth Units"},
    {IDS_UNITS_VOLUME, u"Volume Units"},
    {IDS_UNITS_DENSITY, u"Density Units"},
    {IDS_UNITS_PRESSURE, u"Pressure Units"},
    {IDS_UNITS_POWER, u"Power Units"},
    {IDS_UNITS_WEIGHT, u"Weight Units"},
    {IDS_UNITS_ANGLE, u"Angle Units"},
    {IDS_UNITS_TEMPERATURE, u"Temperature Units"},
};

static_assert(std::is_sorted(std::begin(kResources), std::end(kResources),
                             [](const Resource& a, const Resource& b) { return a.id < b.id; }));

}  // namespace

bool LoadStringResource(int id, CString& text) {
    const auto* it = std::lower_bound(std::begin(kResources), std::end(kResources), id,
                                      [](const Resource& r, int key) { return r.id < key; });
    if (it == std::end(kResources) || it->id != id) return false;
    text = it->text;
    return true;
}

CString LoadStringResource(int id) {
    CString text;
    LoadStringResource(id, text);
    return text;
}

}  // namespace vex
