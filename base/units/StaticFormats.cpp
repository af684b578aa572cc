#include <base/units/StaticFormats.h>

namespace vex {
namespace {

struct FormatInfo {
    int id;
    const char16_t* name;
    int decimals;  // -1: none, the value's own precision is shown
};

constexpr FormatInfo kFormats[] = {
    {FMT_NONE, u"None", -1},
    {FMT_COORDINATE, u"Coordinate", 2},
    {FMT_DEPTH, u"Depth", 2},
    {FMT_SPEED, u"Speed", 2},
    {FMT_DISTANCE, u"Distance", 2},
    {FMT_LENGTH, u"Length", 2},
    {FMT_VOLUME, u"Volume", 1},
    {FMT_DENSITY, u"Density", 3},
    {FMT_VELOCITY, u"Velocity", 2},
    {FMT_PRODUCTION, u"Production", 2},
    {FMT_TIME, u"Time", 0},
    {FMT_COUNT, u"Count", 0},
    {FMT_FLOW, u"Flow", 3},
    {FMT_HEIGHT, u"Height", 2},
    {FMT_PRESSURE, u"Pressure", 2},
    {FMT_POWER, u"Power", 0},
    {FMT_TONS_PER_MINUTE, u"Tons per minute", 1},
    {FMT_WEIGHT, u"Weight", 1},
    {FMT_TRIM, u"Trim", 2},
    {FMT_HEEL, u"Heel", 2},
    // What a user-named unit measures is unknown, so its values show the
    // decimals they carry.
    {FMT_USER_1, u"User 1", -1},
    {FMT_USER_2, u"User 2", -1},
    {FMT_ANGLE, u"Angle", 2},
    {FMT_TEMPERATURE, u"Temperature", 1},
    {FMT_MILLIMETRE, u"Millimetre", 0},
    {FMT_FORCE, u"Force", 0},
    {FMT_CHAINAGE, u"Chainage", 2},
    {FMT_FUEL_RATE, u"Fuel rate", 1},
    {FMT_FUEL, u"Fuel", 0},
};

const FormatInfo* Find(int formatId) {
    for (const FormatInfo& f : kFormats) {
        if (f.id == formatId) return &f;
    }
    return nullptr;
}

}  // namespace

bool StaticFormats::GetDefaultDecimals(int formatId, int& decimals) {
    const FormatInfo* f = Find(formatId);
    if (f == nullptr || f->decimals < 0) return false;
    decimals = f->decimals;
    return true;
}

CString StaticFormats::GetFormatName(int formatId) {
    const FormatInfo* f = Find(formatId);
    return f ? CString(f->name) : CString();
}

int StaticFormats::GetFormatId(const CString& name) {
    for (const FormatInfo& f : kFormats) {
        if (name.CompareNoCase(f.name) == 0) return f.id;
    }
    return -1;
}

}  // namespace vex
