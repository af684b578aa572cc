#include <base/config/OPCSettings.h>

namespace vex {

OPCSettings::OPCSettings() {
    ResetToDefaults();
}

OPCSettings::~OPCSettings() = default;

void OPCSettings::ResetToDefaults() {
    m_hostName = u"localhost";
    m_serverName.Empty();
    m_force1 = false;
    m_fsGateway = false;
}

}  // namespace vex
