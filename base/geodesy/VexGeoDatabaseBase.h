// VexGeoDatabaseBase.h - the interface of a geodetic database (ellipsoids,
// datums, projections) as the run-time geodesy library implements it, and
// the factory that makes one.
//
// Creators are registered in VexGeoDatabaseBaseList by type name; objects
// made by a creator belong to the caller.
//
//   std::unique_ptr<vex::VexGeoDatabaseBase> db(
//       vex::VexGeoDatabaseBaseList::GetGeoDatabaseList().Create(u"User"));
#pragma once

#include <base/Export.h>

namespace vex {

class VEXBASE_API VexGeoDatabaseBase {
  public:
    virtual ~VexGeoDatabaseBase() = default;
    // Prepares a new object; a registry destroys the object when this fails.
    virtual bool Init() = 0;
};

// Makes geodetic databases of one type; registries do not own creators.
class VEXBASE_API GeoDatabaseICreator {
  public:
    virtual ~GeoDatabaseICreator() = default;
    // A new, not yet initialised object owned by the caller.
    virtual VexGeoDatabaseBase* Create() = 0;
};

}  // namespace vex
