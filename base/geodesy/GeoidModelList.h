// GeoidModelList.h - the process-wide registry of geoid model types, by
// name and by model number.
//
// Each model type registers its creator once at start-up under a name and
// a 16-bit model number (the index of its name in GeoidmodelTypeKeys);
// callers then create models by either. The registry is made on first use
// (also when several threads ask at once) and lives until the process
// ends; every member is safe from any thread. Names are ordered and matched
// as exact, case-sensitive text. Created models belong to the caller.
//
//   vex::GeoidModelList::GetGeoidModelList().RegisterGeoidModel(u"EGM2008", 18, &egmCreator);
//   std::unique_ptr<vex::GeoidModel> model(vex::GeoidModelList::GetGeoidModelList().Create(18));
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>
#include <base/geodesy/CreatorRegistry.h>
#include <base/geodesy/GeoidModel.h>
#include <base/geodesy/GeoidModelICreator.h>

#include <vector>

namespace vex {

class VEXBASE_API GeoidModelList {
  public:
    // The process-wide instance.
    static GeoidModelList& GetGeoidModelList();

    virtual ~GeoidModelList();
    GeoidModelList(const GeoidModelList&) = delete;
    GeoidModelList& operator=(const GeoidModelList&) = delete;

    // Enters creator under name and under modelNumber. The two are kept
    // apart: a later registration under the same name replaces the name's
    // creator, one under the same number replaces the number's, each leaving
    // the other table as it was. The creator is not owned.
    void RegisterGeoidModel(const CString& name, unsigned short modelNumber,
                            GeoidModelICreator* creator);

    // A new model from the creator registered under exactly name, or null.
    // The model is not initialised; the caller owns it.
    GeoidModel* Create(const CString& name) const;
    // The same by model number.
    GeoidModel* Create(unsigned short modelNumber) const;

    // Replaces names with the registered names in order.
    void GetGeoidModelNames(std::vector<CString>& names) const;

  protected:
    GeoidModelList();

  private:
    detail::CreatorRegistry<CString, GeoidModelICreator> byName_;
    detail::CreatorRegistry<unsigned short, GeoidModelICreator> byNumber_;
};

}  // namespace vex
