// VexGeoStaticDataBase.h - the interface of a read-only geodetic database
// shipped with the geodesy library, and the factory that makes one.
//
// Creators are registered in VexGeoStaticDatabaseList by type name; objects
// made by a creator belong to the caller.
//
//   std::unique_ptr<vex::VexGeoStaticDataBase> db(
//       vex::VexGeoStaticDatabaseList::GetGeoStaticDataList().Create(u"EPSG"));
#pragma once

#include <base/Export.h>

namespace vex {

class VEXBASE_API VexGeoStaticDataBase {
  public:
    virtual ~VexGeoStaticDataBase() = default;
    // Prepares a new object; a registry destroys the object when this fails.
    virtual bool Init() = 0;
};

// Makes static databases of one type; registries do not own creators.
class VEXBASE_API GeoStaticICreator {
  public:
    virtual ~GeoStaticICreator() = default;
    // A new, not yet initialised object owned by the caller.
    virtual VexGeoStaticDataBase* Create() = 0;
};

}  // namespace vex
