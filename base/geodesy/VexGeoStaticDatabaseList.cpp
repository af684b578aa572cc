#include <base/geodesy/VexGeoStaticDatabaseList.h>

namespace vex {

VexGeoStaticDatabaseList::VexGeoStaticDatabaseList() = default;
VexGeoStaticDatabaseList::~VexGeoStaticDatabaseList() = default;

VexGeoStaticDatabaseList& VexGeoStaticDatabaseList::GetGeoStaticDataList() {
    static VexGeoStaticDatabaseList instance;
    return instance;
}

void VexGeoStaticDatabaseList::RegisterGeoStaicDatabase(const CString& name,
                                                        GeoStaticICreator* creator) {
    creators_.Register(name, creator);
}

void VexGeoStaticDatabaseList::UnRegisterGeoStaicDatabase(const CString& name) {
    creators_.Unregister(name);
}

VexGeoStaticDataBase* VexGeoStaticDatabaseList::Create(const CString& name) const {
    return detail::CreateInitialised<VexGeoStaticDataBase>(creators_, name);
}

int VexGeoStaticDatabaseList::GetGeoStaticTypes(std::vector<CString>& types) const {
    return creators_.Keys(types);
}

}  // namespace vex
