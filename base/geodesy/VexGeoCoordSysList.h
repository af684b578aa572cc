// VexGeoCoordSysList.h - the process-wide registry of coordinate-system types: the
// run-time geodesy library enters a creator per type name, and callers
// create objects by name.
//
// The registry is made on first use (also when several threads ask at
// once) and lives until the process ends. Registering, removing, creating
// and listing are safe from any thread. Names are ordered and matched as
// exact, case-sensitive text. Created objects belong to the caller.
//
//   vex::VexGeoCoordSysList::GetCoordSysList().RegisterGeoCoordSys(u"Example", &exampleCreator);
//   std::unique_ptr<vex::VexGeoCoordSysBase>
//   object(vex::VexGeoCoordSysList::GetCoordSysList().Create(u"Example"));
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>
#include <base/geodesy/CreatorRegistry.h>
#include <base/geodesy/VexGeoCoordSysBase.h>

#include <vector>

namespace vex {

class VEXBASE_API VexGeoCoordSysList {
  public:
    // The process-wide instance.
    static VexGeoCoordSysList& GetCoordSysList();

    virtual ~VexGeoCoordSysList();
    VexGeoCoordSysList(const VexGeoCoordSysList&) = delete;
    VexGeoCoordSysList& operator=(const VexGeoCoordSysList&) = delete;

    // Enters creator under name, replacing an earlier creator of that name.
    // The creator is not owned and must outlive its registration.
    void RegisterGeoCoordSys(const CString& name, VexCoordSysICreator* creator);
    // Removes the creator of name; nothing happens when there is none.
    void UnRegisterGeoCoordSys(const CString& name);

    // A new object of the type name, initialised; null when no creator is
    // registered under exactly that name or the new object's Init fails
    // (the object is then destroyed). The caller owns the result.
    VexGeoCoordSysBase* Create(const CString& name) const;

    // Replaces types with the registered names in order; returns how many.
    int GetCoordSysTypes(std::vector<CString>& types) const;

  protected:
    VexGeoCoordSysList();

  private:
    detail::CreatorRegistry<CString, VexCoordSysICreator> creators_;
};

}  // namespace vex
