// VexGeoDatabaseBaseList.h - the process-wide registry of geodetic-database types: the
// run-time geodesy library enters a creator per type name, and callers
// create objects by name.
//
// The registry is made on first use (also when several threads ask at
// once) and lives until the process ends. Registering, removing, creating
// and listing are safe from any thread. Names are ordered and matched as
// exact, case-sensitive text. Created objects belong to the caller.
//
//   vex::VexGeoDatabaseBaseList::GetGeoDatabaseList().RegisterGeoDatabase(u"Example",
//   &exampleCreator); std::unique_ptr<vex::VexGeoDatabaseBase>
//   object(vex::VexGeoDatabaseBaseList::GetGeoDatabaseList().Create(u"Example"));
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>
#include <base/geodesy/CreatorRegistry.h>
#include <base/geodesy/VexGeoDatabaseBase.h>

#include <vector>

namespace vex {

class VEXBASE_API VexGeoDatabaseBaseList {
  public:
    // The process-wide instance.
    static VexGeoDatabaseBaseList& GetGeoDatabaseList();

    virtual ~VexGeoDatabaseBaseList();
    VexGeoDatabaseBaseList(const VexGeoDatabaseBaseList&) = delete;
    VexGeoDatabaseBaseList& operator=(const VexGeoDatabaseBaseList&) = delete;

    // Enters creator under name, replacing an earlier creator of that name.
    // The creator is not owned and must outlive its registration.
    void RegisterGeoDatabase(const CString& name, GeoDatabaseICreator* creator);
    // Removes the creator of name; nothing happens when there is none.
    void UnRegisterGeoDatabase(const CString& name);

    // A new object of the type name, initialised; null when no creator is
    // registered under exactly that name or the new object's Init fails
    // (the object is then destroyed). The caller owns the result.
    VexGeoDatabaseBase* Create(const CString& name) const;

    // Replaces types with the registered names in order; returns how many.
    int GetGeoDatabaseTypes(std::vector<CString>& types) const;

  protected:
    VexGeoDatabaseBaseList();

  private:
    detail::CreatorRegistry<CString, GeoDatabaseICreator> creators_;
};

}  // namespace vex
