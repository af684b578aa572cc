// StringResources.h - the library's own numbered string table.
//
// Texts that the library shows to users and that translations may replace
// (fallback error messages, unit mnemonics, the degree sign) are looked up
// by number, as string resources of a Windows module are.
//
//   vex::CString text = vex::LoadStringResource(vex::IDS_UNSPECIFIED_ERROR);
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

namespace vex {

// Numbers of the library's string resources.
enum StringResourceId : int {
    IDS_DAX_INTERPOLATE = 12030,    // Interpolation error "%s".
    IDS_DAX_EXTRAPOLATE = 12031,    // Extrapolation error "%s".
    IDS_DAX_READ = 12032,           // Error reading from "%s".
    IDS_DAX_COMPUTATION = 12033,    // Computation failed "%s".
    IDS_UNSPECIFIED_ERROR = 12034,  // Unspecified Error
    IDS_FILE_OPEN = 12035,          // Error opening "%s".
    IDS_FILE_READ = 12036,          // Error reading from "%s".
    IDS_FILE_WRITE = 12037,         // Error writing to "%s".
    IDS_UNKNOWN = 12039,            // Unknown
    IDS_SECTION_NOT_FOUND = 12040,  // Section "%s" could not be found in "%s".
    IDS_KEY_NOT_FOUND = 12041,      // The key "%s" could not be found in section "%s" of "%s".
    // The value of key "%s" in section "%s" of "%s" is not of the expected type.
    IDS_VALUE_NOT_CONVERTED = 12042,
    IDS_DEGREE_SIGN = 12100,  // the degree sign of angle texts
    // Default mnemonics of the unit kinds 0-26 (CVexUnitCnv): the mnemonic
    // of kind k is IDS_UNIT_MNEMONIC_0 + k; kinds 0, 16 and 17 have none.
    IDS_UNIT_MNEMONIC_0 = 12200,
    IDS_UNIT_MNEMONIC_LAST = 12226,
    // Titles of the unit selection lists (UnitDefinition).
    IDS_UNITS_NONE = 12230,         // No Units
    IDS_UNITS_SYSTEM = 12231,       // System Units
    IDS_UNITS_SPEED = 12232,        // Speed Units
    IDS_UNITS_DISTANCE = 12233,     // Distance Units
    IDS_UNITS_DEPTH = 12234,        // Depth Units
    IDS_UNITS_VOLUME = 12235,       // Volume Units
    IDS_UNITS_DENSITY = 12236,      // Density Units
    IDS_UNITS_PRESSURE = 12237,     // Pressure Units
    IDS_UNITS_POWER = 12238,        // Power Units
    IDS_UNITS_WEIGHT = 12239,       // Weight Units
    IDS_UNITS_ANGLE = 12240,        // Angle Units
    IDS_UNITS_TEMPERATURE = 12241,  // Temperature Units
};

// Copies the text of string resource id into text; false, with text
// unchanged, when the table has no such number.
VEXBASE_API bool LoadStringResource(int id, CString& text);
// The text of string resource id, or an empty string.
VEXBASE_API CString LoadStringResource(int id);

}  // namespace vex
