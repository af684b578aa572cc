#include <base/geodesy/VexGeoCoordSysList.h>

namespace vex {

VexGeoCoordSysList::VexGeoCoordSysList() = default;
VexGeoCoordSysList::~VexGeoCoordSysList() = default;

VexGeoCoordSysList& VexGeoCoordSysList::GetCoordSysList() {
    static VexGeoCoordSysList instance;
    return instance;
}

void VexGeoCoordSysList::RegisterGeoCoordSys(const CString& name, VexCoordSysICreator* creator) {
    creators_.Register(name, creator);
}

void VexGeoCoordSysList::UnRegisterGeoCoordSys(const CString& name) {
    creators_.Unregister(name);
}

VexGeoCoordSysBase* VexGeoCoordSysList::Create(const CString& name) const {
    return detail::CreateInitialised<VexGeoCoordSysBase>(creators_, name);
}

int VexGeoCoordSysList::GetCoordSysTypes(std::vector<CString>& types) const {
    return creators_.Keys(types);
}

}  // namespace vex
