// StaticFormats.h - the display formats of the suite's values: numbered
// formats, each with a name and, for most, the decimals a value of that
// format shows when the caller asks for none.
//
// Format ids are the numbers displays and settings files store; a format
// that shows a unit maps to a unit kind (CVexUnitCnv::ConvertFMTtoUNIT).
// The default decimals suit the resolution of the quantity as surveyed:
// depths, distances and coordinates to the centimetre (2), densities to the
// kilogram per cubic metre (3), volumes and weights to a tenth, times,
// powers and forces as whole numbers (0). A format without default decimals
// shows the decimals its value carries (GetDoublePrecision). Constant data:
// thread-safe.
//
//   int decimals = -1;
//   vex::StaticFormats::GetDefaultDecimals(vex::FMT_DEPTH, decimals);  // 2
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

namespace vex {

// Display format ids. The unit-less ids not listed here are free for the
// suite's own formats and have no default decimals.
enum DisplayFormat : int {
    FMT_NONE = 0,              // plain number, no unit
    FMT_COORDINATE = 1,        // easting or northing, in the projection's unit
    FMT_DEPTH = 2,             // kind 3
    FMT_SPEED = 3,             // kind 2
    FMT_DISTANCE = 4,          // kind 4
    FMT_LENGTH = 5,            // kind 1, the system length as stored
    FMT_VOLUME = 6,            // kind 5
    FMT_DENSITY = 7,           // kind 6
    FMT_VELOCITY = 8,          // kind 7, flow velocity in pipes
    FMT_PRODUCTION = 9,        // kind 8, tons per second
    FMT_TIME = 10,             // seconds, no unit
    FMT_COUNT = 11,            // whole numbers, no unit
    FMT_FLOW = 12,             // kind 18, cubic metres per second
    FMT_HEIGHT = 35,           // kind 9
    FMT_PRESSURE = 36,         // kind 10
    FMT_POWER = 37,            // kind 11
    FMT_TONS_PER_MINUTE = 38,  // kind 12
    FMT_WEIGHT = 39,           // kind 13
    FMT_TRIM = 40,             // kind 14, bow up positive
    FMT_HEEL = 41,             // kind 15, port up positive
    FMT_USER_1 = 42,           // kind 16, a unit the user names
    FMT_USER_2 = 43,           // kind 17, a unit the user names
    FMT_ANGLE = 47,            // kind 19, degrees
    FMT_TEMPERATURE = 48,      // kind 21
    FMT_MILLIMETRE = 49,       // kind 22
    FMT_FORCE = 50,            // kind 23
    FMT_CHAINAGE = 51,         // kind 24, distance along a line
    FMT_FUEL_RATE = 52,        // kind 25
    FMT_FUEL = 53,             // kind 26
};

class VEXBASE_API StaticFormats {
  public:
    // The default decimals of formatId into decimals; false, decimals
    // unchanged, when the format has none.
    static bool GetDefaultDecimals(int formatId, int& decimals);
    // The format's name ("Depth", "Speed" ...); empty for an unknown id.
    static CString GetFormatName(int formatId);
    // The id of the format called name (compared without case); -1 when
    // there is none.
    static int GetFormatId(const CString& name);
};

}  // namespace vex
