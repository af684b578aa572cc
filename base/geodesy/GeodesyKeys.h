// GeodesyKeys.h - the configuration keys under which the suite's settings
// files store ellipsoids, datum transformations, projections, geoid models
// and coordinate systems, and the names of the geodetic database files.
//
// The texts are part of the suite's file formats and never change. The
// index of a name in GeoidmodelTypeKeys is that geoid model's number.
//
//   item = file.GetItem(section, vex::spheroidKeys[2]);  // "SemiMajor"
#pragma once

#include <base/Export.h>

namespace vex {

// Ellipsoid: database, name, semi-major axis, eccentricity squared.
extern VEXBASE_API const char16_t* const spheroidKeys[4];
// Datum transformation parameters.
extern VEXBASE_API const char16_t* const transParamKeys[23];
// Map projection parameters.
extern VEXBASE_API const char16_t* const projectionParamKeys[23];
// Geoid model types, by model number from 0.
extern VEXBASE_API const char16_t* const GeoidmodelTypeKeys[30];
// A coordinate system's settings.
extern VEXBASE_API const char16_t* const coordsystemKeys[24];
// Geodetic database files: user and system databases.
extern VEXBASE_API const char16_t* const geoFileKeys[4];

}  // namespace vex
