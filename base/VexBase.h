// VexBase.h - the whole interface of the vexbase library in one include.
//
// VexBase is the base library of the Vex hydrographic survey and dredging
// suite. Everything is in namespace vex. Times are milliseconds since
// 1970-01-01 UTC, text is UTF-16 (vex::CString), coordinates are x east,
// y north, z up, bearings in degrees clockwise from north.
//
//   #include <base/VexBase.h>
//   vex::CString text;
//   text.Format(u"%.2f", 1.5);
#pragma once

#include <base/Export.h>
#include <base/colour/ColorLegend.h>
#include <base/colour/ColorTable.h>
#include <base/colour/CptFile.h>
#include <base/colour/NamedPalettes.h>
#include <base/config/Config.h>
#include <base/data/Data.h>
#include <base/errors/Errors.h>
#include <base/framework/Framework.h>
#include <base/geodesy/CoordinateSystem.h>
#include <base/geodesy/GeodesyRegistries.h>
#include <base/geometry/Geometry.h>
#include <base/strings/FormatString.h>
#include <base/survey/LineData.h>
#include <base/survey/TideFile.h>
#include <base/survey/TideInterpolation.h>
#include <base/survey/TidePlot.h>
#include <base/survey/VesselContour.h>
#include <base/time/Time.h>
#include <base/units/Units.h>

namespace vex {

// The library's version as "major.minor.patch".
VEXBASE_API const char* VersionString();

}  // namespace vex
