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
};

// Copies the text of string resource id into text; false, with text
// unchanged, when the table has no such number.
VEXBASE_API bool LoadStringResource(int id, CString& text);
// The text of string resource id, or an empty string.
VEXBASE_API CString LoadStringResource(int id);

}  // namespace vex
