#include <base/geodesy/VexGeoDatabaseBaseList.h>

namespace vex {

VexGeoDatabaseBaseList::VexGeoDatabaseBaseList() = default;
VexGeoDatabaseBaseList::~VexGeoDatabaseBaseList() = default;

VexGeoDatabaseBaseList& VexGeoDatabaseBaseList::GetGeoDatabaseList() {
    static VexGeoDatabaseBaseList instance;
    return instance;
}

void VexGeoDatabaseBaseList::RegisterGeoDatabase(const CString& name,
                                                 GeoDatabaseICreator* creator) {
    creators_.Register(name, creator);
}

void VexGeoDatabaseBaseList::UnRegisterGeoDatabase(const CString& name) {
    creators_.Unregister(name);
}

VexGeoDatabaseBase* VexGeoDatabaseBaseList::Create(const CString& name) const {
    return detail::CreateInitialised<VexGeoDatabaseBase>(creators_, name);
}

int VexGeoDatabaseBaseList::GetGeoDatabaseTypes(std::vector<CString>& types) const {
    return creators_.Keys(types);
}

}  // namespace vex
