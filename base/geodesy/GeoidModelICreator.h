// GeoidModelICreator.h - the factory through which a geoid or height model
// type enters GeoidModelList.
//
// One creator per model type, registered once at start-up; the registry
// does not own it. Each Create makes a new model that the caller owns.
//
//   struct EgmCreator : vex::GeoidModelICreator {
//       vex::GeoidModel* Create() override { return new Egm2008Model; }
//   };
#pragma once

#include <base/Export.h>

namespace vex {

class GeoidModel;

class VEXBASE_API GeoidModelICreator {
  public:
    virtual ~GeoidModelICreator() = default;
    // A new model owned by the caller.
    virtual GeoidModel* Create() = 0;
};

}  // namespace vex
