#include <base/geodesy/GeoidModelList.h>

namespace vex {

GeoidModelList::GeoidModelList() = default;
GeoidModelList::~GeoidModelList() = default;

GeoidModelList& GeoidModelList::GetGeoidModelList() {
    static GeoidModelList instance;
    return instance;
}

void GeoidModelList::RegisterGeoidModel(const CString& name, unsigned short modelNumber,
                                        GeoidModelICreator* creator) {
    byName_.Register(name, creator);
    byNumber_.Register(modelNumber, creator);
}

GeoidModel* GeoidModelList::Create(const CString& name) const {
    GeoidModelICreator* creator = byName_.Find(name);
    return creator == nullptr ? nullptr : creator->Create();
}

GeoidModel* GeoidModelList::Create(unsigned short modelNumber) const {
    GeoidModelICreator* creator = byNumber_.Find(modelNumber);
    return creator == nullptr ? nullptr : creator->Create();
}

void GeoidModelList::GetGeoidModelNames(std::vector<CString>& names) const {
    byName_.Keys(names);
}

}  // namespace vex
