// VexGeoCoordSysBase.h - the interface of a geodetic coordinate system, as
// the run-time geodesy library implements it, and the factory that makes one.
//
// This library never implements coordinate systems itself: the geodesy
// library (see VexGeoCoordSysLoader) registers creators for its types in
// VexGeoCoordSysList, and callers create systems by type name. Objects made
// by a creator belong to the caller.
//
//   std::unique_ptr<vex::VexGeoCoordSysBase> utm(
//       vex::VexGeoCoordSysList::GetCoordSysList().Create(u"UTM"));
//   if (utm) factor = utm->GetLinearUnitFactor();
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

namespace vex {

class VEXBASE_API VexGeoCoordSysBase {
  public:
    virtual ~VexGeoCoordSysBase() = default;
    // Prepares a new object; a registry destroys the object when this fails.
    virtual bool Init() = 0;
    // Metres per linear unit of the system's grid coordinates; 0 when the
    // system does not know it (GeoidModel then assumes metres).
    virtual double GetLinearUnitFactor() const = 0;
    virtual CString GetLinearUnitName() const = 0;
};

// Makes coordinate systems of one type. Registries hold creators by plain
// pointer and never delete them.
class VEXBASE_API VexCoordSysICreator {
  public:
    virtual ~VexCoordSysICreator() = default;
    // A new, not yet initialised object owned by the caller.
    virtual VexGeoCoordSysBase* Create() = 0;
};

}  // namespace vex
