#include <base/config/OpcUaSettings.h>

namespace vex {

OpcUaSettings::OpcUaSettings() {
    ResetToDefaults();
}

OpcUaSettings::~OpcUaSettings() = default;

void OpcUaSettings::ResetToDefaults() {
    m_hostName = u"localhost";
    m_portName = u"4841";
    m_certificate.Empty();
    m_securityPolicy = 0;
    m_messageSecurityMode = 1;
}

}  // namespace vex
